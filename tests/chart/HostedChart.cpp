// A chart in a visible pop-up host, and the readings the chart tests share.

#include "HostedChart.h"

#include "chart/ChartApi.h"

#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"

#include <cstdlib>

std::string ChartTestPath(const std::string& name) {
    const char* directory = std::getenv("TMPDIR");
    return std::string(directory ? directory : "/tmp") + "/chart-test-" + name;
}

POINT PixelOf(HWND chart, double gx, double gy) {
    int axis = 0, x = 0, y = 0;
    EXPECT_EQ(ChartPixelToGraph(chart, &axis, &x, &y, &gx, &gy, true, false, false), 1);
    return {x, y};
}

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

HostedChartTest::HostedChartTest(int chartId, int width, int height)
    : m_chartId(chartId), m_size(width, height) {}

void HostedChartTest::SetUp() {
    ASSERT_TRUE(parent.CreateEx(0, nullptr, "host", WS_POPUP | WS_VISIBLE, 0, 0, m_size.cx,
                                m_size.cy, nullptr, nullptr));
    RECT rect{0, 0, m_size.cx, m_size.cy};
    chart = ChartCreate(0, 0, &rect, parent.m_hWnd, m_chartId);
    ASSERT_NE(chart, nullptr);
    Fill(chart);
    driver.Pump();
}
