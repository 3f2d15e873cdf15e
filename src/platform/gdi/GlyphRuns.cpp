// Glyph runs of one line, taken from a laid-out Pango layout or built run by run, and shown with
// Cairo as Pango's renderer shows them.

#include "platform/gdi/GlyphRuns.h"

namespace gdi {

GlyphRuns::~GlyphRuns() {
    Clear();
}

void GlyphRuns::Clear() {
    for (const Run& run : m_runs)
        cairo_scaled_font_destroy(run.font);
    m_runs.clear();
    m_glyphs.clear();
}

bool GlyphRuns::AddRun(PangoFont* font, int x, const PangoGlyphString* glyphs) {
    cairo_scaled_font_t* scaled = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(font));
    if (scaled == nullptr || cairo_scaled_font_status(scaled) != CAIRO_STATUS_SUCCESS)
        return false;
    m_runs.push_back({cairo_scaled_font_reference(scaled), x, 0, m_glyphs.size(), 0});
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
        ok = AddRun(run->item->analysis.font, logical.x, run->glyphs);
        if (ok)
            m_runs.back().baseline = pango_layout_iter_get_baseline(iter);
    } while (ok && pango_layout_iter_next_run(iter));
    pango_layout_iter_free(iter);
    if (!ok)
        Clear();
    return ok;
}

void GlyphRuns::SetBaseline(int baseline) {
    for (Run& run : m_runs)
        run.baseline = baseline;
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
