// Plain lines shaped without a layout, as a Pango layout would shape and place them.

#include "platform/gdi/PlainLine.h"

#include <algorithm>
#include <climits>

namespace gdi {

namespace {

constexpr unsigned char kFirstPrintable = 0x20;
constexpr unsigned char kLastPrintable = 0x7E;

// True when a layout would do nothing with the text beyond itemizing and shaping it on one line:
// no controls (line ends, tabs), no next-line, line or paragraph separator.
bool PlainLine(std::string_view text) {
    for (size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < kFirstPrintable || byte == 0x7F)
            return false;
        const std::string_view rest = text.substr(i);
        if (byte == 0xC2 && rest.starts_with("\xC2\x85"))
            return false;
        if (byte == 0xE2 && (rest.starts_with("\xE2\x80\xA8") || rest.starts_with("\xE2\x80\xA9")))
            return false;
    }
    return !text.empty();
}

// A layout puts a lone line's runs side by side in their logical widths, in this order when
// every item is left to right at the base level, and its baseline below the top by the highest
// logical ascent of the runs.
class LineBuilder {
public:
    LineBuilder(PangoContext* context, std::string_view text, PangoGlyphString* scratch,
                GlyphRuns& runs)
        : m_text(text), m_scratch(scratch), m_runs(runs),
          m_flags(pango_context_get_round_glyph_positions(context) ? PANGO_SHAPE_ROUND_POSITIONS
                                                                   : PANGO_SHAPE_NONE) {}

    bool Add(PangoItem* item) {
        if (item->analysis.level != 0)
            return false;
        pango_shape_item(item, m_text.data(), int(m_text.size()), nullptr, m_scratch, m_flags);
        PangoRectangle logical;
        pango_glyph_string_extents(m_scratch, item->analysis.font, nullptr, &logical);
        m_top = std::min(m_top, logical.y);
        if (!m_runs.AddRun(item->analysis.font, m_width, m_scratch))
            return false;
        m_width += logical.width;
        return true;
    }
    // The width in pixels, or -1 for no line.
    int Finish(bool ok) {
        if (!ok || m_top == INT_MAX) {
            m_runs.Clear();
            return -1;
        }
        m_runs.SetBaseline(-m_top);
        return PANGO_PIXELS(m_width);
    }

private:
    std::string_view m_text;
    PangoGlyphString* m_scratch;
    GlyphRuns& m_runs;
    PangoShapeFlags m_flags;
    int m_width = 0;
    int m_top = INT_MAX;
};

} // namespace

PlainLineFont::PlainLineFont(const PangoFontDescription* description)
    : m_description(pango_font_description_copy(description)), m_attributes(pango_attr_list_new()) {
    pango_attr_list_insert(m_attributes, pango_attr_font_desc_new(description));
}

PlainLineFont::~PlainLineFont() {
    for (PangoItem* item : m_ascii)
        if (item != nullptr)
            pango_item_free(item);
    pango_attr_list_unref(m_attributes);
    pango_font_description_free(m_description);
}

int PlainLineFont::AsciiKind(std::string_view text) {
    bool letters = false;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < kFirstPrintable || byte > kLastPrintable)
            return -1;
        letters = letters || g_ascii_isalpha(c);
    }
    return text.empty() ? -1 : letters ? 1 : 0;
}

// Every printable character then goes to the item's font, the first that the description picks,
// as Pango's itemizer gives each character the first font that has it.
void PlainLineFont::LearnAsciiItem(PangoContext* context, int kind, const PangoItem* item) {
    if (m_ascii[kind] != nullptr || m_asciiRefused)
        return;
    PangoFont* first = pango_context_load_font(context, m_description);
    bool usable = first != nullptr && first == item->analysis.font && item->analysis.level == 0;
    for (gunichar c = kFirstPrintable; c <= kLastPrintable && usable; ++c)
        usable = pango_font_has_char(first, c);
    if (first != nullptr)
        g_object_unref(first);
    if (usable)
        m_ascii[kind] = pango_item_copy(const_cast<PangoItem*>(item));
    else
        m_asciiRefused = true;
}

int ShapePlainLine(PangoContext* context, PlainLineFont& font, std::string_view text,
                   PangoGlyphString* scratch, GlyphRuns& runs) {
    runs.Clear();
    if (!PlainLine(text))
        return -1;
    LineBuilder line(context, text, scratch, runs);
    const int length = int(text.size());
    const int kind = PlainLineFont::AsciiKind(text);
    if (kind >= 0 && font.AsciiItem(kind) != nullptr) {
        PangoItem item = *font.AsciiItem(kind);
        item.offset = 0;
        item.length = length;
        item.num_chars = length;
        return line.Finish(line.Add(&item));
    }
    GList* items = pango_itemize(context, text.data(), 0, length, font.Attributes(), nullptr);
    if (kind >= 0 && items != nullptr && items->next == nullptr)
        font.LearnAsciiItem(context, kind, static_cast<PangoItem*>(items->data));
    bool ok = true;
    for (GList* link = items; link != nullptr && ok; link = link->next)
        ok = line.Add(static_cast<PangoItem*>(link->data));
    g_list_free_full(items, reinterpret_cast<GDestroyNotify>(pango_item_free));
    return line.Finish(ok);
}

} // namespace gdi
