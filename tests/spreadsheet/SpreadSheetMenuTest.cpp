// The right-click menu: Cut, Copy and Paste on a cell, with Cut and Paste greyed where the cell is
// read-only, no menu outside the cells, and the owner's own menu when a derived spreadsheet hands
// right clicks on.

#include "SheetOnScreen.h"

#include "grid/GridNotify.h"
#include "platform/testing/ClipboardText.h"
#include "platform/testing/MenuResponder.h"
#include "platform/window/Menu.h"

namespace {

constexpr int kRow = 2;

class SpreadSheetMenuTest : public SheetOnScreen {
protected:
    void SetUp() override {
        for (int row = 1; row < kRows; row++) {
            sheet.SetItemTextFmt(row, kName, "C-%d", row);
        }
        recorder->Clear();
    }
    // Selects the cell with a click and right-clicks it.
    void RightClickOn(int row, int col) {
        ui.Click(Sheet(), CellCentre(row, col));
        ui.RightClick(Sheet(), CellCentre(row, col));
    }
    static UINT StateOf(const ShownPopupMenu& menu, const char* title) {
        const ShownMenuItem* item = MenuResponder::FindItem(menu.items, title);
        return item != nullptr ? item->state : MENU_ITEM_NOT_FOUND;
    }
    MenuResponder menus;
};

TEST_F(SpreadSheetMenuTest, CopyAndPasteFromTheMenuMoveACellsText) {
    menus.ChooseTitle("Copy");
    RightClickOn(kRow, kName);
    ASSERT_EQ(menus.Count(), 1);
    const ShownPopupMenu& shown = menus.Last();
    ASSERT_EQ(shown.items.size(), 3u);
    EXPECT_EQ(shown.items[0].text, "Cut");
    EXPECT_EQ(shown.items[1].text, "Copy");
    EXPECT_EQ(shown.items[2].text, "Paste");
    EXPECT_EQ(shown.items[0].id, ID_SHEET_CUT);
    for (const ShownMenuItem& item : shown.items) {
        EXPECT_EQ(item.state & (MF_GRAYED | MF_DISABLED), 0u) << item.text;
    }
    // The menu opens where the mouse was.
    CPoint at = CellCentre(kRow, kName);
    sheet.ClientToScreen(&at);
    EXPECT_EQ(CPoint(shown.at), at);
    EXPECT_EQ(TextOnClipboard(), "C-2");

    menus.ChooseTitle("Paste");
    RightClickOn(kRow + 2, kBarrels);
    EXPECT_EQ(sheet.GetItemText(kRow + 2, kBarrels), ""); // no number: the int cell refuses
    menus.ChooseTitle("Paste");
    RightClickOn(kRow + 2, kName);
    EXPECT_EQ(sheet.GetItemText(kRow + 2, kName), "C-2");

    menus.ChooseTitle("Cut");
    RightClickOn(kRow + 3, kName);
    EXPECT_EQ(TextOnClipboard(), "C-5");
    EXPECT_EQ(sheet.GetItemText(kRow + 3, kName), "");
    // Each right click on a cell also reached the owner.
    EXPECT_EQ(Count(NM_RCLICK), 4);
}

TEST_F(SpreadSheetMenuTest, OnReadOnlyCellsCutAndPasteAreGreyAndCopyWorks) {
    for (const int col : {int(kSurveyed), int(kDetails), int(kColour)}) {
        menus.Dismiss();
        ui.RightClick(Sheet(), CellCentre(kRow, col));
        EXPECT_NE(StateOf(menus.Last(), "Cut") & MF_GRAYED, 0u) << col;
        EXPECT_NE(StateOf(menus.Last(), "Paste") & MF_GRAYED, 0u) << col;
        EXPECT_EQ(StateOf(menus.Last(), "Copy") & MF_GRAYED, 0u) << col;
    }
    EXPECT_EQ(menus.Count(), 3);

    // A grey item cannot be chosen: the cell keeps its label. (A click on the label, off the
    // box, selects the cell.)
    PutTextOnClipboard("pasted");
    menus.ChooseTitle("Paste");
    RightClickOn(kRow, kSurveyed);
    EXPECT_EQ(sheet.GetItemText(kRow, kSurveyed), "surveyed");
    EXPECT_EQ(menus.Count(), 4);
    menus.ChooseTitle("Copy");
    RightClickOn(kRow, kSurveyed);
    EXPECT_EQ(TextOnClipboard(), "surveyed");
}

TEST_F(SpreadSheetMenuTest, OutsideTheCellsNoMenuShowsAndTheOwnerHearsOfTheClick) {
    CRect client;
    sheet.GetClientRect(&client);
    const CPoint pastLastColumn(kColumns * kColumnWidth + 10, kRowHeight + 5);
    ASSERT_TRUE(client.PtInRect(pastLastColumn));
    ui.RightClick(Sheet(), pastLastColumn);
    EXPECT_EQ(menus.Count(), 0);
    const auto told = recorder->Notifications(NM_RCLICK);
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told.front().row, -1);
    EXPECT_EQ(told.front().column, -1);
}

TEST_F(SpreadSheetMenuTest, ADerivedSpreadsheetCanHandRightClicksToItsOwner) {
    sheet.m_bRClickToParent = true;
    ui.RightClick(Sheet(), CellCentre(kRow, kName));
    EXPECT_EQ(menus.Count(), 0);
    // Once from the spreadsheet and once more from the grid beneath it.
    const auto told = recorder->Notifications(NM_RCLICK);
    ASSERT_EQ(told.size(), 2u);
    EXPECT_EQ(told.front().row, kRow);
    EXPECT_EQ(told.front().column, kName);
    EXPECT_EQ(told.back().row, kRow);
}

} // namespace
