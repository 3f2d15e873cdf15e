// The tree of windows (parents, owners, child ids, z-order), window words and styles,
// visibility and enabling, window text and properties.

#include "platform/window/WindowRecord.h"

#include "platform/host/Host.h"

#include <algorithm>
#include <cstring>

using namespace wm;

HWND GetParent(HWND hwnd) {
    const WindowRecord* w = Find(hwnd);
    if (!w)
        return nullptr;
    return IsTopLevel(*w) ? w->owner : w->parent;
}

HWND GetAncestor(HWND hwnd, UINT flags) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return nullptr;
    switch (flags) {
    case GA_PARENT:
        return IsTopLevel(*w) ? GetDesktopWindow() : w->parent;
    case GA_ROOT:
        return TopLevelOf(w)->handle;
    case GA_ROOTOWNER: {
        WindowRecord* root = TopLevelOf(w);
        while (root->owner && Find(root->owner))
            root = TopLevelOf(Find(root->owner));
        return root->handle;
    }
    default:
        return nullptr;
    }
}

HWND SetParent(HWND hwnd, HWND newParent) {
    WindowRecord* w = Find(hwnd);
    WindowRecord* p = Find(newParent);
    if (!w || (newParent && !p) || hwnd == newParent || (newParent && IsChild(hwnd, newParent)))
        return nullptr;
    const HWND old = IsTopLevel(*w) ? GetDesktopWindow() : w->parent;
    if (WindowRecord* oldParent = Find(w->parent))
        std::erase(oldParent->children, hwnd);
    if (p && (w->style & WS_CHILD)) {
        w->parent = newParent;
        p->children.insert(p->children.begin(), hwnd);
    } else {
        w->owner = newParent;
    }
    InvalidateClient(*w, ClientInWindow(*w) - ClientInWindow(*w).TopLeft(), true);
    return old;
}

HWND GetWindow(HWND hwnd, UINT relation) {
    const WindowRecord* w = Find(hwnd);
    if (!w)
        return nullptr;
    if (relation == GW_CHILD)
        return w->children.empty() ? nullptr : w->children.front();
    if (relation == GW_OWNER)
        return IsTopLevel(*w) ? w->owner : nullptr;
    const std::vector<HWND>* siblings = &TopLevelWindows();
    if (!IsTopLevel(*w))
        siblings = &Find(w->parent)->children;
    const auto it = std::find(siblings->begin(), siblings->end(), hwnd);
    if (it == siblings->end())
        return nullptr;
    switch (relation) {
    case GW_HWNDFIRST:
        return siblings->front();
    case GW_HWNDLAST:
        return siblings->back();
    case GW_HWNDNEXT:
        return it + 1 == siblings->end() ? nullptr : *(it + 1);
    case GW_HWNDPREV:
        return it == siblings->begin() ? nullptr : *(it - 1);
    default:
        return nullptr;
    }
}

HWND GetTopWindow(HWND hwnd) {
    if (hwnd)
        return GetWindow(hwnd, GW_CHILD);
    const auto& tops = TopLevelWindows();
    return tops.empty() ? nullptr : tops.front();
}

HWND GetDlgItem(HWND parent, int id) {
    const WindowRecord* w = Find(parent);
    if (!w)
        return nullptr;
    for (HWND child : w->children)
        if (Find(child)->id == id)
            return child;
    return nullptr;
}

int GetDlgCtrlID(HWND hwnd) {
    const WindowRecord* w = Find(hwnd);
    return w && !IsTopLevel(*w) ? int(w->id) : 0;
}

BOOL IsChild(HWND parent, HWND hwnd) {
    const WindowRecord* w = Find(hwnd);
    while (w && !IsTopLevel(*w)) {
        if (w->parent == parent)
            return parent != nullptr;
        w = Find(w->parent);
    }
    return FALSE;
}

HWND GetDesktopWindow() {
    // The desktop is a window of its own class that covers the screen and has no parent.
    static HWND desktop = [] {
        WindowRecord* w = NewRecord();
        w->className = "#32769";
        w->proc = DefWindowProc;
        w->style = WS_VISIBLE | WS_CLIPCHILDREN;
        w->rect = CRect(0, 0, 1920, 1080);
        w->created = true;
        return w->handle;
    }();
    return desktop;
}

LONG_PTR GetWindowLongPtr(HWND hwnd, int index) {
    const WindowRecord* w = Find(hwnd);
    if (!w)
        return 0;
    switch (index) {
    case GWL_STYLE:
        return LONG(w->style);
    case GWL_EXSTYLE:
        return LONG(w->exStyle);
    case GWLP_ID:
        return w->id;
    case GWLP_USERDATA:
        return w->userData;
    case GWLP_WNDPROC:
        return reinterpret_cast<LONG_PTR>(w->proc);
    case GWLP_HWNDPARENT:
        return reinterpret_cast<LONG_PTR>(IsTopLevel(*w) ? w->owner : w->parent);
    default:
        return 0;
    }
}

LONG_PTR SetWindowLongPtr(HWND hwnd, int index, LONG_PTR value) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return 0;
    const LONG_PTR old = GetWindowLongPtr(hwnd, index);
    switch (index) {
    case GWL_STYLE: {
        const DWORD style = DWORD(value);
        const bool frameChanged = ((style ^ w->style) & (WS_BORDER | WS_DLGFRAME | WS_THICKFRAME |
                                                         WS_HSCROLL | WS_VSCROLL)) != 0;
        w->style = style;
        if (frameChanged)
            InvalidateFrame(*w);
        break;
    }
    case GWL_EXSTYLE:
        w->exStyle = DWORD(value);
        break;
    case GWLP_ID:
        w->id = value;
        break;
    case GWLP_USERDATA:
        w->userData = value;
        break;
    case GWLP_WNDPROC:
        w->proc = reinterpret_cast<WNDPROC>(value);
        break;
    case GWLP_HWNDPARENT:
        if (IsTopLevel(*w))
            w->owner = reinterpret_cast<HWND>(value);
        break;
    default:
        return 0;
    }
    return old;
}

LONG GetWindowLong(HWND hwnd, int index) {
    return LONG(GetWindowLongPtr(hwnd, index));
}
LONG SetWindowLong(HWND hwnd, int index, LONG value) {
    return LONG(SetWindowLongPtr(hwnd, index, value));
}

BOOL IsWindowVisible(HWND hwnd) {
    const WindowRecord* w = Find(hwnd);
    return w && IsShowing(*w);
}

BOOL ShowWindow(HWND hwnd, int command) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    const bool was = (w->style & WS_VISIBLE) != 0;
    const bool show = command != SW_HIDE;
    if (was == show)
        return was;
    Send(w, WM_SHOWWINDOW, show, 0);
    if (!(w = Find(hwnd)))
        return was;
    if (!show) {
        const HWND focus = GetFocus();
        if (focus == hwnd || IsChild(hwnd, focus))
            SetFocus(IsTopLevel(*w) ? nullptr : w->parent);
        if (GetCapture() == hwnd || IsChild(hwnd, GetCapture()))
            ReleaseCapture();
    }
    w->style = show ? (w->style | WS_VISIBLE) : (w->style & ~WS_VISIBLE);
    if (IsTopLevel(*w)) {
        GetHost().ShowWindowSurface(hwnd, show);
        if (show && (command == SW_SHOW || command == SW_SHOWNORMAL || command == SW_RESTORE ||
                     command == SW_SHOWDEFAULT || command == SW_SHOWMAXIMIZED))
            SetActiveWindow(hwnd);
    } else if (WindowRecord* parent = Find(w->parent)) {
        const CRect client = ClientInWindow(*parent);
        InvalidateClient(*parent, w->rect & CRect(0, 0, client.Width(), client.Height()), true);
    }
    if (show) {
        InvalidateFrame(*w);
        const CRect client = ClientInWindow(*w);
        InvalidateClient(*w, CRect(0, 0, client.Width(), client.Height()), true);
    }
    return was;
}

BOOL IsWindowEnabled(HWND hwnd) {
    const WindowRecord* w = Find(hwnd);
    return w && !(w->style & WS_DISABLED);
}

BOOL EnableWindow(HWND hwnd, BOOL enable) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    const bool wasDisabled = (w->style & WS_DISABLED) != 0;
    if (wasDisabled == !enable)
        return wasDisabled;
    if (!enable) {
        w->style |= WS_DISABLED;
        const HWND focus = GetFocus();
        if (focus == hwnd || IsChild(hwnd, focus))
            SetFocus(nullptr);
        if (GetCapture() == hwnd)
            ReleaseCapture();
    } else {
        w->style &= ~WS_DISABLED;
    }
    Send(w, WM_ENABLE, enable ? TRUE : FALSE, 0);
    return wasDisabled;
}

BOOL SetWindowText(HWND hwnd, LPCSTR text) {
    return Find(hwnd) && SendMessage(hwnd, WM_SETTEXT, 0, LPARAM(text ? text : "")) != 0;
}

int GetWindowText(HWND hwnd, LPSTR buffer, int maxCount) {
    if (!buffer || maxCount <= 0)
        return 0;
    buffer[0] = '\0';
    return int(SendMessage(hwnd, WM_GETTEXT, WPARAM(maxCount), LPARAM(buffer)));
}

int GetWindowTextLength(HWND hwnd) {
    return int(SendMessage(hwnd, WM_GETTEXTLENGTH, 0, 0));
}

BOOL SetDlgItemText(HWND parent, int id, LPCSTR text) {
    return SetWindowText(GetDlgItem(parent, id), text);
}

UINT GetDlgItemText(HWND parent, int id, LPSTR buffer, int maxCount) {
    return UINT(GetWindowText(GetDlgItem(parent, id), buffer, maxCount));
}

BOOL SetProp(HWND hwnd, LPCSTR name, HANDLE data) {
    WindowRecord* w = Find(hwnd);
    if (!w || !name)
        return FALSE;
    w->props[name] = data;
    return TRUE;
}

HANDLE GetProp(HWND hwnd, LPCSTR name) {
    const WindowRecord* w = Find(hwnd);
    if (!w || !name)
        return nullptr;
    const auto it = w->props.find(name);
    return it == w->props.end() ? nullptr : it->second;
}

HANDLE RemoveProp(HWND hwnd, LPCSTR name) {
    WindowRecord* w = Find(hwnd);
    if (!w || !name)
        return nullptr;
    const auto it = w->props.find(name);
    if (it == w->props.end())
        return nullptr;
    HANDLE data = it->second;
    w->props.erase(it);
    return data;
}
