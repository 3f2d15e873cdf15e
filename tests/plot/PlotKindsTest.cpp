// The kinds of plot: bar and scatter settings, and a real-time plot scrolling in points as they
// arrive on the clock.

#include "PlotTestSupport.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "plot/PlotBar.h"
#include "plot/PlotRealtime.h"
#include "plot/PlotScatter.h"

#include <cmath>

using namespace chartprop;

namespace {

constexpr unsigned char kTopLevel = 1;
constexpr UINT_PTR kSampleTimer = 1;
constexpr UINT kSampleMilliseconds = 250;
constexpr int kWindowPoints = 8;

std::vector<double> Values(HWND chart, int property) {
    std::vector<double> values(size_t(std::max(ChartGetArray(chart, property, nullptr), 0)) / 8);
    if (!values.empty())
        ChartGetArray(chart, property, values.data());
    return values;
}

// The application's side of a live reading: every tick of its timer, the next sample.
class SampleFeed : public CWnd {
public:
    explicit SampleFeed(EPlotRealtime& plot) : m_plot(plot) {}
    int samples = 0;

protected:
    void OnTimer(UINT_PTR) override {
        ++samples;
        m_plot.AppendPoint(samples, 10.0 * samples);
    }

private:
    EPlotRealtime& m_plot;
};

class PlotKindsTest : public PlotFixture {};

TEST_F(PlotKindsTest, BarPlotSettingsGoOverTheBaseOnes) {
    auto* bar = new EPlotBar(kLineChart, "Bars", nullptr, kTopLevel);
    HWND chart = bar->GetHwnd();
    EXPECT_EQ(ChartGetInt(chart, PlottingMethod), MethodBar);
    EXPECT_EQ(ChartGetInt(chart, 2240), 2);
    EXPECT_EQ(ChartGetInt(chart, DataHotSpots), 0);
    int colour = 0;
    ChartGetElement(chart, CurveColours, 1, &colour);
    EXPECT_EQ(colour, 0x010000);
    EXPECT_EQ(ChartGetInt(chart, 2938), 1); // the base defaults ran first

    bar->SetUpPreviewPlot();
    char font[1024] = {};
    ChartGetString(chart, FontName, font);
    EXPECT_STREQ(font, "Arial");
    EXPECT_EQ(ChartGetInt(chart, ZoomAllowed), 0);
}

TEST_F(PlotKindsTest, ScatterMakesNoChartOfItsOwn) {
    EPlotScatter scatter;
    EXPECT_EQ(scatter.GetHwnd(), nullptr);
    EXPECT_EQ(scatter.EPlot::SetPlotDefaults(), 0);
    EXPECT_EQ(std::string(scatter.GetMainTitle().c_str()), "NONE");
    EXPECT_EQ(std::string(scatter.GetCurveName(0).c_str()), "");
    EXPECT_EQ(scatter.GetLineType(0), -1);
    scatter.SetMainTitle("ignored without a chart");
}

TEST_F(PlotKindsTest, RealtimePlotScrollsInPointsOnTheClock) {
    auto* plot = new EPlotRealtime(kLineChart, "Live", nullptr, kTopLevel);
    HWND chart = plot->GetHwnd();
    EXPECT_EQ(ChartGetInt(chart, CurveCount), 1);
    EXPECT_EQ(ChartGetInt(chart, PointCount), 10);
    plot->SetNumberOfPoints(kWindowPoints);
    std::vector<double> ys = Values(chart, YData);
    ASSERT_EQ(ys.size(), size_t(kWindowPoints));
    for (double y : ys)
        EXPECT_EQ(y, MissingValue);

    SampleFeed feed(*plot);
    ASSERT_TRUE(feed.CreateEx(0, nullptr, "feed", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    feed.SetTimer(kSampleTimer, kSampleMilliseconds);
    driver.Advance(kSampleMilliseconds * 3);
    ASSERT_EQ(feed.samples, 3);
    ys = Values(chart, YData);
    std::vector<double> xs = Values(chart, XData);
    EXPECT_EQ(ys[kWindowPoints - 1], 30.0);
    EXPECT_EQ(ys[kWindowPoints - 3], 10.0);
    EXPECT_EQ(ys[kWindowPoints - 4], MissingValue);
    EXPECT_EQ(xs[kWindowPoints - 1], 3.0);

    driver.Advance(kSampleMilliseconds * 10); // the first samples leave at the left
    ys = Values(chart, YData);
    EXPECT_EQ(ys.front(), 10.0 * (feed.samples - kWindowPoints + 1));
    EXPECT_EQ(ys.back(), 10.0 * feed.samples);
    feed.DestroyWindow();

    plot->ClearPlot();
    for (double y : Values(chart, YData))
        EXPECT_EQ(y, MissingValue);
    plot->SetNumberOfPoints(-1); // nonsense from the caller leaves an empty curve
    EXPECT_TRUE(Values(chart, YData).empty());
}

TEST_F(PlotKindsTest, RealtimeDatesBecomeTheChartsSerials) {
    auto* plot = new EPlotRealtime(kLineChart, "Dates", nullptr, kTopLevel);
    HWND chart = plot->GetHwnd();
    const double noonOnFourthOfMay2025 = 45781.5;
    plot->AppendPoint(noonOnFourthOfMay2025, 1.0);
    EXPECT_EQ(Values(chart, XData).back(), noonOnFourthOfMay2025); // sent unchanged

    plot->XdataIsDateTime();
    plot->AppendPoint(noonOnFourthOfMay2025, 2.0);
    int fields[9] = {5, 4, 125, 12, 0, 0, 0, 0, 0};
    double serial = 0;
    ASSERT_EQ(ChartEncodeDateTime(&serial, fields, 1), 1);
    EXPECT_NEAR(Values(chart, XData).back(), serial, 1e-9);

    plot->SetXAxisTicksAsIntegers();
    EXPECT_EQ(ChartGetInt(chart, IntegerXTicks), 1);
    EXPECT_EQ(Values(chart, XTickUnit), std::vector<double>{1.0});
}

} // namespace
