// The chart window worked as a user and an application would: clicks on points, zoom boxes,
// chart files, pictures on disk and on the clipboard, calls on a gone chart, and printing.

#include "FakeSpoolers.h"
#include "HostedChart.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"

#include "platform/testing/NotificationRecorder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace chartprop;

namespace {

constexpr int kChartId = 7;
constexpr COLORREF kCurveColour = RGB(200, 0, 0);

// Points (0, 0) .. (10, 100) on axes fixed to those ranges.
void FillChart(HWND chart) {
    ChartSetInt(chart, CurveCount, 1);
    ChartSetInt(chart, PointCount, 11);
    for (int i = 0; i <= 10; ++i) {
        const double x = i, y = 10.0 * i;
        ChartSetElement(chart, XData, i, &x);
        ChartSetElement(chart, YData, i, &y);
    }
    const int colour = int(kCurveColour);
    ChartSetElement(chart, CurveColours, 0, &colour);
    const double low = 0, high = 100, xHigh = 10;
    ChartSetInt(chart, YRangeMode, RangeBoth);
    ChartSetArray(chart, YMinimum, &low, 1);
    ChartSetArray(chart, YMaximum, &high, 1);
    ChartSetInt(chart, XRangeMode, RangeBoth);
    ChartSetArray(chart, XMinimum, &low, 1);
    ChartSetArray(chart, XMaximum, &xHigh, 1);
    ChartRedraw(chart);
}

class ChartWindowTest : public HostedChartTest {
protected:
    ChartWindowTest() : HostedChartTest(kChartId, 640, 480) {}

    void Fill(HWND chart) override { FillChart(chart); }
    POINT PixelOf(double gx, double gy) { return ::PixelOf(chart, gx, gy); }
};

TEST_F(ChartWindowTest, PaintsItsImageAndReportsClicksOnDataPoints) {
    const POINT point = PixelOf(4, 40);
    EXPECT_EQ(driver.Pixel(chart, point), kCurveColour);

    NotificationRecorder recorder(parent.m_hWnd);
    driver.Click(chart, point);
    const auto clicks = recorder.Commands(CHARTN_CLICK);
    ASSERT_EQ(clicks.size(), 1u);
    EXPECT_EQ(clicks[0].id, UINT_PTR(kChartId));
    EXPECT_EQ(recorder.Commands(CHARTN_BUTTONUP).size(), 1u);
    EXPECT_TRUE(recorder.Commands(CHARTN_ZOOMIN).empty()); // a click is no zoom box

    int spot[7] = {};
    ASSERT_EQ(ChartGetArray(chart, HotSpot, nullptr), 28);
    ChartGetArray(chart, HotSpot, spot);
    EXPECT_EQ(spot[4], 5);
    EXPECT_EQ(spot[5], 0);
    EXPECT_EQ(spot[6], 4);
    int mouse[2] = {};
    ChartGetArray(chart, MousePosition, mouse);
    EXPECT_EQ(mouse[0], point.x);
    EXPECT_EQ(mouse[1], point.y);

    driver.Click(chart, PixelOf(4, 90));
    ChartGetArray(chart, HotSpot, spot);
    EXPECT_EQ(spot[4], 0);
}

TEST_F(ChartWindowTest, DraggingABoxZoomsAndTheFrameCommandUndoesIt) {
    const POINT origin = PixelOf(0, 0);
    NotificationRecorder recorder(parent.m_hWnd);
    driver.Drag(chart, PixelOf(2.5, 95), PixelOf(6.5, 55));
    EXPECT_EQ(recorder.Commands(CHARTN_ZOOMIN).size(), 1u);
    EXPECT_EQ(ChartGetInt(chart, Zoomed), 1);
    double gx = 0, gy = 0;
    int axis = 0, x = origin.x, y = origin.y;
    ChartPixelToGraph(chart, &axis, &x, &y, &gx, &gy, false, false, false);
    EXPECT_GT(gx, 2.0); // the old origin now lies left of the zoomed range

    SendMessage(chart, WM_COMMAND, FrameCommand, 0);
    EXPECT_EQ(ChartGetInt(chart, Zoomed), 0);
    x = origin.x, y = origin.y;
    ChartPixelToGraph(chart, &axis, &x, &y, &gx, &gy, false, false, false);
    EXPECT_NEAR(gx, 0, 0.1);
}

// A plot moves a dragged point or its rubber line and asks only for the window to be updated:
// each write must leave the chart to be drawn again at that update.
TEST_F(ChartWindowTest, WritesOfDataAndRubberLineShowAtTheNextUpdate) {
    const double raised = 80;
    ASSERT_EQ(ChartSetCell(chart, YData, 0, 4, &raised), 1);
    UpdateWindow(chart);
    EXPECT_EQ(driver.Pixel(chart, PixelOf(4, 80)), kCurveColour);

    // Dark pixels on the way from (2, 90) to (8, 90), where only the rubber line may be.
    const auto darkOnTheLine = [&] {
        const POINT from = PixelOf(2, 90), to = PixelOf(8, 90);
        int dark = 0;
        for (int x = from.x; x <= to.x; ++x)
            for (int y = from.y - 2; y <= from.y + 2; ++y) {
                const COLORREF c = driver.Pixel(chart, {x, y});
                dark += GetRValue(c) < 128 && GetGValue(c) < 128 && GetBValue(c) < 128;
            }
        return dark;
    };
    ASSERT_EQ(darkOnTheLine(), 0);
    const double xs[] = {1, 9}, ys[] = {90, 90};
    const int black[] = {0, 0};
    ChartSetInt(chart, RubberLine, 1);
    ChartSetArray(chart, RubberX, xs, 2);
    ChartSetArray(chart, RubberY, ys, 2);
    ChartSetArray(chart, AnnotationColours, black, 2);
    UpdateWindow(chart);
    EXPECT_GT(darkOnTheLine(), 0);

    const std::int64_t zero = 0; // a single element written ends the line
    ChartSetElement(chart, RubberX, 0, &zero);
    UpdateWindow(chart);
    EXPECT_EQ(darkOnTheLine(), 0);
}

TEST_F(ChartWindowTest, AxisEndsReadAsTheRangeOnShowWhereTheChartChoosesThem) {
    const auto read = [&](int property) {
        double value = -1;
        EXPECT_EQ(ChartGetArray(chart, property, nullptr), int(sizeof value));
        ChartGetArray(chart, property, &value);
        double element = -2;
        EXPECT_EQ(ChartGetElement(chart, property, 0, &element), 1);
        EXPECT_EQ(element, value);
        return value;
    };
    // Given ends read as given.
    EXPECT_EQ(read(XMaximum), 10);
    EXPECT_EQ(read(YMaximum), 100);

    // Automatic ends read as the range laid out around the data, which follows the data.
    ChartSetInt(chart, XRangeMode, RangeAuto);
    ChartSetInt(chart, YRangeMode, RangeMinimum);
    const double peak = 250;
    ChartSetCell(chart, YData, 0, 10, &peak);
    EXPECT_EQ(read(YMinimum), 0);
    EXPECT_GE(read(YMaximum), 250);
    EXPECT_LT(read(YMaximum), 500);
    EXPECT_LE(read(XMinimum), 0);
    EXPECT_GT(read(XMinimum), -5);
    EXPECT_GE(read(XMaximum), 10);
    EXPECT_LT(read(XMaximum), 15);
    // The ends read are the ends of the plot area.
    const POINT low = PixelOf(read(XMinimum), read(YMinimum));
    const POINT high = PixelOf(read(XMaximum), read(YMaximum));
    int axis = 0, x = low.x - 1, y = high.y;
    double gx = 0, gy = 0;
    ChartPixelToGraph(chart, &axis, &x, &y, &gx, &gy, false, false, false);
    EXPECT_LT(gx, read(XMinimum));
    EXPECT_NEAR(gy, read(YMaximum), 1);
}

TEST_F(ChartWindowTest, TwoChartsDraggedAtOnceEachZoomToTheirOwnBox) {
    CWnd otherParent;
    ASSERT_TRUE(otherParent.CreateEx(0, nullptr, "other", WS_POPUP | WS_VISIBLE, 700, 0, 640, 480,
                                     nullptr, nullptr));
    RECT rect{0, 0, 640, 480};
    HWND other = ChartCreate(0, 0, &rect, otherParent.m_hWnd, kChartId);
    ASSERT_NE(other, nullptr);
    FillChart(other);
    driver.Pump();
    const POINT otherFrom = ::PixelOf(other, 1, 30), otherTo = ::PixelOf(other, 3, 10);

    NotificationRecorder recorder(parent.m_hWnd), otherRecorder(otherParent.m_hWnd);
    // Two drags interleaved, as a program forwarding input to both charts would make them:
    // one pointer cannot, since a press captures the mouse.
    const auto send = [](HWND window, UINT message, POINT at) {
        SendMessage(window, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON,
                    MAKELPARAM(at.x, at.y));
    };
    const POINT from = PixelOf(6, 90), to = PixelOf(9, 60);
    send(chart, WM_LBUTTONDOWN, from);
    send(other, WM_LBUTTONDOWN, otherFrom);
    send(other, WM_MOUSEMOVE, otherTo);
    send(chart, WM_MOUSEMOVE, to);
    send(chart, WM_LBUTTONUP, to);
    send(other, WM_LBUTTONUP, otherTo);
    driver.Pump();

    EXPECT_EQ(recorder.Commands(CHARTN_ZOOMIN).size(), 1u);
    EXPECT_EQ(otherRecorder.Commands(CHARTN_ZOOMIN).size(), 1u);
    // The graph X at the middle of each window lies inside that chart's own box.
    const auto middleX = [](HWND window) {
        RECT client;
        GetClientRect(window, &client);
        int axis = 0, x = client.right / 2, y = client.bottom / 2;
        double gx = 0, gy = 0;
        ChartPixelToGraph(window, &axis, &x, &y, &gx, &gy, false, false, false);
        return gx;
    };
    EXPECT_GT(middleX(chart), 6.0);
    EXPECT_LT(middleX(chart), 9.0);
    EXPECT_GT(middleX(other), 1.0);
    EXPECT_LT(middleX(other), 3.0);
    otherParent.DestroyWindow();
}

TEST_F(ChartWindowTest, ChartFilesRoundTripAndBadFilesChangeNothing) {
    ChartSetString(chart, MainTitle, "Stored");
    const std::string path = ChartTestPath("good.chart");
    ASSERT_EQ(ChartStore(chart, path.c_str()), 1);

    RECT rect{0, 0, 300, 200};
    HWND copy = ChartCreateFromFile(path.c_str(), parent.m_hWnd, &rect, 8);
    ASSERT_NE(copy, nullptr);
    char title[1024] = {};
    ChartGetString(copy, MainTitle, title);
    EXPECT_STREQ(title, "Stored");
    EXPECT_EQ(ChartGetArray(copy, YData, nullptr), 11 * 8);
    ChartDestroy(copy);

    std::ifstream in(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), {});
    const std::string truncated = ChartTestPath("truncated.chart");
    std::ofstream(truncated, std::ios::binary) << bytes.substr(0, bytes.size() - 5);
    ChartSetString(chart, MainTitle, "Unchanged");
    EXPECT_EQ(ChartLoad(chart, truncated.c_str()), 0);
    EXPECT_EQ(ChartCreateFromFile(truncated.c_str(), parent.m_hWnd, &rect, 9), nullptr);
    EXPECT_EQ(ChartLoad(chart, ChartTestPath("missing.chart").c_str()), 0);
    ChartGetString(chart, MainTitle, title);
    EXPECT_STREQ(title, "Unchanged");
    ASSERT_EQ(ChartLoad(chart, path.c_str()), 1);
    ChartGetString(chart, MainTitle, title);
    EXPECT_STREQ(title, "Stored");
    std::remove(path.c_str());
    std::remove(truncated.c_str());
}

TEST_F(ChartWindowTest, WritesBitmapsByExtensionAndAnSvgPicture) {
    int size[] = {300, 200};
    const std::string png = ChartTestPath("out.png"), bmp = ChartTestPath("out.BMP");
    ASSERT_EQ(ChartCopyBitmapToFile(chart, size, png.c_str()), 1);
    ASSERT_EQ(ChartCopyBitmapToFile(chart, size, bmp.c_str()), 1);
    EXPECT_EQ(ChartCopyBitmapToFile(chart, size, ChartTestPath("out.gif").c_str()), 0);
    int noSize[] = {0, 200};
    EXPECT_EQ(ChartCopyBitmapToFile(chart, noSize, png.c_str()), 0);

    std::ifstream in(bmp, std::ios::binary);
    const std::string header((std::istreambuf_iterator<char>(in)), {});
    ASSERT_GE(header.size(), 54u);
    EXPECT_EQ(header.substr(0, 2), "BM");
    EXPECT_EQ(header.size(), 54u + 300u * 3 * 200);
    std::remove(png.c_str());
    std::remove(bmp.c_str());

    HMETAFILE picture = ChartGetMetafile(chart);
    ASSERT_NE(picture, nullptr);
    int length = 0;
    const std::string svg = ChartMetafileText(picture, &length);
    EXPECT_EQ(int(svg.size()), length);
    EXPECT_NE(svg.find("<svg"), std::string::npos);
    ChartDeleteMetafile(picture);
}

TEST_F(ChartWindowTest, CopiesReplaceTheClipboardWithAPngOrAnSvgPicture) {
    int size[] = {120, 80};
    ASSERT_EQ(ChartCopyBitmapToClipboard(chart, size), 1);
    EXPECT_EQ(ClipboardBytes("image/png").substr(0, 4), "\x89PNG");

    ASSERT_EQ(ChartCopyMetaToClipboard(chart, size), 1);
    EXPECT_NE(ClipboardBytes("image/svg+xml").find("<svg"), std::string::npos);
    EXPECT_EQ(ClipboardBytes("image/png"), "") << "a copy replaces what the clipboard held";

    int noSize[] = {0, 80};
    EXPECT_EQ(ChartCopyBitmapToClipboard(chart, noSize), 0);
}

TEST_F(ChartWindowTest, CallsOnAGoneChartFail) {
    HWND gone = chart;
    ChartDestroy(chart);
    EXPECT_EQ(ChartGetInt(gone, CurveCount), 0);
    EXPECT_EQ(ChartGetArray(gone, XData, nullptr), -1);
    EXPECT_EQ(ChartSetInt(gone, CurveCount, 1), 0);
    int size[] = {100, 100};
    EXPECT_EQ(ChartCopyBitmapToFile(gone, size, ChartTestPath("gone.png").c_str()), 0);
}

} // namespace

namespace {

std::string FileStart(const std::string& path, size_t length) {
    std::ifstream in(path, std::ios::binary);
    std::string bytes(length, '\0');
    in.read(bytes.data(), std::streamsize(length));
    bytes.resize(size_t(in.gcount()));
    return bytes;
}

} // namespace

TEST_F(ChartWindowTest, PrintingHandsThePdfToTheSpoolerAndFallsBackToLpr) {
    {
        FakeSpoolers spoolers;
        spoolers.Add("lp", 0);
        spoolers.Add("lpr", 0);
        ASSERT_EQ(ChartPrint(chart, 1, 0), 1);
        const std::string printed = ChartLastPrintFile();
        EXPECT_EQ(FileStart(printed, 5), "%PDF-");
        EXPECT_EQ(spoolers.Spooled(), "lp " + printed + "\n");
        std::remove(printed.c_str());
    }
    {
        FakeSpoolers spoolers;
        spoolers.Add("lp", 1); // lp refuses the job: lpr takes it
        spoolers.Add("lpr", 0);
        ASSERT_EQ(ChartPrint(chart, 1, 0), 1);
        const std::string printed = ChartLastPrintFile();
        EXPECT_EQ(spoolers.Spooled(), "lp " + printed + "\nlpr " + printed + "\n");
        std::remove(printed.c_str());
    }
    {
        FakeSpoolers none; // no spooler at all: the document is still made
        ASSERT_EQ(ChartPrint(chart, 1, 0), 1);
        EXPECT_EQ(FileStart(ChartLastPrintFile(), 5), "%PDF-");
        std::remove(ChartLastPrintFile());
    }
    EXPECT_EQ(ChartPrint(nullptr, 1, 0), 0);
}
