#pragma once

// CScrollBar as a control ("ScrollBar" window class). Of the scroll bar control this platform
// has the size box (SBS_SIZEBOX) and the size grip (SBS_SIZEGRIP): dragging it resizes its
// top-level window from the bottom-right corner, within the window's WM_GETMINMAXINFO limits
// and through WM_SIZING. Windows' own scroll bars are the window layer's (WS_HSCROLL, WS_VSCROLL).

#include "platform/window/Wnd.h"

class ORVA_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)
public:
    CScrollBar() = default;

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
};
