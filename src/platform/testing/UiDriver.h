#pragma once

// The UI driver: plays the user for tests and applications. Points are client coordinates of
// the window named. `keys` holds MK_CONTROL and MK_SHIFT down for the length of an action
// without sending their own key messages, as if the user had pressed them before. Every action
// ends by pumping the messages it caused, so its effects are visible when it returns.

#include "platform/base/Export.h"
#include "platform/base/Messages.h"
#include "platform/base/Rect.h"

#include <vector>

class ORVA_API UiDriver {
public:
    // The mouse.
    void MouseMove(HWND window, POINT client, UINT keys = 0);
    void MouseDown(HWND window, POINT client, UINT button = VK_LBUTTON, UINT keys = 0);
    void MouseUp(HWND window, POINT client, UINT button = VK_LBUTTON, UINT keys = 0);
    void Click(HWND window, POINT client, UINT keys = 0);
    void RightClick(HWND window, POINT client, UINT keys = 0);
    // Two clicks in quick succession: the second press is a double click.
    void DoubleClick(HWND window, POINT client, UINT keys = 0);
    // Press at `from`, move in `steps` even steps to `to`, release there.
    void Drag(HWND window, POINT from, POINT to, UINT keys = 0, int steps = 4);
    // Turns the wheel by `delta` (WHEEL_DELTA a notch; positive scrolls up).
    void Wheel(HWND window, POINT client, int delta, UINT keys = 0);

    // The keyboard, to the focus window.
    void KeyDown(UINT virtualKey, UINT keys = 0);
    void KeyUp(UINT virtualKey, UINT keys = 0);
    void PressKey(UINT virtualKey, UINT keys = 0); // down, then up
    // Types text key by key (WM_KEYDOWN, WM_CHAR, WM_KEYUP), with Shift where the character
    // needs it; a character no key makes arrives as WM_CHAR alone.
    void Type(const char* text);

    // Time and messages. Advance lets the virtual clock run, firing each timer as it comes due.
    void Advance(DWORD milliseconds);
    void Pump();
    bool QuitPosted() const { return m_quit; }

    // Pixels, once pending painting is done. CLR_INVALID outside the window.
    COLORREF Pixel(HWND window, POINT client);
    // Saves the whole window (frame included) as a PNG file.
    bool SavePng(HWND window, const char* path);
    // Saves the window as a display shows it: with the visible top-level windows above it (open
    // menus, dropped lists, the windows it owns) drawn over it. The window is left as it was.
    bool SaveScreenPng(HWND window, const char* path);

private:
    // Saves `window` with each of `layers`, from the bottom up, drawn where it lies over it.
    bool SaveLayers(HWND window, const std::vector<HWND>& layers, const char* path);
    void Button(HWND window, POINT client, UINT button, bool down, UINT keys, int clickCount);
    CPoint ToScreen(HWND window, POINT client) const;

    bool m_quit = false;
};
