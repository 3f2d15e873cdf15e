#pragma once

// CPlotWindowTop: a free top-level window ("PlotTopWndCls") that hosts one chart. It owns
// itself: it is deleted after its window goes.

#include "platform/window/Wnd.h"

inline constexpr const char* kPlotTopWindowClass = "PlotTopWndCls";

class ORVA_API CPlotWindowTop : public CWnd {
public:
    CPlotWindowTop() = default;

    // Registers the class on first use; false if that fails.
    static bool RegisterWindowClass();

    CPlotWindowTop* m_next = nullptr;
    HWND m_chart = nullptr;
    int m_plotId = 0;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnSize(UINT type, int cx, int cy) override;
    void OnDestroy() override;
    void PostNcDestroy() override; // deletes this object
};
