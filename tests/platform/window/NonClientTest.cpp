#include "WindowTestSupport.h"

#include "platform/system/SystemMetrics.h"
#include "platform/testing/MenuResponder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/Input.h"
#include "platform/window/Menu.h"

namespace {

constexpr int kReservedBorder = 3;
constexpr POINT kMinimumTrack{260, 180};
constexpr int kFrameWidth = 400;
constexpr int kFrameHeight = 300;

// A window that keeps a border of its own around its client area, as the plot canvas does.
class BorderedWnd : public LoggingWnd {
public:
    using LoggingWnd::LoggingWnd;
    int reserve = kReservedBorder;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = LoggingWnd::WindowProc(message, wParam, lParam);
        if (message == WM_NCCALCSIZE)
            ::InflateRect(reinterpret_cast<RECT*>(lParam), -reserve, -reserve);
        return result;
    }
};

// A resizable frame that will not go below its minimum and logs the sizing requests.
class LimitedFrame : public LoggingWnd {
public:
    using LoggingWnd::LoggingWnd;

protected:
    void OnGetMinMaxInfo(MINMAXINFO* info) override {
        LoggingWnd::OnGetMinMaxInfo(info);
        info->ptMinTrackSize = kMinimumTrack;
    }
    void OnSizing(UINT side, LPRECT rect) override {
        Log("sizing " + std::to_string(side));
        LoggingWnd::OnSizing(side, rect);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_CLOSE)
            Log("close");
        return LoggingWnd::WindowProc(message, wParam, lParam);
    }
};

using NonClientTest = WindowTest;

TEST_F(NonClientTest, AWindowProcedureReservesPartOfItsClientThroughTheNonClientSize) {
    LoggingWnd parent(log, "parent");
    BorderedWnd canvas(log, "canvas");
    ASSERT_TRUE(parent.CreateTop(300, 200));
    ASSERT_TRUE(canvas.CreateChild(&parent, CRect(10, 10, 110, 60)));
    CRect client;
    canvas.GetClientRect(&client);
    EXPECT_EQ(client.Size(), CSize(100 - 2 * kReservedBorder, 50 - 2 * kReservedBorder));
    POINT origin{0, 0};
    canvas.ClientToScreen(&origin);
    parent.ScreenToClient(&origin);
    EXPECT_EQ(CPoint(origin), CPoint(10 + kReservedBorder, 10 + kReservedBorder));
    EXPECT_EQ(canvas.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(origin.x - 1, origin.y)), HTBORDER);

    // The reservation follows a resize, and a frame change asks again.
    canvas.MoveWindow(10, 10, 200, 100);
    canvas.GetClientRect(&client);
    EXPECT_EQ(client.Width(), 200 - 2 * kReservedBorder);
    canvas.reserve = 0;
    canvas.SetWindowPos(nullptr, 0, 0, 0, 0,
                        SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    canvas.GetClientRect(&client);
    EXPECT_EQ(client.Width(), 200);
    EXPECT_THAT(
        Only(log, {"canvas:size"}),
        ::testing::ElementsAre("canvas:size 94x44", "canvas:size 194x94", "canvas:size 200x100"));
}

TEST_F(NonClientTest, TheDefaultClientLeavesOutFrameCaptionMenuBarEdgeAndScrollBars) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop(kFrameWidth, kFrameHeight,
                                WS_OVERLAPPEDWINDOW | WS_VSCROLL | WS_VISIBLE, WS_EX_CLIENTEDGE));
    CMenu bar;
    bar.CreateMenu();
    bar.AppendMenu(MF_STRING, 1, "&File");
    ASSERT_TRUE(SetMenu(frame, bar.Detach()));
    CRect client;
    frame.GetClientRect(&client);
    const int frameSide = GetSystemMetrics(SM_CXFRAME) + GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(client.Width(), kFrameWidth - 2 * frameSide - GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_EQ(client.Height(), kFrameHeight - 2 * frameSide - GetSystemMetrics(SM_CYCAPTION) -
                                   GetSystemMetrics(SM_CYMENU));
}

class ResizeTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(frame.CreateTop(kFrameWidth, kFrameHeight, WS_OVERLAPPEDWINDOW | WS_VISIBLE));
        ASSERT_TRUE(screen.CreateTop(1, 1, WS_POPUP));
        driver.Pump();
    }
    CRect Rect() {
        CRect r;
        frame.GetWindowRect(&r);
        return r;
    }
    // The screen point of a point of the frame's window as it lies now. The drags go by a
    // hidden window at the screen's origin, so that their points stay put while the frame moves.
    POINT AtWindowPoint(int x, int y) { return POINT{Rect().left + x, Rect().top + y}; }
    LimitedFrame frame{log, "frame"};
    LoggingWnd screen{log, "screen"};
    UiDriver driver;
};

TEST_F(ResizeTest, DraggingABorderOrCornerResizesButNeverBelowTheMinimum) {
    const int border = GetSystemMetrics(SM_CXFRAME);
    const CRect before = Rect();
    // The right border, 50 pixels out.
    driver.Drag(screen, AtWindowPoint(kFrameWidth - 1, kFrameHeight / 2),
                AtWindowPoint(kFrameWidth + 49, kFrameHeight / 2));
    EXPECT_EQ(Rect().Width(), kFrameWidth + 50);
    EXPECT_EQ(Rect().TopLeft(), before.TopLeft());

    // The top-left corner dragged far in stops at the minimum, the bottom-right staying put.
    const CRect wide = Rect();
    driver.Drag(screen, AtWindowPoint(border / 2, border / 2), AtWindowPoint(380, 280), 0, 8);
    EXPECT_EQ(Rect().Size(), CSize(kMinimumTrack.x, kMinimumTrack.y));
    EXPECT_EQ(Rect().BottomRight(), wide.BottomRight());
    EXPECT_THAT(Only(log, {"sizing"}), ::testing::Contains("frame:sizing 2"));
    EXPECT_THAT(Only(log, {"sizing"}), ::testing::Contains("frame:sizing 4"));
    EXPECT_EQ(GetCapture(), nullptr);

    // The caption moves the window without sizing it.
    const CRect small = Rect();
    driver.Drag(screen, AtWindowPoint(60, border + 5), AtWindowPoint(90, border + 25));
    EXPECT_EQ(Rect(), small + CPoint(30, 20));
}

TEST_F(ResizeTest, EachKindOfHostEventReachesTheWindowLayerThroughInput) {
    // Resized by the display: below the minimum it is held at the minimum.
    InjectWindowResized(frame, SIZE{500, 100});
    EXPECT_EQ(Rect().Size(), CSize(500, kMinimumTrack.y));
    InjectWindowMoved(frame, POINT{70, 80});
    EXPECT_EQ(Rect().TopLeft(), CPoint(70, 80));

    LoggingWnd other(log, "other");
    ASSERT_TRUE(other.CreateTop(100, 100, WS_OVERLAPPEDWINDOW | WS_VISIBLE));
    EXPECT_EQ(GetActiveWindow(), other.m_hWnd);
    InjectActivation(frame, true);
    EXPECT_EQ(GetActiveWindow(), frame.m_hWnd);

    // The application losing the focus closes an open menu.
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 1, "&One");
    MenuResponder menus;
    bool openWhenFocusWent = false;
    menus.Interact([&](const ShownPopupMenu& shown) {
        openWhenFocusWent = IsWindowVisible(shown.window) != FALSE;
        InjectActivation(nullptr, false);
        driver.Pump();
    });
    EXPECT_EQ(::TrackPopupMenu(menu, TPM_RETURNCMD, 10, 10, 0, frame, nullptr), 0);
    EXPECT_TRUE(openWhenFocusWent);

    InjectCloseRequest(frame);
    EXPECT_THAT(Only(log, {"close"}), ::testing::IsEmpty()) << "it waits in the queue";
    driver.Pump();
    EXPECT_THAT(Only(log, {"close"}), ::testing::ElementsAre("frame:close"));
    EXPECT_FALSE(frame.IsWindow());
}

TEST_F(ResizeTest, TextFromTheDisplayDoesNotRepeatTheCharacterOfTheKeyJustPressed) {
    frame.SetFocus();
    InjectKey('A', true);
    InjectText("a");
    InjectText("b");
    InjectKey('A', false);
    driver.Pump();
    EXPECT_THAT(Only(log, {"char"}), ::testing::ElementsAre("frame:char a", "frame:char b"));
}

} // namespace
