#pragma once

// A point of two components, the point of the plots' click and drag operations.

template <typename T> struct Pt2 {
    T x{};
    T y{};

    constexpr Pt2() = default;
    constexpr Pt2(T xValue, T yValue) : x(xValue), y(yValue) {}

    constexpr bool operator==(const Pt2& other) const { return x == other.x && y == other.y; }
    constexpr bool operator!=(const Pt2& other) const { return !(*this == other); }
};
