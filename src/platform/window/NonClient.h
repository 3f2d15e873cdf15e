#pragma once

// The parts of the non-client area that drawing and hit testing share. Internal to the window
// layer.

#include "platform/base/Rect.h"

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

} // namespace wm
