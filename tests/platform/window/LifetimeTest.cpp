#include "WindowTestSupport.h"

#include "platform/testing/UiDriver.h"

using ::testing::ElementsAre;

namespace {
using LifetimeTest = WindowTest;

TEST_F(LifetimeTest, CreationSendsCreateThenSize) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop(200, 150, WS_OVERLAPPED | WS_BORDER));
    EXPECT_THAT(Only(log, {"create", "size"}), ElementsAre("frame:create", "frame:size 198x148"));
    EXPECT_EQ(CWnd::FromHandlePermanent(frame.m_hWnd), &frame);
}

TEST_F(LifetimeTest, CreateAnsweringMinusOneFailsAndEndsTheWindow) {
    LoggingWnd frame(log, "frame");
    frame.createAnswer = -1;
    EXPECT_FALSE(frame.CreateTop());
    EXPECT_EQ(frame.m_hWnd, nullptr);
    EXPECT_THAT(Only(log, {"destroy"}),
                ElementsAre("frame:destroy", "frame:ncdestroy", "frame:postncdestroy"));
}

TEST_F(LifetimeTest, ChildrenAreDestroyedAfterParentAndFinishedBeforeIt) {
    LoggingWnd frame(log, "frame"), a(log, "a"), b(log, "b"), grandchild(log, "g");
    ASSERT_TRUE(frame.CreateTop());
    ASSERT_TRUE(a.CreateChild(&frame, CRect(0, 0, 50, 50), 1));
    ASSERT_TRUE(b.CreateChild(&frame, CRect(60, 0, 110, 50), 2));
    ASSERT_TRUE(grandchild.CreateChild(&a, CRect(0, 0, 10, 10), 3));
    log.clear();
    frame.DestroyWindow();
    EXPECT_THAT(Only(log, {"destroy"}),
                ElementsAre("frame:destroy", "a:destroy", "g:destroy", "b:destroy", "g:ncdestroy",
                            "g:postncdestroy", "a:ncdestroy", "a:postncdestroy", "b:ncdestroy",
                            "b:postncdestroy", "frame:ncdestroy", "frame:postncdestroy"));
    EXPECT_EQ(a.m_hWnd, nullptr);
    EXPECT_EQ(frame.m_hWnd, nullptr);
}

TEST_F(LifetimeTest, SelfOwningWindowDeletesItselfAndObjectDeathDestroysWindow) {
    bool deleted = false;
    auto* owned = new LoggingWnd(log, "owned");
    owned->deleteOnNcDestroy = true;
    owned->deleted = &deleted;
    ASSERT_TRUE(owned->CreateTop());
    const HWND hwnd = owned->m_hWnd;
    SendMessage(hwnd, WM_CLOSE);
    EXPECT_TRUE(deleted);
    EXPECT_FALSE(IsWindow(hwnd));

    HWND child;
    {
        LoggingWnd frame(log, "frame");
        ASSERT_TRUE(frame.CreateTop());
        LoggingWnd inner(log, "inner");
        ASSERT_TRUE(inner.CreateChild(&frame, CRect(0, 0, 5, 5)));
        child = inner.m_hWnd;
        EXPECT_EQ(frame.GetDlgItem(1), &inner);
    }
    EXPECT_FALSE(IsWindow(child));
}

TEST_F(LifetimeTest, TreeQueriesFollowCreationOrderAndIds) {
    LoggingWnd frame(log, "frame"), a(log, "a"), b(log, "b");
    ASSERT_TRUE(frame.CreateTop());
    ASSERT_TRUE(a.CreateChild(&frame, CRect(0, 0, 10, 10), 7));
    ASSERT_TRUE(b.CreateChild(&frame, CRect(0, 0, 10, 10), 9));
    EXPECT_EQ(frame.GetWindow(GW_CHILD), &a);
    EXPECT_EQ(a.GetWindow(GW_HWNDNEXT), &b);
    EXPECT_EQ(b.GetWindow(GW_HWNDNEXT), nullptr);
    EXPECT_EQ(b.GetParent(), &frame);
    EXPECT_EQ(b.GetDlgCtrlID(), 9);
    b.SetDlgCtrlID(11);
    EXPECT_EQ(frame.GetDlgItem(11), &b);
    EXPECT_EQ(frame.GetDlgItem(9), nullptr);
    EXPECT_TRUE(frame.IsChild(&b));
    EXPECT_FALSE(a.IsChild(&b));
    EXPECT_EQ(b.GetTopLevelParent(), &frame);

    // A window no object made is wrapped on demand, but is not permanent.
    const HWND plain = CreateWindowEx(0, AfxRegisterWndClass(0), "plain", WS_CHILD, 0, 0, 5, 5,
                                      frame.m_hWnd, HMENU(3), nullptr, nullptr);
    ASSERT_NE(plain, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    CWnd* wrapper = CWnd::FromHandle(plain);
    ASSERT_NE(wrapper, nullptr);
    EXPECT_EQ(wrapper->m_hWnd, plain);
    EXPECT_EQ(CWnd::FromHandle(plain), wrapper);
}

TEST_F(LifetimeTest, ClassRegistrationRefusesDuplicatesAndUnknownClassesFail) {
    WNDCLASS wc{};
    wc.style = CS_DBLCLKS;
    wc.lpfnWndProc = DefWindowProc;
    wc.hCursor = LoadCursor(nullptr, IDC_SIZEWE);
    wc.lpszClassName = "LifetimeTestClass";
    EXPECT_TRUE(RegisterClass(&wc));
    EXPECT_FALSE(RegisterClass(&wc));
    EXPECT_TRUE(AfxRegisterClass(&wc));
    WNDCLASS found{};
    ASSERT_TRUE(GetClassInfo(nullptr, "lifetimetestclass", &found));
    EXPECT_EQ(found.style, UINT(CS_DBLCLKS));
    EXPECT_EQ(found.hCursor, LoadCursor(nullptr, IDC_SIZEWE));
    EXPECT_EQ(
        CreateWindowEx(0, "NoSuchClass", "", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr),
        nullptr);
    EXPECT_TRUE(UnregisterClass("LifetimeTestClass", nullptr));
}

TEST_F(LifetimeTest, TextStylesPropertiesAndGeometry) {
    LoggingWnd frame(log, "frame");
    ASSERT_TRUE(frame.CreateTop(300, 200, WS_OVERLAPPED | WS_VISIBLE));
    LoggingWnd child(log, "child");
    ASSERT_TRUE(child.CreateChild(&frame, CRect(10, 20, 110, 70), 5, WS_CHILD | WS_VISIBLE,
                                  WS_EX_CLIENTEDGE));
    CRect client;
    child.GetClientRect(&client);
    EXPECT_EQ(client, CRect(0, 0, 96, 46));
    CRect window;
    child.GetWindowRect(&window);
    frame.ScreenToClient(&window);
    EXPECT_EQ(window, CRect(10, 20, 110, 70));
    CPoint p(0, 0);
    child.ClientToScreen(&p);
    frame.ScreenToClient(&p);
    EXPECT_EQ(p, CPoint(12, 22));

    child.SetWindowText("hello");
    CString text;
    child.GetWindowText(text);
    EXPECT_STREQ(text, "hello");
    char small[3];
    EXPECT_EQ(child.GetWindowText(small, sizeof small), 2);
    EXPECT_STREQ(small, "he");

    EXPECT_TRUE(child.ModifyStyle(0, WS_TABSTOP));
    EXPECT_FALSE(child.ModifyStyle(0, WS_TABSTOP));
    EXPECT_TRUE(child.GetStyle() & WS_TABSTOP);
    int payload = 0;
    EXPECT_TRUE(child.SetProp("canvasplot", &payload));
    EXPECT_EQ(GetPropA(child.m_hWnd, "canvasplot"), &payload);
    EXPECT_EQ(RemovePropA(child.m_hWnd, "canvasplot"), &payload);
    EXPECT_EQ(child.GetProp("canvasplot"), nullptr);

    child.MoveWindow(0, 0, 50, 40);
    EXPECT_EQ(log.back(), "child:size 46x36");
    EXPECT_EQ(ChildWindowFromPoint(frame.m_hWnd, POINT{5, 5}), child.m_hWnd);
    EXPECT_EQ(ChildWindowFromPoint(frame.m_hWnd, POINT{80, 80}), frame.m_hWnd);
}
} // namespace
