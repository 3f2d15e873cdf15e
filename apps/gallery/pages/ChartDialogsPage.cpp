// The chart's own dialogs over a chart of two rating curves: the options dialog with a curve
// being restyled, the export dialog writing a PNG, and the maximised view. In a window, the
// three buttons under the chart open them.

#include "GalleryPage.h"

#include "chart/ChartApi.h"
#include "chart/ChartDialogIds.h"
#include "chart/ChartPropertyIds.h"

#include "platform/testing/ModalResponder.h"
#include "platform/window/Dialog.h"

#include <cmath>
#include <string>
#include <vector>

using namespace chartprop;

namespace {

constexpr UINT kChartId = 100;
constexpr UINT kCustomizeId = 101;
constexpr UINT kExportId = 102;
constexpr UINT kMaximizeId = 103;

DialogTemplate HostTemplate() {
    DialogTemplate t;
    t.caption = "Chart dialogs";
    t.size = {340, 236};
    t.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE;
    const auto button = [&t](const char* text, UINT id, LONG left) {
        t.items.push_back(
            {"Button", text, id, WS_VISIBLE | WS_TABSTOP, {left, 215, left + 60, 229}});
    };
    button("&Customize...", kCustomizeId, 142);
    button("&Export...", kExportId, 207);
    button("&Maximise", kMaximizeId, 272);
    return t;
}

void FillChart(HWND chart) {
    ChartSetString(chart, MainTitle, "Stage-discharge ratings");
    ChartSetString(chart, XAxisTitle, "Stage (m)");
    ChartSetString(chart, YAxisTitle, "Discharge (m3/s)");
    const int points = 25;
    std::vector<double> xs, ys;
    for (int s = 0; s < 2; ++s)
        for (int i = 0; i < points; ++i) {
            const double h = 0.2 + i * 0.15;
            xs.push_back(h);
            ys.push_back((s == 0 ? 6.5 : 4.2) * std::pow(h, 1.6));
        }
    ChartSetInt(chart, CurveCount, 2);
    ChartSetInt(chart, PointCount, points);
    ChartSetArray(chart, XData, xs.data(), int(xs.size()));
    ChartSetArray(chart, YData, ys.data(), int(ys.size()));
    ChartSetArray(chart, CurveNames, "Section A (2019)\tSection A (2024)\t", 2);
    const int colours[] = {0x8C4A1F, 0x2828C0};
    ChartSetArray(chart, CurveColours, colours, 2);
    ChartSetInt(chart, PlottingMethod, MethodByCurve);
    ChartRedraw(chart);
}

// Prints where a control's centre lies from its window's top-left corner, as "at <name> <x>
// <y>", for the scripts that click it with real X events.
void ReportCentre(GalleryContext& context, HWND window, int id, const char* name) {
    RECT frame, control;
    GetWindowRect(window, &frame);
    if (!GetWindowRect(GetDlgItem(window, id), &control))
        return;
    context.Print("at %s %ld %ld", name, long((control.left + control.right) / 2 - frame.left),
                  long((control.top + control.bottom) / 2 - frame.top));
}

// A dialog holding a chart and the three buttons that open the chart's dialogs.
class ChartHost : public CDialog {
public:
    HWND chart = nullptr;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        CRect area(0, 0, 340, 210);
        MapDialogRect(&area);
        RECT rect = area;
        chart = ChartCreate(0, 0, &rect, this->m_hWnd, kChartId);
        FillChart(chart);
        return TRUE;
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        switch (LOWORD(wParam)) {
        case kCustomizeId:
            ChartCustomizeDialog(chart);
            return TRUE;
        case kExportId:
            ChartExportDialog(chart);
            return TRUE;
        case kMaximizeId:
            ChartMaximize(chart);
            return TRUE;
        case IDOK:
        case IDCANCEL:
            return TRUE; // Enter and Escape leave the page open
        default:
            return CDialog::OnCommand(wParam, lParam);
        }
    }
};

void BuildChartDialogsPage(GalleryContext& context) {
    static ChartHost host;
    if (!host.CreateIndirect(HostTemplate()) || !host.chart) {
        context.Print("chart dialogs: the host could not be made");
        return;
    }
    host.SetWindowPos(nullptr, 60, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ReportCentre(context, host.m_hWnd, kCustomizeId, "customize-button");
    ReportCentre(context, host.m_hWnd, kExportId, "export-button");
    ReportCentre(context, host.m_hWnd, kMaximizeId, "maximise-button");

    ModalResponder responder;
    responder.Next()
        .Type(chartdlg::IDC_MAIN_TITLE, "Stage-discharge ratings, Section A")
        .Choose(chartdlg::IDC_Y_RANGE, "Fixed minimum")
        .Type(chartdlg::IDC_Y_MIN, "0")
        .Choose(chartdlg::IDC_CURVE, "Section A (2024)")
        .Choose(chartdlg::IDC_CURVE_SYMBOL, "Filled square")
        .Choose(chartdlg::IDC_CURVE_LINE, "Dashed")
        .Choose(chartdlg::IDC_LEGEND_PLACE, "Right")
        .Run([&context](CDialog& dialog, UiDriver&) {
            context.Capture(dialog.m_hWnd, "62-chart-dialogs-customize");
            ReportCentre(context, dialog.m_hWnd, chartdlg::IDC_MAIN_TITLE, "customize-title");
            ReportCentre(context, dialog.m_hWnd, chartdlg::IDC_X_GRID, "customize-x-grid");
            ReportCentre(context, dialog.m_hWnd, IDOK, "customize-ok");
        })
        .Press(IDOK);
    const int customized = ChartCustomizeDialog(host.chart);
    char title[1024] = {};
    ChartGetString(host.chart, MainTitle, title);
    context.Print("customize answered %d; title now \"%s\", legend at %d", customized, title,
                  ChartGetInt(host.chart, LegendLocation));
    context.Capture(host.m_hWnd, "62-chart-dialogs-customized-chart");

    const std::string exported = context.OutputPath("62-chart-dialogs-exported");
    responder.Next()
        .Type(chartdlg::IDC_EXPORT_WIDTH, "800")
        .Type(chartdlg::IDC_EXPORT_HEIGHT, "500")
        .Type(chartdlg::IDC_EXPORT_FILE, exported)
        .Run([&context](CDialog& dialog, UiDriver&) {
            context.Capture(dialog.m_hWnd, "62-chart-dialogs-export");
            ReportCentre(context, dialog.m_hWnd, chartdlg::IDC_EXPORT_FILE, "export-file");
            ReportCentre(context, dialog.m_hWnd, IDOK, "export-ok");
        })
        .Press(IDOK);
    const int written = ChartExportDialog(host.chart);
    context.Print("export answered %d: %s.png at 800 x 500", written, exported.c_str());

    // Closed as Escape would close it: on a display nobody else would.
    responder.Next()
        .Run([&context](CDialog& view, UiDriver&) {
            CRect client;
            view.GetClientRect(&client);
            context.Print("maximised view: %d x %d client pixels", client.Width(), client.Height());
            context.Capture(view.m_hWnd, "62-chart-dialogs-maximised");
        })
        .Press(IDCANCEL);
    ChartMaximize(host.chart);
}

} // namespace

GALLERY_PAGE("62-chart-dialogs", "Chart dialogs", BuildChartDialogsPage);
