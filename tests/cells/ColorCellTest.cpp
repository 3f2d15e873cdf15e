// The colour cell: a double click opens the chooser on the cell's colour; what the user picks
// there, a standard colour or one typed in, becomes the cell's background, and a cancel leaves
// the cell as it was.

#include "CellGrid.h"

#include "cells/ColorChooserDlg.h"
#include "cells/GridColorCell.h"
#include "grid/GridNotify.h"
#include "platform/testing/ModalResponder.h"

namespace {

constexpr int kColorColumn = 3;
constexpr int kRow = 2;
constexpr COLORREF kInitial = RGB(0, 128, 0);
constexpr int kPureRed = 9; // the standard colour RGB(255, 0, 0)

class ColorCellTest : public CellGrid {
protected:
    void SetUp() override {
        UseColumnType(kColorColumn, RUNTIME_CLASS(CGridColorCell));
        grid.SetItemState(kRow, kColorColumn,
                          grid.GetItemState(kRow, kColorColumn) | GV_STATE_READONLY);
        grid.SetItemBkColour(kRow, kColorColumn, kInitial);
        grid.SetModified(FALSE);
        recorder->Clear();
    }
    void OpenChooser() { ui.DoubleClick(Grid(), CellCentre(kRow, kColorColumn)); }
    ModalResponder modal;
};

TEST_F(ColorCellTest, ColourTypedIntoTheChooserBecomesTheCellsBackground) {
    modal.Next()
        .Type(CColorChooserDlg::IDC_RED, "10")
        .Type(CColorChooserDlg::IDC_GREEN, "20")
        .Type(CColorChooserDlg::IDC_BLUE, "300") // beyond the range: taken as 255
        .Press(IDOK);
    OpenChooser();
    ASSERT_EQ(modal.Count(), 1);
    const ShownDialog& shown = modal.Shown().front();
    EXPECT_TRUE(shown.problems.empty());
    // The chooser opened on the cell's colour.
    EXPECT_EQ(shown.TextOf(CColorChooserDlg::IDC_RED), "0");
    EXPECT_EQ(shown.TextOf(CColorChooserDlg::IDC_GREEN), "128");

    EXPECT_EQ(grid.GetItemBkColour(kRow, kColorColumn), RGB(10, 20, 255));
    ui.Click(Grid(), CellCentre(kRow + 2, kColorColumn)); // the focus cell shows selected
    EXPECT_EQ(ui.Pixel(Grid(), CellRect(kRow, kColorColumn).TopLeft() + CPoint(4, 4)),
              RGB(10, 20, 255));
    EXPECT_TRUE(grid.GetModified(kRow, kColorColumn));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);
    EXPECT_EQ(Count(GV_NOTIFY_BEGINLABELEDIT), 0); // not a text edit
}

TEST_F(ColorCellTest, AClickOnAStandardColourPicksItAndCancelKeepsTheOldColour) {
    modal.Next()
        .Run([](CDialog& dialog, UiDriver& driver) {
            auto& chooser = static_cast<CColorChooserDlg&>(dialog);
            driver.Click(chooser.GetSafeHwnd(), chooser.SwatchRect(kPureRed).CenterPoint());
        })
        .Press(IDOK);
    OpenChooser();
    EXPECT_EQ(grid.GetItemBkColour(kRow, kColorColumn), RGB(255, 0, 0));

    grid.SetModified(FALSE);
    recorder->Clear();
    modal.Next().Type(CColorChooserDlg::IDC_GREEN, "99").Press(IDCANCEL);
    OpenChooser();
    EXPECT_EQ(modal.Count(), 2);
    EXPECT_EQ(grid.GetItemBkColour(kRow, kColorColumn), RGB(255, 0, 0));
    EXPECT_FALSE(grid.GetModified(kRow, kColorColumn));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 0);

    // A single click opens nothing.
    ui.Click(Grid(), CellCentre(kRow + 1, kColorColumn));
    ui.Click(Grid(), CellCentre(kRow, kColorColumn));
    EXPECT_EQ(modal.Count(), 2);
}

} // namespace
