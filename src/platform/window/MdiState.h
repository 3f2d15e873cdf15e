#pragma once

// What the MDI frame classes ask of the "MDIClient" window beyond its messages. Internal to
// the window layer.

#include "platform/base/Rect.h"
#include "platform/window/WindowApi.h"

namespace wm {

struct WindowRecord;

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
// The document window shown maximised in `frame`'s MDI client, or null.
HWND MaximizedMdiChild(HWND frame);

// While a document window is maximised its frame's menu bar carries its system-menu icon at the
// left and its minimise, restore and close buttons at the right (MdiBarControls.cpp). Places
// are in the frame's window coordinates; `child` is null, and the places empty, otherwise.
struct MdiBarControls {
    HWND child = nullptr;
    CRect icon, minimize, restore, close;
};
MdiBarControls GetMdiBarControls(const WindowRecord& frame);
// Works the control under a press at `screen` on the frame's non-client area; false when the
// press is on none of them.
bool PressMdiBarControl(HWND frame, CPoint screen);

} // namespace wm
