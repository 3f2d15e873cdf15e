#pragma once

// ERightMenu: the context menu of a plot as a list of items that know their title, their state
// for a plot and their action. A right click shows either the application's fixed menu
// resource (DoMenu) or a menu built from the items (CreateMenu, then
// PerformMenuActionFromItem with the command chosen). A menu owns its items, and a sub-menu item
// its sub-items; a copy of either shares them with its source, so it must not outlive it.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"
#include "support/StdStr.h"

#include <vector>

class CMenu;
class EPlot;

class ORVA_API ERightMenuItem {
public:
    ERightMenuItem() = default;
    ERightMenuItem(const ERightMenuItem&) = default;
    ERightMenuItem& operator=(const ERightMenuItem&) = default;
    // Virtual, so that deleting a derived item through the list is defined behaviour.
    virtual ~ERightMenuItem();

    virtual unsigned GetState(EPlot* plot); // menu flags: MF_CHECKED, MF_GRAYED
    virtual zvk::CStdStr<char> GetTitle();
    virtual void PerformAction(EPlot* plot);

    void IamSeparator() { m_isSeparator = 1; }
    unsigned char AmISeparator() const { return m_isSeparator; }
    // Makes this a sub-menu of `items`, which it owns from now on.
    void IamSubMenu(std::vector<ERightMenuItem*>& items);
    unsigned char AmISubmenu() const { return m_isSubmenu; }
    std::vector<ERightMenuItem*>* SubmenuItems() { return &m_subItems; }

private:
    unsigned char m_isSeparator = 0;
    unsigned char m_isSubmenu = 0;
    std::vector<ERightMenuItem*> m_subItems; // owned when m_isSubmenu is set
};

class ORVA_API ERightMenu {
public:
    // The resource of the fixed menu; setting one lets a right click show it.
    void SetMenuID(unsigned id) {
        m_menuId = id;
        m_allow = 1;
    }
    unsigned GetMenuID() const { return m_menuId; }
    unsigned char AllowRightMenu() const { return m_allow; }

    // -1 appends; a position inside the list inserts there; any other drops the item, which
    // stays the caller's.
    void AddMenuItem(ERightMenuItem* item, int position);
    int NumItems() const { return int(m_items.size()); }
    // The item at `position`, or the last one for a position at or past the end.
    ERightMenuItem* ItemAtPosition(int position);
    void ClearMenu();
    // Deletes the first item titled `title` in `list` (the menu's own when null) or in a
    // sub-menu of it; false when none is.
    bool RemoveMenuItemWTitle(const char* title, std::vector<ERightMenuItem*>* list = nullptr);

    // Builds a pop-up menu in `menu` from `list` (the menu's own when null, and then numbering
    // starts at 1), each item with its state for `plot`; sub-menus carry the numbering on.
    void CreateMenu(CMenu& menu, int& nextId, EPlot* plot,
                    std::vector<ERightMenuItem*>* list = nullptr);
    // Runs the item that CreateMenu numbered `chosen`: true if there was one.
    bool PerformMenuActionFromItem(int chosen, EPlot* plot, int& counter,
                                   std::vector<ERightMenuItem*>* list = nullptr);
    // Shows the first sub-menu of the fixed menu resource at `where`, a point of the plot's
    // chart, owned by the application's main window, which gets the command chosen.
    void DoMenu(EPlot* plot, POINT where);

private:
    unsigned m_menuId = 0;
    unsigned char m_allow = 0;
    std::vector<ERightMenuItem*> m_items; // owned
};
