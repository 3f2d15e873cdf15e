#pragma once

// Window icons: the application registers its icon resources in code (square pictures of
// 32-bit ARGB pixels, row by row), loads them by id, and gives them to windows with WM_SETICON;
// a frame shows its small icon in its caption.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <cstdint>
#include <vector>

// Registers (or replaces) the icon with this resource id; `argb` holds size * size pixels.
// Answers false when the pixels do not make a square of that size.
ORVA_API bool RegisterIconResource(UINT id, int size, std::vector<std::uint32_t> argb);
// The icon of a registered resource id (MAKEINTRESOURCE), or null. Icons live as long as the
// process, as resources do; the instance is not used.
ORVA_API HICON LoadIcon(HINSTANCE instance, LPCSTR name);
// Draws an icon scaled to width by height; pixels less than half opaque are left out.
ORVA_API BOOL DrawIconEx(HDC dc, int x, int y, HICON icon, int width, int height, UINT step,
                         HBRUSH flickerFree, UINT flags);
constexpr UINT DI_NORMAL = 0x0003;

// The pixels of an icon, for a host that shows it; null for an unknown icon.
struct IconPixels {
    int size;
    const std::uint32_t* argb;
};
ORVA_API const IconPixels* GetIconPixels(HICON icon);
