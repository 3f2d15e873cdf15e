#include "WindowTestSupport.h"

#include "platform/host/Host.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/Input.h"

using ::testing::ElementsAre;

namespace {
using MessageQueueTest = WindowTest;

TEST_F(MessageQueueTest, SentRunsAtOncePostedWaitsInOrderAndPaintComesLast) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop());
    PumpMessages();
    log.clear();
    frame.PostMessage(WM_USER + 1);
    frame.Invalidate();
    frame.PostMessage(WM_USER + 2);
    frame.SendMessage(WM_USER + 3);
    EXPECT_THAT(log, ElementsAre("frame:user 3"));
    PumpMessages();
    EXPECT_THAT(log, ElementsAre("frame:user 3", "frame:user 1", "frame:user 2", "frame:paint"));
}

TEST_F(MessageQueueTest, PeekLeavesOrTakesAndPostToDeadWindowFails) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop(100, 100, WS_OVERLAPPED));
    PumpMessages();
    frame.PostMessage(WM_USER + 5, 7, 8);
    MSG msg;
    ASSERT_TRUE(PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE));
    EXPECT_EQ(msg.message, WM_USER + 5);
    ASSERT_TRUE(PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 7u);
    EXPECT_EQ(msg.lParam, 8);
    EXPECT_FALSE(PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE));

    const HWND hwnd = frame.m_hWnd;
    frame.PostMessage(WM_USER + 6);
    frame.DestroyWindow();
    EXPECT_FALSE(PostMessage(hwnd, WM_USER, 0, 0));
    EXPECT_FALSE(PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)); // the window's messages went too
}

TEST_F(MessageQueueTest, QuitEndsTheLoopAndAHeadlessLoopWithNothingToWaitForEnds) {
    PostQuitMessage(3);
    MSG msg;
    EXPECT_FALSE(GetMessage(&msg, nullptr, 0, 0));
    EXPECT_EQ(msg.message, WM_QUIT);
    EXPECT_EQ(msg.wParam, 3u);
    EXPECT_FALSE(GetMessage(&msg, nullptr, 0, 0)); // would otherwise wait for ever
}

class TimerTest : public WindowTest {
protected:
    void SetUp() override { start = GetHost().Now(); }
    std::string At(const char* name, UINT_PTR id, DWORD offset) const {
        return std::string(name) + ":timer " + std::to_string(id) + " at " +
               std::to_string(start + offset);
    }
    DWORD start = 0;
    UiDriver ui;
};

TEST_F(TimerTest, TimersFireWhenDueInTimeOrder) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop());
    frame.SetTimer(1, 100);
    frame.SetTimer(2, 250);
    ui.Advance(99);
    EXPECT_TRUE(Only(log, {"timer"}).empty());
    ui.Advance(451);
    EXPECT_THAT(Only(log, {"timer"}),
                ElementsAre(At("frame", 1, 100), At("frame", 1, 200), At("frame", 2, 250),
                            At("frame", 1, 300), At("frame", 1, 400), At("frame", 1, 500),
                            At("frame", 2, 500)));
}

TEST_F(TimerTest, ALateLoopGetsOneMessageForEachTimerAndKillTimerStopsIt) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop());
    frame.SetTimer(4, 100);
    GetHost().AdvanceClock(1000); // the loop did not run for ten periods
    PumpMessages();
    EXPECT_THAT(Only(log, {"timer"}), ElementsAre(At("frame", 4, 1000)));
    log.clear();
    ui.Advance(100);
    EXPECT_EQ(Only(log, {"timer"}).size(), 1u);
    EXPECT_TRUE(frame.KillTimer(4));
    EXPECT_FALSE(frame.KillTimer(4));
    ui.Advance(1000);
    EXPECT_EQ(Only(log, {"timer"}).size(), 1u);
}

TEST_F(TimerTest, ResettingATimerRestartsItsPeriodAndCallbacksReplaceMessages) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop());
    frame.SetTimer(1, 100);
    ui.Advance(60);
    frame.SetTimer(1, 100);
    ui.Advance(60);
    EXPECT_TRUE(Only(log, {"timer"}).empty());
    ui.Advance(40);
    EXPECT_THAT(Only(log, {"timer"}), ElementsAre(At("frame", 1, 160)));

    static int calls;
    calls = 0;
    const UINT_PTR id = SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR, DWORD) { ++calls; });
    ASSERT_NE(id, 0u);
    ui.Advance(120);
    EXPECT_EQ(calls, 2);
    KillTimer(nullptr, id);
    ui.Advance(200);
    EXPECT_EQ(calls, 2);
    frame.KillTimer(1);
}

TEST_F(TimerTest, DestroyingAWindowKillsItsTimers) {
    auto frame = std::make_unique<LoggingWnd>(log, "frame");
    ASSERT_TRUE(frame->CreateTop());
    frame->SetTimer(1, 10);
    frame.reset();
    EXPECT_FALSE(NextTimerDueTime().has_value());
}
} // namespace
