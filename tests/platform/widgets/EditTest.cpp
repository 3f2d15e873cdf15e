#include "WidgetTestSupport.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/testing/ClipboardText.h"
#include "platform/widgets/Edit.h"

#include <cctype>
#include <random>

using ::testing::ElementsAre;

namespace {
constexpr UINT kEditId = 100;
const CRect kEditRect(10, 10, 210, 34);
const CRect kNarrowRect(10, 10, 70, 34);
constexpr int kWheelLines = 3; // lines a notch of the wheel scrolls

class EditTest : public WidgetTest {
protected:
    void Make(DWORD style = WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL,
              const CRect& rect = kEditRect) {
        ASSERT_TRUE(edit.Create(style, rect, &parent, kEditId));
    }
    void Focus() {
        edit.SetFocus();
        PumpMessages();
        recorder->Clear();
    }
    std::pair<int, int> Sel() const {
        int start, end;
        edit.GetSel(start, end);
        return {start, end};
    }
    // The middle of the gap before character `pos`, in the edit's client coordinates.
    CPoint At(int pos) const {
        const CPoint p = edit.PosFromChar(UINT(pos));
        return CPoint(p.x, p.y + 4);
    }
    CEdit edit;
};

TEST_F(EditTest, KeysMoveTheCaretAndShiftExtendsTheSelection) {
    Make();
    Focus();
    ui.Type("one two three");
    EXPECT_EQ(TextOf(edit), "one two three");
    EXPECT_EQ(Sel(), std::make_pair(13, 13));
    ui.PressKey(VK_HOME);
    ui.PressKey(VK_RIGHT, MK_CONTROL);
    EXPECT_EQ(Sel(), std::make_pair(4, 4));
    ui.PressKey(VK_RIGHT, MK_CONTROL | MK_SHIFT);
    EXPECT_EQ(Sel(), std::make_pair(4, 8));
    ui.PressKey(VK_END, MK_SHIFT);
    EXPECT_EQ(Sel(), std::make_pair(4, 13));
    ui.PressKey(VK_LEFT); // a plain arrow collapses the selection at its near end
    EXPECT_EQ(Sel(), std::make_pair(4, 4));
    ui.PressKey(VK_BACK);
    ui.PressKey(VK_DELETE);
    EXPECT_EQ(TextOf(edit), "onewo three");
    ui.PressKey(VK_LEFT, MK_CONTROL);
    EXPECT_EQ(Sel(), std::make_pair(0, 0));
}

TEST_F(EditTest, TypingReplacesTheSelectionAndSetSelFollowsTheFrameworksRules) {
    Make();
    edit.SetWindowText("abcdef");
    Focus();
    edit.SetSel(1, 3);
    ui.Type("X");
    EXPECT_EQ(TextOf(edit), "aXdef");
    edit.SetSel(0, -1); // -1 reaches the end
    EXPECT_EQ(Sel(), std::make_pair(0, 5));
    edit.SetSel(-1, 0); // -1 removes the selection, keeping the caret
    EXPECT_EQ(Sel(), std::make_pair(5, 5));
    edit.SetSel(3, 1); // an anchor after the caret
    EXPECT_EQ(Sel(), std::make_pair(1, 3));
    edit.SetSel(50, 60);
    EXPECT_EQ(Sel(), std::make_pair(5, 5));
    edit.ReplaceSel("!");
    EXPECT_EQ(TextOf(edit), "aXdef!");
}

TEST_F(EditTest, PasteReplacesTheSelectionAndUndoBringsItBack) {
    Make();
    edit.SetWindowText("hello world");
    Focus();
    PutTextOnClipboard("XY");
    edit.SetSel(2, 5);
    ui.PressKey('V', MK_CONTROL);
    EXPECT_EQ(TextOf(edit), "heXY world");
    EXPECT_EQ(Sel(), std::make_pair(4, 4));
    ui.PressKey('Z', MK_CONTROL);
    EXPECT_EQ(TextOf(edit), "hello world");
    EXPECT_EQ(Sel(), std::make_pair(2, 5));
    ui.PressKey('Z', MK_CONTROL); // undoing the undo redoes
    EXPECT_EQ(TextOf(edit), "heXY world");

    edit.SetSel(0, 4);
    ui.PressKey('X', MK_CONTROL);
    EXPECT_EQ(TextOnClipboard(), "heXY");
    EXPECT_EQ(TextOf(edit), " world");
    edit.SetSel(0, 1);
    ui.PressKey('C', MK_CONTROL);
    EXPECT_EQ(TextOnClipboard(), " ");
    EXPECT_EQ(TextOf(edit), " world");
}

TEST_F(EditTest, TypedWordsUndoAsOneStepAndAPasteOfManyLinesKeepsTheFirstInASingleLine) {
    Make();
    edit.SetWindowText("start");
    Focus();
    edit.SetSel(5, 5);
    ui.Type(" more");
    EXPECT_TRUE(edit.CanUndo());
    edit.Undo();
    EXPECT_EQ(TextOf(edit), "start");
    PutTextOnClipboard("first\r\nsecond");
    edit.Paste();
    EXPECT_EQ(TextOf(edit), "startfirst");
}

TEST_F(EditTest, TheCaretStaysInViewWhileTheTextScrolls) {
    Make(WS_VISIBLE | ES_AUTOHSCROLL, kNarrowRect);
    Focus();
    ui.Type("a rather long line of text that cannot fit");
    CRect client;
    edit.GetClientRect(&client);
    const int end = edit.GetWindowTextLength();
    CPoint caret = edit.PosFromChar(UINT(end));
    EXPECT_GE(caret.x, client.left);
    EXPECT_LT(caret.x, client.right);
    EXPECT_LT(edit.PosFromChar(0).x, client.left); // the start has scrolled out on the left
    ui.PressKey(VK_HOME);
    EXPECT_GE(edit.PosFromChar(0).x, client.left);
    EXPECT_GT(edit.PosFromChar(UINT(end)).x, client.right);
    ui.PressKey(VK_END);
    caret = edit.PosFromChar(UINT(end));
    EXPECT_LT(caret.x, client.right);
}

TEST_F(EditTest, LimitTextCutsInsertionsShortAndSaysSo) {
    Make();
    Focus();
    edit.LimitText(5);
    EXPECT_EQ(edit.GetLimitText(), 5u);
    ui.Type("abcdefg");
    EXPECT_EQ(TextOf(edit), "abcde");
    EXPECT_EQ(recorder->Commands(EN_MAXTEXT).size(), 2u); // "f" and "g" were refused
    PutTextOnClipboard("12345");
    edit.SetSel(1, 3);
    edit.Paste();
    EXPECT_EQ(TextOf(edit), "a12de");
    edit.SetWindowText("longer than the limit"); // the program's text is not limited
    EXPECT_EQ(TextOf(edit), "longer than the limit");
}

TEST_F(EditTest, EachChangeSendsUpdateThenChangeAndFocusIsAnnounced) {
    Make();
    edit.SetFocus();
    ui.Type("ab");
    edit.SetWindowText("new");
    parent.SetFocus();
    EXPECT_THAT(CommandsFrom(kEditId), ElementsAre(EN_SETFOCUS, EN_UPDATE, EN_CHANGE, EN_UPDATE,
                                                   EN_CHANGE, EN_UPDATE, EN_CHANGE, EN_KILLFOCUS));
    EXPECT_FALSE(edit.GetModify()); // the program's text clears the modified flag
}

TEST_F(EditTest, AMultiLineEditIsSilentAboutTextSetByTheProgramAndBreaksLinesOnEnter) {
    Make(WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL,
         CRect(10, 10, 210, 110));
    Focus();
    edit.SetWindowText("first");
    EXPECT_TRUE(CommandsFrom(kEditId).empty());
    EXPECT_EQ(edit.SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS, DLGC_WANTALLKEYS);
    edit.SetSel(5, 5);
    ui.PressKey(VK_RETURN);
    ui.Type("second");
    EXPECT_EQ(TextOf(edit), "first\r\nsecond");
    EXPECT_EQ(edit.GetLineCount(), 2);
    EXPECT_EQ(edit.LineIndex(1), 7);
    EXPECT_EQ(edit.LineLength(7), 6);
    ui.PressKey(VK_UP);
    EXPECT_EQ(edit.LineFromChar(), 0);
    ui.PressKey(VK_END);
    ui.PressKey(VK_RIGHT); // over the line break in one step
    EXPECT_EQ(Sel(), std::make_pair(7, 7));
    char line[16] = {};
    EXPECT_EQ(edit.GetLine(1, line, sizeof line), 6);
    EXPECT_EQ(std::string(line, 6), "second");

    // More lines than the edit shows: the view follows the caret down and back up.
    edit.SetSel(-1, 0);
    ui.PressKey(VK_END, MK_CONTROL);
    for (int i = 0; i < 12; ++i) {
        ui.PressKey(VK_RETURN);
        ui.Type("more");
    }
    CRect client;
    edit.GetClientRect(&client);
    EXPECT_GT(edit.GetFirstVisibleLine(), 0);
    const CPoint caret = edit.PosFromChar(UINT(edit.GetWindowTextLength()));
    EXPECT_TRUE(client.PtInRect(caret));
    EXPECT_EQ(edit.GetScrollPos(SB_VERT), edit.GetFirstVisibleLine());
    ui.PressKey(VK_HOME, MK_CONTROL);
    EXPECT_EQ(edit.GetFirstVisibleLine(), 0);
    ui.Wheel(edit.m_hWnd, CPoint(20, 20), -WHEEL_DELTA); // the wheel scrolls, the caret stays
    EXPECT_EQ(edit.GetFirstVisibleLine(), kWheelLines);
    EXPECT_EQ(edit.GetScrollPos(SB_VERT), kWheelLines);
    EXPECT_EQ(Sel(), std::make_pair(0, 0));
}

TEST_F(EditTest, TheMouseSetsTheCaretDragsASelectionAndDoubleClickTakesAWord) {
    Make();
    edit.SetWindowText("alpha beta gamma");
    ui.Click(edit.m_hWnd, At(2));
    EXPECT_EQ(GetFocus(), edit.m_hWnd);
    EXPECT_EQ(Sel(), std::make_pair(2, 2));
    ui.Drag(edit.m_hWnd, At(6), At(10));
    EXPECT_EQ(Sel(), std::make_pair(6, 10));
    ui.Click(edit.m_hWnd, At(16), MK_SHIFT);
    EXPECT_EQ(Sel(), std::make_pair(6, 16));
    ui.DoubleClick(edit.m_hWnd, At(8));
    EXPECT_EQ(Sel(), std::make_pair(6, 10));
}

TEST_F(EditTest, AReadOnlyEditRefusesChangesButCopies) {
    Make(WS_VISIBLE | ES_READONLY);
    edit.SetWindowText("fixed");
    Focus();
    edit.SetSel(0, -1);
    ui.Type("x");
    ui.PressKey(VK_BACK);
    edit.Paste();
    ui.PressKey('C', MK_CONTROL);
    EXPECT_EQ(TextOf(edit), "fixed");
    EXPECT_EQ(TextOnClipboard(), "fixed");
    EXPECT_TRUE(CommandsFrom(kEditId).empty());
}

TEST_F(EditTest, TheSelectionShowsInTheHighlightColour) {
    Make();
    edit.SetWindowText("WWWWWW");
    Focus();
    edit.SetSel(0, 3);
    const CPoint inside = At(1);
    const CPoint outside = At(5);
    EXPECT_EQ(ui.Pixel(edit.m_hWnd, CPoint(inside.x, inside.y - 3)), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_NE(ui.Pixel(edit.m_hWnd, CPoint(outside.x, outside.y - 3)),
              GetSysColor(COLOR_HIGHLIGHT));
}

// A derived edit as the numeric controls make them: it sees each character first.
class DigitsEdit : public CEdit {
public:
    std::vector<UINT> reflected;
    BOOL passReflected = FALSE;

protected:
    void OnChar(UINT ch, UINT repeat, UINT flags) override {
        if (std::isalpha(int(ch)))
            return;
        CEdit::OnChar(ch, repeat, flags);
    }
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        if (message == WM_COMMAND)
            reflected.push_back(HIWORD(wParam));
        return passReflected ? FALSE : CEdit::OnChildNotify(message, wParam, lParam, result);
    }
};

TEST_F(EditTest, ADerivedEditRefusesCharactersAndHearsItsNotificationsFirst) {
    DigitsEdit digits;
    ASSERT_TRUE(digits.Create(WS_VISIBLE, kEditRect, &parent, kEditId));
    digits.passReflected = FALSE;
    digits.SetFocus();
    recorder->Clear();
    digits.reflected.clear();
    ui.Type("a1b2");
    EXPECT_EQ(TextOf(digits), "12");
    EXPECT_THAT(digits.reflected, ElementsAre(EN_UPDATE, EN_CHANGE, EN_UPDATE, EN_CHANGE));
    EXPECT_EQ(CommandsFrom(kEditId).size(), 4u); // answering FALSE lets the parent hear them too
}

TEST_F(EditTest, ATemplateMadeEditCanBeSubclassedLater) {
    const HWND plain = CreateWindowEx(
        0, "EDIT", "", WS_CHILD | WS_VISIBLE, kEditRect.left, kEditRect.top, kEditRect.Width(),
        kEditRect.Height(), parent.m_hWnd, HMENU(std::uintptr_t(kEditId)), nullptr, nullptr);
    ASSERT_NE(plain, nullptr);
    DigitsEdit digits;
    ASSERT_TRUE(digits.SubclassDlgItem(kEditId, &parent));
    digits.SetFocus();
    ui.Type("x9y");
    EXPECT_EQ(TextOf(digits), "9");
    EXPECT_EQ(SendMessage(plain, WM_GETDLGCODE, 0, 0),
              LRESULT(DLGC_WANTCHARS | DLGC_HASSETSEL | DLGC_WANTARROWS));
}

TEST_F(EditTest, ANotificationHandlerMayDestroyTheEdit) {
    class Closer : public CWnd {
    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
            if (HIWORD(wParam) == EN_CHANGE)
                ::DestroyWindow(reinterpret_cast<HWND>(lParam));
            return TRUE;
        }
    } closer;
    ASSERT_TRUE(closer.CreateEx(0, nullptr, "closer", WS_OVERLAPPED | WS_VISIBLE, 0, 0, 300, 100,
                                nullptr, nullptr));
    const HWND hwnd = CreateWindowEx(0, "Edit", "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20,
                                     closer.m_hWnd, HMENU(1), nullptr, nullptr);
    SetFocus(hwnd);
    ui.Type("abc");
    EXPECT_FALSE(IsWindow(hwnd));
}
} // namespace

namespace {
constexpr UINT kCaretBlinkMs = 530;

TEST_F(EditTest, TheCaretBlinksOnTheClockWhileTheEditHasTheFocus) {
    Make(WS_VISIBLE);
    Focus();
    const CPoint caret = At(0);
    const COLORREF text = GetSysColor(COLOR_WINDOWTEXT), back = GetSysColor(COLOR_WINDOW);
    EXPECT_EQ(ui.Pixel(edit.m_hWnd, caret), text);
    ui.Advance(kCaretBlinkMs);
    EXPECT_EQ(ui.Pixel(edit.m_hWnd, caret), back);
    ui.Advance(kCaretBlinkMs);
    EXPECT_EQ(ui.Pixel(edit.m_hWnd, caret), text);
    ui.Type("x"); // typing shows the caret at once, after the character
    EXPECT_EQ(ui.Pixel(edit.m_hWnd, At(1)), text);
    parent.SetFocus();
    ui.Advance(kCaretBlinkMs);
    EXPECT_EQ(ui.Pixel(edit.m_hWnd, At(1)), back);
}

// A parent that colours its edits, as dialogs do through WM_CTLCOLOREDIT.
class ColouringParent : public CWnd {
public:
    static constexpr COLORREF kBack = RGB(255, 255, 0);
    CBrush brush{kBack};

protected:
    HBRUSH OnCtlColor(CDC* dc, CWnd*, UINT kind) override {
        if (kind != CTLCOLOR_EDIT)
            return nullptr;
        dc->SetBkColor(kBack);
        return brush;
    }
};

TEST_F(EditTest, TheParentChoosesTheColoursAndTheTextKeepsItsAlignmentAndMargins) {
    ColouringParent colouring;
    ASSERT_TRUE(colouring.CreateEx(0, nullptr, "colours", WS_OVERLAPPED | WS_VISIBLE, 0, 0, 300,
                                   100, nullptr, nullptr));
    CEdit right, centred;
    ASSERT_TRUE(right.Create(WS_VISIBLE | ES_RIGHT, kEditRect, &colouring, 1));
    ASSERT_TRUE(centred.Create(WS_VISIBLE | ES_CENTER, kEditRect + CPoint(0, 30), &parent, 2));
    right.SetWindowText("12.5");
    centred.SetWindowText("mid");
    EXPECT_EQ(ui.Pixel(right.m_hWnd, CPoint(2, 2)), ColouringParent::kBack);
    EXPECT_EQ(ui.Pixel(centred.m_hWnd, CPoint(2, 2)), GetSysColor(COLOR_WINDOW));

    CRect client;
    right.GetClientRect(&client);
    const int end = right.PosFromChar(4).x;
    EXPECT_GT(end, client.right - 5);
    EXPECT_LE(end, client.right);
    const int left = centred.PosFromChar(0).x, rightEdge = centred.PosFromChar(3).x;
    EXPECT_NEAR(left, client.right - rightEdge, 2);

    CEdit margins;
    ASSERT_TRUE(margins.Create(WS_VISIBLE, kEditRect + CPoint(0, 60), &parent, 3));
    margins.SetWindowText("abc");
    margins.SetMargins(10, 4);
    EXPECT_EQ(margins.GetMargins(), DWORD(MAKELONG(10, 4)));
    EXPECT_EQ(margins.PosFromChar(0).x, 10);
    EXPECT_EQ(LOWORD(margins.CharFromPos(CPoint(3, 5))), 0);
}

// Keys, typing, clipboard and the mouse in a random order must leave a sane edit behind.
TEST_F(EditTest, AStormOfInputKeepsTheTextWithinItsLimitAndTheSelectionWithinTheText) {
    constexpr int kLimit = 20;
    constexpr int kSteps = 400;
    Make(WS_VISIBLE | ES_AUTOHSCROLL, kNarrowRect);
    Focus();
    edit.LimitText(kLimit);
    PutTextOnClipboard("pasted text");
    std::mt19937 random(12345);
    const UINT keys[] = {VK_LEFT, VK_RIGHT, VK_HOME, VK_END, VK_BACK, VK_DELETE, VK_UP, VK_DOWN};
    const UINT modifiers[] = {0, MK_SHIFT, MK_CONTROL, MK_SHIFT | MK_CONTROL};
    for (int step = 0; step < kSteps; ++step) {
        switch (random() % 6) {
        case 0:
            ui.PressKey(keys[random() % std::size(keys)], modifiers[random() % 4]);
            break;
        case 1:
            ui.Type(std::string(1 + random() % 3, char('a' + random() % 26)).c_str());
            break;
        case 2:
            ui.PressKey("VXCZ"[random() % 4], MK_CONTROL);
            break;
        case 3:
            ui.Click(edit.m_hWnd, CPoint(int(random() % 70), 8), random() % 2 ? MK_SHIFT : 0);
            break;
        case 4:
            ui.Drag(edit.m_hWnd, CPoint(int(random() % 60), 8), CPoint(int(random() % 60), 8));
            break;
        default:
            ui.Type(" ");
            break;
        }
        const auto [start, end] = Sel();
        const int length = edit.GetWindowTextLength();
        ASSERT_LE(length, kLimit) << "step " << step;
        ASSERT_LE(0, start);
        ASSERT_LE(start, end);
        ASSERT_LE(end, length) << "step " << step;
        ASSERT_EQ(edit.GetFocus(), &edit);
    }
}
} // namespace
