#include "WindowTestSupport.h"

#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"
#include "platform/testing/MenuResponder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/MdiFrame.h"
#include "platform/window/WindowIcons.h"

#include <cstring>

namespace {

// The style of a plot's document window, and the same without WS_MAXIMIZE.
constexpr DWORD kPlotWindowStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN |
                                   WS_MAXIMIZE | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME |
                                   WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
static_assert(kPlotWindowStyle == 0x57CF0000);
constexpr DWORD kDocumentStyle = kPlotWindowStyle & ~WS_MAXIMIZE;

// A document window that logs its activation and its sizes; it deletes itself when it goes.
class DocumentWnd : public CMDIChildWnd {
public:
    DocumentWnd(EventLog& log, std::string name) : m_log(log), m_name(std::move(name)) {}
    ~DocumentWnd() override { m_log.push_back(m_name + ":deleted"); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_MDIACTIVATE)
            m_log.push_back(m_name + (HWND(lParam) == m_hWnd ? ":activated" : ":deactivated"));
        if (message == WM_SIZE && wParam == SIZE_MAXIMIZED)
            m_log.push_back(m_name + ":maximized");
        return CMDIChildWnd::WindowProc(message, wParam, lParam);
    }

private:
    EventLog& m_log;
    std::string m_name;
};

class MdiTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(frame.Create(nullptr, "Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                 CRect(0, 0, 640, 480)));
        AfxSetMainWnd(&frame);
        driver.Pump();
    }
    void TearDown() override {
        AfxSetMainWnd(nullptr);
        frame.DestroyWindow();
        WindowTest::TearDown();
    }
    DocumentWnd* Open(const char* title, DWORD style = kDocumentStyle) {
        auto* doc = new DocumentWnd(log, title);
        if (!doc->Create(nullptr, title, style)) {
            delete doc;
            return nullptr;
        }
        driver.Pump();
        return doc;
    }
    CRect RectInClient(CWnd* wnd) {
        CRect r;
        wnd->GetWindowRect(&r);
        ::ScreenToClient(frame.m_hWndMDIClient, reinterpret_cast<POINT*>(&r.left));
        ::ScreenToClient(frame.m_hWndMDIClient, reinterpret_cast<POINT*>(&r.right));
        return r;
    }
    // A point of a document window's caption between its title and its buttons, in the MDI
    // client.
    POINT CaptionPoint(CWnd* wnd) {
        const CRect r = RectInClient(wnd);
        return POINT{r.right - kCaptionPointFromRight,
                     r.top + GetSystemMetrics(SM_CYFRAME) + GetSystemMetrics(SM_CYCAPTION) / 2};
    }
    static constexpr int kCaptionPointFromRight = 80;
    CMDIFrameWnd frame;
    UiDriver driver;
};

TEST_F(MdiTest, DocumentWindowsOpenCascadedInTheClientThatFillsTheFrame) {
    char className[32];
    GetClassName(frame.m_hWndMDIClient, className, sizeof className);
    EXPECT_STREQ(className, "MDIClient");
    CRect frameClient, mdiClient;
    frame.GetClientRect(&frameClient);
    GetClientRect(frame.m_hWndMDIClient, &mdiClient);
    const int edge = 2 * GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(mdiClient.Width(), frameClient.Width() - edge);

    DocumentWnd* first = Open("First");
    DocumentWnd* second = Open("Second");
    ASSERT_TRUE(first && second);
    EXPECT_EQ(first->GetParent()->m_hWnd, frame.m_hWndMDIClient);
    EXPECT_EQ(first->GetStyle() & kDocumentStyle, kDocumentStyle);
    const CPoint step = RectInClient(second).TopLeft() - RectInClient(first).TopLeft();
    EXPECT_GT(step.x, 0);
    EXPECT_EQ(step.x, step.y);
    EXPECT_EQ(RectInClient(first).Size(), RectInClient(second).Size());

    BOOL maximized = TRUE;
    EXPECT_EQ(frame.MDIGetActive(&maximized), second);
    EXPECT_FALSE(maximized);
    EXPECT_EQ(frame.GetActiveFrame(), second);
    EXPECT_EQ(CWnd::GetFocus(), second);

    // Resizing the frame resizes the client with it.
    frame.SetWindowPos(nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
    frame.GetClientRect(&frameClient);
    GetClientRect(frame.m_hWndMDIClient, &mdiClient);
    EXPECT_EQ(mdiClient.Height(), frameClient.Height() - edge);
}

TEST_F(MdiTest, AClickActivatesADocumentAndTheCaptionsShowWhichIsActive) {
    DocumentWnd* first = Open("First");
    DocumentWnd* second = Open("Second");
    ASSERT_TRUE(first && second);
    // The first window's caption shows above the second.
    const POINT firstCaption = CaptionPoint(first);
    const POINT secondCaption = CaptionPoint(second);
    EXPECT_EQ(driver.Pixel(frame.m_hWndMDIClient, firstCaption),
              GetSysColor(COLOR_INACTIVECAPTION));
    EXPECT_EQ(driver.Pixel(frame.m_hWndMDIClient, secondCaption), GetSysColor(COLOR_ACTIVECAPTION));

    log.clear();
    driver.Click(frame.m_hWndMDIClient, firstCaption);
    EXPECT_EQ(frame.MDIGetActive(), first);
    EXPECT_THAT(log, ::testing::ElementsAre("Second:deactivated", "First:activated"));
    EXPECT_EQ(driver.Pixel(frame.m_hWndMDIClient, firstCaption), GetSysColor(COLOR_ACTIVECAPTION));
    EXPECT_EQ(driver.Pixel(frame.m_hWndMDIClient, CaptionPoint(second)),
              GetSysColor(COLOR_INACTIVECAPTION));

    frame.MDINext();
    EXPECT_EQ(frame.MDIGetActive(), second);
    frame.MDINext();
    EXPECT_EQ(frame.MDIGetActive(), first);
}

TEST_F(MdiTest, AMaximisedDocumentFillsTheClientUntilRestored) {
    DocumentWnd* first = Open("First");
    DocumentWnd* second = Open("Second");
    ASSERT_TRUE(first && second);
    const CRect before = RectInClient(second);
    log.clear();
    frame.MDIMaximize(second);
    EXPECT_THAT(Only(log, {"maximized"}), ::testing::ElementsAre("Second:maximized"));
    CRect mdiClient, docClient;
    GetClientRect(frame.m_hWndMDIClient, &mdiClient);
    second->GetClientRect(&docClient);
    EXPECT_EQ(docClient.Size(), mdiClient.Size());
    POINT origin{0, 0};
    second->ClientToScreen(&origin);
    ::ScreenToClient(frame.m_hWndMDIClient, &origin);
    EXPECT_EQ(CPoint(origin), CPoint(0, 0));

    // Another document activated takes the maximised place; a new one opens maximised too.
    BOOL maximized = FALSE;
    frame.MDIActivate(first);
    EXPECT_EQ(frame.MDIGetActive(&maximized), first);
    EXPECT_TRUE(maximized);
    EXPECT_EQ(RectInClient(second), before);
    EXPECT_TRUE(first->GetStyle() & WS_MAXIMIZE);
    DocumentWnd* third = Open("Third");
    ASSERT_NE(third, nullptr);
    EXPECT_TRUE(third->GetStyle() & WS_MAXIMIZE);
    EXPECT_FALSE(second->GetStyle() & WS_MAXIMIZE);

    // The message that a new plot window sends to open restored.
    ::SendMessage(frame.m_hWndMDIClient, WM_MDIRESTORE, WPARAM(third->m_hWnd), 0);
    EXPECT_EQ(frame.MDIGetActive(&maximized), third);
    EXPECT_FALSE(maximized);
    EXPECT_FALSE(third->GetStyle() & WS_MAXIMIZE);
}

TEST_F(MdiTest, APlotWindowsStyleOpensItMaximisedAtItsCascadePlace) {
    DocumentWnd* first = Open("First");
    DocumentWnd* plot = Open("Plot", kPlotWindowStyle);
    ASSERT_TRUE(first && plot);
    BOOL maximized = FALSE;
    EXPECT_EQ(frame.MDIGetActive(&maximized), plot);
    EXPECT_TRUE(maximized);
    frame.MDIRestore(plot);
    const CPoint step = RectInClient(plot).TopLeft() - RectInClient(first).TopLeft();
    EXPECT_GT(step.x, 0);
    EXPECT_EQ(RectInClient(plot).Size(), RectInClient(first).Size());
}

TEST_F(MdiTest, ADocumentShowsTheIconItWasGivenInItsCaption) {
    constexpr UINT kPlotIcon = 128;
    constexpr int kIconSize = 16;
    constexpr std::uint32_t kOpaqueRed = 0xFFFF0000;
    ASSERT_TRUE(RegisterIconResource(
        kPlotIcon, kIconSize, std::vector<std::uint32_t>(kIconSize * kIconSize, kOpaqueRed)));
    EXPECT_FALSE(RegisterIconResource(kPlotIcon + 1, kIconSize, {kOpaqueRed}));
    EXPECT_EQ(LoadIcon(nullptr, MAKEINTRESOURCE(kPlotIcon + 1)), nullptr);
    const HICON icon = LoadIcon(nullptr, MAKEINTRESOURCE(kPlotIcon));
    ASSERT_NE(icon, nullptr);

    DocumentWnd* doc = Open("Plot");
    ASSERT_NE(doc, nullptr);
    EXPECT_EQ(doc->SendMessage(WM_SETICON, ICON_BIG, LPARAM(icon)), 0);
    EXPECT_EQ(doc->SendMessage(WM_SETICON, ICON_SMALL, LPARAM(icon)), 0);
    EXPECT_EQ(HICON(doc->SendMessage(WM_GETICON, ICON_BIG)), icon);
    EXPECT_EQ(HICON(doc->SendMessage(WM_SETICON, ICON_SMALL, 0)), icon) << "the previous one";
    doc->SendMessage(WM_SETICON, ICON_SMALL, LPARAM(icon));
    const CRect r = RectInClient(doc);
    const POINT inIcon{r.left + GetSystemMetrics(SM_CXFRAME) + kIconSize / 2,
                       r.top + GetSystemMetrics(SM_CYFRAME) + GetSystemMetrics(SM_CYCAPTION) / 2};
    EXPECT_EQ(driver.Pixel(frame.m_hWndMDIClient, inIcon), RGB(255, 0, 0));
}

TEST_F(MdiTest, CtrlF6WalksTheDocumentsAndCtrlF4ClosesTheActiveOne) {
    DocumentWnd* first = Open("First");
    DocumentWnd* second = Open("Second");
    DocumentWnd* third = Open("Third");
    ASSERT_TRUE(first && second && third);
    ASSERT_EQ(GetFocus(), third->m_hWnd);
    driver.PressKey(VK_F6, MK_CONTROL);
    EXPECT_EQ(frame.MDIGetActive(), second);
    driver.PressKey(VK_F6, MK_CONTROL | MK_SHIFT);
    EXPECT_EQ(frame.MDIGetActive(), third);
    driver.PressKey(VK_F6); // without Ctrl, the document's own key
    EXPECT_EQ(frame.MDIGetActive(), third);
    log.clear();
    driver.PressKey(VK_F4, MK_CONTROL);
    EXPECT_THAT(Only(log, {"deleted"}), ::testing::ElementsAre("Third:deleted"));
    EXPECT_NE(frame.MDIGetActive(), nullptr);
}

TEST_F(MdiTest, ClosingADocumentActivatesTheNextAndDeletesItsObject) {
    DocumentWnd* first = Open("First");
    DocumentWnd* second = Open("Second");
    DocumentWnd* third = Open("Third");
    ASSERT_TRUE(first && second && third);
    frame.MDIActivate(first);
    frame.MDIMaximize(first);
    log.clear();
    first->SendMessage(WM_CLOSE);
    EXPECT_THAT(Only(log, {"deleted"}), ::testing::ElementsAre("First:deleted"));
    BOOL maximized = FALSE;
    EXPECT_EQ(frame.MDIGetActive(&maximized), third) << "the next in the z-order";
    EXPECT_TRUE(maximized) << "the maximised state carries over";
    frame.MDIRestore(third);

    // The close button on the caption closes too.
    RECT r;
    third->GetWindowRect(&r);
    POINT close{r.right - GetSystemMetrics(SM_CXFRAME) - 6,
                r.top + GetSystemMetrics(SM_CYFRAME) + GetSystemMetrics(SM_CYCAPTION) / 2};
    ::ScreenToClient(frame.m_hWndMDIClient, &close);
    driver.Click(frame.m_hWndMDIClient, close);
    EXPECT_EQ(frame.MDIGetActive(), second);
    second->SendMessage(WM_CLOSE);
    EXPECT_EQ(frame.MDIGetActive(&maximized), nullptr);
    EXPECT_FALSE(maximized);
    EXPECT_THAT(Only(log, {"deleted"}),
                ::testing::ElementsAre("First:deleted", "Third:deleted", "Second:deleted"));
}

// A frame with a menu bar, where a maximised document puts its controls.
class MdiMenuBarTest : public MdiTest {
protected:
    static constexpr UINT kOpen = 501;
    void SetUp() override {
        MdiTest::SetUp();
        CMenu bar, file;
        ASSERT_TRUE(bar.CreateMenu() && file.CreatePopupMenu());
        file.AppendMenu(MF_STRING, kOpen, "&Open");
        bar.AppendMenu(MF_POPUP, UINT_PTR(file.Detach()), "&File");
        bar.AppendMenu(MF_STRING, kOpen + 1, "&Window");
        ASSERT_TRUE(frame.SetMenu(&bar));
        bar.Detach();
        driver.Pump();
    }
    CRect FirstBarItem() {
        RECT r;
        GetMenuItemRect(frame.m_hWnd, ::GetMenu(frame.m_hWnd), 0, &r);
        return CRect(r);
    }
    std::string FrameTitle() {
        CString title;
        frame.GetWindowText(title);
        return title.GetString();
    }
    // The centres of the bar's buttons, counted from its right end (0: close, 1: restore,
    // 2: minimise), in the frame's client coordinates: the bar lies just above the client.
    POINT BarButton(int fromRight) {
        CRect client;
        frame.GetClientRect(&client);
        const int height = GetSystemMetrics(SM_CYMENU) - 4;
        const int width = height + 2;
        const int centre = client.right - 2 - width / 2 - fromRight * width - (fromRight ? 2 : 0);
        return POINT{centre, -GetSystemMetrics(SM_CYMENU) / 2};
    }
    POINT BarIcon() {
        return POINT{2 + GetSystemMetrics(SM_CXSMICON) / 2, -GetSystemMetrics(SM_CYMENU) / 2};
    }
};

TEST_F(MdiMenuBarTest, AMaximisedDocumentShowsItsControlsOnTheBarAndItsNameInTheCaption) {
    DocumentWnd* first = Open("Inlet");
    DocumentWnd* second = Open("Outlet");
    ASSERT_TRUE(first && second);
    const CRect itemBefore = FirstBarItem();
    const CRect placeBefore = RectInClient(second);
    frame.MDIMaximize(second);
    EXPECT_EQ(FrameTitle(), "Frame - [Outlet]");
    EXPECT_GE(FirstBarItem().left, itemBefore.left + GetSystemMetrics(SM_CXSMICON))
        << "the items make room for the document's icon";

    // The bar still opens its menus by mouse.
    MenuResponder menus;
    menus.Dismiss();
    CPoint file = FirstBarItem().CenterPoint();
    frame.ScreenToClient(&file);
    driver.Click(frame.m_hWnd, file);
    EXPECT_EQ(menus.Count(), 1);

    // The titles follow their windows while the document stays maximised.
    second->SetWindowText("Outlet apron");
    frame.SetWindowText("Culvert");
    EXPECT_EQ(FrameTitle(), "Culvert - [Outlet apron]");
    frame.MDIActivate(first);
    EXPECT_EQ(FrameTitle(), "Culvert - [Inlet]");
    frame.MDIActivate(second);

    driver.Click(frame.m_hWnd, BarButton(1)); // restore
    BOOL maximized = TRUE;
    EXPECT_EQ(frame.MDIGetActive(&maximized), second);
    EXPECT_FALSE(maximized);
    EXPECT_EQ(RectInClient(second), placeBefore);
    EXPECT_EQ(FrameTitle(), "Culvert");
    EXPECT_EQ(FirstBarItem(), itemBefore);
    driver.Click(frame.m_hWnd, BarButton(1)); // no controls now: nothing there to press
    EXPECT_FALSE(second->GetStyle() & WS_MAXIMIZE);
}

TEST_F(MdiMenuBarTest, MinimisedDocumentsLineUpAlongTheBottomAndComeBackFromTheirButtons) {
    DocumentWnd* first = Open("Inlet");
    DocumentWnd* second = Open("Outlet");
    ASSERT_TRUE(first && second);
    const CRect secondPlace = RectInClient(second);
    frame.MDIMaximize(second);
    driver.Click(frame.m_hWnd, BarButton(2)); // minimise
    EXPECT_TRUE(second->GetStyle() & WS_MINIMIZE);
    EXPECT_FALSE(second->GetStyle() & WS_MAXIMIZE);
    BOOL maximized = TRUE;
    EXPECT_EQ(frame.MDIGetActive(&maximized), first) << "the next document takes over";
    EXPECT_FALSE(maximized);
    EXPECT_EQ(FrameTitle(), "Frame");
    CRect client;
    ::GetClientRect(frame.m_hWndMDIClient, &client);
    const CRect icon = RectInClient(second);
    EXPECT_EQ(icon.left, 0);
    EXPECT_EQ(icon.bottom, client.bottom);
    EXPECT_LT(icon.Height(), 2 * GetSystemMetrics(SM_CYCAPTION));

    // A second one stands beside it; cascading leaves both where they are.
    const CRect firstPlace = RectInClient(first);
    first->SendMessage(WM_SYSCOMMAND, SC_MINIMIZE);
    EXPECT_EQ(RectInClient(first).TopLeft(), CPoint(icon.right, icon.top));
    frame.MDICascade();
    EXPECT_EQ(RectInClient(second), icon);

    // The first button of a minimised document's caption restores it, active, and the other
    // icon closes up.
    CRect outer;
    second->GetWindowRect(&outer);
    CPoint restore(-1, -1);
    for (int x = outer.left; x < outer.right && restore.x < 0; ++x)
        if (second->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(x, outer.CenterPoint().y)) ==
            HTMINBUTTON)
            restore = CPoint(x + 2, outer.CenterPoint().y);
    ASSERT_GE(restore.x, 0);
    ::ScreenToClient(frame.m_hWndMDIClient, &restore);
    driver.Click(frame.m_hWndMDIClient, restore);
    EXPECT_FALSE(second->GetStyle() & WS_MINIMIZE);
    EXPECT_EQ(RectInClient(second), secondPlace);
    EXPECT_EQ(frame.MDIGetActive(), second);
    EXPECT_EQ(RectInClient(first).TopLeft(), icon.TopLeft());
    frame.MDIRestore(first);
    EXPECT_EQ(RectInClient(first), firstPlace);
}

TEST_F(MdiMenuBarTest, TheCloseButtonClosesTheMaximisedDocumentAndTheNextTakesItsPlace) {
    DocumentWnd* first = Open("Inlet");
    DocumentWnd* second = Open("Outlet");
    ASSERT_TRUE(first && second);
    frame.MDIMaximize(second);
    log.clear();
    driver.Click(frame.m_hWnd, BarButton(0));
    EXPECT_THAT(Only(log, {"deleted"}), ::testing::ElementsAre("Outlet:deleted"));
    BOOL maximized = FALSE;
    EXPECT_EQ(frame.MDIGetActive(&maximized), first);
    EXPECT_TRUE(maximized);
    EXPECT_EQ(FrameTitle(), "Frame - [Inlet]");

    driver.Click(frame.m_hWnd, BarButton(0));
    EXPECT_EQ(frame.MDIGetActive(), nullptr);
    EXPECT_EQ(FrameTitle(), "Frame");
}

TEST_F(MdiMenuBarTest, TheDocumentsIconOpensItsSystemMenu) {
    DocumentWnd* doc = Open("Inlet");
    ASSERT_NE(doc, nullptr);
    frame.MDIMaximize(doc);
    MenuResponder menus;
    menus.Dismiss();
    menus.Choose(SC_RESTORE);
    driver.Click(frame.m_hWnd, BarIcon());
    EXPECT_TRUE(doc->GetStyle() & WS_MAXIMIZE) << "dismissed";
    driver.Click(frame.m_hWnd, BarIcon());
    EXPECT_FALSE(doc->GetStyle() & WS_MAXIMIZE);
    ASSERT_EQ(menus.Count(), 2);
    EXPECT_NE(MenuResponder::FindItem(menus.Last().items, "Close"), nullptr);
}

} // namespace
