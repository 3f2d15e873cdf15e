#pragma once

// The window layer of the plots: a chart needs a host window, and these functions make one of
// three kinds (a document child, a free top-level window, or a canvas control the application
// placed), file it by plot identifier, close it, and tell the application as it goes.

#include "platform/base/Export.h"
#include "platform/base/Rect.h"
#include "platform/base/WinTypes.h"

// Run as a host window goes, while its chart is still alive.
using PlotClosedCallback = void (*)(int id, HWND chart);

// Answers the chart's handle, or null. With `controlId` -1 a window already filed under `id`
// is shared; otherwise `parent` is a canvas and its chart, if any, is replaced.
ORVA_API HWND CreatePlotWindow(int chartType, const char* title, int id, int controlId, HWND parent,
                               CRect* rect, unsigned char topLevel);
ORVA_API HWND CreatePlotWindow(int chartType, const char* title, int id, int controlId, HWND parent,
                               CRect* rect, int topLevel);
// A document child whose chart is read from a chart file; top-level windows cannot read one
// and answer null.
ORVA_API HWND OpenPlotFileWindow(const char* path, const char* title, CRect* rect, int id,
                                 unsigned char topLevel);
// Closes the host of this chart: 1, or -1 if no host holds it.
ORVA_API int ClosePlotWindow(int id, HWND chart);
ORVA_API void SetPlotClosedCallback(PlotClosedCallback callback);
