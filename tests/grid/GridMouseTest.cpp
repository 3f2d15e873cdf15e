// The mouse as a user works it: clicks and their notifications, presses on the focus cell,
// control clicks, drag selection with auto-scroll, divider sizing and hiding, and the right
// button.

#include "GridOnScreen.h"

#include "platform/testing/NotificationRecorder.h"

#include <vector>

namespace {

class GridMouseTest : public GridOnScreen {
protected:
    // The WM_NOTIFY codes and WM_COMMAND (as 0) in the order the parent heard them.
    static std::vector<int> Sequence(const NotificationRecorder& recorder) {
        std::vector<int> codes;
        for (const RecordedMessage& message : recorder.Records()) {
            codes.push_back(message.message == WM_COMMAND ? 0 : int(message.code));
        }
        return codes;
    }
    // A point on the divider at the right edge of a column, in the heading row.
    CPoint ColumnDivider(int col) {
        CRect rect;
        grid.GetCellRect(0, col, &rect);
        return CPoint(rect.right + 1, rect.CenterPoint().y);
    }
};

constexpr int kCommandMark = 0;

// A cell that takes every press for itself, as a check box does.
class CPressTakingCell : public CGridCell {
    DECLARE_DYNCREATE(CPressTakingCell)
public:
    BOOL OnClickDown(CPoint, int, int) override { return TRUE; }
};
IMPLEMENT_DYNCREATE(CPressTakingCell, CGridCell)

TEST_F(GridMouseTest, AClickSelectsTheCellAndReportsInOrderWithTheCommandLast) {
    Open(6, 6);
    NotificationRecorder recorder(parent.GetSafeHwnd());
    ui.Click(Grid(), CellCentre(2, 3));

    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 3));
    EXPECT_TRUE(grid.IsCellSelected(2, 3));
    EXPECT_EQ(grid.GetSelectedCount(), 1);
    EXPECT_EQ(grid.GetMouseMode(), MOUSE_NOTHING);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    EXPECT_EQ(Sequence(recorder), (std::vector<int>{GV_NOTIFY_SELCHANGING, GV_NOTIFY_SELCHANGED,
                                                    NM_CLICK, kCommandMark}));
    const RecordedMessage& command = recorder.Records().back();
    EXPECT_EQ(LOWORD(command.wParam), grid.GetDlgCtrlID());
    EXPECT_EQ(HWND(command.lParam), Grid());
    for (const RecordedMessage& message : recorder.Records()) {
        if (message.message == WM_NOTIFY) {
            EXPECT_EQ(message.row, 2);
            EXPECT_EQ(message.column, 3);
        }
    }
}

TEST_F(GridMouseTest, APressOnTheFocusCellEditsOnReleaseOrDoesNothingWhenReadOnly) {
    Open(6, 6);
    ui.Click(Grid(), CellCentre(2, 2));
    parent.notifications.clear();

    ui.MouseDown(Grid(), CellCentre(2, 2));
    EXPECT_EQ(grid.GetMouseMode(), MOUSE_PREPARE_EDIT);
    EXPECT_EQ(CWnd::GetCapture(), nullptr); // no capture, no selection
    EXPECT_TRUE(parent.Of(GV_NOTIFY_SELCHANGING).empty());
    ui.MouseUp(Grid(), CellCentre(2, 2));
    ASSERT_EQ(parent.Of(GV_NOTIFY_BEGINLABELEDIT).size(), 1u);
    EXPECT_EQ(parent.Of(GV_NOTIFY_BEGINLABELEDIT)[0].row, 2);

    grid.SetItemState(2, 2, grid.GetItemState(2, 2) | GV_STATE_READONLY);
    parent.notifications.clear();
    ui.MouseDown(Grid(), CellCentre(2, 2));
    EXPECT_EQ(grid.GetMouseMode(), MOUSE_NOTHING);
    ui.MouseUp(Grid(), CellCentre(2, 2));
    EXPECT_TRUE(parent.Of(GV_NOTIFY_BEGINLABELEDIT).empty());
    grid.EndEditing();
}

TEST_F(GridMouseTest, ControlClicksAddCellsAndTakeASelectedOneOut) {
    Open(6, 6);
    ui.Click(Grid(), CellCentre(1, 1));
    ui.Click(Grid(), CellCentre(3, 3), MK_CONTROL);
    EXPECT_TRUE(grid.IsCellSelected(1, 1));
    EXPECT_TRUE(grid.IsCellSelected(3, 3));

    ui.Click(Grid(), CellCentre(1, 1), MK_CONTROL);
    EXPECT_FALSE(grid.IsCellSelected(1, 1));
    EXPECT_TRUE(grid.IsCellSelected(3, 3));
    EXPECT_EQ(grid.GetFocusCell(), CCellID(1, 1));

    // Shift extends from where the selection started.
    ui.Click(Grid(), CellCentre(2, 2));
    ui.Click(Grid(), CellCentre(4, 3), MK_SHIFT);
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(2, 2, 4, 3));
}

TEST_F(GridMouseTest, ACellThatTakesThePressStopsSelectionCaptureAndTimer) {
    Open(6, 6);
    grid.SetCellType(2, 2, RUNTIME_CLASS(CPressTakingCell));
    ui.MouseDown(Grid(), CellCentre(2, 2));
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    EXPECT_EQ(grid.GetMouseMode(), MOUSE_NOTHING);
    ui.MouseMove(Grid(), CellCentre(4, 4));
    EXPECT_FALSE(grid.IsCellSelected(4, 4)); // no drag follows
    ui.MouseUp(Grid(), CellCentre(4, 4));
}

TEST_F(GridMouseTest, DraggingSelectsAndScrollsOnPastTheBottomEdgeAsTheClockRuns) {
    Open(40, 6, 300, 200);
    ui.MouseDown(Grid(), CellCentre(2, 2));
    EXPECT_EQ(grid.GetMouseMode(), MOUSE_SELECT_CELLS);
    EXPECT_EQ(CWnd::GetCapture(), &grid);
    ui.MouseMove(Grid(), CellCentre(4, 3));
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(2, 2, 4, 3));

    const int scrolledBefore = grid.GetScrollPos32(SB_VERT);
    const CPoint belowTheGrid(CellCentre(4, 3).x, Client().bottom + 30);
    ui.MouseMove(Grid(), belowTheGrid);
    constexpr DWORD kTicks = 10;
    ui.Advance(kTicks * 25);
    EXPECT_GT(grid.GetScrollPos32(SB_VERT), scrolledBefore);
    const CCellRange selected = grid.GetSelectedCellRange();
    EXPECT_EQ(selected.minRow, 2);
    EXPECT_GT(selected.maxRow, 9); // past the rows that fit in the window
    EXPECT_GT(grid.GetFocusCell().row, 9);

    ui.MouseUp(Grid(), belowTheGrid);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    const int scrolledAtRelease = grid.GetScrollPos32(SB_VERT);
    ui.Advance(kTicks * 25);
    EXPECT_EQ(grid.GetScrollPos32(SB_VERT), scrolledAtRelease); // the timer went with the button
}

TEST_F(GridMouseTest, DraggingAColumnDividerResizesAndHidesOnlyWhenAllowed) {
    Open(6, 6);
    // Below the headings there is no divider to grab.
    ui.Drag(Grid(), CPoint(ColumnDivider(2).x, CellCentre(3, 2).y),
            CPoint(ColumnDivider(2).x + 30, CellCentre(3, 2).y));
    EXPECT_EQ(grid.GetColumnWidth(2), kWidth);

    ui.MouseMove(Grid(), ColumnDivider(2));
    EXPECT_EQ(grid.GetMouseMode(), MOUSE_OVER_COL_DIVIDE);
    ui.Drag(Grid(), ColumnDivider(2), ColumnDivider(2) + CSize(30, 0));
    EXPECT_EQ(grid.GetColumnWidth(2), kWidth + 30);
    EXPECT_EQ(grid.GetMouseMode(), MOUSE_OVER_COL_DIVIDE); // the pointer rests on it still

    // A drag that goes nowhere changes nothing.
    ui.Drag(Grid(), ColumnDivider(2), ColumnDivider(2));
    EXPECT_EQ(grid.GetColumnWidth(2), kWidth + 30);

    CRect column;
    grid.GetCellRect(0, 3, &column);
    grid.EnableColumnHide(FALSE);
    ui.Drag(Grid(), ColumnDivider(3), CPoint(column.left - 20, column.CenterPoint().y));
    EXPECT_EQ(grid.GetColumnWidth(3), 1);
    grid.EnableColumnHide(TRUE);
    grid.GetCellRect(0, 4, &column);
    ui.Drag(Grid(), ColumnDivider(4), CPoint(column.left - 20, column.CenterPoint().y));
    EXPECT_EQ(grid.GetColumnWidth(4), 0);
}

TEST_F(GridMouseTest, RowDividersResizeAndADoubleClickFitsTheColumnToItsText) {
    Open(6, 6);
    CRect heading;
    grid.GetCellRect(2, 0, &heading);
    const CPoint divider(heading.CenterPoint().x, heading.bottom + 1);
    ui.MouseMove(Grid(), divider);
    EXPECT_EQ(grid.GetMouseMode(), MOUSE_OVER_ROW_DIVIDE);
    ui.Drag(Grid(), divider, divider + CSize(0, 15));
    EXPECT_EQ(grid.GetRowHeight(2), kHeight + 15);

    grid.SetItemText(3, 2, "a much longer text than fits");
    ui.MouseMove(Grid(), ColumnDivider(2));
    ui.DoubleClick(Grid(), ColumnDivider(2));
    EXPECT_GT(grid.GetColumnWidth(2), kWidth);
}

TEST_F(GridMouseTest, AHiddenColumnsDividerCannotBeGrabbedWhenUnhidingIsOff) {
    Open(6, 6);
    grid.SetColumnWidth(3, 0);
    grid.EnableHiddenColUnhide(FALSE);
    // The divider between columns 2 and 4 is also the hidden column's.
    ui.MouseMove(Grid(), ColumnDivider(2));
    ui.Drag(Grid(), ColumnDivider(2), ColumnDivider(2) + CSize(20, 0));
    EXPECT_EQ(grid.GetColumnWidth(3), 0);
    EXPECT_EQ(grid.GetColumnWidth(2), kWidth + 20);
}

TEST_F(GridMouseTest, TheRightButtonMovesTheFocusAndReportsOutsideCellsAsNoCell) {
    Open(4, 4, 400, 300);
    ui.RightClick(Grid(), CellCentre(2, 3));
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 3));
    ASSERT_EQ(parent.Of(NM_RCLICK).size(), 1u);
    EXPECT_EQ(parent.Of(NM_RCLICK)[0].row, 2);

    parent.notifications.clear();
    ui.RightClick(Grid(), CPoint(Client().right - 5, Client().bottom - 5));
    ASSERT_EQ(parent.Of(NM_RCLICK).size(), 1u);
    EXPECT_EQ(parent.Of(NM_RCLICK)[0].row, -1);
    EXPECT_EQ(parent.Of(NM_RCLICK)[0].col, -1);
}

TEST_F(GridMouseTest, HeadingClicksSelectWholeColumnsAndRows) {
    Open(6, 6);
    ui.Click(Grid(), CellCentre(0, 2));
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(1, 2, 5, 2));
    ui.Click(Grid(), CellCentre(3, 0));
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(3, 1, 3, 5));
    ui.Click(Grid(), CellCentre(0, 0));
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(1, 1, 5, 5));
}

} // namespace
