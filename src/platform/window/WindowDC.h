#pragma once

// Device contexts on a window: CPaintDC for WM_PAINT (BeginPaint and EndPaint), CClientDC for
// the client area at any time, CWindowDC for the whole window with its frame.

#include "platform/gdi/DC.h"
#include "platform/window/Wnd.h"

class ORVA_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* wnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps{};

protected:
    HWND m_hWnd;
};

class ORVA_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* wnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

class ORVA_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* wnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};
