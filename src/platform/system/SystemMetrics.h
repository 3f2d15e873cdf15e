#pragma once

// Sizes of the system's user-interface elements, with the classic values at 96 DPI on a
// 1920 x 1080 screen, so that layouts come out the same on every machine.

#include "platform/base/Export.h"

constexpr int SM_CXSCREEN = 0;
constexpr int SM_CYSCREEN = 1;
constexpr int SM_CXVSCROLL = 2;
constexpr int SM_CYHSCROLL = 3;
constexpr int SM_CYCAPTION = 4;
constexpr int SM_CXBORDER = 5;
constexpr int SM_CYBORDER = 6;
constexpr int SM_CXDLGFRAME = 7;
constexpr int SM_CXFIXEDFRAME = 7;
constexpr int SM_CYDLGFRAME = 8;
constexpr int SM_CYFIXEDFRAME = 8;
constexpr int SM_CYVTHUMB = 9;
constexpr int SM_CXHTHUMB = 10;
constexpr int SM_CXICON = 11;
constexpr int SM_CYICON = 12;
constexpr int SM_CXCURSOR = 13;
constexpr int SM_CYCURSOR = 14;
constexpr int SM_CYMENU = 15;
constexpr int SM_CXFULLSCREEN = 16;
constexpr int SM_CYFULLSCREEN = 17;
constexpr int SM_CYKANJIWINDOW = 18;
constexpr int SM_MOUSEPRESENT = 19;
constexpr int SM_CYVSCROLL = 20;
constexpr int SM_CXHSCROLL = 21;
constexpr int SM_DEBUG = 22;
constexpr int SM_SWAPBUTTON = 23;
constexpr int SM_CXMIN = 28;
constexpr int SM_CYMIN = 29;
constexpr int SM_CXSIZE = 30;
constexpr int SM_CYSIZE = 31;
constexpr int SM_CXFRAME = 32;
constexpr int SM_CXSIZEFRAME = 32;
constexpr int SM_CYFRAME = 33;
constexpr int SM_CYSIZEFRAME = 33;
constexpr int SM_CXMINTRACK = 34;
constexpr int SM_CYMINTRACK = 35;
constexpr int SM_CXDOUBLECLK = 36;
constexpr int SM_CYDOUBLECLK = 37;
constexpr int SM_CXICONSPACING = 38;
constexpr int SM_CYICONSPACING = 39;
constexpr int SM_MENUDROPALIGNMENT = 40;
constexpr int SM_CMOUSEBUTTONS = 43;
constexpr int SM_CXEDGE = 45;
constexpr int SM_CYEDGE = 46;
constexpr int SM_CXSMICON = 49;
constexpr int SM_CYSMICON = 50;
constexpr int SM_CYSMCAPTION = 51;
constexpr int SM_CXSMSIZE = 52;
constexpr int SM_CYSMSIZE = 53;
constexpr int SM_CXMENUSIZE = 54;
constexpr int SM_CYMENUSIZE = 55;
constexpr int SM_CXMAXTRACK = 59;
constexpr int SM_CYMAXTRACK = 60;
constexpr int SM_CXMAXIMIZED = 61;
constexpr int SM_CYMAXIMIZED = 62;
constexpr int SM_CXDRAG = 68;
constexpr int SM_CYDRAG = 69;
constexpr int SM_CXMENUCHECK = 71;
constexpr int SM_CYMENUCHECK = 72;
constexpr int SM_MOUSEWHEELPRESENT = 75;
constexpr int SM_XVIRTUALSCREEN = 76;
constexpr int SM_YVIRTUALSCREEN = 77;
constexpr int SM_CXVIRTUALSCREEN = 78;
constexpr int SM_CYVIRTUALSCREEN = 79;
constexpr int SM_CMONITORS = 80;
constexpr int SM_CXFOCUSBORDER = 83;
constexpr int SM_CYFOCUSBORDER = 84;

// The metric's value; 0 for an index the system does not know, as the system answers.
ORVA_API int GetSystemMetrics(int index);
