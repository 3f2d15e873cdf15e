#pragma once

#include "platform/gdi/DC.h"
#include "platform/gdi/Surface.h"
#include "platform/gdi/SurfaceDC.h"

#include <gtest/gtest.h>

#include <memory>

// A white surface with a context on all of it, and helpers that read what was drawn.
class DrawingTest : public ::testing::Test {
protected:
    static constexpr int kWidth = 200;
    static constexpr int kHeight = 120;

    void SetUp() override {
        // Tests that loop start afresh by calling SetUp again: free the last context first.
        if (dc.GetSafeHdc() != nullptr)
            ::DeleteDC(dc.Detach());
        surface = std::make_unique<Surface>(kWidth, kHeight);
        dc.Attach(CreateSurfaceDC(surface.get(), POINT{0, 0}, RECT{0, 0, kWidth, kHeight}));
    }

    COLORREF Pixel(int x, int y) const { return surface->GetPixel(x, y); }

    // The smallest rectangle holding every pixel inside `area` that differs from `background`;
    // empty when there is none.
    CRect Ink(const RECT& area, COLORREF background = RGB(255, 255, 255)) const {
        CRect box(INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN);
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                if (Pixel(x, y) != background) {
                    box.left = std::min<LONG>(box.left, x);
                    box.top = std::min<LONG>(box.top, y);
                    box.right = std::max<LONG>(box.right, x + 1);
                    box.bottom = std::max<LONG>(box.bottom, y + 1);
                }
        return box.left == INT32_MAX ? CRect() : box;
    }

    int CountPixels(const RECT& area, COLORREF color) const {
        int count = 0;
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                count += Pixel(x, y) == color;
        return count;
    }

    std::unique_ptr<Surface> surface;
    CDC dc;
};

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
