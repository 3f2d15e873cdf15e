#include "GridTestSupport.h"

#include <gtest/gtest.h>

namespace {

void FillText(CGridCtrl& grid) {
    for (int row = 0; row < grid.GetRowCount(); row++) {
        for (int col = 0; col < grid.GetColumnCount(); col++) {
            CString text;
            text.Format("%d,%d", row, col);
            grid.SetItemText(row, col, text);
        }
    }
}

} // namespace

TEST(GridStore, FixedCountsFollowCountsBothWays) {
    CGridCtrl grid(5, 5, 3, 3);
    EXPECT_TRUE(grid.SetRowCount(2));
    EXPECT_EQ(grid.GetFixedRowCount(), 2);
    EXPECT_TRUE(grid.SetColumnCount(1));
    EXPECT_EQ(grid.GetFixedColumnCount(), 1);

    EXPECT_TRUE(grid.SetFixedRowCount(4));
    EXPECT_EQ(grid.GetRowCount(), 4);
    EXPECT_TRUE(grid.SetFixedColumnCount(6));
    EXPECT_EQ(grid.GetColumnCount(), 6);
    EXPECT_EQ(grid.GetItemState(3, 5), GV_STATE_FIXED | GV_STATE_FIXEDROW | GV_STATE_FIXEDCOL);

    EXPECT_FALSE(grid.SetRowCount(-1));
    EXPECT_EQ(grid.GetRowCount(), 4);
}

TEST(GridStore, EmptyRowsKeepTheColumnsAndRefillEveryColumn) {
    CGridCtrl grid(4, 3);
    EXPECT_TRUE(grid.SetRowCount(0));
    EXPECT_EQ(grid.GetRowCount(), 0);
    EXPECT_EQ(grid.GetColumnCount(), 3);
    EXPECT_EQ(grid.GetCell(0, 0), nullptr);
    EXPECT_TRUE(grid.SetRowCount(5));
    for (int row = 0; row < 5; row++) {
        for (int col = 0; col < 3; col++) {
            EXPECT_NE(grid.GetCell(row, col), nullptr) << row << "," << col;
        }
        EXPECT_EQ(grid.GetRowHeight(row), grid.GetDefCellHeight());
    }
    EXPECT_EQ(grid.GetCell(5, 0), nullptr);
    EXPECT_EQ(grid.GetCell(0, 3), nullptr);
    EXPECT_EQ(grid.GetCell(-1, 0), nullptr);
    // New columns start as wide as the fixed column default.
    grid.GetDefaultCell(FALSE, TRUE)->SetWidth(77);
    grid.SetColumnCount(4);
    EXPECT_EQ(grid.GetColumnWidth(3), 77);
}

TEST(GridStore, CellsEnteringAndLeavingTheFixedAreaChangeStateAndColours) {
    CGridCtrl grid(4, 4, 1, 1);
    EXPECT_EQ(grid.GetItemState(0, 0), 0x70u);
    EXPECT_EQ(grid.GetItemState(0, 2), 0x30u);
    EXPECT_EQ(grid.GetItemState(2, 0), 0x50u);
    EXPECT_EQ(grid.GetItemState(2, 2), 0u);

    grid.SetItemBkColour(2, 2, RGB(255, 0, 0));
    grid.SetItemFgColour(2, 0, RGB(0, 255, 0));
    grid.SetItemState(2, 2, GV_STATE_READONLY);
    EXPECT_TRUE(grid.SetFixedRowCount(3));
    EXPECT_EQ(grid.GetItemState(2, 2), GV_STATE_READONLY | 0x30u);
    EXPECT_EQ(grid.GetItemState(2, 0), 0x70u);
    EXPECT_EQ(grid.GetItemBkColour(2, 2), CLR_DEFAULT);
    EXPECT_EQ(grid.GetItemFgColour(2, 0), CLR_DEFAULT);

    // Leaving the fixed rows: a cell of a fixed column keeps its colours and FIXED.
    grid.SetItemBkColour(2, 0, RGB(0, 0, 255));
    grid.SetItemBkColour(2, 3, RGB(0, 0, 255));
    EXPECT_TRUE(grid.SetFixedRowCount(1));
    EXPECT_EQ(grid.GetItemState(2, 0), 0x50u);
    EXPECT_EQ(grid.GetItemBkColour(2, 0), RGB(0, 0, 255));
    EXPECT_EQ(grid.GetItemState(2, 3), 0u);
    EXPECT_EQ(grid.GetItemBkColour(2, 3), CLR_DEFAULT);
    EXPECT_EQ(grid.GetItemState(2, 2), GV_STATE_READONLY);

    // The mirror for columns: a cell of a fixed row keeps its colours.
    EXPECT_TRUE(grid.SetFixedColumnCount(3));
    EXPECT_EQ(grid.GetItemState(0, 2), 0x70u);
    EXPECT_EQ(grid.GetItemState(3, 2), 0x50u);
    grid.SetItemBkColour(0, 2, RGB(9, 9, 9));
    grid.SetItemBkColour(3, 2, RGB(9, 9, 9));
    EXPECT_TRUE(grid.SetFixedColumnCount(1));
    EXPECT_EQ(grid.GetItemState(0, 2), 0x30u);
    EXPECT_EQ(grid.GetItemBkColour(0, 2), RGB(9, 9, 9));
    EXPECT_EQ(grid.GetItemState(3, 2), 0u);
    EXPECT_EQ(grid.GetItemBkColour(3, 2), CLR_DEFAULT);
}

TEST(GridStore, InsertRowRefusesTheCountWhileInsertColumnAppendsThere) {
    CGridCtrl grid(3, 3, 1, 1);
    EXPECT_EQ(grid.InsertRow("", grid.GetRowCount()), -1);
    EXPECT_EQ(grid.InsertRow("", 0), -1) << "a fixed row cannot be inserted";
    EXPECT_EQ(grid.InsertRow("", 9), -1);
    EXPECT_EQ(grid.GetRowCount(), 3);
    EXPECT_EQ(grid.InsertRow("last"), 3);
    EXPECT_EQ(grid.GetItemText(3, 0), "last");
    EXPECT_EQ(grid.GetItemState(3, 0), 0x50u);

    EXPECT_EQ(grid.InsertColumn("", DT_LEFT, 0), -1);
    EXPECT_EQ(grid.InsertColumn("", DT_LEFT, 5), -1);
    EXPECT_EQ(grid.InsertColumn("tail", DT_RIGHT, grid.GetColumnCount()), 3);
    EXPECT_EQ(grid.GetColumnCount(), 4);
    EXPECT_EQ(grid.GetItemText(0, 3), "tail");
    EXPECT_EQ(grid.GetItemState(0, 3), 0x30u);
    for (int row = 0; row < grid.GetRowCount(); row++) {
        EXPECT_EQ(grid.GetItemFormat(row, 3), UINT(DT_RIGHT));
    }
}

TEST(GridStore, InsertionInTheMiddleShiftsCellsAndSizes) {
    CGridCtrl grid(3, 3, 1, 1);
    FillText(grid);
    grid.SetRowHeight(1, 41);
    grid.SetColumnWidth(1, 51);
    EXPECT_EQ(grid.InsertRow("new", 1), 1);
    EXPECT_EQ(grid.GetItemText(2, 1), "1,1");
    EXPECT_EQ(grid.GetItemText(1, 1), "");
    EXPECT_EQ(grid.GetRowHeight(2), 41);
    EXPECT_EQ(grid.InsertColumn("mid", DT_LEFT, 1), 1);
    EXPECT_EQ(grid.GetItemText(2, 2), "1,1");
    EXPECT_EQ(grid.GetColumnWidth(2), 51);
    EXPECT_EQ(grid.GetItemText(0, 1), "mid");
}

TEST(GridStore, InsertionIntoAnEmptyDimensionMakesOne) {
    CGridCtrl noColumns;
    EXPECT_EQ(noColumns.InsertRow("r"), 0);
    EXPECT_EQ(noColumns.GetColumnCount(), 1);
    EXPECT_EQ(noColumns.GetItemText(0, 0), "r");

    CGridCtrl noRows;
    EXPECT_EQ(noRows.InsertColumn("c"), 0);
    EXPECT_EQ(noRows.GetRowCount(), 1);
    EXPECT_EQ(noRows.GetItemText(0, 0), "c");
}

TEST(GridStore, FocusFollowsStructuralChanges) {
    CGridCtrl grid(5, 5, 1, 1);
    EXPECT_EQ(grid.SetFocusCell(0, 0), CCellID());
    EXPECT_EQ(grid.GetFocusCell(), CCellID(1, 1)) << "the focus never lies on a fixed cell";
    EXPECT_TRUE(grid.GetItemState(1, 1) & GV_STATE_FOCUSED);
    grid.SetFocusCell(3, 4);
    EXPECT_FALSE(grid.GetItemState(1, 1) & GV_STATE_FOCUSED);
    grid.SetFocusCell(-1, 4);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(-1, 4));

    grid.SetFocusCell(4, 4);
    grid.SetRowCount(4);
    EXPECT_EQ(grid.GetFocusCell(), CCellID());
    grid.SetFocusCell(2, 3);
    grid.SetColumnCount(3);
    EXPECT_EQ(grid.GetFocusCell(), CCellID());

    // Structural changes clear selection and focus before they act.
    grid.SetFocusCell(2, 2);
    grid.SetSelectedRange(1, 1, 2, 2);
    EXPECT_EQ(grid.GetSelectedCount(), 4);
    EXPECT_EQ(grid.InsertRow("x", 1), 1);
    EXPECT_EQ(grid.GetFocusCell(), CCellID());
    EXPECT_EQ(grid.GetSelectedCount(), 0);
    EXPECT_FALSE(grid.GetItemState(3, 2) & (GV_STATE_FOCUSED | GV_STATE_SELECTED));
    grid.SetFocusCell(2, 2);
    EXPECT_TRUE(grid.DeleteRow(2));
    EXPECT_EQ(grid.GetFocusCell(), CCellID());
}

TEST(GridStore, DeletionRemovesCellsAndLowersFixedCounts) {
    CGridCtrl grid(4, 4, 2, 2);
    FillText(grid);
    EXPECT_FALSE(grid.DeleteRow(4));
    EXPECT_FALSE(grid.DeleteColumn(-1));
    EXPECT_TRUE(grid.DeleteRow(1));
    EXPECT_EQ(grid.GetFixedRowCount(), 1);
    EXPECT_EQ(grid.GetItemText(1, 0), "2,0");
    EXPECT_TRUE(grid.DeleteColumn(0));
    EXPECT_EQ(grid.GetFixedColumnCount(), 1);
    EXPECT_EQ(grid.GetItemText(1, 0), "2,1");
    EXPECT_EQ(grid.GetColumnCount(), 3);

    EXPECT_TRUE(grid.DeleteNonFixedRows());
    EXPECT_EQ(grid.GetRowCount(), 1);
    EXPECT_TRUE(grid.DeleteNonFixedColumns());
    EXPECT_EQ(grid.GetColumnCount(), 1);
    EXPECT_TRUE(grid.DeleteAllItems());
    EXPECT_EQ(grid.GetRowCount() + grid.GetColumnCount() + grid.GetFixedRowCount() +
                  grid.GetFixedColumnCount(),
              0);
}

TEST(GridStore, ClearCellsLeavesHiddenRowsAndColumns) {
    CGridCtrl grid(5, 5, 1, 1);
    FillText(grid);
    grid.SetColumnWidth(2, 0);
    grid.SetRowHeight(3, 0);
    EXPECT_EQ(grid.GetHiddenColumnCount(), 1);
    grid.ClearCells(CCellRange(1, 1, 4, 4));
    EXPECT_EQ(grid.GetItemText(1, 1), "");
    EXPECT_EQ(grid.GetItemText(4, 4), "");
    EXPECT_EQ(grid.GetItemText(1, 2), "1,2");
    EXPECT_EQ(grid.GetItemText(3, 1), "3,1");
    EXPECT_EQ(grid.GetItemText(0, 1), "0,1");
}

TEST(GridStore, SetCellTypeKeepsTheCellButChangesItsClass) {
    CGridCtrl grid(4, 4, 1, 1);
    grid.SetItemText(2, 2, "3.25");
    grid.SetItemBkColour(2, 2, RGB(1, 1, 1));
    grid.SetItemFgColour(2, 2, RGB(2, 2, 2));
    grid.SetItemState(2, 2, GV_STATE_READONLY | GV_STATE_SELECTED);
    grid.GetCell(2, 2)->SetMergeRange(CCellRange(2, 2, 3, 3));
    grid.GetCell(2, 2)->Show(false);

    EXPECT_TRUE(grid.SetCellType(2, 2, RUNTIME_CLASS(CNumberCell)));
    CGridCellBase* cell = grid.GetCell(2, 2);
    EXPECT_TRUE(cell->IsKindOf(RUNTIME_CLASS(CNumberCell)));
    EXPECT_STREQ(cell->GetText(), "3.25");
    EXPECT_EQ(cell->GetBackClr(), RGB(1, 1, 1));
    EXPECT_EQ(cell->GetTextClr(), RGB(2, 2, 2));
    EXPECT_TRUE(cell->GetState() & GV_STATE_READONLY);
    EXPECT_TRUE(cell->IsSelected());
    EXPECT_EQ(cell->GetMergeRange(), CCellRange(2, 2, 3, 3));
    EXPECT_FALSE(cell->IsShow());
    EXPECT_EQ(cell->GetGrid(), &grid);

    EXPECT_FALSE(grid.SetCellType(2, 2, RUNTIME_CLASS(CPlainObject)));
    EXPECT_FALSE(grid.SetCellType(9, 2, RUNTIME_CLASS(CGridCell)));
    EXPECT_FALSE(grid.SetCellType(2, 2, nullptr));
}

TEST(GridStore, DefaultCellTypeAppliesToLaterCellsOnly) {
    CGridCtrl grid(2, 2);
    EXPECT_FALSE(grid.SetDefaultCellType(RUNTIME_CLASS(CPlainObject)));
    EXPECT_TRUE(grid.SetDefaultCellType(RUNTIME_CLASS(CNumberCell)));
    grid.SetRowCount(3);
    EXPECT_FALSE(grid.GetCell(1, 1)->IsKindOf(RUNTIME_CLASS(CNumberCell)));
    EXPECT_TRUE(grid.GetCell(2, 1)->IsKindOf(RUNTIME_CLASS(CNumberCell)));
    EXPECT_FALSE(grid.SetDefaultCellType(RUNTIME_CLASS(CPlainObject)));
    grid.InsertColumn("n");
    EXPECT_TRUE(grid.GetCell(0, 2)->IsKindOf(RUNTIME_CLASS(CNumberCell)));
}

TEST(GridStore, ModifiedFlagNeverMarksTheFirstRowOrColumn) {
    CGridCtrl empty;
    EXPECT_FALSE(empty.GetModified());

    CGridCtrl grid(4, 4, 1, 1);
    EXPECT_TRUE(grid.GetModified()) << "sizing a grid is a change";
    grid.SetModified(FALSE);
    EXPECT_FALSE(grid.GetModified());

    grid.SetItemText(0, 2, "heading");
    EXPECT_TRUE(grid.GetModified());
    EXPECT_FALSE(grid.GetItemState(0, 2) & GV_STATE_MODIFIED);
    grid.SetItemText(2, 0, "row heading");
    EXPECT_FALSE(grid.GetItemState(2, 0) & GV_STATE_MODIFIED);

    grid.SetModified(FALSE);
    grid.SetItemFormat(2, 2, DT_RIGHT);
    grid.SetItemBkColour(2, 2, RGB(1, 2, 3));
    EXPECT_FALSE(grid.GetModified()) << "formats and colours are not content";
    grid.SetItemData(2, 2, 5);
    EXPECT_TRUE(grid.GetModified(2, 2));
    EXPECT_TRUE(grid.GetModified());

    // Clearing one cell leaves the grid's flag; clearing the grid clears every cell.
    grid.SetItemText(3, 3, "x");
    grid.SetModified(FALSE, 2, 2);
    EXPECT_FALSE(grid.GetModified(2, 2));
    EXPECT_TRUE(grid.GetModified());
    grid.SetModified(FALSE);
    EXPECT_FALSE(grid.GetModified(3, 3));
}

TEST(GridStore, AChangeToTheSortColumnCancelsTheSort) {
    CGridCtrl grid(4, 4, 1, 1);
    grid.SetSortColumn(2);
    grid.SetItemText(1, 1, "other column");
    EXPECT_EQ(grid.GetSortColumn(), 2);
    grid.SetItemText(1, 2, "sorted column");
    EXPECT_EQ(grid.GetSortColumn(), -1);
}

TEST(GridStore, ItemStateKeepsTheSelectionMapButSetItemDoesNot) {
    CGridCtrl grid(4, 4, 1, 1);
    grid.SetItemState(2, 2, GV_STATE_SELECTED);
    EXPECT_EQ(grid.GetSelectedCount(), 1);
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(2, 2, 2, 2));

    GV_ITEM item{};
    item.row = 3;
    item.col = 3;
    item.mask = GV_MASK_STATE | GV_MASK_TEXT | GV_MASK_PARAM;
    item.state = GV_STATE_SELECTED;
    item.text = "via item";
    item.param = LPARAM(&grid);
    EXPECT_TRUE(grid.SetItem(&item));
    EXPECT_EQ(grid.GetSelectedCount(), 1);
    EXPECT_TRUE(grid.IsCellSelected(3, 3));

    GV_ITEM read{};
    read.row = 3;
    read.col = 3;
    read.mask = GV_MASK_TEXT | GV_MASK_PARAM | GV_MASK_MARGIN;
    EXPECT_TRUE(grid.GetItem(&read));
    EXPECT_EQ(read.text, "via item");
    EXPECT_EQ(read.param, LPARAM(&grid));
    EXPECT_EQ(read.margin, UINT(grid.GetDefCellMargin()));
    EXPECT_FALSE(grid.GetItem(nullptr));
    read.row = 7;
    EXPECT_FALSE(grid.GetItem(&read));

    grid.SetItemState(2, 2, 0);
    EXPECT_EQ(grid.GetSelectedCount(), 0);
}

TEST(GridStore, EditabilityFollowsTheGridAndTheCellState) {
    CGridCtrl grid(3, 3, 1, 1);
    EXPECT_TRUE(grid.IsCellEditable(1, 1));
    grid.SetItemState(1, 1, GV_STATE_DISABLED);
    EXPECT_FALSE(grid.IsCellEditable(1, 1));
    grid.SetItemState(1, 2, GV_STATE_READONLY);
    EXPECT_FALSE(grid.IsCellEditable(1, 2));
    grid.SetEditable(FALSE);
    EXPECT_FALSE(grid.IsCellEditable(2, 2));
    EXPECT_TRUE(grid.IsCellFixed(0, 2));
    EXPECT_TRUE(grid.IsCellFixed(2, 0));
    EXPECT_FALSE(grid.IsCellFixed(2, 2));
}

TEST(GridStore, ListModeClearsSelectionFocusAndSort) {
    CGridCtrl grid(4, 4, 1, 1);
    grid.SetSelectedRange(1, 1, 2, 2);
    grid.SetFocusCell(2, 2);
    grid.SetSortColumn(1);
    grid.SetListMode(TRUE);
    EXPECT_TRUE(grid.GetListMode());
    EXPECT_EQ(grid.GetSelectedCount(), 0);
    EXPECT_EQ(grid.GetFocusCell(), CCellID());
    EXPECT_EQ(grid.GetSortColumn(), -1);
    EXPECT_FALSE(grid.GetFixedRowSelection());
}
