#pragma once

// The flat interface to the plots: find a plot by chart or identifier through g_plotList and
// forward to it. The file primitives are in PlotFileValues.h.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"
#include "platform/gdi/GdiTypes.h"
#include "support/StdStr.h"

#include <bitset>

class ERightMenu;

// Update-set codes of pmUpdatePlots(int, void*): 35 is everything (bits 0 to 25 and 35),
// 37 to 41 stand for the pairs 0-1, 2-3, 4-5, 6-7 and 8-9; 0 to 34 are single bits.
constexpr int PM_UPDATE_ALL = 35;

ORVA_API void pmPlotData();
ORVA_API unsigned char pmPlotDataExists();
// With 0, a closing chart window deletes its plot.
ORVA_API void pmPlotDefaults(unsigned char flag);
ORVA_API void pmPlotWindowNotify(int id, HWND chart);
ORVA_API int pmHandlePlotEvent(unsigned short code, HWND chart, int unused = 0);
// An impossible code throws std::out_of_range, as the bit set does.
ORVA_API void pmUpdatePlots(int which, void* data);
// Tells every plot, then clears the caller's set.
ORVA_API void pmUpdatePlots(std::bitset<36>& which, void* data);
ORVA_API void pmGetPlotIds(int* count, int** ids, zvk::CStdStr<char> type);
ORVA_API void pmDeletePlots(zvk::CStdStr<char> type);
ORVA_API void pmChangeSelectedPoint(int point);
ORVA_API unsigned char pmExportPlotFile(const char* path);
ORVA_API unsigned char pmImportPlotFile(const char* path);
ORVA_API unsigned char pmImportPlotsZVDF(int source);
ORVA_API unsigned char pmGetBestFitFormula(HWND chart, int curve, zvk::CStdStr<char>& text);
ORVA_API int pmGetLegendLocation(HWND chart);
ORVA_API unsigned long pmGetPlotColor(int index);
ORVA_API void pmGetPlotDCBitmap(int id, HDC* dc, HBITMAP* bitmap);
// The identifier must be one that exists.
ORVA_API unsigned char pmSetExtremeYValues(int id);
ORVA_API void pmSetUpBasicMenus(ERightMenu& menu, int mask);
ORVA_API void pmActivePlotDisplayOptions();
