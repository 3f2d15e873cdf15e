#pragma once

// CPlotWindow: a document window of the application's multiple-document frame that hosts one
// chart. It owns itself, as every document window does: it is deleted after its window goes.

#include "platform/window/MdiFrame.h"

class ORVA_API CPlotWindow : public CMDIChildWnd {
public:
    CPlotWindow() = default;

    // Makes the window in the main window's document area, at the next default place, visible
    // only if `style` says so; false when the main window is no multiple-document frame.
    BOOL CreateDocument(const char* title, DWORD style);

    CPlotWindow* m_next = nullptr;
    HWND m_chart = nullptr;
    int m_plotId = 0;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnSize(UINT type, int cx, int cy) override;
    void OnDestroy() override;
};

// The main window's document area (its "MDIClient" window); null when the main window is no
// multiple-document frame.
ORVA_API HWND PlotDocumentArea();
