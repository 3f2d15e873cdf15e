#include "WindowTestSupport.h"

#include "platform/system/SystemMetrics.h"
#include "platform/testing/MenuResponder.h"
#include "platform/testing/NotificationRecorder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/Menu.h"
#include "platform/window/MenuResources.h"

#include <cstring>

namespace {

constexpr UINT kCut = 101;
constexpr UINT kCopy = 102;
constexpr UINT kPaste = 103;
constexpr UINT kNone = 201;
constexpr UINT kTop = 202;
constexpr UINT kBottom = 203;
constexpr UINT kPlotMenuResource = 300;
constexpr UINT kFrameMenuResource = 301;
constexpr UINT kOpen = 401;
constexpr UINT kSave = 402;
constexpr UINT kAbout = 403;

// Cut, Copy, a separator, a "&Legend" sub-menu (None, separator, Top, Bottom), Paste.
class EditMenu {
public:
    EditMenu() {
        menu.CreatePopupMenu();
        legend.CreatePopupMenu();
        legend.AppendMenu(MF_STRING, kNone, "NONE");
        legend.AppendMenu(MF_SEPARATOR);
        legend.AppendMenu(MF_STRING, kTop, "&Top");
        legend.AppendMenu(MF_STRING, kBottom, "&Bottom");
        menu.AppendMenu(MF_STRING, kCut, "Cu&t\tCtrl+X");
        menu.AppendMenu(MF_STRING, kCopy, "&Copy");
        menu.AppendMenu(MF_SEPARATOR);
        menu.AppendMenu(MF_POPUP, UINT_PTR(legend.Detach()), "&Legend");
        menu.AppendMenu(MF_STRING, kPaste, "&Paste");
    }
    CMenu menu;
    CMenu legend;
    HMENU Legend() const { return ::GetSubMenu(menu, kLegendPosition); }
    static constexpr UINT kLegendPosition = 3;
    static constexpr UINT kPastePosition = 4;
};

// A frame that hears the menu's messages.
class MenuOwner : public LoggingWnd {
public:
    using LoggingWnd::LoggingWnd;
    UINT greyOnInit = 0; // an item that WM_INITMENUPOPUP greys

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITMENUPOPUP) {
            Log("initmenupopup");
            if (greyOnInit)
                ::EnableMenuItem(HMENU(wParam), greyOnInit, MF_BYCOMMAND | MF_GRAYED);
        }
        if (message == WM_COMMAND)
            Log("command " + std::to_string(LOWORD(wParam)));
        return LoggingWnd::WindowProc(message, wParam, lParam);
    }
};

class MenuTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(owner.CreateTop(300, 200, WS_OVERLAPPEDWINDOW | WS_VISIBLE));
        driver.Pump();
    }
    UINT Track(HMENU menu, UINT flags = TPM_RETURNCMD) {
        return UINT(::TrackPopupMenu(menu, flags, kAt.x, kAt.y, 0, owner, nullptr));
    }
    // Clicks an item of the open menu the way the user would.
    void ClickItem(const ShownPopupMenu& shown, HMENU menu, UINT position) {
        driver.Click(shown.window, MenuResponder::ItemPoint(shown.window, menu, position));
    }
    static constexpr POINT kAt{60, 50};
    MenuOwner owner{log, "owner"};
    UiDriver driver;
};

TEST_F(MenuTest, ItemsAreNumberedByPositionAndFoundByCommandInSubMenus) {
    EditMenu m;
    EXPECT_EQ(m.menu.GetMenuItemCount(), 5u);
    EXPECT_EQ(m.menu.GetMenuItemID(1), kCopy);
    EXPECT_EQ(m.menu.GetMenuItemID(2), 0u) << "a separator";
    EXPECT_EQ(m.menu.GetMenuItemID(3), MENU_ITEM_NOT_FOUND) << "a sub-menu";
    EXPECT_EQ(m.menu.GetMenuItemID(9), MENU_ITEM_NOT_FOUND);

    CString text;
    m.menu.GetMenuString(kTop, text, MF_BYCOMMAND);
    EXPECT_STREQ(text, "&Top");
    char shortBuffer[4];
    EXPECT_EQ(m.menu.GetMenuString(0, shortBuffer, sizeof shortBuffer, MF_BYPOSITION), 3);
    EXPECT_STREQ(shortBuffer, "Cu&");

    // Insert before a command found in the sub-menu, and past the end by position.
    EXPECT_TRUE(m.menu.InsertMenu(kBottom, MF_BYCOMMAND | MF_STRING, 204, "Left"));
    EXPECT_EQ(::GetMenuItemID(m.Legend(), 3), 204u);
    EXPECT_TRUE(m.menu.InsertMenu(99, MF_BYPOSITION | MF_STRING, 104, "Delete"));
    EXPECT_EQ(m.menu.GetMenuItemID(5), 104u);
    EXPECT_FALSE(m.menu.InsertMenu(999, MF_BYCOMMAND | MF_STRING, 105, "Nowhere"));

    EXPECT_TRUE(m.menu.ModifyMenu(kCopy, MF_BYCOMMAND | MF_STRING, 106, "Copy &All"));
    EXPECT_EQ(m.menu.GetMenuItemID(1), 106u);
    EXPECT_EQ(m.menu.GetMenuState(kCopy, MF_BYCOMMAND), MENU_ITEM_NOT_FOUND);
}

TEST_F(MenuTest, RemovingKeepsTheSubMenuWhileDeletingDestroysIt) {
    EditMenu m;
    const HMENU legend = m.Legend();
    EXPECT_TRUE(m.menu.RemoveMenu(EditMenu::kLegendPosition, MF_BYPOSITION));
    EXPECT_TRUE(IsMenu(legend));
    EXPECT_EQ(m.menu.GetMenuItemID(EditMenu::kLegendPosition), kPaste);
    EXPECT_TRUE(m.menu.InsertMenu(0, MF_BYPOSITION | MF_POPUP, UINT_PTR(legend), "&Legend"));
    EXPECT_TRUE(m.menu.DeleteMenu(0, MF_BYPOSITION));
    EXPECT_FALSE(IsMenu(legend));
    EXPECT_FALSE(m.menu.DeleteMenu(kTop, MF_BYCOMMAND));

    const HMENU whole = m.menu.m_hMenu;
    EXPECT_TRUE(m.menu.DestroyMenu());
    EXPECT_FALSE(IsMenu(whole));
    EXPECT_EQ(GetMenuItemCount(whole), -1);
}

TEST_F(MenuTest, CheckAndGreyAnswerThePreviousStateAndShowInTheItemState) {
    EditMenu m;
    EXPECT_EQ(m.menu.CheckMenuItem(kTop, MF_BYCOMMAND | MF_CHECKED), MF_UNCHECKED);
    EXPECT_EQ(m.menu.CheckMenuItem(kTop, MF_BYCOMMAND | MF_CHECKED), MF_CHECKED);
    EXPECT_EQ(m.menu.EnableMenuItem(0, MF_BYPOSITION | MF_GRAYED), MF_ENABLED);
    EXPECT_EQ(m.menu.EnableMenuItem(kCut, MF_BYCOMMAND | MF_ENABLED), MF_GRAYED);
    EXPECT_EQ(m.menu.EnableMenuItem(kPaste, MF_BYCOMMAND | MF_DISABLED | MF_GRAYED), MF_ENABLED);
    EXPECT_EQ(m.menu.EnableMenuItem(999, MF_BYCOMMAND | MF_GRAYED), MENU_ITEM_NOT_FOUND);
    EXPECT_EQ(m.menu.CheckMenuItem(999, MF_BYCOMMAND | MF_CHECKED), MENU_ITEM_NOT_FOUND);

    EXPECT_EQ(m.menu.GetMenuState(kTop, MF_BYCOMMAND), MF_CHECKED);
    EXPECT_EQ(m.menu.GetMenuState(kPaste, MF_BYCOMMAND), MF_DISABLED | MF_GRAYED);
    EXPECT_EQ(m.menu.GetMenuState(2, MF_BYPOSITION), MF_SEPARATOR);
    // A sub-menu item tells its number of items in the high byte.
    EXPECT_EQ(m.menu.GetMenuState(EditMenu::kLegendPosition, MF_BYPOSITION), MF_POPUP | (4u << 8));
}

TEST_F(MenuTest, ResourceMenusAreBuiltAfreshFromTheirDescription) {
    RegisterMenuResource(kPlotMenuResource,
                         {{"Plot",
                           {{"&Frame Plot", kCut, MF_GRAYED},
                            {},
                            {"&Legend", {{"NONE", kNone, MF_CHECKED}, {"Top", kTop}}}}}});
    CMenu first, second;
    ASSERT_TRUE(first.LoadMenu(kPlotMenuResource));
    ASSERT_TRUE(second.LoadMenu(kPlotMenuResource));
    EXPECT_NE(first.m_hMenu, second.m_hMenu);
    CMenu* popup = first.GetSubMenu(0);
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->GetMenuItemCount(), 3u);
    EXPECT_EQ(popup->GetMenuState(0, MF_BYPOSITION), MF_GRAYED);
    EXPECT_EQ(popup->GetMenuState(1, MF_BYPOSITION), MF_SEPARATOR);
    EXPECT_EQ(popup->GetSubMenu(2)->GetMenuState(kNone, MF_BYCOMMAND), MF_CHECKED);

    popup->CheckMenuItem(kNone, MF_BYCOMMAND | MF_UNCHECKED);
    EXPECT_EQ(second.GetSubMenu(0)->GetMenuState(kNone, MF_BYCOMMAND), MF_CHECKED)
        << "each load is a menu of its own";
    CMenu missing;
    EXPECT_FALSE(missing.LoadMenu(kPlotMenuResource + 50));
}

TEST_F(MenuTest, WithNobodyAnsweringAPopupMenuClosesAtOnceWithNothingChosen) {
    EditMenu m;
    EXPECT_EQ(Track(m.menu), 0u);
    EXPECT_EQ(Track(m.menu, TPM_LEFTALIGN | TPM_RIGHTBUTTON), TRUE);
    driver.Pump();
    EXPECT_THAT(Only(log, {"command", "initmenupopup"}),
                ::testing::ElementsAre("owner:initmenupopup", "owner:initmenupopup"));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(MenuTest, TheResponderChoosesByCommandOrTitleAndSeesTheMenuAfterItsInitialisation) {
    EditMenu m;
    m.menu.CheckMenuItem(kTop, MF_BYCOMMAND | MF_CHECKED);
    owner.greyOnInit = kPaste;
    MenuResponder menus;
    menus.Choose(kCopy);
    menus.ChooseTitle("Bottom");
    menus.ChooseTitle("Paste"); // greyed by the owner: it cannot be chosen
    menus.Dismiss();
    EXPECT_EQ(Track(m.menu), kCopy);
    EXPECT_EQ(Track(m.menu), kBottom);
    EXPECT_EQ(Track(m.menu), 0u);
    EXPECT_EQ(Track(m.menu), 0u);

    ASSERT_EQ(menus.Count(), 4);
    const ShownPopupMenu& shown = menus.Last();
    EXPECT_EQ(shown.owner, owner.m_hWnd);
    EXPECT_EQ(shown.at.x, kAt.x);
    ASSERT_EQ(shown.items.size(), 5u);
    EXPECT_EQ(shown.items[0].text, "Cu&t\tCtrl+X");
    EXPECT_TRUE(shown.items[2].state & MF_SEPARATOR);
    EXPECT_TRUE(shown.items[4].state & MF_GRAYED);
    const ShownMenuItem* top = MenuResponder::FindItem(shown.items, "Top");
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(top->id, kTop);
    EXPECT_TRUE(top->state & MF_CHECKED);
    EXPECT_EQ(shown.items[3].subItems.size(), 4u);
}

TEST_F(MenuTest, WithoutReturnCommandTheChoiceReachesTheOwnerAsACommand) {
    EditMenu m;
    MenuResponder menus;
    menus.Choose(kPaste);
    EXPECT_TRUE(m.menu.TrackPopupMenu(TPM_LEFTALIGN, kAt.x, kAt.y, &owner));
    driver.Pump();
    EXPECT_THAT(Only(log, {"command"}), ::testing::ElementsAre("owner:command 103"));
}

TEST_F(MenuTest, ClicksOnThePopupWindowChooseAndSubMenusOpenOnHover) {
    EditMenu m;
    MenuResponder menus;
    menus.Interact([&](const ShownPopupMenu& shown) {
        ASSERT_TRUE(IsWindowVisible(shown.window));
        EXPECT_EQ(GetWindowLong(shown.window, GWL_STYLE) & WS_POPUP, LONG(WS_POPUP));
        ClickItem(shown, m.menu, 1);
    });
    EXPECT_EQ(Track(m.menu), kCopy);

    menus.Interact([&](const ShownPopupMenu& shown) {
        driver.MouseMove(shown.window,
                         MenuResponder::ItemPoint(shown.window, m.menu, EditMenu::kLegendPosition));
        // The sub-menu is open beside its item; clicking its separator keeps the menu open.
        ClickItem(shown, m.Legend(), 1);
        ClickItem(shown, m.Legend(), 2);
    });
    EXPECT_EQ(Track(m.menu), kTop);
}

TEST_F(MenuTest, AClickOutsideOrOnAGreyItemDoesNotChoose) {
    EditMenu m;
    m.menu.EnableMenuItem(kCut, MF_BYCOMMAND | MF_GRAYED);
    MenuResponder menus;
    bool stillOpenAfterGreyClick = false;
    menus.Interact([&](const ShownPopupMenu& shown) {
        ClickItem(shown, m.menu, 0);
        stillOpenAfterGreyClick = IsWindow(shown.window) != FALSE;
        driver.Click(owner, CPoint(250, 150));
    });
    EXPECT_EQ(Track(m.menu), 0u);
    EXPECT_TRUE(stillOpenAfterGreyClick);
    driver.Pump();
    EXPECT_THAT(Only(log, {"ldown"}), ::testing::IsEmpty()) << "the closing click is eaten";
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(MenuTest, TheKeyboardMovesWrapsEntersSubMenusAndUsesMnemonics) {
    EditMenu m;
    MenuResponder menus;
    // Up from nothing starts at the last item and skips the separator; Down wraps.
    menus.Interact([&](const ShownPopupMenu&) {
        driver.PressKey(VK_UP);
        driver.PressKey(VK_UP);
        driver.PressKey(VK_UP);
        driver.PressKey(VK_RETURN);
    });
    EXPECT_EQ(Track(m.menu), kCopy);
    menus.Interact([&](const ShownPopupMenu&) {
        driver.PressKey(VK_UP);
        driver.PressKey(VK_DOWN);
        driver.PressKey(VK_RETURN);
    });
    EXPECT_EQ(Track(m.menu), kCut);

    // Into the sub-menu with Right, out with Left, in again and down to Top.
    menus.Interact([&](const ShownPopupMenu&) {
        driver.Type("l");
        driver.PressKey(VK_LEFT);
        driver.PressKey(VK_RIGHT);
        driver.PressKey(VK_DOWN);
        driver.PressKey(VK_RETURN);
    });
    EXPECT_EQ(Track(m.menu), kTop);

    menus.Interact([&](const ShownPopupMenu&) { driver.Type("t"); });
    EXPECT_EQ(Track(m.menu), kCut);

    menus.Interact([&](const ShownPopupMenu&) {
        driver.Type("l");
        driver.PressKey(VK_ESCAPE); // closes the sub-menu only
        driver.PressKey(VK_DOWN);
        driver.PressKey(VK_RETURN);
    });
    EXPECT_EQ(Track(m.menu), kPaste);

    menus.Interact([&](const ShownPopupMenu&) { driver.PressKey(VK_ESCAPE); });
    EXPECT_EQ(Track(m.menu), 0u);
}

class MenuBarTest : public WindowTest {
protected:
    void SetUp() override {
        RegisterMenuResource(kFrameMenuResource,
                             {{"&File", {{"&Open", kOpen}, {}, {"&Save", kSave, MF_GRAYED}}},
                              {"&Help", {{"&About", kAbout}}}});
        ASSERT_TRUE(frame.CreateTop(400, 300, WS_OVERLAPPEDWINDOW | WS_VISIBLE));
        CRect before;
        frame.GetClientRect(&before);
        bar.LoadMenu(kFrameMenuResource);
        ASSERT_TRUE(SetMenu(frame, bar.Detach()));
        CRect after;
        frame.GetClientRect(&after);
        clientShrink = before.Height() - after.Height();
        driver.Pump();
        log.clear();
    }
    POINT BarItem(UINT position) {
        RECT r;
        GetMenuItemRect(frame, GetMenu(frame), position, &r);
        POINT p{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
        frame.ScreenToClient(&p);
        return p;
    }
    MenuOwner frame{log, "frame"};
    CMenu bar;
    int clientShrink = 0;
    UiDriver driver;
};

TEST_F(MenuBarTest, TheBarTakesItsLineFromTheClientAndAnswersItsHitTest) {
    EXPECT_EQ(clientShrink, GetSystemMetrics(SM_CYMENU));
    POINT p = BarItem(1);
    frame.ClientToScreen(&p);
    EXPECT_EQ(frame.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(p.x, p.y)), HTMENU);
}

TEST_F(MenuBarTest, AClickOnTheBarOpensItsPopupAndAChoiceGoesToTheFrame) {
    MenuResponder menus;
    menus.Interact([&](const ShownPopupMenu& shown) {
        EXPECT_TRUE(shown.menuBar);
        ASSERT_NE(shown.window, nullptr);
        const HMENU file = GetSubMenu(GetMenu(frame), 0);
        // The grey Save cannot be chosen; Open can.
        driver.Click(shown.window, MenuResponder::ItemPoint(shown.window, file, 2));
        driver.Click(shown.window, MenuResponder::ItemPoint(shown.window, file, 0));
    });
    driver.Click(frame, BarItem(0));
    EXPECT_THAT(Only(log, {"command"}), ::testing::ElementsAre("frame:command 401"));
    EXPECT_EQ(menus.Count(), 1);
}

TEST_F(MenuBarTest, F10AndTheArrowsOrAltAndAMnemonicOpenTheBarFromTheKeyboard) {
    MenuResponder menus;
    menus.Interact([&](const ShownPopupMenu& shown) {
        EXPECT_EQ(shown.window, nullptr) << "only the bar is selected";
        driver.PressKey(VK_RIGHT);
        driver.PressKey(VK_DOWN);
        driver.PressKey(VK_RETURN);
    });
    driver.PressKey(VK_F10);
    EXPECT_THAT(Only(log, {"command"}), ::testing::ElementsAre("frame:command 403"));

    log.clear();
    menus.Interact([&](const ShownPopupMenu& shown) {
        ASSERT_NE(shown.window, nullptr);
        driver.PressKey(VK_RIGHT); // from the File menu's pop-up to the Help menu's
        driver.PressKey(VK_LEFT);
        driver.Type("o");
    });
    driver.KeyDown(VK_MENU);
    driver.Type("f");
    driver.KeyUp(VK_MENU);
    EXPECT_THAT(Only(log, {"command"}), ::testing::ElementsAre("frame:command 401"));
}

} // namespace
