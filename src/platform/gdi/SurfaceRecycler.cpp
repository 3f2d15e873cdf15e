// Keeps the pixels of the last large colour bitmap that died, for the next bitmap of the same
// size. A double-buffered window creates and destroys a window-sized bitmap on every paint; taking
// the old pixels back spares the allocator a fresh block of megabytes whose every page faults in
// on first touch, which costs more than the drawing of a whole window of text.

#include "platform/gdi/GdiInternal.h"
#include "platform/gdi/Surface.h"

namespace gdi {

namespace {

// Below this many bytes the allocator keeps freed blocks warm by itself.
constexpr long long kSmallestRecycledBytes = 256 * 1024;

std::unique_ptr<Surface>& Spare() {
    // Never destroyed: a bitmap may die during static destruction and still pass through here.
    static auto* spare = new std::unique_ptr<Surface>;
    return *spare;
}

} // namespace

void RecycleSurface(std::unique_ptr<Surface> pixels) {
    if (pixels != nullptr &&
        static_cast<long long>(pixels->Stride()) * pixels->Height() >= kSmallestRecycledBytes)
        Spare() = std::move(pixels);
}

std::unique_ptr<Surface> NewSurface(int width, int height, NewPixels contents) {
    std::unique_ptr<Surface>& spare = Spare();
    if (spare != nullptr && spare->Width() == width && spare->Height() == height) {
        if (contents == NewPixels::White)
            spare->FillWhite();
        return std::move(spare);
    }
    return std::make_unique<Surface>(width, height);
}

} // namespace gdi
