// Text output and measurement of the device context, through Pango. Single lines go through
// the cache of shaped texts.

#include "platform/gdi/GdiInternal.h"
#include "platform/gdi/TextLayoutCache.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

using namespace gdi;

namespace {

// Texts of the application are in the Windows code page unless they already are UTF-8; Pango
// wants UTF-8.
void AppendUtf8(std::string& out, const char* text, int count) {
    bool ascii = true;
    for (int i = 0; i < count && ascii; ++i)
        ascii = static_cast<unsigned char>(text[i]) < 0x80;
    if (ascii || g_utf8_validate(text, count, nullptr)) {
        out.append(text, std::size_t(count));
        return;
    }
    static const char16_t kHigh[32] = {
        0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
    for (int i = 0; i < count; ++i) {
        auto c = static_cast<unsigned char>(text[i]);
        gunichar u = c >= 0x80 && c < 0xA0 ? kHigh[c - 0x80] : c;
        char buffer[6];
        out.append(buffer, std::size_t(g_unichar_to_utf8(u, buffer)));
    }
}

int Length(LPCTSTR text, int count) {
    if (text == nullptr)
        return 0;
    return count < 0 ? int(std::strlen(text)) : count;
}

// A text made ready for Pango: UTF-8, prefixes and line ends handled as `format` says.
struct PreparedText {
    std::string text;
    std::vector<std::pair<int, int>> underlines; // byte ranges of the prefixed characters
};

void Prepare(PreparedText& prepared, LPCTSTR raw, int count, UINT format) {
    std::string& text = prepared.text;
    text.clear();
    prepared.underlines.clear();
    AppendUtf8(text, raw, count);
    bool needsWork = (format & DT_NOPREFIX) == 0 || (format & DT_SINGLELINE) != 0 ||
                     (format & DT_EXPANDTABS) == 0;
    if (!needsWork || text.find_first_of("&\r\n\t") == std::string::npos)
        return;
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c == '&' && (format & DT_NOPREFIX) == 0) {
            if (i + 1 < text.size() && text[i + 1] == '&') {
                out += '&';
                ++i;
            } else if (i + 1 < text.size()) {
                int start = int(out.size());
                std::size_t next = std::size_t(g_utf8_next_char(text.data() + i + 1) - text.data());
                out.append(text, i + 1, next - (i + 1));
                prepared.underlines.emplace_back(start, int(out.size()));
                i = next - 1;
            }
            continue;
        }
        if (c == '\r' || c == '\n') {
            if (format & DT_SINGLELINE) {
                out += ' ';
            } else {
                out += '\n';
                if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                    ++i;
            }
            continue;
        }
        if (c == '\t' && (format & DT_EXPANDTABS) == 0) {
            out += ' ';
            continue;
        }
        out += c;
    }
    text.swap(out);
}

// Sets the shared layout to `text` in `font`, with the font's own and the prefix's lines.
using Underlines = std::vector<std::pair<int, int>>;

PangoLayout* Layout(FontObject* font, const char* text, int length,
                    const Underlines* underlines = nullptr) {
    PangoLayout* layout = SharedLayout();
    pango_layout_set_font_description(layout, font->description);
    pango_layout_set_text(layout, text, length);
    pango_layout_set_width(layout, -1);
    pango_layout_set_alignment(layout, PANGO_ALIGN_LEFT);
    pango_layout_set_tabs(layout, nullptr);
    bool prefixed = underlines != nullptr && !underlines->empty();
    if (font->log.lfUnderline || font->log.lfStrikeOut || prefixed) {
        PangoAttrList* attributes = pango_attr_list_new();
        if (font->log.lfUnderline)
            pango_attr_list_insert(attributes, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
        if (font->log.lfStrikeOut)
            pango_attr_list_insert(attributes, pango_attr_strikethrough_new(TRUE));
        if (prefixed && !font->log.lfUnderline)
            for (auto [start, end] : *underlines) {
                PangoAttribute* line = pango_attr_underline_new(PANGO_UNDERLINE_SINGLE);
                line->start_index = guint(start);
                line->end_index = guint(end);
                pango_attr_list_insert(attributes, line);
            }
        pango_layout_set_attributes(layout, attributes);
        pango_attr_list_unref(attributes);
    } else {
        pango_layout_set_attributes(layout, nullptr);
    }
    return layout;
}

int LayoutWidth(PangoLayout* layout) {
    PangoRectangle logical;
    pango_layout_get_pixel_extents(layout, nullptr, &logical);
    return logical.width;
}

// Shows the layout with its first baseline at `top` plus the font's ascent; through its glyphs
// alone when the cache has them.
void Show(DcState* dc, FontObject* font, PangoLayout* layout, const GlyphRuns* glyphs, int x,
          int top, const RECT* clip) {
    cairo_t* cr = dc->Cairo();
    if (clip != nullptr) {
        cairo_save(cr);
        cairo_rectangle(cr, clip->left, clip->top, clip->right - clip->left,
                        clip->bottom - clip->top);
        cairo_clip(cr);
    }
    SetSource(cr, dc->attributes.textColor);
    const int y = top + Metrics(font).tmAscent - font->baseline;
    cairo_move_to(cr, x, y);
    if (glyphs != nullptr)
        glyphs->Show(cr, x, y);
    else
        pango_cairo_show_layout(cr, layout);
    if (clip != nullptr)
        cairo_restore(cr);
}

void FillBackground(DcState* dc, const RECT& box, const RECT* clip) {
    RECT r = box;
    if (clip != nullptr)
        r = {std::max(r.left, clip->left), std::max(r.top, clip->top),
             std::min(r.right, clip->right), std::min(r.bottom, clip->bottom)};
    if (r.right <= r.left || r.bottom <= r.top)
        return;
    cairo_t* cr = dc->Cairo();
    SetSource(cr, dc->attributes.bkColor);
    cairo_rectangle(cr, r.left, r.top, r.right - r.left, r.bottom - r.top);
    cairo_fill(cr);
}

// Cuts the text so that it and "..." fit in `width`; answers the width of the result.
int EndEllipsis(FontObject* font, PreparedText& prepared, int width) {
    std::string& text = prepared.text;
    std::vector<int> starts; // byte offsets of characters
    for (const char* p = text.data(); p < text.data() + text.size(); p = g_utf8_next_char(p))
        starts.push_back(int(p - text.data()));
    std::string candidate;
    auto widthWith = [&](int characters) {
        candidate.assign(text, 0, std::size_t(starts[std::size_t(characters)]));
        candidate += "...";
        return SharedTextLayouts().Shape(font, candidate).width;
    };
    int low = 0, high = int(starts.size()) - 1; // the longest prefix that fits lies in [low, high]
    while (low < high) {
        int middle = (low + high + 1) / 2;
        if (widthWith(middle) <= width)
            low = middle;
        else
            high = middle - 1;
    }
    text.resize(std::size_t(starts[std::size_t(low)]));
    text += "...";
    auto cut = int(text.size()) - 3;
    std::erase_if(prepared.underlines, [cut](const auto& range) { return range.second > cut; });
    return widthWith(low);
}

void SetTabs(PangoLayout* layout, UINT format, const TEXTMETRIC& tm) {
    if ((format & DT_EXPANDTABS) == 0)
        return;
    PangoTabArray* tabs = pango_tab_array_new_with_positions(
        1, TRUE, PANGO_TAB_LEFT, 8 * std::max<LONG>(1, tm.tmAveCharWidth));
    pango_layout_set_tabs(layout, tabs);
    pango_tab_array_free(tabs);
}

// The layout of a text on one line, and its width. Plain texts come shaped from the cache;
// prefixed ones and those with tabs to expand are laid out afresh.
PangoLayout* SingleLine(FontObject* font, const PreparedText& prepared, UINT format,
                        const TEXTMETRIC& tm, int& width, const GlyphRuns*& glyphs) {
    const std::string& text = prepared.text;
    width = 0;
    glyphs = nullptr;
    if (text.empty())
        return nullptr;
    const bool tabs = (format & DT_EXPANDTABS) && text.find('\t') != std::string::npos;
    if (prepared.underlines.empty() && !tabs) {
        const ShapedText shaped = SharedTextLayouts().Shape(font, text);
        width = shaped.width;
        glyphs = shaped.glyphs;
        return shaped.layout;
    }
    PangoLayout* layout = Layout(font, text.data(), int(text.size()), &prepared.underlines);
    SetTabs(layout, format, tm);
    width = LayoutWidth(layout);
    return layout;
}

} // namespace

int CDC::DrawText(LPCTSTR raw, int count, LPRECT rect, UINT format) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || rect == nullptr || raw == nullptr)
        return 0;
    FontObject* font = CurrentFont(dc);
    const TEXTMETRIC& tm = Metrics(font);
    static PreparedText prepared; // reused between calls; single-threaded
    Prepare(prepared, raw, Length(raw, count), format);
    const std::string& text = prepared.text;
    bool singleLine = (format & DT_SINGLELINE) != 0 ||
                      ((format & DT_WORDBREAK) == 0 && text.find('\n') == std::string::npos);
    int rectWidth = rect->right - rect->left, rectHeight = rect->bottom - rect->top;
    int lineHeight = tm.tmHeight + ((format & DT_EXTERNALLEADING) ? tm.tmExternalLeading : 0);

    PangoLayout* layout = nullptr;
    const GlyphRuns* glyphs = nullptr;
    int width, height;
    if (singleLine) {
        layout = SingleLine(font, prepared, format, tm, width, glyphs);
        height = lineHeight;
        if ((format & DT_END_ELLIPSIS) && (format & DT_CALCRECT) == 0 && width > rectWidth &&
            !text.empty()) {
            width = EndEllipsis(font, prepared, rectWidth);
            if (prepared.underlines.empty() && text.find('\t') == std::string::npos) {
                const ShapedText shaped = SharedTextLayouts().Shape(font, text);
                layout = shaped.layout;
                glyphs = shaped.glyphs;
            } else {
                layout = Layout(font, text.data(), int(text.size()), &prepared.underlines);
                glyphs = nullptr;
            }
        }
    } else {
        layout = Layout(font, text.data(), int(text.size()), &prepared.underlines);
        SetTabs(layout, format, tm);
        if (format & DT_WORDBREAK) {
            pango_layout_set_width(layout, std::max(1, rectWidth) * PANGO_SCALE);
            pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
        }
        pango_layout_set_alignment(layout, (format & DT_CENTER)  ? PANGO_ALIGN_CENTER
                                           : (format & DT_RIGHT) ? PANGO_ALIGN_RIGHT
                                                                 : PANGO_ALIGN_LEFT);
        PangoRectangle logical;
        pango_layout_get_pixel_extents(layout, nullptr, &logical);
        width = logical.width;
        height = std::max(lineHeight, logical.height);
    }

    if (format & DT_CALCRECT) {
        rect->right = rect->left + width;
        rect->bottom = rect->top + height;
        return height;
    }

    // Where the text goes, in logical coordinates.
    int x = rect->left;
    bool wrapped = !singleLine && (format & DT_WORDBREAK);
    if (!wrapped) {
        if (format & DT_CENTER)
            x = rect->left + (rectWidth - width) / 2;
        else if (format & DT_RIGHT)
            x = rect->right - width;
    }
    int y = rect->top;
    if (singleLine && (format & DT_VCENTER))
        y = rect->top + (rectHeight - height) / 2;
    else if (singleLine && (format & DT_BOTTOM))
        y = rect->bottom - height;

    RECT clipBox = dc->ToSurface(*rect);
    const RECT* clip = (format & DT_NOCLIP) ? nullptr : &clipBox;
    POINT at = dc->ToSurface(x, y);
    if (dc->attributes.bkMode == OPAQUE && !text.empty())
        FillBackground(dc, {at.x, at.y, at.x + width, at.y + height}, clip);
    if (!text.empty())
        Show(dc, font, layout, glyphs, wrapped ? clipBox.left : at.x, at.y, clip);
    return (singleLine && (format & (DT_VCENTER | DT_BOTTOM))) ? y - rect->top + height : height;
}

int CDC::DrawText(const CString& text, LPRECT rect, UINT format) {
    return DrawText(static_cast<LPCTSTR>(text), text.GetLength(), rect, format);
}

int DrawText(HDC dc, LPCTSTR text, int count, LPRECT rect, UINT format) {
    CDC* cdc = CDC::FromHandle(dc);
    return cdc != nullptr ? cdc->DrawText(text, count, rect, format) : 0;
}

BOOL CDC::TextOut(int x, int y, LPCTSTR text, int count) {
    return ExtTextOut(x, y, 0, nullptr, text, UINT(Length(text, count)), nullptr);
}

BOOL CDC::TextOut(int x, int y, const CString& text) {
    return TextOut(x, y, static_cast<LPCTSTR>(text), text.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR raw, UINT count,
                     const int*) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return FALSE;
    RECT box{};
    if (rect != nullptr)
        box = dc->ToSurface(*rect);
    if ((options & ETO_OPAQUE) && rect != nullptr)
        FillBackground(dc, box, nullptr);
    if (raw == nullptr || count == 0)
        return TRUE;
    FontObject* font = CurrentFont(dc);
    const TEXTMETRIC& tm = Metrics(font);
    static std::string text; // reused between calls; single-threaded
    text.clear();
    AppendUtf8(text, raw, int(count));
    const ShapedText shaped = SharedTextLayouts().Shape(font, text);
    PangoLayout* layout = shaped.layout;
    const int width = shaped.width;

    UINT align = dc->attributes.textAlign;
    if (align & TA_UPDATECP) {
        x = dc->attributes.position.x;
        y = dc->attributes.position.y;
    }
    int left = x;
    if ((align & TA_CENTER) == TA_CENTER)
        left = x - width / 2;
    else if (align & TA_RIGHT)
        left = x - width;
    int top = y;
    if ((align & TA_BASELINE) == TA_BASELINE)
        top = y - tm.tmAscent;
    else if (align & TA_BOTTOM)
        top = y - tm.tmHeight;
    if (align & TA_UPDATECP)
        dc->attributes.position.x = (align & TA_RIGHT) && (align & TA_CENTER) != TA_CENTER
                                        ? x - width
                                    : (align & TA_CENTER) == TA_CENTER ? x
                                                                       : x + width;

    const RECT* clip = (options & ETO_CLIPPED) && rect != nullptr ? &box : nullptr;
    POINT at = dc->ToSurface(left, top);
    if (dc->attributes.bkMode == OPAQUE && (options & ETO_OPAQUE) == 0)
        FillBackground(dc, {at.x, at.y, at.x + width, at.y + tm.tmHeight}, clip);
    Show(dc, font, layout, shaped.glyphs, at.x, at.y, clip);
    return TRUE;
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text,
                     const int* widths) {
    return ExtTextOut(x, y, options, rect, static_cast<LPCTSTR>(text), UINT(text.GetLength()),
                      widths);
}

CSize CDC::GetTextExtent(LPCTSTR raw, int count) const {
    DcState* dc = LookupDC(AttribDC());
    if (dc == nullptr)
        return CSize(0, 0);
    FontObject* font = CurrentFont(dc);
    int length = Length(raw, count);
    if (length == 0)
        return CSize(0, Metrics(font).tmHeight);
    static std::string text; // reused between calls; single-threaded
    text.clear();
    AppendUtf8(text, raw, length);
    return CSize(SharedTextLayouts().Shape(font, text).width, Metrics(font).tmHeight);
}

CSize CDC::GetTextExtent(const CString& text) const {
    return GetTextExtent(static_cast<LPCTSTR>(text), text.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR text, int count) const {
    CDC* output = CDC::FromHandle(m_hDC);
    return output != nullptr ? output->GetTextExtent(text, count) : CSize(0, 0);
}

CSize CDC::GetOutputTextExtent(const CString& text) const {
    return GetOutputTextExtent(static_cast<LPCTSTR>(text), text.GetLength());
}

BOOL CDC::GetTextMetrics(TEXTMETRIC* metrics) const {
    DcState* dc = LookupDC(AttribDC());
    if (dc == nullptr || metrics == nullptr)
        return FALSE;
    *metrics = Metrics(CurrentFont(dc));
    return TRUE;
}

BOOL CDC::GetOutputTextMetrics(TEXTMETRIC* metrics) const {
    CDC* output = CDC::FromHandle(m_hDC);
    return output != nullptr && output->GetTextMetrics(metrics);
}

int CDC::GetTextFace(int count, LPTSTR faceName) const {
    DcState* dc = LookupDC(AttribDC());
    if (dc == nullptr)
        return 0;
    const char* face = CurrentFont(dc)->log.lfFaceName;
    int length = int(std::strlen(face));
    if (faceName == nullptr)
        return length + 1;
    if (count <= 0)
        return 0;
    int copied = std::min(length, count - 1);
    std::memcpy(faceName, face, std::size_t(copied));
    faceName[copied] = '\0';
    return copied;
}
