// The grid's text on the clipboard both ways, through the keys a user presses, and drag and
// drop of ranges within a grid and between grids.

#include "GridOnScreen.h"

#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/testing/ClipboardText.h"
#include "platform/window/DragDrop.h"
#include "platform/window/Input.h"
#include "platform/window/OleDropTarget.h"

#include <cstring>
#include <string>

namespace {

// The clipboard's text block, NUL included, as the bytes it holds.
std::string ClipboardBytes() {
    std::string bytes;
    if (!OpenClipboard(nullptr)) {
        return bytes;
    }
    if (HANDLE data = GetClipboardData(CF_TEXT)) {
        const auto* text = static_cast<const char*>(GlobalLock(static_cast<HGLOBAL>(data)));
        bytes.assign(text, GlobalSize(static_cast<HGLOBAL>(data)));
        GlobalUnlock(static_cast<HGLOBAL>(data));
    }
    CloseClipboard();
    return bytes;
}

class GridClipboardTest : public GridOnScreen {
protected:
    void SetUp() override {
        Open(6, 6);
        for (int row = 1; row < 6; row++) {
            for (int col = 1; col < 6; col++) {
                grid.SetItemText(row, col, CString(char('a' + col - 1)) + char('0' + row));
            }
        }
    }
    void Select(int minRow, int minCol, int maxRow, int maxCol) {
        ui.Click(Grid(), CellCentre(minRow, minCol));
        ui.Click(Grid(), CellCentre(maxRow, maxCol), MK_SHIFT);
    }
    // Pastes `text` with Control+V at (row, col) and answers the grid's column of texts there.
    void PasteAt(int row, int col, const char* text) {
        PutTextOnClipboard(text);
        ui.Click(Grid(), CellCentre(row, col));
        parent.notifications.clear();
        ui.PressKey('V', MK_CONTROL);
    }
};

TEST_F(GridClipboardTest, CopyWritesTabsBetweenCellsAndLineBreaksBetweenRows) {
    Select(1, 1, 2, 2);
    ui.PressKey('C', MK_CONTROL);
    EXPECT_EQ(ClipboardBytes(), std::string("a1\tb1\r\na2\tb2", 12) + '\0');

    // A cell taken out of the selection keeps its place as an empty field.
    ui.Click(Grid(), CellCentre(1, 2), MK_CONTROL);
    ui.PressKey(VK_INSERT, MK_CONTROL);
    EXPECT_EQ(ClipboardBytes(), std::string("a1\t\r\na2\tb2") + '\0');
}

TEST_F(GridClipboardTest, HiddenLinesLeaveTheTextWithTheirSeparatorsAtTheEnd) {
    grid.SetColumnWidth(2, 0); // hidden in the middle: no field, no tab
    grid.SetColumnWidth(3, 0); // hidden at the end of the range: its tab stays
    grid.SetRowHeight(2, 0);   // hidden last row: the text ends in a line break
    ui.Click(Grid(), CellCentre(1, 1));
    grid.SetSelectedRange(1, 1, 2, 3);
    ui.PressKey('C', MK_CONTROL);
    EXPECT_EQ(ClipboardBytes(), std::string("a1\t\r\n") + '\0');
}

TEST_F(GridClipboardTest, PastedFieldsSplitAtTabsAndCommasAndKeepTheirPlaces) {
    PasteAt(1, 1, "1,2\t3\r\n4\t\t6\t\r\n7");
    EXPECT_EQ(grid.GetItemText(1, 1), "1");
    EXPECT_EQ(grid.GetItemText(1, 2), "2");
    EXPECT_EQ(grid.GetItemText(1, 3), "3");
    EXPECT_EQ(grid.GetItemText(2, 1), "4");
    EXPECT_EQ(grid.GetItemText(2, 2), ""); // an empty field in the middle is a field
    EXPECT_EQ(grid.GetItemText(2, 3), "6");
    EXPECT_EQ(grid.GetItemText(2, 4), "d2"); // a trailing tab fills nothing
    EXPECT_EQ(grid.GetItemText(3, 1), "7");
    EXPECT_FALSE(grid.IsCellSelected(1, 1)); // pasted data is not cut by mistake later
    ASSERT_GE(parent.notifications.size(), 2u);
    EXPECT_EQ(parent.Of(GV_NOTIFY_BEGINBULKEDIT).size(), 1u);
    EXPECT_EQ(parent.notifications.back().code, UINT(GV_NOTIFY_ENDBULKEDIT));
}

TEST_F(GridClipboardTest, APastePastTheEdgeDropsTheRestAndSkipsHiddenLines) {
    grid.SetRowHeight(5, 0);
    PasteAt(4, 4, "p\tq\tr\nx\ty\nz");
    EXPECT_EQ(grid.GetItemText(4, 4), "p");
    EXPECT_EQ(grid.GetItemText(4, 5), "q");
    EXPECT_EQ(grid.GetRowCount(), 6);
    EXPECT_EQ(grid.GetColumnCount(), 6);
    EXPECT_EQ(grid.GetItemText(5, 4), "d5"); // the hidden row takes no line
}

TEST_F(GridClipboardTest, ReadOnlyCellsAndVetoedCellsKeepTheirTextAndTheFieldIsLost) {
    grid.SetItemState(1, 2, grid.GetItemState(1, 2) | GV_STATE_READONLY);
    parent.answer = [](const Notification& n) {
        return n.code == UINT(GV_NOTIFY_BEGINLABELEDIT) && n.row == 2 && n.col == 1 ? -1 : 0;
    };
    PasteAt(1, 1, "1\t2\t3\n4\t5");
    EXPECT_EQ(grid.GetItemText(1, 1), "1");
    EXPECT_EQ(grid.GetItemText(1, 2), "b1");
    EXPECT_EQ(grid.GetItemText(1, 3), "3");
    EXPECT_EQ(grid.GetItemText(2, 1), "a2"); // vetoed by the application
    EXPECT_EQ(grid.GetItemText(2, 2), "5");  // the veto cost that cell only
}

TEST_F(GridClipboardTest, CutCopiesThenClearsAndSelectAllTakesEveryCell) {
    Select(2, 2, 2, 3);
    ui.PressKey('X', MK_CONTROL);
    EXPECT_EQ(ClipboardBytes(), std::string("b2\tc2") + '\0');
    EXPECT_EQ(grid.GetItemText(2, 2), "");
    EXPECT_EQ(grid.GetItemText(2, 3), "");

    ui.PressKey('A', MK_CONTROL);
    EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange(1, 1, 5, 5));

    grid.SetEditable(FALSE);
    ui.PressKey('X', MK_CONTROL);
    EXPECT_EQ(grid.GetItemText(1, 1), "a1");
}

TEST_F(GridClipboardTest, EditCommandsAreEnabledByTheSelectionAndTheClipboard) {
    grid.SendMessage(WM_COMMAND, ID_EDIT_COPY);
    EXPECT_EQ(grid.GetItemText(1, 1), "a1");
    Select(1, 1, 1, 2);
    grid.SendMessage(WM_COMMAND, ID_EDIT_COPY);
    EXPECT_EQ(ClipboardBytes(), std::string("a1\tb1") + '\0');
    ui.Click(Grid(), CellCentre(3, 3));
    grid.SendMessage(WM_COMMAND, ID_EDIT_PASTE);
    EXPECT_EQ(grid.GetItemText(3, 3), "a1");
    EXPECT_EQ(grid.GetItemText(3, 4), "b1");
}

// Drag and drop: a second grid beside the first, and a responder that plays the user's hand.
class GridDragDropTest : public GridClipboardTest {
protected:
    CGridProbe other;

    void SetUp() override {
        GridClipboardTest::SetUp();
        grid.EnableDragAndDrop(TRUE);
        other.SetRowCount(4);
        other.SetColumnCount(4);
        other.SetFixedRowCount(1);
        other.SetFixedColumnCount(1);
        ASSERT_TRUE(other.Create(CRect(420, 0, 620, 100), &parent, 2));
        for (int col = 0; col < 4; col++) {
            other.SetColumnWidth(col, kWidth);
        }
        other.EnableDragAndDrop(TRUE);
        ui.Pump();
    }
    void TearDown() override { SetDragResponder(nullptr); }

    // Drags the selection from a cell of this grid to a point of `target`, with `keys` held.
    void DragTo(CPoint from, HWND target, CPoint to, UINT keys = 0) {
        POINT screen = to;
        ClientToScreen(target, &screen);
        SetDragResponder([screen, keys] {
            if (keys & MK_CONTROL) {
                SetKeyHeld(VK_CONTROL, true);
            }
            InjectMouseMove(screen);
            InjectMouseButton(VK_LBUTTON, false, screen);
        });
        ui.MouseDown(Grid(), from);
        ui.MouseMove(Grid(), from + CSize(5, 5));
        SetKeyHeld(VK_CONTROL, false);
    }
    CPoint OtherCell(int row, int col) {
        CRect rect;
        other.GetCellRect(row, col, &rect);
        return rect.CenterPoint();
    }
};

TEST_F(GridDragDropTest, AMoveToAnotherGridPastesThereAndClearsTheSource) {
    Select(1, 1, 2, 2);
    parent.notifications.clear();
    DragTo(CellCentre(1, 1), other.GetSafeHwnd(), OtherCell(2, 2));
    EXPECT_EQ(other.GetItemText(2, 2), "a1");
    EXPECT_EQ(other.GetItemText(3, 3), "b2");
    EXPECT_EQ(grid.GetItemText(1, 1), "");
    EXPECT_EQ(grid.GetItemText(2, 2), "");
    ASSERT_EQ(parent.Of(GV_NOTIFY_BEGINDRAG).size(), 1u);
    EXPECT_EQ(parent.Of(GV_NOTIFY_BEGINDRAG)[0].row, 1);
    EXPECT_EQ(grid.GetMouseMode(), MOUSE_NOTHING);
    EXPECT_FALSE(other.GetItemState(2, 2) & GV_STATE_DROPHILITED);
}

TEST_F(GridDragDropTest, ControlMakesACopyWithinTheSameGrid) {
    Select(1, 1, 1, 2);
    DragTo(CellCentre(1, 1), Grid(), CellCentre(4, 3), MK_CONTROL);
    EXPECT_EQ(grid.GetItemText(4, 3), "a1");
    EXPECT_EQ(grid.GetItemText(4, 4), "b1");
    EXPECT_EQ(grid.GetItemText(1, 1), "a1");
}

TEST_F(GridDragDropTest, ADropOutsideAnyTargetOrOnAReadOnlyCellChangesNothing) {
    Select(1, 1, 1, 1);
    DragTo(CellCentre(1, 1), parent.GetSafeHwnd(), CPoint(10, 400));
    EXPECT_EQ(grid.GetItemText(1, 1), "a1");

    other.SetItemState(2, 2, other.GetItemState(2, 2) | GV_STATE_READONLY);
    Select(1, 1, 1, 1);
    DragTo(CellCentre(1, 1), other.GetSafeHwnd(), OtherCell(2, 2));
    EXPECT_EQ(other.GetItemText(2, 2), "");
    EXPECT_EQ(grid.GetItemText(1, 1), "a1");
}

TEST_F(GridDragDropTest, TextDroppedByAnotherProgramIsPastedAsACopy) {
    POINT screen = OtherCell(1, 1);
    ClientToScreen(other.GetSafeHwnd(), &screen);
    EXPECT_TRUE(DeliverDroppedText(screen, "from\toutside"));
    EXPECT_EQ(other.GetItemText(1, 1), "from");
    EXPECT_EQ(other.GetItemText(1, 2), "outside");
    POINT nowhere{10, 400};
    ClientToScreen(parent.GetSafeHwnd(), &nowhere);
    EXPECT_FALSE(DeliverDroppedText(nowhere, "lost"));
}

} // namespace
