#pragma once

// Shared by the tests of the chart window and of its dialogs: a chart in a visible pop-up host,
// and what those tests read back from a chart, the clipboard and the temporary folder.

#include "platform/testing/UiDriver.h"
#include "platform/window/Wnd.h"

#include <gtest/gtest.h>

#include <string>

// A file in the temporary folder (TMPDIR, or /tmp) for a chart test to write and remove.
std::string ChartTestPath(const std::string& name);

// The pixel of the chart's client area that shows the graph point (gx, gy) on the first axis.
POINT PixelOf(HWND chart, double gx, double gy);

// What the clipboard holds in a registered format, or "" when it holds nothing there.
std::string ClipboardBytes(const char* format);

// A chart of the given id filling a pop-up host of the given size; each test class fills the
// chart with its own data.
class HostedChartTest : public ::testing::Test {
protected:
    HostedChartTest(int chartId, int width, int height);

    void SetUp() override;
    void TearDown() override { parent.DestroyWindow(); }
    // Puts the test's data in the new chart; the host's input is pumped after it.
    virtual void Fill(HWND chart) = 0;

    CWnd parent;
    HWND chart = nullptr;
    UiDriver driver;

private:
    int m_chartId;
    CSize m_size;
};
