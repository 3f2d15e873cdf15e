#pragma once

// Where everything of a chart goes at a given size: the plot area, the axis ranges and ticks,
// the titles and the legend. Rendering, hot spots and pixel conversion all read one frame.

#include "chart/ChartProperties.h"
#include "chart/ChartTicks.h"

#include <optional>
#include <string>
#include <vector>

class Canvas;
struct CanvasFont;

struct ChartBox {
    double left = 0, top = 0, right = 0, bottom = 0;
    bool Contains(double x, double y) const {
        return x >= left && x <= right && y >= top && y <= bottom;
    }
    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
};

// The data as the properties hold them: curve s, point p at flat index s * points + p.
struct ChartSeries {
    int curves = 0;
    int points = 0;
    const double* x = nullptr; // null: bar data, X is the point's position
    const double* y = nullptr;
    double xOffset = 0; // the date-and-time base
    double X(int s, int p) const { return x ? x[size_t(s) * points + p] + xOffset : p; }
    double Y(int s, int p) const { return y[size_t(s) * points + p]; }
};
ChartSeries SeriesOf(const ChartProperties& properties);
inline bool IsMissing(double value) {
    return value == -9999.0;
}

struct LegendEntry {
    std::string text;
    int colour = 0;
    int symbol = -1;
    int lineType = 0;
};

struct ChartZoom {
    double xMin, xMax, yMin, yMax;
};

struct ChartFrame {
    int width = 0;
    int height = 0;
    ChartBox plot;
    double xMin = 0, xMax = 1, yMin = 0, yMax = 1;
    bool dateAxis = false;
    bool bars = false;
    std::vector<AxisTick> xTicks, yTicks;
    ChartBox title, subtitle, xTitle, yTitle, legend;
    std::vector<LegendEntry> legendEntries;
    bool legendVertical = false;
    double legendRowHeight = 0;
    std::vector<double> legendColumnX; // the left of each entry in a horizontal legend

    double XToPixel(double x) const {
        return plot.left + (x - xMin) / (xMax - xMin) * plot.Width();
    }
    double YToPixel(double y) const {
        return plot.bottom - (y - yMin) / (yMax - yMin) * plot.Height();
    }
    double PixelToX(double px) const {
        return xMin + (px - plot.left) / plot.Width() * (xMax - xMin);
    }
    double PixelToY(double py) const {
        return yMin + (plot.bottom - py) / plot.Height() * (yMax - yMin);
    }
};

// Whether an end of an axis range (XMinimum, XMaximum, YMinimum or YMaximum) is the property's
// value under its axis's range mode, rather than the end the chart lays out for its data.
bool RangeEndGiven(const ChartProperties& properties, int endProperty);
ORVA_API CanvasFont ChartFont(const ChartProperties& properties, double size, bool bold = false);
ChartFrame LayoutChart(const Canvas& measure, const ChartProperties& properties, int width,
                       int height, const std::optional<ChartZoom>& zoom);
int CurveColour(const ChartProperties& properties, int curve);
