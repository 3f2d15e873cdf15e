// CMenu: the object over a menu handle; each call passes to the handle-level menu call.

#include "platform/window/Menu.h"

#include "platform/window/MenuRecord.h"
#include "platform/window/Wnd.h"

IMPLEMENT_DYNAMIC(CMenu, CObject)

CMenu::~CMenu() {
    // A menu that became another's sub-menu belongs to that menu now.
    if (m_hMenu && !wm::IsSubMenuOfAnother(m_hMenu))
        ::DestroyMenu(m_hMenu);
}

CMenu* CMenu::FromHandle(HMENU menu) {
    wm::MenuRecord* record = wm::FindMenu(menu);
    if (!record)
        return nullptr;
    if (!record->wrapper) {
        record->wrapper = std::make_unique<CMenu>();
        record->wrapper->m_hMenu = menu;
    }
    return record->wrapper.get();
}

BOOL CMenu::Attach(HMENU menu) {
    if (m_hMenu || !::IsMenu(menu))
        return FALSE;
    m_hMenu = menu;
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU menu = m_hMenu;
    m_hMenu = nullptr;
    return menu;
}

BOOL CMenu::CreateMenu() {
    return Attach(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu() {
    return Attach(::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(UINT resourceId) {
    return Attach(::LoadMenu(nullptr, MAKEINTRESOURCE(resourceId)));
}

BOOL CMenu::LoadMenu(LPCSTR resourceName) {
    return Attach(::LoadMenu(nullptr, resourceName));
}

BOOL CMenu::DestroyMenu() {
    return ::DestroyMenu(Detach());
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR idOrSubMenu, LPCSTR text) {
    return ::AppendMenu(m_hMenu, flags, idOrSubMenu, text);
}

BOOL CMenu::InsertMenu(UINT position, UINT flags, UINT_PTR idOrSubMenu, LPCSTR text) {
    return ::InsertMenu(m_hMenu, position, flags, idOrSubMenu, text);
}

BOOL CMenu::ModifyMenu(UINT position, UINT flags, UINT_PTR idOrSubMenu, LPCSTR text) {
    return ::ModifyMenu(m_hMenu, position, flags, idOrSubMenu, text);
}

BOOL CMenu::RemoveMenu(UINT position, UINT flags) {
    return ::RemoveMenu(m_hMenu, position, flags);
}

BOOL CMenu::DeleteMenu(UINT position, UINT flags) {
    return ::DeleteMenu(m_hMenu, position, flags);
}

UINT CMenu::EnableMenuItem(UINT item, UINT enable) {
    return ::EnableMenuItem(m_hMenu, item, enable);
}

UINT CMenu::CheckMenuItem(UINT item, UINT check) {
    return UINT(::CheckMenuItem(m_hMenu, item, check));
}

UINT CMenu::GetMenuState(UINT item, UINT flags) const {
    return ::GetMenuState(m_hMenu, item, flags);
}

UINT CMenu::GetMenuItemCount() const {
    return UINT(::GetMenuItemCount(m_hMenu));
}

UINT CMenu::GetMenuItemID(int position) const {
    return ::GetMenuItemID(m_hMenu, position);
}

int CMenu::GetMenuString(UINT item, LPSTR buffer, int maxCount, UINT flags) const {
    return ::GetMenuString(m_hMenu, item, buffer, maxCount, flags);
}

int CMenu::GetMenuString(UINT item, CString& text, UINT flags) const {
    const wm::MenuItemRef ref = wm::FindMenuItem(m_hMenu, item, flags);
    text = ref ? ref->text.c_str() : "";
    return text.GetLength();
}

CMenu* CMenu::GetSubMenu(int position) const {
    return FromHandle(::GetSubMenu(m_hMenu, position));
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT ignored) {
    return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, SafeHwnd(owner), ignored);
}
