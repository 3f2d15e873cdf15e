// Scripted runs of Channel Designer through the UI driver: a user opens a reach, edits cells
// of every type, drags a bed point, works in the flow calculator and asks for help, while the
// test watches the sheet, the plots and the files follow. Each run saves the screens it sees.

#include "DesignerSession.h"

#include "Application.h"
#include "FlowDialog.h"
#include "HydrographDialog.h"
#include "OpenReachDialog.h"
#include "ReachFile.h"
#include "ReachPlots.h"

#include "cells/ColorChooserDlg.h"
#include "cells/GridCellCheckbox.h"
#include "cells/GridCellFltXYCrv.h"
#include "platform/testing/MessageBoxResponder.h"
#include "plot/PlotApi.h"
#include "plot/PlotList.h"
#include "plot/PlotMenuResource.h"
#include "support/TempFiles.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using Column = SectionSheet::Column;
constexpr int kCurveColours = 2190;
constexpr int kPickerInset = 6;   // pixels into a date cell: its first field
constexpr int kChooserSwatch = 5; // purple

// What a plot shows now, curve by curve.
struct PlotData {
    std::vector<std::vector<double>> x, y;
};
PlotData DataOf(EPlot* plot) {
    PlotData data;
    if (plot)
        plot->GetPlotData(data.x, data.y);
    return data;
}

// The id of a process that has ended.
int DeadProcessId() {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    ::waitpid(child, nullptr, 0);
    return int(child);
}

class ScriptedRun : public DesignerSession {};

TEST_F(ScriptedRun, OpeningAReachShowsItsSheetAndBothPlots) {
    MenuResponder menus;
    menus.Interact([&](const ShownPopupMenu& shown) {
        SaveScreen(*m_frame, "01-file-menu");
        EndMenu();
    });
    RECT file;
    GetMenuItemRect(*m_frame, ::GetMenu(*m_frame), 0, &file);
    CPoint at((file.left + file.right) / 2, (file.top + file.bottom) / 2);
    m_frame->ScreenToClient(&at);
    m_ui.Click(*m_frame, at);
    ASSERT_EQ(menus.Count(), 1);
    EXPECT_TRUE(MenuResponder::FindItem(menus.Last().items, "Open Reach..."));
    EXPECT_TRUE(MenuResponder::FindItem(menus.Last().items, "Open Example: Mill Creek"));

    ModalResponder dialogs;
    dialogs.Next()
        .Run([&](CDialog& dialog, UiDriver&) { SaveScreen(dialog, "02-open-dialog"); })
        .Choose(OpenReachDialog::kExamplesId, "mill-creek")
        .Press(IDOK);
    ChooseFromMenuBar(0, "Open Reach...");
    ASSERT_EQ(dialogs.Count(), 1);
    EXPECT_EQ(dialogs.Shown()[0].title, "Open Reach");
    ASSERT_EQ(m_frame->Reaches().size(), 1u);
    m_reach = m_frame->Reaches()[0];
    ReachDocument& document = m_reach->Document();
    SaveScreen(*m_frame, "03-reach-opened");

    // Seven sections below the headings, each with its worked-out level.
    EXPECT_EQ(m_reach->Sheet().GetRowCount(), 8);
    EXPECT_EQ(m_reach->Sheet().GetItemText(1, Column::kChainage), "0.0");
    EXPECT_EQ(m_reach->Sheet().GetItemText(5, Column::kLining), "Riprap (n 0.035)");
    const std::vector<ProfilePoint> profile = document.reach.Profile();
    ASSERT_EQ(profile.size(), 7u);
    for (size_t i = 0; i < profile.size(); ++i) {
        ASSERT_TRUE(profile[i].level);
        EXPECT_NEAR(std::atof(m_reach->Sheet().GetItemText(int(i) + 1, Column::kLevel)),
                    *profile[i].level, 0.0006);
    }
    // The long profile draws the bed and that water surface; the rating plot one curve for each
    // of the five surveyed sections, in their colours.
    const PlotData long_ = DataOf(document.ProfilePlot());
    ASSERT_EQ(long_.y.size(), 2u);
    EXPECT_DOUBLE_EQ(long_.y[LongProfilePlot::kBed][2], 102.05);
    EXPECT_NEAR(long_.y[LongProfilePlot::kWater][2], *profile[2].level, 1e-6);
    ASSERT_EQ(DataOf(document.RatingPlot()).y.size(), 5u);
    MUcolor first;
    document.RatingPlot()->GetProperty(kCurveColours, 0, first);
    EXPECT_EQ(first, MUcolor(0x1F, 0x77, 0xB4));
}

TEST_F(ScriptedRun, EditingCellsOfEveryTypeMovesThePlotsAndTheRecoveryCopy) {
    m_reach = OpenThroughDialog("mill-creek");
    ASSERT_TRUE(m_reach);
    ReachDocument& document = m_reach->Document();
    const HWND sheet = Sheet(*m_reach);
    auto levelAt = [&](int section) {
        return DataOf(document.ProfilePlot()).y[LongProfilePlot::kWater][size_t(section)];
    };

    // A number: the invert of section 2 goes up by 8 cm; the bed below it is steeper now, so
    // the flow there is shallower, but the water surface still rises.
    const double levelBefore = levelAt(1);
    m_ui.Click(sheet, CellCentre(2, Column::kInvert));
    m_ui.Type("102.3\r");
    EXPECT_EQ(m_reach->Sheet().GetItemText(2, Column::kInvert), "102.300");
    EXPECT_DOUBLE_EQ(document.reach.sections[1].invert, 102.3);
    EXPECT_DOUBLE_EQ(DataOf(document.ProfilePlot()).y[LongProfilePlot::kBed][1], 102.3);
    EXPECT_GT(levelAt(1), levelBefore);

    // A whole number: a third cell in the culvert at section 7 makes the flow there shallower.
    const double twoCells = levelAt(6);
    m_ui.Click(sheet, CellCentre(7, Column::kBarrels));
    m_ui.Type("3\r");
    EXPECT_EQ(document.reach.sections[6].barrels, 3);
    EXPECT_LT(levelAt(6), twoCells);

    // A lining from the list: grass becomes riprap, which is rougher, so the water rises.
    const double grassLevel = levelAt(3);
    m_ui.DoubleClick(sheet, CellCentre(4, Column::kLining));
    m_ui.PressKey(VK_DOWN);
    m_ui.PressKey(VK_RETURN);
    EXPECT_EQ(m_reach->Sheet().GetItemText(4, Column::kLining), "Riprap (n 0.035)");
    EXPECT_EQ(Linings()[size_t(document.reach.sections[3].lining)].name, std::string("Riprap"));
    EXPECT_GT(levelAt(3), grassLevel);

    // A date: the month of section 3's lining, typed into the picker's first field.
    CRect lined;
    m_reach->Sheet().GetCellRect(3, Column::kLined, &lined);
    m_ui.DoubleClick(sheet, CPoint(lined.left + kPickerInset, lined.CenterPoint().y));
    m_ui.Type("11");
    m_ui.PressKey(VK_RETURN);
    EXPECT_EQ(m_reach->Sheet().GetItemText(3, Column::kLined), "11/14/2018");
    EXPECT_EQ(document.reach.sections[2].lined, (CalendarDate{2018, 11, 14}));

    // A tick: section 4 is surveyed now, and the rating plot gains its curve.
    ASSERT_EQ(DataOf(document.RatingPlot()).y.size(), 5u);
    CRect box;
    m_reach->Sheet().GetCellRect(4, Column::kSurveyed, &box);
    m_ui.Click(sheet, CGridCellCheckbox::BoxRect(box).CenterPoint());
    EXPECT_TRUE(document.reach.sections[3].surveyed);
    EXPECT_EQ(DataOf(document.RatingPlot()).y.size(), 6u);

    // The space bar ticks the box that has the focus, as a click does: section 4 again, off.
    m_ui.PressKey(VK_SPACE);
    EXPECT_FALSE(document.reach.sections[3].surveyed);
    EXPECT_EQ(DataOf(document.RatingPlot()).y.size(), 5u);
    m_ui.PressKey(VK_SPACE);
    EXPECT_TRUE(document.reach.sections[3].surveyed);

    // The sheet's own menu on a colour cell, which the user cannot type into: Copy only.
    MenuResponder menus;
    menus.Dismiss();
    m_ui.RightClick(sheet, CellCentre(2, Column::kColour));
    ASSERT_EQ(menus.Count(), 1);
    const ShownMenuItem* cut = MenuResponder::FindItem(menus.Last().items, "Cut");
    const ShownMenuItem* copy = MenuResponder::FindItem(menus.Last().items, "Copy");
    ASSERT_TRUE(cut && copy);
    EXPECT_TRUE(cut->state & MF_GRAYED);
    EXPECT_FALSE(copy->state & MF_GRAYED);

    // A colour from the chooser: section 1's rating curve takes it.
    ModalResponder dialogs;
    const unsigned long original = document.reach.sections[0].colour;
    dialogs.Next()
        .Run([&](CDialog& dialog, UiDriver& driver) {
            auto& chooser = static_cast<CColorChooserDlg&>(dialog);
            driver.Click(chooser, chooser.SwatchRect(kChooserSwatch).CenterPoint());
            SaveScreen(chooser, "04-colour-chooser");
        })
        .Press(IDOK);
    m_ui.DoubleClick(sheet, CellCentre(1, Column::kColour));
    ASSERT_EQ(dialogs.Count(), 1);
    const unsigned long chosen = document.reach.sections[0].colour;
    EXPECT_NE(chosen, original);
    EXPECT_EQ(chosen, m_reach->Sheet().GetItemBkColour(1, Column::kColour));
    MUcolor curve;
    document.RatingPlot()->GetProperty(kCurveColours, 0, curve);
    EXPECT_EQ(curve, MUcolor(GetRValue(chosen), GetGValue(chosen), GetBValue(chosen)));

    // An inflow: 2 m3/s joining at section 5 deepens the flow from there on, not above it.
    const double above = levelAt(3), below = levelAt(5);
    m_ui.Click(sheet, CellCentre(5, Column::kInflow));
    m_ui.Type("2.4\r");
    EXPECT_DOUBLE_EQ(document.reach.sections[4].inflow.PeakRate(), 2.4);
    EXPECT_DOUBLE_EQ(levelAt(3), above);
    EXPECT_GT(levelAt(5), below + 0.05);
    // A hydrograph: picked from the list of section 6's inflow cell, then shaped in the dialog
    // that the cell's button opens. Its peak joins the flow from there on.
    CGridCellFltXYCrv* inflowCell =
        static_cast<CGridCellFltXYCrv*>(m_reach->Sheet().GetCell(6, Column::kInflow));
    CRect inflow;
    m_reach->Sheet().GetCellRect(6, Column::kInflow, &inflow);
    m_ui.Click(sheet, inflowCell->GetBotRect(inflow).CenterPoint());
    m_ui.PressKey(VK_DOWN); // the list opens on no choice: the first is <constant>
    m_ui.PressKey(VK_DOWN);
    m_ui.PressKey(VK_RETURN);
    EXPECT_EQ(m_reach->Sheet().GetItemText(6, Column::kInflow), "<hydrograph>");
    EXPECT_EQ(document.reach.sections[5].inflow, Inflow::Hydrograph(1.0));
    const double beforePeak = levelAt(6);
    dialogs.Next()
        .Run([&](CDialog& dialog, UiDriver& driver) {
            CGridCtrl& table = static_cast<HydrographDialog&>(dialog).Table();
            CRect rate;
            table.GetCellRect(2, 1, &rate);
            driver.Click(table, rate.CenterPoint());
            driver.Type("3.5\r");
            SaveScreen(dialog, "05-hydrograph-dialog");
        })
        .Press(IDOK);
    inflowCell = static_cast<CGridCellFltXYCrv*>(m_reach->Sheet().GetCell(6, Column::kInflow));
    m_ui.Click(sheet, inflowCell->GetTopRect(inflow).CenterPoint());
    ASSERT_EQ(dialogs.Count(), 2);
    EXPECT_EQ(dialogs.Shown()[1].title, "Inflow hydrograph");
    EXPECT_TRUE(document.reach.sections[5].inflow.isCurve);
    EXPECT_DOUBLE_EQ(document.reach.sections[5].inflow.PeakRate(), 3.5);
    EXPECT_GT(levelAt(6), beforePeak);

    m_ui.Click(sheet, CellCentre(7, Column::kChainage));
    SaveScreen(*m_frame, "06-cells-edited");

    // Every change went to the recovery copy in this run's own temporary directory.
    const fs::path recovery = document.recoveryPath;
    EXPECT_EQ(recovery.parent_path().filename().string(),
              "FlumeBench_" + std::to_string(::getpid()));
    Reach recovered;
    std::string error;
    ASSERT_TRUE(ReadReachFile(recovery, recovered, error)) << error;
    EXPECT_EQ(recovered.sections, document.reach.sections);
}

TEST_F(ScriptedRun, DraggingABedPointChangesTheSheet) {
    m_reach = OpenThroughDialog("east-drain");
    ASSERT_TRUE(m_reach);
    ReachDocument& document = m_reach->Document();
    EPlot* profile = document.ProfilePlot();
    ASSERT_TRUE(profile);
    const HWND chart = profile->GetHwnd();

    // Section 3's bed point, and a point 0.1 m above it, in the chart's pixels.
    auto pixelOf = [&](double x, double y) {
        int axis = 0, px = 0, py = 0;
        EXPECT_TRUE(profile->PixelToGraph(axis, px, py, x, y, true, false, false));
        return CPoint(px, py);
    };
    const CrossSection before = document.reach.sections[2];
    const CPoint from = pixelOf(before.chainage, before.invert);
    const CPoint to = pixelOf(before.chainage, before.invert + 0.1);
    ASSERT_LT(to.y, from.y - 4) << "the drag must be long enough to see";
    // While the point moves the water surface follows it on the plot, and the reach waits.
    const double waterBefore = DataOf(profile).y[LongProfilePlot::kWater][1];
    m_ui.MouseDown(chart, from);
    m_ui.MouseMove(chart, CPoint(from.x, (from.y + to.y) / 2));
    m_ui.MouseMove(chart, to);
    EXPECT_NE(DataOf(profile).y[LongProfilePlot::kWater][1], waterBefore);
    EXPECT_EQ(document.reach.sections[2].invert, before.invert);
    m_ui.MouseUp(chart, to);

    const double dragged = document.reach.sections[2].invert;
    EXPECT_NEAR(dragged, before.invert + 0.1, 0.01);
    EXPECT_EQ(document.reach.sections[2].chainage, before.chainage) << "only levels move";
    EXPECT_EQ(std::atof(m_reach->Sheet().GetItemText(3, Column::kInvert)), dragged);
    EXPECT_DOUBLE_EQ(DataOf(profile).y[LongProfilePlot::kBed][2], dragged);
    SaveScreen(*m_frame, "07-bed-point-dragged");
}

TEST_F(ScriptedRun, TheFlowCalculatorRecomputesAsTheUserTypesAndAppliesTheDesignDischarge) {
    m_reach = OpenThroughDialog("mill-creek");
    ASSERT_TRUE(m_reach);
    ReachDocument& document = m_reach->Document();
    m_ui.Click(Sheet(*m_reach), CellCentre(2, Column::kChainage)); // the calculator's section

    ModalResponder dialogs;
    double depth = 0, discharge = 0, velocity = 0, design = 0;
    CRect okBefore, okAfter;
    dialogs.Next()
        .Run([&](CDialog& dialog, UiDriver&) {
            auto& flow = static_cast<FlowDialog&>(dialog);
            // Section 2 at its own discharge: the normal depth of the sheet.
            EXPECT_NEAR(flow.depth.GetValue(), *document.reach.Profile()[1].depth, 0.001);
        })
        .Type(FlowDialog::kDepthId, "1.2")
        .Run([&](CDialog& dialog, UiDriver&) {
            auto& flow = static_cast<FlowDialog&>(dialog);
            depth = flow.depth.GetValue();
            discharge = flow.discharge.GetValue();
            velocity = flow.velocity.GetValue();
            SaveScreen(dialog, "08-flow-calculator");
        })
        .Type(FlowDialog::kBarrelsId, "2")
        .Run([&](CDialog& dialog, UiDriver&) {
            // Two barrels share the discharge: each runs at the depth of half of it.
            auto& flow = static_cast<FlowDialog&>(dialog);
            const CrossSection& s = document.reach.sections[1];
            EXPECT_NEAR(flow.depth.GetValue(),
                        *s.NormalDepth(flow.discharge.GetValue() / 2, document.reach.BedSlope(1)),
                        0.001);
        })
        .Type(FlowDialog::kBarrelsId, "1")
        .Type(FlowDialog::kDischargeId, "6.5")
        .Run([&](CDialog& dialog, UiDriver& driver) {
            auto& flow = static_cast<FlowDialog&>(dialog);
            design = flow.design.GetValue();
            CRect window;
            dialog.GetWindowRect(&window);
            ::GetWindowRect(::GetDlgItem(dialog, IDOK), &okBefore);
            dialog.SetWindowPos(nullptr, 0, 0, window.Width() + 160, window.Height() + 60,
                                SWP_NOMOVE | SWP_NOZORDER);
            driver.Pump();
            ::GetWindowRect(::GetDlgItem(dialog, IDOK), &okAfter);
            SaveScreen(dialog, "09-flow-calculator-wide");
        })
        .Press(IDOK);
    ChooseFromMenuBar(1, "Flow Calculator...");
    ASSERT_EQ(dialogs.Count(), 1);
    EXPECT_TRUE(dialogs.Shown()[0].problems.empty());

    // Depth 1.2 m in section 2 (3 m wide, sides 1.5:1, n 0.022, slope 0.003).
    const CrossSection& s = document.reach.sections[1];
    const double slope = document.reach.BedSlope(1);
    EXPECT_DOUBLE_EQ(depth, 1.2);
    // The fields keep the value they show, rounded to a few decimals.
    EXPECT_NEAR(discharge, hydraulics::Discharge(s.Shape(), 1.2, s.Roughness(), slope), 0.005);
    EXPECT_NEAR(velocity, hydraulics::Velocity(s.Shape(), 1.2, s.Roughness(), slope), 0.005);
    // The bound design field followed the typed discharge, and OK gave it to the reach.
    EXPECT_DOUBLE_EQ(design, 6.5);
    EXPECT_DOUBLE_EQ(document.reach.discharge, 6.5);
    EXPECT_NEAR(DataOf(document.ProfilePlot()).y[LongProfilePlot::kWater][0],
                *document.reach.Profile()[0].level, 1e-9);
    // Made larger, the dialog kept its buttons in the corner.
    EXPECT_EQ(okAfter.right - okBefore.right, 160);
    EXPECT_EQ(okAfter.bottom - okBefore.bottom, 60);

    // The button at the end of a row opens the calculator on that row's section.
    LRESULT shownSection = -1;
    dialogs.Next()
        .Run([&](CDialog& dialog, UiDriver&) {
            shownSection =
                ::SendMessage(::GetDlgItem(dialog, FlowDialog::kSectionId), CB_GETCURSEL, 0, 0);
        })
        .Press(IDCANCEL);
    m_ui.Click(Sheet(*m_reach), CellCentre(5, Column::kCalculate));
    ASSERT_EQ(dialogs.Count(), 2);
    EXPECT_EQ(shownSection, 4);
    EXPECT_DOUBLE_EQ(document.reach.discharge, 6.5) << "Cancel leaves the reach alone";
}

TEST_F(ScriptedRun, HelpOpensTheDocumentAtTheTopicOfTheMenuOrTheDialog) {
    const std::string document = std::string(CHANNEL_DESIGNER_FOLDER) + "rd4.pdf";
    ASSERT_TRUE(fs::exists(document)) << "made at build time";

    ChooseFromMenuBar(3, "Analysis");
    EXPECT_EQ(ReaderArguments(), "/A\nnameddest=5. Analysis\n" + document + "\n");

    m_reach = m_frame->OpenReach(m_frame->ExamplePath(2));
    ASSERT_TRUE(m_reach);
    ModalResponder dialogs;
    dialogs.Next().Press(IDHELP).Press(IDCANCEL);
    ChooseFromMenuBar(1, "Flow Calculator...");
    EXPECT_EQ(ReaderArguments(), "/A\nnameddest=Run Analysis\n" + document + "\n");
}

TEST_F(ScriptedRun, ClosingAReachClosesItsPlotsAndDropsItsRecoveryCopy) {
    m_reach = OpenThroughDialog("east-drain");
    ASSERT_TRUE(m_reach);
    ASSERT_TRUE(m_frame->OpenReach(m_frame->ExamplePath(1)));
    EXPECT_EQ(g_plotList.NumPlots(), 4);
    const std::string recovery = m_reach->Document().recoveryPath;
    EXPECT_TRUE(fs::exists(recovery));
    // East Drain lies under Mill Creek, but its caption shows above it: a click there brings
    // it forward, and File > Close Window closes it.
    CRect window, client;
    m_reach->GetWindowRect(&window);
    m_reach->GetClientRect(&client);
    m_reach->ClientToScreen(&client);
    m_ui.Click(*m_reach, CPoint(window.Width() / 2, (window.top - client.top) / 2));
    EXPECT_EQ(m_frame->MDIGetActive(), m_reach);
    ChooseFromMenuBar(0, "Close Window");
    ASSERT_EQ(m_frame->Reaches().size(), 1u);
    EXPECT_EQ(m_frame->Reaches()[0]->Document().reach.name, "Mill Creek to the road culvert");
    EXPECT_EQ(g_plotList.NumPlots(), 2);
    EXPECT_FALSE(fs::exists(recovery)) << "a reach closed as it should be needs no recovery copy";
}

TEST_F(ScriptedRun, EveryMenuOfTheBarOpensAndItsCommandsAct) {
    ChooseFromMenuBar(0, "Open Example: East Drain");
    ASSERT_EQ(m_frame->Reaches().size(), 1u);
    m_reach = m_frame->Reaches()[0];
    ReachDocument& document = m_reach->Document();

    const struct {
        const char* screen;
        std::vector<std::string> items;
    } bar[] = {
        {"10-menu-file", {"Open Reach...", "Open Example: Mill Creek", "Close Window", "Exit"}},
        {"11-menu-reach", {"Flow Calculator...", "Long Profile", "Rating Curves"}},
        {"12-menu-window", {"Cascade", "Tile", "Next Window"}},
        {"13-menu-help", {"Contents", "Analysis", "Flow Calculator", "About Channel Designer..."}},
    };
    for (int i = 0; i < int(std::size(bar)); ++i) {
        MenuResponder menus;
        menus.Interact([&](const ShownPopupMenu&) {
            SaveScreen(*m_frame, bar[i].screen);
            EndMenu();
        });
        RECT item;
        GetMenuItemRect(*m_frame, ::GetMenu(*m_frame), UINT(i), &item);
        CPoint at((item.left + item.right) / 2, (item.top + item.bottom) / 2);
        m_frame->ScreenToClient(&at);
        m_ui.Click(*m_frame, at);
        ASSERT_EQ(menus.Count(), 1) << bar[i].screen;
        for (const std::string& title : bar[i].items)
            EXPECT_TRUE(MenuResponder::FindItem(menus.Last().items, title)) << title;
    }

    // A plot closed by the user is deleted with its window, and the Reach menu brings it back.
    const HWND profileWindow = ::GetParent(document.ProfilePlot()->GetHwnd());
    ::SendMessage(profileWindow, WM_CLOSE, 0, 0);
    m_ui.Pump();
    EXPECT_FALSE(::IsWindow(profileWindow));
    EXPECT_EQ(document.ProfilePlot(), nullptr);
    EXPECT_EQ(g_plotList.NumPlots(), 1);
    ChooseFromMenuBar(1, "Long Profile");
    ASSERT_NE(document.ProfilePlot(), nullptr);
    EXPECT_EQ(DataOf(document.ProfilePlot()).y[LongProfilePlot::kBed].size(), 5u);

    // Tile lays the three windows side by side, none over another.
    ChooseFromMenuBar(2, "Tile");
    CRect sheet, profile, rating, overlap;
    m_reach->GetWindowRect(&sheet);
    ::GetWindowRect(::GetParent(document.ProfilePlot()->GetHwnd()), &profile);
    ::GetWindowRect(::GetParent(document.RatingPlot()->GetHwnd()), &rating);
    EXPECT_FALSE(overlap.IntersectRect(&sheet, &profile));
    EXPECT_FALSE(overlap.IntersectRect(&sheet, &rating));
    EXPECT_FALSE(overlap.IntersectRect(&profile, &rating));
    SaveScreen(*m_frame, "14-tiled");

    // Control+F6, as the menu says, goes on to the next window.
    const CMDIChildWnd* before = m_frame->MDIGetActive();
    m_ui.PressKey(VK_F6, MK_CONTROL);
    EXPECT_NE(m_frame->MDIGetActive(), before);

    MessageBoxResponder boxes;
    ChooseFromMenuBar(3, "About Channel Designer...");
    ASSERT_EQ(boxes.Count(), 1);
    EXPECT_NE(boxes.LastText().find("Manning's equation"), std::string::npos);
}

TEST_F(ScriptedRun, ThePlotMenuOpensTheValuesAndTheChartsOwnDialogs) {
    m_reach = OpenThroughDialog("mill-creek");
    ASSERT_TRUE(m_reach);
    EPlot* profile = m_reach->Document().ProfilePlot();
    const HWND chart = profile->GetHwnd();
    CRect client;
    ::GetClientRect(chart, &client);
    const CPoint inside(client.Width() * 3 / 4, client.Height() / 4);

    MenuResponder menus;
    menus.Interact([&](const ShownPopupMenu&) {
        SaveScreen(*m_frame, "15-plot-menu");
        EndMenu();
    });
    m_ui.RightClick(chart, inside);
    ASSERT_EQ(menus.Count(), 1);
    std::vector<UINT> commands;
    std::function<void(const std::vector<ShownMenuItem>&)> collect =
        [&](const std::vector<ShownMenuItem>& items) {
            for (const ShownMenuItem& item : items) {
                commands.push_back(item.id);
                collect(item.subItems);
            }
        };
    collect(menus.Last().items);
    for (UINT command :
         {ID_PLOT_VIEW_VALUES, ID_PLOT_DISPLAY_OPTIONS, ID_PLOT_EXPORT_PRINT, ID_PLOT_LEGEND_TOP})
        EXPECT_NE(std::find(commands.begin(), commands.end(), command), commands.end()) << command;

    // The values dialog, and the chart's options, export and maximised view, each from the menu.
    ModalResponder dialogs;
    const struct {
        UINT command;
        const char* screen;
        int button;
    } steps[] = {{ID_PLOT_VIEW_VALUES, "16-plot-values", IDOK},
                 {ID_PLOT_DISPLAY_OPTIONS, "17-plot-options", IDCANCEL},
                 {ID_PLOT_EXPORT_PRINT, "18-plot-export", IDCANCEL},
                 {ID_PLOT_MAXIMIZE, "19-plot-maximised", IDCANCEL}};
    for (const auto& step : steps) {
        dialogs.Next()
            .Run([&](CDialog& dialog, UiDriver&) { SaveScreen(dialog, step.screen); })
            .Press(step.button);
        menus.Choose(step.command);
        m_ui.RightClick(chart, inside);
    }
    ASSERT_EQ(dialogs.Count(), 4);
    for (const ShownDialog& shown : dialogs.Shown())
        EXPECT_TRUE(shown.problems.empty()) << shown.title;

    // The legend moves to the top of the chart.
    menus.Choose(ID_PLOT_LEGEND_TOP);
    m_ui.RightClick(chart, inside);
    EXPECT_EQ(pmGetLegendLocation(chart), 0);
}

// The temporary directories of runs that died are cleaned at start; the live run's stays.
TEST(StartUp, CleansTheTemporaryDirectoriesOfDeadRuns) {
    const std::string temporary = DesignerSession::TemporaryDirectory();
    const fs::path dead = temporary + "FlumeBench_" + std::to_string(DeadProcessId());
    fs::create_directories(dead);
    std::ofstream(dead / "left.reach") << "reach \"left behind\"\n";
    zvk::CStdStr<char> name;
    ASSERT_TRUE(ouGetTempFilename("reach", name, nullptr));
    const fs::path mine = fs::path(name.c_str()).parent_path();

    StartApplication(CHANNEL_DESIGNER_FOLDER);
    EXPECT_FALSE(fs::exists(dead));
    EXPECT_TRUE(fs::exists(mine));
}

} // namespace
