// The calendar, the conversions between automation dates and calendar fields, and the
// COleDateTime and COleDateTimeSpan values built on them.

#include "platform/system/DateTime.h"

#include <chrono>
#include <cmath>

namespace {

constexpr double kSecondsPerDay = 86400.0;

// Days since 1970-01-01 of a proleptic Gregorian date, and back (the era-based civil calendar
// algorithm, exact for every year an int holds).
long long DaysFromCivil(long long y, unsigned m, unsigned d) {
    y -= m <= 2;
    const long long era = (y >= 0 ? y : y - 399) / 400;
    const unsigned yoe = unsigned(y - era * 400);
    const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + (long long)doe - 719468;
}

void CivilFromDays(long long z, int& year, int& month, int& day) {
    z += 719468;
    const long long era = (z >= 0 ? z : z - 146096) / 146097;
    const unsigned doe = unsigned(z - era * 146097);
    const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const unsigned mp = (5 * doy + 2) / 153;
    day = int(doy - (153 * mp + 2) / 5 + 1);
    month = int(mp < 10 ? mp + 3 : mp - 9);
    year = int(yoe + era * 400 + (month <= 2));
}

const long long kAutomationEpoch = DaysFromCivil(1899, 12, 30);

// An automation date as a count of days that runs forward through the epoch, so that before it
// the fraction is taken from the whole part instead of added to it.
double LinearFromDate(DATE date) {
    const double whole = std::trunc(date);
    return whole + std::fabs(date - whole);
}

DATE DateFromLinear(double linear) {
    const double whole = std::floor(linear);
    const double fraction = linear - whole;
    return whole < 0 && fraction != 0 ? whole - fraction : whole + fraction;
}

bool InRange(DATE date) {
    return std::isfinite(date) && date >= kMinAutomationDate - 1.0 &&
           date <= kMaxAutomationDate + 1.0 / kSecondsPerDay;
}

bool ValidFields(int year, int month, int day, int hour, int minute, int second) {
    return year >= 100 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 &&
           day <= DaysInMonth(year, month) && hour >= 0 && hour <= 23 && minute >= 0 &&
           minute <= 59 && second >= 0 && second <= 59;
}

DATE DateFromFields(int year, int month, int day, int hour, int minute, int second) {
    const double days = double(DayNumberFromDate(year, month, day));
    const double time = (hour * 3600.0 + minute * 60.0 + second) / kSecondsPerDay;
    return days < 0 && time > 0 ? days - time : days + time;
}

} // namespace

// The calendar.

long long DayNumberFromDate(int year, int month, int day) {
    return DaysFromCivil(year, unsigned(month), unsigned(day)) - kAutomationEpoch;
}

void DateFromDayNumber(long long dayNumber, int& year, int& month, int& day) {
    CivilFromDays(dayNumber + kAutomationEpoch, year, month, day);
}

int DaysInMonth(int year, int month) {
    static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12)
        return 0;
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : days[month - 1];
}

// Conversions.

BOOL VariantTimeToSystemTime(DATE date, LPSYSTEMTIME systemTime) {
    if (systemTime == nullptr || !InRange(date))
        return FALSE;
    const long long seconds = std::llround(LinearFromDate(date) * kSecondsPerDay);
    long long days = seconds / 86400;
    long long secondOfDay = seconds % 86400;
    if (secondOfDay < 0) {
        secondOfDay += 86400;
        --days;
    }
    int year, month, day;
    DateFromDayNumber(days, year, month, day);
    if (year < 100 || year > 9999)
        return FALSE;
    systemTime->wYear = WORD(year);
    systemTime->wMonth = WORD(month);
    systemTime->wDay = WORD(day);
    // 1899-12-30 was a Saturday.
    systemTime->wDayOfWeek = WORD(((days + 6) % 7 + 7) % 7);
    systemTime->wHour = WORD(secondOfDay / 3600);
    systemTime->wMinute = WORD(secondOfDay / 60 % 60);
    systemTime->wSecond = WORD(secondOfDay % 60);
    systemTime->wMilliseconds = 0;
    return TRUE;
}

BOOL SystemTimeToVariantTime(const SYSTEMTIME* systemTime, DATE* date) {
    if (systemTime == nullptr || date == nullptr)
        return FALSE;
    const SYSTEMTIME& st = *systemTime;
    if (!ValidFields(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond))
        return FALSE;
    *date = DateFromFields(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond);
    return TRUE;
}

HRESULT VarUdateFromDate(DATE date, ULONG flags, UDATE* udate) {
    if (udate == nullptr || !VariantTimeToSystemTime(date, &udate->st))
        return E_INVALIDARG;
    if (flags & VAR_DATEVALUEONLY)
        udate->st.wHour = udate->st.wMinute = udate->st.wSecond = 0;
    if (flags & VAR_TIMEVALUEONLY) {
        udate->st.wYear = 1899;
        udate->st.wMonth = 12;
        udate->st.wDay = 30;
        udate->st.wDayOfWeek = 6;
    }
    udate->wDayOfYear = WORD(DayNumberFromDate(udate->st.wYear, udate->st.wMonth, udate->st.wDay) -
                             DayNumberFromDate(udate->st.wYear, 1, 1) + 1);
    return S_OK;
}

HRESULT VarDateFromUdate(UDATE* udate, ULONG flags, DATE* date) {
    if (udate == nullptr || date == nullptr)
        return E_INVALIDARG;
    SYSTEMTIME st = udate->st;
    if (flags & VAR_TIMEVALUEONLY) {
        st.wYear = 1899;
        st.wMonth = 12;
        st.wDay = 30;
    }
    if (flags & VAR_DATEVALUEONLY)
        st.wHour = st.wMinute = st.wSecond = 0;
    return SystemTimeToVariantTime(&st, date) ? S_OK : E_INVALIDARG;
}

namespace {

void SystemTimeFromTm(const std::tm& tm, WORD milliseconds, LPSYSTEMTIME time) {
    time->wYear = WORD(tm.tm_year + 1900);
    time->wMonth = WORD(tm.tm_mon + 1);
    time->wDayOfWeek = WORD(tm.tm_wday);
    time->wDay = WORD(tm.tm_mday);
    time->wHour = WORD(tm.tm_hour);
    time->wMinute = WORD(tm.tm_min);
    time->wSecond = WORD(tm.tm_sec > 59 ? 59 : tm.tm_sec);
    time->wMilliseconds = milliseconds;
}

template <class Convert> void SystemClockTime(LPSYSTEMTIME time, Convert convert) {
    if (time == nullptr)
        return;
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    const auto millis =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() %
        1000;
    std::tm tm{};
    convert(&seconds, &tm);
    SystemTimeFromTm(tm, WORD(millis < 0 ? 0 : millis), time);
}

} // namespace

void GetLocalTime(LPSYSTEMTIME time) {
    SystemClockTime(time, localtime_r);
}

void GetSystemTime(LPSYSTEMTIME time) {
    SystemClockTime(time, gmtime_r);
}

// COleDateTime.

COleDateTime::COleDateTime(DATE date) : m_dt(date), m_status(InRange(date) ? valid : invalid) {}

COleDateTime::COleDateTime(int year, int month, int day, int hour, int minute, int second) {
    SetDateTime(year, month, day, hour, minute, second);
}

COleDateTime::COleDateTime(const SYSTEMTIME& systemTime) {
    *this = systemTime;
}

COleDateTime::COleDateTime(std::time_t time) {
    std::tm tm{};
    if (localtime_r(&time, &tm) == nullptr) {
        m_status = invalid;
        return;
    }
    SetDateTime(tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min,
                tm.tm_sec > 59 ? 59 : tm.tm_sec);
}

COleDateTime COleDateTime::GetCurrentTime() {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    now.wMilliseconds = 0;
    return COleDateTime(now);
}

COleDateTime& COleDateTime::operator=(DATE date) {
    m_dt = date;
    m_status = InRange(date) ? valid : invalid;
    return *this;
}

COleDateTime& COleDateTime::operator=(const SYSTEMTIME& systemTime) {
    m_status = SystemTimeToVariantTime(&systemTime, &m_dt) ? valid : invalid;
    return *this;
}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME& systemTime) const {
    return m_status == valid && VariantTimeToSystemTime(m_dt, &systemTime);
}

bool COleDateTime::GetAsUDATE(UDATE& udate) const {
    return m_status == valid && VarUdateFromDate(m_dt, 0, &udate) == S_OK;
}

int COleDateTime::GetYear() const {
    UDATE u;
    return GetAsUDATE(u) ? u.st.wYear : -1;
}

int COleDateTime::GetMonth() const {
    UDATE u;
    return GetAsUDATE(u) ? u.st.wMonth : -1;
}

int COleDateTime::GetDay() const {
    UDATE u;
    return GetAsUDATE(u) ? u.st.wDay : -1;
}

int COleDateTime::GetHour() const {
    UDATE u;
    return GetAsUDATE(u) ? u.st.wHour : -1;
}

int COleDateTime::GetMinute() const {
    UDATE u;
    return GetAsUDATE(u) ? u.st.wMinute : -1;
}

int COleDateTime::GetSecond() const {
    UDATE u;
    return GetAsUDATE(u) ? u.st.wSecond : -1;
}

int COleDateTime::GetDayOfWeek() const {
    UDATE u;
    return GetAsUDATE(u) ? u.st.wDayOfWeek + 1 : -1;
}

int COleDateTime::GetDayOfYear() const {
    UDATE u;
    return GetAsUDATE(u) ? u.wDayOfYear : -1;
}

int COleDateTime::SetDateTime(int year, int month, int day, int hour, int minute, int second) {
    if (!ValidFields(year, month, day, hour, minute, second)) {
        m_dt = 0.0;
        m_status = invalid;
        return 1;
    }
    m_dt = DateFromFields(year, month, day, hour, minute, second);
    m_status = valid;
    return 0;
}

int COleDateTime::SetDate(int year, int month, int day) {
    return SetDateTime(year, month, day, 0, 0, 0);
}

int COleDateTime::SetTime(int hour, int minute, int second) {
    return SetDateTime(1899, 12, 30, hour, minute, second);
}

bool COleDateTime::ParseDateTime(const char* text, DWORD flags, LCID locale) {
    DATE parsed = 0.0;
    if (text == nullptr || VarDateFromStr(text, locale, flags, &parsed) != S_OK) {
        m_dt = 0.0;
        m_status = invalid;
        return false;
    }
    m_dt = parsed;
    m_status = valid;
    return true;
}

bool COleDateTime::operator==(const COleDateTime& other) const {
    return m_status == other.m_status && m_dt == other.m_dt;
}

bool COleDateTime::operator<(const COleDateTime& other) const {
    return LinearFromDate(m_dt) < LinearFromDate(other.m_dt);
}

COleDateTime COleDateTime::operator+(const COleDateTimeSpan& span) const {
    if (m_status != valid || span.GetStatus() != COleDateTimeSpan::valid) {
        COleDateTime result;
        result.m_status = invalid;
        return result;
    }
    return COleDateTime(DateFromLinear(LinearFromDate(m_dt) + span.m_span));
}

COleDateTime COleDateTime::operator-(const COleDateTimeSpan& span) const {
    return *this + -span;
}

COleDateTimeSpan COleDateTime::operator-(const COleDateTime& other) const {
    COleDateTimeSpan span(LinearFromDate(m_dt) - LinearFromDate(other.m_dt));
    if (m_status != valid || other.m_status != valid)
        span.m_status = COleDateTimeSpan::invalid;
    return span;
}

// COleDateTimeSpan.

COleDateTimeSpan::COleDateTimeSpan(long days, int hours, int minutes, int seconds)
    : m_span(days + (hours * 3600.0 + minutes * 60.0 + seconds) / kSecondsPerDay) {}

namespace {

// The span in whole seconds, rounded as the calendar conversions round.
long long TotalSeconds(double span) {
    return std::llround(span * kSecondsPerDay);
}

} // namespace

long COleDateTimeSpan::GetDays() const {
    return long(TotalSeconds(m_span) / 86400);
}

long COleDateTimeSpan::GetHours() const {
    return long(TotalSeconds(m_span) / 3600 % 24);
}

long COleDateTimeSpan::GetMinutes() const {
    return long(TotalSeconds(m_span) / 60 % 60);
}

long COleDateTimeSpan::GetSeconds() const {
    return long(TotalSeconds(m_span) % 60);
}

COleDateTimeSpan COleDateTimeSpan::operator+(const COleDateTimeSpan& other) const {
    COleDateTimeSpan sum(m_span + other.m_span);
    if (m_status != valid || other.m_status != valid)
        sum.m_status = invalid;
    return sum;
}

COleDateTimeSpan COleDateTimeSpan::operator-(const COleDateTimeSpan& other) const {
    return *this + -other;
}
