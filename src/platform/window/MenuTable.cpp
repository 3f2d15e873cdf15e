// Menu handles and their items: creation, destruction, the item calls and the state calls.

#include "platform/window/MenuRecord.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <map>

namespace wm {
namespace {

// The menus of the one user-interface thread.
struct MenuTable {
    std::map<HMENU, std::unique_ptr<MenuRecord>> menus;
    std::uintptr_t next = 0x4000;
};

MenuTable& Table() {
    static MenuTable& table = *new MenuTable;
    return table;
}

HMENU NewMenu(bool popup) {
    MenuTable& table = Table();
    auto record = std::make_unique<MenuRecord>();
    record->handle = reinterpret_cast<HMENU>(table.next++);
    record->popup = popup;
    const HMENU handle = record->handle;
    table.menus[handle] = std::move(record);
    return handle;
}

MenuItemRef FindById(MenuRecord& menu, UINT id, int depth) {
    // A menu cannot hold itself, but a careless caller could try: stop at a sane depth.
    if (depth > 16)
        return {};
    for (size_t i = 0; i < menu.items.size(); ++i) {
        MenuItem& item = menu.items[i];
        if (!item.IsPopup() && !item.IsSeparator() && item.id == id)
            return {&menu, i};
        if (MenuRecord* sub = item.IsPopup() ? FindMenu(item.subMenu) : nullptr)
            if (MenuItemRef found = FindById(*sub, id, depth + 1))
                return found;
    }
    return {};
}

// An item as the flags and text of AppendMenu describe it.
bool MakeItem(UINT flags, UINT_PTR idOrSubMenu, LPCSTR text, HMENU container, MenuItem& item) {
    item = MenuItem{};
    item.flags = flags & ~(MF_BYPOSITION | MF_CHANGE | MF_APPEND | MF_DELETE | MF_REMOVE);
    if (flags & MF_SEPARATOR) {
        item.flags = MF_SEPARATOR;
        return true;
    }
    if (flags & MF_POPUP) {
        item.subMenu = reinterpret_cast<HMENU>(idOrSubMenu);
        if (!FindMenu(item.subMenu) || item.subMenu == container)
            return false;
    } else {
        item.id = UINT(idOrSubMenu);
    }
    item.text = text ? text : "";
    return true;
}

UINT StateOf(const MenuItem& item) {
    UINT state = item.flags & ~MF_POPUP;
    if (item.IsPopup()) {
        const MenuRecord* sub = FindMenu(item.subMenu);
        const UINT count = sub ? UINT(std::min<size_t>(sub->items.size(), 0xFF)) : 0;
        state |= MF_POPUP | (count << 8);
    }
    return state;
}

} // namespace

MenuRecord* FindMenu(HMENU menu) {
    auto& menus = Table().menus;
    const auto it = menus.find(menu);
    return it == menus.end() ? nullptr : it->second.get();
}

MenuItemRef FindMenuItem(HMENU menu, UINT item, UINT flags) {
    MenuRecord* record = FindMenu(menu);
    if (!record)
        return {};
    if (flags & MF_BYPOSITION)
        return item < record->items.size() ? MenuItemRef{record, item} : MenuItemRef{};
    return FindById(*record, item, 0);
}

bool IsSubMenuOfAnother(HMENU menu) {
    for (const auto& [handle, record] : Table().menus)
        for (const MenuItem& item : record->items)
            if (item.subMenu == menu)
                return true;
    return false;
}

char MenuMnemonic(const std::string& text) {
    for (size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&')
            continue;
        if (text[i + 1] != '&')
            return char(std::tolower(static_cast<unsigned char>(text[i + 1])));
        ++i;
    }
    return 0;
}

std::string MenuPlainText(const std::string& text) {
    std::string plain;
    for (size_t i = 0; i < text.size() && text[i] != '\t'; ++i) {
        if (text[i] == '&' && i + 1 < text.size())
            ++i;
        plain += text[i];
    }
    return plain;
}

} // namespace wm

using namespace wm;

HMENU CreateMenu() {
    return NewMenu(false);
}

HMENU CreatePopupMenu() {
    return NewMenu(true);
}

BOOL DestroyMenu(HMENU menu) {
    MenuRecord* record = FindMenu(menu);
    if (!record)
        return FALSE;
    auto items = std::move(record->items);
    if (record->wrapper)
        record->wrapper->m_hMenu = nullptr; // the wrapper goes with the record, menu already gone
    Table().menus.erase(menu);
    for (const MenuItem& item : items)
        if (item.IsPopup())
            DestroyMenu(item.subMenu);
    return TRUE;
}

BOOL IsMenu(HMENU menu) {
    return FindMenu(menu) != nullptr;
}

BOOL AppendMenu(HMENU menu, UINT flags, UINT_PTR idOrSubMenu, LPCSTR text) {
    MenuRecord* record = FindMenu(menu);
    MenuItem item;
    if (!record || !MakeItem(flags, idOrSubMenu, text, menu, item))
        return FALSE;
    record->items.push_back(std::move(item));
    return TRUE;
}

BOOL InsertMenu(HMENU menu, UINT position, UINT flags, UINT_PTR idOrSubMenu, LPCSTR text) {
    MenuRecord* record = FindMenu(menu);
    MenuItem item;
    if (!record || !MakeItem(flags, idOrSubMenu, text, menu, item))
        return FALSE;
    if (flags & MF_BYPOSITION) {
        // A position past the end appends, as the framework does.
        const size_t at = std::min<size_t>(position, record->items.size());
        record->items.insert(record->items.begin() + std::ptrdiff_t(at), std::move(item));
        return TRUE;
    }
    const MenuItemRef before = FindMenuItem(menu, position, MF_BYCOMMAND);
    if (!before)
        return FALSE;
    auto& items = before.menu->items;
    items.insert(items.begin() + std::ptrdiff_t(before.index), std::move(item));
    return TRUE;
}

BOOL ModifyMenu(HMENU menu, UINT position, UINT flags, UINT_PTR idOrSubMenu, LPCSTR text) {
    const MenuItemRef ref = FindMenuItem(menu, position, flags);
    MenuItem item;
    if (!ref || !MakeItem(flags, idOrSubMenu, text, ref.menu->handle, item))
        return FALSE;
    const HMENU oldSub = ref->subMenu;
    *ref.operator->() = std::move(item);
    // The replaced sub-menu goes with its item, as it would with DeleteMenu.
    if (oldSub && oldSub != ref->subMenu)
        DestroyMenu(oldSub);
    return TRUE;
}

BOOL RemoveMenu(HMENU menu, UINT position, UINT flags) {
    const MenuItemRef ref = FindMenuItem(menu, position, flags);
    if (!ref)
        return FALSE;
    ref.menu->items.erase(ref.menu->items.begin() + std::ptrdiff_t(ref.index));
    return TRUE;
}

BOOL DeleteMenu(HMENU menu, UINT position, UINT flags) {
    const MenuItemRef ref = FindMenuItem(menu, position, flags);
    if (!ref)
        return FALSE;
    const HMENU sub = ref->subMenu;
    ref.menu->items.erase(ref.menu->items.begin() + std::ptrdiff_t(ref.index));
    if (sub)
        DestroyMenu(sub);
    return TRUE;
}

UINT EnableMenuItem(HMENU menu, UINT item, UINT enable) {
    const MenuItemRef ref = FindMenuItem(menu, item, enable);
    if (!ref)
        return MENU_ITEM_NOT_FOUND;
    constexpr UINT enableBits = MF_GRAYED | MF_DISABLED;
    const UINT previous = ref->flags & enableBits;
    ref->flags = (ref->flags & ~enableBits) | (enable & enableBits);
    return previous;
}

DWORD CheckMenuItem(HMENU menu, UINT item, UINT check) {
    const MenuItemRef ref = FindMenuItem(menu, item, check);
    if (!ref)
        return MENU_ITEM_NOT_FOUND;
    const DWORD previous = ref->flags & MF_CHECKED;
    ref->flags = (ref->flags & ~MF_CHECKED) | (check & MF_CHECKED);
    return previous;
}

UINT GetMenuState(HMENU menu, UINT item, UINT flags) {
    const MenuItemRef ref = FindMenuItem(menu, item, flags);
    return ref ? StateOf(*ref.operator->()) : MENU_ITEM_NOT_FOUND;
}

int GetMenuItemCount(HMENU menu) {
    const MenuRecord* record = FindMenu(menu);
    return record ? int(record->items.size()) : -1;
}

UINT GetMenuItemID(HMENU menu, int position) {
    const MenuItemRef ref =
        position < 0 ? MenuItemRef{} : FindMenuItem(menu, UINT(position), MF_BYPOSITION);
    if (!ref || ref->IsPopup())
        return MENU_ITEM_NOT_FOUND;
    return ref->id;
}

int GetMenuString(HMENU menu, UINT item, LPSTR buffer, int maxCount, UINT flags) {
    const MenuItemRef ref = FindMenuItem(menu, item, flags);
    if (!ref)
        return 0;
    const std::string& text = ref->text;
    if (!buffer)
        return int(text.size());
    if (maxCount <= 0)
        return 0;
    const size_t n = std::min(text.size(), size_t(maxCount - 1));
    std::memcpy(buffer, text.data(), n);
    buffer[n] = '\0';
    return int(n);
}

HMENU GetSubMenu(HMENU menu, int position) {
    const MenuItemRef ref =
        position < 0 ? MenuItemRef{} : FindMenuItem(menu, UINT(position), MF_BYPOSITION);
    return ref ? ref->subMenu : nullptr;
}
