// The chart window: its class and procedure, the table of charts by window, painting the image,
// and the mouse: clicks and hot spots reported to the parent, and the zoom box a drag draws.

#include "chart/ChartWindow.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/SurfaceDC.h"
#include "platform/gdi/canvas/Canvas.h"
#include "platform/window/WindowApi.h"

#include <algorithm>
#include <cstdint>

using namespace chartprop;

namespace {

// Every chart of the process by its window. Single-threaded by design, like all windows: the
// table and the last-chart shortcut are touched from the user-interface thread only.
std::map<HWND, ChartWindowState>& Charts() {
    static std::map<HWND, ChartWindowState> charts;
    return charts;
}

// Pushing data looks the chart up once a value: the chart of the last call answers at once.
// Map nodes stay put until erased, so the pointer lives as long as the chart.
std::pair<HWND, ChartWindowState*> g_lastChart{nullptr, nullptr};

bool StartsZoom(const ChartDrag& drag, ChartEngine& engine) {
    return drag.active && !drag.onDataPoint && engine.Properties().Int(ZoomAllowed, 1) != 0 &&
           engine.Frame().plot.Contains(drag.start.x, drag.start.y);
}

// The box of a zoom drag under way, or an empty rectangle.
RECT ZoomBox(const ChartDrag& drag, ChartEngine& engine) {
    if (!StartsZoom(drag, engine))
        return {};
    const RECT box{std::min(drag.start.x, drag.current.x), std::min(drag.start.y, drag.current.y),
                   std::max(drag.start.x, drag.current.x) + 1,
                   std::max(drag.start.y, drag.current.y) + 1};
    return box.right - box.left > 4 && box.bottom - box.top > 4 ? box : RECT{};
}

void Repaint(HWND chart, ChartEngine& engine) {
    engine.Reinitialize();
    engine.ResetImage();
    InvalidateRect(chart, nullptr, FALSE);
}

void Paint(HWND chart, ChartWindowState& state) {
    ChartEngine& engine = *state.engine;
    PAINTSTRUCT paint{};
    HDC dc = BeginPaint(chart, &paint);
    BringImageUpToDate(state);
    POINT origin{};
    if (Surface* surface = dc ? GdiSurfaceOf(dc, &origin) : nullptr) {
        if (engine.Image()) {
            const RECT& r = paint.rcPaint;
            const RECT clip{r.left + origin.x, r.top + origin.y, r.right + origin.x,
                            r.bottom + origin.y};
            engine.Image()->BlitTo(*surface, origin.x, origin.y, clip);
        }
        const RECT box = ZoomBox(state.drag, engine);
        if (box.right > box.left)
            DrawFocusRect(dc, &box);
    }
    EndPaint(chart, &paint);
}

// The chart is looked up again after each notification: the parent's handler may have
// destroyed it.
LRESULT OnButtonUp(HWND chart, ChartWindowState& state, int x, int y) {
    if (GetCapture() == chart)
        ReleaseCapture();
    ChartEngine& engine = *state.engine;
    engine.MouseAt(x, y);
    const bool zoom = StartsZoom(state.drag, engine) &&
                      engine.ZoomTo(state.drag.start.x, state.drag.start.y, x, y);
    state.drag = {};
    NotifyChartParent(chart, CHARTN_BUTTONUP);
    ChartWindowState* still = ChartStateOf(chart);
    if (!still)
        return 0;
    InvalidateRect(chart, nullptr, FALSE);
    if (zoom) {
        Repaint(chart, *still->engine);
        NotifyChartParent(chart, CHARTN_ZOOMIN);
    }
    return 0;
}

LRESULT ChartWndProc(HWND chart, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCT*>(lParam);
        ChartWindowState& state = Charts()[chart];
        state.engine = std::make_unique<ChartEngine>(create->cx, create->cy);
        if (const auto* loaded =
                static_cast<const std::map<int, PropertyValue>*>(create->lpCreateParams))
            state.engine->Properties().Replace(*loaded);
        return TRUE;
    }
    ChartWindowState* state = ChartStateOf(chart);
    if (!state)
        return DefWindowProc(chart, message, wParam, lParam);
    ChartEngine& engine = *state->engine;
    const int x = GET_X_LPARAM(lParam);
    const int y = GET_Y_LPARAM(lParam);
    switch (message) {
    case WM_SIZE:
        engine.Resize(LOWORD(lParam), HIWORD(lParam));
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        Paint(chart, *state);
        return 0;
    case WM_MOUSEMOVE:
        engine.MouseAt(x, y);
        if (state->drag.active) {
            state->drag.current = {x, y};
            InvalidateRect(chart, nullptr, FALSE); // the zoom box follows the mouse
        }
        NotifyChartParent(chart, CHARTN_MOUSEMOVE);
        return 0;
    case WM_LBUTTONDOWN:
        engine.MouseAt(x, y);
        SetCapture(chart);
        state->drag = {true, {x, y}, {x, y}, engine.Properties().IntElement(HotSpot, 4, 0) != 0};
        NotifyChartParent(chart, CHARTN_CLICK);
        return 0;
    case WM_LBUTTONUP:
        return OnButtonUp(chart, *state, x, y);
    case WM_LBUTTONDBLCLK:
        engine.MouseAt(x, y);
        NotifyChartParent(chart, CHARTN_DBLCLICK);
        return 0;
    case WM_RBUTTONDOWN:
        engine.MouseAt(x, y);
        NotifyChartParent(chart, CHARTN_RBUTTON);
        return 0;
    case WM_COMMAND:
        if (LOWORD(wParam) == WORD(FrameCommand)) {
            engine.Unzoom();
            Repaint(chart, engine);
            return 0;
        }
        break;
    case WM_NCDESTROY:
        FreeImageHandles(*state);
        if (g_lastChart.first == chart)
            g_lastChart = {nullptr, nullptr};
        Charts().erase(chart);
        return 0;
    default:
        break;
    }
    return DefWindowProc(chart, message, wParam, lParam);
}

bool RegisterChartClass() {
    static const bool registered = [] {
        WNDCLASS wc{};
        wc.style = CS_DBLCLKS;
        wc.lpfnWndProc = ChartWndProc;
        wc.lpszClassName = kChartWindowClass;
        return RegisterClass(&wc) != FALSE;
    }();
    return registered;
}

} // namespace

ChartWindowState* ChartStateOf(HWND chart) {
    if (chart && chart == g_lastChart.first)
        return g_lastChart.second;
    auto it = Charts().find(chart);
    if (it == Charts().end() || !it->second.engine)
        return nullptr;
    g_lastChart = {chart, &it->second};
    return &it->second;
}

HWND CreateChartWindow(RECT* clientRect, HWND parent, int controlId,
                       const std::map<int, PropertyValue>* loaded) {
    if (!RegisterChartClass())
        return nullptr;
    RECT rect = clientRect ? *clientRect : RECT{0, 0, 600, 430};
    const DWORD style = (parent ? WS_CHILD : WS_POPUP) | WS_VISIBLE;
    return CreateWindowEx(0, kChartWindowClass, "", style, rect.left, rect.top,
                          rect.right - rect.left, rect.bottom - rect.top, parent,
                          parent ? reinterpret_cast<HMENU>(std::intptr_t(controlId)) : nullptr,
                          nullptr, const_cast<std::map<int, PropertyValue>*>(loaded));
}

void NotifyChartParent(HWND chart, unsigned short code) {
    if (HWND parent = GetParent(chart))
        SendMessage(parent, WM_COMMAND, MAKEWPARAM(WORD(GetDlgCtrlID(chart)), code), LPARAM(chart));
}
