#pragma once

// The application's menu resources, described in code: the application registers each menu
// under its resource id at start-up, and LoadMenu (or CMenu::LoadMenu) builds a fresh menu from
// the description each time it is asked.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"
#include "platform/window/Menu.h"

#include <vector>

// One item of a menu description: a command, a sub-menu, or (made empty) a separator.
struct MenuTemplateItem {
    MenuTemplateItem() = default;
    MenuTemplateItem(const char* text, UINT id, UINT flags = 0)
        : text(text), id(id), flags(flags) {}
    MenuTemplateItem(const char* text, std::vector<MenuTemplateItem> subItems, UINT flags = 0)
        : text(text), flags(flags | MF_POPUP), subItems(std::move(subItems)) {}

    const char* text = nullptr;
    UINT id = 0;
    UINT flags = 0; // MF_CHECKED, MF_GRAYED, MF_DISABLED, ...
    std::vector<MenuTemplateItem> subItems;
};

// Registers (or replaces) the menu with this resource id. The texts must outlive the process's
// use of the resource: string literals, as resources are.
ORVA_API void RegisterMenuResource(UINT id, std::vector<MenuTemplateItem> items);
