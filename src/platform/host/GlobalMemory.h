#pragma once

// Movable memory blocks, as the clipboard hands them over: a block is allocated, locked to
// reach its bytes, unlocked, and freed by whoever owns it (the clipboard, once it has been
// given the block).

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <cstddef>

constexpr UINT GMEM_FIXED = 0x0000;
constexpr UINT GMEM_MOVEABLE = 0x0002;
constexpr UINT GMEM_ZEROINIT = 0x0040;
constexpr UINT GMEM_SHARE = 0x2000;
constexpr UINT GMEM_DDESHARE = 0x2000;
constexpr UINT GHND = GMEM_MOVEABLE | GMEM_ZEROINIT;
constexpr UINT GPTR = GMEM_FIXED | GMEM_ZEROINIT;

ORVA_API HGLOBAL GlobalAlloc(UINT flags, std::size_t bytes);
ORVA_API LPVOID GlobalLock(HGLOBAL memory);
ORVA_API BOOL GlobalUnlock(HGLOBAL memory);
ORVA_API std::size_t GlobalSize(HGLOBAL memory);
// Null on success, as the framework answers; the block itself when it is not a block.
ORVA_API HGLOBAL GlobalFree(HGLOBAL memory);
