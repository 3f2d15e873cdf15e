#pragma once

// What a chart tells its plot: the notification codes that arrive in the high word of
// WM_COMMAND, the hot-spot record read from the chart, and the two messages the plots send to
// the application's main window.

#include "chart/ChartApi.h"
#include "platform/base/WinTypes.h"

#include <cstdint>

constexpr unsigned short PLOTEVT_CLICK = CHARTN_CLICK;
constexpr unsigned short PLOTEVT_DBLCLICK = CHARTN_DBLCLICK;
constexpr unsigned short PLOTEVT_ZOOMIN = CHARTN_ZOOMIN;
constexpr unsigned short PLOTEVT_RBUTTON = CHARTN_RBUTTON;
constexpr unsigned short PLOTEVT_MOUSEMOVE = CHARTN_MOUSEMOVE;
constexpr unsigned short PLOTEVT_BUTTONUP = CHARTN_BUTTONUP;
constexpr unsigned short PLOTEVT_CUSTOMIZED = CHARTN_CUSTOMIZED;

// To the main window: a plot window has gone (wParam the plot identifier, lParam the chart,
// still alive while the message is handled).
constexpr UINT WM_PLOT_CLOSED = 0x055E;
// To the main window: the plot whose menu is up (lParam the EPlot*, or 0 when it closes).
constexpr UINT WM_PLOT_SETMENUPLOT = 0x055F;

// The chart's record of the region under the mouse (property 2610).
struct tagHOTSPOTDATA {
    std::int32_t m_spot[4]; // the region's rectangle
    std::int32_t m_kind;
    std::int32_t m_w0;
    std::int32_t m_w1;
};
static_assert(sizeof(tagHOTSPOTDATA) == 28, "the chart's hot spot is seven integers");
