#include "chart/ChartRenderer.h"

#include "chart/ChartFit.h"
#include "chart/ChartPropertyIds.h"
#include "platform/gdi/canvas/Canvas.h"

#include <algorithm>
#include <cmath>

using namespace chartprop;

namespace {

constexpr COLORREF kText = RGB(0x20, 0x20, 0x20);
constexpr COLORREF kAxis = RGB(0x40, 0x40, 0x40);
constexpr COLORREF kGrid = RGB(0xE3, 0xE3, 0xE3);
constexpr COLORREF kFrame = RGB(0xB0, 0xB0, 0xB0);

enum Symbol { None = 0, Dot, Circle, FilledSquare, Square, FilledTriangle, Triangle, Plus, Cross };

std::vector<double> DashesOf(int lineType) {
    switch (lineType) {
    case 1:
        return {6, 4};
    case 2:
        return {1.5, 3};
    case 3:
        return {7, 3, 1.5, 3};
    default:
        return {};
    }
}

void DrawSymbol(Canvas& canvas, int symbol, double x, double y, COLORREF colour) {
    const double r = 3.2;
    switch (symbol) {
    case Dot:
        canvas.FillCircle(x, y, r, colour);
        break;
    case Circle:
        canvas.FillCircle(x, y, r, RGB(255, 255, 255));
        canvas.StrokeCircle(x, y, r, colour, 1.3);
        break;
    case FilledSquare:
        canvas.FillRect(x - r, y - r, 2 * r, 2 * r, colour);
        break;
    case Square:
        canvas.FillRect(x - r, y - r, 2 * r, 2 * r, RGB(255, 255, 255));
        canvas.StrokeRect(x - r, y - r, 2 * r, 2 * r, colour, 1.3);
        break;
    case FilledTriangle:
    case Triangle: {
        const double xy[] = {x,           y - r * 1.2, x + r * 1.1, y + r * 0.8,
                             x - r * 1.1, y + r * 0.8, x,           y - r * 1.2};
        if (symbol == FilledTriangle)
            canvas.FillPolygon(xy, 3, colour);
        else
            canvas.Polyline(xy, 4, colour, 1.3);
        break;
    }
    case Plus:
        canvas.Line(x - r, y, x + r, y, colour, 1.5);
        canvas.Line(x, y - r, x, y + r, colour, 1.5);
        break;
    case Cross:
        canvas.Line(x - r, y - r, x + r, y + r, colour, 1.5);
        canvas.Line(x - r, y + r, x + r, y - r, colour, 1.5);
        break;
    default:
        break;
    }
}

// Strokes one curve, broken at missing values. Where more points than pixel columns fall on a
// monotonic X, each column becomes a bar of the line's width from its lowest to its highest
// point, stretched to the last point of the column before it, which joins the two as the line
// would. The picture is the same, and cairo fills a thousand rectangles instead of stroking a
// million-point zigzag. Columns further apart are joined by segments.
constexpr long kLastColumn = 99999; // pixels beyond are clamped

void DrawCurveLine(Canvas& canvas, const ChartFrame& f, const ChartSeries& series, int s,
                   COLORREF colour, double width, const std::vector<double>& dashes) {
    const size_t first = size_t(s) * size_t(series.points);
    const double* ys = series.y + first;
    const double* xs = series.x ? series.x + first : nullptr;
    const double xScale = f.plot.Width() / (f.xMax - f.xMin);
    const double yScale = f.plot.Height() / (f.yMax - f.yMin);
    const double xShift = f.plot.left + (series.xOffset - f.xMin) * xScale;
    const double yShift = f.plot.bottom + f.yMin * yScale;
    const auto toPixelY = [&](double y) { return std::clamp(yShift - y * yScale, -1e5, 1e5); };
    const bool finiteScales = std::isfinite(xScale) && std::isfinite(yScale) && yScale != 0 &&
                              std::isfinite(xShift) && std::isfinite(yShift);
    std::vector<double> path, bars, joins;
    const auto flush = [&] {
        if (path.size() >= 4)
            canvas.Polyline(path.data(), path.size() / 2, colour, width, dashes);
        path.clear();
    };

    // One pass; a decimating pass gives up, and the curve is drawn in full, as soon as X goes
    // backwards.
    const auto draw = [&](bool decimate) {
        bool open = false;
        bool joined = false; // a previous column to join to
        long column = 0;
        double columnX = 0, lastY = 0, lowY = 0, highY = 0, previousX = 0, previousY = 0;
        double previousData = -1e308;
        const auto closeColumn = [&] {
            if (!open)
                return;
            bars.insert(bars.end(),
                        {columnX - width / 2, lowY - width / 2, width, highY - lowY + width});
            previousX = columnX;
            previousY = lastY;
            joined = true;
            open = false;
        };
        for (int p = 0; p < series.points; ++p) {
            const double y = ys[p];
            const double x = xs ? xs[p] : double(p);
            const double px = std::clamp(xShift + x * xScale, -1e5, 1e5);
            const double py = toPixelY(y);
            if (IsMissing(y) || IsMissing(x) || px != px || py != py) {
                closeColumn();
                joined = false;
                flush();
                continue;
            }
            if (!decimate) {
                path.push_back(px);
                path.push_back(py);
                continue;
            }
            if (x < previousData)
                return false;
            previousData = x;
            const long c = long(px);
            if (!open || c != column) {
                const long previousColumn = column;
                closeColumn();
                column = c;
                columnX = px;
                lowY = highY = lastY = py;
                if (joined && c - previousColumn <= 1) {
                    lowY = std::min(lowY, previousY);
                    highY = std::max(highY, previousY);
                } else if (joined) {
                    joins.insert(joins.end(), {previousX, previousY, px, py});
                }
                open = true;
            } else {
                lastY = py;
                lowY = std::min(lowY, py);
                highY = std::max(highY, py);
            }
            // The points after this one in the same column need only their lowest, highest
            // and last Y: in data units, turned into pixels once. Anything else (a missing
            // value, X going back, the next column) is left to the step above.
            // With X going forward the column's pixels only grow: a point is in it while they
            // stay short of the next column (which also turns away NaN). Columns left of the
            // plot, where the conversion rounds towards zero, and at the clamp take the step
            // above.
            if (!finiteScales || !(xScale > 0) || column < 0 || column >= kLastColumn)
                continue;
            const double nextColumn = double(column + 1);
            double yLow = y, yHigh = y;
            int q = p + 1;
            for (; q < series.points; ++q) {
                const double nextY = ys[q];
                const double nextX = xs ? xs[q] : double(q);
                if (IsMissing(nextY) || IsMissing(nextX) || nextY != nextY ||
                    !(nextX >= previousData) || !(xShift + nextX * xScale < nextColumn))
                    break;
                previousData = nextX;
                yLow = std::min(yLow, nextY);
                yHigh = std::max(yHigh, nextY);
            }
            if (q == p + 1)
                continue;
            lastY = toPixelY(ys[q - 1]);
            const double a = toPixelY(yLow), b = toPixelY(yHigh);
            lowY = std::min({lowY, a, b});
            highY = std::max({highY, a, b});
            p = q - 1;
        }
        closeColumn();
        flush();
        return true;
    };
    const bool dense = dashes.empty() && series.points > 2 * f.plot.Width();
    if (!dense || !draw(true)) {
        path.clear();
        bars.clear();
        joins.clear();
        draw(false);
    }
    if (!joins.empty())
        canvas.StrokeSegments(joins.data(), joins.size() / 4, colour, width);
    if (!bars.empty())
        canvas.FillRects(bars.data(), bars.size() / 4, colour);
}

void DrawBars(Canvas& canvas, const ChartFrame& f, const ChartProperties& p,
              const ChartSeries& series) {
    const double category = f.plot.Width() / std::max(1, series.points);
    const double group = category * 0.78;
    const double bar = group / std::max(1, series.curves);
    const double zero = f.YToPixel(std::clamp(0.0, f.yMin, f.yMax));
    for (int s = 0; s < series.curves; ++s) {
        const COLORREF colour = COLORREF(CurveColour(p, s));
        for (int pt = 0; pt < series.points; ++pt) {
            const double y = series.Y(s, pt);
            if (IsMissing(y))
                continue;
            const double left = f.XToPixel(pt) - group / 2 + s * bar;
            const double top = std::min(zero, f.YToPixel(y));
            const double height = std::fabs(f.YToPixel(y) - zero);
            canvas.FillRect(left + 0.5, top, std::max(1.0, bar - 1), height, colour);
        }
    }
}

void DrawFit(Canvas& canvas, const ChartFrame& f, const ChartProperties& p,
             const ChartSeries& series, int s, COLORREF colour) {
    const auto& all = p.Doubles(FitCoefficients);
    if (all.size() < size_t(s) * 10 + 10)
        return;
    std::vector<double> coefficients(all.begin() + s * 10, all.begin() + s * 10 + 10);
    double low = 0, high = 0;
    bool any = false;
    for (int pt = 0; pt < series.points; ++pt) {
        if (IsMissing(series.Y(s, pt)) || IsMissing(series.X(s, pt)))
            continue;
        const double x = series.X(s, pt);
        low = any ? std::min(low, x) : x;
        high = any ? std::max(high, x) : x;
        any = true;
    }
    if (!any || !(high > low))
        return;
    std::vector<double> path;
    for (int i = 0; i <= 200; ++i) {
        const double x = low + (high - low) * i / 200;
        path.push_back(f.XToPixel(x));
        path.push_back(std::clamp(f.YToPixel(EvaluatePolynomial(coefficients, x - series.xOffset)),
                                  -1e5, 1e5));
    }
    canvas.Polyline(path.data(), path.size() / 2, colour, 1.8);
}

void DrawCurves(Canvas& canvas, const ChartFrame& f, const ChartProperties& p) {
    const ChartSeries series = SeriesOf(p);
    if (series.curves == 0)
        return;
    const int method = p.Int(PlottingMethod, MethodByCurve);
    if (method == MethodBar) {
        DrawBars(canvas, f, p, series);
        return;
    }
    const bool lines =
        method == MethodLine || method == MethodPointsAndLines || method == MethodByCurve;
    const bool points = method != MethodLine;
    for (int s = 0; s < series.curves; ++s) {
        const COLORREF colour = COLORREF(CurveColour(p, s));
        const int lineType = p.IntElement(CurveLineTypes, size_t(s), 0);
        if (lines && lineType != 5)
            DrawCurveLine(canvas, f, series, s, colour, lineType == 4 ? 3.0 : 1.6,
                          DashesOf(lineType));
        if (method == MethodBestFitLine || method == MethodBestFitCurve)
            DrawFit(canvas, f, p, series, s, colour);
        int symbol = p.IntElement(CurveSymbols, size_t(s), -1);
        if (symbol < 0)
            symbol = method == MethodByCurve ? (series.points <= 40 ? Dot : None)
                     : points                ? Dot
                                             : None;
        if (symbol == None || !points || series.points > 20000)
            continue;
        for (int pt = 0; pt < series.points; ++pt) {
            const double x = series.X(s, pt), y = series.Y(s, pt);
            if (!IsMissing(x) && !IsMissing(y))
                DrawSymbol(canvas, symbol, f.XToPixel(x), f.YToPixel(y), colour);
        }
    }
    const int selected = p.Int(SelectedPoint, -1);
    if (selected >= 0 && selected < series.points)
        for (int s = 0; s < series.curves; ++s)
            if (!IsMissing(series.Y(s, selected)))
                canvas.StrokeCircle(f.XToPixel(series.X(s, selected)),
                                    f.YToPixel(series.Y(s, selected)), 6, kAxis, 1.5);
}

void DrawRubberLine(Canvas& canvas, const ChartFrame& f, const ChartProperties& p) {
    const auto& xs = p.Doubles(RubberX);
    const auto& ys = p.Doubles(RubberY);
    if (p.Int(RubberLine, 0) != 1 || xs.size() < 2 || ys.size() < 2)
        return;
    const COLORREF colour = COLORREF(p.IntElement(AnnotationColours, 0, 0)) & 0xFFFFFF;
    canvas.Line(f.XToPixel(xs[0]), f.YToPixel(ys[0]), f.XToPixel(xs[1]), f.YToPixel(ys[1]), colour,
                1.2, {5, 3});
    canvas.StrokeCircle(f.XToPixel(xs[0]), f.YToPixel(ys[0]), 3, colour, 1.2);
}

void DrawAxes(Canvas& canvas, const ChartFrame& f, const ChartProperties& p) {
    const CanvasFont tickFont = ChartFont(p, 9);
    const ChartBox& a = f.plot;
    for (const AxisTick& tick : f.yTicks) {
        const double y = std::round(f.YToPixel(tick.value)) + 0.5;
        if (p.Int(YGrid, 1) != 0 && y > a.top + 1 && y < a.bottom - 1)
            canvas.Line(a.left, y, a.right, y, kGrid, 1);
        canvas.Line(a.left - 5, y, a.left, y, kAxis, 1);
        canvas.DrawText(tickFont, tick.label.c_str(), a.left - 8, y, kText, CanvasAlign::End,
                        CanvasAlign::Centre);
    }
    for (const AxisTick& tick : f.xTicks) {
        const double x = std::round(f.XToPixel(tick.value)) + 0.5;
        if (p.Int(XGrid, 1) != 0 && !f.bars && x > a.left + 1 && x < a.right - 1)
            canvas.Line(x, a.top, x, a.bottom, kGrid, 1);
        canvas.Line(x, a.bottom, x, a.bottom + 5, kAxis, 1);
        // Each line of a label is centred on its own.
        double y = a.bottom + 8;
        std::string::size_type start = 0;
        while (start <= tick.label.size()) {
            const auto end = tick.label.find('\n', start);
            const std::string line = tick.label.substr(start, end - start);
            canvas.DrawText(tickFont, line.c_str(), x, y, kText, CanvasAlign::Centre);
            y += canvas.MeasureText(tickFont, "0").height;
            if (end == std::string::npos)
                break;
            start = end + 1;
        }
    }
    canvas.StrokeRect(a.left, a.top, a.Width(), a.Height(), kFrame, 1);
    canvas.Line(a.left, a.bottom, a.right, a.bottom, kAxis, 1);
    canvas.Line(a.left, a.top, a.left, a.bottom, kAxis, 1);
    if (f.yMin < 0 && f.yMax > 0)
        canvas.Line(a.left, std::round(f.YToPixel(0)) + 0.5, a.right,
                    std::round(f.YToPixel(0)) + 0.5, RGB(0x90, 0x90, 0x90), 1);
}

void DrawTitles(Canvas& canvas, const ChartFrame& f, const ChartProperties& p) {
    if (!p.Text(MainTitle).empty())
        canvas.DrawText(ChartFont(p, 13, true), p.Text(MainTitle).c_str(), f.title.left,
                        f.title.top, kText);
    if (!p.Text(SubTitle).empty())
        canvas.DrawText(ChartFont(p, 10), p.Text(SubTitle).c_str(), f.subtitle.left, f.subtitle.top,
                        RGB(0x50, 0x50, 0x50));
    if (!p.Text(XAxisTitle).empty())
        canvas.DrawText(ChartFont(p, 10, true), p.Text(XAxisTitle).c_str(), f.xTitle.left,
                        f.xTitle.top, kText);
    if (!p.Text(YAxisTitle).empty())
        canvas.DrawText(ChartFont(p, 10, true), p.Text(YAxisTitle).c_str(), f.yTitle.left,
                        f.yTitle.bottom, kText, CanvasAlign::Start, CanvasAlign::Start, 90);
}

void DrawLegend(Canvas& canvas, const ChartFrame& f, const ChartProperties& p) {
    if (f.legendEntries.empty())
        return;
    const CanvasFont font = ChartFont(p, 9);
    canvas.FillRect(f.legend.left, f.legend.top, f.legend.Width(), f.legend.Height(),
                    RGB(255, 255, 255));
    if (f.legendVertical)
        canvas.StrokeRect(std::round(f.legend.left) + 0.5, std::round(f.legend.top) + 0.5,
                          std::round(f.legend.Width()), std::round(f.legend.Height()), kFrame, 1);
    double y = f.legend.top + 4;
    double previousX = -1;
    const bool bars = p.Int(PlottingMethod, MethodByCurve) == MethodBar;
    for (size_t i = 0; i < f.legendEntries.size(); ++i) {
        const LegendEntry& entry = f.legendEntries[i];
        double x = f.legend.left + 6;
        if (!f.legendVertical) {
            x = i < f.legendColumnX.size() ? f.legendColumnX[i] : x;
            if (i > 0 && x <= previousX)
                y += f.legendRowHeight;
            previousX = x;
        }
        const double cy = y + f.legendRowHeight / 2 - 2;
        const COLORREF colour = COLORREF(entry.colour);
        if (bars) {
            canvas.FillRect(x + 6, cy - 5, 14, 10, colour);
        } else {
            if (entry.lineType != 5)
                canvas.Line(x, cy, x + 26, cy, colour, entry.lineType == 4 ? 3 : 1.6,
                            DashesOf(entry.lineType));
            DrawSymbol(canvas, entry.symbol < 0 ? 0 : entry.symbol, x + 13, cy, colour);
        }
        canvas.DrawText(font, entry.text.c_str(), x + 32, cy, kText, CanvasAlign::Start,
                        CanvasAlign::Centre);
        if (f.legendVertical)
            y += f.legendRowHeight;
    }
}

} // namespace

void DrawChart(Canvas& canvas, const ChartProperties& p, const ChartFrame& f) {
    canvas.Clear(RGB(255, 255, 255));
    DrawAxes(canvas, f, p);
    // Whole pixels: cairo clips to an aligned rectangle without a mask.
    canvas.PushClip(std::floor(f.plot.left), std::floor(f.plot.top),
                    std::ceil(f.plot.right) - std::floor(f.plot.left),
                    std::ceil(f.plot.bottom) - std::floor(f.plot.top));
    DrawCurves(canvas, f, p);
    DrawRubberLine(canvas, f, p);
    canvas.PopClip();
    DrawTitles(canvas, f, p);
    DrawLegend(canvas, f, p);
}
