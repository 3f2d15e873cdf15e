#pragma once

// The user's input, delivered to the windows as the framework would: hosts call these for the
// events of a display, the UI driver calls them for tests. Points are in screen coordinates.
// Mouse and key messages wait in the input queue behind posted messages; nothing is
// dispatched until the messages are pumped. The mouse's input finds its window (the capture,
// or the window under it) only when its turn comes, after the input before it was handled.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <optional>

// Moves the cursor; the window under it (or the capture) gets WM_MOUSEMOVE.
ORVA_API void InjectMouseMove(POINT screen);
// Presses or releases VK_LBUTTON, VK_RBUTTON or VK_MBUTTON. A second press of a double click
// (clickCount 2) becomes a double-click message in windows whose class asks for them.
ORVA_API void InjectMouseButton(UINT button, bool down, POINT screen, int clickCount = 1);
// Turns the wheel by `delta` (WHEEL_DELTA a notch, positive away from the user).
ORVA_API void InjectMouseWheel(POINT screen, int delta);
// A key goes down or up: WM_KEYDOWN or WM_KEYUP (WM_SYSKEY... with Alt) to the focus window.
ORVA_API void InjectKey(UINT virtualKey, bool down);
// A typed character that no key of the layout makes: WM_CHAR to the focus window.
ORVA_API void InjectChar(UINT ch);
// What the display did to a top-level window: the user moved or resized it (sizes are kept
// within the window's WM_GETMINMAXINFO limits), asked to close it, or it got or lost the
// keyboard focus of the display. A null window losing the focus means the application did:
// open menus and other pop-ups close.
ORVA_API void InjectWindowMoved(HWND window, POINT screenTopLeft);
ORVA_API void InjectWindowResized(HWND window, SIZE size);
ORVA_API void InjectCloseRequest(HWND window);
ORVA_API void InjectActivation(HWND window, bool active);
// Text a display typed (Latin-1): WM_CHAR for each character, except the one character that
// TranslateMessage already makes of the key just pressed.
ORVA_API void InjectText(const char* text);
// Text another program dropped on a display at a screen point: the drop target registered
// under the point takes it as a copy.
ORVA_API void InjectDroppedText(POINT screen, const char* text);
// Changes a key's state without a message, as if it had been held before the test began.
ORVA_API void SetKeyHeld(UINT virtualKey, bool down);
// The clock time at which the next timer comes due, if any timer is set.
ORVA_API std::optional<DWORD> NextTimerDueTime();
