#pragma once

// GV_ITEM: every attribute of one cell in one record, with a mask that says which fields count.
// It is also the payload of the virtual mode's display request.

#include "platform/base/String.h"
#include "platform/base/WinTypes.h"

constexpr UINT GV_MASK_TEXT = 0x0001;
constexpr UINT GV_MASK_IMAGE = 0x0002;
constexpr UINT GV_MASK_PARAM = 0x0004;
constexpr UINT GV_MASK_STATE = 0x0008;
constexpr UINT GV_MASK_BKCLR = 0x0010;
constexpr UINT GV_MASK_FGCLR = 0x0020;
constexpr UINT GV_MASK_FORMAT = 0x0040;
constexpr UINT GV_MASK_FONT = 0x0080;
constexpr UINT GV_MASK_MARGIN = 0x0100;

struct GV_ITEM {
    int row;
    int col;
    UINT mask;
    UINT state;
    DWORD format;
    int image;
    COLORREF backColor;
    COLORREF textColor;
    LPARAM param; // the application's own value; may carry an address
    LOGFONT font;
    UINT margin;
    CString text;
};
