#include "chart/ChartEngine.h"

#include "chart/ChartFit.h"
#include "chart/ChartPropertyIds.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using namespace chartprop;

// One curve through (0, 0) .. (10, 100), Y range given so the plot's corners are known values.
void FillLine(ChartEngine& engine) {
    auto& p = engine.Properties();
    p.SetInt(CurveCount, 1);
    p.SetInt(PointCount, 11);
    std::vector<double> xs, ys;
    for (int i = 0; i <= 10; ++i) {
        xs.push_back(i);
        ys.push_back(10.0 * i);
    }
    engine.SetArray(XData, xs.data(), 11);
    engine.SetArray(YData, ys.data(), 11);
    const double low = 0, high = 100, xLow = 0, xHigh = 10;
    p.SetInt(YRangeMode, RangeBoth);
    engine.SetArray(YMinimum, &low, 1);
    engine.SetArray(YMaximum, &high, 1);
    p.SetInt(XRangeMode, RangeBoth);
    engine.SetArray(XMinimum, &xLow, 1);
    engine.SetArray(XMaximum, &xHigh, 1);
    engine.Reinitialize();
}

TEST(ChartEngine, PixelToGraphAtTheCornersOfThePlotArea) {
    ChartEngine engine(600, 400);
    FillLine(engine);
    const ChartBox plot = engine.Frame().plot;
    double gx = 0, gy = 0;
    ASSERT_TRUE(engine.PixelToGraph(plot.left, plot.bottom, gx, gy));
    EXPECT_NEAR(gx, 0, 1e-9);
    EXPECT_NEAR(gy, 0, 1e-9);
    ASSERT_TRUE(engine.PixelToGraph(plot.right, plot.top, gx, gy));
    EXPECT_NEAR(gx, 10, 1e-9);
    EXPECT_NEAR(gy, 100, 1e-9);
    // Outside the plot the conversion goes on, as a drag past the edge needs.
    ASSERT_TRUE(engine.PixelToGraph(plot.right + plot.Width(), plot.top, gx, gy));
    EXPECT_NEAR(gx, 20, 1e-9);
    double px = 0, py = 0;
    ASSERT_TRUE(engine.GraphToPixel(5, 50, px, py));
    EXPECT_NEAR(px, (plot.left + plot.right) / 2, 1e-9);
    EXPECT_NEAR(py, (plot.top + plot.bottom) / 2, 1e-9);
}

TEST(ChartEngine, HotSpotsFindDataPointsAndTitles) {
    ChartEngine engine(600, 400);
    engine.Properties().SetString(XAxisTitle, "Distance (m)");
    FillLine(engine);
    double px = 0, py = 0;
    ASSERT_TRUE(engine.GraphToPixel(3, 30, px, py));

    engine.MouseAt(int(px) + 2, int(py) - 1);
    const auto& spot = engine.Properties().Ints(HotSpot);
    ASSERT_EQ(spot.size(), 7u);
    EXPECT_EQ(spot[4], HOTSPOT_DATAPOINT);
    EXPECT_EQ(spot[5], 0);
    EXPECT_EQ(spot[6], 3);
    EXPECT_EQ(engine.Properties().Ints(MousePosition),
              (std::vector<std::int32_t>{int(px) + 2, int(py) - 1}));

    // Between two points, well off the line.
    ASSERT_TRUE(engine.GraphToPixel(3.5, 80, px, py));
    EXPECT_EQ(engine.HitTest(int(px), int(py))[4], HOTSPOT_NONE);

    const ChartBox title = engine.Frame().xTitle;
    EXPECT_EQ(
        engine.HitTest(int((title.left + title.right) / 2), int((title.top + title.bottom) / 2))[4],
        HOTSPOT_AXISLABEL1);

    // A missing value is no data point.
    const double missing = MissingValue;
    engine.SetElement(YData, 3, &missing);
    ASSERT_TRUE(engine.GraphToPixel(3, 30, px, py));
    EXPECT_EQ(engine.HitTest(int(px), int(py))[4], HOTSPOT_NONE);
}

TEST(ChartEngine, BestFitCoefficientsLowestOrderFirstTenSlotsACurve) {
    ChartEngine engine(400, 300);
    auto& p = engine.Properties();
    p.SetInt(CurveCount, 2);
    p.SetInt(PointCount, 5);
    // Curve 0: y = 2 + 3x. Curve 1: y = 1 - 2x + 0.5x^2, with one missing point.
    std::vector<double> xs, ys;
    for (int s = 0; s < 2; ++s)
        for (int i = 0; i < 5; ++i) {
            const double x = i + 100; // far from the origin: the fit must stay exact
            xs.push_back(x);
            ys.push_back(s == 0 ? 2 + 3 * x : 1 - 2 * x + 0.5 * x * x);
        }
    ys[7] = MissingValue;
    engine.SetArray(XData, xs.data(), 10);
    engine.SetArray(YData, ys.data(), 10);
    p.SetInt(PlottingMethod, MethodBestFitCurve);
    engine.Reinitialize();
    const auto& c = p.Doubles(FitCoefficients);
    ASSERT_EQ(c.size(), 20u);
    EXPECT_NEAR(c[0], 2, 1e-6);
    EXPECT_NEAR(c[1], 3, 1e-8);
    EXPECT_NEAR(c[2], 0, 1e-9);
    EXPECT_NEAR(c[10], 1, 1e-5);
    EXPECT_NEAR(c[11], -2, 1e-7);
    EXPECT_NEAR(c[12], 0.5, 1e-9);
    EXPECT_EQ(c[13], 0);

    p.SetInt(PlottingMethod, MethodBestFitLine);
    engine.Reinitialize();
    EXPECT_NEAR(p.Doubles(FitCoefficients)[1], 3, 1e-8);
    EXPECT_EQ(p.Doubles(FitCoefficients)[2], 0);

    std::vector<double> unused;
    const double one[] = {1, 1};
    EXPECT_FALSE(FitPolynomial(one, one, 2, 1, unused)); // one distinct X decides nothing
}

TEST(ChartEngine, RealTimeAppendScrollsThePointsIn) {
    ChartEngine engine(400, 300);
    auto& p = engine.Properties();
    p.SetInt(CurveCount, 1);
    p.SetInt(PointCount, 3);
    for (int i = 1; i <= 4; ++i) {
        const double x = i, y = 10.0 * i;
        engine.SetArray(AppendX, &x, 1);
        engine.SetArray(AppendY, &y, 1);
    }
    EXPECT_EQ(p.Doubles(XData), (std::vector<double>{2, 3, 4}));
    EXPECT_EQ(p.Doubles(YData), (std::vector<double>{20, 30, 40}));
}

TEST(ChartEngine, ZoomShowsTheBoxAndFramingUndoesIt) {
    ChartEngine engine(600, 400);
    FillLine(engine);
    double x0, y0, x1, y1;
    engine.GraphToPixel(2, 60, x0, y0);
    engine.GraphToPixel(4, 20, x1, y1);
    ASSERT_TRUE(engine.ZoomTo(int(x0), int(y0), int(x1), int(y1)));
    EXPECT_EQ(engine.Properties().GetInt(Zoomed), 1);
    EXPECT_NEAR(engine.Frame().xMin, 2, 0.05);
    EXPECT_NEAR(engine.Frame().yMax, 60, 0.5);
    EXPECT_FALSE(engine.ZoomTo(10, 10, 12, 12));
    engine.Unzoom();
    EXPECT_EQ(engine.Frame().xMax, 10);
}

} // namespace

namespace {

// The automatic ranges follow every way the data change: whole arrays, single elements,
// appended points and a replaced store; missing and infinite values never count.
TEST(ChartEngine, AutomaticRangesFollowTheDataWhateverChangesIt) {
    ChartEngine engine(600, 400);
    auto& p = engine.Properties();
    p.SetInt(CurveCount, 1);
    p.SetInt(PointCount, 4);
    const double xs[] = {1, 2, 3, 4};
    const double ys[] = {5, MissingValue, 7, HUGE_VAL};
    engine.SetArray(XData, xs, 4);
    engine.SetArray(YData, ys, 4);
    const auto range = [&engine] {
        engine.Reinitialize();
        const ChartFrame& f = engine.Frame();
        return std::vector<double>{f.xMin, f.xMax, f.yMin, f.yMax};
    };
    const std::vector<double> first = range();
    EXPECT_LE(first[2], 5);
    EXPECT_GE(first[3], 7);
    EXPECT_LT(first[3], 100); // the infinite value left out

    const double high = 500;
    engine.SetElement(YData, 0, &high);
    EXPECT_GE(range()[3], 500);

    const double far = 1000, low = -50;
    engine.SetArray(AppendX, &far, 1);
    engine.SetArray(AppendY, &low, 1);
    const std::vector<double> appended = range();
    EXPECT_GE(appended[1], 1000);
    EXPECT_LE(appended[2], -50);

    ChartProperties copy = p;
    const double small[] = {0.5, 0.6, 0.7, 0.8};
    copy.SetArray(YData, small, 4);
    p = copy;
    engine.Touch();
    const std::vector<double> replaced = range();
    EXPECT_LT(replaced[3], 2);
    EXPECT_GT(replaced[2], 0);
}

} // namespace
