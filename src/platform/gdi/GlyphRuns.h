#pragma once

// A one-line text's glyphs, placed as a Pango layout places them, so that showing the text again
// goes straight to Cairo. Private to the gdi layer.

#include "platform/gdi/GdiInternal.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace gdi {

class GlyphRuns {
public:
    GlyphRuns() = default;
    ~GlyphRuns();
    GlyphRuns(const GlyphRuns&) = delete;
    GlyphRuns& operator=(const GlyphRuns&) = delete;

    // False, and no runs, for what only Pango draws: several lines, lines along the text,
    // glyphs missing from every font.
    bool Take(PangoLayout* layout);
    // Shows the glyphs as pango_cairo_show_layout would with the current point at (x, y).
    void Show(cairo_t* cr, double x, double y) const;

    // Building the runs of a line shaped without a layout, left to right.
    void Clear();
    // False for a font Cairo cannot draw with or a glyph no font has; then Clear.
    bool AddRun(PangoFont* font, int x, const PangoGlyphString* glyphs);
    // Of every run, in Pango units below the line's top.
    void SetBaseline(int baseline);

private:
    struct Run {
        cairo_scaled_font_t* font; // a reference of our own: the layout may be laid out anew
        int x, baseline;           // Pango units from the layout's origin
        size_t firstGlyph, glyphCount;
    };
    struct Glyph {
        std::uint32_t index;
        std::int32_t x, yOffset; // Pango units, from the run's start and its baseline
    };
    std::vector<Run> m_runs;
    std::vector<Glyph> m_glyphs;
};

} // namespace gdi
