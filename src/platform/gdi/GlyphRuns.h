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
    // Shapes a plain left-to-right line without a layout: Pango's itemizer and shaper alone,
    // with the same placing, spare the layout's line breaking and bookkeeping, which cost about
    // as much again. `font` holds the font's description as the one attribute; `scratch` is
    // any glyph string, reused between calls. Answers the logical width in pixels, or -1 and no
    // runs for what needs the layout: control characters (tabs go to tab stops), line and
    // paragraph separators, right-to-left or embedded text, glyphs missing from every font.
    int ShapePlainLine(PangoContext* context, PangoAttrList* font, std::string_view text,
                       PangoGlyphString* scratch);
    // Shows the glyphs as pango_cairo_show_layout would with the current point at (x, y).
    void Show(cairo_t* cr, double x, double y) const;

private:
    void Clear();
    // False for a font Cairo cannot draw with or a glyph no font has.
    bool AddRun(PangoFont* font, int x, int baseline, const PangoGlyphString* glyphs);

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
