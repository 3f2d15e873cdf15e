#pragma once

// What the user's input has left behind: keys held and toggled, the cursor, and a scroll bar
// being tracked by the mouse. Internal to the window manager.

#include "platform/base/Rect.h"

#include <array>
#include <optional>

namespace wm {

struct InputState {
    std::array<BYTE, 256> keys{}; // bit 7: down; bit 0: toggled by each press
    CPoint cursorPos;
    HCURSOR cursor = nullptr;
    std::optional<CRect> cursorClip;

    // A scroll bar of `trackingWindow` follows the mouse until the button goes up.
    HWND trackingWindow = nullptr;
    int trackingBar = 0;        // SB_HORZ or SB_VERT
    int trackingPart = 0;       // the SB_ code that the press sent
    int trackingGrabOffset = 0; // where in the thumb the mouse took hold
};

InputState& Input();

} // namespace wm
