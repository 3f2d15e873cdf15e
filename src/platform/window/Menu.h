#pragma once

// Menus: the handle-level calls with the framework's names, flags and answers, and CMenu, the
// object that wraps a menu handle. A menu is a list of items (strings, separators and pop-up
// sub-menus) kept by the window layer; TrackPopupMenu shows one as a pop-up window and runs a
// modal loop until the user chooses or dismisses it. A frame shows its menu bar through
// SetMenu.

#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/String.h"
#include "platform/base/WinTypes.h"

// Item flags (AppendMenu, InsertMenu, ModifyMenu, GetMenuState).
constexpr UINT MF_INSERT = 0x0000;
constexpr UINT MF_CHANGE = 0x0080;
constexpr UINT MF_APPEND = 0x0100;
constexpr UINT MF_DELETE = 0x0200;
constexpr UINT MF_REMOVE = 0x1000;
constexpr UINT MF_BYCOMMAND = 0x0000;
constexpr UINT MF_BYPOSITION = 0x0400;
constexpr UINT MF_SEPARATOR = 0x0800;
constexpr UINT MF_ENABLED = 0x0000;
constexpr UINT MF_GRAYED = 0x0001;
constexpr UINT MF_DISABLED = 0x0002;
constexpr UINT MF_UNCHECKED = 0x0000;
constexpr UINT MF_CHECKED = 0x0008;
constexpr UINT MF_STRING = 0x0000;
constexpr UINT MF_POPUP = 0x0010;
constexpr UINT MF_MENUBARBREAK = 0x0020;
constexpr UINT MF_MENUBREAK = 0x0040;
constexpr UINT MF_UNHILITE = 0x0000;
constexpr UINT MF_HILITE = 0x0080;
constexpr UINT MF_DEFAULT = 0x1000;
constexpr UINT MF_RIGHTJUSTIFY = 0x4000;

// TrackPopupMenu flags.
constexpr UINT TPM_LEFTBUTTON = 0x0000;
constexpr UINT TPM_RIGHTBUTTON = 0x0002;
constexpr UINT TPM_LEFTALIGN = 0x0000;
constexpr UINT TPM_CENTERALIGN = 0x0004;
constexpr UINT TPM_RIGHTALIGN = 0x0008;
constexpr UINT TPM_TOPALIGN = 0x0000;
constexpr UINT TPM_VCENTERALIGN = 0x0010;
constexpr UINT TPM_BOTTOMALIGN = 0x0020;
constexpr UINT TPM_HORIZONTAL = 0x0000;
constexpr UINT TPM_VERTICAL = 0x0040;
constexpr UINT TPM_NONOTIFY = 0x0080;
constexpr UINT TPM_RETURNCMD = 0x0100;
constexpr UINT TPM_RECURSE = 0x0001;

// The answer of the state calls for an item that does not exist.
constexpr UINT MENU_ITEM_NOT_FOUND = 0xFFFFFFFF;

// Menus.
ORVA_API HMENU CreateMenu();
ORVA_API HMENU CreatePopupMenu();
// Destroys the menu and its sub-menus.
ORVA_API BOOL DestroyMenu(HMENU menu);
ORVA_API BOOL IsMenu(HMENU menu);

// Items. `idOrSubMenu` is the command id, or the sub-menu's handle with MF_POPUP; the menu
// then owns the sub-menu. MF_BYCOMMAND finds an item by its id in the menu or its sub-menus.
ORVA_API BOOL AppendMenu(HMENU menu, UINT flags, UINT_PTR idOrSubMenu, LPCSTR text);
ORVA_API BOOL InsertMenu(HMENU menu, UINT position, UINT flags, UINT_PTR idOrSubMenu, LPCSTR text);
ORVA_API BOOL ModifyMenu(HMENU menu, UINT position, UINT flags, UINT_PTR idOrSubMenu, LPCSTR text);
// Takes an item out; its sub-menu, if any, is left alive for the caller.
ORVA_API BOOL RemoveMenu(HMENU menu, UINT position, UINT flags);
// Takes an item out and destroys its sub-menu.
ORVA_API BOOL DeleteMenu(HMENU menu, UINT position, UINT flags);

// State. Each answers the item's previous state, or MENU_ITEM_NOT_FOUND.
ORVA_API UINT EnableMenuItem(HMENU menu, UINT item, UINT enable);
ORVA_API DWORD CheckMenuItem(HMENU menu, UINT item, UINT check);
// The item's flags; for a sub-menu item, its number of items in the high byte.
ORVA_API UINT GetMenuState(HMENU menu, UINT item, UINT flags);
ORVA_API int GetMenuItemCount(HMENU menu);
// The command id at a position: -1 (as UINT) for a sub-menu item or a bad position.
ORVA_API UINT GetMenuItemID(HMENU menu, int position);
// Copies the item's text (at most maxCount - 1 characters); answers the length copied, or the
// whole length when `buffer` is null.
ORVA_API int GetMenuString(HMENU menu, UINT item, LPSTR buffer, int maxCount, UINT flags);
ORVA_API HMENU GetSubMenu(HMENU menu, int position);

// Shows a pop-up menu at a screen point and tracks it until it closes. With TPM_RETURNCMD the
// answer is the command chosen (0 for none); otherwise the choice is posted to `owner` as
// WM_COMMAND and the answer says whether the menu could be shown.
ORVA_API BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int reserved, HWND owner,
                             const RECT* ignored);
// Where an item of a menu on screen lies, in screen coordinates: an item of a pop-up menu being
// tracked (the window is then ignored), or of the menu bar of `window`.
ORVA_API BOOL GetMenuItemRect(HWND window, HMENU menu, UINT position, RECT* rect);
// The framework's end of menu tracking: closes the pop-up menu being tracked, if any.
ORVA_API BOOL EndMenu();

// A frame's menu bar.
ORVA_API BOOL SetMenu(HWND window, HMENU menu);
ORVA_API HMENU GetMenu(HWND window);
ORVA_API BOOL DrawMenuBar(HWND window);

// Menus built by the application in code, loaded by resource id (see MenuResources.h).
ORVA_API HMENU LoadMenu(HINSTANCE instance, LPCSTR name);

class CWnd;

class ORVA_API CMenu : public CObject {
    DECLARE_DYNAMIC(CMenu)
public:
    CMenu() = default;
    ~CMenu() override; // destroys the menu it holds, unless detached
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;

    HMENU m_hMenu = nullptr;
    HMENU GetSafeHmenu() const { return m_hMenu; }
    operator HMENU() const { return m_hMenu; }

    // A CMenu wrapping the handle, kept by the window layer until the menu is destroyed.
    static CMenu* FromHandle(HMENU menu);
    BOOL Attach(HMENU menu);
    HMENU Detach();

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    BOOL LoadMenu(UINT resourceId);
    BOOL LoadMenu(LPCSTR resourceName);
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT flags, UINT_PTR idOrSubMenu = 0, LPCSTR text = nullptr);
    BOOL InsertMenu(UINT position, UINT flags, UINT_PTR idOrSubMenu = 0, LPCSTR text = nullptr);
    BOOL ModifyMenu(UINT position, UINT flags, UINT_PTR idOrSubMenu = 0, LPCSTR text = nullptr);
    BOOL RemoveMenu(UINT position, UINT flags);
    BOOL DeleteMenu(UINT position, UINT flags);

    UINT EnableMenuItem(UINT item, UINT enable);
    UINT CheckMenuItem(UINT item, UINT check);
    UINT GetMenuState(UINT item, UINT flags) const;
    UINT GetMenuItemCount() const;
    UINT GetMenuItemID(int position) const;
    int GetMenuString(UINT item, LPSTR buffer, int maxCount, UINT flags) const;
    int GetMenuString(UINT item, CString& text, UINT flags) const;
    CMenu* GetSubMenu(int position) const;

    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT ignored = nullptr);
};
