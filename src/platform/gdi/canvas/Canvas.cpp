#include "platform/gdi/canvas/Canvas.h"

#include "platform/gdi/Surface.h"
#include "platform/gdi/canvas/PngWriter.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>
#include <cairo.h>
#include <pango/pangocairo.h>

#include <cmath>
#include <cstdint>
#include <cstdio>

struct Canvas::Impl {
    cairo_surface_t* surface = nullptr;
    cairo_t* cr = nullptr;
    PangoContext* pango = nullptr;
    std::string svg; // the document written so far by an SVG surface
    bool finished = false;

    ~Impl() {
        if (pango)
            g_object_unref(pango);
        if (cr)
            cairo_destroy(cr);
        if (surface)
            cairo_surface_destroy(surface);
    }
};

namespace {

constexpr int kMaxSide = 32768;

void SetColour(cairo_t* cr, COLORREF colour) {
    cairo_set_source_rgb(cr, GetRValue(colour) / 255.0, GetGValue(colour) / 255.0,
                         GetBValue(colour) / 255.0);
}

cairo_status_t AppendToString(void* closure, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

// Text must look the same on every machine: no hinting, grey anti-aliasing, 96 DPI.
PangoContext* MakePangoContext(cairo_t* cr) {
    PangoContext* context = pango_cairo_create_context(cr);
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context, options);
    cairo_font_options_destroy(options);
    pango_cairo_context_set_resolution(context, 96.0);
    return context;
}

PangoLayout* MakeLayout(PangoContext* context, const CanvasFont& font, const char* text) {
    PangoLayout* layout = pango_layout_new(context);
    PangoFontDescription* description = pango_font_description_new();
    pango_font_description_set_family(description, font.family.c_str());
    pango_font_description_set_size(description, int(font.size * PANGO_SCALE));
    pango_font_description_set_weight(description,
                                      font.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_layout_set_font_description(layout, description);
    pango_font_description_free(description);
    pango_layout_set_text(layout, text ? text : "", -1);
    return layout;
}

void PathPolyline(cairo_t* cr, const double* xy, size_t pointCount) {
    cairo_new_path(cr);
    for (size_t i = 0; i < pointCount; ++i) {
        if (i == 0)
            cairo_move_to(cr, xy[0], xy[1]);
        else
            cairo_line_to(cr, xy[2 * i], xy[2 * i + 1]);
    }
}

void PutLe(std::FILE* file, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        std::fputc(int((value >> (8 * i)) & 0xFF), file);
}

} // namespace

Canvas::Canvas(std::unique_ptr<Impl> impl, int width, int height)
    : m_impl(std::move(impl)), m_width(width), m_height(height) {
    m_impl->cr = cairo_create(m_impl->surface);
    m_impl->pango = MakePangoContext(m_impl->cr);
    cairo_set_line_join(m_impl->cr, CAIRO_LINE_JOIN_ROUND);
    cairo_set_line_cap(m_impl->cr, CAIRO_LINE_CAP_BUTT);
    Clear(RGB(255, 255, 255));
}

Canvas::~Canvas() = default;

std::unique_ptr<Canvas> Canvas::CreateImage(int width, int height) {
    if (width <= 0 || height <= 0 || width > kMaxSide || height > kMaxSide)
        return nullptr;
    auto impl = std::make_unique<Impl>();
    impl->surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
    if (cairo_surface_status(impl->surface) != CAIRO_STATUS_SUCCESS)
        return nullptr;
    return std::unique_ptr<Canvas>(new Canvas(std::move(impl), width, height));
}

std::unique_ptr<Canvas> Canvas::CreateSvg(int width, int height) {
    if (width <= 0 || height <= 0 || width > kMaxSide || height > kMaxSide)
        return nullptr;
    auto impl = std::make_unique<Impl>();
    impl->surface = cairo_svg_surface_create_for_stream(AppendToString, &impl->svg, width, height);
    if (cairo_surface_status(impl->surface) != CAIRO_STATUS_SUCCESS)
        return nullptr;
    return std::unique_ptr<Canvas>(new Canvas(std::move(impl), width, height));
}

std::unique_ptr<Canvas> Canvas::CreatePdf(const char* path, int width, int height) {
    if (!path || width <= 0 || height <= 0 || width > kMaxSide || height > kMaxSide)
        return nullptr;
    auto impl = std::make_unique<Impl>();
    // A PDF point is 1/72 inch; the chart is laid out in 96-DPI pixels.
    impl->surface = cairo_pdf_surface_create(path, width * 0.75, height * 0.75);
    if (cairo_surface_status(impl->surface) != CAIRO_STATUS_SUCCESS)
        return nullptr;
    auto canvas = std::unique_ptr<Canvas>(new Canvas(std::move(impl), width, height));
    cairo_scale(canvas->m_impl->cr, 0.75, 0.75);
    pango_cairo_update_context(canvas->m_impl->cr, canvas->m_impl->pango);
    return canvas;
}

void Canvas::Clear(COLORREF colour) {
    cairo_save(m_impl->cr);
    cairo_reset_clip(m_impl->cr);
    SetColour(m_impl->cr, colour);
    cairo_paint(m_impl->cr);
    cairo_restore(m_impl->cr);
}

void Canvas::FillRect(double x, double y, double width, double height, COLORREF colour) {
    cairo_t* cr = m_impl->cr;
    cairo_new_path(cr);
    cairo_rectangle(cr, x, y, width, height);
    SetColour(cr, colour);
    cairo_fill(cr);
}

void Canvas::StrokeRect(double x, double y, double width, double height, COLORREF colour,
                        double lineWidth) {
    cairo_t* cr = m_impl->cr;
    cairo_new_path(cr);
    cairo_rectangle(cr, x, y, width, height);
    SetColour(cr, colour);
    cairo_set_line_width(cr, lineWidth);
    cairo_set_dash(cr, nullptr, 0, 0);
    cairo_stroke(cr);
}

void Canvas::Polyline(const double* xy, size_t pointCount, COLORREF colour, double lineWidth,
                      const std::vector<double>& dashes) {
    if (pointCount < 2)
        return;
    cairo_t* cr = m_impl->cr;
    PathPolyline(cr, xy, pointCount);
    SetColour(cr, colour);
    cairo_set_line_width(cr, lineWidth);
    cairo_set_dash(cr, dashes.data(), int(dashes.size()), 0);
    cairo_stroke(cr);
    cairo_set_dash(cr, nullptr, 0, 0);
}

void Canvas::Line(double x0, double y0, double x1, double y1, COLORREF colour, double lineWidth,
                  const std::vector<double>& dashes) {
    const double xy[] = {x0, y0, x1, y1};
    Polyline(xy, 2, colour, lineWidth, dashes);
}

void Canvas::StrokeSegments(const double* xyxy, size_t count, COLORREF colour, double lineWidth) {
    cairo_t* cr = m_impl->cr;
    cairo_new_path(cr);
    for (size_t i = 0; i < count; ++i) {
        cairo_move_to(cr, xyxy[4 * i], xyxy[4 * i + 1]);
        cairo_line_to(cr, xyxy[4 * i + 2], xyxy[4 * i + 3]);
    }
    SetColour(cr, colour);
    cairo_set_line_width(cr, lineWidth);
    cairo_set_dash(cr, nullptr, 0, 0);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    cairo_stroke(cr);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
}

void Canvas::FillRects(const double* xywh, size_t count, COLORREF colour) {
    cairo_t* cr = m_impl->cr;
    cairo_new_path(cr);
    for (size_t i = 0; i < count; ++i)
        cairo_rectangle(cr, xywh[4 * i], xywh[4 * i + 1], xywh[4 * i + 2], xywh[4 * i + 3]);
    SetColour(cr, colour);
    cairo_set_fill_rule(cr, CAIRO_FILL_RULE_WINDING);
    cairo_fill(cr);
}

void Canvas::FillPolygon(const double* xy, size_t pointCount, COLORREF colour) {
    if (pointCount < 3)
        return;
    cairo_t* cr = m_impl->cr;
    PathPolyline(cr, xy, pointCount);
    cairo_close_path(cr);
    SetColour(cr, colour);
    cairo_fill(cr);
}

void Canvas::FillCircle(double cx, double cy, double radius, COLORREF colour) {
    cairo_t* cr = m_impl->cr;
    cairo_new_path(cr);
    cairo_arc(cr, cx, cy, radius, 0, 2 * M_PI);
    SetColour(cr, colour);
    cairo_fill(cr);
}

void Canvas::StrokeCircle(double cx, double cy, double radius, COLORREF colour, double lineWidth) {
    cairo_t* cr = m_impl->cr;
    cairo_new_path(cr);
    cairo_arc(cr, cx, cy, radius, 0, 2 * M_PI);
    SetColour(cr, colour);
    cairo_set_line_width(cr, lineWidth);
    cairo_set_dash(cr, nullptr, 0, 0);
    cairo_stroke(cr);
}

CanvasTextSize Canvas::MeasureText(const CanvasFont& font, const char* text) const {
    PangoLayout* layout = MakeLayout(m_impl->pango, font, text);
    int width = 0;
    int height = 0;
    pango_layout_get_size(layout, &width, &height);
    g_object_unref(layout);
    return {double(width) / PANGO_SCALE, double(height) / PANGO_SCALE};
}

void Canvas::DrawText(const CanvasFont& font, const char* text, double x, double y, COLORREF colour,
                      CanvasAlign horizontal, CanvasAlign vertical, double angle) {
    cairo_t* cr = m_impl->cr;
    PangoLayout* layout = MakeLayout(m_impl->pango, font, text);
    int width = 0;
    int height = 0;
    pango_layout_get_size(layout, &width, &height);
    const double w = double(width) / PANGO_SCALE;
    const double h = double(height) / PANGO_SCALE;
    const auto offset = [](CanvasAlign align, double extent) {
        return align == CanvasAlign::Start    ? 0.0
               : align == CanvasAlign::Centre ? -extent / 2
                                              : -extent;
    };
    cairo_save(cr);
    cairo_translate(cr, x, y);
    cairo_rotate(cr, -angle * M_PI / 180.0);
    cairo_move_to(cr, offset(horizontal, w), offset(vertical, h));
    SetColour(cr, colour);
    pango_cairo_show_layout(cr, layout);
    cairo_restore(cr);
    g_object_unref(layout);
}

void Canvas::PushClip(double x, double y, double width, double height) {
    cairo_save(m_impl->cr);
    cairo_new_path(m_impl->cr);
    cairo_rectangle(m_impl->cr, x, y, width, height);
    cairo_clip(m_impl->cr);
}

void Canvas::PopClip() {
    cairo_restore(m_impl->cr);
}

const unsigned char* Canvas::Pixels(int* stride) const {
    if (cairo_surface_get_type(m_impl->surface) != CAIRO_SURFACE_TYPE_IMAGE)
        return nullptr;
    cairo_surface_flush(m_impl->surface);
    if (stride)
        *stride = cairo_image_surface_get_stride(m_impl->surface);
    return cairo_image_surface_get_data(m_impl->surface);
}

COLORREF Canvas::GetPixel(int x, int y) const {
    int stride = 0;
    const unsigned char* data = Pixels(&stride);
    if (!data || x < 0 || y < 0 || x >= m_width || y >= m_height)
        return CLR_INVALID;
    std::uint32_t argb = *reinterpret_cast<const std::uint32_t*>(data + y * stride + x * 4);
    return RGB(BYTE(argb >> 16), BYTE(argb >> 8), BYTE(argb));
}

bool Canvas::SavePng(const char* path) const {
    if (!path)
        return false;
    const std::string png = EncodePng();
    if (png.empty())
        return false;
    std::FILE* file = std::fopen(path, "wb");
    if (!file)
        return false;
    const bool written = std::fwrite(png.data(), 1, png.size(), file) == png.size();
    return std::fclose(file) == 0 && written;
}

std::string Canvas::EncodePng() const {
    int stride = 0;
    const unsigned char* data = Pixels(&stride);
    if (!data)
        return {};
    return ::EncodePng(data, m_width, m_height, stride);
}

bool Canvas::SaveBmp(const char* path) const {
    int stride = 0;
    const unsigned char* data = Pixels(&stride);
    if (!path || !data)
        return false;
    std::FILE* file = std::fopen(path, "wb");
    if (!file)
        return false;
    const std::uint32_t rowBytes = (std::uint32_t(m_width) * 3 + 3) & ~3u;
    const std::uint32_t imageBytes = rowBytes * std::uint32_t(m_height);
    std::fputc('B', file);
    std::fputc('M', file);
    PutLe(file, 54 + imageBytes, 4);
    PutLe(file, 0, 4);
    PutLe(file, 54, 4);
    PutLe(file, 40, 4);
    PutLe(file, std::uint32_t(m_width), 4);
    PutLe(file, std::uint32_t(m_height), 4);
    PutLe(file, 1, 2);
    PutLe(file, 24, 2);
    PutLe(file, 0, 4);
    PutLe(file, imageBytes, 4);
    PutLe(file, 3780, 4); // 96 DPI in pixels per metre
    PutLe(file, 3780, 4);
    PutLe(file, 0, 4);
    PutLe(file, 0, 4);
    std::vector<unsigned char> row(rowBytes, 0);
    for (int y = m_height - 1; y >= 0; --y) {
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(data + y * stride);
        for (int x = 0; x < m_width; ++x) {
            row[3 * x] = BYTE(pixels[x]);
            row[3 * x + 1] = BYTE(pixels[x] >> 8);
            row[3 * x + 2] = BYTE(pixels[x] >> 16);
        }
        std::fwrite(row.data(), 1, rowBytes, file);
    }
    const bool ok = std::ferror(file) == 0;
    return std::fclose(file) == 0 && ok;
}

void Canvas::BlitTo(Surface& target, int x, int y, const RECT& clip) const {
    if (cairo_surface_get_type(m_impl->surface) != CAIRO_SURFACE_TYPE_IMAGE)
        return;
    auto* native = static_cast<cairo_surface_t*>(target.NativeHandle());
    if (!native)
        return;
    cairo_t* cr = cairo_create(native);
    cairo_rectangle(cr, clip.left, clip.top, clip.right - clip.left, clip.bottom - clip.top);
    cairo_clip(cr);
    cairo_set_source_surface(cr, m_impl->surface, x, y);
    cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
    cairo_paint(cr);
    cairo_destroy(cr);
    cairo_surface_mark_dirty(native);
}

std::string Canvas::Finish(bool* ok) {
    if (m_impl->finished) {
        if (ok)
            *ok = false;
        return {};
    }
    m_impl->finished = true;
    cairo_show_page(m_impl->cr);
    cairo_surface_finish(m_impl->surface);
    if (ok)
        *ok = cairo_surface_status(m_impl->surface) == CAIRO_STATUS_SUCCESS;
    return std::move(m_impl->svg);
}
