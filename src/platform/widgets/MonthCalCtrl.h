#pragma once

// The month calendar control ("SysMonthCal32"): one month of days under a title with the month,
// the year and arrows to the neighbouring months; today is circled and the chosen day
// highlighted. As a child it is a plain control; as a pop-up (WS_POPUP, how the date-and-time
// picker drops it down) it holds the capture and asks the window it was created for to close
// it (DTM_CLOSEMONTHCAL) on Escape, a click outside or the loss of the focus. CMonthCalCtrl is a
// thin wrapper over the MCM_ messages.

#include "platform/system/DateTime.h"
#include "platform/window/Wnd.h"

constexpr const char* MONTHCAL_CLASS = "SysMonthCal32";

// MCN_SELECT and MCN_SELCHANGE: the chosen day (a single day: start and end are the same).
struct NMSELCHANGE {
    NMHDR nmhdr;
    SYSTEMTIME stSelStart;
    SYSTEMTIME stSelEnd;
};
using NMSELECT = NMSELCHANGE;

// MCM_HITTEST: what lies at a client point, and its date where it is a day.
struct MCHITTESTINFO {
    UINT cbSize;
    POINT pt;
    UINT uHit;
    SYSTEMTIME st;
};
constexpr UINT MCHT_NOWHERE = 0x00000000;
constexpr UINT MCHT_TITLE = 0x00010000;
constexpr UINT MCHT_CALENDAR = 0x00020000;
constexpr UINT MCHT_TODAYLINK = 0x00030000;
constexpr UINT MCHT_NEXT = 0x01000000;
constexpr UINT MCHT_PREV = 0x02000000;
constexpr UINT MCHT_TITLEBK = MCHT_TITLE;
constexpr UINT MCHT_TITLEBTNNEXT = MCHT_TITLE | MCHT_NEXT | 0x0003;
constexpr UINT MCHT_TITLEBTNPREV = MCHT_TITLE | MCHT_PREV | 0x0003;
constexpr UINT MCHT_CALENDARBK = MCHT_CALENDAR;
constexpr UINT MCHT_CALENDARDATE = MCHT_CALENDAR | 0x0001;
constexpr UINT MCHT_CALENDARDATENEXT = MCHT_CALENDARDATE | MCHT_NEXT;
constexpr UINT MCHT_CALENDARDATEPREV = MCHT_CALENDARDATE | MCHT_PREV;
constexpr UINT MCHT_CALENDARDAY = MCHT_CALENDAR | 0x0002;

class ORVA_API CMonthCalCtrl : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // A pop-up calendar below `anchor` (screen coordinates), sized to its month; it notifies
    // `notify`, which also closes it.
    BOOL CreatePopup(const POINT& anchor, CWnd* notify);

    BOOL GetCurSel(COleDateTime& date) const;
    BOOL GetCurSel(LPSYSTEMTIME date) const;
    BOOL SetCurSel(const COleDateTime& date);
    BOOL SetCurSel(const SYSTEMTIME* date);
    BOOL GetToday(LPSYSTEMTIME date) const;
    // A null date goes back to the system clock's today.
    void SetToday(const SYSTEMTIME* date);
    // Fills in uHit and, on a day, st; answers uHit.
    DWORD HitTest(MCHITTESTINFO* info);
    // The size the control needs to show its month whole.
    BOOL GetMinReqRect(RECT* rect) const;
};
