#include "WidgetTestSupport.h"

#include "platform/system/SysColors.h"
#include "platform/widgets/ScrollBar.h"
#include "platform/widgets/Static.h"

using ::testing::ElementsAre;

namespace {
constexpr UINT kStaticId = 400;
constexpr int kGripSize = 16;
constexpr int kMinWidth = 250;
constexpr int kMinHeight = 180;

using StaticTest = WidgetTest;

TEST_F(StaticTest, TextAlignsAsItsStyleSaysAndGoesGreyWhenDisabled) {
    const CRect rect(10, 10, 210, 30);
    CStatic left, right;
    ASSERT_TRUE(left.Create("IIII", SS_LEFT | WS_VISIBLE, rect, &parent, kStaticId));
    ASSERT_TRUE(right.Create("IIII", SS_RIGHT | WS_VISIBLE, rect + CPoint(0, 40), &parent));
    // The darkest grey level of the pixels in a band of columns; 255 where nothing is drawn.
    const auto darkest = [&](const CStatic& s, int from, int to) {
        int level = 255;
        for (int x = from; x < to; ++x)
            for (int y = 0; y < rect.Height(); ++y)
                level = std::min<int>(level, GetGValue(ui.Pixel(s.m_hWnd, CPoint(x, y))));
        return level;
    };
    constexpr int kBlackInk = 0x30; // text, anti-aliased, reaches near black
    const int face = GetGValue(GetSysColor(COLOR_3DFACE));
    const int grey = GetGValue(GetSysColor(COLOR_GRAYTEXT));
    EXPECT_LT(darkest(left, 0, 20), kBlackInk);
    EXPECT_EQ(darkest(left, 180, 200), face);
    EXPECT_EQ(darkest(right, 0, 20), face);
    EXPECT_LT(darkest(right, 180, 200), kBlackInk);
    left.EnableWindow(FALSE);
    EXPECT_GE(darkest(left, 0, 20), grey - kBlackInk); // grey text on its light shadow
    EXPECT_LT(darkest(left, 0, 20), face);
}

TEST_F(StaticTest, ClicksReachTheParentOnlyWithNotify) {
    CStatic quiet, notifying;
    ASSERT_TRUE(quiet.Create("quiet", WS_VISIBLE, CRect(10, 10, 110, 30), &parent, kStaticId));
    ASSERT_TRUE(notifying.Create("notify", SS_NOTIFY | WS_VISIBLE, CRect(10, 40, 110, 60), &parent,
                                 kStaticId + 1));
    ui.Click(quiet.m_hWnd, CPoint(5, 5));
    ui.Click(notifying.m_hWnd, CPoint(5, 5));
    EXPECT_TRUE(CommandsFrom(kStaticId).empty());
    EXPECT_THAT(CommandsFrom(kStaticId + 1), ElementsAre(STN_CLICKED));
}

// A resizable frame that refuses to become smaller than its minimum.
class Frame : public CWnd {
protected:
    void OnGetMinMaxInfo(MINMAXINFO* info) override {
        CWnd::OnGetMinMaxInfo(info);
        info->ptMinTrackSize = POINT{kMinWidth, kMinHeight};
    }
};

TEST_F(StaticTest, TheSizeGripResizesItsFrameWithinItsLimits) {
    Frame frame;
    ASSERT_TRUE(frame.CreateEx(0, nullptr, "frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300,
                               200, nullptr, nullptr));
    CRect client;
    frame.GetClientRect(&client);
    CScrollBar grip;
    ASSERT_TRUE(grip.Create(
        SBS_SIZEGRIP | WS_VISIBLE,
        CRect(client.right - kGripSize, client.bottom - kGripSize, client.right, client.bottom),
        &frame, 1));
    const CPoint inGrip(kGripSize / 2, kGripSize / 2);
    ui.Drag(grip.m_hWnd, inGrip, CPoint(inGrip.x + 40, inGrip.y + 30));
    CRect window;
    frame.GetWindowRect(&window);
    EXPECT_EQ(window.Size(), CSize(340, 230));
    EXPECT_EQ(GetCapture(), nullptr);
    ui.Drag(grip.m_hWnd, inGrip, CPoint(inGrip.x - 200, inGrip.y - 200));
    frame.GetWindowRect(&window);
    EXPECT_EQ(window.Size(), CSize(kMinWidth, kMinHeight));
}
} // namespace
