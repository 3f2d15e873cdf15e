#pragma once

// The grid's notification codes and the records that carry them in WM_NOTIFY to the grid's
// owner, or its parent when it has no owner.

#include "grid/CellRange.h"
#include "grid/GridItem.h"
#include "platform/base/WinTypes.h"

constexpr int NM_CLICK = -2;
constexpr int NM_DBLCLK = -3;
constexpr int NM_RCLICK = -5;
constexpr int GV_NOTIFY_SELCHANGING = -100;
constexpr int GV_NOTIFY_SELCHANGED = -101;
constexpr int GV_NOTIFY_BEGINLABELEDIT = -105;
constexpr int GV_NOTIFY_ENDLABELEDIT = -106;
constexpr int GV_NOTIFY_BEGINDRAG = -109;
constexpr int GV_NOTIFY_CACHEHINT = -113;
constexpr int GV_NOTIFY_BEGINBULKEDIT = -135;
constexpr int GV_NOTIFY_ENDBULKEDIT = -136;
constexpr int GV_NOTIFY_GETDISPINFO = -150;
constexpr int GV_NOTIFY_CELLBUTTON = 0x401;

// A cell notification: which cell it concerns.
struct GV_NMGRID {
    NMHDR hdr;
    int iRow;
    int iColumn;
};

// The display request of virtual mode: the receiver fills `item`.
struct GV_DISPINFO {
    NMHDR hdr;
    GV_ITEM item;
};

// The range about to be drawn in virtual mode, or all -1 when the drawing is over.
struct GV_CACHEHINT {
    NMHDR hdr;
    CCellRange range;
};
