#pragma once

// The four message box icons (MB_ICONHAND, MB_ICONQUESTION, MB_ICONEXCLAMATION,
// MB_ICONASTERISK), drawn in the classic look within a 32 by 32 pixel box.

#include "platform/gdi/DC.h"

constexpr int kMessageBoxIconSize = 32;

void DrawMessageBoxIcon(CDC& dc, POINT topLeft, UINT icon);
