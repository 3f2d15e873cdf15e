#pragma once

// The window manager's scroll bars in the non-client area: where their parts lie, how a press
// on them scrolls, and how they are drawn. Internal to the window manager.

#include "platform/window/WindowRecord.h"

namespace wm {

// A press of the left button on a scroll bar of `hwnd` (DefWindowProc's WM_NCLBUTTONDOWN).
void BeginScrollBarTracking(HWND hwnd, int bar, CPoint screen);
// The mouse while a scroll bar is tracked; answers whether the tracking took the message.
bool TrackScrollBarMouse(UINT message, CPoint screen);
// The scroll bar under a window point (window coordinates), or -1.
int ScrollBarAt(const WindowRecord& w, CPoint windowPoint);
// The rectangle of a bar in window coordinates; empty when the bar is not shown.
CRect ScrollBarRect(const WindowRecord& w, int bar);
// Draws the window's scroll bars (and the box where they meet) on a window DC.
void DrawScrollBars(const WindowRecord& w, HDC windowDC);

} // namespace wm
