#pragma once

// The framework's message box shown through SDL: the button set of the box's type, its default
// button and the answer for Escape or closing the box.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <vector>

struct MessageBoxButton {
    int id; // IDOK, IDYES, ...
    const char* label;
};

struct MessageBoxButtons {
    std::vector<MessageBoxButton> buttons; // left to right
    int defaultId;                         // the answer for Enter
    int escapeId;                          // the answer for Escape or for closing the box
};

ORVA_API MessageBoxButtons MessageBoxButtonsOf(UINT type);

struct SDL_Window;
// Shows the box over `parent` (may be null) and answers the button chosen, or the default
// button when SDL cannot show a box.
int ShowSdlMessageBox(SDL_Window* parent, const char* text, const char* caption, UINT type);
