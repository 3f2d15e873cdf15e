// Cells to pixels and back, scroll ranges and steps, the wheel, and fitting sizes to the window.

#include "GridOnScreen.h"

#include "platform/system/SystemMetrics.h"
#include "platform/system/UserSettings.h"
#include "platform/testing/NotificationRecorder.h"

namespace {

using GridGeometryTest = GridOnScreen;

CCellID At(CGridCtrl& grid, int x, int y, BOOL allowFixed = TRUE) {
    return grid.GetCellFromPt(CPoint(x, y), allowFixed);
}

} // namespace

TEST_F(GridGeometryTest, RectanglesIncludeTheirLastPixelAndHitTestingHonoursIt) {
    Open(4, 4);
    CRect rect;
    ASSERT_TRUE(grid.GetCellRect(1, 2, &rect));
    EXPECT_EQ(rect, CRect(100, 20, 149, 39));

    EXPECT_EQ(At(grid, 100, 20), CCellID(1, 2));
    EXPECT_EQ(At(grid, 149, 39), CCellID(1, 2));
    EXPECT_EQ(At(grid, 150, 40), CCellID(2, 3));
    EXPECT_EQ(At(grid, 0, 0), CCellID(0, 0));
    EXPECT_EQ(At(grid, 49, 19), CCellID(0, 0));
    // The fixed area answers only when asked to.
    EXPECT_EQ(At(grid, 10, 30, FALSE), CCellID(1, -1));
    EXPECT_EQ(At(grid, -1, 30), CCellID(1, -1));
    // Below the last row and right of the last column there is no cell.
    EXPECT_EQ(At(grid, 60, 80), CCellID(-1, 1));
    EXPECT_EQ(At(grid, 200, 30), CCellID(1, -1));
}

TEST_F(GridGeometryTest, AHiddenColumnTakesNoPixels) {
    Open(4, 5);
    grid.SetColumnWidth(2, 0);
    CRect rect;
    ASSERT_TRUE(grid.GetCellRect(1, 3, &rect));
    EXPECT_EQ(rect.left, 100);
    EXPECT_EQ(At(grid, 100, 30), CCellID(1, 3));
    EXPECT_EQ(At(grid, 99, 30), CCellID(1, 1));
}

TEST_F(GridGeometryTest, ACellScrolledAwayHasNoOriginAndIsNotVisible) {
    Open(40, 4);
    ASSERT_TRUE(grid.IsVisibleVScroll());
    // A position inside a row scrolls to the next row's edge.
    grid.SetScrollPos32(SB_VERT, 30);
    EXPECT_EQ(grid.GetTopleftNonFixedCell(), CCellID(3, 1));

    CPoint origin;
    CRect rect;
    EXPECT_FALSE(grid.GetCellOrigin(2, 1, &origin));
    EXPECT_FALSE(grid.GetCellRect(2, 1, &rect));
    EXPECT_FALSE(grid.IsCellVisible(2, 1));
    ASSERT_TRUE(grid.GetCellOrigin(3, 1, &origin));
    EXPECT_EQ(origin, CPoint(50, 20));
    // Fixed rows stay where they are.
    ASSERT_TRUE(grid.GetCellOrigin(0, 2, &origin));
    EXPECT_EQ(origin, CPoint(100, 0));
    EXPECT_EQ(At(grid, 60, 25), CCellID(3, 1));
    EXPECT_EQ(At(grid, 60, 5), CCellID(0, 1));

    // Partly shown rows are visible, and only the unobstructed range leaves them out.
    const CCellRange visible = grid.GetVisibleNonFixedCellRange();
    const CCellRange unobstructed = grid.GetUnobstructedNonFixedCellRange();
    EXPECT_EQ(visible.minRow, 3);
    EXPECT_TRUE(grid.IsCellVisible(visible.maxRow, 1));
    EXPECT_FALSE(grid.IsCellVisible(visible.maxRow + 1, 1));
    const int rowsInView = (Client().Height() - kHeight + kHeight - 1) / kHeight;
    EXPECT_EQ(visible.maxRow, 3 + rowsInView - 1);
    EXPECT_EQ(unobstructed.maxRow,
              (Client().Height() - kHeight) % kHeight ? visible.maxRow - 1 : visible.maxRow);
}

TEST_F(GridGeometryTest, AMergedBlockAnswersWithItsTopLeftCell) {
    Open(5, 5);
    grid.SetItemText(2, 2, "covered");
    grid.MergeCells(1, 1, 2, 2);
    for (const CPoint point : {CPoint(50, 20), CPoint(149, 59), CPoint(100, 30), CPoint(60, 50)}) {
        EXPECT_EQ(grid.GetCellFromPt(point), CCellID(1, 1)) << point.x << "," << point.y;
    }
    CRect rect;
    ASSERT_TRUE(grid.GetCellRect(1, 1, &rect));
    EXPECT_EQ(rect, CRect(50, 20, 149, 59));
    // A covered cell keeps its own rectangle.
    ASSERT_TRUE(grid.GetCellRect(2, 2, &rect));
    EXPECT_EQ(rect, CRect(100, 40, 149, 59));
    EXPECT_EQ(grid.GetMergeCellWidth(CCellID(2, 2)), 2 * kWidth);
    EXPECT_EQ(grid.GetMergeCellHeight(CCellID(2, 1)), 2 * kHeight);
    EXPECT_EQ(grid.GetMergeCellWidth(CCellID(3, 3)), kWidth);

    // Freeing a covered cell frees only that cell.
    grid.UnMergeCells(2, 2, 2, 2);
    EXPECT_EQ(At(grid, 120, 50), CCellID(2, 2));
    EXPECT_EQ(At(grid, 120, 30), CCellID(1, 1));
    // Through the top-left cell the whole block goes, and covered texts are back.
    grid.UnMergeCells(1, 1, 1, 1);
    EXPECT_EQ(At(grid, 60, 50), CCellID(2, 1));
    EXPECT_EQ(At(grid, 120, 30), CCellID(1, 2));
    EXPECT_EQ(grid.GetItemText(2, 2), "covered");
}

TEST_F(GridGeometryTest, SelectionOfOneCellIsNotMerged) {
    Open(5, 5);
    grid.SetSelectedRange(2, 2, 2, 2);
    grid.MergeSelectedCells();
    EXPECT_FALSE(grid.GetCell(2, 2)->IsMerged());
    grid.SetSelectedRange(1, 1, 2, 3);
    grid.MergeSelectedCells();
    EXPECT_EQ(grid.GetCell(1, 1)->GetMergeRange(), CCellRange(1, 1, 2, 3));
    grid.UnMergeSelectedCells();
    EXPECT_FALSE(grid.GetCell(1, 1)->IsMerged());
    EXPECT_FALSE(grid.GetCell(2, 3)->IsMergeWithOthers());
}

TEST_F(GridGeometryTest, VirtualModeHasNoBlocks) {
    Open(3, 3);
    grid.SetVirtualMode(TRUE);
    grid.SetRowCount(50);
    grid.SetColumnCount(5);
    grid.MergeCells(1, 1, 2, 2);
    EXPECT_TRUE(grid.GetCell(1, 1)->IsShow());
    EXPECT_FALSE(grid.GetCell(1, 1)->IsMerged());
    EXPECT_TRUE(grid.GetCell(4, 4)->IsShow()) << "the one made-up cell is not marked";
}

TEST_F(GridGeometryTest, ScrollRangesCoverTheNonFixedPartAndVanishWhenAllFits) {
    Open(4, 4);
    EXPECT_FALSE(grid.IsVisibleHScroll());
    EXPECT_FALSE(grid.IsVisibleVScroll());
    CRect painted;
    const CCellRange visible = grid.GetVisibleNonFixedCellRange(&painted);
    EXPECT_EQ(visible, CCellRange(1, 1, 3, 3));
    EXPECT_EQ(painted, CRect(0, 0, 4 * kWidth, 4 * kHeight));

    grid.SetColumnCount(20);
    for (int col = 4; col < 20; col++) {
        grid.SetColumnWidth(col, kWidth);
    }
    grid.SendMessage(WM_SIZE);
    ASSERT_TRUE(grid.IsVisibleHScroll());
    EXPECT_FALSE(grid.IsVisibleVScroll());
    int low = -1;
    int high = -1;
    grid.GetScrollRange(SB_HORZ, &low, &high);
    EXPECT_EQ(low, 0);
    EXPECT_EQ(high, 19 * kWidth);
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    grid.GetScrollInfo(SB_HORZ, &info, SIF_PAGE);
    EXPECT_EQ(int(info.nPage), Client().Width() - kWidth);
}

TEST_F(GridGeometryTest, LineStepsPassOverHiddenColumns) {
    Open(4, 20);
    grid.SetColumnWidth(1, 0);
    grid.SetColumnWidth(2, 70);
    grid.SendMessage(WM_SIZE);
    grid.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    EXPECT_EQ(grid.GetScrollPos32(SB_HORZ), 70);
    EXPECT_EQ(grid.GetTopleftNonFixedCell(), CCellID(1, 3));
    grid.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    EXPECT_EQ(grid.GetScrollPos32(SB_HORZ), 120);
    grid.SendMessage(WM_HSCROLL, SB_LINELEFT);
    grid.SendMessage(WM_HSCROLL, SB_LINELEFT);
    EXPECT_EQ(grid.GetScrollPos32(SB_HORZ), 0);
    // The end of the range.
    grid.SendMessage(WM_HSCROLL, SB_RIGHT);
    const int end = grid.GetScrollPos32(SB_HORZ);
    EXPECT_GT(end, 0);
    grid.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    EXPECT_EQ(grid.GetScrollPos32(SB_HORZ), end);
    grid.SendMessage(WM_HSCROLL, SB_PAGELEFT);
    EXPECT_EQ(grid.GetScrollPos32(SB_HORZ), std::max(0, end - (Client().Width() - kWidth)));
}

TEST_F(GridGeometryTest, EnsureVisibleBringsACellFullyIntoView) {
    Open(60, 30);
    grid.EnsureVisible(45, 25);
    EXPECT_TRUE(grid.IsCellVisible(45, 25));
    CRect rect;
    ASSERT_TRUE(grid.GetCellRect(45, 25, &rect));
    EXPECT_LE(rect.right, Client().right);
    EXPECT_LE(rect.bottom, Client().bottom);
    grid.EnsureVisible(1, 1);
    EXPECT_EQ(grid.GetTopleftNonFixedCell(), CCellID(1, 1));
}

TEST_F(GridGeometryTest, TheWheelPostsItsScrollRequests) {
    Open(100, 4);
    NotificationRecorder recorder(grid.GetSafeHwnd());
    recorder.Watch(WM_VSCROLL);
    auto requests = [&](UINT code) {
        int count = 0;
        for (const RecordedMessage& m : recorder.Records()) {
            count += m.message == WM_VSCROLL && LOWORD(m.wParam) == code ? 1 : 0;
        }
        return count;
    };
    grid.SetScrollPos32(SB_VERT, 200);
    // Half a notch at three lines a notch is one line.
    grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 60), 0);
    EXPECT_EQ(requests(SB_LINEUP), 0) << "posted, not sent";
    EXPECT_EQ(grid.GetScrollPos32(SB_VERT), 200);
    ui.Pump();
    EXPECT_EQ(requests(SB_LINEUP), 1);
    EXPECT_EQ(grid.GetScrollPos32(SB_VERT), 200 - kHeight);

    recorder.Clear();
    WriteUserSetting(kDesktopKey, "WheelScrollLines", "-1");
    grid.SendMessage(WM_SETTINGCHANGE);
    grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WORD(-240)), 0);
    ui.Pump();
    EXPECT_EQ(requests(SB_PAGEDOWN), 2);
    EXPECT_EQ(requests(SB_LINEDOWN), 0);
    RemoveUserSetting(kDesktopKey, "WheelScrollLines");
    ResetUserSettings();
}

TEST_F(GridGeometryTest, ExpandColumnsToFitSharesTheRemainder) {
    Open(3, 4, 400, 200);
    const int room = Client().Width();
    grid.SetColumnWidth(0, room - 10 - 3 * kWidth);
    grid.ExpandColumnsToFit(FALSE);
    EXPECT_EQ(grid.GetColumnWidth(0), room - 10 - 3 * kWidth) << "fixed columns keep theirs";
    EXPECT_EQ(grid.GetColumnWidth(1), kWidth + 4);
    EXPECT_EQ(grid.GetColumnWidth(2), kWidth + 3);
    EXPECT_EQ(grid.GetColumnWidth(3), kWidth + 3);

    // A hidden first column stays hidden, and its odd pixel is given to no other.
    grid.SetColumnCount(5);
    grid.SetColumnWidth(1, 0);
    for (int col = 2; col < 5; col++) {
        grid.SetColumnWidth(col, kWidth);
    }
    grid.SetColumnWidth(0, room - 10 - 3 * kWidth);
    grid.ExpandColumnsToFit(FALSE);
    EXPECT_EQ(grid.GetColumnWidth(1), 0);
    EXPECT_EQ(grid.GetColumnWidth(2), kWidth + 3);
    EXPECT_EQ(grid.GetColumnWidth(4), kWidth + 3);
}

TEST_F(GridGeometryTest, AutoSizeFitsTheTextAndLeavesHiddenColumnsHidden) {
    Open(3, 4);
    grid.SetItemText(1, 2, "a much longer text than the others");
    EXPECT_TRUE(grid.AutoSizeColumn(2));
    EXPECT_GT(grid.GetColumnWidth(2), 100);
    grid.SetColumnWidth(3, 0);
    EXPECT_FALSE(grid.AutoSizeColumn(3));
    EXPECT_EQ(grid.GetColumnWidth(3), 0);
    grid.AutoSizeRows();
    EXPECT_GT(grid.GetRowHeight(1), 0);
}

TEST_F(GridGeometryTest, PageStepsTakeTheScrollingPartOfTheClientAndStopAtTheEnds) {
    Open(100, 4);
    const int page = Client().Height() - kHeight;
    grid.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(grid.GetScrollPos32(SB_VERT), page);
    grid.SendMessage(WM_VSCROLL, SB_PAGEUP);
    grid.SendMessage(WM_VSCROLL, SB_PAGEUP);
    EXPECT_EQ(grid.GetScrollPos32(SB_VERT), 0);
    grid.SendMessage(WM_VSCROLL, SB_BOTTOM);
    const CCellRange visible = grid.GetVisibleNonFixedCellRange();
    EXPECT_EQ(visible.maxRow, 99);
    EXPECT_TRUE(grid.IsCellVisible(99, 1));
    // The fixed row stays in place whatever the position.
    EXPECT_EQ(At(grid, 60, 5), CCellID(0, 1));
}

TEST_F(GridGeometryTest, FittingRowsToTheWindowShowsHiddenRowsAndAutoSizeKeepsUnmeasuredRows) {
    Open(5, 3, 300, 200);
    grid.SetRowHeight(2, 0);
    grid.ExpandRowsToFit(FALSE);
    EXPECT_GT(grid.GetRowHeight(2), 0) << "hidden rows share the room";
    EXPECT_EQ(grid.GetRowHeight(0), kHeight);
    EXPECT_EQ(grid.GetVirtualHeight(), Client().Height());

    grid.SetRowHeight(3, 45);
    grid.SetItemText(0, 1, "heading");
    grid.AutoSize(GVS_HEADER);
    EXPECT_EQ(grid.GetRowHeight(3), 45) << "only the fixed rows were measured";
    EXPECT_NE(grid.GetRowHeight(0), kHeight);
    EXPECT_GT(grid.GetColumnWidth(1), grid.GetColumnWidth(2));
}

TEST_F(GridGeometryTest, DraggingTheThumbScrollsToItsTrackPosition) {
    Open(200, 4);
    const CRect client = Client();
    const int bar = client.right + 8;
    const int thumbTop = GetSystemMetrics(SM_CYVSCROLL) + 3;
    ui.Drag(grid.GetSafeHwnd(), CPoint(bar, thumbTop), CPoint(bar, thumbTop + 60));
    const int position = grid.GetScrollPos32(SB_VERT);
    EXPECT_GT(position, 10 * kHeight) << "moved by the thumb, not by a line";
    // The first row in view is the first whose top is at or past the position.
    const int expectedRow = 1 + (position + kHeight - 1) / kHeight;
    EXPECT_EQ(grid.GetTopleftNonFixedCell(), CCellID(expectedRow, 1));
    EXPECT_EQ(grid.GetVisibleNonFixedCellRange().minRow, expectedRow);
}

TEST_F(GridGeometryTest, WrappedTextIsMeasuredByLinesAndAVerticalFontTurnsTheExtent) {
    Open(3, 3);
    grid.SetItemText(1, 2, "first line");
    grid.SetItemText(1, 1, "first line\nsecond");
    grid.SetItemFormat(1, 1, DT_LEFT | DT_WORDBREAK);
    const CSize single = grid.GetCell(1, 2)->GetCellExtent(nullptr);
    const CSize wrapped = grid.GetCell(1, 1)->GetCellExtent(nullptr);
    EXPECT_GT(wrapped.cy, single.cy + 5);
    EXPECT_GE(wrapped.cx, single.cx);
    EXPECT_LE(wrapped.cx, single.cx + 2);

    LOGFONT vertical = *grid.GetItemFont(2, 1);
    vertical.lfEscapement = 900;
    grid.SetItemFont(2, 1, &vertical);
    grid.SetItemText(2, 1, "abc");
    grid.SetItemText(2, 2, "abc");
    const CSize across = grid.GetCell(2, 2)->GetCellExtent(nullptr);
    const CSize turned = grid.GetCell(2, 1)->GetCellExtent(nullptr);
    const int margin = grid.GetDefCellMargin();
    EXPECT_EQ(turned.cx, across.cy);
    EXPECT_EQ(turned.cy, across.cx + 4 * margin);
}
