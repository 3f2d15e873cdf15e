// The chart control that applications place in their own windows, with its optional border.

#include "plot/PlotCanvas.h"

#include "chart/ChartApi.h"
#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/window/WindowDC.h"
#include "platform/window/WindowStyles.h"
#include "plot/PlotApi.h"
#include "plot/PlotWindows.h"

namespace {

constexpr int kBorderWidth = 3;
constexpr UINT kEdgeFlags = BF_RECT | BF_MIDDLE | BF_SOFT;

// Process-wide, like the window class; user-interface thread only.
bool g_showBorder = false;

LRESULT CanvasWndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = DefWindowProc(hwnd, message, wParam, lParam);
    if (message == WM_NCCALCSIZE && g_showBorder && lParam) {
        // Either form of the message starts with the rectangle that becomes the client area.
        auto* client = reinterpret_cast<RECT*>(lParam);
        client->left += kBorderWidth;
        client->top += kBorderWidth;
        client->right -= kBorderWidth;
        client->bottom -= kBorderWidth;
    }
    return result;
}

void RegisterCanvasClass() {
    WNDCLASS wc{};
    if (GetClassInfo(nullptr, kPlotCanvasClass, &wc))
        return;
    wc.style = CS_SAVEBITS | CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    wc.lpfnWndProc = CanvasWndProc;
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = kPlotCanvasClass;
    RegisterClass(&wc);
}

} // namespace

namespace plot_canvas {
void ShowPlotCanvasBorder(bool show) {
    g_showBorder = show;
}
bool PlotCanvasBorderShown() {
    return g_showBorder;
}
} // namespace plot_canvas

PlotCanvas::PlotCanvas() {
    RegisterCanvasClass();
}

HWND PlotCanvas::GetPlotHwnd() const {
    return m_hWnd ? HWND(GetProp(kCanvasPlotProperty)) : nullptr;
}

UINT PlotCanvas::SetBorderType(UINT type) {
    const UINT old = m_borderType;
    m_borderType = type;
    if (m_hWnd && IsWindowVisible()) {
        if (type == PLOT_CANVAS_NOBORDER) {
            // Hiding and showing again repaints the frame without the old edge.
            ShowWindow(SW_HIDE);
            ShowWindow(SW_SHOW);
        } else {
            SendMessage(WM_NCPAINT, 1);
        }
    }
    return old;
}

void PlotCanvas::DeletePlotWindow() {
    if (!m_hWnd)
        return;
    if (HWND chart = HWND(RemoveProp(kCanvasPlotProperty))) {
        ClosePlotWindow(0, chart);
        ChartDestroy(chart);
    }
}

void PlotCanvas::OnPaint() {
    CPaintDC dc(this);
    if (!GetPlotHwnd()) {
        CRect client;
        GetClientRect(&client);
        dc.FillSolidRect(&client, GetSysColor(COLOR_BTNFACE));
    }
}

void PlotCanvas::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (HWND chart = GetPlotHwnd(); chart && type != SIZE_MINIMIZED)
        ::MoveWindow(chart, 0, 0, cx, cy, TRUE);
}

BOOL PlotCanvas::OnEraseBkgnd(CDC*) {
    return TRUE; // the chart or OnPaint covers the whole client area
}

void PlotCanvas::OnNcPaint() {
    Default();
    if (m_borderType == PLOT_CANVAS_NOBORDER)
        return;
    CWindowDC dc(this);
    CRect frame;
    GetWindowRect(&frame);
    // The edge and its face fill the frame only: the client area is left to the chart.
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    client.OffsetRect(-frame.left, -frame.top);
    CRect window(0, 0, frame.Width(), frame.Height());
    if (!client.IsRectEmpty())
        dc.ExcludeClipRect(&client);
    dc.DrawEdge(&window, m_borderType, kEdgeFlags);
}

void PlotCanvas::OnDestroy() {
    DeletePlotWindow();
    m_plotType = -1;
    CWnd::OnDestroy();
}

BOOL PlotCanvas::OnCommand(WPARAM wParam, LPARAM) {
    if (HWND chart = GetPlotHwnd())
        pmHandlePlotEvent(HIWORD(wParam), chart);
    return TRUE;
}
