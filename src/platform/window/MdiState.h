#pragma once

// What the MDI frame classes ask of the "MDIClient" window beyond its messages. Internal to
// the window layer.

#include "platform/base/Rect.h"
#include "platform/window/WindowApi.h"

namespace wm {

extern const char* const kMdiClientClass;
void RegisterMdiClientClass();
// Where a new document window goes: a CW_USEDEFAULT position takes the cascade's next place
// and the default size.
CRect PlaceNewChild(HWND client, CRect requested);
// A document window just made joins the client: it becomes the active one (maximised if the
// others were).
void AdoptChild(HWND client, HWND child);
// A document window is going: the next one in the z-order becomes active.
void ChildGoing(HWND client, HWND child);
HWND ActiveMdiChild(HWND client);

} // namespace wm
