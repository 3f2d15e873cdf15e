#pragma once

// The seam between windows and drawing, for the hosts, the window layer's painting, the UI
// driver and what renders into a context's pixels directly (the chart): a device context on a
// window's part of its top-level surface, and the surface behind a context.

#include "platform/base/Rect.h"
#include "platform/gdi/Surface.h"

// A device context on `surface` whose logical (0, 0) is the surface point `origin` and whose
// drawing is clipped to `clip`, a rectangle in surface coordinates. Free it with DeleteDC.
ORVA_API HDC CreateSurfaceDC(Surface* surface, POINT origin, const RECT& clip);

// The surface that a context draws on and its device origin there.
ORVA_API Surface* GdiSurfaceOf(HDC dc, POINT* origin = nullptr);
