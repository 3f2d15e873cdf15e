// The focus cell and the selection: the map and the state bits kept in step, virtual mode, and
// the searches over cell states.

#include "GridOnScreen.h"

namespace {

using GridSelectionTest = GridOnScreen;

// The map and the bits must tell the same story.
void ExpectMapMatchesBits(CGridProbe& grid) {
    int selected = 0;
    for (int row = 0; row < grid.GetRowCount(); row++) {
        for (int col = 0; col < grid.GetColumnCount(); col++) {
            const bool bit = (grid.GetItemState(row, col) & GV_STATE_SELECTED) != 0;
            const bool mapped = grid.m_selectedCellMap.count(CGridProbe::SelectionKey(row, col));
            EXPECT_EQ(bit, mapped) << row << "," << col;
            selected += bit ? 1 : 0;
        }
    }
    EXPECT_EQ(grid.GetSelectedCount(), selected);
}

} // namespace

TEST_F(GridSelectionTest, FocusNeverRestsOnAFixedCell) {
    Open(6, 6);
    EXPECT_EQ(grid.SetFocusCell(0, 0), CCellID());
    EXPECT_EQ(grid.GetFocusCell(), CCellID(1, 1));
    EXPECT_TRUE(grid.GetItemState(1, 1) & GV_STATE_FOCUSED);
    EXPECT_EQ(grid.SetFocusCell(-1, 5), CCellID(1, 1));
    EXPECT_EQ(grid.GetFocusCell(), CCellID(-1, 5));
    EXPECT_FALSE(grid.GetItemState(1, 1) & GV_STATE_FOCUSED);
}

TEST_F(GridSelectionTest, ANewRangeReplacesTheSelectionAndRemovalLeavesTheRest) {
    Open(8, 8);
    grid.SetSelectedRange(0, 0, 2, 2); // fixed bounds are raised
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(1, 1, 2, 2));
    ExpectMapMatchesBits(grid);

    grid.SetSelectedRange(3, 3, 5, 5);
    EXPECT_EQ(grid.GetSelectedCount(), 9);
    EXPECT_FALSE(grid.IsCellSelected(1, 1));
    EXPECT_TRUE(grid.IsSelectedContinuous());

    grid.SetSelectedRange(4, 4, 4, 4, TRUE, FALSE);
    EXPECT_EQ(grid.GetSelectedCount(), 8);
    EXPECT_FALSE(grid.IsCellSelected(4, 4));
    EXPECT_FALSE(grid.IsSelectedContinuous());
    ExpectMapMatchesBits(grid);

    grid.SetSelectedRange(-1, -1, -1, -1);
    EXPECT_EQ(grid.GetSelectedCount(), 0);
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(8, 8, -1, -1));
    EXPECT_TRUE(grid.IsSelectedContinuous());
}

TEST_F(GridSelectionTest, ThePreviousSelectionIsKeptUnlessOneRowAtATimeIsAllowed) {
    Open(8, 8);
    grid.m_prevSelectedCellMap[CGridProbe::SelectionKey(1, 1)] = CCellID(1, 1);
    grid.SetSelectedRange(3, 3, 3, 4);
    EXPECT_TRUE(grid.IsCellSelected(1, 1));
    EXPECT_EQ(grid.GetSelectedCount(), 3);
    ExpectMapMatchesBits(grid);
    // Clearing ignores the previous map.
    grid.SetSelectedRange(-1, -1, -1, -1);
    EXPECT_EQ(grid.GetSelectedCount(), 0);

    grid.SetListMode(TRUE);
    grid.SetSingleRowSelection(TRUE);
    grid.m_prevSelectedCellMap[CGridProbe::SelectionKey(1, 1)] = CCellID(1, 1);
    grid.SetSelectedRange(3, 1, 3, 7);
    EXPECT_FALSE(grid.IsCellSelected(1, 1));
    EXPECT_EQ(grid.GetSelectedCount(), 7);
}

TEST_F(GridSelectionTest, SelectOperationsExtendFromTheStartCell) {
    Open(8, 8);
    grid.m_selectionStartCell = CCellID(5, 4);
    grid.SelectCells(CCellID(3, 2));
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(3, 2, 5, 4));
    grid.SelectColumns(CCellID(2, 6));
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(1, 4, 7, 6));
    grid.SetSingleColSelection(TRUE);
    grid.SelectColumns(CCellID(2, 6));
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(1, 6, 7, 6));
    // Fixed cells do not start a block selection.
    grid.SelectCells(CCellID(0, 3));
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(1, 6, 7, 6));
    grid.SetMouseMode(MOUSE_SELECT_ALL);
    grid.OnSelecting(CCellID(2, 2));
    EXPECT_EQ(grid.GetSelectedCount(), 7 * 7);

    // Turning selection off only sets the flag: the map stays, but no cell reads as selected
    // and no new range is taken.
    grid.EnableSelection(FALSE);
    grid.SetSelectedRange(1, 1, 2, 2);
    EXPECT_EQ(grid.GetSelectedCount(), 7 * 7);
    EXPECT_FALSE(grid.IsCellSelected(1, 1));
}

TEST_F(GridSelectionTest, VirtualModeSelectsThroughTheMapAlone) {
    Open(3, 3);
    grid.SetVirtualMode(TRUE);
    grid.SetRowCount(100000);
    grid.SetColumnCount(6);
    grid.SetFixedRowCount(1);
    grid.SetFixedColumnCount(1);
    grid.SetSelectedRange(99990, 2, 99991, 3);
    EXPECT_EQ(grid.GetSelectedCount(), 4);
    EXPECT_TRUE(grid.IsCellSelected(99991, 3));
    EXPECT_TRUE(grid.GetCell(99990, 2)->IsSelected()) << "the made-up cell reads the map";
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(99990, 2, 99991, 3));

    grid.SetSelectedRange(99990, 2, 99990, 2, FALSE, FALSE);
    EXPECT_FALSE(grid.IsCellSelected(99990, 2));
    EXPECT_EQ(grid.GetSelectedCount(), 3);
    grid.SetSelectedRange(5, 1, 5, 1);
    EXPECT_EQ(grid.GetSelectedCount(), 1);
    EXPECT_FALSE(grid.IsCellSelected(99991, 3));
}

TEST_F(GridSelectionTest, GetNextItemSearchesEachDirectionForAnyAskedState) {
    Open(8, 8);
    grid.SetSelectedRange(3, 5, 3, 5);
    grid.SetItemState(5, 2, grid.GetItemState(5, 2) | GV_STATE_SELECTED);
    grid.EnableCell(2, 6, FALSE);
    grid.SetItemState(6, 3, grid.GetItemState(6, 3) | GV_STATE_MODIFIED);

    CCellID none;
    EXPECT_EQ(grid.GetNextItem(none, 0), CCellID());
    EXPECT_EQ(grid.GetNextItem(none, GVNI_ALL), CCellID()) << "no search by position alone";
    EXPECT_EQ(grid.GetNextItem(none, GVNI_SELECTED), CCellID()) << "no direction";

    // All runs row by row from the fixed column on; area stays right of the cell.
    EXPECT_EQ(grid.GetNextItem(none, GVNI_ALL | GVNI_SELECTED), CCellID(3, 5));
    CCellID after(3, 5);
    EXPECT_EQ(grid.GetNextItem(after, GVNI_ALL | GVNI_SELECTED), CCellID(5, 2));
    CCellID corner(3, 3);
    EXPECT_EQ(grid.GetNextItem(corner, GVNI_AREA | GVNI_SELECTED | GVNI_MODIFIED), CCellID(3, 5));
    CCellID belowCorner(4, 3);
    EXPECT_EQ(grid.GetNextItem(belowCorner, GVNI_AREA | GVNI_SELECTED), CCellID());
    EXPECT_EQ(grid.GetNextItem(none, GVNI_ALL | GVNI_DISABLED), CCellID(2, 6));

    // Along one line; above always looks for disabled cells.
    CCellID below(7, 6);
    EXPECT_EQ(grid.GetNextItem(below, GVNI_ABOVE), CCellID(2, 6));
    CCellID top(1, 3);
    EXPECT_EQ(grid.GetNextItem(top, GVNI_BELOW | GVNI_MODIFIED), CCellID(6, 3));
    CCellID aboveDisabled(1, 6);
    EXPECT_EQ(grid.GetNextItem(aboveDisabled, GVNI_BELOW | GVNI_DISABLED), CCellID())
        << "below does not count the disabled flag";
    CCellID right(2, 7);
    EXPECT_EQ(grid.GetNextItem(right, GVNI_TOLEFT | GVNI_READONLY), CCellID(2, 6));
    CCellID left(3, 1);
    EXPECT_EQ(grid.GetNextItem(left, GVNI_TORIGHT | GVNI_SELECTED), CCellID(3, 5));
}

TEST_F(GridSelectionTest, EnablingACellClearsTheColourThatDrawingStored) {
    Open(4, 4);
    grid.EnableCell(2, 2, FALSE);
    EXPECT_EQ(grid.GetItemState(2, 2) & 0x108u, 0x108u);
    EXPECT_FALSE(grid.IsCellEditable(2, 2));
    grid.SetItemBkColour(2, 2, RGB(1, 2, 3));
    grid.EnableCell(2, 2, TRUE);
    EXPECT_EQ(grid.GetItemState(2, 2) & 0x108u, 0u);
    EXPECT_EQ(grid.GetItemBkColour(2, 2), CLR_DEFAULT);
}
