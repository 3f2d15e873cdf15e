// The plot's commands: those of the fixed menu (HandlePlot...), the axis titles dialog, and the
// frame command they share with the menu items.

#include "plot/PlotCommands.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "platform/base/Messages.h"
#include "platform/window/Wnd.h"
#include "plot/DlgAxisTitles.h"
#include "plot/DlgPlotViewValues.h"
#include "plot/Plot.h"

#include <string>

using namespace chartprop;

namespace {

constexpr int kFrameSetting = 3282;
constexpr int kFrameSettingForCommand = 3;
constexpr int kTitleBuffer = 1024;
constexpr int kValuesNegated = 3033;

std::string ReadTitle(HWND chart, int property) {
    std::string title(size_t(kTitleBuffer), '\0');
    ChartGetString(chart, property, title.data());
    title.resize(title.find('\0'));
    return title;
}

// The window a plot's dialogs belong to: the top-level window that holds the chart, so that
// the user comes back to the plot when a dialog closes.
CWnd* DialogOwner(HWND chart) {
    const HWND top = chart ? GetAncestor(chart, GA_ROOT) : nullptr;
    return top ? CWnd::FromHandle(top) : nullptr;
}

} // namespace

void RunFrameCommand(HWND chart) {
    const int saved = ChartGetInt(chart, kFrameSetting);
    ChartSetInt(chart, kFrameSetting, kFrameSettingForCommand);
    SendMessage(chart, WM_COMMAND, WPARAM(FrameCommand), 0);
    ChartSetInt(chart, kFrameSetting, saved);
}

void ShowPlotValues(EPlot& plot) {
    std::vector<std::vector<double>> xValues, yValues;
    std::vector<zvk::CStdStr<char>> names;
    plot.GetPlotData(xValues, yValues);
    plot.GetCurveNames(names);
    unsigned char negateY = 0;
    plot.GetProperty(kValuesNegated, negateY);
    CDlgPlotViewValues dialog(xValues, yValues, names, negateY, DialogOwner(plot.GetHwnd()));
    dialog.SetXTitle(plot.GetXAxisTitle());
    dialog.SetYTitle(plot.GetYAxisTitle());
    dialog.DoModal();
}

void EPlot::SetActiveMenuPlot(EPlot* plot) {
    if (HWND main = SafeHwnd(AfxGetMainWnd()))
        SendMessage(main, WM_PLOT_SETMENUPLOT, 0, reinterpret_cast<LPARAM>(plot));
}

void EPlot::EditAxisTitles() {
    CDlgAxisTitles dialog(DialogOwner(m_hwnd));
    dialog.m_xTitle = ReadTitle(m_hwnd, XAxisTitle).c_str();
    dialog.m_yTitle = ReadTitle(m_hwnd, YAxisTitle).c_str();
    if (dialog.DoModal() != IDOK)
        return;
    if (m_hwnd)
        ChartSetString(m_hwnd, XAxisTitle, dialog.m_xTitle.GetString());
    if (m_hwnd)
        ChartSetString(m_hwnd, YAxisTitle, dialog.m_yTitle.GetString());
}

void EPlot::HandlePlotRefresh() {
    ChartRedraw(m_hwnd);
    SetActiveMenuPlot(nullptr);
}

void EPlot::HandlePlotDisplayOpts() {
    ChartCustomizeDialog(m_hwnd);
    SetActiveMenuPlot(nullptr);
}

void EPlot::HandlePlotSetAsDisplayDefault() {
    SaveDisplayDefaults();
    SetActiveMenuPlot(nullptr);
}

void EPlot::HandlePlotMaximize() {
    ChartMaximize(m_hwnd);
    SetActiveMenuPlot(nullptr);
}

void EPlot::HandlePlotExportPrint() {
    ChartExportDialog(m_hwnd);
    SetActiveMenuPlot(nullptr);
}

void EPlot::HandlePlotFrame() {
    RunFrameCommand(m_hwnd);
    UpdateAnnotations();
    ChartRedraw(m_hwnd);
    SetActiveMenuPlot(nullptr);
}

void EPlot::HandlePlotAxisTitles() {
    EditAxisTitles();
    UpdateAnnotations();
    ChartRedraw(m_hwnd);
    SetActiveMenuPlot(nullptr);
}

void EPlot::HandlePlotViewValues() {
    ShowPlotValues(*this);
    SetActiveMenuPlot(nullptr);
}

void EPlot::HandlePlotLegend(unsigned char show, int location) {
    m_legend.ShowLegend(show, location);
    UpdateAnnotations();
    ChartRedraw(m_hwnd);
    SetActiveMenuPlot(nullptr);
}

void EPlot::HandlePlotLegendNone() {
    HandlePlotLegend(0, -1);
}
void EPlot::HandlePlotLegendTop() {
    HandlePlotLegend(1, 0);
}
void EPlot::HandlePlotLegendBottom() {
    HandlePlotLegend(1, 1);
}
void EPlot::HandlePlotLegendLeft() {
    HandlePlotLegend(1, 2);
}
void EPlot::HandlePlotLegendRight() {
    HandlePlotLegend(1, 3);
}
