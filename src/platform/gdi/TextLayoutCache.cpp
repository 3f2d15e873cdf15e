// The cache of shaped texts: a fixed array of entries chained in order of use, with a flat
// open-addressing index by key. A miss shapes a plain line straight into the glyphs of the entry
// used longest ago, and any other text in one scratch layout, so that a full cache allocates
// little and a first paint costs less than laying each text out afresh.

#include "platform/gdi/TextLayoutCache.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace gdi {

TextLayoutCache::~TextLayoutCache() {
    Clear();
    if (m_uncached != nullptr)
        g_object_unref(m_uncached);
    if (m_scratch != nullptr)
        g_object_unref(m_scratch);
}

// Fonts made anew for each paint, and faces mapped to the same installed font, share their
// number and so their entries. A program has a handful of fonts: a search is quick.
std::uint32_t TextLayoutCache::FontNumber(const FontObject* font) {
    const PangoFontDescription* description = font->description;
    const char* family = pango_font_description_get_family(description);
    FontIdentity identity{{pango_font_description_get_size(description),
                           int(pango_font_description_get_weight(description)),
                           int(pango_font_description_get_style(description)),
                           font->log.lfUnderline != 0, font->log.lfStrikeOut != 0},
                          family != nullptr ? family : ""};
    for (size_t i = 0; i < m_fonts.size(); ++i)
        if (m_fonts[i].identity == identity)
            return std::uint32_t(i);
    if (m_fonts.size() == kMostFonts)
        Clear();
    KnownFont known{std::move(identity), nullptr};
    if (!font->log.lfUnderline && !font->log.lfStrikeOut)
        known.plainLine = std::make_unique<PlainLineFont>(description);
    m_fonts.push_back(std::move(known));
    return std::uint32_t(m_fonts.size() - 1);
}

PlainLineFont* TextLayoutCache::MakeKey(const FontObject* font, std::string_view text) {
    const std::uint32_t number = FontNumber(font);
    m_key.assign(reinterpret_cast<const char*>(&number), sizeof number);
    m_key.append(text);
    return m_fonts[number].plainLine.get();
}

void TextLayoutCache::Clear() {
    for (std::uint32_t i = 0; i < m_used; ++i)
        if (m_entries[i].layout != nullptr)
            g_object_unref(m_entries[i].layout);
    m_entries.reset();
    m_slots.reset();
    m_used = 0;
    m_newest = m_oldest = kNone;
    m_fonts.clear();
}

std::uint32_t TextLayoutCache::Find(std::uint32_t hash) const {
    for (size_t place = hash & (kSlots - 1);; place = (place + 1) & (kSlots - 1)) {
        const Slot& slot = m_slots[place];
        if (slot.entry == kNone || (slot.hash == hash && m_entries[slot.entry].key == m_key))
            return slot.entry;
    }
}

void TextLayoutCache::Insert(std::uint32_t hash, std::uint32_t entry) {
    size_t place = hash & (kSlots - 1);
    while (m_slots[place].entry != kNone)
        place = (place + 1) & (kSlots - 1);
    m_slots[place] = {hash, entry};
}

// Takes the entry's slot out and moves later slots of the same run back into the gap, so that
// probes never need markers of deleted places.
void TextLayoutCache::Erase(std::uint32_t hash, std::uint32_t entry) {
    constexpr size_t kMask = kSlots - 1;
    size_t gap = hash & kMask;
    while (m_slots[gap].entry != entry)
        gap = (gap + 1) & kMask;
    for (size_t next = (gap + 1) & kMask; m_slots[next].entry != kNone; next = (next + 1) & kMask) {
        // A slot may fill the gap unless its home lies after the gap, up to itself.
        const size_t home = m_slots[next].hash & kMask;
        if (((next - home) & kMask) >= ((next - gap) & kMask)) {
            m_slots[gap] = m_slots[next];
            gap = next;
        }
    }
    m_slots[gap].entry = kNone;
}

void TextLayoutCache::Unlink(std::uint32_t entry) {
    Entry& e = m_entries[entry];
    (e.newer != kNone ? m_entries[e.newer].older : m_newest) = e.older;
    (e.older != kNone ? m_entries[e.older].newer : m_oldest) = e.newer;
}

void TextLayoutCache::MakeNewest(std::uint32_t entry) {
    Entry& e = m_entries[entry];
    e.newer = kNone;
    e.older = m_newest;
    (m_newest != kNone ? m_entries[m_newest].newer : m_oldest) = entry;
    m_newest = entry;
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

void TextLayoutCache::ShapeNew(Entry& entry, FontObject* font, PlainLineFont* plainLine,
                               std::string_view text) {
    PangoContext* context = pango_layout_get_context(SharedLayout());
    if (plainLine != nullptr) {
        if (m_glyphs == nullptr)
            m_glyphs.reset(pango_glyph_string_new());
        const int width = ShapePlainLine(context, *plainLine, text, m_glyphs.get(), entry.runs);
        if (width >= 0) {
            entry.shaped = {nullptr, width, &entry.runs};
            return;
        }
    }
    if (m_scratch == nullptr)
        m_scratch = pango_layout_new(context);
    Configure(m_scratch, font, text);
    const int width = LogicalWidth(m_scratch);
    if (entry.runs.Take(m_scratch)) {
        entry.shaped = {nullptr, width, &entry.runs};
    } else {
        // The entry keeps the layout as it stands, and its own old one (if any) becomes the
        // scratch layout.
        std::swap(entry.layout, m_scratch);
        entry.shaped = {entry.layout, width, nullptr};
    }
}

ShapedText TextLayoutCache::Shape(FontObject* font, std::string_view text) {
    if (text.size() > kLongestText) {
        if (m_uncached == nullptr)
            m_uncached = pango_layout_new(pango_layout_get_context(SharedLayout()));
        Configure(m_uncached, font, text);
        return {m_uncached, LogicalWidth(m_uncached), nullptr};
    }
    PlainLineFont* plainLine = MakeKey(font, text);
    if (m_entries == nullptr) {
        m_entries = std::make_unique<Entry[]>(kCapacity);
        m_slots = std::make_unique<Slot[]>(kSlots);
        std::fill_n(m_slots.get(), kSlots, Slot{0, kNone});
    }
    const auto hash = std::uint32_t(std::hash<std::string_view>{}(m_key));
    if (const std::uint32_t found = Find(hash); found != kNone) {
        if (found != m_newest) {
            Unlink(found);
            MakeNewest(found);
        }
        return m_entries[found].shaped;
    }
    std::uint32_t number = m_used;
    if (m_used < kCapacity) {
        ++m_used;
    } else {
        // The oldest entry's storage serves the new text.
        number = m_oldest;
        Erase(m_entries[number].hash, number);
        Unlink(number);
    }
    MakeNewest(number);
    Entry& entry = m_entries[number];
    entry.key = m_key;
    entry.hash = hash;
    ShapeNew(entry, font, plainLine, text);
    Insert(hash, number);
    return entry.shaped;
}

TextLayoutCache& SharedTextLayouts() {
    // Made on first use and never destroyed: its layouts belong to the process's Pango context,
    // which lives as long.
    static auto* cache = new TextLayoutCache;
    return *cache;
}

} // namespace gdi
