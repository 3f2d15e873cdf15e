#pragma once

// What the plot tests share: an application main window that plots report to, and a plot
// that records the hooks the library calls on it.

#include "plot/Plot.h"
#include "plot/PlotApi.h"
#include "plot/PlotEvents.h"
#include "plot/PlotList.h"
#include "plot/PlotWindows.h"

#include "platform/testing/NotificationRecorder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/MdiFrame.h"
#include "platform/window/Wnd.h"

#include <gtest/gtest.h>

#include <bitset>
#include <memory>
#include <string>
#include <vector>

constexpr int kLineChart = 0;

// A plot that keeps what the library tells it. Its counter of live instances lets a test see
// which objects the closed callback deleted.
class RecordingPlot : public EPlot {
public:
    using EPlot::EPlot;
    RecordingPlot() = default;
    ~RecordingPlot() override { --s_alive; }

    void UpdatePlot(const std::bitset<36>& which, void* data) override {
        updates.push_back(which);
        lastData = data;
    }
    void PlotClick(int curve, int point, Pt2<double> where, unsigned char* drag,
                   unsigned char* rubber) override {
        clicks.push_back({curve, point});
        EPlot::PlotClick(curve, point, where, drag, rubber);
    }
    zvk::CStdStr<char> GetType() override { return type; }

    static int Alive() { return s_alive; }

    std::vector<std::bitset<36>> updates;
    void* lastData = nullptr;
    std::vector<std::pair<int, int>> clicks;
    zvk::CStdStr<char> type = "Recording";

private:
    struct Counter {
        Counter() { ++s_alive; }
    } m_counter;
    static inline int s_alive = 0;
};

class PlotFixture : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(mainWindow.Create(nullptr, "Application", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                      CRect(0, 0, 800, 600)));
        AfxSetMainWnd(&mainWindow);
        recorder = std::make_unique<NotificationRecorder>(mainWindow.m_hWnd);
        recorder->Watch(WM_PLOT_CLOSED);
        pmPlotDefaults(0);
    }
    void TearDown() override {
        pmDeletePlots(g_plotsAll); // each window's callback deletes its plot
        driver.Pump();
        SetPlotClosedCallback(nullptr);
        recorder.reset();
        AfxSetMainWnd(nullptr);
        mainWindow.DestroyWindow();
    }

    std::vector<RecordedMessage> ClosedMessages() const {
        std::vector<RecordedMessage> closed;
        for (const RecordedMessage& record : recorder->Records())
            if (record.message == WM_PLOT_CLOSED)
                closed.push_back(record);
        return closed;
    }

    CMDIFrameWnd mainWindow; // the application's multiple-document frame
    std::unique_ptr<NotificationRecorder> recorder;
    UiDriver driver;
};
