#include "chart/ChartEngine.h"

#include "chart/ChartPropertyIds.h"
#include "platform/gdi/canvas/Canvas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using namespace chartprop;

constexpr COLORREF kRed = RGB(220, 0, 0);

void SetCurves(ChartEngine& engine, int curves, int points, const std::vector<double>& xs,
               const std::vector<double>& ys) {
    auto& p = engine.Properties();
    p.SetInt(CurveCount, curves);
    p.SetInt(PointCount, points);
    engine.SetArray(XData, xs.data(), int(xs.size()));
    engine.SetArray(YData, ys.data(), int(ys.size()));
    const int red = int(kRed);
    engine.SetElement(CurveColours, 0, &red);
}

void FixRanges(ChartEngine& engine, double x0, double x1, double y0, double y1) {
    auto& p = engine.Properties();
    p.SetInt(XRangeMode, RangeBoth);
    p.SetInt(YRangeMode, RangeBoth);
    engine.SetArray(XMinimum, &x0, 1);
    engine.SetArray(XMaximum, &x1, 1);
    engine.SetArray(YMinimum, &y0, 1);
    engine.SetArray(YMaximum, &y1, 1);
}

// Anti-aliased edges blend the curve into the background: strongly red is red enough.
bool ColumnHasColour(const Canvas& canvas, int x, int y0, int y1, COLORREF) {
    for (int y = std::min(y0, y1); y <= std::max(y0, y1); ++y) {
        const COLORREF c = canvas.GetPixel(x, y);
        if (GetRValue(c) > 150 && GetGValue(c) < 110 && GetBValue(c) < 110)
            return true;
    }
    return false;
}

TEST(ChartRender, DenseLinesKeepEveryColumnsExtremes) {
    // 200000 points on 600 pixels, flat but for one single-point spike.
    const int n = 200000;
    std::vector<double> xs(n), ys(n, 10.0);
    for (int i = 0; i < n; ++i)
        xs[size_t(i)] = i;
    ys[123457] = 90.0;
    ChartEngine engine(600, 400);
    SetCurves(engine, 1, n, xs, ys);
    FixRanges(engine, 0, n, 0, 100);
    engine.ResetImage();
    const Canvas& image = *engine.Image();
    double px = 0, top = 0, flat = 0;
    ASSERT_TRUE(engine.GraphToPixel(123457, 90, px, top));
    ASSERT_TRUE(engine.GraphToPixel(123457, 10, px, flat));
    EXPECT_TRUE(ColumnHasColour(image, int(px), int(top), int(top) + 2, kRed))
        << "the spike's top was decimated away";
    EXPECT_TRUE(ColumnHasColour(image, int(px), int((top + flat) / 2) - 1,
                                int((top + flat) / 2) + 1, kRed));
    EXPECT_TRUE(ColumnHasColour(image, int(px) - 50, int(flat) - 1, int(flat) + 1, kRed));
}

TEST(ChartRender, MissingValuesLeaveAGap) {
    ChartEngine engine(500, 300);
    SetCurves(engine, 1, 5, {0, 1, 2, 3, 4}, {50, 50, MissingValue, 50, 50});
    FixRanges(engine, 0, 4, 0, 100);
    engine.ResetImage();
    double x = 0, y = 0;
    engine.GraphToPixel(0.5, 50, x, y);
    EXPECT_TRUE(ColumnHasColour(*engine.Image(), int(x), int(y) - 1, int(y) + 1, kRed));
    engine.GraphToPixel(2, 50, x, y);
    EXPECT_FALSE(ColumnHasColour(*engine.Image(), int(x), int(y) - 3, int(y) + 3, kRed));
}

TEST(ChartRender, TickLabelsNeverOverlap) {
    for (int width : {220, 400, 777, 1600}) {
        ChartEngine engine(width, 300);
        SetCurves(engine, 1, 2, {-123456.7, 9876543.2}, {0.000123, 0.000987});
        const ChartFrame& f = engine.Frame();
        ASSERT_GE(f.xTicks.size(), 2u) << width;
        auto canvas = Canvas::CreateImage(10, 10);
        const CanvasFont font = ChartFont(engine.Properties(), 9);
        for (size_t i = 1; i < f.xTicks.size(); ++i) {
            const double gap = f.XToPixel(f.xTicks[i].value) - f.XToPixel(f.xTicks[i - 1].value);
            const double half = (canvas->MeasureText(font, f.xTicks[i].label.c_str()).width +
                                 canvas->MeasureText(font, f.xTicks[i - 1].label.c_str()).width) /
                                2;
            EXPECT_GT(gap, half) << width << ": " << f.xTicks[i - 1].label << " / "
                                 << f.xTicks[i].label;
        }
        EXPECT_LE(f.xMin, -123456.7);
        EXPECT_GE(f.xMax, 9876543.2);
    }
}

TEST(ChartRender, LegendListsAndPlaces) {
    ChartEngine engine(600, 400);
    SetCurves(engine, 2, 2, {0, 1, 0, 1}, {1, 2, 3, 4});
    auto& p = engine.Properties();
    p.SetArray(CurveNames, "Left bank\tRight bank\t", 2);
    EXPECT_EQ(engine.Frame().legendEntries.size(), 2u);

    const int onlySecond[] = {1, -1};
    engine.SetArray(LegendCurves, onlySecond, 2);
    ASSERT_EQ(engine.Frame().legendEntries.size(), 1u);
    EXPECT_EQ(engine.Frame().legendEntries[0].text, "Right bank");

    // A list that starts with -1 shows only the custom entries.
    const int none = -1;
    engine.SetArray(LegendCurves, &none, 1);
    EXPECT_TRUE(engine.Frame().legendEntries.empty());
    engine.SetArray(LegendTexts, "Design flood\t", 1);
    const int blue = int(RGB(0, 0, 255));
    engine.SetArray(LegendColours, &blue, 1);
    ASSERT_EQ(engine.Frame().legendEntries.size(), 1u);
    EXPECT_EQ(engine.Frame().legendEntries[0].colour, int(RGB(0, 0, 255)));

    for (int location = 0; location < 4; ++location) {
        p.SetInt(LegendLocation, location);
        engine.Touch();
        const ChartFrame& f = engine.Frame();
        const bool apart = f.legend.right <= f.plot.left || f.legend.left >= f.plot.right ||
                           f.legend.bottom <= f.plot.top || f.legend.top >= f.plot.bottom;
        EXPECT_TRUE(apart) << "the legend covers the data at location " << location;
    }
}

TEST(ChartRender, BarHotSpotsNameCurveAndPoint) {
    ChartEngine engine(600, 400);
    SetCurves(engine, 2, 3, {}, {1, 2, 3, 4, 5, 6});
    engine.Properties().SetInt(PlottingMethod, MethodBar);
    const ChartFrame& f = engine.Frame();
    const double category = f.plot.Width() / 3;
    const int y = int(f.plot.bottom - 2);
    // Category 2: the first bar is curve 0, the second curve 1; the gap beside them is no bar.
    const auto left = engine.HitTest(int(f.plot.left + category * 2.5 - category * 0.2), y);
    EXPECT_EQ(left[4], HOTSPOT_DATAPOINT);
    EXPECT_EQ(left[5], 0);
    EXPECT_EQ(left[6], 2);
    const auto right = engine.HitTest(int(f.plot.left + category * 2.5 + category * 0.2), y);
    EXPECT_EQ(right[5], 1);
    EXPECT_EQ(engine.HitTest(int(f.plot.left + category * 2 + 2), y)[4], HOTSPOT_POINT);
}

TEST(ChartRender, DateAxisAddsTheBaseAndLabelsCalendarDates) {
    ChartEngine engine(800, 400);
    // Offsets in days from the base, midnight 1 March 2024 (serial 45352).
    SetCurves(engine, 1, 3, {0, 1.5, 3}, {1, 2, 3});
    auto& p = engine.Properties();
    p.SetInt(DateTimeMode, 1);
    const double base = 45352;
    engine.SetArray(DateTimeBase, &base, 0);
    const ChartFrame& f = engine.Frame();
    ASSERT_TRUE(f.dateAxis);
    EXPECT_DOUBLE_EQ(f.xMin, 45352);
    ASSERT_FALSE(f.xTicks.empty());
    EXPECT_EQ(f.xTicks.front().label, "1 Mar 2024");
}

} // namespace
