// The document-window host of a chart.

#include "plot/PlotWindow.h"

#include "platform/base/Messages.h"
#include "platform/window/WindowIcons.h"

namespace {
constexpr UINT kPlotIcon = 128; // the application's icon resource for plot windows
} // namespace
#include "plot/PlotApi.h"
#include "plot/PlotHosts.h"

HWND PlotDocumentArea() {
    CWnd* main = AfxGetMainWnd();
    return main && main->IsKindOf(RUNTIME_CLASS(CMDIFrameWnd))
               ? static_cast<CMDIFrameWnd*>(main)->m_hWndMDIClient
               : nullptr;
}

BOOL CPlotWindow::CreateDocument(const char* title, DWORD style) {
    if (!Create(nullptr, title ? title : "", style))
        return FALSE;
    if (HICON icon = LoadIcon(nullptr, MAKEINTRESOURCE(kPlotIcon))) {
        SendMessage(WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon));
        SendMessage(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon));
    }
    // The document style asks for a maximised window, but a plot window opens restored at its
    // place, as the plot's constructor intends when it restores the active document first.
    BOOL maximised = FALSE;
    if (CMDIFrameWnd* frame = GetMDIFrame();
        frame && frame->MDIGetActive(&maximised) == this && maximised)
        MDIRestore();
    return TRUE;
}

BOOL CPlotWindow::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (m_chart && pmHandlePlotEvent(HIWORD(wParam), m_chart) != 0)
        return TRUE;
    return CMDIChildWnd::OnCommand(wParam, lParam);
}

void CPlotWindow::OnSize(UINT type, int cx, int cy) {
    CMDIChildWnd::OnSize(type, cx, cy);
    if (m_chart && type != SIZE_MINIMIZED)
        ::MoveWindow(m_chart, 0, 0, cx, cy, TRUE);
}

void CPlotWindow::OnDestroy() {
    // As for the top-level host: the callback runs while the chart still lives.
    plot_hosts::TellClosed(m_plotId, m_chart);
    plot_hosts::Unlink(this);
    CMDIChildWnd::OnDestroy();
}
