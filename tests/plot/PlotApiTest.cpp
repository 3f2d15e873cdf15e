// The pm functions: forwarding to the registered plots, the update set, and what they do with
// identifiers or charts that no plot has.

#include "PlotTestSupport.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"

#include <stdexcept>

using namespace chartprop;

namespace {

constexpr unsigned char kTopLevel = 1;
constexpr int kMissingId = 4242;
constexpr int kEverythingBit = 35;
constexpr int kLastEverythingBit = 25;
constexpr int kUnusedCode = 36;
constexpr int kFirstPairCode = 37;
constexpr int kLastPairCode = 41;

class PlotApiTest : public PlotFixture {
protected:
    RecordingPlot* NewPlot() { return new RecordingPlot(kLineChart, "", nullptr, kTopLevel, 0); }
};

TEST_F(PlotApiTest, NothingHappensForAMissingIdentifierOrChart) {
    NewPlot();
    RECT rect{0, 0, 200, 100};
    HWND stranger = ChartCreate(kLineChart, 0, &rect, mainWindow.m_hWnd, 3);
    ChartSetInt(stranger, PlottingMethod, MethodBestFitLine);

    EXPECT_EQ(g_plotList.PlotFromId(kMissingId), nullptr);
    EXPECT_EQ(g_plotList.PlotFromId(-1), nullptr); // no plot is ever the active one
    EXPECT_EQ(g_plotList.GetActivePlot(), nullptr);
    EXPECT_EQ(pmHandlePlotEvent(PLOTEVT_CLICK, stranger), 0);
    EXPECT_EQ(pmHandlePlotEvent(PLOTEVT_CLICK, nullptr), 0);
    EXPECT_EQ(pmGetLegendLocation(stranger), -1);
    EXPECT_EQ(pmGetLegendLocation(nullptr), -1);
    EXPECT_FALSE(pmSetExtremeYValues(kMissingId));
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    pmGetPlotDCBitmap(kMissingId, &dc, &bitmap);
    EXPECT_EQ(dc, nullptr);
    zvk::CStdStr<char> formula = "old";
    EXPECT_FALSE(pmGetBestFitFormula(stranger, 0, formula));
    EXPECT_EQ(formula, "");
    pmPlotWindowNotify(kMissingId, stranger); // deletes nothing
    pmPlotData();
    pmActivePlotDisplayOptions();
    EXPECT_EQ(g_plotList.NumPlots(), 1);
    EXPECT_EQ(ClosePlotWindow(kMissingId, stranger), -1);
    EXPECT_TRUE(IsWindow(stranger));

    EXPECT_FALSE(pmExportPlotFile("plots.dat"));
    EXPECT_FALSE(pmImportPlotFile("plots.dat"));
    EXPECT_FALSE(pmImportPlotsZVDF(0));
    ChartDestroy(stranger);
}

TEST_F(PlotApiTest, UpdateCodesReachEveryPlotInOrder) {
    RecordingPlot* a = NewPlot();
    RecordingPlot* b = NewPlot();
    int model = 0;

    pmUpdatePlots(kEverythingBit, &model);
    for (RecordingPlot* plot : {a, b}) {
        ASSERT_EQ(plot->updates.size(), 1u);
        EXPECT_EQ(plot->lastData, &model);
        EXPECT_EQ(plot->updates[0].count(), size_t(kLastEverythingBit + 2));
        EXPECT_TRUE(plot->updates[0].test(0));
        EXPECT_TRUE(plot->updates[0].test(kLastEverythingBit));
        EXPECT_FALSE(plot->updates[0].test(kLastEverythingBit + 1));
        EXPECT_TRUE(plot->updates[0].test(kEverythingBit));
    }
    for (int code = kFirstPairCode; code <= kLastPairCode; ++code) {
        pmUpdatePlots(code, nullptr);
        const std::bitset<36>& pair = b->updates.back();
        const size_t first = size_t(code - kFirstPairCode) * 2;
        EXPECT_EQ(pair.count(), 2u) << code;
        EXPECT_TRUE(pair.test(first) && pair.test(first + 1)) << code;
    }
    pmUpdatePlots(34, nullptr);
    EXPECT_EQ(a->updates.back(), std::bitset<36>().set(34));

    const size_t before = a->updates.size();
    EXPECT_THROW(pmUpdatePlots(kUnusedCode, nullptr), std::out_of_range);
    EXPECT_THROW(pmUpdatePlots(kLastPairCode + 1, nullptr), std::out_of_range);
    EXPECT_THROW(pmUpdatePlots(-1, nullptr), std::out_of_range);
    EXPECT_EQ(a->updates.size(), before);
}

TEST_F(PlotApiTest, UpdateSetIsExpandedAndThenClearedForTheCaller) {
    RecordingPlot* plot = NewPlot();
    std::bitset<36> set;
    set.set(kEverythingBit);
    pmUpdatePlots(set, nullptr);
    EXPECT_TRUE(set.none());
    EXPECT_TRUE(plot->updates.back().test(7));

    set.set(30);
    pmUpdatePlots(set, nullptr);
    EXPECT_TRUE(set.none());
    EXPECT_EQ(plot->updates.back(), std::bitset<36>().set(30));
}

TEST_F(PlotApiTest, PlotColoursByIndex) {
    EXPECT_EQ(pmGetPlotColor(0), 0u);
    EXPECT_EQ(pmGetPlotColor(15), 0u);
    EXPECT_EQ(pmGetPlotColor(-3), 0u);
    EXPECT_EQ(pmGetPlotColor(1), 0x008000u);
    EXPECT_EQ(pmGetPlotColor(12), 0xFF0000u);
    EXPECT_EQ(pmGetPlotColor(10), pmGetPlotColor(13));
    EXPECT_EQ(pmGetPlotColor(14), 0xC0C0C0u);
}

TEST_F(PlotApiTest, BestFitFormulaFromTheChartsCoefficients) {
    RecordingPlot* plot = NewPlot();
    HWND chart = plot->GetHwnd();
    const auto formulaOf = [&](std::vector<double> coefficients) {
        ChartSetArray(chart, FitCoefficients, nullptr, 0);
        for (size_t i = 0; i < coefficients.size(); ++i)
            ChartSetElement(chart, FitCoefficients, 10 + int(i), &coefficients[i]);
        zvk::CStdStr<char> text;
        const bool found = pmGetBestFitFormula(chart, 1, text);
        return std::make_pair(found, std::string(text));
    };
    ChartSetInt(chart, PlottingMethod, MethodByCurve);
    EXPECT_FALSE(formulaOf({2, 3, 0, 0, 0}).first); // no best fit drawn

    ChartSetInt(chart, PlottingMethod, MethodBestFitCurve);
    EXPECT_EQ(formulaOf({2, 3, 0, 0, 0}),
              std::make_pair(true, std::string("y = 3.0000x + 2.0000")));
    EXPECT_EQ(formulaOf({-1, 0, 2, 0, 0}), std::make_pair(true, std::string("y =  - 1.0000")));
    EXPECT_EQ(formulaOf({1, 0.00005, 2, 0, 0}),
              std::make_pair(true, std::string("y = 2.0000x^2 + 1.0000")));
    EXPECT_EQ(formulaOf({0, 0, 0, 0, 0}), std::make_pair(false, std::string("y = ")));
}

TEST_F(PlotApiTest, SelectedPointGoesToEveryChart) {
    RecordingPlot* a = NewPlot();
    RecordingPlot* b = NewPlot();
    pmChangeSelectedPoint(3);
    EXPECT_EQ(ChartGetInt(a->GetHwnd(), SelectedPoint), 3);
    EXPECT_EQ(ChartGetInt(b->GetHwnd(), SelectedPoint), 3);
}

} // namespace
