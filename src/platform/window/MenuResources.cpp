// Menu resources: descriptions registered by id, and LoadMenu, which builds menus from them.

#include "platform/window/MenuResources.h"

#include "platform/window/Menu.h"

#include <map>

namespace {
// The process's menu resources, registered and loaded on the user-interface thread.
std::map<UINT, std::vector<MenuTemplateItem>>& Resources() {
    static auto& resources = *new std::map<UINT, std::vector<MenuTemplateItem>>;
    return resources;
}

void Fill(HMENU menu, const std::vector<MenuTemplateItem>& items) {
    for (const MenuTemplateItem& item : items) {
        if (!item.subItems.empty() || (item.flags & MF_POPUP)) {
            const HMENU sub = CreatePopupMenu();
            Fill(sub, item.subItems);
            AppendMenu(menu, (item.flags & ~MF_SEPARATOR) | MF_POPUP, UINT_PTR(sub), item.text);
        } else if (!item.text) {
            AppendMenu(menu, MF_SEPARATOR, 0, nullptr);
        } else {
            AppendMenu(menu, item.flags, item.id, item.text);
        }
    }
}
} // namespace

void RegisterMenuResource(UINT id, std::vector<MenuTemplateItem> items) {
    Resources()[WORD(id)] = std::move(items);
}

HMENU LoadMenu(HINSTANCE, LPCSTR name) {
    // Resources are known by number only: names are not registered.
    if (!IS_INTRESOURCE(name))
        return nullptr;
    const auto it = Resources().find(WORD(reinterpret_cast<std::uintptr_t>(name)));
    if (it == Resources().end())
        return nullptr;
    const HMENU menu = CreateMenu();
    Fill(menu, it->second);
    return menu;
}
