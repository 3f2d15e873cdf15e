#include "chart/ChartApi.h"

#include "FakeSpoolers.h"

#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"

#include "platform/testing/NotificationRecorder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/Wnd.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr int kChartId = 7;
constexpr COLORREF kCurveColour = RGB(200, 0, 0);

std::string TempPath(const char* name) {
    const char* directory = std::getenv("TMPDIR");
    return std::string(directory ? directory : "/tmp") + "/chart-window-test-" + name;
}

// Points (0, 0) .. (10, 100) on axes fixed to those ranges.
void FillChart(HWND chart) {
    ChartSetInt(chart, 2115, 1);
    ChartSetInt(chart, 2120, 11);
    for (int i = 0; i <= 10; ++i) {
        const double x = i, y = 10.0 * i;
        ChartSetElement(chart, 3013, i, &x);
        ChartSetElement(chart, 3014, i, &y);
    }
    const int colour = int(kCurveColour);
    ChartSetElement(chart, 2190, 0, &colour);
    const double low = 0, high = 100, xHigh = 10;
    ChartSetInt(chart, 3050, 3);
    ChartSetArray(chart, 3055, &low, 1);
    ChartSetArray(chart, 3060, &high, 1);
    ChartSetInt(chart, 3615, 3);
    ChartSetArray(chart, 3620, &low, 1);
    ChartSetArray(chart, 3625, &xHigh, 1);
    ChartRedraw(chart);
}

POINT PixelOf(HWND chart, double gx, double gy) {
    int axis = 0, x = 0, y = 0;
    EXPECT_EQ(ChartPixelToGraph(chart, &axis, &x, &y, &gx, &gy, true, false, false), 1);
    return {x, y};
}

class ChartWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(parent.CreateEx(0, nullptr, "host", WS_POPUP | WS_VISIBLE, 0, 0, 640, 480,
                                    nullptr, nullptr));
        RECT rect{0, 0, 640, 480};
        chart = ChartCreate(0, 0, &rect, parent.m_hWnd, kChartId);
        ASSERT_NE(chart, nullptr);
        FillChart(chart);
        driver.Pump();
    }
    void TearDown() override { parent.DestroyWindow(); }

    POINT PixelOf(double gx, double gy) { return ::PixelOf(chart, gx, gy); }

    CWnd parent;
    HWND chart = nullptr;
    UiDriver driver;
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
    ASSERT_EQ(ChartGetArray(chart, 2610, nullptr), 28);
    ChartGetArray(chart, 2610, spot);
    EXPECT_EQ(spot[4], 5);
    EXPECT_EQ(spot[5], 0);
    EXPECT_EQ(spot[6], 4);
    int mouse[2] = {};
    ChartGetArray(chart, 2637, mouse);
    EXPECT_EQ(mouse[0], point.x);
    EXPECT_EQ(mouse[1], point.y);

    driver.Click(chart, PixelOf(4, 90));
    ChartGetArray(chart, 2610, spot);
    EXPECT_EQ(spot[4], 0);
}

TEST_F(ChartWindowTest, DraggingABoxZoomsAndTheFrameCommandUndoesIt) {
    const POINT origin = PixelOf(0, 0);
    NotificationRecorder recorder(parent.m_hWnd);
    driver.Drag(chart, PixelOf(2.5, 95), PixelOf(6.5, 55));
    EXPECT_EQ(recorder.Commands(CHARTN_ZOOMIN).size(), 1u);
    EXPECT_EQ(ChartGetInt(chart, 3283), 1);
    double gx = 0, gy = 0;
    int axis = 0, x = origin.x, y = origin.y;
    ChartPixelToGraph(chart, &axis, &x, &y, &gx, &gy, false, false, false);
    EXPECT_GT(gx, 2.0); // the old origin now lies left of the zoomed range

    SendMessage(chart, WM_COMMAND, 53053, 0);
    EXPECT_EQ(ChartGetInt(chart, 3283), 0);
    x = origin.x, y = origin.y;
    ChartPixelToGraph(chart, &axis, &x, &y, &gx, &gy, false, false, false);
    EXPECT_NEAR(gx, 0, 0.1);
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
    ChartSetString(chart, 2105, "Stored");
    const std::string path = TempPath("good.chart");
    ASSERT_EQ(ChartStore(chart, path.c_str()), 1);

    RECT rect{0, 0, 300, 200};
    HWND copy = ChartCreateFromFile(path.c_str(), parent.m_hWnd, &rect, 8);
    ASSERT_NE(copy, nullptr);
    char title[1024] = {};
    ChartGetString(copy, 2105, title);
    EXPECT_STREQ(title, "Stored");
    EXPECT_EQ(ChartGetArray(copy, 3014, nullptr), 11 * 8);
    ChartDestroy(copy);

    std::ifstream in(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), {});
    const std::string truncated = TempPath("truncated.chart");
    std::ofstream(truncated, std::ios::binary) << bytes.substr(0, bytes.size() - 5);
    ChartSetString(chart, 2105, "Unchanged");
    EXPECT_EQ(ChartLoad(chart, truncated.c_str()), 0);
    EXPECT_EQ(ChartCreateFromFile(truncated.c_str(), parent.m_hWnd, &rect, 9), nullptr);
    EXPECT_EQ(ChartLoad(chart, TempPath("missing.chart").c_str()), 0);
    ChartGetString(chart, 2105, title);
    EXPECT_STREQ(title, "Unchanged");
    ASSERT_EQ(ChartLoad(chart, path.c_str()), 1);
    ChartGetString(chart, 2105, title);
    EXPECT_STREQ(title, "Stored");
    std::remove(path.c_str());
    std::remove(truncated.c_str());
}

TEST_F(ChartWindowTest, WritesBitmapsByExtensionAndAnSvgPicture) {
    int size[] = {300, 200};
    const std::string png = TempPath("out.png"), bmp = TempPath("out.BMP");
    ASSERT_EQ(ChartCopyBitmapToFile(chart, size, png.c_str()), 1);
    ASSERT_EQ(ChartCopyBitmapToFile(chart, size, bmp.c_str()), 1);
    EXPECT_EQ(ChartCopyBitmapToFile(chart, size, TempPath("out.gif").c_str()), 0);
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

// What the clipboard holds in a registered format, or "" when it holds nothing there.
std::string ClipboardBytes(const char* format) {
    std::string bytes;
    if (!OpenClipboard(nullptr))
        return bytes;
    if (const HANDLE data = GetClipboardData(RegisterClipboardFormat(format))) {
        const HGLOBAL block = static_cast<HGLOBAL>(data);
        bytes.assign(static_cast<const char*>(GlobalLock(block)), GlobalSize(block));
        GlobalUnlock(block);
    }
    CloseClipboard();
    return bytes;
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
    EXPECT_EQ(ChartGetInt(gone, 2115), 0);
    EXPECT_EQ(ChartGetArray(gone, 3013, nullptr), -1);
    EXPECT_EQ(ChartSetInt(gone, 2115, 1), 0);
    int size[] = {100, 100};
    EXPECT_EQ(ChartCopyBitmapToFile(gone, size, TempPath("gone.png").c_str()), 0);
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
