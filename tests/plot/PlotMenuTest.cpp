// A plot's context menu: the basic lists, a menu built from the items with their checks and
// greying for a plot and the item each command runs, and the list's own operations.

#include "PlotTestSupport.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "platform/testing/MenuResponder.h"
#include "platform/testing/ModalResponder.h"
#include "platform/window/Menu.h"
#include "plot/DlgAxisTitles.h"
#include "plot/PlotBar.h"
#include "plot/PlotRealtime.h"
#include "plot/RightMenuItems.h"

#include <gmock/gmock.h>

using namespace chartprop;
using ::testing::ElementsAre;

namespace {

constexpr unsigned char kTopLevel = 1;
constexpr int kAllItems = 0x3FF;
const char* const kSeparator = "-";

// The list's titles, a separator as "-" and a sub-menu as its title and its items in brackets.
std::vector<std::string> Titles(std::vector<ERightMenuItem*>& items) {
    std::vector<std::string> titles;
    for (ERightMenuItem* item : items) {
        if (item->AmISeparator()) {
            titles.push_back(kSeparator);
            continue;
        }
        std::string title = item->GetTitle().c_str();
        if (item->AmISubmenu()) {
            title += " [";
            for (const std::string& sub : Titles(*item->SubmenuItems()))
                title += sub + " ";
            title += "]";
        }
        titles.push_back(title);
    }
    return titles;
}

std::vector<std::string> Titles(ERightMenu& menu) {
    std::vector<ERightMenuItem*> items;
    for (int i = 0; i < menu.NumItems(); ++i)
        items.push_back(menu.ItemAtPosition(i));
    return Titles(items);
}

// An item that counts its actions.
class CountingItem : public ERightMenuItem {
public:
    explicit CountingItem(const char* title, int* runs = nullptr) : m_title(title), m_runs(runs) {}
    zvk::CStdStr<char> GetTitle() override { return m_title; }
    void PerformAction(EPlot*) override {
        if (m_runs)
            ++*m_runs;
    }

private:
    const char* m_title;
    int* m_runs;
};

// A plot that counts the hooks the menu's commands reach.
class CommandPlot : public RecordingPlot {
public:
    using RecordingPlot::RecordingPlot;
    void RunDataOptionsDialog() override { ++dataOptions; }
    void SaveDisplayDefaults() override { ++savedDefaults; }
    void UpdateAnnotations() override { ++annotationUpdates; }
    int OnExitCustomizeDialog() override { return ++customized; }

    int dataOptions = 0;
    int savedDefaults = 0;
    int annotationUpdates = 0;
    int customized = 0;
};

class PlotMenuTest : public PlotFixture {
protected:
    RecordingPlot* NewPlot() {
        auto* plot = new RecordingPlot(kLineChart, "Menu", nullptr, kTopLevel, 0);
        FillLine(*plot);
        driver.Pump();
        return plot;
    }

    // Builds the plot's menu from its items, lets the user choose `title`, and runs the item
    // chosen; answers whether an item ran.
    bool ChooseFromBuiltMenu(EPlot* plot, const std::string& title) {
        CMenu menu;
        int nextId = 0;
        plot->Menu().CreateMenu(menu, nextId, plot);
        menus.ChooseTitle(title);
        const int chosen = menu.TrackPopupMenu(TPM_RETURNCMD, 10, 10, &mainWindow);
        int counter = 0;
        return plot->Menu().PerformMenuActionFromItem(chosen, plot, counter);
    }

    const ShownMenuItem* Shown(const std::string& title) {
        return MenuResponder::FindItem(menus.Last().items, title);
    }

    MenuResponder menus;
};

TEST_F(PlotMenuTest, BasicMenusFollowTheMaskWithSeparatorsBetweenGroups) {
    ERightMenu menu;
    pmSetUpBasicMenus(menu, kAllItems);
    EXPECT_THAT(Titles(menu),
                ElementsAre("Plot Data...", "&Display Options...", "&Axis Titles...",
                            "&Set As Display Defaults", "-",
                            "&Legend [NONE - Top Bottom Left Right ]", "-", "&Frame Plot",
                            "&Maximize Plot", "-", "&View Values...", "&Export/Print..."));

    // A new mask replaces the list.
    pmSetUpBasicMenus(menu, PM_MENU_SAVEDEFAULTS);
    EXPECT_THAT(Titles(menu), ElementsAre("&Set As Display Defaults", "-"));
    pmSetUpBasicMenus(menu, PM_MENU_FRAME);
    EXPECT_THAT(Titles(menu), ElementsAre("&Frame Plot", "-"));
    pmSetUpBasicMenus(menu, PM_MENU_LEGEND | PM_MENU_EXPORT);
    EXPECT_THAT(Titles(menu),
                ElementsAre("&Legend [NONE - Top Bottom Left Right ]", "-", "&Export/Print..."));
    pmSetUpBasicMenus(menu, 0x80); // a bit with no item
    EXPECT_EQ(menu.NumItems(), 0);
    pmSetUpBasicMenus(menu, 0);
    EXPECT_EQ(menu.NumItems(), 0);

    // Bar and real-time plots come with their lists.
    auto* bars = new EPlotBar(kLineChart, "Bars", nullptr, kTopLevel);
    EXPECT_THAT(Titles(bars->Menu()),
                ElementsAre("Plot Data...", "&Display Options...", "&Set As Display Defaults", "-",
                            "&Frame Plot", "&Maximize Plot", "-", "&Export/Print..."));
    auto* live = new EPlotRealtime(kLineChart, "Live", nullptr, kTopLevel);
    EXPECT_THAT(Titles(live->Menu()),
                ElementsAre("Plot Data...", "&Display Options...", "&Set As Display Defaults", "-",
                            "&Frame Plot", "&Maximize Plot", "-", "&View Values...",
                            "&Export/Print..."));
}

TEST_F(PlotMenuTest, BuiltMenuShowsChecksAndGreyingForThePlot) {
    RecordingPlot* plot = NewPlot();
    pmSetUpBasicMenus(plot->Menu(), kAllItems);
    plot->Legend().ShowLegend(1, 2);

    EXPECT_TRUE(ChooseFromBuiltMenu(plot, "Top"));
    EXPECT_EQ(Shown("NONE")->state, 0u);
    EXPECT_EQ(Shown("Left")->state, UINT(MF_CHECKED));
    EXPECT_EQ(Shown("Top")->state, 0u);
    EXPECT_EQ(Shown("&Frame Plot")->state & MF_GRAYED, UINT(MF_GRAYED))
        << "nothing to frame before a zoom";
    EXPECT_EQ(Shown("&View Values...")->state, 0u);
    // The legend moved to the top, with no redraw of its own.
    EXPECT_TRUE(plot->Legend().IsShown());
    EXPECT_EQ(ChartGetInt(plot->GetHwnd(), LegendLocation), 0);

    EXPECT_TRUE(ChooseFromBuiltMenu(plot, "NONE"));
    EXPECT_EQ(Shown("Top")->state, UINT(MF_CHECKED));
    EXPECT_FALSE(plot->Legend().IsShown());
    EXPECT_TRUE(ChooseFromBuiltMenu(plot, "Bottom"));
    EXPECT_EQ(Shown("NONE")->state, UINT(MF_CHECKED));
    EXPECT_EQ(Shown("Top")->state, 0u) << "a hidden legend checks no place";
    EXPECT_EQ(ChartGetInt(plot->GetHwnd(), LegendLocation), 1);

    // The user zooms into the data: framing is offered and shows all the data again.
    driver.Drag(plot->GetHwnd(), PixelOf(*plot, 1, 90), PixelOf(*plot, 5, 60));
    ASSERT_EQ(ChartGetInt(plot->GetHwnd(), Zoomed), 1);
    EXPECT_TRUE(ChooseFromBuiltMenu(plot, "Frame Plot"));
    EXPECT_EQ(Shown("&Frame Plot")->state & MF_GRAYED, 0u);
    EXPECT_EQ(ChartGetInt(plot->GetHwnd(), Zoomed), 0);
    EXPECT_EQ(ChartGetInt(plot->GetHwnd(), 3282), 3) << "the frame setting is put back";

    // Dismissed, the menu runs nothing.
    EXPECT_FALSE(ChooseFromBuiltMenu(plot, "No such item"));
}

TEST_F(PlotMenuTest, ChosenNumbersRunTheItemsInsideSubMenusToo) {
    ERightMenu menu;
    int runs[4] = {};
    auto* sub = new ERightMenuItem;
    std::vector<ERightMenuItem*> subItems{new CountingItem("Inner 1", &runs[1]),
                                          new CountingItem("Inner 2", &runs[2])};
    sub->IamSubMenu(subItems);
    auto* separator = new ERightMenuItem;
    separator->IamSeparator();
    menu.AddMenuItem(new CountingItem("First", &runs[0]), -1);
    menu.AddMenuItem(separator, -1);
    menu.AddMenuItem(sub, -1);
    menu.AddMenuItem(new CountingItem("Last", &runs[3]), -1);

    CMenu built;
    int nextId = 0;
    menu.CreateMenu(built, nextId, nullptr);
    EXPECT_EQ(nextId, 5);
    EXPECT_EQ(built.GetMenuItemID(0), 1u);
    EXPECT_EQ(built.GetMenuState(1, MF_BYPOSITION), UINT(MF_SEPARATOR));
    EXPECT_EQ(built.GetSubMenu(2)->GetMenuItemID(1), 3u);
    EXPECT_EQ(built.GetMenuItemID(3), 4u);

    int counter = 0;
    EXPECT_TRUE(menu.PerformMenuActionFromItem(3, nullptr, counter));
    EXPECT_TRUE(menu.PerformMenuActionFromItem(4, nullptr, counter));
    EXPECT_FALSE(menu.PerformMenuActionFromItem(5, nullptr, counter));
    EXPECT_FALSE(menu.PerformMenuActionFromItem(0, nullptr, counter));
    EXPECT_EQ(runs[0], 0);
    EXPECT_EQ(runs[1], 0);
    EXPECT_EQ(runs[2], 1);
    EXPECT_EQ(runs[3], 1);
    menu.ClearMenu();
}

TEST_F(PlotMenuTest, ItemsAreAddedAtPositionsAndRemovedByTitle) {
    ERightMenu menu;
    for (const char* title : {"a", "b", "c", "d", "e"})
        menu.AddMenuItem(new CountingItem(title), -1);
    CountingItem stray("stray");
    menu.AddMenuItem(&stray, 5); // past the end: dropped, and still the caller's
    menu.AddMenuItem(&stray, -2);
    EXPECT_EQ(menu.NumItems(), 5);
    menu.AddMenuItem(new CountingItem("front"), 0);
    EXPECT_THAT(Titles(menu), ElementsAre("front", "a", "b", "c", "d", "e"));
    EXPECT_EQ(std::string(menu.ItemAtPosition(2)->GetTitle().c_str()), "b");
    EXPECT_EQ(std::string(menu.ItemAtPosition(40)->GetTitle().c_str()), "e");

    menu.AddMenuItem(new EMenuLegendLocSubMenu, 3);
    EXPECT_TRUE(menu.RemoveMenuItemWTitle("Top"));
    EXPECT_THAT(Titles(menu), ElementsAre("front", "a", "b", "&Legend [NONE - Bottom Left Right ]",
                                          "c", "d", "e"));
    EXPECT_TRUE(menu.RemoveMenuItemWTitle("d"));
    EXPECT_FALSE(menu.RemoveMenuItemWTitle("Top"));
    EXPECT_TRUE(menu.RemoveMenuItemWTitle("&Legend"));
    EXPECT_THAT(Titles(menu), ElementsAre("front", "a", "b", "c", "e"));
    menu.ClearMenu();
    EXPECT_EQ(menu.NumItems(), 0);
}

TEST_F(PlotMenuTest, FixedMenuCommandsRunThePlotsOperations) {
    constexpr UINT kPlotMenu = 7302;
    RegisterMenuResource(kPlotMenu, pmPlotMenuTemplate());
    RecordingPlot* plot = NewPlot();
    plot->Menu().SetMenuID(kPlotMenu);
    const HWND chart = plot->GetHwnd();
    const POINT where = PixelOf(*plot, 8, 10);

    ModalResponder dialogs;
    dialogs.Next().Type(CDlgAxisTitles::IDC_X_TITLE, "Offset (m)").Press(IDOK);
    menus.ChooseTitle("Axis Titles...");
    driver.RightClick(chart, where);
    ASSERT_EQ(dialogs.Count(), 1);
    char title[1024] = {};
    ChartGetString(chart, XAxisTitle, title);
    EXPECT_STREQ(title, "Offset (m)");
    EXPECT_EQ(mainWindow.menuPlot, nullptr) << "each command ends the menu plot";

    menus.ChooseTitle("Right");
    driver.RightClick(chart, where);
    EXPECT_EQ(pmGetLegendLocation(chart), 3);
    menus.ChooseTitle("NONE");
    driver.RightClick(chart, where);
    EXPECT_EQ(pmGetLegendLocation(chart), -1);

    dialogs.Next().Press(IDOK);
    menus.ChooseTitle("View Values...");
    driver.RightClick(chart, where);
    ASSERT_EQ(dialogs.Count(), 2);
    EXPECT_EQ(dialogs.Shown()[1].title, "View Values");
    EXPECT_EQ(mainWindow.menuPlot, nullptr);
}

TEST_F(PlotMenuTest, EachCommandRunsItsOperation) {
    constexpr UINT kPlotMenu = 7303;
    RegisterMenuResource(kPlotMenu, pmPlotMenuTemplate());
    auto* plot = new CommandPlot(kLineChart, "Commands", nullptr, kTopLevel, 0);
    FillLine(*plot);
    plot->SetMainTitle("Rating curve");
    plot->RedrawPlot();
    plot->Menu().SetMenuID(kPlotMenu);
    pmSetUpBasicMenus(plot->Menu(), kAllItems);
    const HWND chart = plot->GetHwnd();
    const POINT where = PixelOf(*plot, 8, 10);
    const auto choose = [&](const char* title) {
        menus.ChooseTitle(title);
        driver.RightClick(chart, where);
    };
    ModalResponder dialogs;

    dialogs.Next().Press(IDOK);
    choose("Display Options...");
    EXPECT_EQ(plot->customized, 1) << "the chart tells the plot its options changed";
    dialogs.Next().Press(IDCANCEL);
    choose("Export/Print...");
    dialogs.Next().Press(IDCANCEL);
    choose("Maximize Plot");
    ASSERT_EQ(dialogs.Count(), 3);
    EXPECT_EQ(dialogs.Shown()[0].title, "Customize Chart");
    EXPECT_EQ(dialogs.Shown()[1].title, "Export Chart");
    EXPECT_EQ(dialogs.Shown()[2].title, "Rating curve");

    choose("Set As Display Defaults");
    EXPECT_EQ(plot->savedDefaults, 1);
    choose("Top");
    EXPECT_EQ(plot->annotationUpdates, 1) << "the fixed menu's legend commands redraw";
    EXPECT_TRUE(ChooseFromBuiltMenu(plot, "Bottom"));
    EXPECT_EQ(plot->annotationUpdates, 1) << "the items' legend actions do not";
    EXPECT_TRUE(ChooseFromBuiltMenu(plot, "Plot Data..."));
    EXPECT_EQ(plot->dataOptions, 1);

    driver.Drag(chart, PixelOf(*plot, 1, 90), PixelOf(*plot, 5, 60));
    ASSERT_EQ(ChartGetInt(chart, Zoomed), 1);
    choose("Frame Plot");
    EXPECT_EQ(ChartGetInt(chart, Zoomed), 0);
    EXPECT_EQ(plot->annotationUpdates, 2);
    EXPECT_EQ(mainWindow.menuPlot, nullptr);
}

} // namespace
