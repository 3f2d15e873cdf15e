// Drop targets registered on windows, and text dropped on a display by another program.

#include "platform/window/OleDropTarget.h"

#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/window/Wnd.h"

#include <cstring>
#include <map>

namespace {

// Registered targets by window; the user-interface thread alone touches the table.
std::map<HWND, COleDropTarget*>& Targets() {
    static std::map<HWND, COleDropTarget*>& targets = *new std::map<HWND, COleDropTarget*>;
    return targets;
}

} // namespace

COleDropTarget::~COleDropTarget() {
    COleDropTarget::Revoke();
}

BOOL COleDropTarget::Register(CWnd* wnd) {
    const HWND window = SafeHwnd(wnd);
    if (window == nullptr || Targets().count(window) != 0) {
        return FALSE;
    }
    Revoke();
    Targets()[window] = this;
    m_hWnd = window;
    return TRUE;
}

void COleDropTarget::Revoke() {
    if (m_hWnd != nullptr) {
        Targets().erase(m_hWnd);
        m_hWnd = nullptr;
    }
}

DROPEFFECT COleDropTarget::OnDragEnter(CWnd*, COleDataObject*, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

DROPEFFECT COleDropTarget::OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

void COleDropTarget::OnDragLeave(CWnd*) {}

BOOL COleDropTarget::OnDrop(CWnd*, COleDataObject*, DROPEFFECT, CPoint) {
    return FALSE;
}

DROPEFFECT COleDropTarget::OnDragScroll(CWnd*, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

COleDropTarget* COleDropTarget::FindAt(HWND window, HWND* registeredWindow) {
    // Up the chain of parents; a top-level window's parent is the desktop, where it ends.
    const HWND desktop = ::GetDesktopWindow();
    for (HWND at = window; at != nullptr && at != desktop; at = ::GetAncestor(at, GA_PARENT)) {
        const auto found = Targets().find(at);
        if (found != Targets().end() && ::IsWindow(at)) {
            *registeredWindow = at;
            return found->second;
        }
    }
    *registeredWindow = nullptr;
    return nullptr;
}

DWORD DragKeyState() {
    DWORD state = 0;
    state |= ::GetKeyState(VK_CONTROL) < 0 ? MK_CONTROL : 0;
    state |= ::GetKeyState(VK_SHIFT) < 0 ? MK_SHIFT : 0;
    state |= ::GetKeyState(VK_LBUTTON) < 0 ? MK_LBUTTON : 0;
    return state;
}

bool DeliverDroppedText(POINT screen, const char* text) {
    HWND window = nullptr;
    COleDropTarget* target = COleDropTarget::FindAt(::WindowFromPoint(screen), &window);
    if (target == nullptr || text == nullptr) {
        return false;
    }
    const std::size_t size = std::strlen(text) + 1;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    if (void* bytes = block != nullptr ? GlobalLock(block) : nullptr) {
        std::memcpy(bytes, text, size);
        GlobalUnlock(block);
    }
    COleDataSource source;
    source.CacheGlobalData(CF_TEXT, block);
    COleDataObject data;
    data.Attach(&source);
    CWnd* wnd = CWnd::FromHandle(window);
    CPoint client = screen;
    ::ScreenToClient(window, &client);
    // Another program's drop copies: it keeps its text.
    const DROPEFFECT effect = target->OnDragEnter(wnd, &data, MK_CONTROL, client);
    if (effect == DROPEFFECT_NONE) {
        target->OnDragLeave(wnd);
        return false;
    }
    return target->OnDrop(wnd, &data, DROPEFFECT_COPY, client) != FALSE;
}
