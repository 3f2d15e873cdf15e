// Window classes: the procedure, class styles, cursor and background that windows of a class
// share.

#include "platform/window/WindowClassTable.h"
#include "platform/window/WindowRecord.h"

#include <cstring>
#include <strings.h>

namespace wm {
namespace {
struct NoCaseLess {
    bool operator()(const std::string& a, const std::string& b) const {
        return strcasecmp(a.c_str(), b.c_str()) < 0;
    }
};

// Registered classes by name; class names compare without regard to case, as the framework's
// do. Shared by the process: the user-interface thread alone touches it.
std::map<std::string, WNDCLASS, NoCaseLess>& Classes() {
    static std::map<std::string, WNDCLASS, NoCaseLess>& classes =
        *new std::map<std::string, WNDCLASS, NoCaseLess>;
    return classes;
}
} // namespace

const WNDCLASS* FindClass(LPCSTR name) {
    if (!name || IS_INTRESOURCE(name))
        return nullptr;
    const auto it = Classes().find(name);
    return it == Classes().end() ? nullptr : &it->second;
}
} // namespace wm

BOOL RegisterClass(const WNDCLASS* wndClass) {
    if (!wndClass || !wndClass->lpszClassName || IS_INTRESOURCE(wndClass->lpszClassName) ||
        !*wndClass->lpszClassName || !wndClass->lpfnWndProc)
        return FALSE;
    auto [it, inserted] = wm::Classes().emplace(wndClass->lpszClassName, *wndClass);
    if (!inserted)
        return FALSE;
    it->second.lpszClassName = it->first.c_str();
    it->second.lpszMenuName = nullptr;
    return TRUE;
}

BOOL UnregisterClass(LPCSTR className, HINSTANCE) {
    return className && !IS_INTRESOURCE(className) && wm::Classes().erase(className) > 0;
}

BOOL GetClassInfo(HINSTANCE, LPCSTR className, WNDCLASS* wndClass) {
    const WNDCLASS* found = wm::FindClass(className);
    if (!found || !wndClass)
        return FALSE;
    *wndClass = *found;
    return TRUE;
}

int GetClassName(HWND hwnd, LPSTR buffer, int maxCount) {
    const wm::WindowRecord* w = wm::Find(hwnd);
    if (!w || !buffer || maxCount <= 0)
        return 0;
    const int n = std::min<int>(int(w->className.size()), maxCount - 1);
    std::memcpy(buffer, w->className.data(), size_t(n));
    buffer[n] = '\0';
    return n;
}
