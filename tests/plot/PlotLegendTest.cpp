// The legend of a plot: which curves it lists, custom entries, where it stands, and the
// legend that vanishes.

#include "PlotTestSupport.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"

#include <gmock/gmock.h>

using namespace chartprop;
using ::testing::ElementsAre;

namespace {

constexpr unsigned char kTopLevel = 1;

std::vector<int> Ints(HWND chart, int property) {
    std::vector<int> values(size_t(std::max(ChartGetArray(chart, property, nullptr), 0)) /
                            sizeof(int));
    if (!values.empty())
        ChartGetArray(chart, property, values.data());
    return values;
}

// The legend's custom texts as the chart lists them: each followed by a tab.
std::string CustomTexts(HWND chart) {
    const int characters = ChartGetArray(chart, LegendTexts, nullptr);
    std::vector<std::uint16_t> wide(size_t(std::max(characters, 0)));
    if (!wide.empty())
        ChartGetArray(chart, LegendTexts, wide.data());
    return std::string(wide.begin(), wide.end());
}

class PlotLegendTest : public PlotFixture {
protected:
    // A plot of three named curves.
    EPlot* NewPlot() {
        auto* plot = new EPlot(kLineChart, "Legend", nullptr, kTopLevel, 0);
        EPlotData data;
        data.Initialize(3, 4, 0);
        for (int s = 0; s < 3; ++s) {
            for (int p = 0; p < 4; ++p)
                data.SetDataForPoint(s, p, p, s * 10 + p);
            data.SetCurveName(s, ("Q" + std::to_string(s + 1)).c_str());
        }
        data.UpdatePlotFromData(plot->GetHwnd());
        return plot;
    }
};

TEST_F(PlotLegendTest, ShownListsAllCurvesAtItsPlaceAndHiddenListsNone) {
    EPlot* plot = NewPlot();
    const HWND chart = plot->GetHwnd();
    EPlotLegend& legend = plot->Legend();
    EXPECT_FALSE(legend.IsShown());
    EXPECT_EQ(pmGetLegendLocation(chart), -1);

    legend.ShowLegend(1, -1);
    EXPECT_THAT(Ints(chart, LegendCurves), ElementsAre(0, 1, 2));
    EXPECT_EQ(ChartGetInt(chart, LegendLocation), 1) << "a new legend stands at the bottom";
    EXPECT_EQ(pmGetLegendLocation(chart), 1);

    // Hidden, it still takes the place it is given, and shows there next time.
    legend.ShowLegend(0, 2);
    EXPECT_FALSE(legend.IsShown());
    EXPECT_THAT(Ints(chart, LegendCurves), ElementsAre(-1));
    EXPECT_EQ(pmGetLegendLocation(chart), -1);
    legend.ShowLegend(1, -1);
    EXPECT_EQ(pmGetLegendLocation(chart), 2);
    EXPECT_THAT(Ints(chart, LegendCurves), ElementsAre(0, 1, 2));
}

TEST_F(PlotLegendTest, ChosenCurvesAreListedAlone) {
    EPlot* plot = NewPlot();
    const HWND chart = plot->GetHwnd();
    EPlotLegend& legend = plot->Legend();

    // Nothing reaches the chart before the legend is shown.
    legend.DisplaySubset(1, 1);
    EXPECT_TRUE(Ints(chart, LegendCurves).empty());
    legend.ShowLegend(1, 0);
    EXPECT_THAT(Ints(chart, LegendCurves), ElementsAre(1));

    // A curve beyond the chart's is remembered but not listed.
    legend.DisplaySubset(7, 1);
    legend.DisplaySubset(2, 1);
    legend.ShowLegend(1, -1);
    EXPECT_THAT(Ints(chart, LegendCurves), ElementsAre(1, 2));

    // Reset lists all curves only at the next first choice; the choice made stays.
    legend.Reset();
    legend.ShowLegend(1, -1);
    EXPECT_THAT(Ints(chart, LegendCurves), ElementsAre(1, 2));
    legend.DisplaySubset(0, 1);
    legend.ShowLegend(0, -1);
    legend.ShowLegend(1, -1);
    EXPECT_THAT(Ints(chart, LegendCurves), ElementsAre(0)) << "the first choice after Reset";

    legend.RefreshLegend();
    EXPECT_THAT(Ints(chart, LegendCurves), ElementsAre(0));
}

TEST_F(PlotLegendTest, RefreshWithNoChoiceListsNoCurves) {
    EPlot* plot = NewPlot();
    plot->Legend().RefreshLegend();
    EXPECT_THAT(Ints(plot->GetHwnd(), LegendCurves), ElementsAre(-1));
    EXPECT_EQ(ChartGetInt(plot->GetHwnd(), LegendLocation), 0) << "the place is not refreshed";
}

TEST_F(PlotLegendTest, CustomEntriesReplaceTheCurves) {
    EPlot* plot = NewPlot();
    const HWND chart = plot->GetHwnd();
    std::vector<EPlotLegendAnnot> entries(2);
    entries[0].SetText("Measured");
    entries[0].SetColor(MUcolor(200, 0, 0));
    entries[0].SetSymbol(3);
    entries[1].SetText("Computed");
    entries[1].SetColor(MUcolor(0, 0, 160));
    entries[1].SetSymbol(5);
    plot->Legend().DisplaySubset(0, 1);
    plot->Legend().UseCustomLegends(entries);

    plot->Legend().ShowLegend(1, 0);
    EXPECT_THAT(Ints(chart, LegendCurves), ElementsAre(-1));
    EXPECT_EQ(CustomTexts(chart), "Measured\tComputed\t");
    EXPECT_THAT(Ints(chart, LegendColours), ElementsAre(RGB(200, 0, 0), RGB(0, 0, 160)));
    EXPECT_THAT(Ints(chart, LegendSymbols), ElementsAre(3, 5));
    EXPECT_EQ(pmGetLegendLocation(chart), 0);

    // Refreshed, an entry without text gets none.
    entries[1].SetText("");
    plot->Legend().UseCustomLegends(entries);
    plot->Legend().RefreshLegend();
    EXPECT_EQ(CustomTexts(chart), "Measured\t");
    EXPECT_THAT(Ints(chart, LegendSymbols), ElementsAre(3, 5));

    // Hidden, the entries go as well.
    plot->Legend().ShowLegend(0, -1);
    EXPECT_EQ(CustomTexts(chart), "");
    EXPECT_TRUE(Ints(chart, LegendColours).empty());
    EXPECT_TRUE(Ints(chart, LegendSymbols).empty());
}

} // namespace
