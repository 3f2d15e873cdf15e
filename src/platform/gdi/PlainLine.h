#pragma once

// Shaping a plain left-to-right line without a Pango layout. Pango's itemizer and shaper alone,
// with the layout's placing of the runs, spare the layout's line breaking and bookkeeping, which
// cost about as much again; and a line of printable ASCII in a font that has all of it is not
// even itemized: it gets the item Pango gave the last such line. What is learned stays true
// because the process's one Pango context keeps its fixed options. Private to the gdi layer.

#include "platform/gdi/GlyphRuns.h"

#include <string_view>

namespace gdi {

// A font as plain lines are shaped in it.
class PlainLineFont {
public:
    explicit PlainLineFont(const PangoFontDescription* description);
    ~PlainLineFont();
    PlainLineFont(const PlainLineFont&) = delete;
    PlainLineFont& operator=(const PlainLineFont&) = delete;

    // The description as the one attribute, as a layout itemizes with it.
    PangoAttrList* Attributes() const { return m_attributes; }

    // Lines of printable ASCII come in two kinds, which differ in their item's script: with
    // letters (Latin) and without (digits, signs and blanks alone).
    static constexpr int kAsciiKinds = 2;
    // The kind of a line of printable ASCII, or -1 for any other line.
    static int AsciiKind(std::string_view text);
    // The item of every line of the kind, or null until Pango itemizes one as a single item in
    // the font that it picks first for the description and that has every printable character.
    const PangoItem* AsciiItem(int kind) const { return m_ascii[kind]; }
    void LearnAsciiItem(PangoContext* context, int kind, const PangoItem* item);

private:
    PangoFontDescription* m_description;  // owned
    PangoAttrList* m_attributes;          // owned
    PangoItem* m_ascii[kAsciiKinds] = {}; // owned
    bool m_asciiRefused = false; // the first font lacks a printable character, or is not the item's
};

// Shapes `text` into `runs`. `scratch` is any glyph string, reused between calls. Answers the
// logical width in pixels, or -1 and no runs for what needs the layout: control characters (tabs
// go to tab stops), line and paragraph separators, right-to-left or embedded text, glyphs missing
// from every font.
int ShapePlainLine(PangoContext* context, PlainLineFont& font, std::string_view text,
                   PangoGlyphString* scratch, GlyphRuns& runs);

} // namespace gdi
