#include "GridTestSupport.h"

#include <gtest/gtest.h>

namespace {

BOOL AnswerPosition(GV_DISPINFO* request, LPARAM calls) {
    ++*reinterpret_cast<int*>(calls);
    request->item.text.Format("%d:%d", request->item.row, request->item.col);
    request->item.textColor = RGB(10, 20, 30);
    return TRUE;
}

} // namespace

TEST(GridVirtualMode, EveryValidPositionIsAnsweredThroughTheCallback) {
    CGridCtrl grid;
    grid.SetVirtualMode(TRUE);
    int calls = 0;
    grid.SetCallbackFunc(AnswerPosition, LPARAM(&calls));
    EXPECT_TRUE(grid.SetRowCount(100000));
    EXPECT_TRUE(grid.SetColumnCount(20));
    EXPECT_TRUE(grid.SetFixedRowCount(1));
    EXPECT_TRUE(grid.SetFixedColumnCount(1));

    CGridCellBase* last = grid.GetCell(99999, 19);
    ASSERT_NE(last, nullptr);
    EXPECT_STREQ(last->GetText(), "99999:19");
    EXPECT_EQ(last->GetTextClr(), RGB(10, 20, 30));
    EXPECT_EQ(grid.GetCell(100000, 0), nullptr);
    EXPECT_EQ(grid.GetCell(0, 20), nullptr);

    // One shared cell, refilled by each call.
    CGridCellBase* header = grid.GetCell(0, 5);
    EXPECT_EQ(header, last);
    EXPECT_STREQ(header->GetText(), "0:5");
    EXPECT_EQ(header->GetState(), 0x30u);
    EXPECT_EQ(grid.GetCell(0, 0)->GetState(), 0x70u);
    EXPECT_EQ(grid.GetCell(7, 0)->GetState(), 0x50u);
    EXPECT_EQ(grid.GetItemText(3, 4), "3:4");
    EXPECT_GT(calls, 0);
}

TEST(GridVirtualMode, NothingIsStoredAndSelectionLivesInTheMap) {
    CGridCtrl grid(3, 3);
    grid.SetVirtualMode(TRUE);
    EXPECT_EQ(grid.GetRowCount(), 0) << "switching mode empties the grid";
    EXPECT_FALSE(grid.IsEditable());
    EXPECT_FALSE(grid.GetHeaderSort());
    EXPECT_EQ(grid.GetAutoSizeStyle(), GVS_HEADER);
    EXPECT_FALSE(grid.GetFixedRowSelection());
    EXPECT_FALSE(grid.GetFixedColumnSelection());

    grid.SetRowCount(10);
    grid.SetColumnCount(4);
    EXPECT_FALSE(grid.SetItemText(2, 2, "x"));
    EXPECT_FALSE(grid.SetCellType(2, 2, RUNTIME_CLASS(CNumberCell)));
    EXPECT_FALSE(grid.SetItemState(2, 2, GV_STATE_SELECTED));
    EXPECT_EQ(grid.GetSelectedCount(), 1);
    EXPECT_TRUE(grid.IsCellSelected(2, 2));
    EXPECT_TRUE(grid.GetCell(2, 2)->IsSelected());
    grid.SetFocusCell(3, 1);
    EXPECT_TRUE(grid.GetCell(3, 1)->IsFocused());

    // Without a callback or a window, a cell is the default cell with empty text.
    CGridCellBase* cell = grid.GetCell(5, 3);
    ASSERT_NE(cell, nullptr);
    EXPECT_STREQ(cell->GetText(), "");
    EXPECT_EQ(cell->GetBackClr(), grid.GetDefaultCell(FALSE, FALSE)->GetBackClr());
    EXPECT_EQ(cell->GetFormat(), grid.GetDefaultCell(FALSE, FALSE)->GetFormat());

    // Rows and columns come and go without cells.
    EXPECT_EQ(grid.InsertRow("r"), 10);
    EXPECT_EQ(grid.InsertColumn("c"), 4);
    EXPECT_TRUE(grid.DeleteRow(0));
    EXPECT_TRUE(grid.DeleteColumn(0));
    EXPECT_EQ(grid.GetRowCount(), 10);
    EXPECT_EQ(grid.GetColumnCount(), 4);
    EXPECT_TRUE(grid.DeleteAllItems());
}
