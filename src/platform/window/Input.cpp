// The user's input turned into messages: hit tests, WM_SETCURSOR, the capture, activation,
// double clicks, key state, and the characters that TranslateMessage makes of keys.

#include "platform/window/Input.h"

#include "platform/host/Host.h"
#include "platform/window/InputState.h"
#include "platform/window/KeyboardLayout.h"
#include "platform/window/Menu.h"
#include "platform/window/MenuTracker.h"
#include "platform/window/NonClient.h"
#include "platform/window/OleDropTarget.h"
#include "platform/window/ScrollBarTracking.h"
#include "platform/window/WindowRecord.h"

namespace {
using namespace wm;

WPARAM MouseKeyFlags() {
    const auto& keys = Input().keys;
    WPARAM flags = 0;
    if (keys[VK_LBUTTON] & 0x80)
        flags |= MK_LBUTTON;
    if (keys[VK_RBUTTON] & 0x80)
        flags |= MK_RBUTTON;
    if (keys[VK_MBUTTON] & 0x80)
        flags |= MK_MBUTTON;
    if (keys[VK_SHIFT] & 0x80)
        flags |= MK_SHIFT;
    if (keys[VK_CONTROL] & 0x80)
        flags |= MK_CONTROL;
    return flags;
}

LPARAM PackPoint(CPoint p) {
    return MAKELPARAM(WORD(p.x), WORD(p.y));
}

void SetKey(UINT vk, bool down) {
    BYTE& state = Input().keys[vk & 0xFF];
    if (down && !(state & 0x80))
        state ^= 0x01;
    state = BYTE(down ? (state | 0x80) : (state & ~0x80));
}

CPoint ClipToCursorArea(CPoint p) {
    if (const auto& clip = Input().cursorClip) {
        p.x = std::clamp<LONG>(p.x, clip->left, std::max(clip->left, clip->right - 1));
        p.y = std::clamp<LONG>(p.y, clip->top, std::max(clip->top, clip->bottom - 1));
    }
    return p;
}

// The mouse's input waits unrouted, with the keys held as it came and its click count, until
// its turn: a handler of the input before it may set the capture or lay a window under it. The
// wheel waits the same way, with the parameters of its message made as it came.
void QueueMouse(UINT message, CPoint screen, int clickCount) {
    PostInput(MSG{nullptr, message, MouseKeyFlags(), LPARAM(clickCount), GetHost().Now(), screen});
}
} // namespace

// A mouse message for the window under the cursor, or for the capture.
void wm::RouteQueuedMouse(const MSG& raw) {
    UINT message = raw.message;
    const CPoint screen = raw.pt;
    const int clickCount = int(raw.lParam);
    const auto post = [&raw](HWND hwnd, UINT routed, WPARAM wParam, LPARAM lParam) {
        PostInput(MSG{hwnd, routed, wParam, lParam, raw.time, raw.pt});
    };
    if (message == WM_MOUSEWHEEL) {
        // The wheel turns what holds the mouse, or what is under it, or what has the focus.
        HWND target = GetCapture();
        if (!target)
            target = WindowFromPoint(screen);
        if (!target)
            target = GetFocus();
        if (target && IsWindowEnabled(target))
            post(target, message, raw.wParam, raw.lParam);
        return;
    }
    if (TrackScrollBarMouse(message, screen) || TrackSizeMoveMouse(message, screen))
        return;
    if (HWND capture = GetCapture()) {
        CPoint client = screen;
        ScreenToClient(capture, &client);
        post(capture, message, raw.wParam, PackPoint(client));
        return;
    }
    const HWND target = WindowFromPoint(screen);
    WindowRecord* w = Find(target);
    if (!w || !IsWindowEnabled(target))
        return;
    const bool press =
        message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
    if (press) {
        const HWND top = GetAncestor(target, GA_ROOT);
        if (top != GetActiveWindow())
            SetActiveWindow(top);
    }
    const int hit = int(SendMessage(target, WM_NCHITTEST, 0, PackPoint(screen)));
    if (!Find(target))
        return;
    if (press) {
        // The window (or, through the default procedure, an ancestor) may take the press as
        // its activation only.
        const LRESULT answer =
            SendMessage(target, WM_MOUSEACTIVATE, WPARAM(GetAncestor(target, GA_ROOT)),
                        MAKELPARAM(WORD(hit), WORD(message)));
        if (!Find(target) || answer == MA_ACTIVATEANDEAT || answer == MA_NOACTIVATEANDEAT)
            return;
    }
    SendMessage(target, WM_SETCURSOR, WPARAM(target), MAKELPARAM(WORD(hit), WORD(message)));
    if (!(w = Find(target)))
        return;
    if (press && clickCount >= 2 && clickCount % 2 == 0 && (w->classStyle & CS_DBLCLKS))
        message += WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;
    if (hit == HTCLIENT) {
        CPoint client = screen;
        ScreenToClient(target, &client);
        post(target, message, raw.wParam, PackPoint(client));
    } else if (hit != HTNOWHERE && hit != HTTRANSPARENT && hit != HTERROR) {
        post(target, message - WM_MOUSEMOVE + WM_NCMOUSEMOVE, WPARAM(hit), PackPoint(screen));
    }
}

namespace {

UINT ButtonMessage(UINT button, bool down) {
    switch (button) {
    case VK_RBUTTON:
        return down ? WM_RBUTTONDOWN : WM_RBUTTONUP;
    case VK_MBUTTON:
        return down ? WM_MBUTTONDOWN : WM_MBUTTONUP;
    default:
        return down ? WM_LBUTTONDOWN : WM_LBUTTONUP;
    }
}

// The character TranslateMessage makes of the last key pressed, or -1: a display reports it
// once more as typed text, which must not arrive twice.
int& TranslatedChar() {
    static int ch = -1;
    return ch;
}

HWND KeyboardTarget() {
    // An open menu takes the keys, wherever the focus is.
    if (HWND menu = MenuInputWindow())
        return menu;
    if (HWND focus = GetFocus())
        return focus;
    return GetActiveWindow();
}
} // namespace

void InjectMouseMove(POINT screen) {
    const CPoint p = ClipToCursorArea(screen);
    Input().cursorPos = p;
    QueueMouse(WM_MOUSEMOVE, p, 1);
}

void InjectMouseButton(UINT button, bool down, POINT screen, int clickCount) {
    if (button != VK_LBUTTON && button != VK_RBUTTON && button != VK_MBUTTON)
        return;
    const CPoint p = ClipToCursorArea(screen);
    Input().cursorPos = p;
    SetKey(button, down);
    QueueMouse(ButtonMessage(button, down), p, clickCount);
}

void InjectMouseWheel(POINT screen, int delta) {
    const CPoint p = ClipToCursorArea(screen);
    Input().cursorPos = p;
    const WPARAM wParam = MAKEWPARAM(WORD(MouseKeyFlags()), WORD(short(delta)));
    PostInput(MSG{nullptr, WM_MOUSEWHEEL, wParam, PackPoint(p), GetHost().Now(), p});
}

void InjectKey(UINT vk, bool down) {
    vk &= 0xFF;
    const bool wasDown = (Input().keys[vk] & 0x80) != 0;
    SetKey(vk, down);
    if (vk == VK_LSHIFT || vk == VK_RSHIFT)
        SetKey(vk = VK_SHIFT, down);
    else if (vk == VK_LCONTROL || vk == VK_RCONTROL)
        SetKey(vk = VK_CONTROL, down);
    if (down) {
        const auto& keys = Input().keys;
        const auto ch =
            CharFromKey(vk, (keys[VK_SHIFT] & 0x80) != 0, (keys[VK_CONTROL] & 0x80) != 0);
        TranslatedChar() = ch ? int(static_cast<unsigned char>(*ch)) : -1;
    }
    const HWND target = KeyboardTarget();
    if (!target)
        return;
    const bool alt = (Input().keys[VK_MENU] & 0x80) != 0;
    // F10 is the keyboard's way into the menu bar, so it is a system key like Alt.
    const bool system =
        (alt && !(Input().keys[VK_CONTROL] & 0x80)) || vk == VK_MENU || vk == VK_F10;
    UINT message = down ? WM_KEYDOWN : WM_KEYUP;
    if (system)
        message = down ? WM_SYSKEYDOWN : WM_SYSKEYUP;
    LPARAM lParam = 1;
    if (alt)
        lParam |= LPARAM(1) << 29;
    if (wasDown)
        lParam |= LPARAM(1) << 30;
    if (!down)
        lParam |= LPARAM(1) << 31;
    PostInput(MSG{target, message, vk, lParam, GetHost().Now(), Input().cursorPos});
}

void InjectChar(UINT ch) {
    if (const HWND target = KeyboardTarget())
        PostInput(MSG{target, WM_CHAR, ch, 1, GetHost().Now(), Input().cursorPos});
}

void InjectText(const char* text) {
    for (const char* c = text; c && *c; ++c) {
        const int ch = static_cast<unsigned char>(*c);
        if (ch == TranslatedChar())
            TranslatedChar() = -1;
        else
            InjectChar(UINT(ch));
    }
    TranslatedChar() = -1;
}

void InjectDroppedText(POINT screen, const char* text) {
    if (text)
        DeliverDroppedText(screen, text);
}

void InjectWindowMoved(HWND window, POINT screenTopLeft) {
    const WindowRecord* w = Find(window);
    if (!w || !IsTopLevel(*w) || w->rect.TopLeft() == CPoint(screenTopLeft))
        return;
    SetWindowPos(window, nullptr, screenTopLeft.x, screenTopLeft.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void InjectWindowResized(HWND window, SIZE size) {
    const WindowRecord* w = Find(window);
    if (!w || !IsTopLevel(*w) || w->rect.Size() == CSize(size))
        return;
    ApplyHostSize(window, size);
}

void InjectCloseRequest(HWND window) {
    // Closing waits its turn behind the input before it, as a click on a close box would.
    if (const WindowRecord* w = Find(window); w && IsTopLevel(*w))
        PostMessage(window, WM_CLOSE);
}

void InjectActivation(HWND window, bool active) {
    if (active) {
        // A pop-up menu's or a list's window (a pop-up without a caption) gets the display's
        // focus without taking the activation from its owner; a dialog, though a pop-up too,
        // becomes the active window.
        const WindowRecord* w = Find(window);
        const bool barePopup = w && (w->style & WS_POPUP) && (w->style & WS_CAPTION) != WS_CAPTION;
        if (w && !barePopup && IsWindowEnabled(window) && GetActiveWindow() != window)
            SetActiveWindow(window);
        return;
    }
    if (window)
        return;
    EndMenu();
    if (const WindowRecord* capture = Find(GetCapture());
        capture && IsTopLevel(*capture) && (capture->style & WS_POPUP))
        ReleaseCapture();
}

void SetKeyHeld(UINT vk, bool down) {
    SetKey(vk, down);
}

BOOL TranslateMessage(const MSG* msg) {
    if (!msg || (msg->message != WM_KEYDOWN && msg->message != WM_SYSKEYDOWN))
        return FALSE;
    const auto& keys = Input().keys;
    const bool shift = (keys[VK_SHIFT] & 0x80) != 0;
    const bool control = (keys[VK_CONTROL] & 0x80) != 0;
    const auto ch = CharFromKey(UINT(msg->wParam), shift, control);
    if (!ch)
        return FALSE;
    const UINT message = msg->message == WM_SYSKEYDOWN ? WM_SYSCHAR : WM_CHAR;
    PostMessage(msg->hwnd, message, WPARAM(BYTE(*ch)), msg->lParam);
    return TRUE;
}
