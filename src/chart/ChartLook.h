#pragma once

// What the customize dialog shows and changes of a chart: its titles, both axes, each curve's
// colour, symbol and line, and the legend's place. Read from the chart's properties, and
// written back to them as the chart operations write them. Internal to the chart library.

#include "platform/base/WinTypes.h"

#include <string>
#include <vector>

struct ChartAxisLook {
    int rangeMode = 0; // RangeAuto .. RangeBoth
    double minimum = 0;
    double maximum = 1;
    bool grid = true;
    bool UsesMinimum() const;
    bool UsesMaximum() const;
};

struct ChartCurveLook {
    std::string name;
    int colour = 0;   // 0x00BBGGRR
    int symbol = -1;  // -1 leaves it to the plotting method
    int lineType = 0; // solid, dashed, dotted, dash-dot, thick, none
};

struct ChartLook {
    std::string mainTitle, xTitle, yTitle;
    ChartAxisLook x, y;
    std::vector<ChartCurveLook> curves;
    int legendLocation = 1; // top, bottom, left, right

    // The limits of an axis in automatic range are the ones the chart shows now, so that
    // fixing a range starts from what the user sees. An empty look for a window that is no
    // chart.
    static ChartLook Read(HWND chart);
    // Writes each setting that differs from `before` to the chart's properties; a fixed limit
    // is written whenever its axis changed, since the limit shown may not have been stored.
    void WriteChanges(HWND chart, const ChartLook& before) const;
};
