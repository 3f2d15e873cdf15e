#include "WindowTestSupport.h"

#include "platform/system/SystemMetrics.h"
#include "platform/testing/UiDriver.h"

using ::testing::ElementsAre;

namespace {
class ScrollBarTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(frame.CreateTop(400, 300));
        ASSERT_TRUE(view.CreateChild(&frame, CRect(0, 0, 200, 150), 1,
                                     WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL));
        PumpMessages();
        log.clear();
    }
    SCROLLINFO Info(int bar) {
        SCROLLINFO si{};
        view.GetScrollInfo(bar, &si, SIF_ALL);
        return si;
    }
    LoggingWnd frame{log, "frame"}, view{log, "view"};
    UiDriver ui;
    const int bar = GetSystemMetrics(SM_CXVSCROLL);
};

TEST_F(ScrollBarTest, BarsTakeTheirRoomFromTheClientArea) {
    ASSERT_EQ(bar, 17);
    CRect client;
    view.GetClientRect(&client);
    EXPECT_EQ(client, CRect(0, 0, 200 - bar, 150 - bar));
    view.ShowScrollBar(SB_HORZ, FALSE);
    EXPECT_THAT(log, ElementsAre("view:size 183x150"));
    view.ShowScrollBar(SB_BOTH, FALSE);
    view.GetClientRect(&client);
    EXPECT_EQ(client, CRect(0, 0, 200, 150));
    EXPECT_FALSE(view.GetStyle() & (WS_VSCROLL | WS_HSCROLL));
}

TEST_F(ScrollBarTest, PositionIsClampedToTheLastFullPage) {
    SCROLLINFO si{sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE | SIF_POS, 0, 99, 10, 500, 0};
    view.SetScrollInfo(SB_VERT, &si);
    EXPECT_EQ(Info(SB_VERT).nPos, 90);
    EXPECT_EQ(view.GetScrollLimit(SB_VERT), 90);
    EXPECT_EQ(view.SetScrollPos(SB_VERT, -5), 90);
    EXPECT_EQ(view.GetScrollPos(SB_VERT), 0);

    si = SCROLLINFO{sizeof(SCROLLINFO), SIF_PAGE, 0, 0, 1000, 0, 0};
    view.SetScrollInfo(SB_VERT, &si); // a page larger than the range is cut to the range
    EXPECT_EQ(Info(SB_VERT).nPage, 100u);

    view.SetScrollRange(SB_HORZ, 0, 50);
    view.SetScrollPos(SB_HORZ, 60);
    EXPECT_EQ(view.GetScrollPos(SB_HORZ), 50); // no page: the maximum itself is reachable
    int lo = -1, hi = -1;
    view.GetScrollRange(SB_HORZ, &lo, &hi);
    EXPECT_EQ(lo, 0);
    EXPECT_EQ(hi, 50);
}

TEST_F(ScrollBarTest, ABarWithNothingToScrollHidesUnlessToldToDisable) {
    SCROLLINFO si{sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE, 0, 49, 50, 0, 0};
    view.SetScrollInfo(SB_VERT, &si);
    EXPECT_FALSE(view.GetStyle() & WS_VSCROLL);
    si.nMax = 200;
    view.SetScrollInfo(SB_VERT, &si);
    EXPECT_TRUE(view.GetStyle() & WS_VSCROLL);
    view.SetScrollRange(SB_HORZ, 0, 0);
    EXPECT_FALSE(view.GetStyle() & WS_HSCROLL);
    si =
        SCROLLINFO{sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE | SIF_DISABLENOSCROLL, 0, 10, 20, 0, 0};
    view.SetScrollInfo(SB_VERT, &si);
    EXPECT_TRUE(view.GetStyle() & WS_VSCROLL);
}

TEST_F(ScrollBarTest, ClicksOnArrowsAndTrackSendScrollRequests) {
    SCROLLINFO si{sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE | SIF_POS, 0, 999, 100, 0, 0};
    view.SetScrollInfo(SB_VERT, &si);
    CRect client;
    view.GetClientRect(&client);
    const int x = client.right + bar / 2; // on the vertical bar, left of the window's edge
    ui.Click(view.m_hWnd, CPoint(x, 3));
    ui.Click(view.m_hWnd, CPoint(x, client.bottom - 3));
    ui.Click(view.m_hWnd, CPoint(x, client.bottom - bar - 5));
    EXPECT_THAT(Only(log, {"vscroll"}),
                ElementsAre("view:vscroll 0 0", "view:vscroll 8 0", "view:vscroll 1 0",
                            "view:vscroll 8 0", "view:vscroll 3 0", "view:vscroll 8 0"));
}

TEST_F(ScrollBarTest, DraggingTheThumbTracksAndThenSetsThePosition) {
    SCROLLINFO si{sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE | SIF_POS, 0, 999, 100, 0, 0};
    view.SetScrollInfo(SB_VERT, &si);
    CRect client;
    view.GetClientRect(&client);
    const int x = client.right + bar / 2;
    const int track = client.Height() - 2 * bar;
    const int thumb = track * 100 / 1000;
    ui.Drag(view.m_hWnd, CPoint(x, bar + 2), CPoint(x, bar + 2 + (track - thumb) / 2), 0, 1);
    const auto scrolls = Only(log, {"vscroll"});
    ASSERT_EQ(scrolls.size(), 3u);
    EXPECT_EQ(scrolls[0], "view:vscroll 5 450 track 450");
    EXPECT_EQ(scrolls[1], "view:vscroll 4 450");
    EXPECT_EQ(scrolls[2], "view:vscroll 8 0");
    // Tracking leaves the position to the window, which has not moved it here.
    EXPECT_EQ(Info(SB_VERT).nPos, 0);
    EXPECT_EQ(Info(SB_VERT).nTrackPos, 0);
}
} // namespace
