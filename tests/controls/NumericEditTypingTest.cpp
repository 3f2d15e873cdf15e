// Typing, pasting and setting text in the numeric edit controls: what is refused leaves text,
// selection and notifications exactly as they were.

#include "NumericEditFixture.h"

#include "platform/testing/ClipboardText.h"
#include "platform/window/WindowApi.h"

#include <cmath>
#include <string>

using namespace forms_test;

namespace {
constexpr UINT VK_V = 'V';
} // namespace

TEST_F(NumericEdit, RefusedKeystrokesHaveNoEffectAtAll) {
    struct Case {
        const char* text;
        int start, end;
        const char* keys;
    };
    const Case cases[] = {
        {"1.5e-3", 2, 2, "a zQ,/_=()!?\"'"}, // refused characters anywhere
        {"1.5e-3", 6, 6, "."},               // a second point
        {"1.5e-3", 1, 1, "e"},               // a second exponent
        {"1.5e-3", 3, 3, "E"},
        {"1", 1, 1, "-+"}, // a sign behind a digit
        {"1e", 2, 2, "."}, // a point in the exponent
        {"-1", 0, 0, "-"}, // a sign before a sign
    };
    for (const Case& c : cases) {
        Prepare(m_form.number, c.text, c.start, c.end);
        m_recorder->Clear();
        m_ui.Type(c.keys);
        EXPECT_EQ(Text(m_form.number), c.text) << c.keys;
        EXPECT_EQ(Selection(m_form.number), std::make_pair(c.start, c.end)) << c.keys;
        EXPECT_EQ(m_recorder->Commands(EN_CHANGE).size(), 0u) << c.keys;
    }
    // The integer control refuses the point as well.
    Prepare(m_form.count, "12", 1, 1);
    m_ui.Type(".");
    EXPECT_EQ(Text(m_form.count), "12");
    EXPECT_EQ(Selection(m_form.count), std::make_pair(1, 1));
}

TEST_F(NumericEdit, SignsPointsAndExponentsWhereANumberAllowsThem) {
    struct Case {
        const char* text;
        int start, end;
        const char* keys;
        const char* result;
    };
    const Case cases[] = {
        {"", 0, 0, "-1.5e-7", "-1.5e-7"}, {"1e", 2, 2, "+4", "1e+4"}, {"25", 0, 0, "+", "+25"},
        {"1.5", 0, 3, ".", "."},      // the text after the insertion counts:
        {"1.5", 1, 2, ".", "1.5"},    // a point typed over the selected point is fine
        {"3", 1, 1, "\xB0", "3\xB0"}, // beyond ASCII: in neither list, so it passes
    };
    for (const Case& c : cases) {
        Prepare(m_form.number, c.text, c.start, c.end);
        m_ui.Type(c.keys);
        EXPECT_EQ(Text(m_form.number), c.result) << c.keys;
    }
    // The integer control takes an exponent, which is not read.
    Prepare(m_form.count, "7", 0, 1);
    m_ui.Type("1e3");
    EXPECT_EQ(Text(m_form.count), "1e3");
    Leave();
    EXPECT_EQ(m_form.count.GetValue(), 1);
    EXPECT_EQ(Text(m_form.count), "1");
}

TEST_F(NumericEdit, PasteTakesWholeNumbersOrNothing) {
    // Into an empty control anything of the accepted characters goes, and reads as far as it
    // can when the focus leaves.
    PutTextOnClipboard("1e2e3");
    Prepare(m_form.number, "", 0, 0);
    m_ui.PressKey(VK_V, MK_CONTROL);
    EXPECT_EQ(Text(m_form.number), "1e2e3");
    Leave();
    EXPECT_EQ(m_form.number.GetValue(), 100.0);

    // Into a number, only what keeps its shape.
    PutTextOnClipboard(".75");
    Prepare(m_form.number, "12", 2, 2);
    m_ui.PressKey(VK_V, MK_CONTROL);
    EXPECT_EQ(Text(m_form.number), "12.75");
    for (const char* refused : {" 1.5", "1.5\n", "1,5", ".5", "-1", "1e2x"}) {
        PutTextOnClipboard(refused);
        m_form.number.SetSel(5, 5);
        m_recorder->Clear();
        m_ui.PressKey(VK_V, MK_CONTROL);
        EXPECT_EQ(Text(m_form.number), "12.75") << refused;
        EXPECT_EQ(Selection(m_form.number), std::make_pair(5, 5)) << refused;
        EXPECT_EQ(m_recorder->Commands(EN_CHANGE).size(), 0u) << refused;
    }
    // No point in an integer, even into an empty control.
    PutTextOnClipboard("1.5");
    Prepare(m_form.count, "", 0, 0);
    m_ui.PressKey(VK_V, MK_CONTROL);
    EXPECT_EQ(Text(m_form.count), "");
}

TEST_F(NumericEdit, SetTextOnlyTakesTheShapeOfANumber) {
    m_form.number.SetWindowText("2.5");
    m_recorder->Clear();
    for (const char* refused : {"abc", "1.#INF", "inf", " 2", "1-2", "2.5"})
        m_form.number.SetWindowText(refused);
    // A value that can't be shown as a number leaves the text too.
    m_form.number.SetValue(std::nan(""), -1);
    EXPECT_EQ(Text(m_form.number), "2.5");
    EXPECT_EQ(m_recorder->Commands(EN_CHANGE).size(), 0u); // not even for the same text
    m_form.number.SetWindowText("");
    EXPECT_EQ(Text(m_form.number), "");
    m_form.count.SetWindowText("4");
    m_form.count.SetWindowText("4.5");
    EXPECT_EQ(Text(m_form.count), "4");
}

TEST_F(NumericEdit, EnterCommitsAndEscapeUndoesBeforeTheDialogSeesIt) {
    m_form.number.SetMinAndMax(0.0, 10.0);
    m_form.number.SetValue(5.0, -1);
    Prepare(m_form.number, "25", 2, 2);
    // While the focus is inside, the text rules and reads clamped.
    EXPECT_EQ(m_form.number.GetValue(), 10.0);
    EXPECT_EQ(Text(m_form.number), "25");
    m_form.keysSeen.clear();
    m_ui.PressKey(VK_RETURN);
    EXPECT_NE(::GetFocus(), m_form.number.GetSafeHwnd());
    EXPECT_EQ(m_form.number.GetValue(), 10.0);
    EXPECT_EQ(Text(m_form.number), "10.0");
    EXPECT_EQ(m_form.keysSeen, std::vector<WPARAM>{VK_RETURN});

    // Escape after a change goes back to the text at the time the focus came; the focus stays,
    // and only the next Escape reaches the dialog.
    Focus(m_form.number);
    m_form.number.SetSel(0, -1);
    m_ui.Type("3");
    m_form.keysSeen.clear();
    m_ui.PressKey(VK_ESCAPE);
    EXPECT_EQ(Text(m_form.number), "10.0");
    EXPECT_EQ(::GetFocus(), m_form.number.GetSafeHwnd());
    EXPECT_TRUE(m_form.keysSeen.empty());
    m_ui.PressKey(VK_ESCAPE);
    EXPECT_EQ(m_form.keysSeen, std::vector<WPARAM>{VK_ESCAPE});

    // Other keys never reach the dialog.
    m_ui.PressKey(VK_LEFT);
    m_ui.Type("7");
    EXPECT_EQ(m_form.keysSeen, std::vector<WPARAM>{VK_ESCAPE});

    // In a multi-line control Enter keeps the focus and takes the normal path.
    Focus(m_form.multiLine);
    m_form.keysSeen.clear();
    m_ui.PressKey(VK_RETURN);
    EXPECT_EQ(::GetFocus(), m_form.multiLine.GetSafeHwnd());
    EXPECT_EQ(m_form.keysSeen, std::vector<WPARAM>{VK_RETURN});
}

TEST_F(NumericEdit, LeavingWithEscapeHeldCancelsTheEdit) {
    m_form.number.SetValue(4.0, -1);
    Prepare(m_form.number, "9", 1, 1);
    m_ui.KeyDown(VK_ESCAPE); // restores the text; the focus stays
    m_form.number.SetWindowText("8");
    Leave(); // with Escape still held
    m_ui.KeyUp(VK_ESCAPE);
    EXPECT_EQ(m_form.number.GetValue(), 4.0);
    EXPECT_EQ(Text(m_form.number), "4.0");
}

TEST_F(NumericEdit, MouseMovesAreToldToTheParent) {
    m_ui.MouseMove(m_form.number.GetSafeHwnd(), kInside);
    m_ui.MouseMove(m_form.number.GetSafeHwnd(), POINT{kInside.x + 3, kInside.y});
    const auto moves = m_recorder->Commands(EN_EDIT_MOUSEMOVE);
    ASSERT_EQ(moves.size(), 2u);
    EXPECT_EQ(moves[0].id, kFloatId);
    EXPECT_EQ(moves[0].from, m_form.number.GetSafeHwnd());
}

TEST_F(NumericEdit, TabCommitsAndSelectsAllOfTheNextField) {
    m_form.other.SetValue(12.5, -1);
    Prepare(m_form.number, "", 0, 0);
    m_ui.Type("6.25");
    m_ui.PressKey(VK_TAB);
    EXPECT_EQ(::GetFocus(), m_form.other.GetSafeHwnd());
    EXPECT_EQ(m_form.number.GetValue(), 6.25);
    EXPECT_EQ(Selection(m_form.other), std::make_pair(0, Text(m_form.other).GetLength()));
    m_ui.Type("3"); // replaces the whole value
    EXPECT_EQ(Text(m_form.other), "3");
}
