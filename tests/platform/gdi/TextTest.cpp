#include "DrawingFixture.h"

#include <cstring>

namespace {

CFont* MakeFont(CFont& font, int height, const char* face, int weight = FW_NORMAL) {
    LOGFONT lf{};
    lf.lfHeight = height;
    lf.lfWeight = weight;
    std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
    font.CreateFontIndirect(&lf);
    return &font;
}

} // namespace

class TextTest : public DrawingTest {
protected:
    void SetUp() override {
        DrawingTest::SetUp();
        dc.SelectObject(MakeFont(font, -13, "Arial"));
        dc.SetBkMode(TRANSPARENT);
    }

    // Where the ink of DrawText lands in `cell`.
    CRect Draw(const char* text, CRect cell, UINT format) {
        dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), kWhite);
        dc.DrawText(text, -1, &cell, format);
        return Ink(CRect(0, 0, kWidth, kHeight));
    }

    CFont font;
};

TEST_F(TextTest, AlignmentIsWhereTheInkLands) {
    const CRect cell(20, 20, 180, 100);
    const UINT single = DT_SINGLELINE | DT_NOPREFIX;
    CRect left = Draw("Wide", cell, single | DT_LEFT | DT_TOP);
    CRect centre = Draw("Wide", cell, single | DT_CENTER | DT_VCENTER);
    CRect right = Draw("Wide", cell, single | DT_RIGHT | DT_BOTTOM);
    ASSERT_FALSE(left.IsRectEmpty());
    EXPECT_LE(left.left - cell.left, 2);
    EXPECT_LE(left.top - cell.top, 5);
    EXPECT_LE(cell.right - right.right, 2);
    EXPECT_LE(cell.bottom - right.bottom, 5);
    EXPECT_NEAR((centre.left + centre.right) / 2.0, cell.CenterPoint().x, 2.0);
    EXPECT_NEAR((centre.top + centre.bottom) / 2.0, cell.CenterPoint().y, 3.0);
    // The same picture moved, not reshaped.
    EXPECT_EQ(left.Size(), centre.Size());
    EXPECT_EQ(left.Size(), right.Size());
}

TEST_F(TextTest, TextIsClippedToItsRectangleUnlessNoClip) {
    CRect cell(20, 20, 40, 40);
    CRect ink = Draw("A much longer text", cell, DT_SINGLELINE | DT_LEFT);
    EXPECT_LE(ink.right, 40);
    ink = Draw("A much longer text", cell, DT_SINGLELINE | DT_LEFT | DT_NOCLIP);
    EXPECT_GT(ink.right, 60);
}

TEST_F(TextTest, EndEllipsisEndsInDotsInsideTheRectangle) {
    CRect cell(10, 10, 70, 30);
    const char* text = "A long text that does not fit";
    CRect ink = Draw(text, cell, DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
    EXPECT_LE(ink.right, cell.right);
    // The last ink is a dot: a small mark low on the line.
    int lastColumn = ink.right - 1;
    CRect dot = Ink(CRect(lastColumn - 1, 0, lastColumn + 1, kHeight));
    EXPECT_LE(dot.Height(), 3);
    EXPECT_GT(dot.top, ink.top + 5);
    // Three dots at the end: three separate marks on the last columns.
    int marks = 0;
    bool inMark = false;
    for (int x = ink.right - 15; x < ink.right; ++x) {
        CRect column = Ink(CRect(x, dot.top, x + 1, dot.bottom));
        bool dotOnly =
            !column.IsRectEmpty() && Ink(CRect(x, ink.top, x + 1, dot.top)).IsRectEmpty();
        if (dotOnly && !inMark)
            ++marks;
        inMark = dotOnly;
    }
    EXPECT_EQ(marks, 3);

    // A text that fits is drawn whole, without dots.
    CSize extent = dc.GetTextExtent("Short", 5);
    CRect whole = Draw("Short", cell, DT_SINGLELINE | DT_END_ELLIPSIS);
    EXPECT_NEAR(whole.Width(), extent.cx, 2);
}

TEST_F(TextTest, CalcRectMeasuresWithoutDrawing) {
    CRect r(10, 10, 11, 11);
    dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), kWhite);
    TEXTMETRIC tm{};
    ASSERT_TRUE(dc.GetTextMetrics(&tm));
    int height = dc.DrawText("Hello", -1, &r, DT_SINGLELINE | DT_CALCRECT);
    EXPECT_EQ(height, tm.tmHeight);
    EXPECT_EQ(r.Height(), tm.tmHeight);
    EXPECT_EQ(r.Width(), dc.GetTextExtent("Hello", 5).cx);
    EXPECT_EQ(r.TopLeft(), CPoint(10, 10));
    EXPECT_TRUE(Ink(CRect(0, 0, kWidth, kHeight)).IsRectEmpty());

    // Word wrapping in a narrow column makes several lines no wider than the column.
    CRect column(0, 0, 60, 0);
    int wrapped =
        dc.DrawText("one two three four five six", -1, &column, DT_WORDBREAK | DT_CALCRECT);
    EXPECT_GE(wrapped, 3 * tm.tmHeight);
    EXPECT_LE(column.Width(), 60);
    CRect lines(0, 0, 200, 0);
    EXPECT_EQ(dc.DrawText("a\nb", -1, &lines, DT_CALCRECT), 2 * tm.tmHeight);
}

TEST_F(TextTest, AmpersandUnderlinesUnlessNoPrefix) {
    CSize plain = dc.GetTextExtent("Save", 4);
    CRect r(10, 10, 10, 10);
    dc.DrawText("&Save", -1, &r, DT_SINGLELINE | DT_CALCRECT);
    EXPECT_EQ(r.Width(), plain.cx);
    r = CRect(10, 10, 10, 10);
    dc.DrawText("&Save", -1, &r, DT_SINGLELINE | DT_CALCRECT | DT_NOPREFIX);
    EXPECT_GT(r.Width(), plain.cx);
    r = CRect(10, 10, 10, 10);
    dc.DrawText("A&&B", -1, &r, DT_SINGLELINE | DT_CALCRECT);
    EXPECT_EQ(r.Width(), dc.GetTextExtent("A&B", 3).cx);

    // The prefixed letter gets a line under it that the plain text does not have.
    CRect cell(10, 10, 150, 40);
    CRect underlined = Draw("&Save", cell, DT_SINGLELINE);
    CRect plainInk = Draw("Save", cell, DT_SINGLELINE | DT_NOPREFIX);
    EXPECT_GT(underlined.bottom, plainInk.bottom);
}

TEST_F(TextTest, ExtentGrowsWithTextAndFontSize) {
    CSize one = dc.GetTextExtent("abc", 3);
    CSize two = dc.GetTextExtent("abcabc", 6);
    EXPECT_GT(one.cx, 0);
    EXPECT_NEAR(two.cx, 2 * one.cx, 2);
    EXPECT_EQ(one.cy, two.cy);
    EXPECT_EQ(dc.GetTextExtent("", 0).cx, 0);

    CFont big;
    CFont* old = dc.SelectObject(MakeFont(big, -26, "Arial"));
    CSize large = dc.GetTextExtent("abc", 3);
    EXPECT_GT(large.cx, one.cx * 3 / 2);
    EXPECT_GT(large.cy, one.cy * 3 / 2);
    TEXTMETRIC tm{};
    dc.GetTextMetrics(&tm);
    EXPECT_EQ(tm.tmHeight, tm.tmAscent + tm.tmDescent);
    EXPECT_EQ(tm.tmHeight - tm.tmInternalLeading, 26); // the em height asked for
    EXPECT_GT(tm.tmMaxCharWidth, tm.tmAveCharWidth);
    dc.SelectObject(old);

    // A positive height is the cell height.
    CFont cell;
    dc.SelectObject(MakeFont(cell, 20, "Arial"));
    dc.GetTextMetrics(&tm);
    EXPECT_NEAR(tm.tmHeight, 20, 1);
    dc.SelectObject(old);
}

TEST_F(TextTest, FacesMapToMetricCompatibleFonts) {
    EXPECT_STREQ(GdiMapFontFace("Arial"), "Liberation Sans");
    EXPECT_STREQ(GdiMapFontFace("MS Shell Dlg 2"), "Liberation Sans");
    EXPECT_STREQ(GdiMapFontFace("Times New Roman"), "Liberation Serif");
    EXPECT_STREQ(GdiMapFontFace("courier new"), "Liberation Mono");
    EXPECT_STREQ(GdiMapFontFace("No Such Face"), "Liberation Sans");

    // Mono: narrow and wide letters take the same room; not so in the proportional faces.
    CFont mono, sans, unknown;
    dc.SelectObject(MakeFont(mono, -13, "Courier New"));
    EXPECT_EQ(dc.GetTextExtent("iiii", 4).cx, dc.GetTextExtent("WWWW", 4).cx);
    dc.SelectObject(MakeFont(sans, -13, "Tahoma"));
    CSize sansExtent = dc.GetTextExtent("Grid 123", 8);
    EXPECT_LT(dc.GetTextExtent("iiii", 4).cx, dc.GetTextExtent("WWWW", 4).cx);
    dc.SelectObject(MakeFont(unknown, -13, "No Such Face"));
    EXPECT_EQ(dc.GetTextExtent("Grid 123", 8), sansExtent);
    dc.SelectObject(&font);
}

TEST_F(TextTest, TextOutAlignmentAndOpaqueBackground) {
    dc.SetBkMode(OPAQUE);
    dc.SetBkColor(kBlue);
    CSize extent = dc.GetTextExtent("Hi", 2);
    dc.TextOut(30, 30, "Hi", 2);
    EXPECT_EQ(Ink(CRect(0, 0, kWidth, kHeight)), CRect(30, 30, 30 + extent.cx, 30 + extent.cy));
    EXPECT_EQ(Pixel(30, 30), kBlue);

    dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), kWhite);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextAlign(TA_RIGHT | TA_BOTTOM);
    dc.TextOut(100, 80, "Hi", 2);
    CRect ink = Ink(CRect(0, 0, kWidth, kHeight));
    EXPECT_LE(ink.right, 100);
    EXPECT_GE(ink.right, 97);
    EXPECT_LE(ink.bottom, 80);
    dc.SetTextAlign(TA_LEFT | TA_TOP);

    // ExtTextOut fills its rectangle and clips to it.
    dc.SetBkColor(kBlue);
    dc.ExtTextOut(10, 10, ETO_OPAQUE | ETO_CLIPPED, CRect(10, 10, 20, 30), "Wide text", 9, nullptr);
    EXPECT_EQ(Pixel(19, 29), kBlue);
    EXPECT_TRUE(Ink(CRect(20, 0, 60, 40)).IsRectEmpty());
}

TEST_F(TextTest, WindowsCodePageTextsAreDrawnAsTheirCharacters) {
    // The degree sign in the Windows code page and in UTF-8 measure the same.
    EXPECT_EQ(dc.GetTextExtent("12\xB0", 3), dc.GetTextExtent("12\xC2\xB0", 4));
    EXPECT_EQ(dc.GetTextExtent("\x80", 1), dc.GetTextExtent("\xE2\x82\xAC", 3)); // the euro
    EXPECT_GT(dc.GetTextExtent("\xB0", 1).cx, 0);
}

TEST_F(TextTest, TabsExpandToStopsOnlyWhenAsked) {
    TEXTMETRIC tm{};
    dc.GetTextMetrics(&tm);
    CRect expanded(0, 0, 0, 0), plain(0, 0, 0, 0);
    dc.DrawText("a\tb", -1, &expanded, DT_SINGLELINE | DT_CALCRECT | DT_EXPANDTABS);
    dc.DrawText("a\tb", -1, &plain, DT_SINGLELINE | DT_CALCRECT);
    EXPECT_GE(expanded.Width(), 8 * tm.tmAveCharWidth);
    EXPECT_LT(plain.Width(), expanded.Width());
}

TEST_F(TextTest, UpdatingTheCurrentPositionWritesOnFromTheLastText) {
    dc.SetTextAlign(TA_UPDATECP);
    dc.MoveTo(10, 20);
    dc.TextOut(0, 0, "ab", 2);
    CPoint after = dc.GetCurrentPosition();
    EXPECT_EQ(after, CPoint(10 + dc.GetTextExtent("ab", 2).cx, 20));
    dc.TextOut(0, 0, "cd", 2);
    CRect ink = Ink(CRect(0, 0, kWidth, kHeight));
    EXPECT_GE(ink.left, 10);
    EXPECT_GE(ink.top, 20);
    EXPECT_GT(ink.right, after.x);
    dc.SetTextAlign(TA_LEFT | TA_TOP);
}

TEST_F(TextTest, MultiLineTextAlignsEachLine) {
    CRect cell(10, 10, 190, 100);
    CRect centred = Draw("a long first line\nshort", cell, DT_CENTER | DT_NOPREFIX);
    TEXTMETRIC tm{};
    dc.GetTextMetrics(&tm);
    CRect second = Ink(CRect(0, 10 + tm.tmHeight, kWidth, 10 + 2 * tm.tmHeight));
    EXPECT_NEAR(second.CenterPoint().x, cell.CenterPoint().x, 2);
    EXPECT_NEAR(centred.CenterPoint().x, cell.CenterPoint().x, 2);
    EXPECT_GE(centred.Height(), tm.tmHeight + 2);
}
