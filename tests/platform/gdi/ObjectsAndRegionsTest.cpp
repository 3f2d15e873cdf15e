#include "DrawingFixture.h"

#include "platform/gdi/ImageList.h"
#include "platform/system/SysColors.h"

#include <cstdio>
#include <cstdlib>
#include <string>

TEST(SurfaceTest, ResizeKeepsThePictureAndWhitensTheRest) {
    Surface surface(10, 10);
    EXPECT_EQ(surface.GetPixel(0, 0), kWhite);
    EXPECT_EQ(surface.GetPixel(10, 0), CLR_INVALID);
    EXPECT_EQ(surface.GetPixel(-1, 0), CLR_INVALID);
    CDC dc;
    dc.Attach(CreateSurfaceDC(&surface, POINT{0, 0}, RECT{0, 0, 100, 100}));
    dc.FillSolidRect(CRect(0, 0, 10, 10), kRed);
    surface.Resize(20, 5);
    EXPECT_EQ(surface.Width(), 20);
    EXPECT_EQ(surface.Height(), 5);
    EXPECT_EQ(surface.GetPixel(9, 4), kRed);
    EXPECT_EQ(surface.GetPixel(10, 4), kWhite);
    // A context made before the resize draws on the new pixels.
    dc.FillSolidRect(CRect(15, 0, 16, 1), kBlue);
    EXPECT_EQ(surface.GetPixel(15, 0), kBlue);
    EXPECT_GE(surface.Stride(), 20 * 4);

    const char* tmp = std::getenv("TMPDIR");
    std::string path = std::string(tmp != nullptr ? tmp : "/tmp") + "/gdi-surface-test.png";
    EXPECT_TRUE(surface.SavePng(path.c_str()));
    EXPECT_EQ(std::remove(path.c_str()), 0);
    EXPECT_FALSE(surface.SavePng("/no/such/folder/picture.png"));
}

TEST_F(DrawingTest, RegionsCombineAndClip) {
    CRgn a, b, result;
    a.CreateRectRgn(0, 0, 20, 20);
    b.CreateRectRgn(10, 10, 30, 30);
    result.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(result.CombineRgn(&a, &b, RGN_AND), SIMPLEREGION);
    CRect box;
    result.GetRgnBox(&box);
    EXPECT_EQ(box, CRect(10, 10, 20, 20));
    EXPECT_EQ(result.CombineRgn(&a, &b, RGN_DIFF), COMPLEXREGION);
    EXPECT_TRUE(result.PtInRegion(5, 15));
    EXPECT_FALSE(result.PtInRegion(15, 15));
    EXPECT_EQ(result.CombineRgn(&a, &b, RGN_OR), COMPLEXREGION);
    result.GetRgnBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 30, 30));
    EXPECT_EQ(result.CombineRgn(&a, nullptr, RGN_AND), ERROR);

    // Clip to the difference: the overlap stays untouched.
    result.CombineRgn(&a, &b, RGN_DIFF);
    dc.SelectClipRgn(&result);
    dc.FillSolidRect(CRect(0, 0, 50, 50), kRed);
    EXPECT_EQ(Pixel(5, 5), kRed);
    EXPECT_EQ(Pixel(15, 15), kWhite);
    EXPECT_EQ(Pixel(25, 25), kWhite);
    // And-ing another region narrows it further; a null region lifts the clip.
    CRgn left;
    left.CreateRectRgn(0, 0, 5, 50);
    EXPECT_EQ(dc.SelectClipRgn(&left, RGN_AND), SIMPLEREGION);
    dc.SelectClipRgn(nullptr);
    dc.FillSolidRect(CRect(40, 40, 41, 41), kRed);
    EXPECT_EQ(Pixel(40, 40), kRed);
}

TEST_F(DrawingTest, SavedStatesBringBackObjectsAndColours) {
    CPen red(PS_SOLID, 0, kRed);
    dc.SetTextColor(kBlue);
    int first = dc.SaveDC();
    dc.SelectObject(&red);
    dc.SetTextColor(kRed);
    dc.SetBkMode(TRANSPARENT);
    dc.SaveDC();
    dc.SetTextColor(kWhite);
    EXPECT_TRUE(dc.RestoreDC(-1));
    EXPECT_EQ(dc.GetTextColor(), kRed);
    EXPECT_TRUE(dc.RestoreDC(first));
    EXPECT_EQ(dc.GetTextColor(), kBlue);
    EXPECT_EQ(dc.GetBkMode(), OPAQUE);
    EXPECT_EQ(dc.GetCurrentPen()->m_hObject, GetStockObject(BLACK_PEN));
    dc.MoveTo(0, 0);
    dc.LineTo(5, 0);
    EXPECT_EQ(Pixel(0, 0), kBlack);
}

TEST_F(DrawingTest, HandlesMapToTheirObjects) {
    CBrush brush(kRed);
    EXPECT_EQ(CBrush::FromHandle(brush), &brush);
    EXPECT_EQ(CGdiObject::FromHandle(brush.m_hObject), &brush);
    EXPECT_EQ(CPen::FromHandle(HPEN(brush.m_hObject)), nullptr); // not a pen
    EXPECT_EQ(GetObjectType(brush.m_hObject), OBJ_BRUSH);
    LOGBRUSH log{};
    EXPECT_EQ(brush.GetLogBrush(&log), int(sizeof(LOGBRUSH)));
    EXPECT_EQ(log.lbColor, kRed);

    // A detached handle gets a temporary wrapper that does not own it.
    HGDIOBJ handle = brush.Detach();
    CGdiObject* temporary = CGdiObject::FromHandle(handle);
    ASSERT_NE(temporary, nullptr);
    EXPECT_TRUE(temporary->IsKindOf(RUNTIME_CLASS(CBrush)));
    EXPECT_FALSE(temporary->DeleteObject());
    EXPECT_EQ(GetObjectType(handle), OBJ_BRUSH);
    EXPECT_TRUE(DeleteObject(handle));
    EXPECT_EQ(GetObjectType(handle), 0u);
    EXPECT_FALSE(DeleteObject(handle));

    CFont font;
    font.CreatePointFont(80, "MS Sans Serif");
    LOGFONT lf{};
    EXPECT_EQ(font.GetLogFont(&lf), int(sizeof(LOGFONT)));
    EXPECT_EQ(lf.lfHeight, -11); // 8 points at 96 DPI
    EXPECT_STREQ(lf.lfFaceName, "MS Sans Serif");
}

TEST_F(DrawingTest, SystemColourBrushesFollowTheColourTable) {
    HBRUSH face = GetSysColorBrush(COLOR_3DFACE);
    int element = COLOR_3DFACE;
    COLORREF green = RGB(0, 200, 0);
    SetSysColors(1, &element, &green);
    EXPECT_EQ(GetSysColorBrush(COLOR_3DFACE), face);
    EXPECT_TRUE(FillRect(dc.m_hDC, CRect(0, 0, 4, 4), face));
    EXPECT_EQ(Pixel(0, 0), green);
    // The system's shorthand: a colour index plus one in place of a brush.
    FillRect(dc.m_hDC, CRect(10, 0, 14, 4), reinterpret_cast<HBRUSH>(COLOR_WINDOWTEXT + 1));
    EXPECT_EQ(Pixel(10, 0), GetSysColor(COLOR_WINDOWTEXT));
    RestoreDefaultSysColors();
    EXPECT_FALSE(DeleteObject(nullptr));
    EXPECT_TRUE(DeleteObject(face)); // shared: deleting it does nothing
    FillRect(dc.m_hDC, CRect(20, 0, 24, 4), face);
    EXPECT_EQ(Pixel(20, 0), GetSysColor(COLOR_3DFACE));
}

TEST_F(DrawingTest, HatchBrushesAreOpaqueOnlyInOpaqueMode) {
    CBrush cross(HS_CROSS, kRed);
    dc.FillSolidRect(CRect(0, 0, 40, 20), kBlue);
    dc.SetBkMode(TRANSPARENT);
    dc.FillRect(CRect(0, 0, 16, 16), &cross);
    int red = CountPixels(CRect(0, 0, 16, 16), kRed);
    EXPECT_GT(red, 40);
    EXPECT_EQ(red + CountPixels(CRect(0, 0, 16, 16), kBlue), 256);
    dc.SetBkMode(OPAQUE);
    dc.SetBkColor(kWhite);
    dc.FillRect(CRect(20, 0, 36, 16), &cross);
    EXPECT_EQ(CountPixels(CRect(20, 0, 36, 16), kRed), red);
    EXPECT_EQ(CountPixels(CRect(20, 0, 36, 16), kWhite), 256 - red);
}

TEST_F(DrawingTest, PolygonsAndEllipsesStayInsideTheirPoints) {
    CBrush red(kRed);
    dc.SelectObject(&red);
    dc.SelectStockObject(NULL_PEN);
    const POINT square[] = {{10, 10}, {20, 10}, {20, 20}, {10, 20}};
    dc.Polygon(square, 4);
    EXPECT_EQ(Ink(CRect(0, 0, 40, 40)), CRect(10, 10, 20, 20));
    dc.SelectStockObject(BLACK_PEN);
    dc.Ellipse(50, 10, 70, 30);
    CRect ellipse = Ink(CRect(40, 0, 80, 40));
    EXPECT_TRUE(CRect(50, 10, 70, 30).PtInRect(ellipse.TopLeft()));
    EXPECT_LE(ellipse.right, 70);
    EXPECT_LE(ellipse.bottom, 30);
    EXPECT_GE(ellipse.Width(), 18);
    EXPECT_EQ(Pixel(60, 20), kRed);
    EXPECT_EQ(Pixel(50, 10), kWhite); // the corner is outside
    dc.SelectStockObject(WHITE_BRUSH);
}

TEST_F(DrawingTest, MemoryContextKeepsADeletedBitmapUntilItLetsGo) {
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    auto* bitmap = new CBitmap;
    bitmap->CreateCompatibleBitmap(&dc, 8, 8);
    CBitmap* old = memory.SelectObject(bitmap);
    delete bitmap;
    memory.FillSolidRect(CRect(0, 0, 8, 8), kRed);
    EXPECT_EQ(memory.GetPixel(7, 7), kRed);
    dc.BitBlt(0, 0, 8, 8, &memory, 0, 0, SRCCOPY);
    EXPECT_EQ(Pixel(7, 7), kRed);
    memory.SelectObject(old);
    // Mirrored stretch: the right column of the source lands on the left.
    CBitmap strip;
    strip.CreateCompatibleBitmap(&dc, 2, 1);
    memory.SelectObject(&strip);
    memory.SetPixel(0, 0, kRed);
    memory.SetPixel(1, 0, kBlue);
    dc.StretchBlt(20, 0, -4, 2, &memory, 0, 0, 2, 1, SRCCOPY);
    EXPECT_EQ(Pixel(16, 0), kBlue);
    EXPECT_EQ(Pixel(19, 1), kRed);
    memory.SelectObject(old);
}

TEST_F(DrawingTest, ImageListWithMaskBitmapAndBackground) {
    CBitmap picture, mask;
    picture.CreateCompatibleBitmap(&dc, 2, 2);
    const WORD maskRows[2] = {0x40, 0x80}; // top row: right pixel masked; bottom: left
    mask.CreateBitmap(2, 2, 1, 1, maskRows);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap* old = memory.SelectObject(&picture);
    memory.FillSolidRect(CRect(0, 0, 2, 2), kRed);
    memory.SelectObject(old);

    CImageList list;
    list.Create(2, 2, ILC_COLOR24 | ILC_MASK, 1, 1);
    EXPECT_EQ(list.Add(&picture, &mask), 0);
    dc.FillSolidRect(CRect(0, 0, 10, 10), kBlue);
    list.Draw(&dc, 0, CPoint(0, 0), ILD_TRANSPARENT);
    EXPECT_EQ(Pixel(0, 0), kRed);
    EXPECT_EQ(Pixel(1, 0), kBlue);
    EXPECT_EQ(Pixel(0, 1), kBlue);
    // ILD_NORMAL on a list with a background colour paints that colour under the picture.
    list.SetBkColor(kBlack);
    list.Draw(&dc, 0, CPoint(4, 0), ILD_NORMAL);
    EXPECT_EQ(Pixel(5, 0), kBlack);
    EXPECT_EQ(Pixel(4, 0), kRed);
    EXPECT_EQ(list.Add(nullptr, kRed), -1);
}
