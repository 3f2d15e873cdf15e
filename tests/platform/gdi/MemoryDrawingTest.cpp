#include "DrawingFixture.h"

#include "platform/gdi/ImageList.h"
#include "support/MemDC.h"

#include <vector>

TEST_F(DrawingTest, MemDCCoversTheClipBoxAndCopiesOnDestruction) {
    dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), kBlue);
    dc.IntersectClipRect(20, 10, 60, 50);
    dc.SetBkColor(RGB(0, 255, 0));
    {
        CMemDC mem(&dc);
        EXPECT_NE(mem.m_hDC, dc.m_hDC);
        EXPECT_FALSE(mem.IsPrinting());
        // Drawing is in the target's coordinates and stays off screen until the end.
        CRect box;
        mem.GetClipBox(&box);
        EXPECT_EQ(box, CRect(20, 10, 60, 50));
        EXPECT_EQ(mem->GetPixel(20, 10), RGB(0, 255, 0)); // filled with the background colour
        mem->FillSolidRect(CRect(30, 20, 40, 30), kRed);
        EXPECT_EQ(Pixel(30, 20), kBlue);
        BITMAP record{};
        mem.GetCurrentBitmap()->GetBitmap(&record);
        EXPECT_EQ(record.bmWidth, 40);
        EXPECT_EQ(record.bmHeight, 40);
    }
    EXPECT_EQ(Pixel(30, 20), kRed);
    EXPECT_EQ(Pixel(20, 10), RGB(0, 255, 0));
    EXPECT_EQ(Pixel(59, 49), RGB(0, 255, 0));
    EXPECT_EQ(Pixel(60, 50), kBlue); // outside the clip box
    EXPECT_EQ(Pixel(19, 10), kBlue);
}

TEST_F(DrawingTest, MemDCOnAPrinterDrawsStraightThroughAndCopiesNothing) {
    CDC printer;
    printer.Attach(CreateSurfaceDC(surface.get(), POINT{0, 0}, RECT{0, 0, kWidth, kHeight}));
    printer.m_bPrinting = TRUE;
    printer.FillSolidRect(CRect(0, 0, kWidth, kHeight), kBlue);
    {
        CMemDC mem(&printer);
        EXPECT_EQ(mem.m_hDC, printer.m_hDC);
        EXPECT_TRUE(mem.IsPrinting());
        mem->FillSolidRect(CRect(5, 5, 10, 10), kRed);
        EXPECT_EQ(Pixel(5, 5), kRed); // at once
    }
    // The printer's context lives on, and nothing was copied over it.
    EXPECT_NE(CDC::FromHandle(printer.m_hDC), nullptr);
    EXPECT_EQ(Pixel(0, 0), kBlue);
    printer.FillSolidRect(CRect(0, 0, 1, 1), kBlack);
    EXPECT_EQ(Pixel(0, 0), kBlack);
}

TEST_F(DrawingTest, BitBltBetweenMemoryContexts) {
    CDC a, b;
    ASSERT_TRUE(a.CreateCompatibleDC(&dc));
    ASSERT_TRUE(b.CreateCompatibleDC(&dc));
    CBitmap bitmapA, bitmapB;
    bitmapA.CreateCompatibleBitmap(&dc, 20, 20);
    bitmapB.CreateCompatibleBitmap(&dc, 20, 20);
    CBitmap* oldA = a.SelectObject(&bitmapA);
    CBitmap* oldB = b.SelectObject(&bitmapB);
    ASSERT_NE(oldA, nullptr);
    a.FillSolidRect(CRect(0, 0, 20, 20), RGB(0xF0, 0x0F, 0x33));
    b.FillSolidRect(CRect(0, 0, 20, 20), RGB(0x0F, 0xFF, 0x11));
    a.FillSolidRect(CRect(5, 5, 10, 10), kRed);

    // Copy with origins on both sides.
    b.SetWindowOrg(100, 100);
    EXPECT_TRUE(b.BitBlt(100, 100, 10, 10, &a, 5, 5, SRCCOPY));
    EXPECT_EQ(b.GetPixel(100, 100), kRed);
    EXPECT_EQ(b.GetPixel(104, 104), kRed);
    EXPECT_EQ(b.GetPixel(105, 105), RGB(0xF0, 0x0F, 0x33));
    EXPECT_EQ(b.GetPixel(110, 110), RGB(0x0F, 0xFF, 0x11));
    b.SetWindowOrg(0, 0);

    // Bitwise operations.
    b.BitBlt(15, 15, 5, 5, &a, 15, 15, SRCAND);
    EXPECT_EQ(b.GetPixel(15, 15), RGB(0x00, 0x0F, 0x11));
    b.BitBlt(15, 15, 5, 5, &a, 15, 15, SRCPAINT);
    EXPECT_EQ(b.GetPixel(15, 15), RGB(0xF0, 0x0F, 0x33));
    b.BitBlt(15, 15, 5, 5, &a, 15, 15, SRCINVERT);
    EXPECT_EQ(b.GetPixel(19, 19), kBlack);

    // Onto the window and scaled.
    dc.BitBlt(50, 50, 20, 20, &a, 0, 0, SRCCOPY);
    EXPECT_EQ(Ink(CRect(40, 40, 80, 80)), CRect(50, 50, 70, 70));
    EXPECT_EQ(Pixel(55, 55), kRed);
    dc.StretchBlt(100, 0, 40, 40, &a, 0, 0, 20, 20, SRCCOPY);
    EXPECT_EQ(Ink(CRect(100, 0, 140, 40), RGB(0xF0, 0x0F, 0x33)), CRect(110, 10, 120, 20));

    a.SelectObject(oldA);
    b.SelectObject(oldB);
}

TEST_F(DrawingTest, MonochromeMaskMakesTransparentBlits) {
    // The classic transparent blit: a mask from the picture's background colour, then
    // SRCINVERT, SRCAND with the mask, SRCINVERT.
    CDC picture, mask;
    picture.CreateCompatibleDC(&dc);
    mask.CreateCompatibleDC(&dc);
    CBitmap pictureBitmap, maskBitmap;
    pictureBitmap.CreateCompatibleBitmap(&dc, 10, 10);
    maskBitmap.CreateBitmap(10, 10, 1, 1, nullptr);
    CBitmap* oldPicture = picture.SelectObject(&pictureBitmap);
    CBitmap* oldMask = mask.SelectObject(&maskBitmap);
    picture.FillSolidRect(CRect(0, 0, 10, 10), RGB(255, 0, 255));
    picture.FillSolidRect(CRect(3, 3, 7, 7), kRed);
    picture.SetBkColor(RGB(255, 0, 255));
    mask.BitBlt(0, 0, 10, 10, &picture, 0, 0, SRCCOPY);
    EXPECT_EQ(mask.GetPixel(0, 0), kWhite);
    EXPECT_EQ(mask.GetPixel(3, 3), kBlack);

    dc.FillSolidRect(CRect(0, 0, 30, 30), kBlue);
    dc.SetBkColor(kWhite);
    dc.SetTextColor(kBlack);
    dc.BitBlt(10, 10, 10, 10, &picture, 0, 0, SRCINVERT);
    dc.BitBlt(10, 10, 10, 10, &mask, 0, 0, SRCAND);
    dc.BitBlt(10, 10, 10, 10, &picture, 0, 0, SRCINVERT);
    EXPECT_EQ(Pixel(10, 10), kBlue);
    EXPECT_EQ(Pixel(13, 13), kRed);
    EXPECT_EQ(Ink(CRect(0, 0, 30, 30), kBlue), CRect(13, 13, 17, 17));
    picture.SelectObject(oldPicture);
    mask.SelectObject(oldMask);
}

TEST_F(DrawingTest, ImageListAddsAndDrawsTransparently) {
    // Two 4 x 4 pictures side by side: a red square on magenta, a blue one.
    std::vector<COLORREF> pixels(8 * 4, RGB(255, 0, 255));
    for (int y = 1; y < 3; ++y) {
        pixels[std::size_t(y * 8 + 1)] = pixels[std::size_t(y * 8 + 2)] = kRed;
        pixels[std::size_t(y * 8 + 5)] = pixels[std::size_t(y * 8 + 6)] = kBlue;
    }
    RegisterBitmapResource(4711, 8, 4, pixels.data());
    CBitmap strip;
    ASSERT_TRUE(strip.LoadBitmap(4711));
    EXPECT_FALSE(CBitmap().LoadBitmap(4712));

    CImageList list;
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR24 | ILC_MASK, 2, 2));
    EXPECT_EQ(list.Add(&strip, RGB(255, 0, 255)), 0);
    EXPECT_EQ(list.GetImageCount(), 2);
    int cx = 0, cy = 0;
    EXPECT_TRUE(ImageList_GetIconSize(list.GetSafeHandle(), &cx, &cy));
    EXPECT_EQ(CSize(cx, cy), CSize(4, 4));
    IMAGEINFO info{};
    EXPECT_TRUE(list.GetImageInfo(1, &info));
    EXPECT_EQ(CRect(info.rcImage), CRect(0, 0, 4, 4));
    EXPECT_FALSE(list.GetImageInfo(2, &info));

    dc.FillSolidRect(CRect(0, 0, 20, 20), RGB(0, 128, 0));
    EXPECT_TRUE(list.Draw(&dc, 1, CPoint(10, 10), ILD_TRANSPARENT));
    EXPECT_EQ(Ink(CRect(0, 0, 20, 20), RGB(0, 128, 0)), CRect(11, 11, 13, 13));
    EXPECT_EQ(Pixel(11, 11), kBlue);
    EXPECT_FALSE(list.Draw(&dc, 2, CPoint(0, 0), ILD_NORMAL));

    EXPECT_EQ(CImageList::FromHandle(list.GetSafeHandle()), &list);
    EXPECT_TRUE(list.Remove(0));
    EXPECT_EQ(list.GetImageCount(), 1);
    EXPECT_TRUE(list.DeleteImageList());
    EXPECT_EQ(ImageList_GetImageCount(list.GetSafeHandle()), 0);
}
