// The chart's image: drawn again only when it is next needed, and handed out as a bitmap in a
// memory context to callers that copy the chart elsewhere.

#include "chart/ChartWindow.h"

#include "platform/gdi/Bitmap.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/canvas/Canvas.h"

#include <cstdint>

namespace {

// Property 2574 asks for the handles; 2575 and 2580 give them, which fit the chart's 32-bit
// integers.
constexpr int kImageHandlesWanted = 2574;
constexpr int kImageBitmap = 2575;
constexpr int kImageDC = 2580;

} // namespace

void BringImageUpToDate(ChartWindowState& state) {
    ChartEngine& engine = *state.engine;
    const bool stale = state.imageStale;
    state.imageStale = false;
    if (stale || !engine.Image() || engine.Image()->Width() != engine.Width() ||
        engine.Image()->Height() != engine.Height())
        engine.ResetImage();
}

void FreeImageHandles(ChartWindowState& state) {
    ChartImageHandles& image = state.handedOut;
    if (image.dc) {
        SelectObject(image.dc, image.firstBitmap);
        DeleteDC(image.dc);
    }
    if (image.bitmap)
        DeleteObject(image.bitmap);
    image = {};
}

void HandOutImage(ChartWindowState& state) {
    ChartEngine& engine = *state.engine;
    if (engine.Properties().Int(kImageHandlesWanted, 0) != 1)
        return;
    BringImageUpToDate(state);
    const Canvas* picture = engine.Image();
    if (!picture)
        return;
    const int width = picture->Width(), height = picture->Height();
    ChartImageHandles& image = state.handedOut;
    BITMAP info{};
    if (image.bitmap && GetObject(image.bitmap, sizeof info, &info) &&
        (info.bmWidth != width || info.bmHeight != height)) {
        SelectObject(image.dc, image.firstBitmap);
        DeleteObject(image.bitmap);
        image.bitmap = nullptr;
    }
    if (!image.dc)
        image.dc = CreateCompatibleDC(nullptr);
    if (!image.bitmap) {
        image.bitmap = CreateBitmap(width, height, 1, 32, nullptr);
        if (image.dc && image.bitmap) {
            HGDIOBJ previous = SelectObject(image.dc, image.bitmap);
            if (!image.firstBitmap)
                image.firstBitmap = previous;
        }
    }
    if (Surface* pixels = GdiBitmapSurface(image.bitmap))
        picture->BlitTo(*pixels, 0, 0, RECT{0, 0, width, height});
    engine.Properties().SetInt(kImageBitmap, int(reinterpret_cast<std::uintptr_t>(image.bitmap)));
    engine.Properties().SetInt(kImageDC, int(reinterpret_cast<std::uintptr_t>(image.dc)));
}
