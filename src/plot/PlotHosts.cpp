// The plot windows' lists, their closed path, and the functions that make, find and close host
// windows for charts.

#include "plot/PlotHosts.h"

#include "chart/ChartApi.h"
#include "platform/window/WindowStyles.h"
#include "plot/PlotCanvas.h"
#include "plot/PlotEvents.h"
#include "plot/PlotWindow.h"
#include "plot/PlotWindowTop.h"
#include "plot/PlotWindows.h"

#include <thread>

namespace {

// Process-wide, touched from the user-interface thread only.
CPlotWindow* g_documentHead = nullptr;
CPlotWindowTop* g_topHead = nullptr;
PlotClosedCallback g_closedCallback = nullptr;
const std::thread::id g_mainThread = std::this_thread::get_id();

// Visible, maximised child with caption and sizing frame; and hidden, without clipping.
constexpr DWORD kDocumentStyle = 0x57CF0000;
constexpr DWORD kHiddenDocumentStyle = 0x44CF0000;
constexpr DWORD kTopStyle = 0x96CF0000; // visible pop-up with caption and sizing frame

template <class Host> void UnlinkFrom(Host*& head, Host* window) {
    for (Host** link = &head; *link; link = &(*link)->m_next)
        if (*link == window) {
            *link = window->m_next;
            window->m_next = nullptr;
            return;
        }
}

// Gives a new host its chart filling the client area, and files it; deletes it on failure.
template <class Host> HWND AttachChart(Host* window, Host*& head, HWND chart, int id) {
    if (!chart) {
        if (window->m_hWnd)
            window->DestroyWindow(); // PostNcDestroy deletes the object
        else
            delete window;
        return nullptr;
    }
    window->ValidateRect(nullptr);
    window->m_chart = chart;
    window->m_plotId = id;
    window->m_next = head;
    head = window;
    return chart;
}

HWND CreateChartIn(CWnd* window, int chartType, int id) {
    CRect client;
    window->GetClientRect(&client);
    return ChartCreate(chartType, 0, &client, window->m_hWnd, id);
}

HWND CreateDocumentHost(int chartType, const char* title, int id, CRect* rect) {
    auto* window = new CPlotWindow;
    if (!window->CreateDocument(title, kDocumentStyle)) {
        delete window;
        return nullptr;
    }
    if (rect)
        window->MoveWindow(rect);
    window->ShowWindow(SW_SHOW);
    return AttachChart(window, plot_hosts::DocumentHead(), CreateChartIn(window, chartType, id),
                       id);
}

CRect TopHostRect(CRect* rect) {
    if (rect)
        return *rect;
    RECT owner{};
    if (HWND main = SafeHwnd(AfxGetMainWnd()))
        GetWindowRect(main, &owner);
    else
        GetWindowRect(GetDesktopWindow(), &owner);
    const int width = (owner.right - owner.left) / 2;
    const int height = (owner.bottom - owner.top) / 2;
    const int left = owner.left + (owner.right - owner.left - width) / 2;
    const int top = owner.top + (owner.bottom - owner.top - height) / 2;
    return CRect(left, top, left + width, top + height);
}

HWND CreateTopHost(int chartType, const char* title, int id, CRect* rect) {
    if (!CPlotWindowTop::RegisterWindowClass())
        return nullptr;
    auto* window = new CPlotWindowTop;
    const CRect place = TopHostRect(rect);
    if (!window->CreateEx(0, kPlotTopWindowClass, title ? title : "", kTopStyle, place.left,
                          place.top, place.Width(), place.Height(), SafeHwnd(AfxGetMainWnd()),
                          nullptr)) {
        delete window;
        return nullptr;
    }
    return AttachChart(window, plot_hosts::TopHead(), CreateChartIn(window, chartType, id), id);
}

HWND CreateCanvasChart(int chartType, int controlId, HWND canvas) {
    RECT client{};
    GetClientRect(canvas, &client);
    if (HWND old = HWND(RemoveProp(canvas, kCanvasPlotProperty))) {
        plot_hosts::TellClosed(0, old);
        ChartDestroy(old);
    }
    HWND chart = ChartCreate(chartType, 0, &client, canvas, controlId);
    if (chart) {
        ValidateRect(canvas, nullptr);
        SetProp(canvas, kCanvasPlotProperty, HANDLE(chart));
    }
    return chart;
}

} // namespace

namespace plot_hosts {

CPlotWindow*& DocumentHead() {
    return g_documentHead;
}
CPlotWindowTop*& TopHead() {
    return g_topHead;
}

HWND ChartOfId(int id) {
    for (CPlotWindow* w = g_documentHead; w; w = w->m_next)
        if (w->m_plotId == id)
            return w->m_chart;
    for (CPlotWindowTop* w = g_topHead; w; w = w->m_next)
        if (w->m_plotId == id)
            return w->m_chart;
    return nullptr;
}

void TellClosed(int id, HWND chart) {
    if (g_closedCallback)
        g_closedCallback(id, chart);
    if (HWND main = SafeHwnd(AfxGetMainWnd()))
        SendMessage(main, WM_PLOT_CLOSED, WPARAM(id), LPARAM(chart));
}

void Unlink(CPlotWindow* window) {
    UnlinkFrom(g_documentHead, window);
}
void Unlink(CPlotWindowTop* window) {
    UnlinkFrom(g_topHead, window);
}

bool OnMainThread() {
    return std::this_thread::get_id() == g_mainThread;
}

} // namespace plot_hosts

HWND CreatePlotWindow(int chartType, const char* title, int id, int controlId, HWND parent,
                      CRect* rect, int topLevel) {
    if (controlId == -1)
        if (HWND shared = plot_hosts::ChartOfId(id))
            return shared;
    if (!plot_hosts::OnMainThread())
        return nullptr;
    if (controlId == -1)
        return topLevel ? CreateTopHost(chartType, title, id, rect)
                        : CreateDocumentHost(chartType, title, id, rect);
    return parent ? CreateCanvasChart(chartType, controlId, parent) : nullptr;
}

HWND CreatePlotWindow(int chartType, const char* title, int id, int controlId, HWND parent,
                      CRect* rect, unsigned char topLevel) {
    return CreatePlotWindow(chartType, title, id, controlId, parent, rect, int(topLevel));
}

HWND OpenPlotFileWindow(const char* path, const char* title, CRect* rect, int id,
                        unsigned char topLevel) {
    if (HWND shared = plot_hosts::ChartOfId(id))
        return shared;
    // Reading a chart file is for document children only.
    if (!plot_hosts::OnMainThread() || topLevel)
        return nullptr;
    auto* window = new CPlotWindow;
    if (!window->CreateDocument(title, kHiddenDocumentStyle)) {
        delete window;
        return nullptr;
    }
    if (rect)
        window->MoveWindow(rect);
    CRect client;
    window->GetClientRect(&client);
    HWND chart = ChartCreateFromFile(path, window->m_hWnd, &client, id);
    if (chart)
        window->ShowWindow(SW_SHOW);
    return AttachChart(window, plot_hosts::DocumentHead(), chart, id);
}

int ClosePlotWindow(int id, HWND chart) {
    if (!plot_hosts::OnMainThread())
        return -1;
    HWND host = nullptr;
    for (CPlotWindow* w = g_documentHead; w && !host; w = w->m_next)
        if (w->m_chart == chart)
            host = w->m_hWnd;
    for (CPlotWindowTop* w = g_topHead; w && !host; w = w->m_next)
        if (w->m_chart == chart)
            host = w->m_hWnd;
    if (!host)
        return -1;
    // A host already on its way out ignores the request: its destruction is under way.
    SendMessage(host, WM_CLOSE);
    return 1;
}

void SetPlotClosedCallback(PlotClosedCallback callback) {
    g_closedCallback = callback;
}
