// The settings that make bar, scatter and real-time plots, and the real-time plot's appending.

#include "plot/PlotBar.h"
#include "plot/PlotRealtime.h"
#include "plot/PlotScatter.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "plot/PlotApi.h"
#include "plot/PlotData.h"
#include "plot/PlotDate.h"
#include "plot/RightMenuItems.h"

#include <algorithm>

using namespace chartprop;

namespace {

constexpr int kAllMenuItems = ~0;
constexpr COLORREF kSecondBarColour = 0x010000;

constexpr int kScatterOff[] = {3279, 3274, 3287, 3288, 3281, 3272, 3254, 3022, 3648};

} // namespace

EPlotBar::EPlotBar(int chartType, const char* title, CRect* rect, unsigned char top)
    : EPlot(chartType, title, rect, top, 0) {
    EPlotBar::SetPlotDefaults();
}

EPlotBar::EPlotBar(int chartType, const char* title, int id, int hostId, HWND parent)
    : EPlot(chartType, title, id, hostId, parent) {
    EPlotBar::SetPlotDefaults();
}

int EPlotBar::SetPlotDefaults() {
    ChartSetInt(m_hwnd, PlottingMethod, MethodBar);
    ChartSetInt(m_hwnd, 2240, 2);
    ChartSetInt(m_hwnd, DataHotSpots, 0);
    const int colour = int(kSecondBarColour);
    ChartSetElement(m_hwnd, CurveColours, 1, &colour);
    pmSetUpBasicMenus(m_menu,
                      kAllMenuItems & ~(PM_MENU_AXISTITLES | PM_MENU_LEGEND | PM_MENU_SHOWVALUES));
    return 1;
}

void EPlotBar::SetUpPreviewPlot() {
    EPlot::SetUpPreviewPlot();
}

int EPlotScatter::SetPlotDefaults() {
    ChartSetInt(m_hwnd, PlottingMethod, MethodPoints);
    ChartSetInt(m_hwnd, 3081, 2);
    for (int property : kScatterOff)
        ChartSetInt(m_hwnd, property, 0);
    return 1;
}

EPlotRealtime::EPlotRealtime(int chartType, const char* title, CRect* rect, unsigned char top)
    : EPlot(chartType, title, rect, top, 0) {
    EPlotRealtime::SetPlotDefaults();
}

EPlotRealtime::EPlotRealtime(int chartType, const char* title, int id, int hostId, HWND parent)
    : EPlot(chartType, title, id, hostId, parent) {
    EPlotRealtime::SetPlotDefaults();
}

int EPlotRealtime::SetPlotDefaults() {
    ChartSetInt(m_hwnd, CurveCount, 1);
    ChartSetInt(m_hwnd, DataHotSpots, 0);
    ChartSetInt(m_hwnd, PointCount, 10);
    ChartSetArray(m_hwnd, 3656, nullptr, 0);
    ChartSetArray(m_hwnd, 3268, nullptr, 0);
    m_xDateTime = 0;
    pmSetUpBasicMenus(m_menu, kAllMenuItems & ~(PM_MENU_AXISTITLES | PM_MENU_LEGEND));
    return 1;
}

void EPlotRealtime::AppendPoint(double x, double y) {
    if (m_xDateTime)
        x = ChartSerialOfAutomationDate(x);
    ChartSetArray(m_hwnd, AppendX, &x, 1);
    ChartSetArray(m_hwnd, AppendY, &y, 1);
    ChartRedraw(m_hwnd);
}

void EPlotRealtime::ClearPlot() {
    EPlotData blank;
    // A negative count in the chart would be an absurd size for the staging vectors.
    blank.Initialize(1, std::max(ChartGetInt(m_hwnd, PointCount), 0), 0);
    blank.UpdatePlotFromData(m_hwnd);
}

void EPlotRealtime::SetNumberOfPoints(int points) {
    ChartSetInt(m_hwnd, PointCount, points);
    ClearPlot();
}

void EPlotRealtime::SetXAxisTicksAsIntegers() {
    ChartSetInt(m_hwnd, IntegerXTicks, 1);
    const double unit = 1.0;
    ChartSetArray(m_hwnd, XTickUnit, &unit, 1);
    ChartSetArray(m_hwnd, XMinorTickUnit, &unit, 1);
}
