#pragma once

// Where an axis puts its ticks and what it writes at them: steps of 1, 2 or 5 times a power of
// ten for numbers, whole calendar units for dates and times.

#include "platform/base/Export.h"

#include <string>
#include <vector>

struct AxisTick {
    double value = 0;
    std::string label; // may hold a line break (date over time)
};

// The smallest step of 1, 2 or 5 times a power of ten that divides `span` into at most
// `maxSteps` steps; a multiple of `unit` when `unit` is positive.
ORVA_API double NiceStep(double span, int maxSteps, double unit = 0);
ORVA_API std::vector<AxisTick> NumericTicks(double minimum, double maximum, double step);
ORVA_API std::string FormatTickValue(double value, double step);

// Ticks at whole calendar units from `minimum` to `maximum` (serials), choosing the finest unit
// whose ticks lie at least `minSpacing` pixels apart; `style` 8 puts the time under the date.
ORVA_API std::vector<AxisTick> DateTicks(double minimum, double maximum, double pixelsPerDay,
                                         double minSpacing, int style);
