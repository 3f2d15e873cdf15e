#pragma once

// Calendar dates and times of day: SYSTEMTIME, the automation date (days since 1899-12-30 with
// the time as the fraction), the conversions between them, COleDateTime and COleDateTimeSpan,
// and the regional date and time pictures of GetDateFormat, GetTimeFormat and VarDateFromStr.
// The regional pictures come from the settings store ("Control Panel\International"), read
// afresh on every call; month and day names come from the LC_TIME locale, English without one.

#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/WinTypes.h"

#include <ctime>

struct SYSTEMTIME {
    WORD wYear;
    WORD wMonth;     // 1 to 12
    WORD wDayOfWeek; // 0 Sunday to 6 Saturday
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};
using LPSYSTEMTIME = SYSTEMTIME*;

// SYSTEMTIME with the day of the year (1 for the first of January).
struct UDATE {
    SYSTEMTIME st;
    WORD wDayOfYear;
};

using DATE = double;
using HRESULT = LONG;
using LCID = DWORD;

constexpr HRESULT S_OK = 0;
constexpr HRESULT E_INVALIDARG = HRESULT(0x80070057);
constexpr HRESULT DISP_E_TYPEMISMATCH = HRESULT(0x80020005);
constexpr HRESULT DISP_E_OVERFLOW = HRESULT(0x8002000A);

constexpr LCID LOCALE_USER_DEFAULT = 0x0400;
constexpr LCID LOCALE_SYSTEM_DEFAULT = 0x0800;
constexpr LCID LANG_USER_DEFAULT = LOCALE_USER_DEFAULT;
// Accepted for compatibility: the settings store is at once the locale and the user's choices.
constexpr DWORD LOCALE_NOUSEROVERRIDE = 0x80000000;

// VarDateFromStr, VarUdateFromDate and COleDateTime::ParseDateTime / Format flags.
constexpr DWORD VAR_TIMEVALUEONLY = 0x00000001;
constexpr DWORD VAR_DATEVALUEONLY = 0x00000002;

// GetDateFormat and GetTimeFormat flags.
constexpr DWORD DATE_SHORTDATE = 0x00000001;
constexpr DWORD DATE_LONGDATE = 0x00000002;
constexpr DWORD TIME_NOMINUTESORSECONDS = 0x00000001;
constexpr DWORD TIME_NOSECONDS = 0x00000002;
constexpr DWORD TIME_NOTIMEMARKER = 0x00000004;
constexpr DWORD TIME_FORCE24HOURFORMAT = 0x00000008;

// The automation dates of the years 100 and 9999, the range every conversion accepts.
constexpr DATE kMinAutomationDate = -657434.0;
constexpr DATE kMaxAutomationDate = 2958465.999988426;

// Conversions. Times round to the nearest second; FALSE, or an error result, for a date out of
// range or fields that name no real date or time.
ORVA_API BOOL VariantTimeToSystemTime(DATE date, LPSYSTEMTIME systemTime);
ORVA_API BOOL SystemTimeToVariantTime(const SYSTEMTIME* systemTime, DATE* date);
ORVA_API HRESULT VarUdateFromDate(DATE date, ULONG flags, UDATE* udate);
ORVA_API HRESULT VarDateFromUdate(UDATE* udate, ULONG flags, DATE* date);
// Parses a date, a time, or both, with the numeric date fields in the order of the regional
// short date ("d.M.yyyy" reads day first), month names in full or abbreviated, and times as
// h:mm[:ss] with an optional AM/PM marker. DISP_E_TYPEMISMATCH for text that is not a date.
ORVA_API HRESULT VarDateFromStr(const char* text, LCID locale, ULONG flags, DATE* date);

// Pictures: d dd ddd dddd M MM MMM MMMM y yy yyyy g gg for the date; h hh H HH m mm s ss t tt
// for the time; '...' quotes a literal and '' is a quote. A null picture takes the regional
// one. A null time is the present. Both answer the characters written with the terminating
// zero, the size needed when `size` is 0, and 0 on failure (buffer too small, bad flags).
ORVA_API int GetDateFormat(LCID locale, DWORD flags, const SYSTEMTIME* date, LPCSTR picture,
                           LPSTR buffer, int size);
ORVA_API int GetTimeFormat(LCID locale, DWORD flags, const SYSTEMTIME* time, LPCSTR picture,
                           LPSTR buffer, int size);
// A picture with both date and time letters, as the date-and-time picker shows its format.
ORVA_API CString FormatDateTimePicture(const SYSTEMTIME& time, const char* picture);

ORVA_API void GetLocalTime(LPSYSTEMTIME time);
ORVA_API void GetSystemTime(LPSYSTEMTIME time);

// The proleptic Gregorian calendar, for code that does calendar arithmetic on whole days:
// days counted from 1899-12-30 (negative before it), for any year an int holds.
ORVA_API long long DayNumberFromDate(int year, int month, int day);
ORVA_API void DateFromDayNumber(long long dayNumber, int& year, int& month, int& day);
ORVA_API int DaysInMonth(int year, int month);

class COleDateTimeSpan;

// An automation date with a status. Before 1899-12-30 the whole part counts days back and the
// fraction still counts the time forward: -1.25 is 1899-12-29 06:00.
class ORVA_API COleDateTime {
public:
    enum DateTimeStatus { error = -1, valid = 0, invalid = 1, null = 2 };

    COleDateTime() = default;
    COleDateTime(DATE date);
    COleDateTime(int year, int month, int day, int hour, int minute, int second);
    COleDateTime(const SYSTEMTIME& systemTime);
    explicit COleDateTime(std::time_t time);

    static COleDateTime GetCurrentTime();

    DateTimeStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeStatus status) { m_status = status; }

    // Each answers -1 unless the status is valid. Day of the week: 1 Sunday to 7 Saturday.
    int GetYear() const;
    int GetMonth() const;
    int GetDay() const;
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    int GetDayOfWeek() const;
    int GetDayOfYear() const;

    // Each answers 0 and makes the status valid, or answers 1 and makes it invalid.
    int SetDateTime(int year, int month, int day, int hour, int minute, int second);
    int SetDate(int year, int month, int day);
    int SetTime(int hour, int minute, int second);

    bool GetAsSystemTime(SYSTEMTIME& systemTime) const;
    bool GetAsUDATE(UDATE& udate) const;

    // False, with the status invalid, for text that is not a date.
    bool ParseDateTime(const char* text, DWORD flags = 0, LCID locale = LANG_USER_DEFAULT);
    // The regional short date and the time, leaving out a midnight time (VAR_DATEVALUEONLY
    // and VAR_TIMEVALUEONLY choose one part). "" for a date that is not valid.
    CString Format(DWORD flags = 0, LCID locale = LANG_USER_DEFAULT) const;
    // strftime's conversions (%Y %m %d %H %M %S %a %A %b %B %p %j %y %I %c %x %X %%).
    CString Format(const char* strftimeFormat) const;

    operator DATE() const { return m_dt; }
    COleDateTime& operator=(DATE date);
    COleDateTime& operator=(const SYSTEMTIME& systemTime);

    bool operator==(const COleDateTime& other) const;
    bool operator!=(const COleDateTime& other) const { return !(*this == other); }
    bool operator<(const COleDateTime& other) const;
    bool operator>(const COleDateTime& other) const { return other < *this; }
    bool operator<=(const COleDateTime& other) const { return !(other < *this); }
    bool operator>=(const COleDateTime& other) const { return !(*this < other); }

    COleDateTime operator+(const COleDateTimeSpan& span) const;
    COleDateTime operator-(const COleDateTimeSpan& span) const;
    COleDateTime& operator+=(const COleDateTimeSpan& span) { return *this = *this + span; }
    COleDateTime& operator-=(const COleDateTimeSpan& span) { return *this = *this - span; }
    COleDateTimeSpan operator-(const COleDateTime& other) const;

    DATE m_dt = 0.0;
    DateTimeStatus m_status = valid;
};

// A length of time in days, the fraction being part of a day.
class ORVA_API COleDateTimeSpan {
public:
    enum DateTimeSpanStatus { valid = 0, invalid = 1, null = 2 };

    COleDateTimeSpan() = default;
    COleDateTimeSpan(double days) : m_span(days) {}
    COleDateTimeSpan(long days, int hours, int minutes, int seconds);

    DateTimeSpanStatus GetStatus() const { return m_status; }
    double GetTotalDays() const { return m_span; }
    double GetTotalHours() const { return m_span * 24.0; }
    double GetTotalMinutes() const { return m_span * 24.0 * 60.0; }
    double GetTotalSeconds() const { return m_span * 24.0 * 60.0 * 60.0; }
    // The parts of the span, each signed as the span is.
    long GetDays() const;
    long GetHours() const;
    long GetMinutes() const;
    long GetSeconds() const;

    COleDateTimeSpan operator+(const COleDateTimeSpan& other) const;
    COleDateTimeSpan operator-(const COleDateTimeSpan& other) const;
    COleDateTimeSpan operator-() const { return COleDateTimeSpan(-m_span); }
    bool operator==(const COleDateTimeSpan& other) const { return m_span == other.m_span; }
    bool operator<(const COleDateTimeSpan& other) const { return m_span < other.m_span; }

    double m_span = 0.0;
    DateTimeSpanStatus m_status = valid;
};
