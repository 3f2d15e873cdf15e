// Glyph runs of one line: taken from a laid-out Pango layout, or shaped straight from the text
// when it is a plain left-to-right line, and shown with Cairo as Pango's renderer shows them.

#include "platform/gdi/GlyphRuns.h"

#include <algorithm>
#include <climits>

namespace gdi {

namespace {

// True when a layout would do nothing with the text beyond itemizing and shaping it on one line:
// no controls (line ends, tabs), no next-line, line or paragraph separator.
bool PlainLine(std::string_view text) {
    for (size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0x20 || byte == 0x7F)
            return false;
        const std::string_view rest = text.substr(i);
        if (byte == 0xC2 && rest.starts_with("\xC2\x85"))
            return false;
        if (byte == 0xE2 && (rest.starts_with("\xE2\x80\xA8") || rest.starts_with("\xE2\x80\xA9")))
            return false;
    }
    return !text.empty();
}

void FreeItems(GList* items) {
    g_list_free_full(items, reinterpret_cast<GDestroyNotify>(pango_item_free));
}

} // namespace

GlyphRuns::~GlyphRuns() {
    Clear();
}

void GlyphRuns::Clear() {
    for (const Run& run : m_runs)
        cairo_scaled_font_destroy(run.font);
    m_runs.clear();
    m_glyphs.clear();
}

bool GlyphRuns::AddRun(PangoFont* font, int x, int baseline, const PangoGlyphString* glyphs) {
    cairo_scaled_font_t* scaled = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(font));
    if (scaled == nullptr || cairo_scaled_font_status(scaled) != CAIRO_STATUS_SUCCESS)
        return false;
    m_runs.push_back({cairo_scaled_font_reference(scaled), x, baseline, m_glyphs.size(), 0});
    int position = 0;
    for (int i = 0; i < glyphs->num_glyphs; ++i) {
        const PangoGlyphInfo& glyph = glyphs->glyphs[i];
        if (glyph.glyph & PANGO_GLYPH_UNKNOWN_FLAG)
            return false;
        if (glyph.glyph != PANGO_GLYPH_EMPTY)
            m_glyphs.push_back(
                {glyph.glyph, position + glyph.geometry.x_offset, glyph.geometry.y_offset});
        position += glyph.geometry.width;
    }
    m_runs.back().glyphCount = m_glyphs.size() - m_runs.back().firstGlyph;
    return true;
}

bool GlyphRuns::Take(PangoLayout* layout) {
    Clear();
    if (pango_layout_get_line_count(layout) != 1 || pango_layout_get_attributes(layout) != nullptr)
        return false;
    PangoLayoutIter* iter = pango_layout_get_iter(layout);
    bool ok = true;
    do {
        PangoLayoutRun* run = pango_layout_iter_get_run_readonly(iter);
        if (run == nullptr)
            continue;
        PangoRectangle logical;
        pango_layout_iter_get_run_extents(iter, nullptr, &logical);
        ok = AddRun(run->item->analysis.font, logical.x, pango_layout_iter_get_baseline(iter),
                    run->glyphs);
    } while (ok && pango_layout_iter_next_run(iter));
    pango_layout_iter_free(iter);
    if (!ok)
        Clear();
    return ok;
}

// A layout puts a lone line's runs side by side in their logical widths, in this order when
// every item is left to right at the base level, and its baseline below the top by the highest
// logical ascent of the runs.
int GlyphRuns::ShapePlainLine(PangoContext* context, PangoAttrList* font, std::string_view text,
                              PangoGlyphString* scratch) {
    Clear();
    if (!PlainLine(text))
        return -1;
    const int length = int(text.size());
    GList* items = pango_itemize(context, text.data(), 0, length, font, nullptr);
    const auto flags = pango_context_get_round_glyph_positions(context)
                           ? PANGO_SHAPE_ROUND_POSITIONS
                           : PANGO_SHAPE_NONE;
    int x = 0;
    int top = INT_MAX;
    bool ok = true;
    for (GList* link = items; link != nullptr && ok; link = link->next) {
        PangoItem* item = static_cast<PangoItem*>(link->data);
        ok = item->analysis.level == 0;
        if (!ok)
            break;
        pango_shape_item(item, text.data(), length, nullptr, scratch, flags);
        PangoRectangle logical;
        pango_glyph_string_extents(scratch, item->analysis.font, nullptr, &logical);
        top = std::min(top, logical.y);
        ok = AddRun(item->analysis.font, x, 0, scratch);
        x += logical.width;
    }
    FreeItems(items);
    if (!ok || m_runs.empty()) {
        Clear();
        return -1;
    }
    for (Run& run : m_runs)
        run.baseline = -top;
    return PANGO_PIXELS(x);
}

void GlyphRuns::Show(cairo_t* cr, double x, double y) const {
    static std::vector<cairo_glyph_t> placed; // reused by every run shown; single-threaded
    for (const Run& run : m_runs) {
        // The same sums in the same order as Pango's renderer, for the same pixels.
        const double baseX = x + double(run.x) / PANGO_SCALE;
        const double baseY = y + double(run.baseline) / PANGO_SCALE;
        placed.clear();
        for (size_t i = run.firstGlyph; i < run.firstGlyph + run.glyphCount; ++i) {
            const Glyph& glyph = m_glyphs[i];
            placed.push_back(
                {glyph.index, baseX + double(glyph.x) / PANGO_SCALE,
                 glyph.yOffset == 0 ? baseY : baseY + double(glyph.yOffset) / PANGO_SCALE});
        }
        cairo_save(cr);
        cairo_set_scaled_font(cr, run.font);
        cairo_show_glyphs(cr, placed.data(), int(placed.size()));
        cairo_restore(cr);
    }
}

} // namespace gdi
