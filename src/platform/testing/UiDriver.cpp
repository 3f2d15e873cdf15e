#include "platform/testing/UiDriver.h"

#include "platform/gdi/DC.h"
#include "platform/gdi/SurfaceDC.h"
#include "platform/host/Host.h"
#include "platform/window/Input.h"
#include "platform/window/KeyboardLayout.h"
#include "platform/window/WindowApi.h"

#include <cstring>

namespace {
// Holds the modifier keys that `keys` names for the life of an action, then restores them.
class HeldKeys {
public:
    explicit HeldKeys(UINT keys) {
        Hold(VK_CONTROL, (keys & MK_CONTROL) != 0, m_control);
        Hold(VK_SHIFT, (keys & MK_SHIFT) != 0, m_shift);
    }
    ~HeldKeys() {
        if (m_control)
            SetKeyHeld(VK_CONTROL, false);
        if (m_shift)
            SetKeyHeld(VK_SHIFT, false);
    }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    static void Hold(UINT vk, bool wanted, bool& held) {
        held = wanted && !(GetAsyncKeyState(int(vk)) & 0x8000);
        if (held)
            SetKeyHeld(vk, true);
    }
    bool m_control = false;
    bool m_shift = false;
};
} // namespace

CPoint UiDriver::ToScreen(HWND window, POINT client) const {
    POINT p = client;
    ClientToScreen(window, &p);
    return p;
}

void UiDriver::Pump() {
    if (PumpMessages())
        m_quit = true;
}

void UiDriver::MouseMove(HWND window, POINT client, UINT keys) {
    HeldKeys held(keys);
    InjectMouseMove(ToScreen(window, client));
    Pump();
}

void UiDriver::Button(HWND window, POINT client, UINT button, bool down, UINT keys,
                      int clickCount) {
    HeldKeys held(keys);
    const CPoint screen = ToScreen(window, client);
    POINT cursor;
    GetCursorPos(&cursor);
    if (CPoint(cursor) != screen) {
        InjectMouseMove(screen);
        Pump();
    }
    InjectMouseButton(button, down, screen, clickCount);
    Pump();
}

void UiDriver::MouseDown(HWND window, POINT client, UINT button, UINT keys) {
    Button(window, client, button, true, keys, 1);
}

void UiDriver::MouseUp(HWND window, POINT client, UINT button, UINT keys) {
    Button(window, client, button, false, keys, 1);
}

void UiDriver::Click(HWND window, POINT client, UINT keys) {
    Button(window, client, VK_LBUTTON, true, keys, 1);
    Button(window, client, VK_LBUTTON, false, keys, 1);
}

void UiDriver::RightClick(HWND window, POINT client, UINT keys) {
    Button(window, client, VK_RBUTTON, true, keys, 1);
    Button(window, client, VK_RBUTTON, false, keys, 1);
}

void UiDriver::DoubleClick(HWND window, POINT client, UINT keys) {
    Click(window, client, keys);
    Button(window, client, VK_LBUTTON, true, keys, 2);
    Button(window, client, VK_LBUTTON, false, keys, 2);
}

void UiDriver::Drag(HWND window, POINT from, POINT to, UINT keys, int steps) {
    MouseDown(window, from, VK_LBUTTON, keys);
    steps = steps < 1 ? 1 : steps;
    for (int i = 1; i <= steps; ++i) {
        const CPoint p(from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps);
        MouseMove(window, p, keys);
    }
    MouseUp(window, to, VK_LBUTTON, keys);
}

void UiDriver::Wheel(HWND window, POINT client, int delta, UINT keys) {
    HeldKeys held(keys);
    InjectMouseWheel(ToScreen(window, client), delta);
    Pump();
}

void UiDriver::KeyDown(UINT virtualKey, UINT keys) {
    HeldKeys held(keys);
    InjectKey(virtualKey, true);
    Pump();
}

void UiDriver::KeyUp(UINT virtualKey, UINT keys) {
    HeldKeys held(keys);
    InjectKey(virtualKey, false);
    Pump();
}

void UiDriver::PressKey(UINT virtualKey, UINT keys) {
    HeldKeys held(keys);
    InjectKey(virtualKey, true);
    Pump();
    InjectKey(virtualKey, false);
    Pump();
}

void UiDriver::Type(const char* text) {
    for (const char* c = text; c && *c; ++c) {
        const auto stroke = KeyFromChar(*c);
        if (!stroke) {
            InjectChar(UINT(BYTE(*c)));
            Pump();
            continue;
        }
        PressKey(stroke->virtualKey, stroke->shift ? MK_SHIFT : 0);
    }
}

void UiDriver::Advance(DWORD milliseconds) {
    Host& host = GetHost();
    const DWORD target = host.Now() + milliseconds;
    Pump();
    for (;;) {
        const auto due = NextTimerDueTime();
        const DWORD now = host.Now();
        // Unsigned differences keep the comparison right across the clock's wrap.
        if (!due || DWORD(*due - now) > DWORD(target - now))
            break;
        if (DWORD(*due - now) > 0 && !host.AdvanceClock(*due - now))
            break;
        Pump();
    }
    const DWORD now = host.Now();
    if (DWORD(target - now) < 0x80000000u && target != now)
        host.AdvanceClock(target - now);
    Pump();
}

COLORREF UiDriver::Pixel(HWND window, POINT client) {
    Pump();
    const HWND top = GetAncestor(window, GA_ROOT);
    Surface* surface = GetHost().GetWindowSurface(top);
    RECT bounds;
    if (!surface || !GetClientRect(window, &bounds) || !PtInRect(&bounds, client))
        return CLR_INVALID;
    CPoint p = ToScreen(window, client);
    RECT topRect;
    GetWindowRect(top, &topRect);
    return surface->GetPixel(p.x - topRect.left, p.y - topRect.top);
}

bool UiDriver::SavePng(HWND window, const char* path) {
    return SaveLayers(window, {window}, path);
}

bool UiDriver::SaveScreenPng(HWND window, const char* path) {
    // Top-level windows run from the top of the z-order down: those met before the window's
    // own top-level window lie above it, and are drawn after it, the lowest first.
    const HWND root = GetAncestor(window, GA_ROOT);
    std::vector<HWND> layers{window};
    for (HWND top = GetTopWindow(nullptr); top && top != root; top = GetWindow(top, GW_HWNDNEXT)) {
        if (IsWindowVisible(top))
            layers.insert(layers.begin() + 1, top);
    }
    return SaveLayers(window, layers, path);
}

bool UiDriver::SaveLayers(HWND window, const std::vector<HWND>& layers, const char* path) {
    Pump();
    RECT rect;
    if (!path || !GetWindowRect(window, &rect))
        return false;
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    if (width <= 0 || height <= 0)
        return false;
    Surface picture(width, height);
    HDC target = CreateSurfaceDC(&picture, POINT{0, 0}, RECT{0, 0, width, height});
    for (HWND layer : layers) {
        RECT bounds;
        GetWindowRect(layer, &bounds);
        HDC source = GetWindowDC(layer);
        BitBlt(target, bounds.left - rect.left, bounds.top - rect.top, bounds.right - bounds.left,
               bounds.bottom - bounds.top, source, 0, 0, SRCCOPY);
        ReleaseDC(layer, source);
    }
    DeleteDC(target);
    return picture.SavePng(path);
}
