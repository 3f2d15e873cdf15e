// The first cell in view of a long grid, scrolled far past many rows and columns of mixed sizes:
// hidden ones, tall and wide ones, and positions on and just past a cell's leading edge.

#include "GridOnScreen.h"

namespace {

using GridTopLeftTest = GridOnScreen;

constexpr int kRowHeight = 20; // the fixture's
constexpr int kRows = 3000;
constexpr int kCols = 1200;
constexpr int kHiddenRow = 300;
constexpr int kTallRow = 700;
constexpr int kTallHeight = 100;
constexpr int kHiddenCol = 500;
constexpr int kWideCol = 900;
constexpr int kWideWidth = 170;

// The top edge, in scrolled pixels, of a non-fixed row of this grid.
int RowEdge(int row) {
    int edge = (row - 1) * kRowHeight;
    if (row > kHiddenRow)
        edge -= kRowHeight;
    if (row > kTallRow)
        edge += kTallHeight - kRowHeight;
    return edge;
}

} // namespace

TEST_F(GridTopLeftTest, TheFirstCellInViewIsTheFirstWhoseEdgeIsAtOrPastTheScrollPosition) {
    Open(kRows, kCols);
    grid.SetRowHeight(kHiddenRow, 0);
    grid.SetRowHeight(kTallRow, kTallHeight);
    grid.SetColumnWidth(kHiddenCol, 0);
    grid.SetColumnWidth(kWideCol, kWideWidth);
    grid.SendMessage(WM_SIZE);

    struct Case {
        int position;
        int row;
        int col;
    };
    // Rows and columns are scrolled by the same number of pixels.
    const Case cases[] = {
        {0, 1, 1},
        {1, 2, 2},
        {RowEdge(kHiddenRow), kHiddenRow, 121},
        {RowEdge(kHiddenRow) + 1, kHiddenRow + 2, 121}, // the hidden row has no pixels
        {RowEdge(kTallRow) + 1, kTallRow + 1, 281},
        {RowEdge(kTallRow + 1), kTallRow + 1, 283},
        {RowEdge(2500) - 1, 2500, 1001},
        {RowEdge(2500), 2500, 1001},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.position);
        grid.SetScrollPos32(SB_VERT, c.position);
        grid.SetScrollPos32(SB_HORZ, c.position);
        ASSERT_EQ(grid.GetScrollPos32(SB_VERT), c.position) << "within the scroll range";
        ASSERT_EQ(grid.GetScrollPos32(SB_HORZ), c.position);
        EXPECT_EQ(grid.GetTopleftNonFixedCell(TRUE), CCellID(c.row, c.col));
        EXPECT_EQ(grid.GetVisibleNonFixedCellRange().minRow, c.row);
    }
}
