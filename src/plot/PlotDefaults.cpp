// The chart settings every plot starts with, and those of a small preview.

#include "plot/Plot.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"

namespace {

// Property and value, in the order they are set: later settings may depend on earlier ones.
constexpr int kDefaults[][2] = {
    {2932, 0}, {2170, 1}, {2155, 1}, {2921, 1},  {2180, 0}, {2431, 7}, {3057, 0}, {3210, 1},
    {2622, 1}, {3282, 3}, {3016, 1}, {3017, 1},  {2928, 1}, {3066, 1}, {2632, 0}, {2240, 0},
    {3652, 1}, {3069, 1}, {3269, 0}, {3090, 17}, {2185, 1}, {2617, 3}, {3083, 1}, {3083, 1},
    {3200, 0}, {2621, 0}, {2620, 0}, {3615, 0},  {3050, 0}, {2938, 1},
};

constexpr int kPreviewDefaults[][2] = {
    {2617, 0}, {3210, 0}, {2622, 0}, {3100, 3}, {2185, 0},
};

} // namespace

int EPlot::SetPlotDefaults() {
    if (!m_hwnd)
        return 0;
    LoadDisplayDefaults();
    for (const auto& [property, value] : kDefaults)
        ChartSetInt(m_hwnd, property, value);
    SetMainTitle("");
    SetSubTitle("");
    SetXAxisTitle("");
    SetYAxisTitle("");
    return 1;
}

void EPlot::SetUpPreviewPlot() {
    for (const auto& [property, value] : kPreviewDefaults)
        ChartSetInt(m_hwnd, property, value);
    ChartSetString(m_hwnd, chartprop::FontName, "Arial");
    ChartSetInt(m_hwnd, 2435, 0);
    ChartSetInt(m_hwnd, 2621, 0);
}
