#pragma once

// The drop arrow that cells with a list or a picker show at their right edge: the platform's
// scroll-down arrow control, of the platform's scroll arrow size.

#include "platform/base/Rect.h"

class CDC;

// The platform's scroll arrow size, shrunk to one pixel less than a smaller `cell`.
CSize DropArrowSize(const CRect& cell);
// The arrow at the top right corner of `cell`, which it keeps in a tall cell too.
CRect TopRightDropArrow(const CRect& cell);
// Whether `point`, relative to the top-left corner of `cell`, lies on its top right arrow.
bool IsOnTopRightDropArrow(CPoint point, const CRect& cell);
void DrawDropArrow(CDC* dc, CRect arrow);
