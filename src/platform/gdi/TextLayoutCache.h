#pragma once

// Shaped texts kept for drawing them again. Laying out a text (itemising, shaping) costs far more
// than showing its glyphs, and a window paints the same texts over and over: every repaint, each
// scroll and each change of selection. The cache keeps the glyphs of the texts drawn last, by the
// font's description and the text, up to a fixed count; the oldest go first. Private to the gdi
// layer; the user-interface thread alone uses it.

#include "platform/gdi/GdiInternal.h"

#include <cstdint>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace gdi {

// A one-line text's glyphs, placed as Pango's renderer places them, so that showing it again
// goes straight to Cairo.
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

private:
    void Clear();

    struct Run {
        cairo_scaled_font_t* font; // a reference of our own: the layout may be laid out anew
        int x, baseline;           // Pango units from the layout's origin
        size_t firstGlyph, glyphCount;
    };
    struct Glyph {
        unsigned long index;
        double x;    // pixels from the run's start
        int yOffset; // Pango units
    };
    std::vector<Run> m_runs;
    std::vector<Glyph> m_glyphs;
    mutable std::vector<cairo_glyph_t> m_placed; // reused by Show
};

struct ShapedText {
    PangoLayout* layout;     // left-aligned, unwrapped, with the font's underline and strike-out;
                             // null when the glyphs show the text
    int width;               // of its logical extents, in pixels
    const GlyphRuns* glyphs; // null: show the layout through Pango
};

class TextLayoutCache {
public:
    static constexpr size_t kCapacity = 8192;   // entries; a full-HD grid shows about 1,700 texts
    static constexpr size_t kLongestText = 256; // bytes; longer texts are laid out each time
    static constexpr size_t kMostFonts = 64;    // distinct fonts before the cache starts over

    TextLayoutCache() = default;
    ~TextLayoutCache();
    TextLayoutCache(const TextLayoutCache&) = delete;
    TextLayoutCache& operator=(const TextLayoutCache&) = delete;

    // The shaped `text` in `font`; valid until the next call. Texts longer than kLongestText are
    // laid out in a layout of their own that the next such text reuses.
    ShapedText Shape(FontObject* font, std::string_view text);
    size_t Size() const { return m_index.size(); }

private:
    struct Entry {
        std::string key; // the font's number, then the text
        ShapedText shaped;
        GlyphRuns runs;
        PangoLayout* layout = nullptr; // owned; kept for a text its glyphs cannot show
    };
    // What of a font changes the layout: the description Pango shapes with, and the lines
    // drawn with the text.
    struct FontIdentity {
        int numbers[5]; // size, weight, style, underline, strike-out
        std::string family;
        bool operator==(const FontIdentity& other) const = default;
    };
    void Configure(PangoLayout* layout, FontObject* font, std::string_view text);
    void MakeKey(const FontObject* font, std::string_view text);
    std::uint32_t FontNumber(const FontObject* font);
    void Clear();

    std::list<Entry> m_entries; // the most recently used first
    std::unordered_map<std::string_view, std::list<Entry>::iterator> m_index; // keys in entries
    std::vector<FontIdentity> m_fonts; // numbered by their place; keys start with the number
    std::string m_key;                 // built for each lookup; kept to reuse its storage
    PangoLayout* m_uncached = nullptr;
    // Where new texts are shaped: one layout, warm in the processor's caches, as a program that
    // draws every text afresh would use; owned.
    PangoLayout* m_scratch = nullptr;
};

// The one cache of the process, shared by every device context.
TextLayoutCache& SharedTextLayouts();

} // namespace gdi
