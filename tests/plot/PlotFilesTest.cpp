// Plot files: the chart's own file through a plot, document windows read from chart files,
// and the binary records that plots write their data with.

#include "PlotTestSupport.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "plot/PlotFileValues.h"
#include "plot/PlotWindow.h"

#include <cstdlib>
#include <string>

using namespace chartprop;

namespace {

constexpr unsigned char kTopLevel = 1;
constexpr unsigned char kDocument = 0;
constexpr int kFileCurves = 3;

std::string TempPath(const char* name) {
    const char* directory = std::getenv("TMPDIR");
    return std::string(directory ? directory : "/tmp") + "/plot-files-test-" + name;
}

class PlotFilesTest : public PlotFixture {
protected:
    // A chart file of three curves titled "Stored".
    std::string StoredChart() {
        auto* plot = new RecordingPlot(kLineChart, "", nullptr, kTopLevel, 0);
        plot->SetMainTitle("Stored");
        ChartSetInt(plot->GetHwnd(), CurveCount, kFileCurves);
        const std::string path = TempPath("stored.chart");
        EXPECT_TRUE(plot->WritePEPlot(path.c_str()));
        delete plot;
        return path;
    }
};

TEST_F(PlotFilesTest, ChartFileRoundTripsThroughAPlot) {
    const std::string path = StoredChart();
    auto* plot = new RecordingPlot(kLineChart, "", nullptr, kTopLevel, 0);
    EXPECT_TRUE(plot->LoadPEPlot(path.c_str()));
    EXPECT_EQ(std::string(plot->GetMainTitle().c_str()), "Stored");
    EXPECT_EQ(ChartGetInt(plot->GetHwnd(), CurveCount), kFileCurves);
    EXPECT_FALSE(plot->LoadPEPlot(TempPath("missing.chart").c_str()));
    EXPECT_FALSE(plot->WritePEPlot("/nonexistent-folder/plot.chart"));
}

TEST_F(PlotFilesTest, DocumentWindowReadsAChartFileOnce) {
    const std::string path = StoredChart();
    CRect place(10, 10, 330, 250);
    HWND chart = OpenPlotFileWindow(path.c_str(), "From file", &place, 77, kDocument);
    ASSERT_NE(chart, nullptr);
    EXPECT_EQ(ChartGetInt(chart, CurveCount), kFileCurves);
    HWND host = GetParent(chart);
    EXPECT_TRUE(IsWindowVisible(host));
    EXPECT_EQ(GetParent(host), PlotDocumentArea());
    // The identifier is taken: the same window answers, and no file is read.
    EXPECT_EQ(OpenPlotFileWindow(TempPath("missing.chart").c_str(), "", nullptr, 77, kDocument),
              chart);
    EXPECT_EQ(CreatePlotWindow(kLineChart, "", 77, -1, nullptr, nullptr, kTopLevel), chart);
    EXPECT_EQ(ClosePlotWindow(77, chart), 1);
    EXPECT_FALSE(IsWindow(host));
}

TEST_F(PlotFilesTest, TopLevelWindowsCannotReadChartFiles) {
    const std::string path = StoredChart();
    const HWND topBefore = GetTopWindow(nullptr);
    EXPECT_EQ(OpenPlotFileWindow(path.c_str(), "", nullptr, 78, kTopLevel), nullptr);
    EXPECT_EQ(GetTopWindow(nullptr), topBefore);
    EXPECT_EQ(OpenPlotFileWindow(TempPath("missing.chart").c_str(), "", nullptr, 79, kDocument),
              nullptr);
}

TEST_F(PlotFilesTest, ReadPEPlotGivesThePlotTheFilesChart) {
    const std::string path = StoredChart();
    RecordingPlot plot;
    plot.SetId(90);
    RECT place{0, 0, 300, 200};
    EXPECT_EQ(plot.ReadPEPlot(path.c_str(), "Read", &place), 1);
    ASSERT_NE(plot.GetHwnd(), nullptr);
    EXPECT_EQ(std::string(plot.GetMainTitle().c_str()), "Stored");
    ClosePlotWindow(90, plot.GetHwnd());

    RecordingPlot failed;
    failed.SetId(91);
    EXPECT_EQ(failed.ReadPEPlot(TempPath("missing.chart").c_str(), "", nullptr), 1);
    EXPECT_EQ(failed.GetHwnd(), nullptr);
}

TEST_F(PlotFilesTest, RecordsRoundTripAndRefuseShortFiles) {
    const std::string path = TempPath("records.bin");
    FILE* file = std::fopen(path.c_str(), "w+b");
    ASSERT_NE(file, nullptr);
    EXPECT_TRUE(pmWriteValue(file, 123456));
    EXPECT_TRUE(pmWriteValue(file, -7L));
    EXPECT_TRUE(pmWriteValue(file, "ab"));
    EXPECT_EQ(std::ftell(file), long(4 + 4 + PM_STRING_RECORD));

    std::rewind(file);
    int number = 0;
    long wide = 0;
    char text[PM_STRING_RECORD];
    std::fill(std::begin(text), std::end(text), 'x');
    EXPECT_TRUE(pmReadValue(file, &number));
    EXPECT_TRUE(pmReadValue(file, &wide));
    EXPECT_TRUE(pmReadValue(file, text));
    EXPECT_EQ(number, 123456);
    EXPECT_EQ(wide, -7L);
    EXPECT_STREQ(text, "ab");
    EXPECT_FALSE(pmReadValue(file, &number)); // at the end
    std::fclose(file);

    // Two bytes: neither an integer nor a string can be read from them.
    file = std::fopen(path.c_str(), "w+b");
    std::fputs("ab", file);
    std::rewind(file);
    EXPECT_FALSE(pmReadValue(file, &number));
    std::rewind(file);
    EXPECT_FALSE(pmReadValue(file, text));
    std::fclose(file);

    EXPECT_FALSE(pmWriteValue(nullptr, 1));
    EXPECT_FALSE(pmReadValue(nullptr, &number));
}

TEST_F(PlotFilesTest, ListStubsLeaveAFileAlone) {
    const std::string path = StoredChart();
    EXPECT_FALSE(pmImportPlotFile(path.c_str()));
    EXPECT_FALSE(g_plotList.ImportFile(path.c_str()));
    EXPECT_FALSE(g_plotList.ExportFile(path.c_str()));
    EXPECT_EQ(g_plotList.NumPlots(), 0);
}

} // namespace
