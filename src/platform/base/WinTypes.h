#pragma once

// The plain types and handles of the window framework. Sizes follow the framework where a
// record's layout is an interface (RECT, LOGFONT, NMHDR); slots that carry addresses
// (WPARAM, LPARAM, LRESULT) are pointer-sized, as on a 64-bit build of the framework.

#include <cstddef>
#include <cstdint>

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using DWORD_PTR = std::uintptr_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using COLORREF = std::uint32_t;
using LPCSTR = const char*;
using LPSTR = char*;
using LPCTSTR = const char*;
using LPTSTR = char*;
using TCHAR = char;
using LPVOID = void*;

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif

// Opaque handles: each kind is a distinct pointer type, so that a window handle cannot be
// passed where a font is expected.
#define ORVA_DECLARE_HANDLE(name)                                                                  \
    struct name##__ {                                                                              \
        int unused;                                                                                \
    };                                                                                             \
    using name = name##__*

ORVA_DECLARE_HANDLE(HWND);
ORVA_DECLARE_HANDLE(HDC);
ORVA_DECLARE_HANDLE(HGDIOBJ);
ORVA_DECLARE_HANDLE(HFONT);
ORVA_DECLARE_HANDLE(HPEN);
ORVA_DECLARE_HANDLE(HBRUSH);
ORVA_DECLARE_HANDLE(HBITMAP);
ORVA_DECLARE_HANDLE(HRGN);
ORVA_DECLARE_HANDLE(HMENU);
ORVA_DECLARE_HANDLE(HICON);
ORVA_DECLARE_HANDLE(HCURSOR);
ORVA_DECLARE_HANDLE(HINSTANCE);
ORVA_DECLARE_HANDLE(HIMAGELIST);
ORVA_DECLARE_HANDLE(HGLOBAL);
using HANDLE = void*;
using HMODULE = HINSTANCE;

struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
using LPRECT = RECT*;
using LPCRECT = const RECT*;

struct POINT {
    LONG x;
    LONG y;
};
using LPPOINT = POINT*;

struct SIZE {
    LONG cx;
    LONG cy;
};

constexpr int LF_FACESIZE = 32;

// 60 bytes with a 32-byte face name, as the framework lays it out.
struct LOGFONT {
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    char lfFaceName[LF_FACESIZE];
};
static_assert(sizeof(LOGFONT) == 60, "LOGFONT is a 60-byte record");
using LOGFONTA = LOGFONT;
using LPLOGFONT = LOGFONT*;

struct NMHDR {
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};
using LPNMHDR = NMHDR*;

constexpr COLORREF RGB(BYTE r, BYTE g, BYTE b) {
    return COLORREF(r) | (COLORREF(g) << 8) | (COLORREF(b) << 16);
}
constexpr BYTE GetRValue(COLORREF c) { return BYTE(c & 0xFF); }
constexpr BYTE GetGValue(COLORREF c) { return BYTE((c >> 8) & 0xFF); }
constexpr BYTE GetBValue(COLORREF c) { return BYTE((c >> 16) & 0xFF); }

constexpr COLORREF CLR_NONE = 0xFFFFFFFF;
constexpr COLORREF CLR_DEFAULT = 0xFF000000;
constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

constexpr WORD LOWORD(std::uintptr_t v) { return WORD(v & 0xFFFF); }
constexpr WORD HIWORD(std::uintptr_t v) { return WORD((v >> 16) & 0xFFFF); }
constexpr DWORD MAKELONG(WORD lo, WORD hi) { return DWORD(lo) | (DWORD(hi) << 16); }
constexpr WPARAM MAKEWPARAM(WORD lo, WORD hi) { return WPARAM(MAKELONG(lo, hi)); }
constexpr LPARAM MAKELPARAM(WORD lo, WORD hi) { return LPARAM(MAKELONG(lo, hi)); }
constexpr LRESULT MAKELRESULT(WORD lo, WORD hi) { return LRESULT(MAKELONG(lo, hi)); }
// Signed coordinates packed in an LPARAM, as mouse messages carry them.
constexpr int GET_X_LPARAM(LPARAM lp) { return int(std::int16_t(LOWORD(std::uintptr_t(lp)))); }
constexpr int GET_Y_LPARAM(LPARAM lp) { return int(std::int16_t(HIWORD(std::uintptr_t(lp)))); }
constexpr short GET_WHEEL_DELTA_WPARAM(WPARAM wp) { return short(HIWORD(wp)); }
constexpr WORD GET_KEYSTATE_WPARAM(WPARAM wp) { return LOWORD(wp); }

#define MAKEINTRESOURCE(i) (reinterpret_cast<LPCSTR>(static_cast<std::uintptr_t>(WORD(i))))
#define IS_INTRESOURCE(p) ((reinterpret_cast<std::uintptr_t>(p) >> 16) == 0)
