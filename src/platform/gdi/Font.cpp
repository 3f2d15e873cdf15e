#include "platform/gdi/GdiInternal.h"

#include <cmath>
#include <cstring>
#include <map>
#include <string>
#include <strings.h>

namespace gdi {

namespace {

// The one Pango context of the process, with fixed font options so that pictures are the same
// on every machine at 96 DPI. Single-threaded: made on first use, never freed.
PangoContext* SharedContext() {
    static PangoContext* context = [] {
        PangoFontMap* map = pango_cairo_font_map_new();
        pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(map), 96.0);
        PangoContext* c = pango_font_map_create_context(map);
        cairo_font_options_t* options = cairo_font_options_create();
        cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
        cairo_font_options_set_subpixel_order(options, CAIRO_SUBPIXEL_ORDER_DEFAULT);
        cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
        cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_ON);
        pango_cairo_context_set_font_options(c, options);
        cairo_font_options_destroy(options);
        pango_cairo_context_set_resolution(c, 96.0);
        pango_context_set_round_glyph_positions(c, TRUE);
        return c;
    }();
    return context;
}

// Cell height over em height of a family, to turn a positive lfHeight into a size.
double CellPerEm(const char* family) {
    static std::map<std::string, double> ratios; // single-threaded cache
    auto found = ratios.find(family);
    if (found != ratios.end())
        return found->second;
    constexpr int kReference = 1000;
    PangoFontDescription* d = pango_font_description_new();
    pango_font_description_set_family(d, family);
    pango_font_description_set_absolute_size(d, kReference * PANGO_SCALE);
    PangoFontMetrics* m = pango_context_get_metrics(SharedContext(), d, nullptr);
    double cell =
        double(pango_font_metrics_get_ascent(m) + pango_font_metrics_get_descent(m)) / PANGO_SCALE;
    pango_font_metrics_unref(m);
    pango_font_description_free(d);
    double ratio = cell > 0 ? cell / kReference : 1.0;
    ratios.emplace(family, ratio);
    return ratio;
}

} // namespace

PangoLayout* SharedLayout() {
    static PangoLayout* layout = pango_layout_new(SharedContext());
    return layout;
}

FontObject::~FontObject() {
    if (description != nullptr)
        pango_font_description_free(description);
}

namespace {

// The parts of the metrics that come from the LOGFONT rather than from the glyphs.
void ApplyStyle(FontObject* font) {
    TEXTMETRIC& tm = font->metrics;
    tm.tmWeight = font->log.lfWeight == FW_DONTCARE ? FW_NORMAL : font->log.lfWeight;
    tm.tmItalic = font->log.lfItalic;
    tm.tmUnderlined = font->log.lfUnderline;
    tm.tmStruckOut = font->log.lfStrikeOut;
    tm.tmPitchAndFamily = font->log.lfPitchAndFamily;
    tm.tmCharSet = font->log.lfCharSet;
    font->metricsKnown = true;
}

} // namespace

FontObject* CurrentFont(DcState* dc) {
    if (FontObject* font = dc->attributes.font.as<FontObject>())
        return font;
    return static_cast<FontObject*>(StockObject(SYSTEM_FONT));
}

namespace {

// Metrics by font, so that a font made anew for each paint does not measure again. Keyed by the
// Pango description, which holds everything that changes the metrics. Single-threaded.
struct MeasuredFont {
    TEXTMETRIC metrics;
    int baseline;
};

std::map<std::string, MeasuredFont>& MeasuredFonts() {
    static std::map<std::string, MeasuredFont> fonts;
    return fonts;
}

} // namespace

const TEXTMETRIC& Metrics(FontObject* font) {
    if (font->metricsKnown)
        return font->metrics;
    char* key = pango_font_description_to_string(font->description);
    std::string name(key);
    g_free(key);
    auto found = MeasuredFonts().find(name);
    if (found != MeasuredFonts().end()) {
        font->metrics = found->second.metrics;
        font->baseline = found->second.baseline;
        ApplyStyle(font);
        return font->metrics;
    }
    PangoFontMetrics* m = pango_context_get_metrics(SharedContext(), font->description, nullptr);
    TEXTMETRIC& tm = font->metrics;
    tm.tmAscent = LONG(std::ceil(double(pango_font_metrics_get_ascent(m)) / PANGO_SCALE));
    tm.tmDescent = LONG(std::ceil(double(pango_font_metrics_get_descent(m)) / PANGO_SCALE));
    tm.tmHeight = tm.tmAscent + tm.tmDescent;
    int em =
        int(std::lround(pango_font_description_get_size(font->description) / double(PANGO_SCALE)));
    tm.tmInternalLeading = std::max(0, int(tm.tmHeight) - em);
    tm.tmExternalLeading = 0;
    tm.tmAveCharWidth =
        LONG(std::lround(double(pango_font_metrics_get_approximate_char_width(m)) / PANGO_SCALE));
    pango_font_metrics_unref(m);

    PangoLayout* layout = SharedLayout();
    pango_layout_set_attributes(layout, nullptr);
    pango_layout_set_width(layout, -1);
    pango_layout_set_font_description(layout, font->description);
    pango_layout_set_text(layout, "W", 1);
    PangoRectangle logical;
    pango_layout_get_pixel_extents(layout, nullptr, &logical);
    tm.tmMaxCharWidth = logical.width;
    font->baseline = pango_layout_get_baseline(layout) / PANGO_SCALE;

    tm.tmDigitizedAspectX = 96;
    tm.tmDigitizedAspectY = 96;
    tm.tmFirstChar = 0x20;
    tm.tmLastChar = char(0x7E);
    tm.tmDefaultChar = '?';
    tm.tmBreakChar = ' ';
    MeasuredFonts()[name] = {tm, font->baseline};
    ApplyStyle(font);
    return tm;
}

} // namespace gdi

using namespace gdi;

const char* GdiMapFontFace(const char* faceName) {
    // The system's sans-serif faces (Arial, MS Sans Serif, Tahoma, Segoe UI, MS Shell Dlg,
    // Helvetica...) and every unknown face take Liberation Sans.
    static const char* const kSerif[] = {"Times New Roman", "Times"};
    static const char* const kMono[] = {"Courier New", "Courier"};
    if (faceName == nullptr)
        return "Liberation Sans";
    for (const char* face : kSerif)
        if (strcasecmp(face, faceName) == 0)
            return "Liberation Serif";
    for (const char* face : kMono)
        if (strcasecmp(face, faceName) == 0)
            return "Liberation Mono";
    for (const char* face : {"Liberation Sans", "Liberation Serif", "Liberation Mono"})
        if (strcasecmp(face, faceName) == 0)
            return face;
    return "Liberation Sans";
}

HFONT CreateFontIndirect(const LOGFONT* logFont) {
    if (logFont == nullptr)
        return nullptr;
    auto* font = new FontObject;
    font->log = *logFont;
    font->log.lfFaceName[LF_FACESIZE - 1] = '\0';
    const char* family = GdiMapFontFace(font->log.lfFaceName);
    double em = 11;
    if (logFont->lfHeight < 0)
        em = -double(logFont->lfHeight);
    else if (logFont->lfHeight > 0)
        em = std::round(logFont->lfHeight / CellPerEm(family));
    PangoFontDescription* d = pango_font_description_new();
    pango_font_description_set_family_static(d, family);
    // Sizes beyond any screen are held to one that still renders in reasonable time.
    pango_font_description_set_absolute_size(d, std::clamp(em, 1.0, 2000.0) * PANGO_SCALE);
    LONG weight = logFont->lfWeight == FW_DONTCARE ? FW_NORMAL : logFont->lfWeight;
    pango_font_description_set_weight(d, PangoWeight(std::clamp<LONG>(weight, 100, 1000)));
    pango_font_description_set_style(d,
                                     logFont->lfItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    font->description = d;
    Register(font);
    return HFONT(Handle(font));
}

CFont* CFont::FromHandle(HFONT handle) {
    return static_cast<CFont*>(Lookup<FontObject>(handle, Kind::Font) != nullptr
                                   ? CGdiObject::FromHandle(handle)
                                   : nullptr);
}

BOOL CFont::CreateFontIndirect(const LOGFONT* logFont) {
    return Attach(::CreateFontIndirect(logFont));
}

BOOL CFont::CreateFont(int height, int width, int escapement, int orientation, int weight,
                       BYTE italic, BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision,
                       BYTE clipPrecision, BYTE quality, BYTE pitchAndFamily, LPCTSTR faceName) {
    LOGFONT lf{height,    width,   escapement,   orientation,   weight,  italic,         underline,
               strikeOut, charSet, outPrecision, clipPrecision, quality, pitchAndFamily, {}};
    if (faceName != nullptr)
        std::strncpy(lf.lfFaceName, faceName, LF_FACESIZE - 1);
    return CreateFontIndirect(&lf);
}

BOOL CFont::CreatePointFont(int pointSize, LPCTSTR faceName, CDC* dc) {
    LOGFONT lf{};
    lf.lfHeight = pointSize;
    lf.lfCharSet = DEFAULT_CHARSET;
    if (faceName != nullptr)
        std::strncpy(lf.lfFaceName, faceName, LF_FACESIZE - 1);
    return CreatePointFontIndirect(&lf, dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* logFont, CDC*) {
    if (logFont == nullptr)
        return FALSE;
    LOGFONT lf = *logFont;
    // Tenths of a point to a character height in pixels at 96 DPI.
    lf.lfHeight = -LONG(std::lround(std::abs(logFont->lfHeight) * 96.0 / 720.0));
    return CreateFontIndirect(&lf);
}

int CFont::GetLogFont(LOGFONT* logFont) const {
    return GetObject(sizeof(LOGFONT), logFont);
}
