#pragma once

// The maximised view of a chart: a resizable top-level window as large as the screen, filled by
// a new chart that copies the chart's properties and data and follows the window's size. The
// user closes it with its close box or Escape; the copy goes with it and the chart is left as it
// was.

#include "platform/window/Dialog.h"

class ChartMaximizedDlg : public CDialog {
public:
    ChartMaximizedDlg(HWND chart, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void OnSize(UINT type, int cx, int cy) override;

private:
    HWND m_chart;
};
