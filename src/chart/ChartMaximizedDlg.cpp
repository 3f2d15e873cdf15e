// The maximised view: the copy of the chart, and keeping it the size of the window.

#include "chart/ChartMaximizedDlg.h"

#include "chart/ChartApi.h"
#include "chart/ChartDialogIds.h"
#include "chart/ChartEngine.h"
#include "chart/ChartPropertyIds.h"
#include "platform/system/SystemMetrics.h"

namespace {

DialogTemplate MaximizedTemplate(HWND chart) {
    DialogTemplate t;
    char title[1024] = {};
    ChartGetString(chart, chartprop::MainTitle, title);
    t.caption = title[0] ? title : "Chart";
    t.size = {300, 200}; // until the view takes the screen
    t.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME;
    return t;
}

} // namespace

ChartMaximizedDlg::ChartMaximizedDlg(HWND chart, CWnd* parent) : m_chart(chart) {
    InitModalIndirect(MaximizedTemplate(chart), parent);
}

BOOL ChartMaximizedDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    SetWindowPos(nullptr, 0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    CRect client;
    GetClientRect(&client);
    RECT rect = client;
    const HWND copy = ChartCreate(0, 0, &rect, m_hWnd, chartdlg::IDC_MAXIMIZED_CHART);
    ChartEngine* source = ChartEngineOf(m_chart);
    ChartEngine* target = ChartEngineOf(copy);
    if (source && target) {
        target->Properties() = source->Properties();
        ChartRedraw(copy);
    }
    // The chart takes no focus: the keyboard stays with the dialog, so Escape closes it.
    return FALSE;
}

void ChartMaximizedDlg::OnSize(UINT type, int cx, int cy) {
    CDialog::OnSize(type, cx, cy);
    if (CWnd* copy = GetDlgItem(chartdlg::IDC_MAXIMIZED_CHART))
        copy->MoveWindow(0, 0, cx, cy);
}
