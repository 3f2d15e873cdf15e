// The cost of the drawing layer on the grid's hot path, each against raw Cairo and Pango doing
// the same work: the text of one cell and the fill of one cell.

#include "platform/gdi/DC.h"
#include "platform/gdi/Surface.h"
#include "platform/gdi/SurfaceDC.h"

#include <benchmark/benchmark.h>
#include <cairo.h>
#include <pango/pangocairo.h>

#include <cstring>

namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 200;
constexpr const char* kCellText = "123.456";
constexpr UINT kCellFormat = DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS;

// A window-sized surface with a context and the grid's usual font selected.
struct CellContext {
    Surface surface{kWidth, kHeight};
    CDC dc;
    CFont font;

    CellContext() {
        dc.Attach(CreateSurfaceDC(&surface, POINT{0, 0}, RECT{0, 0, kWidth, kHeight}));
        LOGFONT lf{};
        lf.lfHeight = -11;
        std::strcpy(lf.lfFaceName, "MS Sans Serif");
        font.CreateFontIndirect(&lf);
        dc.SelectObject(&font);
        dc.SetBkMode(TRANSPARENT);
    }
};

void BM_DrawText_CDC(benchmark::State& state) {
    CellContext cell;
    for (auto _ : state) {
        CRect r(10, 10, 90, 30);
        benchmark::DoNotOptimize(cell.dc.DrawText(kCellText, -1, &r, kCellFormat));
    }
}
BENCHMARK(BM_DrawText_CDC);

// What a careful direct implementation does for the same cell: one layout kept between calls,
// the text measured for the vertical centre and the ellipsis test, clipped to the cell.
void BM_DrawText_RawPango(benchmark::State& state) {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kWidth, kHeight);
    cairo_t* cr = cairo_create(surface);
    PangoFontMap* map = pango_cairo_font_map_new();
    PangoContext* context = pango_font_map_create_context(map);
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_ON);
    pango_cairo_context_set_font_options(context, options);
    PangoLayout* layout = pango_layout_new(context);
    PangoFontDescription* description = pango_font_description_from_string("Liberation Sans");
    pango_font_description_set_absolute_size(description, 11 * PANGO_SCALE);
    pango_layout_set_font_description(layout, description);
    for (auto _ : state) {
        pango_layout_set_text(layout, kCellText, -1);
        PangoRectangle logical;
        pango_layout_get_pixel_extents(layout, nullptr, &logical);
        bool fits = logical.width <= 80;
        int y = 10 + (20 - logical.height) / 2;
        cairo_save(cr);
        cairo_rectangle(cr, 10, 10, 80, 20);
        cairo_clip(cr);
        cairo_set_source_rgb(cr, 0, 0, 0);
        cairo_move_to(cr, 10, y);
        pango_cairo_show_layout(cr, layout);
        cairo_restore(cr);
        benchmark::DoNotOptimize(fits);
    }
    pango_font_description_free(description);
    g_object_unref(layout);
    cairo_font_options_destroy(options);
    g_object_unref(context);
    g_object_unref(map);
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}
BENCHMARK(BM_DrawText_RawPango);

void BM_FillSolidRect_CDC(benchmark::State& state) {
    CellContext cell;
    for (auto _ : state)
        cell.dc.FillSolidRect(CRect(10, 10, 90, 30), RGB(255, 255, 224));
}
BENCHMARK(BM_FillSolidRect_CDC);

void BM_FillSolidRect_RawCairo(benchmark::State& state) {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kWidth, kHeight);
    cairo_t* cr = cairo_create(surface);
    cairo_set_antialias(cr, CAIRO_ANTIALIAS_NONE);
    for (auto _ : state) {
        cairo_set_source_rgb(cr, 1.0, 1.0, 224 / 255.0);
        cairo_rectangle(cr, 10, 10, 80, 20);
        cairo_fill(cr);
    }
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}
BENCHMARK(BM_FillSolidRect_RawCairo);

} // namespace
