#pragma once

// The window layer's own record of a menu and the table that maps menu handles to records.
// Internal to the platform library: code above it holds HMENU handles and CMenu objects.

#include "platform/window/Menu.h"

#include <memory>
#include <string>
#include <vector>

namespace wm {

struct MenuItem {
    UINT flags = 0; // MF_ state and kind bits, without MF_BYPOSITION
    UINT id = 0;    // the command id; 0 for separators and sub-menus
    HMENU subMenu = nullptr;
    std::string text;

    bool IsSeparator() const { return (flags & MF_SEPARATOR) != 0; }
    bool IsPopup() const { return subMenu != nullptr; }
    bool IsEnabled() const { return !(flags & (MF_GRAYED | MF_DISABLED)); }
};

struct MenuRecord {
    HMENU handle = nullptr;
    bool popup = false; // made by CreatePopupMenu rather than CreateMenu
    std::vector<MenuItem> items;
    std::unique_ptr<CMenu> wrapper; // handed out by CMenu::FromHandle
};

MenuRecord* FindMenu(HMENU menu);

// Where an item is: its menu and its index there.
struct MenuItemRef {
    MenuRecord* menu = nullptr;
    size_t index = 0;
    MenuItem* operator->() const { return &menu->items[index]; }
    explicit operator bool() const { return menu != nullptr; }
};
// The item named by position or, with MF_BYCOMMAND, by id in the menu or its sub-menus.
MenuItemRef FindMenuItem(HMENU menu, UINT item, UINT flags);

// True when an item of another menu holds this one as its sub-menu, and so owns it.
bool IsSubMenuOfAnother(HMENU menu);

// The mnemonic of an item's text: the character after a single '&', lower case, or 0.
char MenuMnemonic(const std::string& text);
// The text without its '&' markers and without the accelerator after a tab.
std::string MenuPlainText(const std::string& text);

} // namespace wm
