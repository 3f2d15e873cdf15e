#include "plot/PlotData.h"

#include "chart/ChartApi.h"
#include "platform/window/WindowApi.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class PlotDataTest : public ::testing::Test {
protected:
    void SetUp() override {
        RECT rect{0, 0, 400, 300};
        chart = ChartCreate(0, 0, &rect, nullptr, 1);
        ASSERT_NE(chart, nullptr);
    }
    void TearDown() override { ChartDestroy(chart); }

    std::vector<double> Doubles(int property) {
        std::vector<double> values(size_t(ChartGetArray(chart, property, nullptr)) / 8);
        ChartGetArray(chart, property, values.data());
        return values;
    }
    std::string Element(int property, int index) {
        char buffer[1024] = {};
        return ChartGetElement(chart, property, index, buffer) ? buffer : "<none>";
    }
    // A chart that holds two curves of two points.
    void Fill() {
        EPlotData data;
        data.Initialize(2, 2, 0);
        data.UpdatePlotFromData(chart);
    }

    HWND chart = nullptr;
};

TEST_F(PlotDataTest, DefaultObjectEmptiesAChartThatHoldsData) {
    Fill();
    ChartSetInt(chart, 3018, 1);
    EPlotData empty;
    empty.UpdatePlotFromData(chart);
    EXPECT_EQ(ChartGetInt(chart, 2115), 0);
    EXPECT_EQ(ChartGetInt(chart, 2120), 0);
    EXPECT_TRUE(Doubles(3013).empty());
    EXPECT_TRUE(Doubles(3014).empty());
    int first = 0;
    ASSERT_TRUE(ChartGetElement(chart, 2624, 0, &first));
    EXPECT_EQ(first, -1);
    EXPECT_EQ(ChartGetInt(chart, 3018), 0);
}

TEST_F(PlotDataTest, DefaultObjectLeavesAChartWithoutPointsAlone) {
    ChartSetInt(chart, 2115, 3);
    const double y = 4;
    ChartSetElement(chart, 3014, 0, &y);
    ChartSetInt(chart, 3018, 1);
    EPlotData data;
    data.Initialize(0, 5, 0); // no curves: behaves as a default object
    data.UpdatePlotFromData(chart);
    EXPECT_EQ(ChartGetInt(chart, 2115), 3);
    EXPECT_EQ(Doubles(3014), std::vector<double>{4});
    EXPECT_EQ(ChartGetArray(chart, 2624, nullptr), 0);
    EXPECT_EQ(ChartGetInt(chart, 3018), 0);
}

TEST_F(PlotDataTest, PointDataPushesFlatIndicesNamesAndColours) {
    EPlotData data;
    data.Initialize(2, 3, 0);
    data.SetDataForPoint(1, 2, 5.0, 6.0);
    data.SetDataForPoint(0, 3, 1.0, 1.0); // past the last point: ignored
    data.SetCurveName(0, "Inflow");
    data.SetPointLabel(1, 0, "start");
    data.UpdatePlotFromData(chart);

    EXPECT_EQ(ChartGetInt(chart, 2115), 2);
    EXPECT_EQ(ChartGetInt(chart, 2120), 3);
    const std::vector<double> xs = Doubles(3013), ys = Doubles(3014);
    ASSERT_EQ(xs.size(), 6u);
    ASSERT_EQ(ys.size(), 6u);
    EXPECT_EQ(xs[5], 5.0);
    EXPECT_EQ(ys[5], 6.0);
    for (int k = 0; k < 5; ++k)
        EXPECT_EQ(ys[size_t(k)], -9999.0) << k;
    EXPECT_EQ(Element(2125, 0), "Inflow");
    EXPECT_EQ(Element(2125, 1), " ");
    EXPECT_EQ(Element(2130, 3), "start");
    EXPECT_EQ(ChartGetArray(chart, 2130, nullptr), 11); // "start" and six tabs
    int colour = 0;
    ASSERT_TRUE(ChartGetElement(chart, 2190, 1, &colour));
    EXPECT_EQ(colour, 0x00FF00);
}

TEST_F(PlotDataTest, EmptyLabelsMakeAListAsLongAsThePointsAndOverwriteEarlierLabels) {
    Fill();
    EXPECT_EQ(ChartGetArray(chart, 2130, nullptr), 4); // four empty labels, each with its tab

    EPlotData labelled;
    labelled.Initialize(1, 6, 0);
    labelled.SetPointLabel(0, 1, "peak");
    labelled.UpdatePlotFromData(chart);
    EXPECT_EQ(Element(2130, 1), "peak");
    EPlotData plain;
    plain.Initialize(1, 3, 0);
    plain.UpdatePlotFromData(chart);
    EXPECT_EQ(Element(2130, 1), "");
    EXPECT_EQ(ChartGetArray(chart, 2130, nullptr), 6); // the longer list keeps its length
    EXPECT_EQ(Doubles(3014).size(), 3u);
}

TEST_F(PlotDataTest, BarDataPushesYAndTheFirstCurvesLabelsOnly) {
    ChartSetArray(chart, 3013, nullptr, 0);
    EPlotData data;
    data.Initialize(2, 3, 1);
    data.SetDataForBar(1, 0, 12.5);
    data.SetBarPointLabel(2, "Mar");
    data.SetDataForPoint(0, 0, 1, 1); // no X rows in bar data
    data.UpdatePlotFromData(chart);
    EXPECT_TRUE(Doubles(3013).empty());
    ASSERT_EQ(Doubles(3014).size(), 6u);
    EXPECT_EQ(Doubles(3014)[3], 12.5);
    EXPECT_EQ(Element(2130, 2), "Mar");
    EXPECT_EQ(Element(2130, 3), "<none>");
}

TEST_F(PlotDataTest, DateTimeBaseTurnsTheModeOnAndOffAgain) {
    EPlotData data;
    data.Initialize(1, 2, 0);
    data.UseDateTime(45000.0);
    data.UpdatePlotFromData(chart);
    EXPECT_EQ(ChartGetInt(chart, 3018), 1);
    EXPECT_EQ(ChartGetInt(chart, 3096), 180);
    EXPECT_EQ(ChartGetInt(chart, 3097), 8);
    EXPECT_EQ(Doubles(3098), std::vector<double>{45000.0});
    data.UseDateTime(-9999999.0);
    data.UpdatePlotFromData(chart);
    EXPECT_EQ(ChartGetInt(chart, 3018), 0);
}

TEST_F(PlotDataTest, CopiesAreIndependentValues) {
    EPlotData data;
    data.Initialize(1, 2, 0);
    EPlotData copy = data;
    copy.SetDataForPoint(0, 0, 3, 4);
    EXPECT_EQ(data.m_yValues[0][0], -9999.0);
    EXPECT_EQ(copy.m_yValues[0][0], 4);
    EPlotData nothing;
    nothing.UpdatePlotFromData(nullptr); // a null chart is no failure
}

} // namespace
