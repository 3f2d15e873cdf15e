#include "WindowTestSupport.h"

#include "platform/testing/UiDriver.h"
#include "platform/window/Input.h"

using ::testing::ElementsAre;

namespace {
class FocusTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(frame.CreateTop(300, 200));
        ASSERT_TRUE(a.CreateChild(&frame, CRect(0, 0, 100, 100), 1));
        ASSERT_TRUE(b.CreateChild(&frame, CRect(100, 0, 200, 100), 2));
        a.SetWindowText("a");
        b.SetWindowText("b");
        frame.SetWindowText("frame");
        PumpMessages();
    }
    LoggingWnd frame{log, "frame"}, a{log, "a"}, b{log, "b"};
    UiDriver ui;
};

TEST_F(FocusTest, KillGoesToTheOldWindowBeforeSetGoesToTheNew) {
    a.SetFocus();
    log.clear();
    EXPECT_EQ(b.SetFocus(), &a);
    EXPECT_THAT(Only(log, {"focus"}), ElementsAre("a:killfocus to b", "b:setfocus from a"));
    EXPECT_EQ(CWnd::GetFocus(), &b);
    log.clear();
    b.SetFocus(); // no change, no messages
    EXPECT_TRUE(Only(log, {"focus"}).empty());
}

TEST_F(FocusTest, FocusLeavesHiddenDisabledAndDestroyedWindowsForTheParent) {
    a.SetFocus();
    a.ShowWindow(SW_HIDE);
    EXPECT_EQ(GetFocus(), frame.m_hWnd);
    b.SetFocus();
    b.EnableWindow(FALSE);
    EXPECT_EQ(GetFocus(), nullptr);
    b.EnableWindow(TRUE);
    b.SetFocus();
    log.clear();
    b.DestroyWindow();
    EXPECT_THAT(Only(log, {"focus"}), ElementsAre("b:killfocus to frame", "frame:setfocus from b"));
    EXPECT_EQ(GetFocus(), frame.m_hWnd);
}

TEST_F(FocusTest, CaptureChangesAreAnnouncedToTheWindowLosingIt) {
    EXPECT_EQ(a.SetCapture(), nullptr);
    EXPECT_EQ(CWnd::GetCapture(), &a);
    EXPECT_EQ(b.SetCapture(), &a);
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_THAT(Only(log, {"capture"}),
                ElementsAre("a:capturechanged to b", "b:capturechanged to none"));
}

TEST_F(FocusTest, TheCaptureGetsTheMouseWhereverItIs) {
    ui.MouseDown(a.m_hWnd, CPoint(10, 10));
    a.SetCapture();
    ui.MouseMove(b.m_hWnd, CPoint(20, 30));
    ui.MouseUp(b.m_hWnd, CPoint(20, 30));
    EXPECT_THAT(Only(log, {"ldown", "lup"}), ElementsAre("a:ldown 10,10", "a:lup 120,30"));
}

TEST_F(FocusTest, KeysGoToTheFocusAndTranslateIntoCharacters) {
    b.SetFocus();
    log.clear();
    ui.Type("aB.");
    EXPECT_THAT(Only(log, {"char"}), ElementsAre("b:char a", "b:char B", "b:char ."));
    log.clear();
    ui.PressKey('X');
    EXPECT_THAT(log, ElementsAre("b:keydown 88", "b:char x", "b:keyup 88"));
}

TEST_F(FocusTest, KeyStateFollowsInputWithAToggleBit) {
    EXPECT_FALSE(GetKeyState(VK_SHIFT) & 0x8000);
    const bool toggled = GetKeyState(VK_SHIFT) & 1;
    InjectKey(VK_SHIFT, true);
    EXPECT_TRUE(GetKeyState(VK_SHIFT) & 0x8000);
    EXPECT_NE(bool(GetKeyState(VK_SHIFT) & 1), toggled);
    EXPECT_TRUE(GetAsyncKeyState(VK_SHIFT) & 0x8000);
    InjectKey(VK_SHIFT, false);
    EXPECT_FALSE(GetKeyState(VK_SHIFT) & 0x8000);
    EXPECT_NE(bool(GetKeyState(VK_SHIFT) & 1), toggled);
    InjectKey(VK_SHIFT, true);
    InjectKey(VK_SHIFT, false);
    EXPECT_EQ(bool(GetKeyState(VK_SHIFT) & 1), toggled);
    PumpMessages();

    b.SetFocus();
    ui.PressKey('C', MK_CONTROL);
    EXPECT_TRUE(Only(log, {"char c"}).empty()); // Control+C makes a control character
    EXPECT_FALSE(GetKeyState(VK_CONTROL) & 0x8000);
}

TEST_F(FocusTest, MouseMessagesCarryClientPointsAndHeldKeys) {
    ui.Click(b.m_hWnd, CPoint(5, 6), MK_CONTROL | MK_SHIFT);
    EXPECT_THAT(Only(log, {"ldown", "lup"}),
                ElementsAre("b:ldown 5,6 ctrl shift", "b:lup 5,6 ctrl shift"));
    EXPECT_FALSE(GetKeyState(VK_CONTROL) & 0x8000);
    EXPECT_FALSE(GetKeyState(VK_LBUTTON) & 0x8000);
    POINT cursor;
    GetCursorPos(&cursor);
    b.ScreenToClient(&cursor);
    EXPECT_EQ(CPoint(cursor), CPoint(5, 6));
}

TEST_F(FocusTest, SecondPressIsADoubleClickOnlyWhereTheClassAsksForIt) {
    ui.DoubleClick(a.m_hWnd, CPoint(3, 4));
    EXPECT_THAT(Only(log, {"ldown", "lup", "ldbl"}),
                ElementsAre("a:ldown 3,4", "a:lup 3,4", "a:ldbl 3,4", "a:lup 3,4"));

    LoggingWnd plain(log, "plain");
    ASSERT_TRUE(plain.CreateEx(0, AfxRegisterWndClass(0), "plain", WS_CHILD | WS_VISIBLE,
                               CRect(0, 100, 50, 150), &frame, 9));
    log.clear();
    ui.DoubleClick(plain.m_hWnd, CPoint(1, 1));
    EXPECT_THAT(Only(log, {"ldown", "ldbl"}), ElementsAre("plain:ldown 1,1", "plain:ldown 1,1"));
}

TEST_F(FocusTest, AnUnansweredWheelClimbsToTheParent) {
    // A window of a plain class that handles nothing passes the wheel on.
    const HWND plain = CreateWindowEx(0, AfxRegisterWndClass(0), "", WS_CHILD | WS_VISIBLE, 0, 0,
                                      40, 40, a.m_hWnd, HMENU(4), nullptr, nullptr);
    ASSERT_NE(plain, nullptr);
    ui.Wheel(plain, CPoint(5, 5), -WHEEL_DELTA);
    EXPECT_THAT(Only(log, {"wheel"}), ElementsAre("a:wheel -120"));
}
} // namespace
