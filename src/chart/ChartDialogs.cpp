// The chart's own dialogs as operations: each runs modally over the chart's top-level window,
// as the platform's dialogs and message boxes do, and returns when the user has closed it.

#include "chart/ChartApi.h"

#include "chart/ChartCustomizeDlg.h"
#include "chart/ChartExportDlg.h"
#include "chart/ChartMaximizedDlg.h"
#include "chart/ChartWindow.h"

int ChartCustomizeDialog(HWND chart) {
    if (!ChartEngineOf(chart))
        return 0;
    const ChartLook before = ChartLook::Read(chart);
    ChartCustomizeDlg dialog(before, CWnd::FromHandle(chart));
    if (dialog.DoModal() != IDOK)
        return 0;
    // While the dialog ran, the application may have ended the chart.
    if (!ChartEngineOf(chart))
        return 0;
    dialog.Look().WriteChanges(chart, before);
    ChartRedraw(chart);
    NotifyChartParent(chart, CHARTN_CUSTOMIZED);
    return 1;
}

int ChartExportDialog(HWND chart) {
    if (!ChartEngineOf(chart))
        return 0;
    ChartExportDlg dialog(chart, CWnd::FromHandle(chart));
    return dialog.DoModal() == IDOK ? 1 : 0;
}

int ChartMaximize(HWND chart) {
    if (!ChartEngineOf(chart))
        return 0;
    ChartMaximizedDlg view(chart, CWnd::FromHandle(chart));
    view.DoModal();
    return 1;
}
