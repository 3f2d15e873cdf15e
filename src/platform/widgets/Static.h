#pragma once

// CStatic: static text, rectangles, frames and bitmaps ("Static" window class). Text set with
// SetWindowText; SS_NOTIFY makes clicks reach the parent as STN_CLICKED.

#include "platform/window/Wnd.h"

// Image kinds of STM_SETIMAGE and STM_GETIMAGE.
constexpr UINT IMAGE_BITMAP = 0;
constexpr UINT IMAGE_ICON = 1;

class ORVA_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    CStatic() = default;

    BOOL Create(LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);
    // The bitmap shown by an SS_BITMAP static; answers the one shown before. Not owned.
    HBITMAP SetBitmap(HBITMAP bitmap);
    HBITMAP GetBitmap() const;
};
