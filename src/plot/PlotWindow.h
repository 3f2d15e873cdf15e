#pragma once

// CPlotWindow: a document child of the application's main window that hosts one chart. It owns
// itself: it is deleted after its window goes.

#include "platform/window/Wnd.h"

class ORVA_API CPlotWindow : public CWnd {
public:
    CPlotWindow() = default;

    // Makes the window as a document child of the main window, hidden unless `style` says
    // visible, at the default place; false if there is nowhere to put it.
    BOOL CreateDocument(const char* title, DWORD style);

    CPlotWindow* m_next = nullptr;
    HWND m_chart = nullptr;
    int m_plotId = 0;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnSize(UINT type, int cx, int cy) override;
    void OnDestroy() override;
    void PostNcDestroy() override; // deletes this object
};

// The window that document children live in: the main window's "MDIClient" child when it has
// one, otherwise the main window itself; null without a main window.
ORVA_API HWND PlotDocumentArea();
