#pragma once

// The parts of the non-client area that drawing and hit testing share. Internal to the window
// layer.

#include "platform/base/Rect.h"
#include "platform/window/WindowApi.h"

namespace wm {

struct WindowRecord;

// The caption's buttons in window coordinates; an empty rectangle for a button the window's
// style leaves out.
struct CaptionButtons {
    CRect close, maximize, minimize;
};
CaptionButtons GetCaptionButtons(const WindowRecord& w);
// Whether the window's caption shows active: a top-level window when it is the active one, a
// document window of a multiple-document frame when it is the frame's active one.
bool ShowsActiveCaption(const WindowRecord& w);
void DrawFrame(const WindowRecord& w, HDC windowDC);

// The window's limits: the defaults of its kind, as its WM_GETMINMAXINFO changed them.
MINMAXINFO GetMinMaxInfo(HWND hwnd);
// Starts moving (HTCAPTION) or sizing (HTLEFT ... HTBOTTOMRIGHT) a window with the mouse.
void BeginSizeMove(HWND hwnd, int hit, CPoint screen);
// Takes the mouse's messages while a window is being moved or sized; false when none is.
bool TrackSizeMoveMouse(UINT message, CPoint screen);
// A size the host gave a top-level window, kept within the window's limits.
void ApplyHostSize(HWND hwnd, CSize size);
// Tells the host the limits of a resizable top-level window, for a display's own resizing.
void ShareSizeLimits(HWND hwnd);

} // namespace wm
