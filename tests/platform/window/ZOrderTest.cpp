// The stacking and activation of top-level windows: an owned window stays above its owner,
// whichever way the owner comes to the top, the mouse goes to the window on top, and the
// captions show which window is active.

#include "WindowTestSupport.h"

#include "platform/system/SysColors.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/WindowDC.h"

#include <algorithm>

using ::testing::ElementsAre;

namespace {

class ZOrderTest : public WindowTest {
protected:
    void SetUp() override {
        constexpr DWORD kCaptioned = WS_OVERLAPPED | WS_CAPTION | WS_VISIBLE;
        ASSERT_TRUE(
            main.CreateEx(0, nullptr, "main", kCaptioned, 0, 0, 400, 300, nullptr, nullptr));
        // A plot window owned by the main window, over its middle, and a pop-up of the plot's.
        ASSERT_TRUE(plot.CreateEx(0, nullptr, "plot", kCaptioned, 150, 100, 200, 150, main.m_hWnd,
                                  nullptr));
        ASSERT_TRUE(tip.CreateEx(0, nullptr, "tip", WS_POPUP | WS_VISIBLE, 300, 200, 40, 30,
                                 plot.m_hWnd, nullptr));
        // A window of nobody's at the main window's top-left corner.
        ASSERT_TRUE(
            other.CreateEx(0, nullptr, "other", kCaptioned, 0, 0, 120, 100, nullptr, nullptr));
        ui.Pump();
    }

    // The four windows from the top down, as the window layer stacks them.
    std::vector<std::string> Stacking() {
        std::vector<std::string> order;
        for (HWND top = ::GetTopWindow(nullptr); top; top = ::GetWindow(top, GW_HWNDNEXT))
            for (LoggingWnd* w : {&main, &plot, &tip, &other})
                if (w->m_hWnd == top)
                    order.push_back(w == &main   ? "main"
                                    : w == &plot ? "plot"
                                    : w == &tip  ? "tip"
                                                 : "other");
        return order;
    }

    // A point of the screen that both the main window and the plot cover.
    POINT UnderPlotInMain() {
        POINT p{200, 150};
        main.ScreenToClient(&p);
        return p;
    }

    LoggingWnd main{log, "main"}, plot{log, "plot"}, tip{log, "tip"}, other{log, "other"};
    UiDriver ui;
};

TEST_F(ZOrderTest, AClickOnTheOwnerBringsItUpUnderTheWindowsItOwns) {
    ASSERT_THAT(Stacking(), ElementsAre("other", "tip", "plot", "main"));
    // The main window's bottom-left corner, which nothing covers.
    POINT bare{10, 280};
    main.ScreenToClient(&bare);
    ui.Click(main.m_hWnd, bare);
    EXPECT_EQ(::GetActiveWindow(), main.m_hWnd);
    EXPECT_THAT(Stacking(), ElementsAre("tip", "plot", "main", "other"));

    // Where the plot lies over the main window, the click is the plot's.
    log.clear();
    ui.Click(main.m_hWnd, UnderPlotInMain());
    EXPECT_THAT(Only(log, {"ldown"}), ElementsAre(::testing::StartsWith("plot:ldown")));
    EXPECT_EQ(::GetActiveWindow(), plot.m_hWnd);
    EXPECT_THAT(Stacking(), ElementsAre("tip", "plot", "main", "other"));
}

TEST_F(ZOrderTest, TheOwnerActivatedOrRaisedByProgramStaysUnderWhatItOwns) {
    // As when a dialog of the main window's closes and gives the activation back.
    ::SetActiveWindow(other.m_hWnd);
    ::SetActiveWindow(main.m_hWnd);
    EXPECT_THAT(Stacking(), ElementsAre("tip", "plot", "main", "other"));

    ::SetActiveWindow(other.m_hWnd);
    ::SetWindowPos(main.m_hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_THAT(Stacking(), ElementsAre("tip", "plot", "main", "other"));
    EXPECT_EQ(::GetActiveWindow(), other.m_hWnd);

    // An owned window comes up alone above its owner, with what it owns in turn.
    ::SetWindowPos(other.m_hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ::SetActiveWindow(plot.m_hWnd);
    EXPECT_THAT(Stacking(), ElementsAre("tip", "plot", "other", "main"));
}

TEST_F(ZOrderTest, CaptionsShowTheActiveWindowAsTheActivationMoves) {
    // A point of the caption bar: at its right end, just above the client area.
    const auto captionColour = [&](CWnd& window) {
        ui.Pump();
        CRect outer;
        window.GetWindowRect(&outer);
        CPoint client(0, 0);
        window.ClientToScreen(&client);
        CWindowDC dc(&window);
        return dc.GetPixel(outer.Width() - 10, client.y - outer.top - 4);
    };
    ::SetActiveWindow(plot.m_hWnd);
    EXPECT_EQ(captionColour(plot), GetSysColor(COLOR_ACTIVECAPTION));
    EXPECT_EQ(captionColour(main), GetSysColor(COLOR_INACTIVECAPTION));
    ::SetActiveWindow(main.m_hWnd);
    EXPECT_EQ(captionColour(plot), GetSysColor(COLOR_INACTIVECAPTION));
    EXPECT_EQ(captionColour(main), GetSysColor(COLOR_ACTIVECAPTION));
}

} // namespace
