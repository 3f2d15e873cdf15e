// A multi-line edit that neither scrolls sideways nor has a horizontal bar breaks its lines
// between words at its width; the caret, the selection, the keys and the mouse follow the lines
// as they show.

#include "WidgetTestSupport.h"

#include "platform/system/SysColors.h"
#include "platform/widgets/Edit.h"

#include <string>

namespace {
constexpr UINT kEditId = 100;
constexpr DWORD kWrapping = WS_VISIBLE | WS_BORDER | WS_VSCROLL | ES_MULTILINE | ES_WANTRETURN;
const CRect kNarrow(10, 10, 130, 130);
const char kText[] = "The box culvert carries the stream under the embankment at chainage 4+250";

class EditWrapTest : public WidgetTest {
protected:
    void Make(DWORD style = kWrapping, const CRect& rect = kNarrow) {
        ASSERT_TRUE(edit.Create(style, rect, &parent, kEditId));
        edit.SetWindowText(kText);
        edit.SetFocus();
        ui.Pump();
    }
    std::pair<int, int> Sel() const {
        int start, end;
        edit.GetSel(start, end);
        return {start, end};
    }
    std::string Line(int line) const {
        char buffer[128] = {};
        const int n = edit.GetLine(line, buffer, sizeof buffer);
        return std::string(buffer, size_t(n));
    }
    // A point inside line `line` of the text, a little way into it.
    CPoint InLine(int line, int intoLine = 2) const {
        const CPoint p = edit.PosFromChar(UINT(edit.LineIndex(line) + intoLine));
        return CPoint(p.x + 1, p.y + 4);
    }
    CEdit edit;
};

TEST_F(EditWrapTest, LinesBreakBetweenWordsAtTheControlsWidthAndFollowItsSize) {
    Make();
    const int lines = edit.GetLineCount();
    ASSERT_GT(lines, 2);
    CRect format;
    edit.GetRect(&format);
    std::string joined;
    for (int line = 0; line < lines; ++line) {
        SCOPED_TRACE(line);
        const std::string text = Line(line);
        joined += text;
        EXPECT_EQ(edit.LineLength(edit.LineIndex(line)), int(text.size()));
        // A line ends with the blank before a word that did not fit, never inside a word.
        if (line + 1 < lines) {
            EXPECT_EQ(text.back(), ' ');
            // Its words stand within the control; only the blank may overhang.
            const CPoint end = edit.PosFromChar(UINT(edit.LineIndex(line) + int(text.size()) - 1));
            EXPECT_LE(end.x, format.right);
        }
    }
    EXPECT_EQ(joined, kText); // wrapping puts no breaks in the text
    EXPECT_EQ(TextOf(edit), kText);

    edit.MoveWindow(10, 10, 380, 120);
    EXPECT_LT(edit.GetLineCount(), lines);
    edit.MoveWindow(CRect(kNarrow));
    EXPECT_EQ(edit.GetLineCount(), lines);
}

TEST_F(EditWrapTest, OnlyAnEditThatCannotScrollSidewaysWraps) {
    Make(kWrapping | ES_AUTOHSCROLL);
    EXPECT_EQ(edit.GetLineCount(), 1);
    CEdit barred;
    ASSERT_TRUE(barred.Create(kWrapping | WS_HSCROLL, kNarrow, &parent, kEditId + 1));
    barred.SetWindowText(kText);
    EXPECT_EQ(barred.GetLineCount(), 1);
}

TEST_F(EditWrapTest, RightAlignedLinesEndAtTheMarginWithoutTheirBreakingBlanks) {
    Make(kWrapping | ES_RIGHT);
    CRect format;
    edit.GetRect(&format);
    ASSERT_GT(edit.GetLineCount(), 2);
    for (int line = 0; line + 1 < edit.GetLineCount(); ++line) {
        SCOPED_TRACE(line);
        // The blank that ends the line stands where its last word ends.
        const int blank = edit.LineIndex(line + 1) - 1;
        const int ends = edit.PosFromChar(UINT(blank)).x;
        EXPECT_GE(ends, format.right - 3);
        EXPECT_LE(ends, format.right);
    }
}

TEST_F(EditWrapTest, AWordWiderThanTheControlIsBrokenWhereItFillsTheLine) {
    Make();
    const std::string word(60, 'W');
    edit.SetWindowText(("a " + word + " b").c_str());
    EXPECT_EQ(Line(0), "a ");
    EXPECT_GT(edit.GetLineCount(), 3);
    std::string joined;
    for (int line = 0; line < edit.GetLineCount(); ++line) {
        EXPECT_FALSE(Line(line).empty());
        joined += Line(line);
    }
    EXPECT_EQ(joined, "a " + word + " b");
}

TEST_F(EditWrapTest, HomeEndUpAndDownFollowTheWrappedLines) {
    Make();
    ui.PressKey(VK_HOME, MK_CONTROL);
    ui.PressKey(VK_END);
    // The caret stands at the end of the first line, not at the start of the second: Shift+Home
    // from there takes the whole first line.
    EXPECT_EQ(edit.LineFromChar(-1), 0);
    ui.PressKey(VK_HOME, MK_SHIFT);
    EXPECT_EQ(Sel(), std::make_pair(0, edit.LineIndex(1)));

    ui.PressKey(VK_HOME);
    ui.PressKey(VK_DOWN);
    EXPECT_EQ(Sel(), std::make_pair(edit.LineIndex(1), edit.LineIndex(1)));
    ui.PressKey(VK_DOWN);
    EXPECT_EQ(Sel(), std::make_pair(edit.LineIndex(2), edit.LineIndex(2)));
    ui.PressKey(VK_END);
    ui.PressKey(VK_UP); // from the end of a line to the end of the shorter or longer one above
    const int caret = Sel().second;
    EXPECT_GT(caret, edit.LineIndex(1));
    EXPECT_LE(caret, edit.LineIndex(2));
    ui.PressKey(VK_UP);
    ui.PressKey(VK_UP); // the first line stays the first
    EXPECT_LT(Sel().second, edit.LineIndex(1));
}

TEST_F(EditWrapTest, TheMouseAndTheSelectionFollowTheWrappedLines) {
    Make();
    ui.Click(edit.m_hWnd, InLine(1));
    EXPECT_EQ(edit.LineFromChar(-1), 1);
    EXPECT_EQ(Sel().second, edit.LineIndex(1) + 2);
    // A click past the end of a wrapped line puts the caret at its end.
    CRect client;
    edit.GetClientRect(&client);
    ui.Click(edit.m_hWnd, CPoint(client.right - 2, InLine(0).y));
    EXPECT_EQ(Sel().second, edit.LineIndex(1));
    ui.PressKey(VK_HOME, MK_SHIFT);
    EXPECT_EQ(Sel(), std::make_pair(0, edit.LineIndex(1)));

    // Dragging from the first line into the third selects across the break, and the highlight
    // runs along each line from its start.
    ui.Drag(edit.m_hWnd, InLine(0, 0), InLine(2));
    EXPECT_EQ(Sel(), std::make_pair(0, edit.LineIndex(2) + 2));
    const CPoint second = edit.PosFromChar(UINT(edit.LineIndex(1)));
    EXPECT_EQ(ui.Pixel(edit.m_hWnd, CPoint(second.x + 1, second.y + 2)),
              GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(EditWrapTest, TypingRewrapsAndTheViewFollowsTheCaretDownTheLines) {
    Make(kWrapping, CRect(10, 10, 130, 50));
    ui.PressKey(VK_END, MK_CONTROL);
    EXPECT_GT(edit.GetFirstVisibleLine(), 0);
    const int lines = edit.GetLineCount();
    ui.Type(" and a second culvert downstream of the first");
    EXPECT_GT(edit.GetLineCount(), lines);
    EXPECT_EQ(edit.LineFromChar(-1), edit.GetLineCount() - 1);
    CRect client;
    edit.GetClientRect(&client);
    EXPECT_TRUE(client.PtInRect(edit.PosFromChar(UINT(edit.GetWindowTextLength()))));
    ui.PressKey(VK_HOME, MK_CONTROL);
    EXPECT_EQ(edit.GetFirstVisibleLine(), 0);
}

} // namespace
