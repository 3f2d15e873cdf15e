// The plot's context menu as a list of items: building a pop-up menu from it and running the
// item chosen, showing the application's fixed menu, and the basic lists of pmSetUpBasicMenus.

#include "plot/RightMenu.h"

#include "platform/window/Menu.h"
#include "platform/window/Wnd.h"
#include "plot/Plot.h"
#include "plot/PlotApi.h"
#include "plot/RightMenuItems.h"

#include <cstring>

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

bool ERightMenu::RemoveMenuItemWTitle(const char* title, std::vector<ERightMenuItem*>* list) {
    if (!title)
        return false;
    if (!list)
        list = &m_items;
    for (auto it = list->begin(); it != list->end(); ++it) {
        ERightMenuItem* item = *it;
        if (std::strcmp(item->GetTitle().c_str(), title) == 0) {
            delete item;
            list->erase(it);
            return true;
        }
        if (item->AmISubmenu() && RemoveMenuItemWTitle(title, item->SubmenuItems()))
            return true;
    }
    return false;
}

void ERightMenu::CreateMenu(CMenu& menu, int& nextId, EPlot* plot,
                            std::vector<ERightMenuItem*>* list) {
    if (!list) {
        list = &m_items;
        nextId = 1;
    }
    menu.CreatePopupMenu();
    for (ERightMenuItem* item : *list) {
        if (item->AmISubmenu()) {
            CMenu sub;
            CreateMenu(sub, nextId, plot, item->SubmenuItems());
            // The menu owns the sub-menu from here on.
            menu.AppendMenu(MF_POPUP, UINT_PTR(sub.Detach()), item->GetTitle().c_str());
        } else if (item->AmISeparator()) {
            menu.AppendMenu(MF_SEPARATOR);
        } else {
            const int id = nextId++;
            menu.AppendMenu(item->GetState(plot), UINT_PTR(id), item->GetTitle().c_str());
        }
    }
}

bool ERightMenu::PerformMenuActionFromItem(int chosen, EPlot* plot, int& counter,
                                           std::vector<ERightMenuItem*>* list) {
    if (!list) {
        list = &m_items;
        counter = 1;
    }
    // The same walk as CreateMenu, so that the numbers agree.
    for (ERightMenuItem* item : *list) {
        if (item->AmISubmenu()) {
            if (PerformMenuActionFromItem(chosen, plot, counter, item->SubmenuItems()))
                return true;
        } else if (!item->AmISeparator()) {
            if (counter == chosen) {
                item->PerformAction(plot);
                return true;
            }
            ++counter;
        }
    }
    return false;
}

void ERightMenu::DoMenu(EPlot* plot, POINT where) {
    CMenu menu;
    if (!menu.LoadMenu(m_menuId & 0xFFFF))
        return;
    CMenu* popup = menu.GetSubMenu(0);
    if (!popup)
        return;
    if (plot)
        ::ClientToScreen(plot->GetHwnd(), &where);
    // The choice goes to the main window as a command; the application hands it to the plot.
    popup->TrackPopupMenu(0, where.x, where.y, AfxGetMainWnd());
}

void pmSetUpBasicMenus(ERightMenu& menu, int mask) {
    menu.ClearMenu();
    const auto add = [&menu](ERightMenuItem* item) { menu.AddMenuItem(item, -1); };
    const auto separator = [&add] {
        auto* item = new ERightMenuItem;
        item->IamSeparator();
        add(item);
    };

    const int before = menu.NumItems();
    if (mask & PM_MENU_PLOTDATA)
        add(new EMenuPlotData);
    if (mask & PM_MENU_DISPLAYOPTIONS)
        add(new EMenuDisplayOptions);
    if (mask & PM_MENU_AXISTITLES)
        add(new EMenuAxisTitles);
    if (mask & PM_MENU_SAVEDEFAULTS)
        add(new EMenuSaveDefaults);
    if (menu.NumItems() != before)
        separator();

    if (mask & PM_MENU_LEGEND) {
        add(new EMenuLegendLocSubMenu);
        separator();
    }

    const int beforeView = menu.NumItems();
    if (mask & PM_MENU_FRAME)
        add(new EMenuFrame);
    if (mask & PM_MENU_MAXIMIZE)
        add(new EMenuMax);
    if (menu.NumItems() != beforeView)
        separator();

    if (mask & PM_MENU_SHOWVALUES)
        add(new EMenuShowValues);
    if (mask & PM_MENU_EXPORT)
        add(new EMenuExport);
}
