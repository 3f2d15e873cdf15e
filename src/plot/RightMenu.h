#pragma once

// ERightMenu: the context menu of a plot as a list of items that know their title, their state
// for a plot and their action. A menu owns its items; a copy shares them with its source.

#include "platform/base/Export.h"
#include "support/StdStr.h"

#include <vector>

class EPlot;

class ORVA_API ERightMenuItem {
public:
    ERightMenuItem() = default;
    ERightMenuItem(const ERightMenuItem&) = default;
    ERightMenuItem& operator=(const ERightMenuItem&) = default;
    // Virtual, so that deleting a derived item through the list is defined behaviour.
    virtual ~ERightMenuItem();

    virtual unsigned GetState(EPlot* plot); // menu flags: 8 checked, 1 grey
    virtual zvk::CStdStr<char> GetTitle();
    virtual void PerformAction(EPlot* plot);

    void IamSeparator() { m_isSeparator = 1; }
    unsigned char AmISeparator() const { return m_isSeparator; }
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
    void SetMenuID(unsigned id) {
        m_menuId = id;
        m_allow = 1;
    }
    unsigned GetMenuID() const { return m_menuId; }
    unsigned char AllowRightMenu() const { return m_allow; }
    // -1 appends; a position inside the list inserts there; any other drops the item unowned.
    void AddMenuItem(ERightMenuItem* item, int position);
    int NumItems() const { return int(m_items.size()); }
    // The item at `position`, or the last one for a position at or past the end.
    ERightMenuItem* ItemAtPosition(int position);
    void ClearMenu();

private:
    unsigned m_menuId = 0;
    unsigned char m_allow = 0;
    std::vector<ERightMenuItem*> m_items; // owned
};
