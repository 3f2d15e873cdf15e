#pragma once

// The seam between windows and drawing: the window layer asks for a device context that draws
// on a window's part of its top-level surface.

#include "platform/base/Rect.h"
#include "platform/gdi/Surface.h"

// A device context on `surface` whose logical (0, 0) is the surface point `origin` and whose
// drawing is clipped to `clip`, a rectangle in surface coordinates. Free it with DeleteDC.
ORVA_API HDC CreateSurfaceDC(Surface* surface, POINT origin, const RECT& clip);
