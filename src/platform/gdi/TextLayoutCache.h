#pragma once

// Shaped texts kept for drawing them again. Laying out a text (itemising, shaping) costs far more
// than showing its glyphs, and a window paints the same texts over and over: every repaint, each
// scroll and each change of selection. The cache keeps the layouts of the texts drawn last, by
// the font's description and the text, up to a fixed count; the oldest go first. Private to the
// gdi layer; the user-interface thread alone uses it.

#include "platform/gdi/GdiInternal.h"

#include <list>
#include <string>
#include <string_view>
#include <unordered_map>

namespace gdi {

struct ShapedText {
    PangoLayout* layout; // left-aligned, unwrapped, with the font's underline and strike-out
    int width;           // of its logical extents, in pixels
};

class TextLayoutCache {
public:
    static constexpr size_t kCapacity = 8192;   // entries; a full-HD grid shows about 1,700 texts
    static constexpr size_t kLongestText = 256; // bytes; longer texts are laid out each time

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
        std::string key; // the font's identity, then the text
        ShapedText shaped;
    };
    void Configure(PangoLayout* layout, FontObject* font, std::string_view text);
    void MakeKey(const FontObject* font, std::string_view text);

    std::list<Entry> m_entries; // the most recently used first
    std::unordered_map<std::string_view, std::list<Entry>::iterator> m_index; // keys in entries
    std::string m_key; // built for each lookup; kept to reuse its storage
    PangoLayout* m_uncached = nullptr;
};

// The one cache of the process, shared by every device context.
TextLayoutCache& SharedTextLayouts();

} // namespace gdi
