#pragma once

// Shaped texts kept for drawing them again. Laying out a text (itemising, shaping) costs far more
// than showing its glyphs, and a window paints the same texts over and over: every repaint, each
// scroll and each change of selection. The cache keeps the glyphs of the texts drawn last, by the
// font's description and the text, up to a fixed count; the oldest go first. Private to the gdi
// layer; the user-interface thread alone uses it.

#include "platform/gdi/GdiInternal.h"
#include "platform/gdi/GlyphRuns.h"
#include "platform/gdi/PlainLine.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace gdi {

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
    size_t Size() const { return m_used; }

private:
    static constexpr std::uint32_t kNone = UINT32_MAX;
    struct Entry {
        std::string key; // the font's number, then the text
        std::uint32_t hash = 0;
        std::uint32_t newer = kNone, older = kNone; // neighbours in order of use
        ShapedText shaped{};
        GlyphRuns runs;
        PangoLayout* layout = nullptr; // owned; kept for a text its glyphs cannot show
    };
    // A place of the index: an entry's number with its key's hash, so that a probe compares
    // keys only when the hashes agree and a miss reads no entry at all.
    struct Slot {
        std::uint32_t hash;
        std::uint32_t entry; // kNone: empty
    };
    static constexpr size_t kSlots = 2 * kCapacity; // a power of two, at most half full
    // What of a font changes the layout: the description Pango shapes with, and the lines
    // drawn with the text.
    struct FontIdentity {
        int numbers[5]; // size, weight, style, underline, strike-out
        std::string family;
        bool operator==(const FontIdentity& other) const = default;
    };
    struct KnownFont {
        FontIdentity identity;
        // Null for a font with lines along its text, which a layout draws.
        std::unique_ptr<PlainLineFont> plainLine;
    };
    struct GlyphStringFree {
        void operator()(PangoGlyphString* glyphs) const { pango_glyph_string_free(glyphs); }
    };
    void Configure(PangoLayout* layout, FontObject* font, std::string_view text);
    // Sets m_key, and answers the font for shaping a plain line in (or null).
    PlainLineFont* MakeKey(const FontObject* font, std::string_view text);
    std::uint32_t FontNumber(const FontObject* font);
    void ShapeNew(Entry& entry, FontObject* font, PlainLineFont* plainLine, std::string_view text);
    void Clear();

    std::uint32_t Find(std::uint32_t hash) const; // of m_key
    void Insert(std::uint32_t hash, std::uint32_t entry);
    void Erase(std::uint32_t hash, std::uint32_t entry);
    void Unlink(std::uint32_t entry);
    void MakeNewest(std::uint32_t entry);

    // Made on first use; entries stay where they are, so that their glyphs can be pointed to.
    std::unique_ptr<Entry[]> m_entries;
    std::unique_ptr<Slot[]> m_slots;
    std::uint32_t m_used = 0;
    std::uint32_t m_newest = kNone, m_oldest = kNone;
    std::vector<KnownFont> m_fonts; // numbered by their place; keys start with the number
    std::string m_key;              // built for each lookup; kept to reuse its storage
    PangoLayout* m_uncached = nullptr;
    // Where new texts are shaped, kept warm in the processor's caches: the glyphs of a plain
    // line, and the layout of any other text (owned).
    std::unique_ptr<PangoGlyphString, GlyphStringFree> m_glyphs;
    PangoLayout* m_scratch = nullptr;
};

// The one cache of the process, shared by every device context.
TextLayoutCache& SharedTextLayouts();

} // namespace gdi
