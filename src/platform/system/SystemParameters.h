#pragma once

// System-wide parameters and the system's version, as the framework's code asks for them.

#include "platform/base/Export.h"
#include "platform/base/Messages.h"
#include "platform/base/WinTypes.h"

constexpr UINT SPI_GETNONCLIENTMETRICS = 0x29;
constexpr UINT SPI_GETWHEELSCROLLLINES = 0x68;

// The full record; a caller on an older system passes the size without the padded border.
struct NONCLIENTMETRICS {
    UINT cbSize;
    int iBorderWidth;
    int iScrollWidth;
    int iScrollHeight;
    int iCaptionWidth;
    int iCaptionHeight;
    LOGFONT lfCaptionFont;
    int iSmCaptionWidth;
    int iSmCaptionHeight;
    LOGFONT lfSmCaptionFont;
    int iMenuWidth;
    int iMenuHeight;
    LOGFONT lfMenuFont;
    LOGFONT lfStatusFont;
    LOGFONT lfMessageFont;
    int iPaddedBorderWidth;
};
using NONCLIENTMETRICSA = NONCLIENTMETRICS;
constexpr UINT NONCLIENTMETRICS_V1_SIZE = sizeof(NONCLIENTMETRICS) - sizeof(int);

// SPI_GETWHEELSCROLLLINES: `data` is a UINT that receives the lines per notch (the desktop
// setting "WheelScrollLines", 3 by default, WHEEL_PAGESCROLL for a page).
// SPI_GETNONCLIENTMETRICS: `data` is a NONCLIENTMETRICS whose cbSize (and `param`) is the
// full size or NONCLIENTMETRICS_V1_SIZE. Any other action, or a bad size, gives FALSE.
ORVA_API BOOL SystemParametersInfo(UINT action, UINT param, void* data, UINT winIni);

constexpr DWORD VER_PLATFORM_WIN32_NT = 2;

struct OSVERSIONINFO {
    DWORD dwOSVersionInfoSize;
    DWORD dwMajorVersion;
    DWORD dwMinorVersion;
    DWORD dwBuildNumber;
    DWORD dwPlatformId;
    char szCSDVersion[128];
};
using OSVERSIONINFOA = OSVERSIONINFO;

// Reports a system of version 6.1 on the NT platform, so callers take the full records.
// FALSE if dwOSVersionInfoSize is not sizeof(OSVERSIONINFO).
ORVA_API BOOL GetVersionEx(OSVERSIONINFO* info);
