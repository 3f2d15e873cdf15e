// CDateTimeCtrl: the member functions over the picker's messages.

#include "platform/widgets/DateTimeCtrl.h"

#include "platform/widgets/MonthCalCtrl.h"

BOOL CDateTimeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(DATETIMEPICK_CLASS, nullptr, style, rect, parent, id);
}

BOOL CDateTimeCtrl::GetTime(COleDateTime& time) const {
    SYSTEMTIME st{};
    const DWORD result = GetTime(&st);
    if (result == GDT_VALID) {
        time = COleDateTime(st);
        return TRUE;
    }
    time.m_dt = 0;
    time.SetStatus(result == GDT_NONE ? COleDateTime::null : COleDateTime::invalid);
    return FALSE;
}

DWORD CDateTimeCtrl::GetTime(LPSYSTEMTIME time) const {
    return DWORD(SendMessage(DTM_GETSYSTEMTIME, 0, LPARAM(time)));
}

BOOL CDateTimeCtrl::SetTime(const COleDateTime& time) {
    if (time.GetStatus() == COleDateTime::null)
        return SetTime(static_cast<const SYSTEMTIME*>(nullptr));
    SYSTEMTIME st{};
    return time.GetAsSystemTime(st) && SetTime(&st);
}

BOOL CDateTimeCtrl::SetTime(const SYSTEMTIME* time) {
    return BOOL(
        SendMessage(DTM_SETSYSTEMTIME, time != nullptr ? GDT_VALID : GDT_NONE, LPARAM(time)));
}

BOOL CDateTimeCtrl::SetFormat(LPCSTR format) {
    return BOOL(SendMessage(DTM_SETFORMAT, 0, LPARAM(format)));
}

CMonthCalCtrl* CDateTimeCtrl::GetMonthCalCtrl() const {
    const HWND calendar = HWND(SendMessage(DTM_GETMONTHCAL));
    return dynamic_cast<CMonthCalCtrl*>(CWnd::FromHandlePermanent(calendar));
}

BOOL CDateTimeCtrl::SetRange(const COleDateTime* minimum, const COleDateTime* maximum) {
    SYSTEMTIME range[2]{};
    DWORD which = 0;
    if (minimum != nullptr) {
        if (!minimum->GetAsSystemTime(range[0]))
            return FALSE;
        which |= GDTR_MIN;
    }
    if (maximum != nullptr) {
        if (!maximum->GetAsSystemTime(range[1]))
            return FALSE;
        which |= GDTR_MAX;
    }
    return BOOL(SendMessage(DTM_SETRANGE, which, LPARAM(range)));
}

DWORD CDateTimeCtrl::GetRange(COleDateTime* minimum, COleDateTime* maximum) const {
    SYSTEMTIME range[2]{};
    const DWORD which = DWORD(SendMessage(DTM_GETRANGE, 0, LPARAM(range)));
    if (minimum != nullptr) {
        *minimum = COleDateTime(range[0]);
        if (!(which & GDTR_MIN))
            minimum->SetStatus(COleDateTime::null);
    }
    if (maximum != nullptr) {
        *maximum = COleDateTime(range[1]);
        if (!(which & GDTR_MAX))
            maximum->SetStatus(COleDateTime::null);
    }
    return which;
}
