#include "chart/ChartTicks.h"

#include "chart/ChartDate.h"

#include <cmath>
#include <cstdio>

double NiceStep(double span, int maxSteps, double unit) {
    if (!(span > 0) || !std::isfinite(span) || maxSteps < 1)
        return 1.0;
    const double rough = span / maxSteps;
    double magnitude = std::pow(10.0, std::floor(std::log10(rough)));
    double step = magnitude * 10;
    for (double factor : {1.0, 2.0, 5.0, 10.0}) {
        if (magnitude * factor >= rough * (1 - 1e-9)) {
            step = magnitude * factor;
            break;
        }
    }
    if (unit > 0)
        step = std::max(unit, std::ceil(step / unit - 1e-9) * unit);
    return step;
}

std::string FormatTickValue(double value, double step) {
    if (std::fabs(value) < step * 1e-6)
        value = 0; // no "-0" or "1e-17" at the origin
    const double magnitude = std::max(std::fabs(value), step);
    char text[64];
    if (magnitude >= 1e7 || magnitude < 1e-4) {
        std::snprintf(text, sizeof text, "%.3g", value);
    } else {
        const int decimals = std::max(0, int(std::ceil(-std::log10(step) - 1e-9)));
        std::snprintf(text, sizeof text, "%.*f", std::min(decimals, 9), value);
    }
    return text;
}

std::vector<AxisTick> NumericTicks(double minimum, double maximum, double step) {
    std::vector<AxisTick> ticks;
    if (!(step > 0) || !(maximum >= minimum) || (maximum - minimum) / step > 1000)
        return ticks;
    const double first = std::ceil(minimum / step - 1e-9);
    for (double i = first;; ++i) {
        const double value = i * step;
        if (value > maximum + step * 1e-9)
            break;
        ticks.push_back({value, FormatTickValue(value, step)});
    }
    return ticks;
}

namespace {

enum class Unit { Second, Minute, Hour, Day, Month, Year };

struct DateStep {
    Unit unit;
    int count;
    double days; // approximate length, for choosing
};

const DateStep kDateSteps[] = {
    {Unit::Second, 1, 1 / 86400.0},
    {Unit::Second, 5, 5 / 86400.0},
    {Unit::Second, 15, 15 / 86400.0},
    {Unit::Second, 30, 30 / 86400.0},
    {Unit::Minute, 1, 1 / 1440.0},
    {Unit::Minute, 5, 5 / 1440.0},
    {Unit::Minute, 15, 15 / 1440.0},
    {Unit::Minute, 30, 30 / 1440.0},
    {Unit::Hour, 1, 1 / 24.0},
    {Unit::Hour, 3, 3 / 24.0},
    {Unit::Hour, 6, 6 / 24.0},
    {Unit::Hour, 12, 12 / 24.0},
    {Unit::Day, 1, 1},
    {Unit::Day, 2, 2},
    {Unit::Day, 7, 7},
    {Unit::Month, 1, 30.4},
    {Unit::Month, 3, 91.3},
    {Unit::Month, 6, 182.6},
    {Unit::Year, 1, 365.25},
    {Unit::Year, 2, 730.5},
    {Unit::Year, 5, 1826},
    {Unit::Year, 10, 3652},
    {Unit::Year, 50, 18262},
    {Unit::Year, 100, 36525},
};

const char* const kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                               "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string DateLabel(double serial, const DateStep& step, int style) {
    const ChartDateFields f = DecodeChartDate(serial);
    char text[64];
    switch (step.unit) {
    case Unit::Year:
        std::snprintf(text, sizeof text, "%d", f.year);
        break;
    case Unit::Month:
        std::snprintf(text, sizeof text, "%s %d", kMonths[f.month - 1], f.year);
        break;
    case Unit::Day:
        std::snprintf(text, sizeof text, "%d %s %d", f.day, kMonths[f.month - 1], f.year);
        break;
    default: {
        char time[16];
        if (step.unit == Unit::Second)
            std::snprintf(time, sizeof time, "%02d:%02d:%02d", f.hour, f.minute, f.second);
        else
            std::snprintf(time, sizeof time, "%02d:%02d", f.hour, f.minute);
        // A time alone would lose the day: midnight ticks name the date instead.
        if (style == 8)
            std::snprintf(text, sizeof text, "%d %s %d\n%s", f.day, kMonths[f.month - 1], f.year,
                          time);
        else if (f.hour == 0 && f.minute == 0 && f.second == 0)
            std::snprintf(text, sizeof text, "%d %s %d", f.day, kMonths[f.month - 1], f.year);
        else
            std::snprintf(text, sizeof text, "%s", time);
    }
    }
    return text;
}

// The first tick at or after `minimum` that falls on a whole multiple of the step.
double FirstDateTick(double minimum, const DateStep& step) {
    if (step.unit == Unit::Month || step.unit == Unit::Year) {
        const ChartDateFields f = DecodeChartDate(minimum);
        int year = f.year;
        int month = step.unit == Unit::Year ? 1 : ((f.month - 1) / step.count) * step.count + 1;
        if (step.unit == Unit::Year)
            year = (year / step.count) * step.count;
        double serial = double(ChartDayNumber(year, month, 1));
        while (serial < minimum - 1e-9) {
            if (step.unit == Unit::Year) {
                year += step.count;
            } else {
                month += step.count;
                while (month > 12) {
                    month -= 12;
                    ++year;
                }
            }
            serial = double(ChartDayNumber(year, month, 1));
        }
        return serial;
    }
    const double stepDays = step.unit == Unit::Day ? step.count : step.days;
    // Weeks start on Mondays; serial 2 is Monday 1 January 1900.
    const double origin = step.unit == Unit::Day && step.count == 7 ? 2.0 : 0.0;
    return origin + std::ceil((minimum - origin) / stepDays - 1e-7) * stepDays;
}

double NextDateTick(double serial, const DateStep& step) {
    if (step.unit != Unit::Month && step.unit != Unit::Year)
        return serial + (step.unit == Unit::Day ? step.count : step.days);
    const ChartDateFields f = DecodeChartDate(serial);
    int year = f.year + (step.unit == Unit::Year ? step.count : 0);
    int month = f.month + (step.unit == Unit::Month ? step.count : 0);
    while (month > 12) {
        month -= 12;
        ++year;
    }
    return double(ChartDayNumber(year, month, 1));
}

} // namespace

std::vector<AxisTick> DateTicks(double minimum, double maximum, double pixelsPerDay,
                                double minSpacing, int style) {
    std::vector<AxisTick> ticks;
    if (!(maximum > minimum) || !(pixelsPerDay > 0) || !std::isfinite(maximum - minimum))
        return ticks;
    const DateStep* chosen = &kDateSteps[std::size(kDateSteps) - 1];
    for (const DateStep& step : kDateSteps) {
        if (step.days * pixelsPerDay >= minSpacing) {
            chosen = &step;
            break;
        }
    }
    if ((maximum - minimum) / chosen->days > 1000)
        return ticks;
    for (double serial = FirstDateTick(minimum, *chosen); serial <= maximum + 1e-9;
         serial = NextDateTick(serial, *chosen))
        ticks.push_back({serial, DateLabel(serial, *chosen, style)});
    return ticks;
}
