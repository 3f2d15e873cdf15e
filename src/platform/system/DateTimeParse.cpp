// VarDateFromStr: reads a date, a time or both as a user types them in the regional formats.
// The text is split into numbers, words and separators; numbers joined by colons, or followed
// by a time marker, make the time, and the other numbers the date, taken in the order of the
// regional short date picture.

#include "platform/system/DateTime.h"
#include "platform/system/DateTimePicture.h"

#include <cctype>
#include <string>
#include <strings.h>
#include <vector>

namespace {

// Texts longer than any date are refused before they are looked at.
constexpr size_t kLongestDateText = 256;
// Two-digit years up to this one are read in the 2000s, the others in the 1900s.
constexpr int kTwoDigitYearMax = 29;

struct Number {
    int value;
    int digits;
};

struct ParsedText {
    std::vector<Number> date; // numbers of the date, in the order written
    int monthByName = 0;      // 1 to 12 for a month written as a word
    std::vector<Number> time; // hour, minute, second
    int marker = 0;           // 1 AM, 2 PM
};

bool SameWord(const std::string& word, const std::string& name) {
    return !name.empty() && strcasecmp(word.c_str(), name.c_str()) == 0;
}

// The month a word names, in the locale's names or in English; 0 for none.
int MonthOfWord(const std::string& word, const CalendarNames& names, const CalendarNames& english) {
    for (const CalendarNames* set : {&names, &english})
        for (int i = 0; i < 12; ++i) {
            std::string shortName = set->shortMonths[i];
            if (!shortName.empty() && shortName.back() == '.')
                shortName.pop_back();
            if (SameWord(word, set->months[i]) || SameWord(word, shortName))
                return i + 1;
        }
    return 0;
}

bool IsDayName(const std::string& word, const CalendarNames& names, const CalendarNames& english) {
    for (const CalendarNames* set : {&names, &english})
        for (int i = 0; i < 7; ++i)
            if (SameWord(word, set->days[i]) || SameWord(word, set->shortDays[i]))
                return true;
    return false;
}

int MarkerOfWord(const std::string& word, const CalendarNames& names) {
    if (SameWord(word, names.am) || SameWord(word, "AM") || SameWord(word, "A"))
        return 1;
    if (SameWord(word, names.pm) || SameWord(word, "PM") || SameWord(word, "P"))
        return 2;
    return 0;
}

CalendarNames EnglishNames() {
    return {{"January", "February", "March", "April", "May", "June", "July", "August", "September",
             "October", "November", "December"},
            {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"},
            {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
            {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"},
            "AM",
            "PM"};
}

bool IsSeparator(char c) {
    return c == ' ' || c == '\t' || c == '/' || c == '.' || c == '-' || c == ',';
}

bool Split(const std::string& text, ParsedText& parsed) {
    const CalendarNames names = CurrentCalendarNames();
    const CalendarNames english = EnglishNames();
    size_t i = 0;
    while (i < text.size()) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        if (std::isdigit(c)) {
            Number number{0, 0};
            while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) {
                if (number.digits == 5)
                    return false;
                number.value = number.value * 10 + (text[i++] - '0');
                ++number.digits;
            }
            const bool inTime = (i < text.size() && text[i] == ':') ||
                                (!parsed.time.empty() && i > size_t(number.digits) &&
                                 text[i - size_t(number.digits) - 1] == ':');
            (inTime ? parsed.time : parsed.date).push_back(number);
            if (i < text.size() && text[i] == ':') {
                ++i;
                if (i >= text.size() || !std::isdigit(static_cast<unsigned char>(text[i])))
                    return false;
            }
        } else if (std::isalpha(c) || c >= 0x80) {
            std::string word;
            while (i < text.size() && (std::isalpha(static_cast<unsigned char>(text[i])) ||
                                       static_cast<unsigned char>(text[i]) >= 0x80))
                word += text[i++];
            if (const int month = MonthOfWord(word, names, english)) {
                if (parsed.monthByName != 0)
                    return false;
                parsed.monthByName = month;
            } else if (const int marker = MarkerOfWord(word, names)) {
                if (parsed.marker != 0)
                    return false;
                parsed.marker = marker;
                // "3 PM": an hour alone before its marker.
                if (parsed.time.empty() && !parsed.date.empty()) {
                    parsed.time.push_back(parsed.date.back());
                    parsed.date.pop_back();
                }
            } else if (!IsDayName(word, names, english)) {
                return false;
            }
        } else if (IsSeparator(char(c))) {
            ++i;
        } else {
            return false;
        }
    }
    return true;
}

// The order of day, month and year in the regional short date, as the letters 'd', 'M', 'y'.
std::string FieldOrder() {
    const CString picture = RegionalSetting("sShortDate", "M/d/yyyy");
    std::string order;
    for (const PictureToken& token : ParsePicture(picture)) {
        const char letter = token.field == PictureField::Day     ? 'd'
                            : token.field == PictureField::Month ? 'M'
                            : token.field == PictureField::Year  ? 'y'
                                                                 : '\0';
        if (letter != '\0' && order.find(letter) == std::string::npos)
            order += letter;
    }
    for (char letter : {'M', 'd', 'y'})
        if (order.find(letter) == std::string::npos)
            order += letter;
    return order;
}

int FullYear(const Number& year) {
    if (year.digits > 2)
        return year.value;
    return year.value <= kTwoDigitYearMax ? 2000 + year.value : 1900 + year.value;
}

bool IsYearLike(const Number& number) {
    return number.digits > 2 || number.value > 31;
}

int CurrentYear() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return now.wYear;
}

// Assigns the date's numbers to fields; false where they cannot make a date.
bool ResolveDate(const ParsedText& parsed, int& year, int& month, int& day) {
    std::string order = FieldOrder();
    std::vector<Number> numbers = parsed.date;
    if (parsed.monthByName != 0) {
        order.erase(order.find('M'), 1);
        month = parsed.monthByName;
        if (numbers.size() == 1) {
            // "March 2024" names a month of a year, "12 March" a day of this year.
            if (IsYearLike(numbers[0])) {
                year = FullYear(numbers[0]);
                day = 1;
            } else {
                year = CurrentYear();
                day = numbers[0].value;
            }
            return true;
        }
        if (numbers.size() != 2)
            return false;
        if (IsYearLike(numbers[0]) && !IsYearLike(numbers[1]))
            order = "yd";
        else if (IsYearLike(numbers[1]) && !IsYearLike(numbers[0]))
            order = "dy";
    } else {
        if (numbers.size() == 2) {
            order.erase(order.find('y'), 1);
            year = CurrentYear();
        } else if (numbers.size() != 3) {
            return false;
        } else if (numbers[0].digits > 2 && order[0] != 'y') {
            order = "yMd"; // an ISO date in any region
        }
    }
    for (size_t k = 0; k < numbers.size(); ++k) {
        if (order[k] == 'd')
            day = numbers[k].value;
        else if (order[k] == 'M')
            month = numbers[k].value;
        else
            year = FullYear(numbers[k]);
    }
    return true;
}

bool ResolveTime(const ParsedText& parsed, int& hour, int& minute, int& second) {
    if (parsed.time.size() > 3)
        return false;
    hour = parsed.time[0].value;
    minute = parsed.time.size() > 1 ? parsed.time[1].value : 0;
    second = parsed.time.size() > 2 ? parsed.time[2].value : 0;
    if (parsed.marker != 0) {
        if (hour < 1 || hour > 12)
            return false;
        hour = hour % 12 + (parsed.marker == 2 ? 12 : 0);
    }
    return true;
}

} // namespace

HRESULT VarDateFromStr(const char* text, LCID, ULONG flags, DATE* date) {
    if (text == nullptr || date == nullptr)
        return E_INVALIDARG;
    const std::string input = text;
    if (input.size() > kLongestDateText)
        return DISP_E_TYPEMISMATCH;
    ParsedText parsed;
    if (!Split(input, parsed))
        return DISP_E_TYPEMISMATCH;
    const bool hasDate = !parsed.date.empty() || parsed.monthByName != 0;
    const bool hasTime = !parsed.time.empty();
    if (!hasDate && !hasTime)
        return DISP_E_TYPEMISMATCH;
    int year = 1899, month = 12, day = 30, hour = 0, minute = 0, second = 0;
    if (hasDate && !ResolveDate(parsed, year, month, day))
        return DISP_E_TYPEMISMATCH;
    if (hasTime && !ResolveTime(parsed, hour, minute, second))
        return DISP_E_TYPEMISMATCH;
    if (flags & VAR_TIMEVALUEONLY)
        year = 1899, month = 12, day = 30;
    if (flags & VAR_DATEVALUEONLY)
        hour = minute = second = 0;
    SYSTEMTIME st{WORD(year), WORD(month), 0, WORD(day), WORD(hour), WORD(minute), WORD(second), 0};
    if (year < 0 || year > 0xFFFF || !SystemTimeToVariantTime(&st, date))
        return DISP_E_TYPEMISMATCH;
    return S_OK;
}
