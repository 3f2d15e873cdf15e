// The values dialog as the user sees it: the plot's values in a read-only sheet, one pair of
// columns a curve, with gaps for missing points, negated Y when the chart asks for it, and
// controls that follow the dialog's size.

#include "PlotTestSupport.h"

#include "chart/ChartPropertyIds.h"
#include "grid/GridCellBase.h"
#include "platform/testing/ModalResponder.h"
#include "plot/DlgPlotViewValues.h"

#include <gmock/gmock.h>

using namespace chartprop;
using ::testing::ElementsAre;

namespace {

constexpr unsigned char kTopLevel = 1;
constexpr int kValuesNegated = 3033;
constexpr COLORREF kValueBackground = RGB(200, 200, 200);

// What the dialog's sheet showed, row by row.
struct SheetView {
    int rows = 0;
    int columns = 0;
    std::vector<std::vector<std::string>> texts;
    bool allReadOnly = true;
    bool allGrey = true;
};

SheetView ReadSheet(CDialog& dialog) {
    SheetView view;
    auto* sheet =
        dynamic_cast<CSpreadSheetORVA*>(dialog.GetDlgItem(CDlgPlotViewValues::IDC_VALUES));
    if (!sheet)
        return view;
    view.rows = sheet->GetRowCount();
    view.columns = sheet->GetColumnCount();
    for (int row = 0; row < view.rows; ++row) {
        std::vector<std::string> line;
        for (int column = 0; column < view.columns; ++column) {
            line.push_back(sheet->GetItemText(row, column).GetString());
            view.allReadOnly &= (sheet->GetItemState(row, column) & GV_STATE_READONLY) != 0;
            view.allGrey &= sheet->GetItemBkColour(row, column) == kValueBackground;
        }
        view.texts.push_back(line);
    }
    return view;
}

class PlotDialogsTest : public PlotFixture {
protected:
    // A plot of one curve of three points, (1, 2.5), (2, 3.25) and (3, 4).
    EPlot* NewPlot() {
        auto* plot = new EPlot(kLineChart, "Values", nullptr, kTopLevel, 0);
        EPlotData data;
        data.Initialize(1, 3, 0);
        data.SetDataForPoint(0, 0, 1, 2.5);
        data.SetDataForPoint(0, 1, 2, 3.25);
        data.SetDataForPoint(0, 2, 3, 4);
        data.SetCurveName(0, "Stage");
        data.UpdatePlotFromData(plot->GetHwnd());
        plot->SetXAxisTitle("Time (h)");
        plot->SetYAxisTitle("Level (m)");
        return plot;
    }

    // Opens the values dialog of `plot` from its menu command and reads what it shows.
    SheetView ViewValues(EPlot* plot) {
        SheetView view;
        ModalResponder dialogs;
        dialogs.Next()
            .Run([&view](CDialog& dialog, UiDriver&) { view = ReadSheet(dialog); })
            .Press(IDOK);
        plot->HandlePlotViewValues();
        EXPECT_EQ(dialogs.Count(), 1);
        if (dialogs.Count() == 1) {
            EXPECT_EQ(dialogs.Shown()[0].title, "View Values");
        }
        return view;
    }
};

TEST_F(PlotDialogsTest, ValuesOfOneCurveUnderItsNameAndTheAxisTitles) {
    const SheetView view = ViewValues(NewPlot());
    EXPECT_EQ(view.rows, 5);
    EXPECT_EQ(view.columns, 3);
    ASSERT_EQ(view.texts.size(), 5u);
    EXPECT_THAT(view.texts[0], ElementsAre("", "Stage", ""));
    EXPECT_THAT(view.texts[1], ElementsAre("", "Time (h)", "Level (m)"));
    EXPECT_THAT(view.texts[2], ElementsAre("1", "1.0", "2.5"));
    EXPECT_THAT(view.texts[3], ElementsAre("2", "2.0", "3.25"));
    EXPECT_THAT(view.texts[4], ElementsAre("3", "3.0", "4.0"));
    EXPECT_TRUE(view.allReadOnly);
    EXPECT_TRUE(view.allGrey);
}

TEST_F(PlotDialogsTest, MissingPointLeavesAGapAndNegatedYShowsNegated) {
    EPlot* plot = NewPlot();
    plot->SetProperty(XData, 1, chartprop::MissingValue);
    plot->SetProperty(kValuesNegated, 1);
    const SheetView view = ViewValues(plot);
    ASSERT_EQ(view.texts.size(), 5u);
    EXPECT_THAT(view.texts[2], ElementsAre("1", "1.0", "-2.5"));
    EXPECT_THAT(view.texts[3], ElementsAre("2", "", ""));
    EXPECT_THAT(view.texts[4], ElementsAre("3", "3.0", "-4.0"));
}

TEST_F(PlotDialogsTest, CurvesWithoutANameEachAreMadeOne) {
    const std::vector<std::vector<double>> xs{{0, 1}, {0, 1}}, ys{{5, 6}, {7, 8}};
    CDlgPlotViewValues dialog(xs, ys, {"Only one name"}, 0);
    dialog.SetXTitle("X");
    dialog.SetYTitle("Y");
    SheetView view;
    ModalResponder dialogs;
    dialogs.Next().Run([&view](CDialog& shown, UiDriver&) { view = ReadSheet(shown); });
    dialog.DoModal();
    ASSERT_EQ(view.texts.size(), 4u);
    EXPECT_THAT(view.texts[0], ElementsAre("", "Plot 1", "", "Plot 2", ""));
    EXPECT_THAT(view.texts[1], ElementsAre("", "X", "Y", "X", "Y"));
    EXPECT_THAT(view.texts[3], ElementsAre("2", "1.0", "6.0", "1.0", "8.0"));
}

TEST_F(PlotDialogsTest, SheetGrowsWithTheDialogAndTheButtonsFollowItsCorner) {
    const std::vector<std::vector<double>> xs{{0, 1}}, ys{{5, 6}};
    CDlgPlotViewValues dialog(xs, ys, {"Stage"}, 0);
    CRect sheetBefore, sheetAfter, okBefore, okAfter, gripBefore, gripAfter;
    MINMAXINFO limits{};
    const auto place = [](CDialog& d, int id) {
        CRect rect;
        d.GetDlgItem(id)->GetWindowRect(&rect);
        d.ScreenToClient(&rect);
        return rect;
    };
    ModalResponder dialogs;
    dialogs.Next().Run([&](CDialog& shown, UiDriver&) {
        sheetBefore = place(shown, CDlgPlotViewValues::IDC_VALUES);
        okBefore = place(shown, IDOK);
        gripBefore = place(shown, CDlgPlotViewValues::IDC_SIZE_GRIP);
        CRect frame;
        shown.GetWindowRect(&frame);
        shown.SetWindowPos(nullptr, 0, 0, frame.Width() + 120, frame.Height() + 40,
                           SWP_NOMOVE | SWP_NOZORDER);
        sheetAfter = place(shown, CDlgPlotViewValues::IDC_VALUES);
        okAfter = place(shown, IDOK);
        gripAfter = place(shown, CDlgPlotViewValues::IDC_SIZE_GRIP);
        shown.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    });
    dialog.DoModal();
    EXPECT_EQ(sheetAfter.TopLeft(), sheetBefore.TopLeft());
    EXPECT_EQ(sheetAfter.Width(), sheetBefore.Width() + 120);
    EXPECT_EQ(sheetAfter.Height(), sheetBefore.Height() + 40);
    EXPECT_EQ(okAfter, CRect(okBefore.left + 120, okBefore.top + 40, okBefore.right + 120,
                             okBefore.bottom + 40));
    EXPECT_EQ(gripAfter.TopLeft(), CPoint(gripBefore.left + 120, gripBefore.top + 40));
    EXPECT_EQ(limits.ptMinTrackSize.x, 200);
    EXPECT_EQ(limits.ptMinTrackSize.y, 150);
}

} // namespace
