#pragma once

// The date-and-time picker ("SysDateTimePick32"): a date or time shown as fields in a format
// (the regional short or long date, the time, or a custom picture with quoted literals). A
// field is chosen by the mouse or Left and Right, and edited by digits and Up and Down, which
// wrap within the field. The drop-down button, F4 or Alt+Down open a month calendar as a
// pop-up; DTS_UPDOWN shows an up-down control instead. Changes go to the parent as
// DTN_DATETIMECHANGE, the calendar's opening and closing as DTN_DROPDOWN and DTN_CLOSEUP.
// CDateTimeCtrl is a thin wrapper over the DTM_ messages, which a window of the class made
// from a dialog template answers too.

#include "platform/system/DateTime.h"
#include "platform/window/Wnd.h"

class CMonthCalCtrl;

constexpr const char* DATETIMEPICK_CLASS = "SysDateTimePick32";

// DTM_GETSYSTEMTIME answers and DTM_SETSYSTEMTIME requests.
constexpr DWORD GDT_ERROR = DWORD(-1);
constexpr DWORD GDT_VALID = 0;
constexpr DWORD GDT_NONE = 1;
// DTM_GETRANGE answers and DTM_SETRANGE requests: which ends of the range are set.
constexpr DWORD GDTR_MIN = 0x0001;
constexpr DWORD GDTR_MAX = 0x0002;

struct NMDATETIMECHANGE {
    NMHDR nmhdr;
    DWORD dwFlags; // GDT_VALID, or GDT_NONE when the check box of DTS_SHOWNONE is cleared
    SYSTEMTIME st;
};

class ORVA_API CDateTimeCtrl : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    BOOL GetTime(COleDateTime& time) const;
    // GDT_VALID, or GDT_NONE when DTS_SHOWNONE's check box is cleared.
    DWORD GetTime(LPSYSTEMTIME time) const;
    BOOL SetTime(const COleDateTime& time);
    // A null time clears the check box of DTS_SHOWNONE.
    BOOL SetTime(const SYSTEMTIME* time = nullptr);
    // A picture of d M y h H m s t letters with '...' literals; null goes back to the style's.
    BOOL SetFormat(LPCSTR format);
    // The open month calendar, or null when it is closed.
    CMonthCalCtrl* GetMonthCalCtrl() const;
    // Null ends leave the range open on that side.
    BOOL SetRange(const COleDateTime* minimum, const COleDateTime* maximum);
    DWORD GetRange(COleDateTime* minimum, COleDateTime* maximum) const;
};
