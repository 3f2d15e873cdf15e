// Breaks an automation date into the nine fields the chart's date encoding takes.
// The calendar arithmetic is the chart's own (ChartDate.h) until the platform offers the
// system's date conversions.

#include "plot/PlotDate.h"

#include "chart/ChartApi.h"
#include "chart/ChartDate.h"

#include <cmath>

namespace {

constexpr int kYearBase = 1900;
constexpr int kSaturday = 6; // day zero, 1899-12-30, was a Saturday; Sunday is 0

bool IsLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DayOfYear(int year, int month, int day) {
    static constexpr int kDaysBefore[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    if (month < 1 || month > 12)
        return -1;
    return kDaysBefore[month - 1] + day + (month > 2 && IsLeapYear(year) ? 1 : 0);
}

} // namespace

double ChartSerialOfAutomationDate(double date) {
    const ChartDateFields parts = DecodeChartDate(date);
    const long long dayNumber = static_cast<long long>(std::floor(date));
    int fields[9] = {};
    fields[0] = parts.month;
    fields[1] = parts.day;
    fields[2] = parts.year - kYearBase;
    fields[3] = parts.hour;
    fields[4] = parts.minute;
    fields[5] = parts.second;
    fields[7] = int(((dayNumber % 7) + 7 + kSaturday) % 7);
    fields[8] = DayOfYear(parts.year, parts.month, parts.day);
    double serial = date;
    ChartEncodeDateTime(&serial, fields, 1);
    return serial;
}
