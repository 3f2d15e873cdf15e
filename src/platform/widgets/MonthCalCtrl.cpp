// CMonthCalCtrl: the member functions over the calendar's messages.

#include "platform/widgets/MonthCalCtrl.h"

BOOL CMonthCalCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(MONTHCAL_CLASS, nullptr, style, rect, parent, id);
}

BOOL CMonthCalCtrl::CreatePopup(const POINT& anchor, CWnd* notify) {
    // The calendar measures itself once it exists, so it is made hidden, then sized and shown.
    if (!CreateEx(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, MONTHCAL_CLASS, nullptr, WS_POPUP | WS_BORDER,
                  anchor.x, anchor.y, 1, 1, SafeHwnd(notify), nullptr))
        return FALSE;
    CRect size;
    GetMinReqRect(&size);
    // The border of one pixel on each side.
    SetWindowPos(&wndTopMost, anchor.x, anchor.y, size.Width() + 2, size.Height() + 2,
                 SWP_NOACTIVATE);
    return TRUE;
}

BOOL CMonthCalCtrl::GetCurSel(COleDateTime& date) const {
    SYSTEMTIME st{};
    if (!GetCurSel(&st))
        return FALSE;
    date = COleDateTime(st.wYear, st.wMonth, st.wDay, 0, 0, 0);
    return TRUE;
}

BOOL CMonthCalCtrl::GetCurSel(LPSYSTEMTIME date) const {
    return BOOL(SendMessage(MCM_GETCURSEL, 0, LPARAM(date)));
}

BOOL CMonthCalCtrl::SetCurSel(const COleDateTime& date) {
    SYSTEMTIME st{};
    return date.GetAsSystemTime(st) && SetCurSel(&st);
}

BOOL CMonthCalCtrl::SetCurSel(const SYSTEMTIME* date) {
    return BOOL(SendMessage(MCM_SETCURSEL, 0, LPARAM(date)));
}

BOOL CMonthCalCtrl::GetToday(LPSYSTEMTIME date) const {
    return BOOL(SendMessage(MCM_GETTODAY, 0, LPARAM(date)));
}

void CMonthCalCtrl::SetToday(const SYSTEMTIME* date) {
    SendMessage(MCM_SETTODAY, 0, LPARAM(date));
}

BOOL CMonthCalCtrl::GetMinReqRect(RECT* rect) const {
    return BOOL(SendMessage(MCM_GETMINREQRECT, 0, LPARAM(rect)));
}

DWORD CMonthCalCtrl::HitTest(MCHITTESTINFO* info) {
    return DWORD(SendMessage(MCM_HITTEST, 0, LPARAM(info)));
}
