// Focus, capture and activation, with the messages that announce each change, and the key and
// cursor state that input leaves behind.

#include "platform/window/WindowRecord.h"

#include "platform/host/Host.h"
#include "platform/window/InputState.h"

#include <array>

namespace {
using namespace wm;

// The one user-interface thread's state.
struct FocusState {
    HWND focus = nullptr;
    HWND capture = nullptr;
    HWND active = nullptr;
};

FocusState& F() {
    static FocusState& state = *new FocusState;
    return state;
}
} // namespace

namespace wm {

InputState& Input() {
    static InputState& state = *new InputState;
    return state;
}

void ForgetWindowState(HWND hwnd) {
    FocusState& f = F();
    WindowRecord* w = Find(hwnd);
    if (f.focus == hwnd || IsChild(hwnd, f.focus)) {
        HWND parent = w && !IsTopLevel(*w) ? w->parent : nullptr;
        const WindowRecord* p = Find(parent);
        SetFocus(p && !p->destroying ? parent : nullptr);
    }
    if (f.capture == hwnd || IsChild(hwnd, f.capture))
        ReleaseCapture();
    if (Input().trackingWindow == hwnd || IsChild(hwnd, Input().trackingWindow))
        Input().trackingWindow = nullptr;
    if (f.active == hwnd)
        f.active = nullptr;
}

} // namespace wm

HWND SetFocus(HWND hwnd) {
    FocusState& f = F();
    const HWND previous = f.focus;
    if (hwnd && !Find(hwnd))
        return nullptr;
    // Activating the window's frame may move the focus to the frame first.
    if (hwnd && hwnd != previous)
        SetActiveWindow(GetAncestor(hwnd, GA_ROOT));
    const HWND old = f.focus;
    if (hwnd != old) {
        // The focus has moved by the time the old window hears of it, as in the framework.
        f.focus = hwnd;
        if (WindowRecord* o = Find(old))
            Send(o, WM_KILLFOCUS, WPARAM(hwnd), 0);
        if (f.focus == hwnd)
            if (WindowRecord* n = Find(hwnd))
                Send(n, WM_SETFOCUS, WPARAM(old), 0);
    }
    return Find(previous) ? previous : nullptr;
}

HWND GetFocus() {
    return Find(F().focus) ? F().focus : nullptr;
}

HWND SetCapture(HWND hwnd) {
    FocusState& f = F();
    const HWND old = f.capture;
    if (!Find(hwnd))
        return nullptr;
    f.capture = hwnd;
    if (old != hwnd)
        if (WindowRecord* o = Find(old))
            Send(o, WM_CAPTURECHANGED, 0, LPARAM(hwnd));
    return Find(old) ? old : nullptr;
}

BOOL ReleaseCapture() {
    FocusState& f = F();
    const HWND old = f.capture;
    f.capture = nullptr;
    if (WindowRecord* o = Find(old))
        Send(o, WM_CAPTURECHANGED, 0, 0);
    return TRUE;
}

HWND GetCapture() {
    return Find(F().capture) ? F().capture : nullptr;
}

HWND SetActiveWindow(HWND hwnd) {
    FocusState& f = F();
    const HWND old = f.active;
    if (hwnd && !Find(hwnd))
        return nullptr;
    hwnd = hwnd ? GetAncestor(hwnd, GA_ROOT) : nullptr;
    if (hwnd == old)
        return old;
    f.active = hwnd;
    // The captions of both windows and of the documents inside them change colour.
    for (HWND top : {old, hwnd})
        for (HWND within : top&& Find(top) ? SubtreeOf(top) : std::vector<HWND>{})
            if (WindowRecord* w = Find(within))
                InvalidateFrame(*w);
    if (WindowRecord* o = Find(old))
        Send(o, WM_ACTIVATE, WA_INACTIVE, LPARAM(hwnd));
    if (WindowRecord* n = Find(hwnd)) {
        BringTopLevelToTop(hwnd);
        Send(n, WM_ACTIVATE, WA_ACTIVE, LPARAM(old));
    }
    return Find(old) ? old : nullptr;
}

HWND GetActiveWindow() {
    return Find(F().active) ? F().active : nullptr;
}
BOOL SetForegroundWindow(HWND hwnd) {
    if (!Find(hwnd))
        return FALSE;
    SetActiveWindow(hwnd);
    return TRUE;
}
HWND GetForegroundWindow() {
    return GetActiveWindow();
}

short GetKeyState(int virtualKey) {
    if (virtualKey <= 0 || virtualKey > 255)
        return 0;
    const BYTE state = Input().keys[size_t(virtualKey)];
    return short((state & 0x80 ? 0x8000 : 0) | (state & 0x01));
}

short GetAsyncKeyState(int virtualKey) {
    if (virtualKey <= 0 || virtualKey > 255)
        return 0;
    return (Input().keys[size_t(virtualKey)] & 0x80) ? short(0x8000) : 0;
}

BOOL GetCursorPos(POINT* point) {
    if (!point)
        return FALSE;
    *point = Input().cursorPos;
    return TRUE;
}

BOOL SetCursorPos(int x, int y) {
    Input().cursorPos = CPoint(x, y);
    return TRUE;
}

HCURSOR LoadCursor(HINSTANCE, LPCSTR cursorName) {
    // Standard cursors are their own ids; there are no cursor resources of the application.
    if (!IS_INTRESOURCE(cursorName))
        return nullptr;
    return reinterpret_cast<HCURSOR>(const_cast<char*>(cursorName));
}

HCURSOR SetCursor(HCURSOR cursor) {
    const HCURSOR old = Input().cursor;
    Input().cursor = cursor;
    if (cursor != old)
        GetHost().SetCursorShape(cursor);
    return old;
}

HCURSOR GetCursor() {
    return Input().cursor;
}

BOOL ClipCursor(const RECT* rect) {
    Input().cursorClip = rect ? std::optional<CRect>(CRect(*rect)) : std::nullopt;
    return TRUE;
}

BOOL GetClipCursor(RECT* rect) {
    if (!rect)
        return FALSE;
    *rect = Input().cursorClip.value_or(CRect(0, 0, 1920, 1080));
    return TRUE;
}

UINT GetDoubleClickTime() {
    return 500;
}
