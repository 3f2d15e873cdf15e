#include "chart/ChartLayout.h"

#include "chart/ChartFit.h"
#include "chart/ChartPropertyIds.h"
#include "platform/gdi/canvas/Canvas.h"

#include <algorithm>
#include <cmath>

using namespace chartprop;

namespace {

constexpr double kMargin = 10;
constexpr double kGap = 6;
constexpr double kTickLength = 5;
constexpr double kLegendSample = 26;
// Colours for curves that were given none.
constexpr int kPalette[] = {0x00B4771F, 0x000E7FFF, 0x002CA02C, 0x002827D6, 0x00BD6794,
                            0x004B568C, 0x00C277E3, 0x007F7F7F, 0x0022BDBC, 0x00CFBE17};

// The lowest and highest value seen: empty while low lies above high.
struct Extent {
    double low = HUGE_VAL, high = -HUGE_VAL;
    bool Any() const { return low <= high; }
    void Add(double v) {
        if (IsMissing(v) || !std::isfinite(v))
            return;
        low = std::min(low, v);
        high = std::max(high, v);
    }
};

// Applies a range mode: given ends stay, the others come from the data, and a range of no
// width is opened around its value.
void ResolveRange(const ChartProperties& p, int minId, int maxId, Extent data, double& low,
                  double& high, bool& lowGiven, bool& highGiven) {
    lowGiven = RangeEndGiven(p, minId);
    highGiven = RangeEndGiven(p, maxId);
    low = lowGiven ? p.Double(minId, 0) : data.Any() ? data.low : 0;
    high = highGiven ? p.Double(maxId, 1) : data.Any() ? data.high : 1;
    if (!(high > low)) {
        const double half = low == 0 ? 1 : std::fabs(low) * 0.1;
        if (!lowGiven)
            low -= half;
        if (!highGiven || !(high > low))
            high = low + 2 * half;
    }
}

double MaxLabelWidth(const Canvas& measure, const CanvasFont& font,
                     const std::vector<AxisTick>& ticks) {
    double width = 0;
    for (const AxisTick& tick : ticks)
        width = std::max(width, measure.MeasureText(font, tick.label.c_str()).width);
    return width;
}

std::vector<LegendEntry> LegendEntries(const ChartProperties& p, const ChartSeries& series) {
    std::vector<LegendEntry> entries;
    const auto& names = p.Strings(CurveNames);
    const auto curveEntry = [&](int s) {
        LegendEntry entry;
        entry.text = size_t(s) < names.size() ? names[size_t(s)] : "Curve " + std::to_string(s + 1);
        entry.colour = CurveColour(p, s);
        entry.symbol = p.IntElement(CurveSymbols, size_t(s), -1);
        entry.lineType = p.IntElement(CurveLineTypes, size_t(s), 0);
        return entry;
    };
    if (!p.Has(LegendCurves)) {
        for (int s = 0; s < series.curves; ++s) {
            LegendEntry entry = curveEntry(s);
            if (entry.text.find_first_not_of(' ') != std::string::npos)
                entries.push_back(entry);
        }
    } else {
        for (int s : p.Ints(LegendCurves)) {
            if (s < 0)
                break;
            if (s < series.curves)
                entries.push_back(curveEntry(s));
        }
    }
    const auto& texts = p.Strings(LegendTexts);
    const auto& colours = p.Ints(LegendColours);
    for (size_t i = 0; i < std::max(texts.size(), colours.size()); ++i) {
        LegendEntry entry;
        entry.text = i < texts.size() ? texts[i] : "";
        entry.colour = i < colours.size() ? colours[i] & 0xFFFFFF : 0;
        entry.symbol = p.IntElement(LegendSymbols, i, -1);
        entry.lineType = 0;
        entries.push_back(entry);
    }
    return entries;
}

} // namespace

int CurveColour(const ChartProperties& p, int curve) {
    const auto& colours = p.Ints(CurveColours);
    if (size_t(curve) < colours.size())
        return colours[size_t(curve)] & 0xFFFFFF;
    return kPalette[size_t(curve) % std::size(kPalette)];
}

bool RangeEndGiven(const ChartProperties& p, int endProperty) {
    const bool low = endProperty == XMinimum || endProperty == YMinimum;
    const int modeProperty =
        endProperty == XMinimum || endProperty == XMaximum ? XRangeMode : YRangeMode;
    const int mode = p.Int(modeProperty, RangeAuto);
    return (mode == RangeBoth || mode == (low ? RangeMinimum : RangeMaximum)) && p.Has(endProperty);
}

CanvasFont ChartFont(const ChartProperties& p, double size, bool bold) {
    CanvasFont font;
    if (!p.Text(FontName).empty())
        font.family = p.Text(FontName);
    font.size = size;
    font.bold = bold;
    return font;
}

ChartSeries SeriesOf(const ChartProperties& p) {
    ChartSeries series;
    const auto& ys = p.Doubles(YData);
    const auto& xs = p.Doubles(XData);
    const int curves = std::max(0, p.Int(CurveCount, 0));
    const int points = std::max(0, p.Int(PointCount, 0));
    if (curves == 0 || points == 0 || ys.size() < size_t(curves) * size_t(points))
        return series;
    series.curves = curves;
    series.points = points;
    series.y = ys.data();
    const int method = p.Int(PlottingMethod, MethodByCurve);
    if (method != MethodBar && xs.size() >= size_t(curves) * size_t(points))
        series.x = xs.data();
    if (series.x && p.Int(DateTimeMode, 0) == 1) {
        const double base = p.Double(DateTimeBase, 0);
        series.xOffset = base == -9999999.0 ? 0 : base;
    }
    return series;
}

ChartFrame LayoutChart(const Canvas& measure, const ChartProperties& p, int width, int height,
                       const std::optional<ChartZoom>& zoom) {
    ChartFrame f;
    f.width = width;
    f.height = height;
    const ChartSeries series = SeriesOf(p);
    const int method = p.Int(PlottingMethod, MethodByCurve);
    f.bars = method == MethodBar;
    f.dateAxis = !f.bars && p.Int(DateTimeMode, 0) == 1;
    const CanvasFont titleFont = ChartFont(p, 13, true);
    const CanvasFont subtitleFont = ChartFont(p, 10);
    const CanvasFont axisTitleFont = ChartFont(p, 10, true);
    const CanvasFont tickFont = ChartFont(p, 9);
    const CanvasFont legendFont = ChartFont(p, 9);

    // Ranges.
    const DataExtents& data =
        p.Extents(size_t(series.curves) * size_t(series.points), series.x != nullptr);
    Extent xData{data.xLow, data.xHigh}, yData{data.yLow, data.yHigh};
    if (xData.Any()) {
        xData.low += series.xOffset;
        xData.high += series.xOffset;
    }
    // A best-fit curve may run beyond its points; the axis shows all of it.
    const auto& fits = p.Doubles(FitCoefficients);
    if ((method == MethodBestFitLine || method == MethodBestFitCurve) && xData.Any() &&
        fits.size() >= size_t(series.curves) * 10) {
        for (int s = 0; s < series.curves; ++s) {
            const std::vector<double> c(fits.begin() + s * 10, fits.begin() + s * 10 + 10);
            for (int i = 0; i <= 50; ++i)
                yData.Add(EvaluatePolynomial(c, xData.low + (xData.high - xData.low) * i / 50 -
                                                    series.xOffset));
        }
    }
    if (f.bars) {
        yData.Add(0);
        xData = {-0.5, series.points - 0.5};
    } else if (!series.x && series.points > 0) {
        xData = {0, double(std::max(1, series.points - 1))};
    }
    bool xLowGiven, xHighGiven, yLowGiven, yHighGiven;
    ResolveRange(p, XMinimum, XMaximum, xData, f.xMin, f.xMax, xLowGiven, xHighGiven);
    ResolveRange(p, YMinimum, YMaximum, yData, f.yMin, f.yMax, yLowGiven, yHighGiven);
    if (zoom) {
        f.xMin = zoom->xMin, f.xMax = zoom->xMax, f.yMin = zoom->yMin, f.yMax = zoom->yMax;
        xLowGiven = xHighGiven = yLowGiven = yHighGiven = true;
    }
    if (f.bars)
        xLowGiven = xHighGiven = true;

    // Vertical budget.
    double top = kMargin;
    const std::string& title = p.Text(MainTitle);
    if (!title.empty()) {
        const auto size = measure.MeasureText(titleFont, title.c_str());
        f.title = {(width - size.width) / 2, top, (width + size.width) / 2, top + size.height};
        top = f.title.bottom + 2;
    }
    const std::string& subtitle = p.Text(SubTitle);
    if (!subtitle.empty()) {
        const auto size = measure.MeasureText(subtitleFont, subtitle.c_str());
        f.subtitle = {(width - size.width) / 2, top, (width + size.width) / 2, top + size.height};
        top = f.subtitle.bottom;
    }
    if (!title.empty() || !subtitle.empty())
        top += kGap + 2;

    f.legendEntries = LegendEntries(p, series);
    const int location = p.Int(LegendLocation, 1);
    f.legendVertical = location == 2 || location == 3;
    f.legendRowHeight = measure.MeasureText(legendFont, "Ag").height + 4;
    std::vector<double> entryWidths;
    for (const LegendEntry& entry : f.legendEntries)
        entryWidths.push_back(kLegendSample + 6 +
                              measure.MeasureText(legendFont, entry.text.c_str()).width);
    double legendWidth = 0, legendHeight = 0;
    if (!f.legendEntries.empty()) {
        if (f.legendVertical) {
            legendWidth = *std::max_element(entryWidths.begin(), entryWidths.end()) + 12;
            legendHeight = f.legendEntries.size() * f.legendRowHeight + 8;
        } else {
            // Rows of entries, centred, wrapped at the chart's width.
            const double available = width - 2 * kMargin;
            double rowWidth = 0;
            int rows = 1;
            for (double w : entryWidths) {
                if (rowWidth > 0 && rowWidth + w > available) {
                    ++rows;
                    rowWidth = 0;
                }
                rowWidth += w + 18;
            }
            legendWidth = available;
            legendHeight = rows * f.legendRowHeight + 8;
        }
    }
    if (!f.legendEntries.empty() && location == 0) {
        f.legend = {kMargin, top, width - kMargin, top + legendHeight};
        top = f.legend.bottom + kGap;
    }

    double bottom = height - kMargin;
    if (!f.legendEntries.empty() && location == 1) {
        f.legend = {kMargin, bottom - legendHeight, width - kMargin, bottom};
        bottom = f.legend.top - kGap;
    }
    const std::string& xTitle = p.Text(XAxisTitle);
    if (!xTitle.empty()) {
        const auto size = measure.MeasureText(axisTitleFont, xTitle.c_str());
        f.xTitle = {0, bottom - size.height, size.width, bottom};
        bottom = f.xTitle.top - kGap;
    }
    const double tickLineHeight = measure.MeasureText(tickFont, "0").height;
    const bool twoLineLabels = f.dateAxis && p.Int(DateLabelStyle, 0) == 8;
    bottom -= tickLineHeight * (twoLineLabels ? 2 : 1) + kTickLength + 3;
    const double plotTop = top + tickLineHeight / 2;

    // Y ticks, then the left edge from the widest label.
    const int ySteps = std::max(2, int((bottom - plotTop) / 42));
    const double yStep = NiceStep(f.yMax - f.yMin, ySteps);
    if (!yLowGiven)
        f.yMin = std::floor(f.yMin / yStep + 1e-9) * yStep;
    if (!yHighGiven)
        f.yMax = std::ceil(f.yMax / yStep - 1e-9) * yStep;
    if (!(f.yMax > f.yMin))
        f.yMax = f.yMin + yStep;
    f.yTicks = NumericTicks(f.yMin, f.yMax, NiceStep(f.yMax - f.yMin, ySteps));
    double left = kMargin;
    const std::string& yTitle = p.Text(YAxisTitle);
    if (!yTitle.empty()) {
        const auto size = measure.MeasureText(axisTitleFont, yTitle.c_str());
        f.yTitle = {left, 0, left + size.height, size.width};
        left = f.yTitle.right + kGap;
    }
    if (!f.legendEntries.empty() && location == 2) {
        f.legend = {left, 0, left + legendWidth, legendHeight};
        left = f.legend.right + kGap;
    }
    left += MaxLabelWidth(measure, tickFont, f.yTicks) + kTickLength + 4;
    double right = width - kMargin - 14; // room for half the last X label
    if (!f.legendEntries.empty() && location == 3) {
        f.legend = {right - legendWidth + 14, 0, right + 14, legendHeight};
        right = f.legend.left - kGap - 14;
    }
    f.plot = {std::floor(left) + 0.5, std::floor(plotTop) + 0.5, std::floor(right) + 0.5,
              std::floor(bottom) + 0.5};
    if (f.plot.Width() < 10)
        f.plot.right = f.plot.left + 10;
    if (f.plot.Height() < 10)
        f.plot.bottom = f.plot.top + 10;

    // X ticks: labels must not touch, so the step follows from the widest label.
    if (f.bars) {
        const auto& labels = p.Strings(PointLabels);
        std::vector<AxisTick> all;
        for (int pt = 0; pt < series.points; ++pt) {
            const std::string label = size_t(pt) < labels.size() && !labels[size_t(pt)].empty()
                                          ? labels[size_t(pt)]
                                          : std::to_string(pt + 1);
            all.push_back({double(pt), label});
        }
        const double widest = MaxLabelWidth(measure, tickFont, all) + 10;
        const double perCategory = f.plot.Width() / std::max(1, series.points);
        const size_t every = size_t(std::max(1.0, std::ceil(widest / perCategory)));
        for (size_t i = 0; i < all.size(); i += every)
            f.xTicks.push_back(all[i]);
    } else if (f.dateAxis) {
        const double span = f.xMax - f.xMin;
        const double sample = measure.MeasureText(tickFont, "30 Sep 2000").width + 24;
        const double spacing = std::max(double(p.Int(DateTickSpacing, 0)), sample);
        f.xTicks =
            DateTicks(f.xMin, f.xMax, f.plot.Width() / span, spacing, p.Int(DateLabelStyle, 0));
    } else {
        const double unit = p.Int(IntegerXTicks, 0) == 1 ? p.Double(XTickUnit, 1.0) : 0;
        int steps = std::max(2, int(f.plot.Width() / 80));
        for (int attempt = 0; attempt < 4; ++attempt) {
            const double step = NiceStep(f.xMax - f.xMin, steps, unit);
            double low = f.xMin, high = f.xMax;
            if (!xLowGiven)
                low = std::floor(low / step + 1e-9) * step;
            if (!xHighGiven)
                high = std::ceil(high / step - 1e-9) * step;
            auto ticks = NumericTicks(low, high, step);
            const double widest = MaxLabelWidth(measure, tickFont, ticks) + 16;
            const double spacing = f.plot.Width() * step / (high - low);
            if (spacing >= widest || steps == 2 || attempt == 3) {
                f.xMin = low;
                f.xMax = high;
                f.xTicks = std::move(ticks);
                break;
            }
            steps = std::max(2, int(f.plot.Width() / widest));
        }
    }

    // Centre the axis titles on the plot area.
    if (!xTitle.empty()) {
        const double w = f.xTitle.Width();
        const double cx = (f.plot.left + f.plot.right) / 2;
        f.xTitle.left = cx - w / 2;
        f.xTitle.right = cx + w / 2;
    }
    if (!yTitle.empty()) {
        const double h = f.yTitle.bottom;
        const double cy = (f.plot.top + f.plot.bottom) / 2;
        f.yTitle.top = cy - h / 2;
        f.yTitle.bottom = cy + h / 2;
    }
    if (f.legendVertical && !f.legendEntries.empty()) {
        const double cy = (f.plot.top + f.plot.bottom) / 2;
        f.legend.top = std::max(f.plot.top, cy - legendHeight / 2);
        f.legend.bottom = f.legend.top + legendHeight;
    }
    if (!f.legendVertical && !f.legendEntries.empty()) {
        // Lay out the entries of each row centred.
        const double available = f.legend.Width();
        std::vector<double> rowStart;
        double rowWidth = 0;
        size_t rowFirst = 0;
        const auto closeRow = [&](size_t end) {
            double x = f.legend.left + (available - (rowWidth - 18)) / 2;
            for (size_t i = rowFirst; i < end; ++i) {
                f.legendColumnX.push_back(x);
                x += entryWidths[i] + 18;
            }
        };
        for (size_t i = 0; i < entryWidths.size(); ++i) {
            if (rowWidth > 0 && rowWidth + entryWidths[i] > available) {
                closeRow(i);
                rowFirst = i;
                rowWidth = 0;
            }
            rowWidth += entryWidths[i] + 18;
        }
        closeRow(entryWidths.size());
    }
    return f;
}
