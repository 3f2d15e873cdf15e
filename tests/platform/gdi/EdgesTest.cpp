#include "DrawingFixture.h"

#include "platform/system/SysColors.h"

TEST_F(DrawingTest, SunkenEdgeHasShadowAboveAndLightBelowAndAdjusts) {
    dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), kBlue);
    CRect r(10, 10, 40, 30);
    ASSERT_TRUE(dc.DrawEdge(&r, EDGE_SUNKEN, BF_RECT | BF_ADJUST | BF_MIDDLE));
    EXPECT_EQ(r, CRect(12, 12, 38, 28));
    EXPECT_EQ(Pixel(10, 10), GetSysColor(COLOR_3DSHADOW));
    EXPECT_EQ(Pixel(11, 11), GetSysColor(COLOR_3DDKSHADOW));
    EXPECT_EQ(Pixel(39, 29), GetSysColor(COLOR_3DHILIGHT));
    EXPECT_EQ(Pixel(38, 28), GetSysColor(COLOR_3DLIGHT));
    // The bottom and right sides own the corners they share with the others.
    EXPECT_EQ(Pixel(39, 10), GetSysColor(COLOR_3DHILIGHT));
    EXPECT_EQ(Pixel(10, 29), GetSysColor(COLOR_3DHILIGHT));
    EXPECT_EQ(Pixel(20, 20), GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(Ink(CRect(0, 0, 60, 60), kBlue), CRect(10, 10, 40, 30));
    // The background colour is left alone.
    EXPECT_EQ(dc.GetBkColor(), kBlue);
}

TEST_F(DrawingTest, EdgesDrawOnlyTheSidesAsked) {
    CRect r(10, 10, 40, 30);
    dc.DrawEdge(&r, EDGE_RAISED, BF_BOTTOM | BF_ADJUST);
    EXPECT_EQ(r, CRect(10, 10, 40, 28));
    EXPECT_EQ(Ink(CRect(0, 0, 60, 60)), CRect(10, 28, 40, 30));
    CRect flat(50, 10, 60, 20);
    dc.DrawEdge(&flat, EDGE_RAISED, BF_RECT | BF_FLAT);
    EXPECT_EQ(Pixel(50, 10), GetSysColor(COLOR_3DSHADOW));
    EXPECT_EQ(Pixel(59, 19), GetSysColor(COLOR_3DSHADOW));
}

TEST_F(DrawingTest, FrameControlsShowTheirState) {
    dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), kBlue);
    CRect unchecked(10, 10, 23, 23), checked(30, 10, 43, 23);
    dc.DrawFrameControl(&unchecked, DFC_BUTTON, DFCS_BUTTONCHECK);
    dc.DrawFrameControl(&checked, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED);
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    const COLORREF text = GetSysColor(COLOR_WINDOWTEXT);
    EXPECT_EQ(CountPixels(CRect(12, 12, 21, 21), window), 81);
    EXPECT_GT(CountPixels(CRect(32, 12, 41, 21), text), 10);
    EXPECT_EQ(Ink(CRect(0, 0, 50, 40), kBlue), CRect(10, 10, 43, 23));

    // A scroll arrow is a dark triangle in the middle of a raised button; pointing up, its
    // rows widen downwards.
    CRect up(60, 10, 76, 26);
    dc.DrawFrameControl(&up, DFC_SCROLL, DFCS_SCROLLUP);
    CRect arrow = Ink(CRect(62, 12, 74, 24), GetSysColor(COLOR_3DFACE));
    ASSERT_FALSE(arrow.IsRectEmpty());
    EXPECT_EQ(CountPixels(CRect(arrow.left, arrow.top, arrow.right, arrow.top + 1),
                          GetSysColor(COLOR_BTNTEXT)),
              1);
    EXPECT_EQ(CountPixels(CRect(arrow.left, arrow.bottom - 1, arrow.right, arrow.bottom),
                          GetSysColor(COLOR_BTNTEXT)),
              arrow.Width());
    EXPECT_NEAR(arrow.CenterPoint().x, up.CenterPoint().x, 1);
}
