// Dates and times as text: GetDateFormat, GetTimeFormat, the picker's combined pictures and
// COleDateTime::Format.

#include "platform/system/DateTime.h"
#include "platform/system/DateTimePicture.h"

#include <cstring>
#include <optional>

namespace {

constexpr const char* kDefaultShortDate = "M/d/yyyy";
constexpr const char* kDefaultLongDate = "dddd, MMMM d, yyyy";
constexpr const char* kDefaultTimeFormat = "h:mm:ss tt";

// The time given, with its day of the week worked out, or the present for none; nothing for
// fields that name no date.
std::optional<SYSTEMTIME> CheckedTime(const SYSTEMTIME* given) {
    SYSTEMTIME time{};
    if (given == nullptr) {
        GetLocalTime(&time);
        return time;
    }
    DATE date = 0;
    if (!SystemTimeToVariantTime(given, &date) || given->wMilliseconds > 999)
        return std::nullopt;
    time = *given;
    time.wDayOfWeek = WORD((DayNumberFromDate(time.wYear, time.wMonth, time.wDay) % 7 + 13) % 7);
    return time;
}

// Drops fields of a kind with the literal text that leads up to them ("h:mm:ss" without
// seconds is "h:mm").
void DropFields(std::vector<PictureToken>& tokens, PictureField field) {
    for (size_t i = 0; i < tokens.size();) {
        if (tokens[i].field != field) {
            ++i;
            continue;
        }
        const bool literalBefore = i > 0 && tokens[i - 1].field == PictureField::Literal;
        const size_t first = literalBefore ? i - 1 : i;
        tokens.erase(tokens.begin() + long(first), tokens.begin() + long(i) + 1);
        i = first;
    }
    // A picture that began with the dropped field keeps no leading separator.
    if (!tokens.empty() && tokens.front().field == PictureField::Literal &&
        tokens.front().literal.find_first_not_of(" :.") == std::string::npos)
        tokens.erase(tokens.begin());
}

std::string Render(const std::vector<PictureToken>& tokens, const SYSTEMTIME& time, bool dateFields,
                   bool timeFields) {
    const CalendarNames names = CurrentCalendarNames();
    std::string text;
    for (const PictureToken& token : tokens) {
        const bool shown = token.field == PictureField::Literal ||
                           (dateFields && IsDateField(token.field)) ||
                           (timeFields && IsTimeField(token.field));
        if (shown) {
            text += FormatPictureToken(token, time, names);
            continue;
        }
        // A field of the other kind stands as the letters that named it.
        static const char letters[] = "?dMyghHmst";
        text.append(size_t(token.width), letters[int(token.field)]);
    }
    return text;
}

// Copies the text out as the national-language calls do.
int CopyOut(const std::string& text, LPSTR buffer, int size) {
    const int needed = int(text.size()) + 1;
    if (size == 0)
        return needed;
    if (buffer == nullptr || size < needed)
        return 0;
    std::memcpy(buffer, text.c_str(), size_t(needed));
    return needed;
}

} // namespace

int GetDateFormat(LCID, DWORD flags, const SYSTEMTIME* date, LPCSTR picture, LPSTR buffer,
                  int size) {
    if (size < 0 || (picture != nullptr && (flags & (DATE_SHORTDATE | DATE_LONGDATE))) ||
        (flags & DATE_SHORTDATE && flags & DATE_LONGDATE))
        return 0;
    const std::optional<SYSTEMTIME> time = CheckedTime(date);
    if (!time)
        return 0;
    CString regional;
    if (picture == nullptr) {
        regional = flags & DATE_LONGDATE ? RegionalSetting("sLongDate", kDefaultLongDate)
                                         : RegionalSetting("sShortDate", kDefaultShortDate);
        picture = regional;
    }
    return CopyOut(Render(ParsePicture(picture), *time, true, false), buffer, size);
}

int GetTimeFormat(LCID, DWORD flags, const SYSTEMTIME* time, LPCSTR picture, LPSTR buffer,
                  int size) {
    if (size < 0)
        return 0;
    const std::optional<SYSTEMTIME> checked = CheckedTime(time);
    if (!checked)
        return 0;
    CString regional;
    if (picture == nullptr) {
        regional = RegionalSetting("sTimeFormat", kDefaultTimeFormat);
        picture = regional;
    }
    std::vector<PictureToken> tokens = ParsePicture(picture);
    if (flags & (TIME_NOSECONDS | TIME_NOMINUTESORSECONDS))
        DropFields(tokens, PictureField::Second);
    if (flags & TIME_NOMINUTESORSECONDS)
        DropFields(tokens, PictureField::Minute);
    if (flags & TIME_NOTIMEMARKER)
        DropFields(tokens, PictureField::Marker);
    if (flags & TIME_FORCE24HOURFORMAT)
        for (PictureToken& token : tokens)
            if (token.field == PictureField::Hour12)
                token.field = PictureField::Hour24;
    return CopyOut(Render(tokens, *checked, false, true), buffer, size);
}

CString FormatDateTimePicture(const SYSTEMTIME& time, const char* picture) {
    const std::optional<SYSTEMTIME> checked = CheckedTime(&time);
    if (!checked)
        return CString();
    return CString(Render(ParsePicture(picture), *checked, true, true).c_str());
}

CString COleDateTime::Format(DWORD flags, LCID locale) const {
    SYSTEMTIME st{};
    if (!GetAsSystemTime(st))
        return CString();
    const bool midnight = st.wHour == 0 && st.wMinute == 0 && st.wSecond == 0;
    const bool dayZero = st.wYear == 1899 && st.wMonth == 12 && st.wDay == 30;
    const bool withDate = !(flags & VAR_TIMEVALUEONLY) && (flags & VAR_DATEVALUEONLY || !dayZero);
    const bool withTime = !(flags & VAR_DATEVALUEONLY) && (flags & VAR_TIMEVALUEONLY || !midnight);
    char buffer[256];
    CString text;
    if (withDate && GetDateFormat(locale, 0, &st, nullptr, buffer, sizeof buffer) > 0)
        text = buffer;
    if (withTime && GetTimeFormat(locale, 0, &st, nullptr, buffer, sizeof buffer) > 0) {
        if (!text.IsEmpty())
            text += ' ';
        text += buffer;
    }
    return text;
}

CString COleDateTime::Format(const char* strftimeFormat) const {
    SYSTEMTIME st{};
    if (strftimeFormat == nullptr || *strftimeFormat == '\0' || !GetAsSystemTime(st))
        return CString();
    std::tm tm{};
    tm.tm_year = st.wYear - 1900;
    tm.tm_mon = st.wMonth - 1;
    tm.tm_mday = st.wDay;
    tm.tm_hour = st.wHour;
    tm.tm_min = st.wMinute;
    tm.tm_sec = st.wSecond;
    tm.tm_wday = st.wDayOfWeek;
    tm.tm_yday = GetDayOfYear() - 1;
    tm.tm_isdst = -1;
    char buffer[512];
    const size_t written = std::strftime(buffer, sizeof buffer, strftimeFormat, &tm);
    return CString(buffer, int(written));
}
