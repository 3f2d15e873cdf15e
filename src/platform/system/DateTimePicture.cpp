// Splitting date and time pictures into fields and literals, the calendar names, and the
// text of each field.

#include "platform/system/DateTimePicture.h"

#include "platform/system/UserSettings.h"

#include <cstdlib>
#include <langinfo.h>
#include <locale.h>

namespace {

PictureField FieldOfLetter(char letter) {
    switch (letter) {
    case 'd':
        return PictureField::Day;
    case 'M':
        return PictureField::Month;
    case 'y':
        return PictureField::Year;
    case 'g':
        return PictureField::Era;
    case 'h':
        return PictureField::Hour12;
    case 'H':
        return PictureField::Hour24;
    case 'm':
        return PictureField::Minute;
    case 's':
        return PictureField::Second;
    case 't':
        return PictureField::Marker;
    default:
        return PictureField::Literal;
    }
}

void AppendLiteral(std::vector<PictureToken>& tokens, const std::string& text) {
    if (text.empty())
        return;
    if (!tokens.empty() && tokens.back().field == PictureField::Literal)
        tokens.back().literal += text;
    else
        tokens.push_back({PictureField::Literal, 0, text});
}

std::string Padded(int value, int width) {
    std::string digits = std::to_string(value);
    while (int(digits.size()) < width)
        digits.insert(digits.begin(), '0');
    return digits;
}

// The locale the environment names for LC_TIME, by the C library's precedence; null for the
// neutral locale.
locale_t TimeLocale() {
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* value = std::getenv(variable);
        if (value == nullptr || *value == '\0')
            continue;
        const std::string name = value;
        if (name == "C" || name == "POSIX" || name.rfind("C.", 0) == 0)
            return locale_t(0);
        return newlocale(LC_TIME_MASK, value, locale_t(0));
    }
    return locale_t(0);
}

} // namespace

std::vector<PictureToken> ParsePicture(const char* picture) {
    std::vector<PictureToken> tokens;
    if (picture == nullptr)
        return tokens;
    for (const char* p = picture; *p != '\0';) {
        if (*p == '\'') {
            ++p;
            if (*p == '\'') {
                AppendLiteral(tokens, "'");
                ++p;
                continue;
            }
            std::string quoted;
            while (*p != '\0') {
                if (*p == '\'' && p[1] == '\'') {
                    quoted += '\'';
                    p += 2;
                } else if (*p == '\'') {
                    ++p;
                    break;
                } else {
                    quoted += *p++;
                }
            }
            AppendLiteral(tokens, quoted);
            continue;
        }
        const PictureField field = FieldOfLetter(*p);
        if (field == PictureField::Literal) {
            AppendLiteral(tokens, std::string(1, *p++));
            continue;
        }
        const char letter = *p;
        int width = 0;
        while (*p == letter) {
            ++p;
            ++width;
        }
        tokens.push_back({field, width, {}});
    }
    return tokens;
}

bool IsDateField(PictureField field) {
    return field == PictureField::Day || field == PictureField::Month ||
           field == PictureField::Year || field == PictureField::Era;
}

bool IsTimeField(PictureField field) {
    return field == PictureField::Hour12 || field == PictureField::Hour24 ||
           field == PictureField::Minute || field == PictureField::Second ||
           field == PictureField::Marker;
}

CalendarNames CurrentCalendarNames() {
    CalendarNames names{
        {"January", "February", "March", "April", "May", "June", "July", "August", "September",
         "October", "November", "December"},
        {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"},
        {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
        {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"},
        "AM",
        "PM"};
    if (locale_t locale = TimeLocale()) {
        for (int i = 0; i < 12; ++i) {
            names.months[i] = nl_langinfo_l(nl_item(MON_1 + i), locale);
            names.shortMonths[i] = nl_langinfo_l(nl_item(ABMON_1 + i), locale);
        }
        for (int i = 0; i < 7; ++i) {
            names.days[i] = nl_langinfo_l(nl_item(DAY_1 + i), locale);
            names.shortDays[i] = nl_langinfo_l(nl_item(ABDAY_1 + i), locale);
        }
        names.am = nl_langinfo_l(AM_STR, locale);
        names.pm = nl_langinfo_l(PM_STR, locale);
        freelocale(locale);
    }
    names.am = RegionalSetting("s1159", names.am.c_str()).GetString();
    names.pm = RegionalSetting("s2359", names.pm.c_str()).GetString();
    return names;
}

std::string FormatPictureToken(const PictureToken& token, const SYSTEMTIME& time,
                               const CalendarNames& names) {
    const int width = token.width;
    const int month = time.wMonth >= 1 && time.wMonth <= 12 ? time.wMonth - 1 : 0;
    const int weekday = time.wDayOfWeek % 7;
    switch (token.field) {
    case PictureField::Literal:
        return token.literal;
    case PictureField::Day:
        if (width >= 4)
            return names.days[weekday];
        if (width == 3)
            return names.shortDays[weekday];
        return Padded(time.wDay, width);
    case PictureField::Month:
        if (width >= 4)
            return names.months[month];
        if (width == 3)
            return names.shortMonths[month];
        return Padded(time.wMonth, width);
    case PictureField::Year:
        if (width >= 3)
            return Padded(time.wYear, 4);
        return Padded(time.wYear % 100, width);
    case PictureField::Era:
        return "A.D.";
    case PictureField::Hour12:
        return Padded(time.wHour % 12 == 0 ? 12 : time.wHour % 12, width > 1 ? 2 : 1);
    case PictureField::Hour24:
        return Padded(time.wHour, width > 1 ? 2 : 1);
    case PictureField::Minute:
        return Padded(time.wMinute, width > 1 ? 2 : 1);
    case PictureField::Second:
        return Padded(time.wSecond, width > 1 ? 2 : 1);
    case PictureField::Marker: {
        const std::string& marker = time.wHour < 12 ? names.am : names.pm;
        return width > 1 ? marker : marker.substr(0, 1);
    }
    }
    return {};
}

CString RegionalSetting(const char* name, const char* fallback) {
    CString value;
    if (!ReadUserSetting(kInternationalKey, name, value))
        value = fallback;
    return value;
}
