// The document-child host of a chart.

#include "plot/PlotWindow.h"

#include "platform/window/WindowStyles.h"
#include "plot/PlotApi.h"
#include "plot/PlotHosts.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr const char* kDocumentAreaClass = "MDIClient";
constexpr int kCascadeStep = 24; // pixels between the corners of successive new children

int DocumentCount() {
    int count = 0;
    for (CPlotWindow* w = plot_hosts::DocumentHead(); w; w = w->m_next)
        ++count;
    return count;
}

} // namespace

HWND PlotDocumentArea() {
    HWND main = SafeHwnd(AfxGetMainWnd());
    if (!main)
        return nullptr;
    for (HWND child = GetWindow(main, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        char name[32] = {};
        GetClassName(child, name, sizeof name);
        if (std::string_view(name) == kDocumentAreaClass)
            return child;
    }
    return main;
}

BOOL CPlotWindow::CreateDocument(const char* title, DWORD style) {
    HWND area = PlotDocumentArea();
    if (!area)
        return FALSE;
    // The default place: two thirds of the area, cascaded after the children already there.
    RECT client{};
    ::GetClientRect(area, &client);
    const int offset = (DocumentCount() % 8) * kCascadeStep;
    const int width = std::max(1, int(client.right * 2 / 3));
    const int height = std::max(1, int(client.bottom * 2 / 3));
    return CreateEx(0, nullptr, title ? title : "", style, offset, offset, width, height, area,
                    nullptr);
}

BOOL CPlotWindow::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (m_chart && pmHandlePlotEvent(HIWORD(wParam), m_chart) != 0)
        return TRUE;
    return CWnd::OnCommand(wParam, lParam);
}

void CPlotWindow::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (m_chart && type != SIZE_MINIMIZED)
        ::MoveWindow(m_chart, 0, 0, cx, cy, TRUE);
}

void CPlotWindow::OnDestroy() {
    // As for the top-level host: the callback runs while the chart still lives.
    plot_hosts::TellClosed(m_plotId, m_chart);
    plot_hosts::Unlink(this);
    CWnd::OnDestroy();
}

void CPlotWindow::PostNcDestroy() {
    delete this;
}
