// Icon resources: registered pictures, known by their resource id, drawn pixel by pixel.

#include "platform/window/WindowIcons.h"

#include "platform/gdi/DC.h"

#include <map>

namespace {
struct Icon {
    std::vector<std::uint32_t> argb;
    IconPixels pixels{};
};

// The process's icons, on the user-interface thread; an icon's handle is its resource id.
std::map<UINT, Icon>& Icons() {
    static auto& icons = *new std::map<UINT, Icon>;
    return icons;
}

const Icon* Find(HICON icon) {
    const auto id = UINT(reinterpret_cast<std::uintptr_t>(icon));
    const auto it = Icons().find(id);
    return it == Icons().end() ? nullptr : &it->second;
}
} // namespace

bool RegisterIconResource(UINT id, int size, std::vector<std::uint32_t> argb) {
    if (size <= 0 || argb.size() != size_t(size) * size_t(size) || WORD(id) == 0)
        return false;
    Icon& icon = Icons()[WORD(id)];
    icon.argb = std::move(argb);
    icon.pixels = IconPixels{size, icon.argb.data()};
    return true;
}

HICON LoadIcon(HINSTANCE, LPCSTR name) {
    if (!IS_INTRESOURCE(name))
        return nullptr;
    const auto id = WORD(reinterpret_cast<std::uintptr_t>(name));
    return Icons().count(id) ? reinterpret_cast<HICON>(std::uintptr_t(id)) : nullptr;
}

const IconPixels* GetIconPixels(HICON icon) {
    const Icon* found = Find(icon);
    return found ? &found->pixels : nullptr;
}

BOOL DrawIconEx(HDC dc, int x, int y, HICON icon, int width, int height, UINT, HBRUSH, UINT) {
    const Icon* found = Find(icon);
    CDC* target = CDC::FromHandle(dc);
    if (!found || !target)
        return FALSE;
    const int size = found->pixels.size;
    width = width > 0 ? width : size;
    height = height > 0 ? height : size;
    for (int row = 0; row < height; ++row) {
        for (int col = 0; col < width; ++col) {
            const std::uint32_t p =
                found
                    ->argb[size_t(row * size / height) * size_t(size) + size_t(col * size / width)];
            if ((p >> 24) < 0x80)
                continue;
            target->SetPixel(x + col, y + row, RGB((p >> 16) & 0xFF, (p >> 8) & 0xFF, p & 0xFF));
        }
    }
    return TRUE;
}
