#include "platform/gdi/Surface.h"

#include <cairo.h>

#include <algorithm>
#include <cstring>

namespace {

void FillWhite(cairo_surface_t* surface) {
    cairo_surface_flush(surface);
    unsigned char* data = cairo_image_surface_get_data(surface);
    if (data != nullptr)
        std::memset(data, 0xFF,
                    std::size_t(cairo_image_surface_get_stride(surface)) *
                        std::size_t(cairo_image_surface_get_height(surface)));
    cairo_surface_mark_dirty(surface);
}

cairo_surface_t* NewWhiteSurface(int width, int height) {
    cairo_surface_t* surface =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, std::max(width, 0), std::max(height, 0));
    FillWhite(surface);
    return surface;
}

cairo_surface_t* Native(void* surface) {
    return static_cast<cairo_surface_t*>(surface);
}

} // namespace

Surface::Surface(int width, int height) : m_surface(NewWhiteSurface(width, height)) {}

Surface::~Surface() {
    cairo_surface_destroy(Native(m_surface));
}

int Surface::Width() const {
    return cairo_image_surface_get_width(Native(m_surface));
}

int Surface::Height() const {
    return cairo_image_surface_get_height(Native(m_surface));
}

int Surface::Stride() const {
    return cairo_image_surface_get_stride(Native(m_surface));
}

const std::uint8_t* Surface::Data() const {
    cairo_surface_flush(Native(m_surface));
    return cairo_image_surface_get_data(Native(m_surface));
}

void Surface::Resize(int width, int height) {
    if (width == Width() && height == Height())
        return;
    cairo_surface_t* resized = NewWhiteSurface(width, height);
    cairo_t* cr = cairo_create(resized);
    cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
    cairo_set_source_surface(cr, Native(m_surface), 0, 0);
    cairo_rectangle(cr, 0, 0, std::min(width, Width()), std::min(height, Height()));
    cairo_fill(cr);
    cairo_destroy(cr);
    cairo_surface_destroy(Native(m_surface));
    m_surface = resized;
}

void Surface::FillWhite() {
    ::FillWhite(Native(m_surface));
}

COLORREF Surface::GetPixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= Width() || y >= Height())
        return CLR_INVALID;
    const std::uint8_t* row = Data() + std::size_t(y) * std::size_t(Stride());
    std::uint32_t pixel;
    std::memcpy(&pixel, row + std::size_t(x) * 4, 4);
    // Premultiplied: undo the alpha so that a half-covered pixel reports its own colour.
    unsigned a = pixel >> 24;
    auto channel = [a](unsigned v) { return a == 0 ? 0u : std::min(255u, (v * 255 + a / 2) / a); };
    return RGB(BYTE(channel((pixel >> 16) & 0xFF)), BYTE(channel((pixel >> 8) & 0xFF)),
               BYTE(channel(pixel & 0xFF)));
}

bool Surface::SavePng(const char* path) const {
    return path != nullptr &&
           cairo_surface_write_to_png(Native(m_surface), path) == CAIRO_STATUS_SUCCESS;
}

void* Surface::NativeHandle() const {
    return m_surface;
}
