#pragma once

// The pieces of a date or time picture ("d.M.yyyy", "h':'mm' 'tt"): fields named by runs of
// one letter and the literal text between them, with the regional names and pictures the
// fields are written with. GetDateFormat, GetTimeFormat, the parser of dates and the
// date-and-time picker share them.

#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/system/DateTime.h"

#include <string>
#include <vector>

enum class PictureField { Literal, Day, Month, Year, Era, Hour12, Hour24, Minute, Second, Marker };

struct PictureToken {
    PictureField field = PictureField::Literal;
    int width = 0;       // how many letters named the field ("MMM" is 3)
    std::string literal; // the text of a literal
};

// Splits a picture. Letters outside quotes name fields (those that name none are literal
// text); '...' quotes literal text, '' is a quote, and a quote left open runs to the end.
ORVA_API std::vector<PictureToken> ParsePicture(const char* picture);
ORVA_API bool IsDateField(PictureField field);
ORVA_API bool IsTimeField(PictureField field);

// Month and day names and the time markers, from the LC_TIME locale or in English.
struct CalendarNames {
    std::string months[12];
    std::string shortMonths[12];
    std::string days[7]; // Sunday first
    std::string shortDays[7];
    std::string am;
    std::string pm;
};
ORVA_API CalendarNames CurrentCalendarNames();

// The text of one token for a time; a literal gives its text.
ORVA_API std::string FormatPictureToken(const PictureToken& token, const SYSTEMTIME& time,
                                        const CalendarNames& names);

// A value of "Control Panel\International", or the fallback where the store has none.
ORVA_API CString RegionalSetting(const char* name, const char* fallback);
