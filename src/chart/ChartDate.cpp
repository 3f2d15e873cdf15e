#include "chart/ChartDate.h"

#include "platform/system/DateTime.h"

#include <cmath>

// The calendar is the platform's. Serials before 1899-12-30 run straight on through it (the
// fraction is added to a negative day, not taken from it as automation dates do), so that an
// axis measures time by plain subtraction.

long long ChartDayNumber(int year, int month, int day) {
    return DayNumberFromDate(year, month, day);
}

bool EncodeChartDate(const ChartDateFields& f, double* serial) {
    if (!serial || f.year < 100 || f.year > 9999 || f.month < 1 || f.month > 12 || f.day < 1 ||
        f.day > DaysInMonth(f.year, f.month) || f.hour < 0 || f.hour > 23 || f.minute < 0 ||
        f.minute > 59 || f.second < 0 || f.second > 59)
        return false;
    const double seconds = f.hour * 3600.0 + f.minute * 60.0 + f.second;
    *serial = double(ChartDayNumber(f.year, f.month, f.day)) + seconds / 86400.0;
    return true;
}

ChartDateFields DecodeChartDate(double serial) {
    ChartDateFields fields;
    if (!std::isfinite(serial) || std::fabs(serial) > 3.0e6)
        return fields;
    // Round to the second first, so that 23:59:59.9999 becomes the next day's midnight.
    const long long totalSeconds = std::llround(serial * 86400.0);
    long long days = totalSeconds / 86400;
    long long seconds = totalSeconds % 86400;
    if (seconds < 0) {
        seconds += 86400;
        --days;
    }
    DateFromDayNumber(days, fields.year, fields.month, fields.day);
    fields.hour = int(seconds / 3600);
    fields.minute = int(seconds / 60 % 60);
    fields.second = int(seconds % 60);
    return fields;
}
