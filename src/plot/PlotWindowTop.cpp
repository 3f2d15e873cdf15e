// The free top-level host of a chart.

#include "plot/PlotWindowTop.h"

#include "platform/window/WindowStyles.h"
#include "plot/PlotApi.h"
#include "plot/PlotHosts.h"

bool CPlotWindowTop::RegisterWindowClass() {
    WNDCLASS wc{};
    if (GetClassInfo(nullptr, kPlotTopWindowClass, &wc))
        return true;
    wc.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    wc.lpfnWndProc = ::DefWindowProc;
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = kPlotTopWindowClass;
    return AfxRegisterClass(&wc) != FALSE;
}

BOOL CPlotWindowTop::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (m_chart && pmHandlePlotEvent(HIWORD(wParam), m_chart) != 0)
        return TRUE;
    return CWnd::OnCommand(wParam, lParam);
}

void CPlotWindowTop::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (m_chart && type != SIZE_MINIMIZED)
        ::MoveWindow(m_chart, 0, 0, cx, cy, TRUE);
}

void CPlotWindowTop::OnDestroy() {
    // The callback may delete the plot, whose destructor asks to close this window again:
    // the window layer ignores that while the window is being destroyed.
    plot_hosts::TellClosed(m_plotId, m_chart);
    plot_hosts::Unlink(this);
    CWnd::OnDestroy();
}

void CPlotWindowTop::PostNcDestroy() {
    delete this;
}
