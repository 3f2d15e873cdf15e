#pragma once

// The chart's date-and-time serial: days since 30 December 1899, the time of day as the
// fraction, so that serials and the platform's automation dates are the same numbers.

#include "platform/base/Export.h"

struct ChartDateFields {
    int year = 1899;
    int month = 12; // 1 to 12
    int day = 30;   // 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;
};

// False, with `serial` untouched, for fields that name no real date or time.
ORVA_API bool EncodeChartDate(const ChartDateFields& fields, double* serial);
ORVA_API ChartDateFields DecodeChartDate(double serial);
// Days from the serial's day zero to the first of a month, for calendar arithmetic.
long long ChartDayNumber(int year, int month, int day);
