#include "platform/window/WindowDC.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CPaintDC::CPaintDC(CWnd* wnd) : m_hWnd(SafeHwnd(wnd)) {
    Attach(::BeginPaint(m_hWnd, &m_ps));
}

CPaintDC::~CPaintDC() {
    // EndPaint frees the context, so this object lets go of it first.
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CClientDC::CClientDC(CWnd* wnd) : m_hWnd(SafeHwnd(wnd)) {
    Attach(::GetDC(m_hWnd));
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* wnd) : m_hWnd(SafeHwnd(wnd)) {
    Attach(::GetWindowDC(m_hWnd));
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}
