#pragma once

// The clipboard with the framework's calls. Data is handed over as a handle: text (CF_TEXT) as
// a GlobalAlloc block holding a zero-terminated string, an image (CF_BITMAP, CF_DIB,
// CF_ENHMETAFILE) or a registered format as the handle its producer made. The clipboard owns
// what it is given and frees blocks when it is emptied. Text also goes to the host's system
// clipboard, so that other programs see it when a display host runs.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

constexpr UINT CF_TEXT = 1;
constexpr UINT CF_BITMAP = 2;
constexpr UINT CF_METAFILEPICT = 3;
constexpr UINT CF_DIB = 8;
constexpr UINT CF_UNICODETEXT = 13;
constexpr UINT CF_ENHMETAFILE = 14;

ORVA_API BOOL OpenClipboard(HWND owner);
ORVA_API BOOL CloseClipboard();
ORVA_API BOOL EmptyClipboard();
// Needs the clipboard open; answers the handle, or null on failure.
ORVA_API HANDLE SetClipboardData(UINT format, HANDLE data);
// Needs the clipboard open; the handle stays the clipboard's.
ORVA_API HANDLE GetClipboardData(UINT format);
ORVA_API BOOL IsClipboardFormatAvailable(UINT format);
ORVA_API UINT RegisterClipboardFormat(LPCSTR name);
ORVA_API HWND GetClipboardOwner();
ORVA_API int CountClipboardFormats();
