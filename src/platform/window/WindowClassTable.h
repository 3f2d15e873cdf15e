#pragma once

// The registered window classes, for the window manager's creation of windows.

#include "platform/window/WindowApi.h"

namespace wm {
// The class registered under `name`, or null.
const WNDCLASS* FindClass(LPCSTR name);
} // namespace wm
