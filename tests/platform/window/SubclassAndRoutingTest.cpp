#include "WindowTestSupport.h"

#include "platform/host/HeadlessHost.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/KeyboardLayout.h"
#include "platform/window/MessageBox.h"
#include "platform/window/MessageBoxAnswerer.h"

using ::testing::ElementsAre;

namespace {
using RoutingTest = WindowTest;

// A window procedure of a plain class that counts what reaches it and answers WM_USER.
int plainCalls;
LRESULT PlainProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_USER) {
        ++plainCalls;
        return 77;
    }
    return DefWindowProc(hwnd, message, wParam, lParam);
}

const char* PlainClass() {
    static const char* name = [] {
        WNDCLASS wc{};
        wc.style = CS_DBLCLKS;
        wc.lpfnWndProc = PlainProc;
        wc.hCursor = LoadCursor(nullptr, IDC_IBEAM);
        wc.lpszClassName = "RoutingTestPlain";
        RegisterClass(&wc);
        return "RoutingTestPlain";
    }();
    return name;
}

class Subclasser : public CWnd {
public:
    int seen = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_USER) {
            ++seen;
            return Default() + 1; // the window's own procedure still answers
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST_F(RoutingTest, SubclassingPutsTheObjectInFrontOfTheWindowsOwnProcedure) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop());
    const HWND plain = CreateWindowEx(0, PlainClass(), "", WS_CHILD | WS_VISIBLE, 0, 0, 20, 20,
                                      frame.m_hWnd, HMENU(5), nullptr, nullptr);
    plainCalls = 0;
    Subclasser sub;
    ASSERT_TRUE(sub.SubclassDlgItem(5, &frame));
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), &sub);
    EXPECT_FALSE(Subclasser().SubclassWindow(plain)); // one object for each window
    EXPECT_EQ(SendMessage(plain, WM_USER), 78);
    EXPECT_EQ(sub.seen, 1);
    EXPECT_EQ(plainCalls, 1);
    EXPECT_EQ(sub.UnsubclassWindow(), plain);
    EXPECT_EQ(SendMessage(plain, WM_USER), 77);
    EXPECT_EQ(sub.seen, 1);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_TRUE(IsWindow(plain)); // letting go does not destroy
}

TEST_F(RoutingTest, CreatingAnObjectOnARegisteredClassKeepsTheClassBehaviour) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop());
    plainCalls = 0;
    Subclasser sub;
    ASSERT_TRUE(sub.Create(PlainClass(), "", WS_VISIBLE, CRect(0, 0, 10, 10), &frame, 6));
    EXPECT_TRUE(sub.GetStyle() & WS_CHILD);
    EXPECT_EQ(sub.SendMessage(WM_USER), 78);
    EXPECT_EQ(plainCalls, 1);
}

// A child that claims its own notifications before its parent hears them.
class ClaimingChild : public LoggingWnd {
public:
    using LoggingWnd::LoggingWnd;
    BOOL OnChildNotify(UINT message, WPARAM, LPARAM lParam, LRESULT* result) override {
        if (message != WM_NOTIFY || reinterpret_cast<NMHDR*>(lParam)->code != 1)
            return FALSE;
        *result = 5;
        return TRUE;
    }
};

class NotifiedFrame : public LoggingWnd {
public:
    using LoggingWnd::LoggingWnd;
    int heard = 0;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        if (CWnd::OnNotify(wParam, lParam, result))
            return TRUE;
        ++heard;
        *result = 9;
        return TRUE;
    }
};

TEST_F(RoutingTest, AChildMayClaimItsNotificationBeforeTheParent) {
    NotifiedFrame frame(log, "frame");
    ClaimingChild child(log, "child");
    ASSERT_TRUE(frame.CreateTop());
    ASSERT_TRUE(child.CreateChild(&frame, CRect(0, 0, 5, 5), 3));
    NMHDR claimed{child.m_hWnd, 3, 1}, passed{child.m_hWnd, 3, 2};
    EXPECT_EQ(frame.SendMessage(WM_NOTIFY, 3, LPARAM(&claimed)), 5);
    EXPECT_EQ(frame.SendMessage(WM_NOTIFY, 3, LPARAM(&passed)), 9);
    EXPECT_EQ(frame.heard, 1);
}

class KeyFilter : public LoggingWnd {
public:
    using LoggingWnd::LoggingWnd;
    BOOL PreTranslateMessage(MSG* msg) override {
        return msg->message == WM_KEYDOWN && msg->wParam == VK_ESCAPE;
    }
};

TEST_F(RoutingTest, AncestorsSeeQueuedMessagesFirstAndMayKeepThem) {
    KeyFilter frame(log, "frame");
    LoggingWnd child(log, "child");
    ASSERT_TRUE(frame.CreateTop());
    ASSERT_TRUE(child.CreateChild(&frame, CRect(0, 0, 50, 50)));
    child.SetFocus();
    PumpMessages();
    log.clear();
    UiDriver ui;
    ui.PressKey(VK_ESCAPE);
    ui.PressKey(VK_RETURN);
    EXPECT_THAT(
        log, ElementsAre("child:keyup 27", "child:keydown 13", "child:char \r", "child:keyup 13"));
}

TEST_F(RoutingTest, DisabledWindowsGetNoMouseAndHearOfTheirState) {
    LoggingWnd frame(log, "frame"), child(log, "child");
    ASSERT_TRUE(frame.CreateTop());
    ASSERT_TRUE(child.CreateChild(&frame, CRect(0, 0, 50, 50)));
    EXPECT_FALSE(child.EnableWindow(FALSE)); // it was enabled
    EXPECT_FALSE(child.IsWindowEnabled());
    UiDriver ui;
    ui.Click(child.m_hWnd, CPoint(5, 5));
    EXPECT_TRUE(Only(log, {"ldown"}).empty());
    EXPECT_TRUE(child.EnableWindow(TRUE));
    ui.Click(child.m_hWnd, CPoint(5, 5));
    EXPECT_THAT(Only(log, {"ldown"}), ElementsAre("child:ldown 5,5"));
}

TEST_F(RoutingTest, TheClassCursorIsSetOverTheClientArea) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop());
    const HWND plain = CreateWindowEx(0, PlainClass(), "", WS_CHILD | WS_VISIBLE, 10, 10, 20, 20,
                                      frame.m_hWnd, HMENU(5), nullptr, nullptr);
    UiDriver ui;
    ui.MouseMove(frame.m_hWnd, CPoint(50, 50));
    EXPECT_EQ(GetCursor(), LoadCursor(nullptr, IDC_ARROW));
    ui.MouseMove(plain, CPoint(2, 2));
    EXPECT_EQ(GetCursor(), LoadCursor(nullptr, IDC_IBEAM));
    const DWORD pos = GetMessagePos();
    POINT screen{2, 2};
    ClientToScreen(plain, &screen);
    EXPECT_EQ(short(LOWORD(pos)), screen.x);
    EXPECT_EQ(short(HIWORD(pos)), screen.y);
}

TEST_F(RoutingTest, AnUnansweredRightClickAsksTheParentForAContextMenu) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop());
    frame.SetWindowText("frame");
    const HWND plain = CreateWindowEx(0, PlainClass(), "plain", WS_CHILD | WS_VISIBLE, 10, 10, 20,
                                      20, frame.m_hWnd, HMENU(5), nullptr, nullptr);
    UiDriver ui;
    ui.RightClick(plain, CPoint(3, 4));
    EXPECT_THAT(Only(log, {"context"}), ElementsAre("frame:context from plain at 13,14"));
}

TEST_F(RoutingTest, HiddenWindowsAreNotHitAndRestackingChangesTheOrder) {
    LoggingWnd frame(log, "frame"), a(log, "a"), b(log, "b");
    ASSERT_TRUE(frame.CreateTop());
    ASSERT_TRUE(a.CreateChild(&frame, CRect(0, 0, 50, 50), 1));
    ASSERT_TRUE(b.CreateChild(&frame, CRect(0, 0, 50, 50), 2));
    CPoint p(10, 10);
    frame.ClientToScreen(&p);
    EXPECT_EQ(WindowFromPoint(p), a.m_hWnd); // the first created is on top
    b.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(frame.GetWindow(GW_CHILD), &b);
    EXPECT_EQ(WindowFromPoint(p), b.m_hWnd);
    b.ShowWindow(SW_HIDE);
    EXPECT_EQ(WindowFromPoint(p), a.m_hWnd);
    a.ShowWindow(SW_HIDE);
    EXPECT_EQ(WindowFromPoint(p), frame.m_hWnd);
}

TEST_F(RoutingTest, MovingWithoutResizingSendsNoSize) {
    LoggingWnd frame(log, "frame"), child(log, "child");
    ASSERT_TRUE(frame.CreateTop());
    ASSERT_TRUE(child.CreateChild(&frame, CRect(0, 0, 50, 50)));
    log.clear();
    child.MoveWindow(10, 10, 50, 50);
    EXPECT_TRUE(Only(log, {"size"}).empty());
    child.SetWindowPos(nullptr, 0, 0, 60, 40, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_THAT(Only(log, {"size"}), ElementsAre("child:size 60x40"));
    CRect rect;
    child.GetWindowRect(&rect);
    frame.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(10, 10, 70, 50));
    child.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED);
    EXPECT_EQ(log.back(), "child:size 58x38");
}

TEST_F(RoutingTest, WithoutAnAnswererTheDefaultButtonIsTakenAndLogged) {
    ClearMessageBoxLog();
    EXPECT_EQ(MessageBox(nullptr, "Overwrite?", "Save", MB_YESNOCANCEL | MB_DEFBUTTON2), IDNO);
    EXPECT_EQ(AfxMessageBox("Done"), IDOK);
    ASSERT_EQ(MessageBoxLog().size(), 2u);
    EXPECT_EQ(MessageBoxLog()[0].caption, "Save");
    EXPECT_EQ(MessageBoxLog()[0].answer, IDNO);
    EXPECT_EQ(DefaultMessageBoxButton(MB_ABORTRETRYIGNORE | MB_DEFBUTTON2), IDRETRY);
    EXPECT_EQ(DefaultMessageBoxButton(MB_RETRYCANCEL), IDRETRY);
}

TEST(KeyboardLayoutTest, EveryPrintableCharacterIsTypedByTheKeyThatMakesIt) {
    for (char ch = ' '; ch < 127; ++ch) {
        const auto stroke = KeyFromChar(ch);
        ASSERT_TRUE(stroke) << ch;
        EXPECT_EQ(CharFromKey(stroke->virtualKey, stroke->shift, false), ch);
    }
    EXPECT_EQ(CharFromKey('A', false, true), char(1));
    EXPECT_FALSE(CharFromKey(VK_LEFT, false, false));
    EXPECT_FALSE(KeyFromChar(char(0xE9)));
}
} // namespace
