// A plot's life: identifiers, registration, its window, and how it ends.

#include "PlotTestSupport.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "platform/window/WindowIcons.h"
#include "plot/PlotCanvas.h"
#include "plot/PlotWindowTop.h"

#include <cstdlib>

using namespace chartprop;

namespace {

constexpr unsigned char kTopLevel = 1;
constexpr unsigned char kDocument = 0;
constexpr int kNoControl = -1;
constexpr int kCanvasControl = 12;

// What the closed callback saw, for the test that installs its own.
struct ClosedCall {
    int id;
    HWND chart;
    bool chartAlive;
    int curves;
};
std::vector<ClosedCall> g_closedCalls;

void RecordClosed(int id, HWND chart) {
    g_closedCalls.push_back({id, chart, IsWindow(chart) != FALSE, ChartGetInt(chart, CurveCount)});
    pmPlotWindowNotify(id, chart);
}

class PlotLifeTest : public PlotFixture {};

TEST_F(PlotLifeTest, LivesFromConstructionUntilItsWindowCloses) {
    const int aliveBefore = RecordingPlot::Alive();
    auto* first = new RecordingPlot(kLineChart, g_plotDefaultTitle, nullptr, kTopLevel, 1);
    auto* second = new RecordingPlot(kLineChart, "Levels", nullptr, kTopLevel, 0);

    EXPECT_EQ(second->GetId(), first->GetId() + 1);
    EXPECT_EQ(g_plotList.NumPlots(), 2);
    EXPECT_TRUE(pmPlotDataExists());
    EXPECT_EQ(g_plotList.PlotFromId(second->GetId()), second);
    ASSERT_NE(first->GetHwnd(), nullptr);
    EXPECT_EQ(g_plotList.PlotFromHwnd(first->GetHwnd()), first);

    // The chart fills a top-level window titled from the identifier, with the hint.
    HWND host = GetParent(first->GetHwnd());
    char className[64] = {}, title[128] = {};
    GetClassName(host, className, sizeof className);
    GetWindowText(host, title, sizeof title);
    EXPECT_STREQ(className, kPlotTopWindowClass);
    EXPECT_EQ(std::string(title),
              "Plot " + std::to_string(first->GetId()) + " - Double click in plot for options");
    // The plot's defaults are in the chart, titles empty.
    EXPECT_EQ(ChartGetInt(first->GetHwnd(), PlottingMethod), MethodByCurve);
    EXPECT_EQ(ChartGetInt(first->GetHwnd(), 3100), 3);
    EXPECT_EQ(std::string(first->GetMainTitle().c_str()), "");

    // The user closes the window: the plot object goes, and the application hears of it.
    const HWND chart = first->GetHwnd();
    const int id = first->GetId();
    SendMessage(host, WM_CLOSE);
    driver.Pump();
    EXPECT_FALSE(IsWindow(host));
    EXPECT_EQ(RecordingPlot::Alive(), aliveBefore + 1);
    EXPECT_EQ(g_plotList.NumPlots(), 1);
    EXPECT_EQ(g_plotList.PlotFromId(id), nullptr);
    const auto closed = ClosedMessages();
    ASSERT_EQ(closed.size(), 1u);
    EXPECT_EQ(int(closed[0].wParam), id);
    EXPECT_EQ(HWND(closed[0].lParam), chart);
}

TEST_F(PlotLifeTest, ClosedCallbackSeesTheChartStillAlive) {
    g_closedCalls.clear();
    SetPlotClosedCallback(RecordClosed);
    auto* plot = new RecordingPlot(kLineChart, "Alive", nullptr, kTopLevel, 0);
    ChartSetInt(plot->GetHwnd(), CurveCount, 4);
    const HWND chart = plot->GetHwnd();
    const int id = plot->GetId();

    EXPECT_EQ(ClosePlotWindow(id, chart), 1);
    driver.Pump();
    ASSERT_EQ(g_closedCalls.size(), 1u);
    EXPECT_EQ(g_closedCalls[0].id, id);
    EXPECT_EQ(g_closedCalls[0].chart, chart);
    EXPECT_TRUE(g_closedCalls[0].chartAlive);
    EXPECT_EQ(g_closedCalls[0].curves, 4);
    EXPECT_FALSE(IsWindow(chart));
    EXPECT_EQ(g_plotList.NumPlots(), 0);
    EXPECT_EQ(ClosePlotWindow(id, chart), -1);
}

TEST_F(PlotLifeTest, DeletingThePlotClosesItsWindowOnce) {
    const int aliveBefore = RecordingPlot::Alive();
    auto* plot = new RecordingPlot(kLineChart, "Owned", nullptr, kTopLevel, 0);
    const HWND host = GetParent(plot->GetHwnd());
    delete plot; // the closed callback must not delete it a second time
    driver.Pump();
    EXPECT_FALSE(IsWindow(host));
    EXPECT_EQ(RecordingPlot::Alive(), aliveBefore);
    EXPECT_EQ(g_plotList.NumPlots(), 0);
    EXPECT_EQ(ClosedMessages().size(), 1u);
}

TEST_F(PlotLifeTest, PlotsWithOneIdentifierShareAWindow) {
    auto* first = new RecordingPlot(kLineChart, "Shared", nullptr, kTopLevel, 0);
    // A chart asked for under an identifier that a host already holds is that host's chart.
    auto* second = new RecordingPlot(kLineChart, "Ignored", kNoControl, first->GetId(), nullptr);
    EXPECT_EQ(second->GetHwnd(), first->GetHwnd());
    EXPECT_EQ(CreatePlotWindow(kLineChart, "Again", first->GetId(), kNoControl, nullptr, nullptr,
                               kTopLevel),
              first->GetHwnd());
    EXPECT_EQ(g_plotList.NumPlots(), 2);

    // One window closes: the first plot of that chart is deleted, and both leave the list.
    const int aliveBefore = RecordingPlot::Alive();
    SendMessage(GetParent(first->GetHwnd()), WM_CLOSE);
    driver.Pump();
    EXPECT_EQ(RecordingPlot::Alive(), aliveBefore - 1);
    EXPECT_EQ(g_plotList.NumPlots(), 0);
    EXPECT_EQ(ClosedMessages().size(), 1u);
    delete second; // the application's own object, now without a window
}

TEST_F(PlotLifeTest, DefaultTitleIsTheVeryConstantNotAnyEmptyText) {
    auto* named = new RecordingPlot(kLineChart, g_plotDefaultTitle, nullptr, kTopLevel, 0);
    const std::string empty;
    auto* blank = new RecordingPlot(kLineChart, empty.c_str(), nullptr, kTopLevel, 0);
    char title[64] = {};
    GetWindowText(GetParent(named->GetHwnd()), title, sizeof title);
    EXPECT_EQ(std::string(title), "Plot " + std::to_string(named->GetId()));
    GetWindowText(GetParent(blank->GetHwnd()), title, sizeof title);
    EXPECT_STREQ(title, "");
}

TEST_F(PlotLifeTest, DeletingByTypeKeepsOthersAndOnlyTheApiResetsIdentifiers) {
    auto* kept = new RecordingPlot(kLineChart, "Kept", nullptr, kTopLevel, 0);
    kept->type = "Profile";
    new RecordingPlot(kLineChart, "Gone", nullptr, kTopLevel, 0);

    g_plotList.DeletePlots("Recording");
    driver.Pump();
    ASSERT_EQ(g_plotList.NumPlots(), 1);
    EXPECT_EQ(g_plotList.PlotFromId(kept->GetId()), kept);
    const int next = g_plotList.NewId();
    EXPECT_GT(next, kept->GetId()); // the list's own delete keeps counting

    pmDeletePlots("Recording"); // nothing of that type is left, but the counter restarts
    EXPECT_EQ(g_plotList.NumPlots(), 1);
    EXPECT_EQ(g_plotList.NewId(), 1);
}

TEST_F(PlotLifeTest, PlotIdsByTypeAndTheLibrarysOwnWildcard) {
    auto* a = new RecordingPlot(kLineChart, "A", nullptr, kTopLevel, 0);
    auto* b = new RecordingPlot(kLineChart, "B", nullptr, kTopLevel, 0);
    b->type = "Other";
    int count = -1;
    int* ids = nullptr;
    pmGetPlotIds(&count, &ids, "Other");
    ASSERT_EQ(count, 1);
    EXPECT_EQ(ids[0], b->GetId());
    std::free(ids);

    g_plotList.GetPlotIds(&count, &ids, g_plotsAll);
    ASSERT_EQ(count, 2);
    EXPECT_EQ(ids[0], a->GetId());
    EXPECT_EQ(ids[1], b->GetId());
    std::free(ids);

    // A caller's own "Plots All" is text, and the wildcard is the constant itself.
    pmGetPlotIds(&count, &ids, g_plotsAll);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(ids, nullptr);
}

TEST_F(PlotLifeTest, CanvasGivenANewChartDestroysTheOldOne) {
    g_closedCalls.clear();
    SetPlotClosedCallback(RecordClosed);
    CWnd canvas;
    ASSERT_TRUE(canvas.CreateEx(0, nullptr, "", WS_CHILD | WS_VISIBLE, 10, 10, 300, 200,
                                mainWindow.m_hWnd, nullptr));
    HWND first =
        CreatePlotWindow(kLineChart, "", 0, kCanvasControl, canvas.m_hWnd, nullptr, kDocument);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(HWND(canvas.GetProp(kCanvasPlotProperty)), first);
    RECT client{};
    GetClientRect(first, &client);
    EXPECT_EQ(client.right, 300);
    EXPECT_EQ(client.bottom, 200);

    HWND second =
        CreatePlotWindow(kLineChart, "", 0, kCanvasControl, canvas.m_hWnd, nullptr, kDocument);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, first);
    EXPECT_FALSE(IsWindow(first));
    EXPECT_EQ(HWND(canvas.GetProp(kCanvasPlotProperty)), second);
    ASSERT_EQ(g_closedCalls.size(), 1u);
    EXPECT_EQ(g_closedCalls[0].id, 0);
    EXPECT_EQ(g_closedCalls[0].chart, first);
    EXPECT_TRUE(g_closedCalls[0].chartAlive);
    canvas.DestroyWindow();
}

TEST_F(PlotLifeTest, NoCanvasWithoutAParent) {
    EXPECT_EQ(CreatePlotWindow(kLineChart, "", 0, kCanvasControl, nullptr, nullptr, kDocument),
              nullptr);
}

} // namespace

namespace {

class PlotDocumentTest : public PlotFixture {};

TEST_F(PlotDocumentTest, DocumentPlotsLiveInTheFramesDocumentArea) {
    auto* first = new RecordingPlot(kLineChart, "First", nullptr, kDocument, 0);
    ASSERT_NE(first->GetHwnd(), nullptr);
    HWND firstHost = GetParent(first->GetHwnd());
    EXPECT_EQ(GetParent(firstHost), mainWindow.m_hWndMDIClient);
    EXPECT_TRUE(IsWindowVisible(firstHost));
    RECT host{}, chart{};
    GetClientRect(firstHost, &host);
    GetClientRect(first->GetHwnd(), &chart);
    EXPECT_EQ(chart.right, host.right);
    EXPECT_EQ(chart.bottom, host.bottom);

    // A maximised document is restored before a new one opens.
    mainWindow.MDIMaximize(CWnd::FromHandle(firstHost));
    BOOL maximised = FALSE;
    mainWindow.MDIGetActive(&maximised);
    ASSERT_TRUE(maximised);
    CRect place(20, 20, 420, 320);
    auto* second = new RecordingPlot(kLineChart, "Second", &place, kDocument, 0);
    HWND secondHost = GetParent(second->GetHwnd());
    mainWindow.MDIGetActive(&maximised);
    EXPECT_FALSE(maximised);
    EXPECT_EQ(GetWindowLong(firstHost, GWL_STYLE) & WS_MAXIMIZE, 0);
    CRect placed;
    GetWindowRect(secondHost, &placed);
    ScreenToClient(mainWindow.m_hWndMDIClient, reinterpret_cast<POINT*>(&placed.left));
    ScreenToClient(mainWindow.m_hWndMDIClient, reinterpret_cast<POINT*>(&placed.right));
    EXPECT_EQ(placed, place);

    // Closing the document window ends its plot, as for any host.
    SendMessage(secondHost, WM_CLOSE);
    driver.Pump();
    EXPECT_FALSE(IsWindow(secondHost));
    EXPECT_EQ(g_plotList.PlotFromHwnd(first->GetHwnd()), first);
    EXPECT_EQ(g_plotList.NumPlots(), 1);
    EXPECT_EQ(ClosedMessages().size(), 1u);
}

TEST_F(PlotDocumentTest, DocumentWindowsWearThePlotIcon) {
    constexpr UINT kPlotIcon = 128;
    constexpr int kIconSize = 16;
    ASSERT_TRUE(RegisterIconResource(
        kPlotIcon, kIconSize, std::vector<std::uint32_t>(kIconSize * kIconSize, 0xFF2060A0)));
    auto* plot = new RecordingPlot(kLineChart, "Iconic", nullptr, kDocument, 0);
    HWND host = GetParent(plot->GetHwnd());
    const auto icon = LRESULT(LoadIcon(nullptr, MAKEINTRESOURCE(kPlotIcon)));
    EXPECT_EQ(SendMessage(host, WM_GETICON, ICON_BIG, 0), icon);
    EXPECT_EQ(SendMessage(host, WM_GETICON, ICON_SMALL, 0), icon);
}

TEST_F(PlotDocumentTest, NoDocumentPlotWithoutADocumentFrame) {
    CWnd plain;
    ASSERT_TRUE(
        plain.CreateEx(0, nullptr, "Plain", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr));
    AfxSetMainWnd(&plain);
    auto* plot = new RecordingPlot(kLineChart, "Nowhere", nullptr, kDocument, 0);
    EXPECT_EQ(plot->GetHwnd(), nullptr);
    EXPECT_EQ(plot->SetPlotDefaults(), 0);
    EXPECT_EQ(g_plotList.NumPlots(), 1); // registered all the same
    delete plot;
    EXPECT_EQ(g_plotList.NumPlots(), 0);
    AfxSetMainWnd(&mainWindow);
    plain.DestroyWindow();
}

} // namespace
