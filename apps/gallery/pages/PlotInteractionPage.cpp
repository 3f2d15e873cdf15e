// Working with a plot: a water surface profile in a document frame whose plot menu the frame
// routes to the plot, and the same profile in a window of its own that the frame owns.
// Pictures: the right-click menu open, a point of the water surface dragged up, the axis
// titles dialog, the values dialog, and the plot's own window still over the frame after its
// values dialog. On a display all of it works with the mouse: a right click opens the menu, a
// water surface point drags up and down (never below the bed), and two clicks on empty chart
// area draw a line whose slope the report prints.

#include "GalleryPage.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "platform/testing/MenuResponder.h"
#include "platform/testing/ModalResponder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/MdiFrame.h"
#include "platform/window/Menu.h"
#include "platform/window/WindowDC.h"
#include "plot/DlgAxisTitles.h"
#include "plot/DlgPlotViewValues.h"
#include "plot/Plot.h"
#include "plot/PlotApi.h"
#include "plot/PlotData.h"
#include "plot/PlotMenuResource.h"

#include <cstdio>
#include <vector>

namespace {

constexpr int kLineChart = 0;
constexpr unsigned char kDocument = 0;
constexpr unsigned char kTopLevel = 1;
constexpr UINT kPlotMenu = 6101;
constexpr int kBed = 0;
constexpr int kWater = 1;
constexpr int kPoints = 12;
constexpr UINT kViewValuesItem = 10; // its position in the plot menu

double BedLevel(int point) {
    return 100.0 - 0.35 * point + (point == 5 ? 0.6 : 0.0);
}

// The application's frame: it keeps the plot whose menu is up and hands it the menu's commands.
class InteractionFrame : public CMDIFrameWnd {
public:
    EPlot* menuPlot = nullptr;

protected:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        if (message == WM_PLOT_SETMENUPLOT) {
            menuPlot = reinterpret_cast<EPlot*>(lParam);
            return TRUE;
        }
        return CMDIFrameWnd::OnWndMsg(message, wParam, lParam, result);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        return pmRunPlotMenuCommand(menuPlot, LOWORD(wParam)) ||
               CMDIFrameWnd::OnCommand(wParam, lParam);
    }
};

// The profile: water surface points drag up and down but not below the bed; a click on empty
// area starts a line to measure a slope, which the next click ends.
class ProfilePlot : public EPlot {
public:
    using EPlot::EPlot;

    void PlotClick(int curve, int point, Pt2<double>, unsigned char* drag,
                   unsigned char* rubber) override {
        *drag = curve == kWater ? 1 : 0;
        *rubber = curve == -1 && point == -1 ? 1 : 0;
    }
    int CheckDragPoint(int, int point, Pt2<double>, Pt2<double>* current, unsigned char* moveX,
                       unsigned char* moveY) override {
        *moveX = 0;
        *moveY = 1;
        return current->y < BedLevel(point) ? 0 : 1; // water does not go below the bed
    }
    void EndDrag(int curve, int point, Pt2<double>, Pt2<double>*) override {
        double level = 0;
        GetProperty(chartprop::YData, curve * kPoints + point, level);
        std::printf("water surface at point %d now %.2f m\n", point + 1, level);
        std::fflush(stdout);
    }
    void ChangeXORData(int, Pt2<double>* points) override {
        const double run = points[1].x - points[0].x;
        if (run != 0)
            std::printf("measured slope %.5f over %.0f m\n", (points[1].y - points[0].y) / run,
                        run);
        std::fflush(stdout);
    }
};

void FillProfile(EPlot& plot) {
    plot.SetMainTitle("Water surface profile");
    plot.SetSubTitle("Drag a water surface point; right-click for the menu");
    plot.SetXAxisTitle("Chainage (m)");
    plot.SetYAxisTitle("Level (m)");
    EPlotData data;
    data.Initialize(2, kPoints, 0);
    for (int i = 0; i < kPoints; ++i) {
        data.SetDataForPoint(kBed, i, i * 100.0, BedLevel(i));
        data.SetDataForPoint(kWater, i, i * 100.0, 102.4 - 0.3 * i);
    }
    data.SetCurveName(kBed, "Bed");
    data.SetCurveName(kWater, "Water surface");
    data.SetSubsetColor(kBed, MUcolor(0x8C, 0x56, 0x4B));
    data.SetSubsetColor(kWater, MUcolor(0x1F, 0x77, 0xB4));
    data.UpdatePlotFromData(plot.GetHwnd());
    std::vector<int> symbols{0, 3};
    plot.SetSymbolTypes(symbols);
    plot.SetXRange(0, 1100, EPlot::RangeBothGiven);
    plot.SetYRange(94, 104, EPlot::RangeBothGiven);
    plot.Legend().ShowLegend(1, 1);
    plot.RedrawPlot();
}

POINT ChartPixel(EPlot& plot, double gx, double gy) {
    int axis = 0, x = 0, y = 0;
    plot.PixelToGraph(axis, x, y, gx, gy, true, false, false);
    return {x, y};
}

// A point of the chart, relative to the outer corner of a top-level window, for the scripts
// that click it.
void ReportPoint(GalleryContext& context, HWND window, EPlot& plot, const char* name, double gx,
                 double gy) {
    POINT p = ChartPixel(plot, gx, gy);
    ClientToScreen(plot.GetHwnd(), &p);
    RECT windowRect;
    GetWindowRect(window, &windowRect);
    context.Print("at %s %ld %ld", name, long(p.x - windowRect.left), long(p.y - windowRect.top));
}

void BuildPlotInteractionPage(GalleryContext& context) {
    static InteractionFrame frame;
    frame.Create(nullptr, "Flume bench - plot interaction", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                 CRect(30, 30, 830, 590));
    // The plot menu's commands reach the main window, so this frame stays the main window for
    // a user on a display.
    AfxSetMainWnd(&frame);
    pmPlotDefaults(0);
    RegisterMenuResource(kPlotMenu, pmPlotMenuTemplate());

    CRect place(4, 4, 780, 500);
    auto* plot = new ProfilePlot(kLineChart, "Profile", &place, kDocument, 1);
    FillProfile(*plot);
    plot->Menu().SetMenuID(kPlotMenu);
    const HWND chart = plot->GetHwnd();
    UiDriver driver;
    driver.Pump();
    ReportPoint(context, frame.m_hWnd, *plot, "menu-point", 850, 103.5);

    // The right-click menu, the mouse on its values item.
    MenuResponder menus;
    menus.Interact([&](const ShownPopupMenu& shown) {
        POINT item = MenuResponder::ItemPoint(shown.window, shown.menu, kViewValuesItem);
        driver.MouseMove(shown.window, item);
        ClientToScreen(shown.window, &item);
        RECT frameRect;
        GetWindowRect(frame.m_hWnd, &frameRect);
        context.Print("at view-values %ld %ld", long(item.x - frameRect.left),
                      long(item.y - frameRect.top));
        context.CaptureScreen(frame.m_hWnd, "61-plot-interaction-menu");
        EndMenu();
    });
    driver.RightClick(chart, ChartPixel(*plot, 850, 103.5));
    for (const ShownMenuItem& item : menus.Last().items)
        context.Print("  menu item \"%s\"%s", item.text.c_str(),
                      item.state & MF_POPUP ? " (sub-menu)" : "");

    // A water surface point dragged up; then one dragged below the bed, which the plot refuses.
    driver.Drag(chart, ChartPixel(*plot, 600, 102.4 - 0.3 * 6), ChartPixel(*plot, 600, 103.2));
    driver.Drag(chart, ChartPixel(*plot, 300, 102.4 - 0.3 * 3), ChartPixel(*plot, 300, 95));
    double dragged = 0, refused = 0;
    ChartGetElement(chart, chartprop::YData, kWater * kPoints + 6, &dragged);
    ChartGetElement(chart, chartprop::YData, kWater * kPoints + 3, &refused);
    context.Print("dragged point 7 to %.2f m; point 4 stays at %.2f m above the bed", dragged,
                  refused);
    context.Capture(frame.m_hWnd, "61-plot-interaction-dragged");

    // The axis titles dialog from the menu, with a new X title typed.
    ModalResponder dialogs;
    dialogs.Next()
        .Type(CDlgAxisTitles::IDC_X_TITLE, "Distance downstream (m)")
        .Run([&context](CDialog& dialog, UiDriver&) {
            context.Capture(dialog.m_hWnd, "61-plot-interaction-axis-titles");
        })
        .Press(IDOK);
    menus.ChooseTitle("Axis Titles...");
    driver.RightClick(chart, ChartPixel(*plot, 850, 103.5));
    context.Print("X axis title now \"%s\"", plot->GetXAxisTitle().c_str());

    // The values dialog from the menu.
    dialogs.Next()
        .Run([&context](CDialog& dialog, UiDriver&) {
            context.Capture(dialog.m_hWnd, "61-plot-interaction-values");
        })
        .Press(IDOK);
    menus.ChooseTitle("View Values...");
    driver.RightClick(chart, ChartPixel(*plot, 850, 103.5));
    context.Print("dialogs shown: %d", dialogs.Count());
    // A point the user may drag next, and a place above it.
    ReportPoint(context, frame.m_hWnd, *plot, "water-point", 800, 102.4 - 0.3 * 8);
    ReportPoint(context, frame.m_hWnd, *plot, "water-target", 800, 102.5);

    // A plot in a window of its own, which the frame owns: the values dialog gives the
    // activation back to the frame, and the plot's window stays over it.
    CRect outside(50, 290, 440, 585);
    auto* owned = new ProfilePlot(kLineChart, "Profile - own window", &outside, kTopLevel, 2);
    FillProfile(*owned);
    owned->SetSubTitle("");
    owned->RedrawPlot();
    owned->Menu().SetMenuID(kPlotMenu);
    const HWND ownedChart = owned->GetHwnd();
    driver.Pump();
    dialogs.Next().Press(IDOK);
    menus.ChooseTitle("View Values...");
    driver.RightClick(ownedChart, ChartPixel(*owned, 850, 103.5));
    const HWND ownedWindow = GetAncestor(ownedChart, GA_ROOT);
    context.Print("after the values dialog: frame active %s, plot window over it %s",
                  GetActiveWindow() == frame.m_hWnd ? "yes" : "no",
                  GetTopWindow(nullptr) == ownedWindow ? "yes" : "no");
    driver.Pump();
    context.CaptureScreen(frame.m_hWnd, "61-plot-interaction-owned");
    ReportPoint(context, ownedWindow, *owned, "own-menu-point", 850, 103.5);
    ReportPoint(context, ownedWindow, *owned, "own-water-point", 200, 102.4 - 0.3 * 2);
    ReportPoint(context, ownedWindow, *owned, "own-water-target", 200, 103.5);
}

} // namespace

GALLERY_PAGE("61-plot-interaction", "Plot interaction, menu and dialogs", BuildPlotInteractionPage);
