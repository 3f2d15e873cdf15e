// The cache of shaped texts: a list in order of use with an index by key. A miss takes over the
// layout of the entry used longest ago, so that a full cache allocates nothing.

#include "platform/gdi/TextLayoutCache.h"

#include <cstring>

namespace gdi {

TextLayoutCache::~TextLayoutCache() {
    for (Entry& entry : m_entries)
        g_object_unref(entry.shaped.layout);
    if (m_uncached != nullptr)
        g_object_unref(m_uncached);
}

// What of a font changes the layout: the description that Pango shapes with, and the lines
// drawn with the text. Fonts made anew for each paint, and faces mapped to the same installed
// font, share their entries.
void TextLayoutCache::MakeKey(const FontObject* font, std::string_view text) {
    const PangoFontDescription* description = font->description;
    const int numbers[] = {pango_font_description_get_size(description),
                           int(pango_font_description_get_weight(description)),
                           int(pango_font_description_get_style(description)),
                           font->log.lfUnderline != 0, font->log.lfStrikeOut != 0};
    const char* family = pango_font_description_get_family(description);
    m_key.assign(reinterpret_cast<const char*>(numbers), sizeof numbers);
    m_key.append(family != nullptr ? family : "");
    m_key.push_back('\0');
    m_key.append(text);
}

void TextLayoutCache::Configure(PangoLayout* layout, FontObject* font, std::string_view text) {
    pango_layout_set_font_description(layout, font->description);
    pango_layout_set_text(layout, text.data(), int(text.size()));
    if (font->log.lfUnderline || font->log.lfStrikeOut) {
        PangoAttrList* attributes = pango_attr_list_new();
        if (font->log.lfUnderline)
            pango_attr_list_insert(attributes, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
        if (font->log.lfStrikeOut)
            pango_attr_list_insert(attributes, pango_attr_strikethrough_new(TRUE));
        pango_layout_set_attributes(layout, attributes);
        pango_attr_list_unref(attributes);
    } else {
        pango_layout_set_attributes(layout, nullptr);
    }
}

namespace {

int LogicalWidth(PangoLayout* layout) {
    PangoRectangle logical;
    pango_layout_get_pixel_extents(layout, nullptr, &logical);
    return logical.width;
}

} // namespace

ShapedText TextLayoutCache::Shape(FontObject* font, std::string_view text) {
    if (text.size() > kLongestText) {
        if (m_uncached == nullptr)
            m_uncached = pango_layout_new(pango_layout_get_context(SharedLayout()));
        Configure(m_uncached, font, text);
        return {m_uncached, LogicalWidth(m_uncached)};
    }
    MakeKey(font, text);
    if (const auto found = m_index.find(m_key); found != m_index.end()) {
        m_entries.splice(m_entries.begin(), m_entries, found->second);
        return found->second->shaped;
    }
    PangoLayout* layout = nullptr;
    if (m_entries.size() < kCapacity) {
        layout = pango_layout_new(pango_layout_get_context(SharedLayout()));
        m_entries.emplace_front();
    } else {
        // The oldest entry's node and layout serve the new text.
        m_index.erase(m_entries.back().key);
        m_entries.splice(m_entries.begin(), m_entries, std::prev(m_entries.end()));
        layout = m_entries.front().shaped.layout;
    }
    Entry& entry = m_entries.front();
    entry.key = m_key;
    Configure(layout, font, text);
    entry.shaped = {layout, LogicalWidth(layout)};
    m_index.emplace(entry.key, m_entries.begin());
    return entry.shaped;
}

TextLayoutCache& SharedTextLayouts() {
    // Made on first use and never destroyed: its layouts belong to the process's Pango context,
    // which lives as long.
    static auto* cache = new TextLayoutCache;
    return *cache;
}

} // namespace gdi
