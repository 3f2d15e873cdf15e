// Check box and button cells: a press lays a real button over the cell, and only a release over
// it counts as a click, which the owner hears once; the drawing of box, label and caption.

#include "CellGrid.h"

#include "cells/GridCellButton.h"
#include "cells/GridCellCheckbox.h"
#include "cells/GridColorCell.h"
#include "cells/InPlaceButton.h"
#include "grid/GridNotify.h"
#include "platform/system/SysColors.h"
#include "platform/window/Input.h"
#include "platform/window/WindowApi.h"

#include <algorithm>

namespace {

constexpr int kCheckColumn = 1;
constexpr int kButtonColumn = 2;
constexpr int kColorColumn = 3;
constexpr int kRow = 2;
constexpr int kBoxSide = 14;
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr int kGlyphTolerance = 12; // of the three channels summed

class ButtonCellTest : public CellGrid {
protected:
    void SetUp() override {
        UseColumnType(kCheckColumn, RUNTIME_CLASS(CGridCellCheckbox));
        UseColumnType(kButtonColumn, RUNTIME_CLASS(CGridCellButton));
        UseColumnType(kColorColumn, RUNTIME_CLASS(CGridColorCell));
        for (int row = 1; row < kRows; row++) {
            // As a spreadsheet makes them: never edited as text.
            for (int col : {kCheckColumn, kButtonColumn, kColorColumn}) {
                grid.SetItemState(row, col, grid.GetItemState(row, col) | GV_STATE_READONLY);
            }
            grid.SetItemText(row, kCheckColumn, "Active");
            grid.SetItemText(row, kButtonColumn, "Edit...");
        }
        grid.SetModified(FALSE);
        recorder->Clear();
    }
    CPoint OnBox(int row) const {
        CRect rect;
        const_cast<CGridCtrl&>(grid).GetCellRect(row, kCheckColumn, &rect);
        return CPoint(rect.left + kBoxSide / 2, rect.top + kBoxSide / 2);
    }
    CWnd* InPlaceButton() const { return grid.GetDlgItem(IDC_INPLACE_BUTTON); }
    bool Checked(int row) const { return grid.GetItemData(row, kCheckColumn) != 0; }
};

TEST_F(ButtonCellTest, AClickOnTheBoxTogglesItAndTellsTheOwnerOnceEachTime) {
    ui.MouseDown(Grid(), OnBox(kRow));
    ASSERT_NE(InPlaceButton(), nullptr); // the press is held by a real button
    EXPECT_EQ(grid.GetFocusCell(), CCellID(kRow, kCheckColumn));
    EXPECT_FALSE(Checked(kRow));
    ui.MouseUp(Grid(), OnBox(kRow));
    EXPECT_TRUE(Checked(kRow));
    EXPECT_EQ(InPlaceButton(), nullptr);
    ASSERT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);
    const RecordedMessage told = recorder->Notifications(GV_NOTIFY_CELLBUTTON).front();
    EXPECT_EQ(told.row, kRow);
    EXPECT_EQ(told.column, kCheckColumn);

    // The owner finds the new state already in the cell when it hears of the click.
    int heardChecked = -1;
    parent.onNotify = [&](const NMHDR& header) {
        if (header.code == UINT(GV_NOTIFY_CELLBUTTON)) {
            heardChecked = Checked(kRow) ? 1 : 0;
        }
    };
    ui.Click(Grid(), OnBox(kRow));
    EXPECT_FALSE(Checked(kRow));
    EXPECT_EQ(heardChecked, 0);
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 2);
    // None of this is an edit.
    EXPECT_EQ(Count(GV_NOTIFY_BEGINLABELEDIT), 0);
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 0);
    EXPECT_FALSE(grid.GetModified(kRow, kCheckColumn));
}

TEST_F(ButtonCellTest, AQuickClickWhoseReleaseArrivesWithItsPressStillCounts) {
    // A display may hand over a quick press and its release together, before the press has
    // laid its button over the cell.
    const auto quickClick = [&](CPoint client) {
        ui.MouseMove(Grid(), client);
        CPoint screen = client;
        grid.ClientToScreen(&screen);
        InjectMouseButton(VK_LBUTTON, true, screen);
        InjectMouseButton(VK_LBUTTON, false, screen);
        ui.Pump();
    };
    quickClick(OnBox(kRow));
    EXPECT_TRUE(Checked(kRow));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);
    EXPECT_EQ(InPlaceButton(), nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);

    // Nothing holds the mouse, so the next click counts too, quick or not.
    ui.Click(Grid(), OnBox(kRow));
    EXPECT_FALSE(Checked(kRow));
    quickClick(CellCentre(kRow, kButtonColumn));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 3);
    EXPECT_EQ(InPlaceButton(), nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ButtonCellTest, APressReleasedElsewhereOrOffTheBoxOrOnADisabledCellDoesNothing) {
    ui.MouseDown(Grid(), OnBox(kRow));
    ui.MouseUp(Grid(), CellCentre(kRow + 2, kColorColumn));
    EXPECT_FALSE(Checked(kRow));
    EXPECT_EQ(InPlaceButton(), nullptr);

    // The label right of the box is not the box.
    ui.Click(Grid(), CellCentre(kRow, kCheckColumn) + CPoint(kColumnWidth / 4, 0));
    EXPECT_FALSE(Checked(kRow));

    grid.SetItemState(kRow, kCheckColumn,
                      grid.GetItemState(kRow, kCheckColumn) | GV_STATE_DISABLED);
    ui.Click(Grid(), OnBox(kRow));
    EXPECT_FALSE(Checked(kRow));
    EXPECT_EQ(InPlaceButton(), nullptr);
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 0);
}

TEST_F(ButtonCellTest, AButtonCellAnswersAClickInsideButNotNearItsSideEdgesOrWhenDisabled) {
    ui.Click(Grid(), CellCentre(kRow, kButtonColumn));
    ASSERT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);
    EXPECT_EQ(recorder->Notifications(GV_NOTIFY_CELLBUTTON).front().column, kButtonColumn);
    EXPECT_EQ(grid.GetItemText(kRow, kButtonColumn), "Edit...");

    const CRect cell = CellRect(kRow + 1, kButtonColumn);
    ui.Click(Grid(), CPoint(cell.left + 3, cell.CenterPoint().y));
    ui.Click(Grid(), CPoint(cell.right - 3, cell.CenterPoint().y));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);

    ui.MouseDown(Grid(), cell.CenterPoint());
    ui.MouseUp(Grid(), CellCentre(kRow + 3, kColorColumn));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);

    grid.SetItemState(kRow, kButtonColumn,
                      grid.GetItemState(kRow, kButtonColumn) | GV_STATE_DISABLED);
    ui.Click(Grid(), CellCentre(kRow, kButtonColumn));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 1);
    EXPECT_EQ(InPlaceButton(), nullptr);
}

TEST_F(ButtonCellTest, AColourCellIsAPlainCellThatAClickLeavesAlone) {
    grid.SetItemBkColour(kRow, kColorColumn, RGB(0, 128, 0));
    grid.RedrawCell(kRow, kColorColumn);
    ui.Pump();
    EXPECT_EQ(ui.Pixel(Grid(), CellRect(kRow, kColorColumn).TopLeft() + CPoint(4, 4)),
              RGB(0, 128, 0));
    ui.Click(Grid(), CellCentre(kRow, kColorColumn));
    ui.Click(Grid(), CellCentre(kRow, kColorColumn));
    EXPECT_EQ(InPlaceButton(), nullptr);
    EXPECT_FALSE(grid.IsItemEditing(kRow, kColorColumn));
    EXPECT_EQ(Count(GV_NOTIFY_CELLBUTTON), 0);
}

TEST_F(ButtonCellTest, TheBoxShrinksWithTheCellAndASelectedLabelIsWhite) {
    EXPECT_EQ(CGridCellCheckbox::BoxRect(CRect(0, 0, 80, 10)), CRect(1, 1, 9, 9));
    EXPECT_EQ(CGridCellCheckbox::BoxRect(CRect(10, 20, 20, 60)), CRect(11, 21, 19, 29));
    EXPECT_EQ(CGridCellCheckbox::BoxRect(CRect(0, 0, 80, 20)), CRect(1, 1, 15, 15));

    grid.SetItemText(kRow, kCheckColumn, "MMMMMMMM");
    grid.SetSelectedRange(kRow, kCheckColumn, kRow, kCheckColumn);
    grid.SetFocusCell(kRow + 1, kCheckColumn);
    ui.Pump();
    const CRect label = CellRect(kRow, kCheckColumn);
    int white = 0;
    for (int x = label.left + kBoxSide + 6; x < label.right - 2; x++) {
        for (int y = label.top + 2; y < label.bottom - 2; y++) {
            white += ui.Pixel(Grid(), CPoint(x, y)) == kWhite ? 1 : 0;
        }
    }
    EXPECT_GT(white, 0);
}

TEST_F(ButtonCellTest, ADisabledButtonShowsAGreyedCaption) {
    grid.SetItemText(kRow, kButtonColumn, "MMMM");
    grid.SetItemState(kRow, kButtonColumn,
                      grid.GetItemState(kRow, kButtonColumn) | GV_STATE_DISABLED);
    grid.RedrawCell(kRow, kButtonColumn);
    ui.Pump();
    // The caption's darkest pixels are the greyed colour, softened at the glyphs' edges, and
    // nowhere near the black of an enabled caption.
    const auto brightness = [](COLORREF c) { return GetRValue(c) + GetGValue(c) + GetBValue(c); };
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const int greyed = brightness(face - 0x444450);
    const CRect cell = CellRect(kRow, kButtonColumn);
    int darkest = brightness(face);
    for (int x = cell.left + 4; x < cell.right - 4; x++) {
        darkest = std::min(darkest, brightness(ui.Pixel(Grid(), CPoint(x, cell.CenterPoint().y))));
    }
    EXPECT_LT(darkest, brightness(face));
    EXPECT_GE(darkest, greyed - kGlyphTolerance);
}

} // namespace
