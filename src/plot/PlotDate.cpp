// Breaks an automation date into the nine fields the chart's date encoding takes, through the
// platform's date conversions.

#include "plot/PlotDate.h"

#include "chart/ChartApi.h"
#include "platform/system/DateTime.h"

namespace {

constexpr int kYearBase = 1900;
constexpr int kFailedField = -1;
constexpr int kFailedDayOfWeek = -2;

// One field of the date as the system converts it, asked afresh each time.
int Field(double date, WORD SYSTEMTIME::*field, int failed) {
    SYSTEMTIME time{};
    return VariantTimeToSystemTime(date, &time) ? int(time.*field) : failed;
}

} // namespace

double ChartSerialOfAutomationDate(double date) {
    int fields[9] = {};
    fields[0] = Field(date, &SYSTEMTIME::wMonth, kFailedField);
    fields[1] = Field(date, &SYSTEMTIME::wDay, kFailedField);
    fields[2] = Field(date, &SYSTEMTIME::wYear, kFailedField) - kYearBase;
    fields[3] = Field(date, &SYSTEMTIME::wHour, kFailedField);
    fields[4] = Field(date, &SYSTEMTIME::wMinute, kFailedField);
    fields[5] = Field(date, &SYSTEMTIME::wSecond, kFailedField);
    fields[7] = Field(date, &SYSTEMTIME::wDayOfWeek, kFailedDayOfWeek);
    UDATE udate{};
    fields[8] = VarUdateFromDate(date, 0, &udate) == S_OK ? int(udate.wDayOfYear) : kFailedField;
    double serial = date;
    ChartEncodeDateTime(&serial, fields, 1);
    return serial;
}
