// The road of an edit as a user takes it: opening the editor by click, typing or F2, what the
// first key does, how the edit ends (Return, Tab, arrows, Escape, a click elsewhere, a
// scroll), and the application's veto before and refusal after.

#include "GridOnScreen.h"

#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/testing/ClipboardText.h"

#include <cstring>

namespace {

class GridEditTest : public GridOnScreen {
protected:
    void SetUp() override {
        Open(6, 6);
        grid.SetItemText(2, 2, "abc");
        grid.SetItemText(2, 1, "left");
        grid.SetItemText(2, 3, "right");
        ui.Click(Grid(), CellCentre(2, 2));
        grid.SetModified(FALSE);
        parent.notifications.clear();
    }
    CWnd* Editor() const {
        CGridCellBase* cell = grid.GetCell(grid.GetFocusCell());
        return cell != nullptr ? cell->GetEditWnd() : nullptr;
    }
    CString EditorText() const {
        CString text;
        if (CWnd* editor = Editor()) {
            editor->GetWindowText(text);
        }
        return text;
    }
    DWORD EditorSelection() const {
        return Editor() != nullptr ? DWORD(Editor()->SendMessage(EM_GETSEL)) : 0;
    }
    int Count(int code) const { return int(parent.Of(code).size()); }
};

TEST_F(GridEditTest, ASecondClickOpensTheEditorAndAClickElsewhereWithoutTypingChangesNothing) {
    ui.Click(Grid(), CellCentre(2, 2));
    ASSERT_NE(Editor(), nullptr);
    EXPECT_TRUE(grid.IsItemEditing(2, 2));
    EXPECT_EQ(CWnd::GetFocus(), Editor());
    EXPECT_EQ(EditorSelection(), MAKELONG(3, 3)); // the caret at the end

    ui.Click(Grid(), CellCentre(4, 4));
    EXPECT_FALSE(grid.IsItemEditing(2, 2));
    EXPECT_EQ(Count(GV_NOTIFY_BEGINLABELEDIT), 1);
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 0);
    EXPECT_FALSE(grid.GetModified(2, 2));
    EXPECT_EQ(grid.GetItemText(2, 2), "abc");
}

TEST_F(GridEditTest, TypingReplacesTheTextAndReturnCommitsInPlace) {
    ui.Type("x");
    EXPECT_EQ(EditorText(), "x");
    ui.Type("yz");
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(grid.GetItemText(2, 2), "xyz");
    EXPECT_TRUE(grid.GetModified(2, 2));
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 2));
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(CWnd::GetFocus(), &grid);
    std::vector<UINT> edits;
    for (const Notification& n : parent.notifications) {
        if (n.code == UINT(GV_NOTIFY_BEGINLABELEDIT) || n.code == UINT(GV_NOTIFY_ENDLABELEDIT)) {
            edits.push_back(n.code);
        }
    }
    EXPECT_EQ(edits,
              (std::vector<UINT>{UINT(GV_NOTIFY_BEGINLABELEDIT), UINT(GV_NOTIFY_ENDLABELEDIT)}));
}

TEST_F(GridEditTest, ASpaceOnlySelectsAndABackspaceTakesTheLastCharacter) {
    ui.Type(" ");
    EXPECT_EQ(EditorText(), "abc");
    EXPECT_EQ(EditorSelection(), MAKELONG(0, 3));
    ui.PressKey(VK_ESCAPE);

    ui.PressKey(VK_BACK);
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(grid.GetItemText(2, 2), "ab");
}

TEST_F(GridEditTest, EscapeBringsBackTheTextAndLeavesTheCellUnmodified) {
    ui.Type("changed");
    ui.PressKey(VK_ESCAPE);
    EXPECT_EQ(grid.GetItemText(2, 2), "abc");
    EXPECT_FALSE(grid.GetModified(2, 2));
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 0);
}

TEST_F(GridEditTest, TabCommitsAndOpensTheNextCellWithItsTextSelected) {
    ui.Type("new");
    ui.PressKey(VK_TAB);
    EXPECT_EQ(grid.GetItemText(2, 2), "new");
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 3));
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(EditorText(), "right");
    EXPECT_EQ(EditorSelection(), MAKELONG(0, 5));
    ui.PressKey(VK_ESCAPE);
}

TEST_F(GridEditTest, ArrowsLeaveAnEditStartedByTypingButMoveTheCaretAfterF2) {
    ui.Type("q");
    ui.PressKey(VK_LEFT);
    EXPECT_EQ(grid.GetItemText(2, 2), "q");
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 1));
    EXPECT_EQ(EditorText(), "left");
    ui.PressKey(VK_ESCAPE);

    ui.PressKey(VK_F2);
    ASSERT_NE(Editor(), nullptr);
    ui.PressKey(VK_LEFT);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 1)); // the caret moved, not the cell
    EXPECT_NE(Editor(), nullptr);
    ui.PressKey(VK_RIGHT, MK_CONTROL);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 2));
    ui.PressKey(VK_ESCAPE);
}

TEST_F(GridEditTest, TheApplicationCanVetoTheEditOrRefuseTheNewText) {
    parent.answer = [](const Notification& n) {
        return n.code == UINT(GV_NOTIFY_BEGINLABELEDIT) ? -1 : 0;
    };
    ui.Type("x");
    EXPECT_EQ(Editor(), nullptr);

    parent.answer = [](const Notification& n) {
        return n.code == UINT(GV_NOTIFY_ENDLABELEDIT) ? -1 : 0;
    };
    ui.Type("x");
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(grid.GetItemText(2, 2), "abc");
    EXPECT_TRUE(grid.GetModified(2, 2)); // a refused edit leaves its mark
    EXPECT_FALSE(grid.IsItemEditing(2, 2));
}

TEST_F(GridEditTest, LongTextWidensTheEditorUpToTheGridsEdge) {
    CRect before;
    ui.Type("w");
    Editor()->GetWindowRect(&before);
    ui.Type("wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww");
    CRect after;
    Editor()->GetWindowRect(&after);
    grid.ScreenToClient(&after);
    grid.ScreenToClient(&before);
    EXPECT_GT(after.Width(), before.Width());
    EXPECT_EQ(after.left, before.left);
    EXPECT_EQ(after.right, Client().right);
    EXPECT_EQ(after.Height(), before.Height());
    ui.PressKey(VK_ESCAPE);
}

TEST_F(GridEditTest, AScrollCommitsTheEditAndAPasteGoesIntoTheOpenEditor) {
    ui.Type("kept");
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(grid.GetItemText(2, 2), "kept");
    EXPECT_FALSE(grid.IsItemEditing(2, 2));
    grid.SendMessage(WM_VSCROLL, SB_TOP);

    ASSERT_TRUE(PutTextOnClipboard("ZZZ"));
    ui.Click(Grid(), CellCentre(2, 2));
    ui.Click(Grid(), CellCentre(2, 2));
    ASSERT_NE(Editor(), nullptr);
    grid.SendMessage(WM_COMMAND, ID_EDIT_PASTE);
    EXPECT_EQ(EditorText(), "keptZZZ");
    EXPECT_EQ(grid.GetItemText(2, 3), "right");
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(grid.GetItemText(2, 2), "keptZZZ");
}

} // namespace
