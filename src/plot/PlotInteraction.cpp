// What a chart's notifications do to its plot: the codes become the plot's hooks, with the
// shared state of the two gestures (dragging a point, drawing a rubber line).

#include "plot/Plot.h"

#include "chart/ChartApi.h"
#include "chart/ChartEngine.h"
#include "chart/ChartPropertyIds.h"
#include "platform/window/Wnd.h"

#include <algorithm>
#include <cstdint>

using namespace chartprop;

namespace {

// One gesture at a time in the whole process: shared by all plots, user-interface thread only.
struct Gesture {
    unsigned char drag = 0;
    unsigned char rubber = 0;
    int curve = -1;
    int point = -1;
    Pt2<double> start;
    Pt2<double> current;
};
Gesture g_gesture;

constexpr int kDataChanging = 3040; // 0 while a drag writes the data
constexpr int kRubberLineStarted = 3208;
constexpr double kDragReach = 5.0; // widths of the axis range a dragged point may go beyond
constexpr int kRubberLineTypes[] = {38, 45};
constexpr int kRubberLineColour = 0;

// The last mouse position, in the chart's pixels.
POINT ReadMousePixel(HWND chart) {
    int mouse[2] = {};
    if (ChartGetArray(chart, MousePosition, nullptr) >= int(sizeof mouse))
        ChartGetArray(chart, MousePosition, mouse);
    return {mouse[0], mouse[1]};
}

// The last mouse position in graph coordinates; `where` keeps its value if that fails.
void ReadPosition(HWND chart, Pt2<double>& where) {
    POINT mouse = ReadMousePixel(chart);
    int axis = 0;
    ChartPixelToGraph(chart, &axis, &mouse.x, &mouse.y, &where.x, &where.y, false, false, false);
}

tagHOTSPOTDATA ReadHotSpot(HWND chart) {
    tagHOTSPOTDATA spot{};
    if (ChartGetArray(chart, HotSpot, nullptr) == int(sizeof spot))
        ChartGetArray(chart, HotSpot, &spot);
    return spot;
}

// Keeps a dragged value within five widths of the axis range on either side. An axis whose
// range the chart does not give sets no limit.
double Clamp(double value, HWND chart, int minProperty, int maxProperty) {
    double low = 0, high = 0;
    if (!ChartGetElement(chart, minProperty, 0, &low) ||
        !ChartGetElement(chart, maxProperty, 0, &high))
        return value;
    const double reach = (high - low) * kDragReach;
    return std::clamp(value, std::min(low - reach, high + reach),
                      std::max(low - reach, high + reach));
}

} // namespace

int EPlot::HandlePlotEvent(unsigned short code) {
    switch (code) {
    case PLOTEVT_CLICK: {
        if (g_gesture.rubber) {
            ReadPosition(m_hwnd, g_gesture.current);
            g_gesture.rubber = DrawXORLine(1, &g_gesture.start, &g_gesture.current, 0);
            return 1;
        }
        ReadPosition(m_hwnd, g_gesture.start);
        const tagHOTSPOTDATA spot = ReadHotSpot(m_hwnd);
        g_gesture.curve = spot.m_kind == HOTSPOT_DATAPOINT ? spot.m_w0 : -1;
        g_gesture.point = spot.m_kind == HOTSPOT_DATAPOINT ? spot.m_w1
                          : spot.m_kind == HOTSPOT_POINT   ? spot.m_w0
                                                           : -1;
        PlotClick(g_gesture.curve, g_gesture.point, g_gesture.start, &g_gesture.drag,
                  &g_gesture.rubber);
        return 1;
    }
    case PLOTEVT_MOUSEMOVE: {
        if (g_gesture.drag) {
            ReadPosition(m_hwnd, g_gesture.current);
            g_gesture.current.x = Clamp(g_gesture.current.x, m_hwnd, XMinimum, XMaximum);
            g_gesture.current.y = Clamp(g_gesture.current.y, m_hwnd, YMinimum, YMaximum);
            unsigned char moveX = 0, moveY = 0;
            if (CheckDragPoint(g_gesture.curve, g_gesture.point, g_gesture.start,
                               &g_gesture.current, &moveX, &moveY) == 0)
                return 1;
            ChartSetInt(m_hwnd, kDataChanging, 0);
            if (moveX)
                ChartSetCell(m_hwnd, XData, g_gesture.curve, g_gesture.point, &g_gesture.current.x);
            if (moveY)
                ChartSetCell(m_hwnd, YData, g_gesture.curve, g_gesture.point, &g_gesture.current.y);
            UpdateWindow(m_hwnd);
            return 1;
        }
        if (g_gesture.rubber) {
            ReadPosition(m_hwnd, g_gesture.current);
            const bool down =
                GetAsyncKeyState(VK_LBUTTON) != 0 && GetAsyncKeyState(VK_LBUTTON) != 0;
            g_gesture.rubber = DrawXORLine(0, &g_gesture.start, &g_gesture.current, down);
        }
        return 1;
    }
    case PLOTEVT_BUTTONUP:
        if (g_gesture.drag) {
            g_gesture.drag = 0;
            EndDrag(g_gesture.curve, g_gesture.point, g_gesture.start, &g_gesture.current);
        }
        return 1;
    case PLOTEVT_RBUTTON:
        if (g_gesture.rubber)
            return 1; // swallowed while a rubber line runs
        if (!m_menu.AllowRightMenu())
            return 0;
        {
            const HWND chart = m_hwnd;
            const POINT where = ReadMousePixel(chart);
            SetActiveMenuPlot(this);
            // The main window's handler may have closed the plot, and with it its chart.
            if (IsWindow(chart))
                m_menu.DoMenu(this, where);
        }
        return 1;
    case PLOTEVT_DBLCLICK:
        OnDoubleClick(ReadHotSpot(m_hwnd));
        return 1;
    case PLOTEVT_ZOOMIN:
        OnZoomIn();
        return 1;
    case PLOTEVT_CUSTOMIZED:
        OnExitCustomizeDialog();
        return 1;
    default:
        return 0;
    }
}

void EPlot::OnDoubleClick(tagHOTSPOTDATA) {
    // The record handed in is not trusted: the chart is asked again.
    const tagHOTSPOTDATA spot = ReadHotSpot(m_hwnd);
    if (spot.m_kind == HOTSPOT_AXISLABEL1 || spot.m_kind == HOTSPOT_AXISLABEL2)
        EditAxisTitles();
}

int EPlot::DrawXORLine(int state, Pt2<double>* start, Pt2<double>* end, unsigned char stop) {
    const auto endLine = [this] {
        // The line ends when its first X and Y are zero in every bit.
        const std::int64_t zero = 0;
        ChartSetElement(m_hwnd, RubberX, 0, &zero);
        ChartSetElement(m_hwnd, RubberY, 0, &zero);
    };
    if (stop) {
        endLine();
    } else if (state == 0) {
        ChartSetInt(m_hwnd, RubberLine, 1);
        ChartSetInt(m_hwnd, kRubberLineStarted, 1);
        const double xs[] = {start->x, end->x};
        const double ys[] = {start->y, end->y};
        ChartSetArray(m_hwnd, RubberX, xs, 2);
        ChartSetArray(m_hwnd, RubberY, ys, 2);
        ChartSetArray(m_hwnd, AnnotationTypes, kRubberLineTypes, 2);
        const int colours[] = {kRubberLineColour, kRubberLineColour};
        ChartSetArray(m_hwnd, AnnotationColours, colours, 2);
    } else {
        endLine();
        Pt2<double> points[] = {*start, *end};
        ChangeXORData(2, points);
    }
    UpdateWindow(m_hwnd);
    return state != 1 && !stop ? 1 : 0;
}
