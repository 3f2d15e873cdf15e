#include "WindowTestSupport.h"

#include "platform/system/SysColors.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/WindowDC.h"

using ::testing::ElementsAre;

namespace {
class PaintTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(frame.CreateTop(300, 200));
        ASSERT_TRUE(child.CreateChild(&frame, CRect(50, 40, 150, 120), 1));
        frame.paintColour = RGB(0, 0, 255);
        child.paintColour = RGB(255, 0, 0);
        PumpMessages();
        log.clear();
        frame.paints = child.paints = 0;
    }
    LoggingWnd frame{log, "frame"}, child{log, "child"};
    UiDriver ui;
};

TEST_F(PaintTest, APaintCoversTheUnionOfWhatWasInvalidatedAndThenStops) {
    frame.InvalidateRect(CRect(200, 10, 220, 20), FALSE);
    frame.InvalidateRect(CRect(250, 150, 260, 160), FALSE);
    CRect update;
    EXPECT_TRUE(frame.GetUpdateRect(&update));
    EXPECT_EQ(update, CRect(200, 10, 260, 160));
    PumpMessages();
    EXPECT_EQ(frame.paints, 1);
    EXPECT_EQ(CRect(frame.lastPaint), CRect(200, 10, 260, 160));
    EXPECT_FALSE(frame.lastErase);
    EXPECT_FALSE(frame.GetUpdateRect(&update));
    PumpMessages();
    EXPECT_EQ(frame.paints, 1);
}

TEST_F(PaintTest, ValidatedAreasAreNotPaintedAndUpdateWindowPaintsAtOnce) {
    frame.Invalidate();
    frame.ValidateRect(nullptr);
    child.ValidateRect(nullptr);
    PumpMessages();
    EXPECT_EQ(frame.paints, 0);
    frame.InvalidateRect(CRect(0, 0, 10, 10));
    frame.UpdateWindow();
    EXPECT_EQ(frame.paints, 1);
    EXPECT_TRUE(frame.lastErase == FALSE); // the class background erased it

    frame.SetRedraw(FALSE);
    frame.Invalidate();
    PumpMessages();
    EXPECT_EQ(frame.paints, 1);
    frame.SetRedraw(TRUE);
    frame.RedrawWindow();
    EXPECT_EQ(frame.paints, 2);
}

TEST_F(PaintTest, AChildDrawsOnItsParentsSurfaceInsideItsOwnArea) {
    frame.Invalidate();
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(10, 10)), RGB(0, 0, 255));
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(60, 50)), RGB(255, 0, 0)); // painted after the frame
    EXPECT_EQ(ui.Pixel(child.m_hWnd, CPoint(0, 0)), RGB(255, 0, 0));
    EXPECT_EQ(ui.Pixel(child.m_hWnd, CPoint(100, 0)), CLR_INVALID);

    // Drawing through a client DC cannot spill out of the child.
    {
        CClientDC dc(&child);
        dc.FillSolidRect(CRect(-20, -20, 200, 200), RGB(0, 255, 0));
    }
    EXPECT_EQ(ui.Pixel(child.m_hWnd, CPoint(99, 79)), RGB(0, 255, 0));
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(49, 50)), RGB(0, 0, 255));
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(150, 50)), RGB(0, 0, 255));
}

TEST_F(PaintTest, ChildrenAreClippedToTheirParentsClientArea) {
    LoggingWnd overhang(log, "overhang");
    ASSERT_TRUE(overhang.CreateChild(&child, CRect(80, 60, 180, 160), 2));
    overhang.paintColour = RGB(0, 128, 0);
    PumpMessages();
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(140, 110)), RGB(0, 128, 0));
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(160, 110)), RGB(0, 0, 255));
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(140, 130)), RGB(0, 0, 255));
}

TEST_F(PaintTest, EraseUsesTheClassBackgroundAndFramesAreDrawn) {
    LoggingWnd boxed(log, "boxed");
    ASSERT_TRUE(
        boxed.CreateChild(&frame, CRect(200, 100, 260, 160), 3, WS_CHILD | WS_VISIBLE | WS_BORDER));
    PumpMessages();
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(200, 100)), GetSysColor(COLOR_WINDOWFRAME));
    EXPECT_EQ(ui.Pixel(boxed.m_hWnd, CPoint(0, 0)), GetSysColor(COLOR_WINDOW));
    EXPECT_TRUE(boxed.lastErase == FALSE);
}

TEST_F(PaintTest, ValidatingASideShrinksTheUpdateAndScrollingMovesChildren) {
    frame.InvalidateRect(CRect(0, 0, 100, 100), FALSE);
    frame.ValidateRect(CRect(0, 0, 100, 30));
    CRect update;
    frame.GetUpdateRect(&update);
    EXPECT_EQ(update, CRect(0, 30, 100, 100));
    frame.ValidateRect(CRect(40, 40, 60, 60)); // a hole cannot come out of one rectangle
    frame.GetUpdateRect(&update);
    EXPECT_EQ(update, CRect(0, 30, 100, 100));

    frame.ScrollWindow(0, -10);
    CRect rect;
    child.GetWindowRect(&rect);
    frame.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(50, 30, 150, 110));
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(60, 35)), RGB(255, 0, 0));
}

TEST_F(PaintTest, ScrollingMovesPixelsAndInvalidatesOnlyWhatComesIntoView) {
    constexpr COLORREF kGreen = RGB(0, 255, 0);
    const CRect area(160, 100, 300, 200); // clear of the child
    {
        CClientDC dc(&frame);
        dc.FillSolidRect(CRect(200, 150, 300, 160), kGreen);
    }
    CRect exposed;
    EXPECT_EQ(ScrollWindowEx(frame.m_hWnd, 0, -10, &area, &area, nullptr, &exposed, SW_INVALIDATE),
              SIMPLEREGION);
    EXPECT_EQ(exposed, CRect(160, 190, 300, 200));
    CRect update;
    frame.GetUpdateRect(&update);
    EXPECT_EQ(update, exposed);
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(250, 140)), kGreen);
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(250, 155)), RGB(0, 0, 255));
    EXPECT_EQ(CRect(frame.lastPaint), exposed);

    // A part waiting to be painted goes along; sideways the band is on the left.
    frame.InvalidateRect(CRect(200, 120, 210, 130), FALSE);
    EXPECT_EQ(ScrollWindowEx(frame.m_hWnd, 20, 0, &area, &area, nullptr, &exposed, SW_INVALIDATE),
              SIMPLEREGION);
    EXPECT_EQ(exposed, CRect(160, 100, 180, 200));
    frame.GetUpdateRect(&update);
    EXPECT_EQ(update, CRect(160, 100, 230, 200));

    EXPECT_EQ(ScrollWindowEx(frame.m_hWnd, 0, 0, &area, nullptr, nullptr, &exposed, SW_INVALIDATE),
              NULLREGION);
}

TEST_F(PaintTest, ScrollingOverAChildOrDiagonallyRepaintsTheWholeArea) {
    CRect exposed;
    const CRect client(0, 0, 300, 200);
    ScrollWindowEx(frame.m_hWnd, 0, -10, nullptr, nullptr, nullptr, &exposed, SW_INVALIDATE);
    EXPECT_EQ(exposed, client);
    CRect rect;
    child.GetWindowRect(&rect);
    frame.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(50, 40, 150, 120)); // children stay without SW_SCROLLCHILDREN
    PumpMessages();

    const CRect area(160, 100, 300, 200);
    ScrollWindowEx(frame.m_hWnd, 5, 5, &area, &area, nullptr, &exposed, 0);
    EXPECT_EQ(exposed, area);
    CRect update;
    EXPECT_FALSE(frame.GetUpdateRect(&update)); // nothing invalidated without SW_INVALIDATE

    ScrollWindowEx(frame.m_hWnd, 0, -10, nullptr, nullptr, nullptr, nullptr,
                   SW_INVALIDATE | SW_SCROLLCHILDREN);
    child.GetWindowRect(&rect);
    frame.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(50, 30, 150, 110));
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(60, 35)), RGB(255, 0, 0));
}

TEST_F(PaintTest, AWindowMovedFromUnderASiblingLeavesTheSiblingWhole) {
    // The parent repaints the bounds of the old and the new place together, which reach into
    // the sibling on top beyond where the two overlapped: the sibling repaints all of that.
    LoggingWnd under(log, "under");
    ASSERT_TRUE(under.CreateChild(&frame, CRect(10, 10, 60, 60), 2));
    under.paintColour = RGB(0, 128, 0);
    under.SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    PumpMessages();
    under.MoveWindow(10, 150, 50, 40);
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(55, 100)), RGB(255, 0, 0));
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(30, 30)), RGB(0, 0, 255));
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(30, 170)), RGB(0, 128, 0));
}

TEST_F(PaintTest, HidingAChildRepaintsWhatItCovered) {
    child.ShowWindow(SW_HIDE);
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(60, 50)), RGB(0, 0, 255));
    EXPECT_EQ(CRect(frame.lastPaint), CRect(50, 40, 150, 120));
    child.ShowWindow(SW_SHOW);
    EXPECT_EQ(ui.Pixel(frame.m_hWnd, CPoint(60, 50)), RGB(255, 0, 0));
}
} // namespace
