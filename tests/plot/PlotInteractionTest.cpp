// The user's gestures on a plot's chart: dragging a data point, drawing a rubber line between
// two clicks, a double click on an axis title, and the right click that shows the plot's menu.

#include "PlotTestSupport.h"

#include "chart/ChartApi.h"
#include "chart/ChartEngine.h"
#include "chart/ChartPropertyIds.h"
#include "platform/testing/MenuResponder.h"
#include "platform/testing/ModalResponder.h"
#include "plot/DlgAxisTitles.h"

#include <optional>

using namespace chartprop;

namespace {

constexpr unsigned char kTopLevel = 1;
constexpr UINT kPlotMenu = 7301;

struct DragCheck {
    int curve;
    int point;
    Pt2<double> start;
    Pt2<double> current;
};

// A plot whose data points the user may drag; the test decides what the drag hook answers.
class DragPlot : public RecordingPlot {
public:
    using RecordingPlot::RecordingPlot;

    void PlotClick(int curve, int point, Pt2<double> where, unsigned char* drag,
                   unsigned char* rubber) override {
        RecordingPlot::PlotClick(curve, point, where, drag, rubber);
        clickedAt = where;
        *drag = curve >= 0 ? 1 : 0;
    }
    int CheckDragPoint(int curve, int point, Pt2<double> start, Pt2<double>* current,
                       unsigned char* moveX, unsigned char* moveY) override {
        checks.push_back({curve, point, start, *current});
        *moveX = 1;
        *moveY = 1;
        return allowMove ? 1 : 0;
    }
    void EndDrag(int curve, int point, Pt2<double> start, Pt2<double>* end) override {
        ended = DragCheck{curve, point, start, *end};
    }

    bool allowMove = true;
    Pt2<double> clickedAt;
    std::vector<DragCheck> checks;
    std::optional<DragCheck> ended;
};

// A plot that starts a rubber line at every click.
class RubberPlot : public RecordingPlot {
public:
    using RecordingPlot::RecordingPlot;

    void PlotClick(int curve, int point, Pt2<double> where, unsigned char* drag,
                   unsigned char* rubber) override {
        RecordingPlot::PlotClick(curve, point, where, drag, rubber);
        *rubber = 1;
    }
    void ChangeXORData(int count, Pt2<double>* points) override {
        lines.emplace_back(points, points + count);
    }

    std::vector<std::vector<Pt2<double>>> lines;
};

std::vector<double> Doubles(HWND chart, int property) {
    std::vector<double> values(size_t(std::max(ChartGetArray(chart, property, nullptr), 0)) /
                               sizeof(double));
    if (!values.empty())
        ChartGetArray(chart, property, values.data());
    return values;
}

double DataAt(HWND chart, int property, int index) {
    double value = 0;
    ChartGetElement(chart, property, index, &value);
    return value;
}

std::string Title(HWND chart, int property) {
    char text[1024] = {};
    ChartGetString(chart, property, text);
    return text;
}

class PlotInteractionTest : public PlotFixture {
protected:
    template <class Plot> Plot* NewPlot() {
        auto* plot = new Plot(kLineChart, "Gestures", nullptr, kTopLevel, 0);
        FillLine(*plot);
        driver.Pump();
        return plot;
    }

    // Hovers over the chart until the hot spot under the mouse is of `kind`.
    std::optional<POINT> FindHotSpot(HWND chart, int kind) {
        RECT client{};
        GetClientRect(chart, &client);
        for (int y = client.bottom - 1; y >= 0; y -= 3)
            for (int x = 0; x < client.right; x += 6) {
                driver.MouseMove(chart, {x, y});
                tagHOTSPOTDATA spot{};
                ChartGetArray(chart, HotSpot, &spot);
                if (spot.m_kind == kind)
                    return POINT{x, y};
            }
        return std::nullopt;
    }
};

TEST_F(PlotInteractionTest, DraggingAPointMovesItAndTellsTheHooksWhereItWent) {
    auto* plot = NewPlot<DragPlot>();
    const HWND chart = plot->GetHwnd();
    driver.Drag(chart, PixelOf(*plot, 4, 40), PixelOf(*plot, 6, 70));

    ASSERT_EQ(plot->clicks.size(), 1u);
    EXPECT_EQ(plot->clicks[0], std::make_pair(0, 4));
    EXPECT_NEAR(plot->clickedAt.x, 4, 0.1);
    EXPECT_NEAR(plot->clickedAt.y, 40, 1);
    ASSERT_FALSE(plot->checks.empty());
    for (const DragCheck& check : plot->checks) {
        EXPECT_EQ(check.curve, 0);
        EXPECT_EQ(check.point, 4);
        EXPECT_EQ(check.start, plot->clickedAt) << "every move is measured from the press";
    }
    ASSERT_TRUE(plot->ended.has_value());
    EXPECT_EQ(plot->ended->curve, 0);
    EXPECT_EQ(plot->ended->point, 4);
    EXPECT_NEAR(plot->ended->current.x, 6, 0.1);
    EXPECT_NEAR(plot->ended->current.y, 70, 1);
    EXPECT_NEAR(DataAt(chart, XData, 4), 6, 0.1);
    EXPECT_NEAR(DataAt(chart, YData, 4), 70, 1);
    EXPECT_EQ(DataAt(chart, YData, 5), 50) << "the other points stay";

    // A drag far outside the chart stops five axis widths beyond each end: X runs from 0 to
    // 10 and Y from 0 to 100.
    plot->ended.reset();
    driver.Drag(chart, PixelOf(*plot, 5, 50), {-20000, 20000});
    ASSERT_TRUE(plot->ended.has_value());
    EXPECT_EQ(plot->ended->point, 5);
    EXPECT_DOUBLE_EQ(plot->ended->current.x, -50);
    EXPECT_DOUBLE_EQ(plot->ended->current.y, -500);
    EXPECT_DOUBLE_EQ(DataAt(chart, XData, 5), -50);
    EXPECT_DOUBLE_EQ(DataAt(chart, YData, 5), -500);
    plot->ended.reset();
    driver.Drag(chart, PixelOf(*plot, 3, 30), {20000, -20000});
    ASSERT_TRUE(plot->ended.has_value());
    EXPECT_DOUBLE_EQ(plot->ended->current.x, 60);
    EXPECT_DOUBLE_EQ(plot->ended->current.y, 600);

    // A press on empty chart area starts nothing.
    plot->ended.reset();
    plot->checks.clear();
    driver.Drag(chart, PixelOf(*plot, 8, 10), PixelOf(*plot, 9, 20));
    EXPECT_EQ(plot->clicks.back(), std::make_pair(-1, -1));
    EXPECT_TRUE(plot->checks.empty());
    EXPECT_FALSE(plot->ended.has_value());
}

TEST_F(PlotInteractionTest, ChartOnAutomaticRangesSetsTheDragNoLimit) {
    auto* plot = NewPlot<DragPlot>();
    plot->SetXRange(0, 0, EPlot::RangeNone);
    plot->SetYRange(0, 0, EPlot::RangeNone);
    plot->ClearProperty(XMinimum);
    plot->ClearProperty(XMaximum);
    plot->ClearProperty(YMinimum);
    plot->ClearProperty(YMaximum);
    plot->RedrawPlot();
    driver.Pump();
    driver.Drag(plot->GetHwnd(), PixelOf(*plot, 5, 50), PixelOf(*plot, 5, 70), 0, 1);
    ASSERT_TRUE(plot->ended.has_value());
    EXPECT_NEAR(plot->ended->current.y, 70, 1);
    EXPECT_NEAR(DataAt(plot->GetHwnd(), YData, 5), 70, 1);
}

TEST_F(PlotInteractionTest, ADragTheHookRefusesLeavesTheDataAlone) {
    auto* plot = NewPlot<DragPlot>();
    plot->allowMove = false;
    const HWND chart = plot->GetHwnd();
    const std::vector<double> xsBefore = Doubles(chart, XData);
    const std::vector<double> ysBefore = Doubles(chart, YData);
    driver.Drag(chart, PixelOf(*plot, 7, 70), PixelOf(*plot, 2, 10));

    EXPECT_FALSE(plot->checks.empty());
    EXPECT_EQ(Doubles(chart, XData), xsBefore);
    EXPECT_EQ(Doubles(chart, YData), ysBefore);
    // The drag still ends with the button, where the mouse was.
    ASSERT_TRUE(plot->ended.has_value());
    EXPECT_EQ(plot->ended->point, 7);
    EXPECT_NEAR(plot->ended->current.x, 2, 0.1);
}

TEST_F(PlotInteractionTest, RubberLineRunsFromTheFirstClickToTheSecond) {
    auto* plot = NewPlot<RubberPlot>();
    plot->Menu().SetMenuID(kPlotMenu);
    RegisterMenuResource(kPlotMenu, pmPlotMenuTemplate());
    const HWND chart = plot->GetHwnd();
    MenuResponder menus;

    driver.Click(chart, PixelOf(*plot, 2, 80));
    driver.MouseMove(chart, PixelOf(*plot, 6, 30));
    // The line follows the mouse while the button is up.
    EXPECT_EQ(ChartGetInt(chart, RubberLine), 1);
    const std::vector<double> xs = Doubles(chart, RubberX), ys = Doubles(chart, RubberY);
    ASSERT_EQ(xs.size(), 2u);
    ASSERT_EQ(ys.size(), 2u);
    EXPECT_NEAR(xs[0], 2, 0.1);
    EXPECT_NEAR(xs[1], 6, 0.1);
    EXPECT_NEAR(ys[0], 80, 1);
    EXPECT_NEAR(ys[1], 30, 1);
    std::vector<int> types(2), colours(2);
    ChartGetArray(chart, AnnotationTypes, types.data());
    ChartGetArray(chart, AnnotationColours, colours.data());
    EXPECT_EQ(types, (std::vector<int>{38, 45}));
    EXPECT_EQ(colours, (std::vector<int>{0, 0}));

    // A right click while the line runs is swallowed: no menu.
    driver.RightClick(chart, PixelOf(*plot, 6, 30));
    EXPECT_EQ(menus.Count(), 0);
    EXPECT_EQ(mainWindow.menuPlot, nullptr);

    // The second click ends the line and hands its two ends to the plot.
    driver.Click(chart, PixelOf(*plot, 8, 60));
    ASSERT_EQ(plot->lines.size(), 1u);
    ASSERT_EQ(plot->lines[0].size(), 2u);
    EXPECT_NEAR(plot->lines[0][0].x, 2, 0.1);
    EXPECT_NEAR(plot->lines[0][0].y, 80, 1);
    EXPECT_NEAR(plot->lines[0][1].x, 8, 0.1);
    EXPECT_NEAR(plot->lines[0][1].y, 60, 1);
    EXPECT_EQ(ChartGetInt(chart, RubberLine), 0);
    EXPECT_EQ(plot->clicks.size(), 1u) << "the ending click is no new click";

    // The next click starts a new line.
    driver.Click(chart, PixelOf(*plot, 1, 10));
    EXPECT_EQ(plot->clicks.size(), 2u);
    driver.Click(chart, PixelOf(*plot, 3, 10));
    EXPECT_EQ(plot->lines.size(), 2u);
}

TEST_F(PlotInteractionTest, DoubleClickOnAnAxisTitleEditsTheTitles) {
    auto* plot = NewPlot<RecordingPlot>();
    plot->SetXAxisTitle("Chainage");
    plot->SetYAxisTitle("Level");
    plot->RedrawPlot();
    const HWND chart = plot->GetHwnd();
    const std::optional<POINT> xTitle = FindHotSpot(chart, HOTSPOT_AXISLABEL1);
    ASSERT_TRUE(xTitle.has_value());

    ModalResponder dialogs;
    dialogs.Next()
        .Type(CDlgAxisTitles::IDC_X_TITLE, "Chainage (m)")
        .Type(CDlgAxisTitles::IDC_Y_TITLE, "Level (m)")
        .Press(IDOK);
    driver.DoubleClick(chart, *xTitle);
    ASSERT_EQ(dialogs.Count(), 1);
    EXPECT_EQ(dialogs.Shown()[0].title, "Axis Titles");
    EXPECT_EQ(dialogs.Shown()[0].TextOf(CDlgAxisTitles::IDC_X_TITLE), "Chainage");
    EXPECT_EQ(dialogs.Shown()[0].TextOf(CDlgAxisTitles::IDC_Y_TITLE), "Level");
    EXPECT_EQ(Title(chart, XAxisTitle), "Chainage (m)");
    EXPECT_EQ(Title(chart, YAxisTitle), "Level (m)");

    // Cancel keeps the titles; a double click elsewhere opens nothing.
    dialogs.Next().Type(CDlgAxisTitles::IDC_X_TITLE, "Offset").Press(IDCANCEL);
    driver.Advance(1000); // long enough for a fresh double click
    driver.DoubleClick(chart, *xTitle);
    EXPECT_EQ(Title(chart, XAxisTitle), "Chainage (m)");
    driver.Advance(1000);
    driver.DoubleClick(chart, PixelOf(*plot, 8, 10));
    EXPECT_EQ(dialogs.Count(), 2);
}

TEST_F(PlotInteractionTest, RightClickShowsTheFixedMenuAndTheChoiceReachesThePlot) {
    RegisterMenuResource(kPlotMenu, pmPlotMenuTemplate());
    auto* plot = NewPlot<RecordingPlot>();
    const HWND chart = plot->GetHwnd();
    MenuResponder menus;
    // Without a menu id the chart keeps the right click.
    driver.RightClick(chart, PixelOf(*plot, 5, 20));
    EXPECT_EQ(menus.Count(), 0);

    plot->Menu().SetMenuID(kPlotMenu);
    menus.ChooseTitle("Left");
    const POINT at = PixelOf(*plot, 5, 20);
    driver.RightClick(chart, at);
    ASSERT_EQ(menus.Count(), 1);
    const ShownPopupMenu& shown = menus.Last();
    EXPECT_EQ(shown.owner, mainWindow.m_hWnd);
    POINT screen = at;
    ClientToScreen(chart, &screen);
    EXPECT_EQ(shown.at.x, screen.x);
    EXPECT_EQ(shown.at.y, screen.y);
    EXPECT_NE(MenuResponder::FindItem(shown.items, "View Values..."), nullptr);

    // The main window heard of the plot, routed the command, and heard the menu end.
    EXPECT_TRUE(plot->Legend().IsShown());
    EXPECT_EQ(ChartGetInt(chart, LegendLocation), 2);
    std::vector<LPARAM> menuPlots;
    for (const RecordedMessage& record : recorder->Records())
        if (record.message == WM_PLOT_SETMENUPLOT)
            menuPlots.push_back(record.lParam);
    EXPECT_EQ(menuPlots, (std::vector<LPARAM>{reinterpret_cast<LPARAM>(plot), 0}));

    // Dismissed, the menu leaves the plot named as the one whose menu is up.
    menus.Dismiss();
    driver.RightClick(chart, at);
    EXPECT_EQ(mainWindow.menuPlot, plot);

    // An application that closes the plot when told of it gets no menu for the plot gone.
    mainWindow.closePlotOnMenu = true;
    const int plotsBefore = g_plotList.NumPlots();
    driver.RightClick(chart, at);
    EXPECT_FALSE(IsWindow(chart));
    EXPECT_EQ(g_plotList.NumPlots(), plotsBefore - 1);
    EXPECT_EQ(menus.Count(), 2);
}

} // namespace
