// CButton's wrappers over the button's messages.

#include "platform/widgets/Button.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)

BOOL CButton::Create(LPCSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create("Button", caption, style, rect, parent, id);
}

int CButton::GetCheck() const {
    return int(SendMessage(BM_GETCHECK));
}
void CButton::SetCheck(int check) {
    SendMessage(BM_SETCHECK, WPARAM(check));
}
UINT CButton::GetState() const {
    return UINT(SendMessage(BM_GETSTATE));
}
void CButton::SetState(BOOL pushed) {
    SendMessage(BM_SETSTATE, WPARAM(pushed));
}
UINT CButton::GetButtonStyle() const {
    return UINT(GetStyle() & 0xFFFF);
}
void CButton::SetButtonStyle(UINT style, BOOL redraw) {
    SendMessage(BM_SETSTYLE, WPARAM(style), LPARAM(redraw));
}
void CButton::Click() {
    SendMessage(BM_CLICK);
}
