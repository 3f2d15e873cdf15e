// The stored values of the numeric edit controls: limits, precision, what the text shows, and
// bound controls following each other.

#include "NumericEditFixture.h"

#include "platform/window/WindowApi.h"
#include "support/FormatDouble.h"

#include <cfloat>
#include <climits>

using namespace forms_test;

namespace {
constexpr int kAutoDecimals = -1;
constexpr int kFieldWidth = 15;
constexpr double kShownPrecision = 1e-8;

EditValueRec TextRecord(const char* text) {
    EditValueRec record{};
    record.type = EDIT_VALUE_TEXT;
    record.value.text = text;
    return record;
}
} // namespace

TEST_F(NumericEdit, ValuesOfEveryMagnitudeShowAsTheFormatterGivesThem) {
    for (double value : {0.0, 1.5, -123.456, 999999999999.0, 1e12, -4.25e17, 0.00001, 9e-06,
                         -2.5e-300, DBL_MAX, 1.0 / 3.0}) {
        m_form.number.SetValue(value, kAutoDecimals);
        EXPECT_EQ(Text(m_form.number), xgFormatDouble(value, kAutoDecimals, kFieldWidth, 0))
            << value;
        EXPECT_EQ(m_form.number.GetValue(), value);
        // With the focus inside, the text shown reads back as the value, to the eight
        // significant digits that fit in the field at the least.
        Focus(m_form.number);
        EXPECT_NEAR(m_form.number.GetValue(), value, std::abs(value) * kShownPrecision) << value;
        Leave();
    }

    m_form.count.SetValue(INT_MIN);
    EXPECT_EQ(Text(m_form.count), "-2147483648");
    m_form.count.SetValue(1e12, 3); // beyond 32 bits: the nearest integer there is
    EXPECT_EQ(m_form.count.GetValue(), INT_MAX);
    m_form.count.SetValue(-7.9, 3);
    EXPECT_EQ(m_form.count.GetValue(), -7);
}

TEST_F(NumericEdit, PrecisionShowsDecimalsAndMaxPrecisionRounds) {
    m_form.number.SetValue(3.14159, 2);
    EXPECT_EQ(Text(m_form.number), "3.14");
    EXPECT_EQ(m_form.number.GetValue(), 3.14159);
    EXPECT_EQ(m_form.number.GetPrec(), 2);
    m_form.number.SetValue(3.0, kAutoDecimals); // a negative precision keeps the one in force
    EXPECT_EQ(Text(m_form.number), "3.00");
    m_form.number.SetValue(3.14159, kAutoDecimals);
    m_form.number.SetMaxPrec(2);
    EXPECT_EQ(m_form.number.GetValue(), 3.14);
    EXPECT_EQ(Text(m_form.number), "3.14");
    m_form.number.SetValue(2.5, kAutoDecimals); // at most two decimals, trailing zeros go
    EXPECT_EQ(Text(m_form.number), "2.5");
    m_form.number.SetMaxPrec(-1);
    m_form.number.SetPrec(kAutoDecimals);
    m_form.number.SetValue(2.0, kAutoDecimals);
    EXPECT_EQ(Text(m_form.number), "2.0");
}

TEST_F(NumericEdit, LimitsClampEveryWayAValueComesIn) {
    m_form.number.SetMinAndMax(10.0, 5.0);
    double min = 0, max = 0;
    m_form.number.GetMin(min);
    m_form.number.GetMax(max);
    EXPECT_EQ(min, 5.0);
    EXPECT_EQ(max, 10.0);
    EXPECT_EQ(m_form.number.GetValue(), 5.0); // 0 moved to the nearer limit, and shows
    EXPECT_EQ(Text(m_form.number), "5.0");
    m_form.number.SetValue(12); // the integer form keeps the precision and clamps too
    EXPECT_EQ(m_form.number.GetValue(), 10.0);

    // Typed text is clamped when the focus leaves; a text that can't be read keeps the value.
    Prepare(m_form.number, "-3", 2, 2);
    EXPECT_EQ(m_form.number.GetValue(), 5.0);
    Leave();
    EXPECT_EQ(m_form.number.GetValue(), 5.0);
    EXPECT_EQ(Text(m_form.number), "5.0");
    Prepare(m_form.number, "-", 1, 1);
    EXPECT_EQ(m_form.number.GetValue(), 0.0); // unreadable while typing, even outside limits
    Leave();
    EXPECT_EQ(m_form.number.GetValue(), 5.0);
    EXPECT_EQ(Text(m_form.number), "5.0");

    // Rounding to the decimals shown does not take the value past a limit.
    m_form.other.SetMinAndMax(0.4, 10.0);
    m_form.other.SetMaxPrec(0);
    m_form.other.SetValue(0.4, kAutoDecimals);
    EXPECT_EQ(m_form.other.GetValue(), 0.4);

    m_form.count.SetMinAndMax(3.9, -2.5);
    m_form.count.SetValue(9);
    EXPECT_EQ(m_form.count.GetValue(), 3);
    Prepare(m_form.count, "99999999999", 11, 11);
    Leave();
    EXPECT_EQ(m_form.count.GetValue(), 3);
    // Narrowing that still holds the value leaves the display alone.
    m_form.count.SetWindowText("");
    m_form.count.SetMinAndMax(0, 5);
    EXPECT_EQ(Text(m_form.count), "");
}

TEST_F(NumericEdit, BoundControlsFollowAsTheUserTypes) {
    m_form.number.SendMessage(WM_EDIT_BINDCONTROL, kOtherFloatId);
    m_form.other.SendMessage(WM_EDIT_BINDCONTROL, kFloatId); // both ways: no loop
    m_form.other.SetMinAndMax(0.0, 100.0);
    Prepare(m_form.number, "", 0, 0);
    m_ui.Type("42.5");
    EXPECT_EQ(Text(m_form.other), "42.5");
    EXPECT_EQ(m_form.other.GetValue(), 42.5);
    m_form.number.SetSel(0, -1);
    m_ui.Type("425"); // the bound control clamps what it receives
    EXPECT_EQ(m_form.other.GetValue(), 100.0);
    EXPECT_EQ(m_form.number.GetValue(), 425.0); // the text still rules in the focused control
    m_ui.Type("-");                             // refused: nothing travels
    EXPECT_EQ(m_form.other.GetValue(), 100.0);
    m_form.number.SetSel(0, -1);
    m_ui.Type("-"); // unreadable: 0 travels
    EXPECT_EQ(m_form.other.GetValue(), 0.0);

    // An integer control takes the integer part; a plain window takes the text.
    m_form.other.SendMessage(WM_EDIT_BINDCONTROL, 0);
    m_form.number.SendMessage(WM_EDIT_BINDCONTROL, kIntId);
    m_ui.Type("7.9");
    EXPECT_EQ(m_form.count.GetValue(), -7);
    m_form.count.SendMessage(WM_EDIT_BINDCONTROL, kPlainId);
    EXPECT_EQ(Text(*CWnd::FromHandle(m_form.plain)), "-7");
    m_form.number.SendMessage(WM_EDIT_BINDCONTROL, kPlainId);
    m_ui.Type("5");
    EXPECT_EQ(Text(*CWnd::FromHandle(m_form.plain)),
              xgFormatDouble(-7.95, kAutoDecimals, kFieldWidth, 0));
}

TEST_F(NumericEdit, ValuesSentAsTextReadByTheControlsOwnRules) {
    EditValueRec record = TextRecord("1e3");
    m_form.number.SendMessage(WM_EDIT_SETVALUE, WPARAM(&record));
    m_form.count.SendMessage(WM_EDIT_SETVALUE, WPARAM(&record));
    EXPECT_EQ(m_form.number.GetValue(), 1000.0);
    EXPECT_EQ(m_form.count.GetValue(), 1);
    EditValueRec unknown{};
    unknown.type = 7;
    unknown.value.doubleValue = 5.0;
    m_form.number.SendMessage(WM_EDIT_SETVALUE, WPARAM(&unknown));
    EXPECT_EQ(m_form.number.GetValue(), 1000.0);
}

TEST_F(NumericEdit, EmptyTextOfSeveralObjectsStaysEmptyInTheDoubleControlOnly) {
    m_form.number.SetMulti(true);
    m_form.count.SetMulti(true);
    m_form.number.SetWindowText("");
    m_form.count.SetWindowText("");
    Focus(m_form.number);
    Focus(m_form.count);
    Leave();
    EXPECT_EQ(Text(m_form.number), "");
    EXPECT_EQ(Text(m_form.count), "0");
}

TEST_F(NumericEdit, TheFamilyIsKnownByTheDoubleControl) {
    EXPECT_TRUE(m_form.count.IsKindOf(RUNTIME_CLASS(CEditORVAFloat)));
    EXPECT_TRUE(m_form.number.IsKindOf(RUNTIME_CLASS(CEditORVA)));
    EXPECT_FALSE(m_form.number.IsKindOf(RUNTIME_CLASS(CEditORVAInt)));
}

TEST_F(NumericEdit, FixedFontComesAndGoes) {
    CFont font;
    LOGFONT lf{};
    lf.lfHeight = -11;
    ASSERT_TRUE(font.CreateFontIndirect(&lf));
    m_form.number.SetFont(&font);
    const LRESULT dialogFont = m_form.number.SendMessage(WM_GETFONT);
    m_form.number.UseFixedFont(true);
    const LRESULT fixed = m_form.number.SendMessage(WM_GETFONT);
    EXPECT_NE(fixed, dialogFont);
    m_form.number.UseFixedFont(true); // no change
    EXPECT_EQ(m_form.number.SendMessage(WM_GETFONT), fixed);
    m_form.number.UseFixedFont(false);
    EXPECT_EQ(m_form.number.SendMessage(WM_GETFONT), dialogFont);
}
