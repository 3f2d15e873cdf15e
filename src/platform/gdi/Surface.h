#pragma once

// A Surface is the pixel store of one top-level window (or of a memory bitmap): 32-bit
// premultiplied ARGB, one row after another. The gdi layer draws into it through a CDC, the
// host shows it (in memory for headless runs, in a real window through SDL), and tests read it.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <cstdint>

class ORVA_API Surface {
public:
    Surface(int width, int height); // filled white
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    int Width() const;
    int Height() const;
    int Stride() const; // bytes from one row to the next
    const std::uint8_t* Data() const;

    // Changes the size, keeping what lies in both the old and the new area; the rest is white.
    void Resize(int width, int height);
    void FillWhite();
    // The colour at a pixel, or CLR_INVALID outside the surface.
    COLORREF GetPixel(int x, int y) const;
    bool SavePng(const char* path) const;

    // The cairo_surface_t behind this surface, for the gdi layer only.
    void* NativeHandle() const;

private:
    void* m_surface;
};
