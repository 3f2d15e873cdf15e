#include "GridTestSupport.h"

#include "platform/testing/MessageBoxResponder.h"

#include <gtest/gtest.h>

// Running out of memory while the grid grows is reported once and leaves a grid whose shape
// matches its counts.
TEST(GridMemory, FailedGrowthIsReportedAndLeavesAConsistentGrid) {
    MessageBoxResponder boxes;
    CGridCtrl grid(1, 3);
    grid.SetDefaultCellType(RUNTIME_CLASS(CScarceCell));

    CScarceCell::budget = 7; // two rows and one cell of a third
    EXPECT_FALSE(grid.SetRowCount(5));
    EXPECT_EQ(boxes.Count(), 1);
    EXPECT_EQ(grid.GetRowCount(), 3) << "the rows made so far are kept";
    for (int row = 0; row < 3; row++) {
        for (int col = 0; col < 3; col++) {
            EXPECT_NE(grid.GetCell(row, col), nullptr);
        }
        EXPECT_GE(grid.GetRowHeight(row), 0);
    }
    EXPECT_EQ(grid.GetRowHeight(3), -1);

    CScarceCell::budget = 1;
    EXPECT_EQ(grid.InsertColumn("c"), -1);
    EXPECT_EQ(grid.GetColumnCount(), 3);
    EXPECT_EQ(grid.GetColumnWidth(3), -1);
    CScarceCell::budget = 2;
    EXPECT_EQ(grid.InsertRow("r"), -1);
    EXPECT_EQ(grid.GetRowCount(), 3);
    CScarceCell::budget = 2;
    EXPECT_FALSE(grid.SetColumnCount(4));
    EXPECT_EQ(grid.GetColumnCount(), 3);
    EXPECT_EQ(boxes.Count(), 4);

    // With memory back, the grid grows from where it stood.
    CScarceCell::budget = 100;
    EXPECT_EQ(grid.InsertRow("r"), 3);
    EXPECT_TRUE(grid.SetColumnCount(4));
    EXPECT_NE(grid.GetCell(3, 3), nullptr);
}
