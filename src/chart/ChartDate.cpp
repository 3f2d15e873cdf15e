#include "chart/ChartDate.h"

#include <cmath>

namespace {

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

const long long kSerialEpoch = DaysFromCivil(1899, 12, 30);

int DaysInMonth(int year, int month) {
    static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : days[month - 1];
}

} // namespace

long long ChartDayNumber(int year, int month, int day) {
    return DaysFromCivil(year, unsigned(month), unsigned(day)) - kSerialEpoch;
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
    CivilFromDays(days + kSerialEpoch, fields.year, fields.month, fields.day);
    fields.hour = int(seconds / 3600);
    fields.minute = int(seconds / 60 % 60);
    fields.second = int(seconds % 60);
    return fields;
}
