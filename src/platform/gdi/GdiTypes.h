#pragma once

// The drawing layer's records and constants, with the framework's names and numeric values.

#include "platform/base/WinTypes.h"

// Records.
struct LOGPEN {
    UINT lopnStyle;
    POINT lopnWidth; // x is the width; y is unused
    COLORREF lopnColor;
};

struct LOGBRUSH {
    UINT lbStyle;
    COLORREF lbColor;
    UINT_PTR lbHatch;
};

struct BITMAP {
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    LPVOID bmBits;
};

struct TEXTMETRIC {
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    char tmFirstChar;
    char tmLastChar;
    char tmDefaultChar;
    char tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
};

struct IMAGEINFO {
    HBITMAP hbmImage;
    HBITMAP hbmMask;
    int Unused1;
    int Unused2;
    RECT rcImage;
};

// Stock objects.
constexpr int WHITE_BRUSH = 0;
constexpr int LTGRAY_BRUSH = 1;
constexpr int GRAY_BRUSH = 2;
constexpr int DKGRAY_BRUSH = 3;
constexpr int BLACK_BRUSH = 4;
constexpr int NULL_BRUSH = 5;
constexpr int HOLLOW_BRUSH = NULL_BRUSH;
constexpr int WHITE_PEN = 6;
constexpr int BLACK_PEN = 7;
constexpr int NULL_PEN = 8;
constexpr int OEM_FIXED_FONT = 10;
constexpr int ANSI_FIXED_FONT = 11;
constexpr int ANSI_VAR_FONT = 12;
constexpr int SYSTEM_FONT = 13;
constexpr int DEVICE_DEFAULT_FONT = 14;
constexpr int DEFAULT_PALETTE = 15;
constexpr int SYSTEM_FIXED_FONT = 16;
constexpr int DEFAULT_GUI_FONT = 17;

// Object types (GetObjectType).
constexpr DWORD OBJ_PEN = 1;
constexpr DWORD OBJ_BRUSH = 2;
constexpr DWORD OBJ_DC = 3;
constexpr DWORD OBJ_FONT = 6;
constexpr DWORD OBJ_BITMAP = 7;
constexpr DWORD OBJ_REGION = 8;
constexpr DWORD OBJ_MEMDC = 10;

// Pens.
constexpr UINT PS_SOLID = 0;
constexpr UINT PS_DASH = 1;
constexpr UINT PS_DOT = 2;
constexpr UINT PS_DASHDOT = 3;
constexpr UINT PS_DASHDOTDOT = 4;
constexpr UINT PS_NULL = 5;
constexpr UINT PS_INSIDEFRAME = 6;
constexpr UINT PS_STYLE_MASK = 0x0000000F;

// Brushes.
constexpr UINT BS_SOLID = 0;
constexpr UINT BS_NULL = 1;
constexpr UINT BS_HOLLOW = BS_NULL;
constexpr UINT BS_HATCHED = 2;
constexpr UINT BS_PATTERN = 3;
constexpr int HS_HORIZONTAL = 0;
constexpr int HS_VERTICAL = 1;
constexpr int HS_FDIAGONAL = 2;
constexpr int HS_BDIAGONAL = 3;
constexpr int HS_CROSS = 4;
constexpr int HS_DIAGCROSS = 5;

// Fonts.
constexpr LONG FW_DONTCARE = 0;
constexpr LONG FW_THIN = 100;
constexpr LONG FW_LIGHT = 300;
constexpr LONG FW_NORMAL = 400;
constexpr LONG FW_MEDIUM = 500;
constexpr LONG FW_SEMIBOLD = 600;
constexpr LONG FW_BOLD = 700;
constexpr LONG FW_HEAVY = 900;
constexpr BYTE ANSI_CHARSET = 0;
constexpr BYTE DEFAULT_CHARSET = 1;
constexpr BYTE OUT_DEFAULT_PRECIS = 0;
constexpr BYTE OUT_TT_PRECIS = 4;
constexpr BYTE CLIP_DEFAULT_PRECIS = 0;
constexpr BYTE DEFAULT_QUALITY = 0;
constexpr BYTE DRAFT_QUALITY = 1;
constexpr BYTE DEFAULT_PITCH = 0;
constexpr BYTE FIXED_PITCH = 1;
constexpr BYTE VARIABLE_PITCH = 2;
constexpr BYTE FF_DONTCARE = 0x00;
constexpr BYTE FF_ROMAN = 0x10;
constexpr BYTE FF_SWISS = 0x20;
constexpr BYTE FF_MODERN = 0x30;

// Background modes.
constexpr int TRANSPARENT = 1;
constexpr int OPAQUE = 2;

// Binary raster operations of pens.
constexpr int R2_BLACK = 1;
constexpr int R2_NOTMERGEPEN = 2;
constexpr int R2_MASKNOTPEN = 3;
constexpr int R2_NOTCOPYPEN = 4;
constexpr int R2_MASKPENNOT = 5;
constexpr int R2_NOT = 6;
constexpr int R2_XORPEN = 7;
constexpr int R2_NOTMASKPEN = 8;
constexpr int R2_MASKPEN = 9;
constexpr int R2_NOTXORPEN = 10;
constexpr int R2_NOP = 11;
constexpr int R2_MERGENOTPEN = 12;
constexpr int R2_COPYPEN = 13;
constexpr int R2_MERGEPENNOT = 14;
constexpr int R2_MERGEPEN = 15;
constexpr int R2_WHITE = 16;

// Ternary raster operations of blits.
constexpr DWORD SRCCOPY = 0x00CC0020;
constexpr DWORD SRCPAINT = 0x00EE0086;
constexpr DWORD SRCAND = 0x008800C6;
constexpr DWORD SRCINVERT = 0x00660046;
constexpr DWORD SRCERASE = 0x00440328;
constexpr DWORD NOTSRCCOPY = 0x00330008;
constexpr DWORD NOTSRCERASE = 0x001100A6;
constexpr DWORD MERGECOPY = 0x00C000CA;
constexpr DWORD MERGEPAINT = 0x00BB0226;
constexpr DWORD PATCOPY = 0x00F00021;
constexpr DWORD PATPAINT = 0x00FB0A09;
constexpr DWORD PATINVERT = 0x005A0049;
constexpr DWORD DSTINVERT = 0x00550009;
constexpr DWORD BLACKNESS = 0x00000042;
constexpr DWORD WHITENESS = 0x00FF0062;

// DrawText.
constexpr UINT DT_TOP = 0x00000000;
constexpr UINT DT_LEFT = 0x00000000;
constexpr UINT DT_CENTER = 0x00000001;
constexpr UINT DT_RIGHT = 0x00000002;
constexpr UINT DT_VCENTER = 0x00000004;
constexpr UINT DT_BOTTOM = 0x00000008;
constexpr UINT DT_WORDBREAK = 0x00000010;
constexpr UINT DT_SINGLELINE = 0x00000020;
constexpr UINT DT_EXPANDTABS = 0x00000040;
constexpr UINT DT_TABSTOP = 0x00000080;
constexpr UINT DT_NOCLIP = 0x00000100;
constexpr UINT DT_EXTERNALLEADING = 0x00000200;
constexpr UINT DT_CALCRECT = 0x00000400;
constexpr UINT DT_NOPREFIX = 0x00000800;
constexpr UINT DT_INTERNAL = 0x00001000;
constexpr UINT DT_EDITCONTROL = 0x00002000;
constexpr UINT DT_PATH_ELLIPSIS = 0x00004000;
constexpr UINT DT_END_ELLIPSIS = 0x00008000;
constexpr UINT DT_MODIFYSTRING = 0x00010000;
constexpr UINT DT_RTLREADING = 0x00020000;
constexpr UINT DT_WORD_ELLIPSIS = 0x00040000;

// ExtTextOut.
constexpr UINT ETO_OPAQUE = 0x0002;
constexpr UINT ETO_CLIPPED = 0x0004;

// SetTextAlign.
constexpr UINT TA_NOUPDATECP = 0;
constexpr UINT TA_UPDATECP = 1;
constexpr UINT TA_LEFT = 0;
constexpr UINT TA_RIGHT = 2;
constexpr UINT TA_CENTER = 6;
constexpr UINT TA_TOP = 0;
constexpr UINT TA_BOTTOM = 8;
constexpr UINT TA_BASELINE = 24;
constexpr UINT GDI_ERROR = 0xFFFFFFFF;

// DrawEdge.
constexpr UINT BDR_RAISEDOUTER = 0x0001;
constexpr UINT BDR_SUNKENOUTER = 0x0002;
constexpr UINT BDR_RAISEDINNER = 0x0004;
constexpr UINT BDR_SUNKENINNER = 0x0008;
constexpr UINT BDR_OUTER = BDR_RAISEDOUTER | BDR_SUNKENOUTER;
constexpr UINT BDR_INNER = BDR_RAISEDINNER | BDR_SUNKENINNER;
constexpr UINT BDR_RAISED = BDR_RAISEDOUTER | BDR_RAISEDINNER;
constexpr UINT BDR_SUNKEN = BDR_SUNKENOUTER | BDR_SUNKENINNER;
constexpr UINT EDGE_RAISED = BDR_RAISEDOUTER | BDR_RAISEDINNER;
constexpr UINT EDGE_SUNKEN = BDR_SUNKENOUTER | BDR_SUNKENINNER;
constexpr UINT EDGE_ETCHED = BDR_SUNKENOUTER | BDR_RAISEDINNER;
constexpr UINT EDGE_BUMP = BDR_RAISEDOUTER | BDR_SUNKENINNER;
constexpr UINT BF_LEFT = 0x0001;
constexpr UINT BF_TOP = 0x0002;
constexpr UINT BF_RIGHT = 0x0004;
constexpr UINT BF_BOTTOM = 0x0008;
constexpr UINT BF_TOPLEFT = BF_TOP | BF_LEFT;
constexpr UINT BF_TOPRIGHT = BF_TOP | BF_RIGHT;
constexpr UINT BF_BOTTOMLEFT = BF_BOTTOM | BF_LEFT;
constexpr UINT BF_BOTTOMRIGHT = BF_BOTTOM | BF_RIGHT;
constexpr UINT BF_RECT = BF_LEFT | BF_TOP | BF_RIGHT | BF_BOTTOM;
constexpr UINT BF_MIDDLE = 0x0800;
constexpr UINT BF_SOFT = 0x1000;
constexpr UINT BF_ADJUST = 0x2000;
constexpr UINT BF_FLAT = 0x4000;
constexpr UINT BF_MONO = 0x8000;

// DrawFrameControl.
constexpr UINT DFC_CAPTION = 1;
constexpr UINT DFC_MENU = 2;
constexpr UINT DFC_SCROLL = 3;
constexpr UINT DFC_BUTTON = 4;
constexpr UINT DFCS_SCROLLUP = 0x0000;
constexpr UINT DFCS_SCROLLDOWN = 0x0001;
constexpr UINT DFCS_SCROLLLEFT = 0x0002;
constexpr UINT DFCS_SCROLLRIGHT = 0x0003;
constexpr UINT DFCS_SCROLLCOMBOBOX = 0x0005;
constexpr UINT DFCS_SCROLLSIZEGRIP = 0x0008;
constexpr UINT DFCS_BUTTONCHECK = 0x0000;
constexpr UINT DFCS_BUTTONRADIOIMAGE = 0x0001;
constexpr UINT DFCS_BUTTONRADIOMASK = 0x0002;
constexpr UINT DFCS_BUTTONRADIO = 0x0004;
constexpr UINT DFCS_BUTTON3STATE = 0x0008;
constexpr UINT DFCS_BUTTONPUSH = 0x0010;
constexpr UINT DFCS_INACTIVE = 0x0100;
constexpr UINT DFCS_PUSHED = 0x0200;
constexpr UINT DFCS_CHECKED = 0x0400;
constexpr UINT DFCS_TRANSPARENT = 0x0800;
constexpr UINT DFCS_HOT = 0x1000;
constexpr UINT DFCS_ADJUSTRECT = 0x2000;
constexpr UINT DFCS_FLAT = 0x4000;
constexpr UINT DFCS_MONO = 0x8000;

// Regions.
constexpr int ERROR = 0;
constexpr int NULLREGION = 1;
constexpr int SIMPLEREGION = 2;
constexpr int COMPLEXREGION = 3;
constexpr int RGN_AND = 1;
constexpr int RGN_OR = 2;
constexpr int RGN_XOR = 3;
constexpr int RGN_DIFF = 4;
constexpr int RGN_COPY = 5;

// GetDeviceCaps.
constexpr int TECHNOLOGY = 2;
constexpr int HORZSIZE = 4;
constexpr int VERTSIZE = 6;
constexpr int HORZRES = 8;
constexpr int VERTRES = 10;
constexpr int BITSPIXEL = 12;
constexpr int PLANES = 14;
constexpr int NUMCOLORS = 24;
constexpr int RASTERCAPS = 38;
constexpr int LOGPIXELSX = 88;
constexpr int LOGPIXELSY = 90;
constexpr int DT_RASDISPLAY = 1;
constexpr int DT_RASPRINTER = 2;
constexpr int RC_BITBLT = 1;
constexpr int RC_STRETCHBLT = 0x0800;

// Mapping modes: only the text mode (one logical unit is one pixel) is supported.
constexpr int MM_TEXT = 1;

// Image lists.
constexpr UINT ILC_MASK = 0x0001;
constexpr UINT ILC_COLOR = 0x0000;
constexpr UINT ILC_COLOR4 = 0x0004;
constexpr UINT ILC_COLOR8 = 0x0008;
constexpr UINT ILC_COLOR16 = 0x0010;
constexpr UINT ILC_COLOR24 = 0x0018;
constexpr UINT ILC_COLOR32 = 0x0020;
constexpr UINT ILD_NORMAL = 0x0000;
constexpr UINT ILD_TRANSPARENT = 0x0001;
constexpr UINT ILD_MASK = 0x0010;
