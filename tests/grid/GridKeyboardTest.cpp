// The keyboard as a user works it: moving the focus at the grid's edges and over hidden and
// merged cells, extending the selection, paging, clearing cells, starting edits, and the form
// mode whose Tab hands the focus to the dialog's next control.

#include "GridOnScreen.h"

namespace {

class GridKeyboardTest : public GridOnScreen {
protected:
    // A grid with the keyboard focus and its focus cell at (row, col).
    void FocusAt(int row, int col) {
        ui.Click(Grid(), CellCentre(row, col));
        parent.notifications.clear();
    }
};

TEST_F(GridKeyboardTest, WithoutAFocusCellKeysPassOnSilently) {
    Open(6, 6);
    grid.SetFocus();
    ui.PressKey(VK_DOWN);
    EXPECT_TRUE(parent.notifications.empty());
    EXPECT_EQ(grid.GetFocusCell(), CCellID());
}

TEST_F(GridKeyboardTest, ArrowsStepOverHiddenLinesAndStopAtTheEdges) {
    Open(8, 8);
    grid.SetRowHeight(3, 0);
    grid.SetColumnWidth(3, 0);
    FocusAt(2, 2);

    ui.PressKey(VK_DOWN);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(4, 2));
    ui.PressKey(VK_RIGHT);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(4, 4));
    ui.PressKey(VK_UP);
    ui.PressKey(VK_LEFT);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 2));
    ASSERT_EQ(parent.Of(GV_NOTIFY_SELCHANGED).size(), 4u);
    EXPECT_EQ(parent.Of(GV_NOTIFY_SELCHANGING).size(), 4u);

    // At the first non-fixed row Up stays, and a press that moves nothing reports no change.
    FocusAt(1, 1);
    ui.PressKey(VK_UP);
    ui.PressKey(VK_LEFT);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(1, 1));
    EXPECT_EQ(parent.Of(GV_NOTIFY_SELCHANGING).size(), 2u);
    EXPECT_TRUE(parent.Of(GV_NOTIFY_SELCHANGED).empty());

    // With every following row hidden, Down does not move.
    for (int row = 6; row < 8; row++) {
        grid.SetRowHeight(row, 0);
    }
    FocusAt(5, 1);
    ui.PressKey(VK_DOWN);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(5, 1));
}

TEST_F(GridKeyboardTest, TabWrapsToTheNextRowAndStaysAtTheLastCell) {
    Open(4, 4);
    FocusAt(1, 3);
    ui.PressKey(VK_TAB);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 1));
    ui.PressKey(VK_TAB, MK_SHIFT);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(1, 3));

    FocusAt(3, 3);
    ui.PressKey(VK_TAB);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(3, 3));
    EXPECT_TRUE(parent.Of(GV_NOTIFY_SELCHANGED).empty());
}

TEST_F(GridKeyboardTest, ShiftExtendsTheSelectionAndTabStartsItAnew) {
    Open(8, 8);
    FocusAt(2, 2);
    ui.PressKey(VK_DOWN, MK_SHIFT);
    ui.PressKey(VK_RIGHT, MK_SHIFT);
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(2, 2, 3, 3));
    ui.PressKey(VK_TAB, MK_SHIFT); // Shift with Tab goes left and starts over
    EXPECT_EQ(grid.GetFocusCell(), CCellID(3, 2));
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(3, 2, 3, 2));
    ui.PressKey(VK_DOWN);
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(4, 2, 4, 2));
}

TEST_F(GridKeyboardTest, PagingWithNothingToScrollGoesToTheFirstOrLastRow) {
    Open(6, 4);
    FocusAt(3, 2);
    ui.PressKey(VK_NEXT);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(5, 2));
    ui.PressKey(VK_PRIOR);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(1, 2));
}

TEST_F(GridKeyboardTest, PagingDownMovesByTheRowsScrolled) {
    constexpr int kRows = 60;
    Open(kRows, 4, 300, 200);
    FocusAt(2, 2);
    ui.PressKey(VK_NEXT);
    const int top = grid.GetVisibleNonFixedCellRange().minRow;
    EXPECT_GT(top, 1);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2 + top - 1, 2));
    EXPECT_TRUE(grid.IsCellVisible(grid.GetFocusCell()));
}

TEST_F(GridKeyboardTest, HomeAndEndSkipHiddenColumnsAndControlGoesToTheCorners) {
    Open(6, 6);
    grid.SetColumnWidth(1, 0);
    grid.SetColumnWidth(5, 0);
    FocusAt(3, 3);
    ui.PressKey(VK_HOME);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(3, 2));
    ui.PressKey(VK_END);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(3, 4));
    ui.PressKey(VK_END, MK_CONTROL);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(5, 4));
    ui.PressKey(VK_HOME, MK_CONTROL);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(1, 2));
}

TEST_F(GridKeyboardTest, KeysLandOnTheMergedBlockAndMoveOnPastIt) {
    Open(6, 6);
    grid.MergeCells(2, 2, 3, 3);
    FocusAt(2, 1);
    ui.PressKey(VK_RIGHT);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 2));
    ui.PressKey(VK_RIGHT);
    ui.PressKey(VK_RIGHT);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 4));
    // A click anywhere in the block gives its top-left cell.
    FocusAt(3, 3);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 2));
}

TEST_F(GridKeyboardTest, DeleteClearsSelectedEditableCellsAsOneBulkChange) {
    Open(5, 5);
    for (int row = 1; row < 5; row++) {
        for (int col = 1; col < 5; col++) {
            grid.SetItemText(row, col, "x");
        }
    }
    grid.SetItemState(2, 2, grid.GetItemState(2, 2) | GV_STATE_READONLY);
    grid.EnableCell(2, 3, FALSE);
    FocusAt(1, 1);
    ui.PressKey(VK_DOWN, MK_SHIFT);
    ui.PressKey(VK_RIGHT, MK_SHIFT);
    ui.PressKey(VK_RIGHT, MK_SHIFT);
    ui.Click(Grid(), CellCentre(1, 2), MK_CONTROL); // out of the selection
    parent.notifications.clear();

    ui.PressKey(VK_DELETE);
    EXPECT_EQ(grid.GetItemText(1, 1), "");
    EXPECT_EQ(grid.GetItemText(1, 2), "x"); // not selected
    EXPECT_EQ(grid.GetItemText(2, 2), "x"); // read-only
    EXPECT_EQ(grid.GetItemText(2, 3), "x"); // disabled
    EXPECT_EQ(grid.GetItemText(2, 1), "");
    EXPECT_EQ(grid.GetItemText(3, 1), "x"); // outside
    ASSERT_FALSE(parent.notifications.empty());
    EXPECT_EQ(parent.notifications[1].code, UINT(GV_NOTIFY_BEGINBULKEDIT));
    EXPECT_EQ(parent.notifications.back().code, UINT(GV_NOTIFY_ENDBULKEDIT));
    EXPECT_TRUE(parent.Of(GV_NOTIFY_SELCHANGED).empty());
}

TEST_F(GridKeyboardTest, TypingAndF2StartAnEditButEscapeDoesNot) {
    Open(5, 5);
    FocusAt(2, 2);
    ui.PressKey(VK_ESCAPE);
    EXPECT_TRUE(parent.Of(GV_NOTIFY_BEGINLABELEDIT).empty());
    ui.Type("a");
    grid.EndEditing();
    ui.PressKey(VK_F2);
    grid.EndEditing();
    ASSERT_EQ(parent.Of(GV_NOTIFY_BEGINLABELEDIT).size(), 2u);
    EXPECT_EQ(parent.Of(GV_NOTIFY_BEGINLABELEDIT)[0].row, 2);
    // With control held a letter is a shortcut, not the start of an edit.
    parent.notifications.clear();
    ui.PressKey('B', MK_CONTROL);
    EXPECT_TRUE(parent.Of(GV_NOTIFY_BEGINLABELEDIT).empty());
}

TEST_F(GridKeyboardTest, TheDialogCodeLeavesControlTabToTheDialog) {
    Open(3, 3);
    EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS | DLGC_WANTTAB);
    ui.KeyDown(VK_CONTROL);
    EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS);
    ui.KeyUp(VK_CONTROL);
    grid.SetHandleTabKey(FALSE);
    EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS);
}

TEST_F(GridKeyboardTest, AFormHandsTheFocusOnPastItsLastRowAndComesBackToTheValueColumn) {
    Open(4, 4);
    CWnd next;
    ASSERT_TRUE(next.Create(nullptr, "next", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                            CRect(0, 310, 50, 330), &parent, 2));
    grid.EnableCustomTabs(TRUE);
    FocusAt(1, 2);

    ui.PressKey(VK_DOWN);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 1)); // column 2 comes back to column 1
    ui.PressKey(VK_RIGHT);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 1)); // no sideways moves in a form
    ui.PressKey(VK_TAB);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(3, 1));
    EXPECT_EQ(CWnd::GetFocus(), &grid);
    ui.PressKey(VK_TAB);
    EXPECT_EQ(CWnd::GetFocus(), &next);
}

} // namespace
