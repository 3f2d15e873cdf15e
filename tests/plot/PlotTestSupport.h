#pragma once

// What the plot tests share: an application main window that plots report to and that routes
// the plot menu's commands, and a plot that records the hooks the library calls on it.

#include "plot/Plot.h"
#include "plot/PlotApi.h"
#include "plot/PlotData.h"
#include "plot/PlotEvents.h"
#include "plot/PlotList.h"
#include "plot/PlotMenuResource.h"
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

// A plot of one curve of points (0, 0) .. (10, 100) on fixed axes.
inline void FillLine(EPlot& plot) {
    EPlotData data;
    data.Initialize(1, 11, 0);
    for (int i = 0; i <= 10; ++i)
        data.SetDataForPoint(0, i, i, 10.0 * i);
    data.SetSubsetColor(0, MUcolor(200, 0, 0));
    data.UpdatePlotFromData(plot.GetHwnd());
    plot.SetXRange(0, 10, EPlot::RangeBothGiven);
    plot.SetYRange(0, 100, EPlot::RangeBothGiven);
    plot.RedrawPlot();
}

// Where a point of graph coordinates lies in the plot's chart.
inline POINT PixelOf(EPlot& plot, double gx, double gy) {
    int axis = 0, x = 0, y = 0;
    EXPECT_TRUE(plot.PixelToGraph(axis, x, y, gx, gy, true, false, false));
    return {x, y};
}

// The application's multiple-document frame: it keeps the plot whose menu is up, as
// WM_PLOT_SETMENUPLOT tells it, and hands the plot menu's commands to that plot.
class PlotApplicationFrame : public CMDIFrameWnd {
public:
    EPlot* menuPlot = nullptr;
    bool closePlotOnMenu = false; // as an application may, told of the plot

protected:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        if (message == WM_PLOT_SETMENUPLOT) {
            menuPlot = reinterpret_cast<EPlot*>(lParam);
            if (menuPlot && closePlotOnMenu)
                g_plotList.DeletePlot(menuPlot->GetHwnd());
            return TRUE;
        }
        return CMDIFrameWnd::OnWndMsg(message, wParam, lParam, result);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        return pmRunPlotMenuCommand(menuPlot, LOWORD(wParam)) ||
               CMDIFrameWnd::OnCommand(wParam, lParam);
    }
};

class PlotFixture : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(mainWindow.Create(nullptr, "Application", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                      CRect(0, 0, 800, 600)));
        AfxSetMainWnd(&mainWindow);
        recorder = std::make_unique<NotificationRecorder>(mainWindow.m_hWnd);
        recorder->Watch(WM_PLOT_CLOSED);
        recorder->Watch(WM_PLOT_SETMENUPLOT);
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

    PlotApplicationFrame mainWindow;
    std::unique_ptr<NotificationRecorder> recorder;
    UiDriver driver;
};
