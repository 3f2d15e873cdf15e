// CWnd's dispatch of messages to its On... handlers, and the handlers' default behaviour:
// each passes its message on with Default().

#include "platform/window/Wnd.h"

#include "platform/gdi/DC.h"

namespace {
CPoint PointOf(LPARAM lParam) {
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}
UINT Low(std::uintptr_t v) {
    return LOWORD(v);
}
UINT High(std::uintptr_t v) {
    return HIWORD(v);
}
CWnd* WndOf(std::uintptr_t handle) {
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}
CScrollBar* ScrollBarOf(LPARAM lParam) {
    // A scroll bar control is a CWnd; the window's own bars come with no handle.
    return reinterpret_cast<CScrollBar*>(lParam ? WndOf(std::uintptr_t(lParam)) : nullptr);
}
} // namespace

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    LRESULT r = 0;
    const std::uintptr_t lp = std::uintptr_t(lParam);
    switch (message) {
    case WM_COMMAND:
        if (!OnCommand(wParam, lParam))
            return FALSE;
        r = 1;
        break;
    case WM_NOTIFY:
        if (!OnNotify(wParam, lParam, &r))
            return FALSE;
        break;
    case WM_NCCREATE:
        r = OnNcCreate(reinterpret_cast<LPCREATESTRUCT>(lParam));
        break;
    case WM_CREATE:
        r = OnCreate(reinterpret_cast<LPCREATESTRUCT>(lParam));
        break;
    case WM_DESTROY:
        OnDestroy();
        break;
    case WM_NCDESTROY:
        OnNcDestroy();
        break;
    case WM_CLOSE:
        OnClose();
        break;
    case WM_SIZE:
        OnSize(UINT(wParam), int(Low(lp)), int(High(lp)));
        break;
    case WM_SIZING:
        OnSizing(UINT(wParam), reinterpret_cast<LPRECT>(lParam));
        r = TRUE;
        break;
    case WM_MOVE:
        OnMove(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        break;
    case WM_GETMINMAXINFO:
        OnGetMinMaxInfo(reinterpret_cast<MINMAXINFO*>(lParam));
        break;
    case WM_SHOWWINDOW:
        OnShowWindow(BOOL(wParam), UINT(lParam));
        break;
    case WM_ENABLE:
        OnEnable(BOOL(wParam));
        break;
    case WM_PAINT:
        OnPaint();
        break;
    case WM_NCPAINT:
        OnNcPaint();
        break;
    case WM_ERASEBKGND:
        r = OnEraseBkgnd(CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
        break;
    case WM_SETFOCUS:
        OnSetFocus(WndOf(wParam));
        break;
    case WM_KILLFOCUS:
        OnKillFocus(WndOf(wParam));
        break;
    case WM_KEYDOWN:
        OnKeyDown(UINT(wParam), Low(lp), High(lp));
        break;
    case WM_KEYUP:
        OnKeyUp(UINT(wParam), Low(lp), High(lp));
        break;
    case WM_CHAR:
        OnChar(UINT(wParam), Low(lp), High(lp));
        break;
    case WM_SYSKEYDOWN:
        OnSysKeyDown(UINT(wParam), Low(lp), High(lp));
        break;
    case WM_SYSKEYUP:
        OnSysKeyUp(UINT(wParam), Low(lp), High(lp));
        break;
    case WM_SYSCHAR:
        OnSysChar(UINT(wParam), Low(lp), High(lp));
        break;
    case WM_GETDLGCODE:
        r = OnGetDlgCode();
        break;
    case WM_MOUSEMOVE:
        OnMouseMove(UINT(wParam), PointOf(lParam));
        break;
    case WM_LBUTTONDOWN:
        OnLButtonDown(UINT(wParam), PointOf(lParam));
        break;
    case WM_LBUTTONUP:
        OnLButtonUp(UINT(wParam), PointOf(lParam));
        break;
    case WM_LBUTTONDBLCLK:
        OnLButtonDblClk(UINT(wParam), PointOf(lParam));
        break;
    case WM_RBUTTONDOWN:
        OnRButtonDown(UINT(wParam), PointOf(lParam));
        break;
    case WM_RBUTTONUP:
        OnRButtonUp(UINT(wParam), PointOf(lParam));
        break;
    case WM_RBUTTONDBLCLK:
        OnRButtonDblClk(UINT(wParam), PointOf(lParam));
        break;
    case WM_MBUTTONDOWN:
        OnMButtonDown(UINT(wParam), PointOf(lParam));
        break;
    case WM_MBUTTONUP:
        OnMButtonUp(UINT(wParam), PointOf(lParam));
        break;
    case WM_MOUSEWHEEL:
        r = OnMouseWheel(Low(wParam), GET_WHEEL_DELTA_WPARAM(wParam), PointOf(lParam));
        break;
    case WM_MOUSEACTIVATE:
        r = OnMouseActivate(WndOf(wParam), Low(lp), High(lp));
        break;
    case WM_HSCROLL:
        OnHScroll(Low(wParam), High(wParam), ScrollBarOf(lParam));
        break;
    case WM_VSCROLL:
        OnVScroll(Low(wParam), High(wParam), ScrollBarOf(lParam));
        break;
    case WM_TIMER:
        OnTimer(UINT_PTR(wParam));
        break;
    case WM_CAPTURECHANGED:
        OnCaptureChanged(WndOf(lp));
        break;
    case WM_SETCURSOR:
        r = OnSetCursor(WndOf(wParam), Low(lp), High(lp));
        break;
    case WM_CONTEXTMENU:
        OnContextMenu(WndOf(wParam), PointOf(lParam));
        break;
    case WM_SYSCOLORCHANGE:
        OnSysColorChange();
        break;
    case WM_SETTINGCHANGE:
        OnSettingChange(UINT(wParam), reinterpret_cast<LPCTSTR>(lParam));
        break;
    case WM_ACTIVATE:
        OnActivate(Low(wParam), WndOf(lp), BOOL(High(wParam)));
        break;
    case WM_SETFONT:
        OnSetFont(reinterpret_cast<HFONT>(wParam), BOOL(Low(lp)));
        break;
    case WM_GETFONT:
        r = reinterpret_cast<LRESULT>(OnGetFont());
        break;
    case WM_NCCALCSIZE:
        OnNcCalcSize(BOOL(wParam), reinterpret_cast<void*>(lParam));
        break;
    case WM_NCHITTEST:
        r = LRESULT(OnNcHitTest(PointOf(lParam)));
        break;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORSTATIC - 1: // WM_CTLCOLORSCROLLBAR
        r = reinterpret_cast<LRESULT>(OnCtlColor(CDC::FromHandle(reinterpret_cast<HDC>(wParam)),
                                                 WndOf(lp),
                                                 message - WM_CTLCOLOREDIT + CTLCOLOR_EDIT));
        break;
    default:
        return FALSE;
    }
    if (result)
        *result = r;
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM, LPARAM lParam) {
    // A control's notification is offered to the control first.
    if (CWnd* child = FromHandlePermanent(reinterpret_cast<HWND>(lParam))) {
        const MSG& msg = *GetCurrentMessage();
        return child->OnChildNotify(WM_COMMAND, msg.wParam, msg.lParam, nullptr);
    }
    return FALSE;
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    if (!header)
        return FALSE;
    if (CWnd* child = FromHandlePermanent(header->hwndFrom); child && child != this)
        return child->OnChildNotify(WM_NOTIFY, wParam, lParam, result);
    return FALSE;
}

BOOL CWnd::OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*) {
    return FALSE;
}

int CWnd::OnCreate(LPCREATESTRUCT) {
    return int(Default());
}
BOOL CWnd::OnNcCreate(LPCREATESTRUCT) {
    return BOOL(Default());
}
void CWnd::OnDestroy() {
    Default();
}
void CWnd::OnClose() {
    Default();
}
void CWnd::OnSize(UINT, int, int) {
    Default();
}
void CWnd::OnSizing(UINT, LPRECT) {
    Default();
}
void CWnd::OnMove(int, int) {
    Default();
}
void CWnd::OnGetMinMaxInfo(MINMAXINFO*) {
    Default();
}
void CWnd::OnShowWindow(BOOL, UINT) {
    Default();
}
void CWnd::OnEnable(BOOL) {
    Default();
}
void CWnd::OnPaint() {
    Default();
}
void CWnd::OnNcPaint() {
    Default();
}
BOOL CWnd::OnEraseBkgnd(CDC*) {
    return BOOL(Default());
}
void CWnd::OnSetFocus(CWnd*) {
    Default();
}
void CWnd::OnKillFocus(CWnd*) {
    Default();
}
void CWnd::OnKeyDown(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnKeyUp(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnChar(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnSysKeyDown(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnSysKeyUp(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnSysChar(UINT, UINT, UINT) {
    Default();
}
UINT CWnd::OnGetDlgCode() {
    return UINT(Default());
}
void CWnd::OnMouseMove(UINT, CPoint) {
    Default();
}
void CWnd::OnLButtonDown(UINT, CPoint) {
    Default();
}
void CWnd::OnLButtonUp(UINT, CPoint) {
    Default();
}
void CWnd::OnLButtonDblClk(UINT, CPoint) {
    Default();
}
void CWnd::OnRButtonDown(UINT, CPoint) {
    Default();
}
void CWnd::OnRButtonUp(UINT, CPoint) {
    Default();
}
void CWnd::OnRButtonDblClk(UINT, CPoint) {
    Default();
}
void CWnd::OnMButtonDown(UINT, CPoint) {
    Default();
}
void CWnd::OnMButtonUp(UINT, CPoint) {
    Default();
}
BOOL CWnd::OnMouseWheel(UINT, short, CPoint) {
    return BOOL(Default());
}
int CWnd::OnMouseActivate(CWnd*, UINT, UINT) {
    return int(Default());
}
void CWnd::OnHScroll(UINT, UINT, CScrollBar*) {
    Default();
}
void CWnd::OnVScroll(UINT, UINT, CScrollBar*) {
    Default();
}
void CWnd::OnTimer(UINT_PTR) {
    Default();
}
void CWnd::OnCaptureChanged(CWnd*) {
    Default();
}
BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT) {
    return BOOL(Default());
}
void CWnd::OnContextMenu(CWnd*, CPoint) {
    Default();
}
void CWnd::OnSysColorChange() {
    Default();
}
void CWnd::OnSettingChange(UINT, LPCTSTR) {
    Default();
}
void CWnd::OnActivate(UINT, CWnd*, BOOL) {
    Default();
}
void CWnd::OnSetFont(HFONT, BOOL) {
    Default();
}
HFONT CWnd::OnGetFont() {
    return reinterpret_cast<HFONT>(Default());
}
void CWnd::OnNcCalcSize(BOOL, void*) {
    Default();
}
UINT CWnd::OnNcHitTest(CPoint) {
    return UINT(Default());
}
HBRUSH CWnd::OnCtlColor(CDC*, CWnd*, UINT) {
    return reinterpret_cast<HBRUSH>(Default());
}
