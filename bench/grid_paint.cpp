// Painting the grid on screen. A full repaint of a 1920 x 1080 client full of short texts,
// through the window's paint message with double buffering, against raw Cairo and Pango drawing
// the same fills, lines and texts into an image of the same size. And a page scroll with its
// repaint in a virtual grid of 1,000,000 rows scrolled to the middle.

#include "FullHdGrid.h"

#include <benchmark/benchmark.h>
#include <cairo.h>
#include <pango/pangocairo.h>

#include <cstdint>
#include <cstdio>
#include <memory>

namespace {

constexpr int kRows = 80;
constexpr int kVirtualRows = 1000000;

void FillShortTexts(CGridCtrl& grid) {
    for (int row = 0; row < grid.GetRowCount(); row++) {
        grid.SetRowHeight(row, kRowHeight, FALSE);
        for (int col = 0; col < kCols; col++) {
            grid.SetItemTextFmt(row, col, "%d.%02d", row, col);
        }
    }
    grid.SendMessage(WM_SIZE);
}

void BM_GridRepaint(benchmark::State& state) {
    FullHdGrid window;
    window.MakeStored(kRows);
    FillShortTexts(window.grid);
    window.Repaint();
    for (auto _ : state) {
        window.Repaint();
    }
}
BENCHMARK(BM_GridRepaint)->Unit(benchmark::kMillisecond);

// A first paint: every text is one the drawing has not seen. Each repaint shows texts of the
// baseline's shapes ("12.05") with every digit replaced by one of 62 letters and digits drawn
// from the cell and the repaint's number, so that none comes back while it could be kept.
constexpr char kAlphabet[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
std::uint64_t g_generation = 0;

std::uint64_t Mix(std::uint64_t value) {
    value += 0x9E3779B97F4A7C15ull;
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9ull;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBull;
    return value ^ (value >> 31);
}

BOOL AnswerNewText(GV_DISPINFO* request, LPARAM) {
    char text[16];
    std::snprintf(text, sizeof text, "%d.%02d", request->item.row, request->item.col);
    std::uint64_t bits = Mix(g_generation << 32 | std::uint64_t(request->item.row) << 16 |
                             std::uint64_t(request->item.col));
    for (char* c = text; *c != '\0'; ++c) {
        if (*c != '.') {
            *c = kAlphabet[bits % (sizeof kAlphabet - 1)];
            bits /= sizeof kAlphabet - 1;
        }
    }
    request->item.text = text;
    return TRUE;
}

void BM_GridFirstPaint(benchmark::State& state) {
    FullHdGrid window;
    window.MakeVirtual(kRows, AnswerNewText);
    for (auto _ : state) {
        ++g_generation;
        window.Repaint();
    }
}
BENCHMARK(BM_GridFirstPaint)->Unit(benchmark::kMillisecond);

// The same picture drawn directly: the background, the fixed strips with their raised edges,
// the grid lines, and every cell's text measured, centred vertically and clipped to its cell.
void BM_RawCairoRepaint(benchmark::State& state) {
    cairo_surface_t* surface =
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, kClientWidth, kClientHeight);
    cairo_t* cr = cairo_create(surface);
    cairo_set_antialias(cr, CAIRO_ANTIALIAS_NONE);
    PangoLayout* layout = pango_cairo_create_layout(cr);
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_ON);
    pango_cairo_context_set_font_options(pango_layout_get_context(layout), options);
    PangoFontDescription* font = pango_font_description_from_string("Liberation Sans");
    pango_font_description_set_absolute_size(font, 11 * PANGO_SCALE);
    pango_layout_set_font_description(layout, font);
    const int cols = kClientWidth / kColWidth + 1;
    const int rows = kClientHeight / kRowHeight + 1;
    char text[16];

    for (auto _ : state) {
        cairo_set_source_rgb(cr, 1, 1, 1);
        cairo_paint(cr);
        cairo_set_source_rgb(cr, 0.83, 0.82, 0.78);
        cairo_rectangle(cr, 0, 0, kClientWidth, kRowHeight);
        cairo_rectangle(cr, 0, 0, kColWidth, kClientHeight);
        cairo_fill(cr);
        cairo_set_line_width(cr, 1);
        // Raised edges of the fixed cells, then the grid lines.
        for (int row = 0; row < rows; row++) {
            for (int col = 0; col < cols; col++) {
                if (row != 0 && col != 0) {
                    continue;
                }
                const double x = col * kColWidth + 0.5;
                const double y = row * kRowHeight + 0.5;
                cairo_set_source_rgb(cr, 1, 1, 1);
                cairo_move_to(cr, x + kColWidth - 1, y);
                cairo_line_to(cr, x, y);
                cairo_line_to(cr, x, y + kRowHeight - 1);
                cairo_stroke(cr);
                cairo_set_source_rgb(cr, 0.25, 0.25, 0.25);
                cairo_move_to(cr, x + kColWidth - 1, y);
                cairo_line_to(cr, x + kColWidth - 1, y + kRowHeight - 1);
                cairo_line_to(cr, x, y + kRowHeight - 1);
                cairo_stroke(cr);
            }
        }
        cairo_set_source_rgb(cr, 0.75, 0.75, 0.75);
        for (int col = 1; col < cols; col++) {
            cairo_move_to(cr, (col + 1) * kColWidth - 0.5, kRowHeight);
            cairo_line_to(cr, (col + 1) * kColWidth - 0.5, kClientHeight);
        }
        for (int row = 1; row < rows; row++) {
            cairo_move_to(cr, kColWidth, (row + 1) * kRowHeight - 0.5);
            cairo_line_to(cr, kClientWidth, (row + 1) * kRowHeight - 0.5);
        }
        cairo_stroke(cr);
        cairo_set_source_rgb(cr, 0, 0, 0);
        for (int row = 0; row < rows; row++) {
            for (int col = 0; col < cols; col++) {
                std::snprintf(text, sizeof(text), "%d.%02d", row, col);
                pango_layout_set_text(layout, text, -1);
                PangoRectangle logical;
                pango_layout_get_pixel_extents(layout, nullptr, &logical);
                const int x = col * kColWidth + 4;
                const int y = row * kRowHeight + (kRowHeight - logical.height) / 2;
                cairo_save(cr);
                cairo_rectangle(cr, col * kColWidth + 1, row * kRowHeight + 1, kColWidth - 2,
                                kRowHeight - 2);
                cairo_clip(cr);
                cairo_move_to(cr, x, y);
                pango_cairo_show_layout(cr, layout);
                cairo_restore(cr);
            }
        }
        cairo_surface_flush(surface);
    }
    pango_font_description_free(font);
    cairo_font_options_destroy(options);
    g_object_unref(layout);
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}
BENCHMARK(BM_RawCairoRepaint)->Unit(benchmark::kMillisecond);

BOOL AnswerVirtualCell(GV_DISPINFO* request, LPARAM) {
    request->item.text.Format("%d.%02d", request->item.row, request->item.col);
    return TRUE;
}

// A virtual grid of a million rows scrolled to the middle, each cell's text given on request.
struct VirtualGridWindow : FullHdGrid {
    VirtualGridWindow() {
        MakeVirtual(kVirtualRows, AnswerVirtualCell);
        ScrollToMiddle();
        Repaint();
    }
};

// The baseline of the scrolls: the whole window painted again where it stands.
void BM_VirtualRepaint(benchmark::State& state) {
    VirtualGridWindow window;
    for (auto _ : state) {
        window.Repaint();
    }
}
BENCHMARK(BM_VirtualRepaint)->Unit(benchmark::kMillisecond);

// A page down and back up, each painted: every scrolling row is new.
void BM_VirtualPageScroll(benchmark::State& state) {
    VirtualGridWindow window;
    bool down = true;
    for (auto _ : state) {
        window.grid.SendMessage(WM_VSCROLL, down ? SB_PAGEDOWN : SB_PAGEUP);
        window.grid.UpdateWindow();
        down = !down;
    }
    state.counters["top row"] = window.grid.GetVisibleNonFixedCellRange().minRow;
}
BENCHMARK(BM_VirtualPageScroll)->Unit(benchmark::kMillisecond);

// A row down and back up, each painted: the rest of the rows move.
void BM_VirtualLineScroll(benchmark::State& state) {
    VirtualGridWindow window;
    bool down = true;
    for (auto _ : state) {
        window.grid.SendMessage(WM_VSCROLL, down ? SB_LINEDOWN : SB_LINEUP);
        window.grid.UpdateWindow();
        down = !down;
    }
}
BENCHMARK(BM_VirtualLineScroll)->Unit(benchmark::kMillisecond);

} // namespace
