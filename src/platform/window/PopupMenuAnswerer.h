#pragma once

// Who answers pop-up menus when nobody sits at the screen. The UI driver's menu responder
// installs an answerer, so that tests and the headless gallery read each menu as it opens and
// choose from it, or play the user on its window.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

// An item as the menu showed it, after the owner's WM_INITMENUPOPUP.
struct ShownMenuItem {
    std::string text; // as given, with its '&' markers
    UINT id = 0;      // 0 for separators and sub-menus
    UINT state = 0;   // MF_CHECKED, MF_GRAYED, MF_DISABLED, MF_SEPARATOR, MF_POPUP
    std::vector<ShownMenuItem> subItems;
};

// A menu that opened: a pop-up menu tracked by TrackPopupMenu, or a frame's menu bar entered
// by the mouse or the keyboard (then `items` are the bar's).
struct ShownPopupMenu {
    HWND owner = nullptr;  // the window that receives the menu's messages
    HWND window = nullptr; // the pop-up's window, null while only the bar is selected
    HMENU menu = nullptr;
    POINT at{};     // screen point where it opened
    UINT flags = 0; // TPM_ flags
    bool menuBar = false;
    std::vector<ShownMenuItem> items;
};

// The command to choose (0 dismisses the menu), or nothing to leave the menu open for input,
// which the answerer may already have given through the UI driver on `window`. A command that
// no enabled item carries dismisses the menu, as the user could not have chosen it.
using PopupMenuAnswerer = std::function<std::optional<UINT>(const ShownPopupMenu& menu)>;

// Installs an answerer (an empty one leaves menus to the user); answers the previous one.
ORVA_API PopupMenuAnswerer SetPopupMenuAnswerer(PopupMenuAnswerer answerer);
