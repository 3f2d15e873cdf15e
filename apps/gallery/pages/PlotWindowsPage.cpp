// Plots in their windows, as an application makes them: a document frame holding a line plot,
// a bar plot and a real-time plot as child windows, a free top-level plot, and a canvas in a
// dialog. On a display the real-time plot takes a new reading every 200 ms of real time.

#include "GalleryPage.h"

#include "platform/system/SysColors.h"
#include "platform/window/Dialog.h"
#include "platform/window/DialogTemplate.h"
#include "platform/window/MdiFrame.h"
#include "platform/window/WindowStyles.h"
#include "platform/window/Wnd.h"
#include "plot/Plot.h"
#include "plot/PlotApi.h"
#include "plot/PlotBar.h"
#include "plot/PlotCanvas.h"
#include "plot/PlotData.h"
#include "plot/PlotRealtime.h"

#include <cmath>
#include <string>

namespace {

constexpr int kLineChart = 0;
constexpr unsigned char kDocument = 0;
constexpr unsigned char kTopLevel = 1;
constexpr UINT kCanvasDialog = 6001;
constexpr int kCanvasControl = 601;
constexpr UINT_PTR kReadingTimer = 1;
constexpr UINT kReadingMilliseconds = 200;
constexpr int kLivePoints = 60;

double Inflow(int reading) {
    return 35.0 + 12.0 * std::sin(reading / 7.0) + 4.0 * std::sin(reading / 2.3);
}

// The application's side of a live reading: each tick of its timer, the next value.
class ReadingFeed : public CWnd {
public:
    EPlotRealtime* plot = nullptr;
    int readings = 0;

    void Next() {
        ++readings;
        if (plot)
            plot->AppendPoint(readings, Inflow(readings));
    }

protected:
    void OnTimer(UINT_PTR) override { Next(); }
};

// Writes a plot's chart as a PNG of its own, the size of its window.
void SavePlot(GalleryContext& context, EPlot& plot, const char* name) {
    std::string path = context.OutputPath((std::string(name) + ".png").c_str());
    int curves = 0, points = 0;
    plot.GetProperty(2115, curves);
    plot.GetProperty(2120, points);
    context.Print("%s.png: %s (%d curves of %d points)", name,
                  plot.CopyBitmapToFile(path) ? "written" : "FAILED", curves, points);
}

void LinePlot(EPlot& plot) {
    plot.SetMainTitle("Water level along the reach");
    plot.SetSubTitle("Three discharges, steady state");
    plot.SetXAxisTitle("Chainage (m)");
    plot.SetYAxisTitle("Water level (m)");
    const double flows[] = {20, 45, 80};
    const int points = 41;
    EPlotData data;
    data.Initialize(3, points, 0);
    for (int s = 0; s < 3; ++s) {
        for (int i = 0; i < points; ++i) {
            const double x = i * 25.0;
            data.SetDataForPoint(s, i, x,
                                 101.2 + 0.35 * std::pow(flows[s], 0.6) - x * 0.0012 +
                                     0.15 * std::sin(x / 120.0 + flows[s] / 40.0));
        }
        data.SetCurveName(s, ("Q = " + std::to_string(int(flows[s])) + " m3/s").c_str());
    }
    data.SetSubsetColor(0, MUcolor(0x1F, 0x77, 0xB4));
    data.SetSubsetColor(1, MUcolor(0xFF, 0x7F, 0x0E));
    data.SetSubsetColor(2, MUcolor(0x2C, 0xA0, 0x2C));
    data.UpdatePlotFromData(plot.GetHwnd());
    plot.RedrawPlot();
}

void BarPlot(EPlot& plot) {
    plot.SetMainTitle("Monthly rainfall");
    plot.SetSubTitle("Gauge R-12");
    plot.SetYAxisTitle("Rainfall (mm)");
    const char* months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    EPlotData data;
    data.Initialize(2, 12, 1);
    for (int s = 0; s < 2; ++s)
        for (int m = 0; m < 12; ++m)
            data.SetDataForBar(
                s, m, 60 + 45 * std::cos((m - 0.5 - s) * 3.14159265 / 6) + 9 * ((m * 7 + s) % 5));
    for (int m = 0; m < 12; ++m)
        data.SetBarPointLabel(m, months[m]);
    data.SetCurveName(0, "2024");
    data.SetCurveName(1, "2025");
    data.SetSubsetColor(0, MUcolor(0x40, 0x80, 0xC0));
    data.SetSubsetColor(1, MUcolor(0xE0, 0x80, 0x40));
    data.UpdatePlotFromData(plot.GetHwnd());
    plot.RedrawPlot();
}

void CrossSection(EPlot& plot) {
    plot.SetMainTitle("Cross-section at 450 m");
    plot.SetXAxisTitle("Offset (m)");
    plot.SetYAxisTitle("Bed level (m)");
    const double offsets[] = {0, 4, 8, 10, 12, 16, 20, 24, 26, 28, 32, 36};
    const double levels[] = {104.0, 103.2, 101.9, 100.4, 99.8,  99.6,
                             99.7,  100.1, 101.5, 102.6, 103.4, 104.1};
    EPlotData data;
    data.Initialize(1, 12, 0);
    for (int i = 0; i < 12; ++i)
        data.SetDataForPoint(0, i, offsets[i], levels[i]);
    data.SetCurveName(0, "Surveyed bed");
    data.SetSubsetColor(0, MUcolor(0x8C, 0x56, 0x4B));
    data.UpdatePlotFromData(plot.GetHwnd());
    std::vector<int> symbols{3};
    plot.SetSymbolTypes(symbols);
    plot.RedrawPlot();
}

struct PlotWindowsPage {
    CMDIFrameWnd frame;
    ReadingFeed feed;
    CDialog dialog{kCanvasDialog};
    PlotCanvas canvas;
};

void BuildPlotWindowsPage(GalleryContext& context) {
    static PlotWindowsPage page;
    CWnd* previousMain = AfxGetMainWnd();
    page.frame.Create(nullptr, "Flume bench - plot documents", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                      CRect(20, 20, 1000, 730));
    AfxSetMainWnd(&page.frame);
    pmPlotDefaults(0); // a closing plot window deletes its plot

    // Document windows, placed in the frame's document area.
    CRect place(6, 6, 482, 326);
    EPlot* line = new EPlot(kLineChart, "Water levels", &place, kDocument, 0);
    LinePlot(*line);
    place = CRect(488, 6, 964, 326);
    EPlotBar* bar = new EPlotBar(kLineChart, g_plotDefaultTitle, &place, kDocument);
    BarPlot(*bar);
    place = CRect(6, 332, 964, 664);
    EPlotRealtime* live = new EPlotRealtime(kLineChart, "Live inflow", &place, kDocument);
    live->SetMainTitle("Inflow at the weir");
    live->SetYAxisTitle("Inflow (l/s)");
    live->SetXAxisTitle("Reading");
    live->SetYRange(0, 70, EPlot::RangeBothGiven);
    live->SetNumberOfPoints(kLivePoints);
    live->SetProperty(2190, 0, MUcolor(0x1E, 0x5A, 0x9C));
    page.feed.CreateEx(0, nullptr, "reading feed", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr);
    page.feed.plot = live;
    for (int i = 0; i < 45; ++i)
        page.feed.Next();
    page.feed.SetTimer(kReadingTimer, kReadingMilliseconds); // real time on a display
    context.Print("documents: line plot %d, bar plot %d (\"Plot %d\"), real-time plot %d",
                  line->GetId(), bar->GetId(), bar->GetId(), live->GetId());
    SavePlot(context, *line, "plot-windows-line");
    SavePlot(context, *bar, "plot-windows-bar");
    SavePlot(context, *live, "plot-windows-realtime");
    context.Capture(page.frame.m_hWnd, "plot-windows-documents");

    // A free top-level plot, owned by the main window, with the hint in its title.
    place = CRect(300, 200, 900, 620);
    EPlot* free = new EPlot(kLineChart, "Section 450 m", &place, kTopLevel, 1);
    CrossSection(*free);
    free->SetMainTitle("Cross-section, free window");
    free->RedrawPlot();
    context.Capture(GetParent(free->GetHwnd()), "plot-windows-top");

    // A canvas that the application placed in its own dialog, with the canvases' border.
    plot_canvas::ShowPlotCanvasBorder(true);
    DialogTemplate canvasDialog;
    canvasDialog.caption = "Cross-section";
    canvasDialog.size = {280, 200};
    canvasDialog.items = {
        {"Static",
         "Bed survey of the reach at chainage 450 m:",
         0,
         WS_VISIBLE | SS_LEFT,
         {7, 7, 273, 17}},
        {kPlotCanvasClass, "", UINT(kCanvasControl), WS_VISIBLE, {7, 20, 273, 172}},
        {"Button",
         "OK",
         UINT(IDOK),
         WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON,
         {167, 179, 217, 193}},
        {"Button",
         "Cancel",
         UINT(IDCANCEL),
         WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON,
         {223, 179, 273, 193}},
    };
    RegisterDialogTemplate(kCanvasDialog, canvasDialog);
    page.dialog.Create(kCanvasDialog, nullptr);
    page.canvas.SubclassDlgItem(kCanvasControl, &page.dialog);
    EPlot* inCanvas = new EPlot(kLineChart, "", kCanvasControl, 0, page.canvas.m_hWnd);
    CrossSection(*inCanvas);
    context.Print("canvas: chart %s, border type %u",
                  page.canvas.GetPlotHwnd() ? "held" : "MISSING", page.canvas.GetBorderType());
    context.Capture(page.dialog.m_hWnd, "plot-windows-canvas");

    AfxSetMainWnd(previousMain);
}

} // namespace

GALLERY_PAGE("60-plot-windows", "Plot windows", BuildPlotWindowsPage);
