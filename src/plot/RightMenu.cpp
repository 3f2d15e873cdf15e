// The plot's context menu as a list of items.

#include "plot/RightMenu.h"

#include "plot/PlotApi.h"

ERightMenuItem::~ERightMenuItem() {
    if (m_isSubmenu)
        for (ERightMenuItem* item : m_subItems)
            delete item;
}

unsigned ERightMenuItem::GetState(EPlot*) {
    return 0;
}

zvk::CStdStr<char> ERightMenuItem::GetTitle() {
    return "Generic";
}

void ERightMenuItem::PerformAction(EPlot*) {}

void ERightMenuItem::IamSubMenu(std::vector<ERightMenuItem*>& items) {
    m_isSubmenu = 1;
    m_subItems = items;
}

void ERightMenu::AddMenuItem(ERightMenuItem* item, int position) {
    if (position == -1)
        m_items.push_back(item);
    else if (position >= 0 && size_t(position) < m_items.size())
        m_items.insert(m_items.begin() + position, item);
}

ERightMenuItem* ERightMenu::ItemAtPosition(int position) {
    if (m_items.empty())
        return nullptr;
    if (position < 0 || size_t(position) >= m_items.size())
        return m_items.back();
    return m_items[size_t(position)];
}

void ERightMenu::ClearMenu() {
    for (ERightMenuItem* item : m_items)
        delete item;
    m_items.clear();
}

void pmSetUpBasicMenus(ERightMenu& menu, int) {
    // The menu's items and the mask that chooses them come with the menu itself; until then a
    // plot's menu starts empty.
    menu.ClearMenu();
}
