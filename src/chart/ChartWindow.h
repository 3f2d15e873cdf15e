#pragma once

// The chart window from inside the chart library: what each chart keeps beside its engine (the
// drag under way, the image waiting to be redrawn, the image handed out as GDI handles), the
// table of charts by window, and the window's creation and notifications. Internal to the
// library; callers reach a chart through ChartApi.h.

#include "chart/ChartEngine.h"
#include "platform/base/WinTypes.h"

#include <map>
#include <memory>

// A press of the left button on the chart, followed until the button comes up.
struct ChartDrag {
    bool active = false;
    POINT start{};
    POINT current{};
    bool onDataPoint = false; // a press on a data point drags the point, never a zoom box
};

// The image as a bitmap selected into a memory context, for callers that copy the chart
// elsewhere. The chart owns both until it goes.
struct ChartImageHandles {
    HBITMAP bitmap = nullptr;
    HDC dc = nullptr;
    HGDIOBJ firstBitmap = nullptr; // the context's own, put back before the context goes
};

struct ChartWindowState {
    std::unique_ptr<ChartEngine> engine;
    ChartDrag drag;
    // ChartResetImage only marks the image: a chart fed point by point and reset after each
    // is drawn once, when it is next painted or its image is handed out.
    bool imageStale = false;
    ChartImageHandles handedOut;
};

// The state of the chart behind a window, or null for any other window.
ChartWindowState* ChartStateOf(HWND chart);

// Creates a chart window: a child of `parent`, or a pop-up without one; `loaded` holds the
// properties of a chart file to start from, or null.
HWND CreateChartWindow(RECT* clientRect, HWND parent, int controlId,
                       const std::map<int, PropertyValue>* loaded);

// Sends the chart's parent WM_COMMAND with the code in the high word, as every notification
// of the chart goes. The parent's handler may destroy the chart.
void NotifyChartParent(HWND chart, unsigned short code);

// The chart's image (ChartImage.cpp).
void BringImageUpToDate(ChartWindowState& state);
// Copies the image into the handed-out bitmap when the chart's properties ask for it.
void HandOutImage(ChartWindowState& state);
void FreeImageHandles(ChartWindowState& state);
