#pragma once

// A four-byte colour. Equality and order look at red, green and blue only: two colours that
// differ in alpha alone are the same colour to the plots.

#include "platform/base/WinTypes.h"

#include <cstdint>

struct MUcolor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 0;

    constexpr MUcolor() = default;
    constexpr MUcolor(std::uint8_t r, std::uint8_t g, std::uint8_t b, std::uint8_t a = 0)
        : red(r), green(g), blue(b), alpha(a) {}

    constexpr bool operator==(const MUcolor& other) const {
        return red == other.red && green == other.green && blue == other.blue;
    }
    constexpr bool operator!=(const MUcolor& other) const { return !(*this == other); }
    constexpr bool operator<(const MUcolor& other) const {
        if (red != other.red)
            return red < other.red;
        if (green != other.green)
            return green < other.green;
        return blue < other.blue;
    }

    // The device contexts' and the chart's colour; alpha is dropped.
    constexpr operator COLORREF() const {
        return COLORREF(red) | (COLORREF(green) << 8) | (COLORREF(blue) << 16);
    }
};

static_assert(sizeof(MUcolor) == 4, "MUcolor is a four-byte record");
