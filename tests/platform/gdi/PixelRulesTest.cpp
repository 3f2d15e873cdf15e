#include "DrawingFixture.h"

#include <vector>

TEST_F(DrawingTest, FilledRectangleCoversLeftTopButNotRightBottom) {
    dc.FillSolidRect(CRect(10, 20, 30, 25), kRed);
    EXPECT_EQ(Pixel(10, 20), kRed);
    EXPECT_EQ(Pixel(29, 24), kRed);
    EXPECT_EQ(Pixel(30, 24), kWhite);
    EXPECT_EQ(Pixel(29, 25), kWhite);
    EXPECT_EQ(Pixel(9, 20), kWhite);
    EXPECT_EQ(Pixel(10, 19), kWhite);
    EXPECT_EQ(CountPixels(CRect(0, 0, kWidth, kHeight), kRed), 20 * 5);
    // No antialiased half-tones anywhere around the edges.
    EXPECT_EQ(CountPixels(CRect(0, 0, kWidth, kHeight), kWhite), kWidth * kHeight - 100);

    CBrush blue(kBlue);
    dc.FillRect(CRect(50, 50, 53, 52), &blue);
    EXPECT_EQ(Ink(CRect(40, 40, 70, 70)), CRect(50, 50, 53, 52));
    // An empty or upside-down rectangle fills nothing.
    dc.FillRect(CRect(60, 60, 60, 70), &blue);
    dc.FillRect(CRect(65, 65, 62, 62), &blue);
    EXPECT_EQ(Ink(CRect(55, 55, 80, 80)), CRect());
}

TEST_F(DrawingTest, FillSolidRectTakesTheColourAsBackground) {
    dc.SetBkColor(kBlue);
    dc.FillSolidRect(0, 0, 5, 5, kRed);
    EXPECT_EQ(dc.GetBkColor(), kRed);
}

TEST_F(DrawingTest, LineToLeavesOutItsEndPixelAndMovesThePosition) {
    CPen pen(PS_SOLID, 0, kBlack);
    CPen* old = dc.SelectObject(&pen);
    ASSERT_NE(old, nullptr);
    dc.MoveTo(10, 10);
    dc.LineTo(20, 10);
    EXPECT_EQ(Ink(CRect(0, 0, 40, 40)), CRect(10, 10, 20, 11));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(20, 10));

    // Vertical, backwards and diagonal lines leave out their end as well.
    dc.MoveTo(50, 30);
    dc.LineTo(50, 20);
    EXPECT_EQ(Ink(CRect(45, 15, 55, 35)), CRect(50, 21, 51, 31));
    dc.MoveTo(100, 10);
    dc.LineTo(110, 20);
    EXPECT_EQ(Pixel(100, 10), kBlack);
    EXPECT_EQ(Pixel(109, 19), kBlack);
    EXPECT_EQ(Pixel(110, 20), kWhite);
    EXPECT_EQ(CountPixels(CRect(95, 5, 115, 25), kBlack), 10);
    dc.SelectObject(old);
}

TEST_F(DrawingTest, ThinPensAreOneCrispPixelAndWidePensAreWider) {
    for (int width : {0, 1}) {
        SetUp();
        CPen pen(PS_SOLID, width, kRed);
        dc.SelectObject(&pen);
        dc.MoveTo(10, 40);
        dc.LineTo(60, 40);
        EXPECT_EQ(Ink(CRect(0, 30, 80, 50)), CRect(10, 40, 60, 41)) << "width " << width;
        EXPECT_EQ(CountPixels(CRect(0, 30, 80, 50), kRed), 50);
        dc.SelectStockObject(BLACK_PEN);
    }
    CPen wide(PS_SOLID, 5, kRed);
    dc.SelectObject(&wide);
    dc.MoveTo(100, 60);
    dc.LineTo(150, 60);
    CRect ink = Ink(CRect(90, 50, 170, 70));
    EXPECT_EQ(ink.Height(), 5);
    // Crisp: every pixel is pen or paper.
    EXPECT_EQ(CountPixels(ink, kRed) + CountPixels(ink, kWhite), ink.Width() * ink.Height());
    dc.SelectStockObject(BLACK_PEN);
}

TEST_F(DrawingTest, DottedAndNullPens) {
    CPen dotted(PS_DOT, 0, kBlack);
    dc.SelectObject(&dotted);
    dc.SetBkMode(TRANSPARENT);
    dc.MoveTo(0, 5);
    dc.LineTo(60, 5);
    int black = CountPixels(CRect(0, 5, 60, 6), kBlack);
    EXPECT_GT(black, 10);
    EXPECT_LT(black, 50);
    // With an opaque background the gaps take the background colour.
    dc.SetBkMode(OPAQUE);
    dc.SetBkColor(kBlue);
    dc.MoveTo(0, 8);
    dc.LineTo(60, 8);
    EXPECT_EQ(CountPixels(CRect(0, 8, 60, 9), kBlack) + CountPixels(CRect(0, 8, 60, 9), kBlue), 60);

    dc.SelectStockObject(NULL_PEN);
    dc.MoveTo(0, 20);
    dc.LineTo(60, 20);
    EXPECT_EQ(Ink(CRect(0, 15, 80, 25)), CRect());
}

TEST_F(DrawingTest, RectangleDrawsOutlineAndFillsInside) {
    CBrush red(kRed);
    dc.SelectObject(&red);
    dc.Rectangle(10, 10, 20, 16);
    EXPECT_EQ(Ink(CRect(0, 0, 40, 40)), CRect(10, 10, 20, 16));
    EXPECT_EQ(Pixel(10, 10), kBlack);
    EXPECT_EQ(Pixel(19, 15), kBlack);
    EXPECT_EQ(Pixel(11, 11), kRed);
    EXPECT_EQ(Pixel(18, 14), kRed);
    dc.SelectStockObject(WHITE_BRUSH);
}

TEST_F(DrawingTest, XorPenLinesEraseWhenDrawnTwice) {
    dc.FillSolidRect(CRect(0, 0, 100, 100), RGB(10, 120, 200));
    dc.FillSolidRect(CRect(40, 0, 60, 100), kBlack);
    std::vector<COLORREF> before;
    for (int x = 0; x < 100; ++x)
        before.push_back(Pixel(x, x / 2));
    for (int mode : {R2_NOT, R2_XORPEN, R2_NOTXORPEN}) {
        for (int width : {1, 3}) {
            CPen pen(PS_SOLID, width, RGB(200, 50, 25));
            CPen* old = dc.SelectObject(&pen);
            dc.SetROP2(mode);
            for (int pass = 0; pass < 2; ++pass) {
                dc.MoveTo(0, 0);
                dc.LineTo(99, 49);
                if (pass == 0) {
                    EXPECT_NE(Pixel(50, 25), before[50]) << "mode " << mode;
                }
            }
            for (int x = 0; x < 100; ++x) {
                ASSERT_EQ(Pixel(x, x / 2), before[std::size_t(x)])
                    << "mode " << mode << " at " << x;
            }
            dc.SetROP2(R2_COPYPEN);
            dc.SelectObject(old);
        }
    }
}

TEST_F(DrawingTest, FocusRectAndInvertRectRestoreWhenDrawnTwice) {
    dc.FillSolidRect(CRect(0, 0, 100, 100), RGB(30, 60, 90));
    dc.FillSolidRect(CRect(20, 20, 40, 40), kRed);
    CRect box(10, 10, 50, 30);
    dc.DrawFocusRect(&box);
    // Dotted: every other pixel of the frame changes, the inside does not.
    EXPECT_NE(Pixel(10, 10), RGB(30, 60, 90));
    EXPECT_EQ(Pixel(11, 10), RGB(30, 60, 90));
    EXPECT_EQ(Pixel(20, 20), kRed);
    EXPECT_NE(Pixel(49, 29), Pixel(48, 29));
    EXPECT_EQ(Ink(CRect(0, 0, 100, 100), RGB(30, 60, 90)), CRect(10, 10, 50, 40));
    dc.DrawFocusRect(&box);
    EXPECT_EQ(Ink(CRect(0, 0, 100, 100), RGB(30, 60, 90)), CRect(20, 20, 40, 40));
    EXPECT_EQ(Pixel(10, 10), RGB(30, 60, 90));

    dc.InvertRect(&box);
    EXPECT_EQ(Pixel(10, 10), RGB(225, 195, 165));
    EXPECT_EQ(Pixel(25, 25), RGB(0, 255, 255));
    EXPECT_EQ(Pixel(50, 30), RGB(30, 60, 90));
    dc.InvertRect(&box);
    EXPECT_EQ(Pixel(10, 10), RGB(30, 60, 90));
    EXPECT_EQ(Pixel(25, 25), kRed);
}

namespace {

// An 8 x 8 checker board, one bit per pixel, rows padded to 16 bits.
CBitmap* CheckerBitmap(CBitmap& bitmap) {
    const WORD rows[8] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
    bitmap.CreateBitmap(8, 8, 1, 1, rows);
    return &bitmap;
}

} // namespace

TEST_F(DrawingTest, MonochromePatternBrushTakesTextAndBackgroundColours) {
    CBitmap checker;
    CBrush brush;
    ASSERT_TRUE(brush.CreatePatternBrush(CheckerBitmap(checker)));
    checker.DeleteObject(); // the brush keeps its own copy
    dc.SetTextColor(kRed);
    dc.SetBkColor(kBlue);
    dc.FillRect(CRect(0, 0, 16, 16), &brush);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            ASSERT_EQ(Pixel(x, y), ((x + y) % 2 == 0) ? kRed : kBlue) << x << "," << y;
    EXPECT_EQ(Pixel(16, 0), kWhite);

    // The pattern is anchored to the context's origin, not to the rectangle.
    dc.FillRect(CRect(21, 30, 25, 34), &brush);
    EXPECT_EQ(Pixel(21, 30), kBlue);
}

TEST_F(DrawingTest, PatBltOperations) {
    CBitmap checker;
    CBrush brush;
    brush.CreatePatternBrush(CheckerBitmap(checker));
    dc.FillSolidRect(CRect(0, 0, 100, 100), RGB(0, 128, 0));
    dc.SelectObject(&brush);
    dc.SetTextColor(kBlack);
    dc.SetBkColor(kWhite);

    // Destination OR pattern: the pattern's black pixels keep the picture, the white ones
    // turn white.
    dc.PatBlt(0, 0, 10, 10, 0xFA0089);
    EXPECT_EQ(Pixel(0, 0), RGB(0, 128, 0));
    EXPECT_EQ(Pixel(1, 0), kWhite);
    EXPECT_EQ(Pixel(10, 0), RGB(0, 128, 0));

    // Pattern invert twice restores, as a drag frame does.
    dc.PatBlt(20, 0, 10, 10, PATINVERT);
    EXPECT_EQ(Pixel(21, 0), RGB(255, 127, 255));
    EXPECT_EQ(Pixel(20, 0), RGB(0, 128, 0));
    dc.PatBlt(20, 0, 10, 10, PATINVERT);
    EXPECT_EQ(Pixel(21, 0), RGB(0, 128, 0));

    dc.PatBlt(40, 0, 5, 5, DSTINVERT);
    EXPECT_EQ(Pixel(44, 4), RGB(255, 127, 255));
    dc.PatBlt(50, 0, 5, 5, BLACKNESS);
    EXPECT_EQ(Pixel(50, 0), kBlack);
    dc.PatBlt(60, 0, 5, 5, WHITENESS);
    EXPECT_EQ(Pixel(64, 4), kWhite);
    dc.PatBlt(70, 0, 4, 4, PATCOPY);
    EXPECT_EQ(Pixel(70, 0), kBlack);
    EXPECT_EQ(Pixel(71, 0), kWhite);
    // A negative width reaches to the left of the point.
    dc.PatBlt(90, 20, -5, 2, BLACKNESS);
    EXPECT_EQ(Ink(CRect(80, 15, 100, 30), RGB(0, 128, 0)), CRect(85, 20, 90, 22));
    dc.SelectStockObject(WHITE_BRUSH);
}

TEST_F(DrawingTest, ClippingOriginsAndSavedStates) {
    CRect box;
    EXPECT_EQ(dc.GetClipBox(&box), SIMPLEREGION);
    EXPECT_EQ(box, CRect(0, 0, kWidth, kHeight));

    int saved = dc.SaveDC();
    dc.IntersectClipRect(10, 10, 50, 50);
    dc.ExcludeClipRect(20, 20, 30, 30);
    EXPECT_EQ(dc.GetClipBox(&box), COMPLEXREGION);
    EXPECT_EQ(box, CRect(10, 10, 50, 50));
    dc.FillSolidRect(CRect(0, 0, 100, 100), kRed);
    EXPECT_EQ(Ink(CRect(0, 0, 100, 100)), CRect(10, 10, 50, 50));
    EXPECT_EQ(Pixel(25, 25), kWhite);
    EXPECT_FALSE(dc.PtVisible(25, 25));

    // The window origin shifts logical coordinates, and the clip box follows it.
    dc.SetWindowOrg(10, 10);
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(20, 20, 60, 60));
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_EQ(dc.GetWindowOrg(), CPoint(0, 0));
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, kWidth, kHeight));
    EXPECT_FALSE(dc.RestoreDC(saved)); // already restored

    dc.SetViewportOrg(100, 50);
    CPoint p(1, 2);
    dc.LPtoDP(&p);
    EXPECT_EQ(p, CPoint(101, 52));
    dc.DPtoLP(&p);
    EXPECT_EQ(p, CPoint(1, 2));
    dc.FillSolidRect(0, 0, 2, 2, kBlue);
    EXPECT_EQ(Ink(CRect(90, 40, 120, 70)), CRect(100, 50, 102, 52));

    CRgn region;
    region.CreateRectRgn(0, 0, 5, 5);
    dc.SelectClipRgn(&region); // device coordinates: the viewport origin does not apply
    dc.FillSolidRect(-200, -200, 400, 400, kBlack);
    EXPECT_EQ(CountPixels(CRect(0, 0, kWidth, kHeight), kBlack), 25);
    EXPECT_EQ(Pixel(4, 4), kBlack);
}

TEST_F(DrawingTest, ContextOnPartOfASurface) {
    // As a child window's context: origin (50, 40), clipped to its 30 x 20 area.
    CDC child;
    child.Attach(CreateSurfaceDC(surface.get(), POINT{50, 40}, RECT{50, 40, 80, 60}));
    CRect box;
    child.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 30, 20));
    child.FillSolidRect(-10, -10, 100, 100, kRed);
    EXPECT_EQ(Ink(CRect(0, 0, kWidth, kHeight)), CRect(50, 40, 80, 60));
    EXPECT_EQ(child.GetPixel(0, 0), kRed);
    EXPECT_EQ(child.GetPixel(30, 0), CLR_INVALID);
}

TEST_F(DrawingTest, ObjectsAndHandles) {
    // Selecting answers the previous object; stock objects are shared.
    EXPECT_EQ(dc.SelectStockObject(NULL_BRUSH)->m_hObject, GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(GetStockObject(HOLLOW_BRUSH), GetStockObject(NULL_BRUSH));
    EXPECT_EQ(CDC::FromHandle(dc.m_hDC), &dc);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);

    // A font deleted while selected stays usable until it is let go.
    auto* font = new CFont;
    font->CreatePointFont(100, "Arial");
    CFont* old = dc.SelectObject(font);
    HFONT handle = HFONT(font->m_hObject);
    delete font;
    EXPECT_EQ(CFont::FromHandle(handle), nullptr);
    EXPECT_GT(dc.GetTextExtent("abc", 3).cx, 0);
    dc.SelectObject(old);

    LOGPEN log{};
    CPen pen(PS_DASH, 3, kRed);
    EXPECT_EQ(pen.GetLogPen(&log), int(sizeof(LOGPEN)));
    EXPECT_EQ(log.lopnStyle, PS_DASH);
    EXPECT_EQ(log.lopnWidth.x, 3);
    EXPECT_FALSE(DeleteObject(nullptr));
    EXPECT_EQ(GetSysColorBrush(-1), nullptr);
    EXPECT_NE(GetSysColorBrush(5), nullptr);
}

TEST_F(DrawingTest, BadInputFailsQuietly) {
    EXPECT_EQ(CreateBitmap(1 << 20, 1 << 20, 1, 32, nullptr), nullptr);
    EXPECT_EQ(CreateBitmap(4, 4, 2, 32, nullptr), nullptr);
    CBitmap huge;
    EXPECT_FALSE(huge.CreateCompatibleBitmap(&dc, -1, 5));
    EXPECT_EQ(SelectObject(dc.m_hDC, HGDIOBJ(nullptr)), nullptr);
    EXPECT_EQ(dc.SelectObject(static_cast<CPen*>(nullptr)), nullptr);
    EXPECT_FALSE(dc.BitBlt(0, 0, 10, 10, nullptr, 0, 0, SRCCOPY));
    EXPECT_FALSE(dc.StretchBlt(0, 0, 1 << 20, 1 << 20, &dc, 0, 0, 1, 1, SRCCOPY));
    EXPECT_FALSE(dc.RestoreDC(0));
    EXPECT_FALSE(DeleteDC(nullptr));
    HDC stale = CreateCompatibleDC(nullptr);
    EXPECT_TRUE(DeleteDC(stale));
    EXPECT_FALSE(DeleteDC(stale));
    EXPECT_EQ(CDC::FromHandle(stale), nullptr);

    // Text in an empty or inverted rectangle, an empty text with an ellipsis, a huge font.
    CRect inverted(50, 50, 10, 10);
    dc.DrawText("text", -1, &inverted, DT_SINGLELINE | DT_END_ELLIPSIS);
    CRect empty(10, 10, 10, 10);
    EXPECT_GT(dc.DrawText("", -1, &empty, DT_SINGLELINE | DT_END_ELLIPSIS | DT_VCENTER), 0);
    EXPECT_EQ(dc.DrawText(nullptr, -1, &empty, 0), 0);
    LOGFONT lf{};
    lf.lfHeight = -1000000;
    CFont hugeFont;
    ASSERT_TRUE(hugeFont.CreateFontIndirect(&lf));
    CFont* old = dc.SelectObject(&hugeFont);
    EXPECT_GT(dc.GetTextExtent("x", 1).cx, 100);
    dc.SelectObject(old);
    EXPECT_EQ(Ink(CRect(0, 0, kWidth, kHeight)), CRect());
}
