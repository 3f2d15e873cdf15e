#pragma once

// The chart's interface: a chart is a child window reached by its handle, and these functions
// read and write its numbered properties, redraw it, convert coordinates and write it out.
// Results follow the operations' own conventions: 1 or nonzero for success, 0 or -1 for
// failure; nothing throws.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

ORVA_DECLARE_HANDLE(HMETAFILE);

// The window class of every chart.
inline constexpr const char* kChartWindowClass = "ORVAChartWnd";

// Notification codes, sent to the parent in the high word of WM_COMMAND's first parameter.
constexpr unsigned short CHARTN_CLICK = 3954;
constexpr unsigned short CHARTN_DBLCLICK = 3955;
constexpr unsigned short CHARTN_ZOOMIN = 3966;
constexpr unsigned short CHARTN_RBUTTON = 3968;
constexpr unsigned short CHARTN_MOUSEMOVE = 3969;
constexpr unsigned short CHARTN_BUTTONUP = 3971;
constexpr unsigned short CHARTN_CUSTOMIZED = 3974;

ORVA_API int ChartSetArray(HWND chart, int property, const void* values, int count);
ORVA_API int ChartGetArray(HWND chart, int property, void* out);
ORVA_API int ChartSetElement(HWND chart, int property, int index, const void* value);
ORVA_API int ChartGetElement(HWND chart, int property, int index, void* out);
ORVA_API int ChartSetInt(HWND chart, int property, int value);
ORVA_API int ChartGetInt(HWND chart, int property);
ORVA_API int ChartSetString(HWND chart, int property, const char* text);
ORVA_API int ChartGetString(HWND chart, int property, char* buffer);
ORVA_API int ChartSetCell(HWND chart, int property, int curve, int point, const double* value);

ORVA_API HWND ChartCreate(int chartType, int reserved, RECT* clientRect, HWND parent,
                          int controlId);
ORVA_API int ChartDestroy(HWND chart);
ORVA_API int ChartReinitialize(HWND chart);
ORVA_API int ChartResetImage(HWND chart, int, int);
// The redraw sequence: reinitialise, reset the image, invalidate the window.
ORVA_API void ChartRedraw(HWND chart);

ORVA_API int ChartPixelToGraph(HWND chart, int* axis, int* x, int* y, double* gx, double* gy,
                               bool toPixel, bool, bool);
ORVA_API int ChartEncodeDateTime(double* serial, int* fields, int count);

// The chart's picture as SVG. Free it with ChartDeleteMetafile; read it with
// ChartMetafileText.
ORVA_API HMETAFILE ChartGetMetafile(HWND chart);
ORVA_API const char* ChartMetafileText(HMETAFILE metafile, int* size);
ORVA_API void ChartDeleteMetafile(HMETAFILE metafile);
// Both copies replace the clipboard's content: the picture as "image/svg+xml", the bitmap as
// "image/png", each in its registered clipboard format.
ORVA_API int ChartCopyMetaToClipboard(HWND chart, int* size);
ORVA_API int ChartCopyBitmapToClipboard(HWND chart, int* size);
ORVA_API int ChartCopyBitmapToFile(HWND chart, int* size, const char* path);
ORVA_API int ChartPrint(HWND chart, int, int);
// Where ChartPrint writes its PDF.
ORVA_API const char* ChartLastPrintFile();

ORVA_API int ChartStore(HWND chart, const char* path);
ORVA_API int ChartLoad(HWND chart, const char* path);
ORVA_API HWND ChartCreateFromFile(const char* path, HWND parent, RECT* clientRect, int controlId);

// The chart's own dialogs (their controls in ChartDialogIds.h). Each runs modally, over the
// chart's top-level window, and returns once the user has closed it; with nobody to answer, as
// on the headless host, it is cancelled at once. Customize answers 1 after OK, when it has
// written the chart's properties, redrawn it and sent CHARTN_CUSTOMIZED; export answers 1 once
// the chart is written; the maximised view answers 1 when closed. 0 for a window that is no
// chart, and for Cancel, which changes nothing.
ORVA_API int ChartCustomizeDialog(HWND chart);
ORVA_API int ChartExportDialog(HWND chart);
ORVA_API int ChartMaximize(HWND chart);

class ChartEngine;
// The engine behind a chart window, or null.
ORVA_API ChartEngine* ChartEngineOf(HWND chart);
