#pragma once

// The system colour table with the classic (Windows 2000) scheme. Controls ask for colours by
// index, as the framework does; tests may change an entry to exercise WM_SYSCOLORCHANGE and
// restore the scheme afterwards.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

constexpr int COLOR_SCROLLBAR = 0;
constexpr int COLOR_BACKGROUND = 1;
constexpr int COLOR_DESKTOP = 1;
constexpr int COLOR_ACTIVECAPTION = 2;
constexpr int COLOR_INACTIVECAPTION = 3;
constexpr int COLOR_MENU = 4;
constexpr int COLOR_WINDOW = 5;
constexpr int COLOR_WINDOWFRAME = 6;
constexpr int COLOR_MENUTEXT = 7;
constexpr int COLOR_WINDOWTEXT = 8;
constexpr int COLOR_CAPTIONTEXT = 9;
constexpr int COLOR_ACTIVEBORDER = 10;
constexpr int COLOR_INACTIVEBORDER = 11;
constexpr int COLOR_APPWORKSPACE = 12;
constexpr int COLOR_HIGHLIGHT = 13;
constexpr int COLOR_HIGHLIGHTTEXT = 14;
constexpr int COLOR_BTNFACE = 15;
constexpr int COLOR_3DFACE = 15;
constexpr int COLOR_BTNSHADOW = 16;
constexpr int COLOR_3DSHADOW = 16;
constexpr int COLOR_GRAYTEXT = 17;
constexpr int COLOR_BTNTEXT = 18;
constexpr int COLOR_INACTIVECAPTIONTEXT = 19;
constexpr int COLOR_BTNHIGHLIGHT = 20;
constexpr int COLOR_BTNHILIGHT = 20;
constexpr int COLOR_3DHIGHLIGHT = 20;
constexpr int COLOR_3DHILIGHT = 20;
constexpr int COLOR_3DDKSHADOW = 21;
constexpr int COLOR_3DLIGHT = 22;
constexpr int COLOR_INFOTEXT = 23;
constexpr int COLOR_INFOBK = 24;
constexpr int COLOR_HOTLIGHT = 26;
constexpr int COLOR_GRADIENTACTIVECAPTION = 27;
constexpr int COLOR_GRADIENTINACTIVECAPTION = 28;
constexpr int COLOR_MENUHILIGHT = 29;
constexpr int COLOR_MENUBAR = 30;
constexpr int COLOR_COUNT = 31;

// The colour of an element; 0 (black) for an index outside the table, as the system answers.
ORVA_API COLORREF GetSysColor(int index);

// Sets `count` entries, as the system call of the same name does (the caller tells its windows
// with WM_SYSCOLORCHANGE). Indexes outside the table are skipped. Returns FALSE if any was.
ORVA_API BOOL SetSysColors(int count, const int* elements, const COLORREF* values);

// Puts the classic scheme back in every entry.
ORVA_API void RestoreDefaultSysColors();
