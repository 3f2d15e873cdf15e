#include "platform/gdi/GdiInternal.h"
#include "platform/gdi/Surface.h"
#include "platform/system/SysColors.h"

#include <algorithm>
#include <cstring>

namespace gdi {

namespace {

// The result of a ternary raster operation, bit by bit: bit i of `rop` is the result for the
// pattern, source and destination bits (i & 4, i & 2, i & 1).
std::uint32_t Rop3Bits(std::uint8_t rop, std::uint32_t p, std::uint32_t s, std::uint32_t d) {
    std::uint32_t result = 0;
    for (int i = 0; i < 8; ++i)
        if ((rop >> i) & 1)
            result |= ((i & 4) ? p : ~p) & ((i & 2) ? s : ~s) & ((i & 1) ? d : ~d);
    return result;
}

// The same for the binary operations of pens (R2_*): bit i of `rop2 - 1` is the result for the
// pen and destination bits (i & 2, i & 1).
std::uint32_t Rop2Bits(int rop2, std::uint32_t p, std::uint32_t d) {
    std::uint32_t result = 0;
    int table = rop2 - 1;
    for (int i = 0; i < 4; ++i)
        if ((table >> i) & 1)
            result |= ((i & 2) ? p : ~p) & ((i & 1) ? d : ~d);
    return result;
}

std::uint32_t* Row(cairo_surface_t* surface, int y) {
    return reinterpret_cast<std::uint32_t*>(
        cairo_image_surface_get_data(surface) +
        std::size_t(y) * std::size_t(cairo_image_surface_get_stride(surface)));
}

bool HatchBit(int style, int x, int y) {
    x &= 7;
    y &= 7;
    switch (style) {
    case HS_HORIZONTAL:
        return y == 0;
    case HS_VERTICAL:
        return x == 0;
    case HS_FDIAGONAL:
        return x == y;
    case HS_BDIAGONAL:
        return x + y == 7;
    case HS_CROSS:
        return x == 0 || y == 0;
    case HS_DIAGCROSS:
        return x == y || x + y == 7;
    default:
        return false;
    }
}

// Where a brush's pattern starts on the surface.
POINT PatternOrigin(DcState* dc) {
    return {dc->origin.x + dc->attributes.brushOrg.x, dc->origin.y + dc->attributes.brushOrg.y};
}

} // namespace

void ApplyRop3(cairo_surface_t* surface, const cairo_region_t* clip, const RECT& area,
               std::uint8_t rop, PixelAt pattern, const void* patternContext, PixelAt source,
               const void* sourceContext) {
    cairo_region_t* region = cairo_region_copy(clip);
    cairo_rectangle_int_t box{area.left, area.top, std::max(0, int(area.right - area.left)),
                              std::max(0, int(area.bottom - area.top))};
    cairo_region_intersect_rectangle(region, &box);
    cairo_surface_flush(surface);
    int n = cairo_region_num_rectangles(region);
    for (int i = 0; i < n; ++i) {
        cairo_rectangle_int_t r;
        cairo_region_get_rectangle(region, i, &r);
        for (int y = r.y; y < r.y + r.height; ++y) {
            std::uint32_t* row = Row(surface, y);
            for (int x = r.x; x < r.x + r.width; ++x) {
                std::uint32_t p = pattern != nullptr ? pattern(patternContext, x, y) : 0;
                std::uint32_t s = source != nullptr ? source(sourceContext, x, y) : 0;
                row[x] = 0xFF000000u | (Rop3Bits(rop, p, s, row[x]) & 0xFFFFFF);
            }
        }
    }
    cairo_surface_mark_dirty(surface);
    cairo_region_destroy(region);
}

void ApplyRop2Mask(cairo_surface_t* surface, const cairo_region_t* clip, cairo_surface_t* mask,
                   int maskX, int maskY, std::uint32_t penPixel, int rop2) {
    cairo_surface_flush(surface);
    cairo_surface_flush(mask);
    int w = cairo_image_surface_get_width(mask), h = cairo_image_surface_get_height(mask);
    const unsigned char* bits = cairo_image_surface_get_data(mask);
    int stride = cairo_image_surface_get_stride(mask);
    for (int my = 0; my < h; ++my)
        for (int mx = 0; mx < w; ++mx) {
            if (bits[std::size_t(my) * std::size_t(stride) + std::size_t(mx)] == 0)
                continue;
            int x = mx + maskX, y = my + maskY;
            if (!cairo_region_contains_point(clip, x, y))
                continue;
            std::uint32_t* pixel = Row(surface, y) + x;
            *pixel = 0xFF000000u | (Rop2Bits(rop2, penPixel, *pixel) & 0xFFFFFF);
        }
    cairo_surface_mark_dirty(surface);
}

void ApplyRop2Pixels(DcState* dc, const std::vector<POINT>& pixels,
                     const std::vector<COLORREF>& colors) {
    Surface* target = dc->target();
    if (target == nullptr || pixels.empty())
        return;
    auto* surface = static_cast<cairo_surface_t*>(target->NativeHandle());
    cairo_region_t* clip = dc->EffectiveClip();
    cairo_surface_flush(surface);
    int rop2 = dc->attributes.rop2;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const POINT& p = pixels[i];
        if (!cairo_region_contains_point(clip, p.x, p.y))
            continue;
        std::uint32_t* pixel = Row(surface, p.y) + p.x;
        *pixel = 0xFF000000u | (Rop2Bits(rop2, ToPixel(colors[i]), *pixel) & 0xFFFFFF);
    }
    cairo_surface_mark_dirty(surface);
    cairo_region_destroy(clip);
}

cairo_pattern_t* BrushPattern(DcState* dc, BrushObject* brush) {
    if (brush == nullptr)
        return nullptr;
    switch (brush->log.lbStyle) {
    case BS_SOLID: {
        COLORREF c = brush->Color();
        return cairo_pattern_create_rgb(GetRValue(c) / 255.0, GetGValue(c) / 255.0,
                                        GetBValue(c) / 255.0);
    }
    case BS_HATCHED:
    case BS_PATTERN: {
        bool hatched = brush->log.lbStyle == BS_HATCHED;
        int w = hatched ? 8 : cairo_image_surface_get_width(brush->pattern);
        int h = hatched ? 8 : cairo_image_surface_get_height(brush->pattern);
        if (w <= 0 || h <= 0)
            return nullptr;
        cairo_surface_t* tile = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, w, h);
        cairo_surface_flush(tile);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                std::uint32_t pixel;
                if (hatched) {
                    if (HatchBit(int(brush->log.lbHatch), x, y))
                        pixel = ToPixel(brush->Color());
                    else
                        pixel =
                            dc->attributes.bkMode == OPAQUE ? ToPixel(dc->attributes.bkColor) : 0;
                } else {
                    pixel = Row(brush->pattern, y)[x];
                    if (brush->monochromePattern)
                        pixel = (pixel & 0xFFFFFF) == 0 ? ToPixel(dc->attributes.textColor)
                                                        : ToPixel(dc->attributes.bkColor);
                }
                Row(tile, y)[x] = pixel;
            }
        cairo_surface_mark_dirty(tile);
        cairo_pattern_t* pattern = cairo_pattern_create_for_surface(tile);
        cairo_surface_destroy(tile);
        cairo_pattern_set_extend(pattern, CAIRO_EXTEND_REPEAT);
        cairo_pattern_set_filter(pattern, CAIRO_FILTER_NEAREST);
        POINT origin = PatternOrigin(dc);
        cairo_matrix_t m;
        cairo_matrix_init_translate(&m, -origin.x, -origin.y);
        cairo_pattern_set_matrix(pattern, &m);
        return pattern;
    }
    default:
        return nullptr;
    }
}

std::uint32_t BrushPixel(DcState* dc, BrushObject* brush, int x, int y) {
    if (brush == nullptr)
        return 0;
    POINT origin = PatternOrigin(dc);
    switch (brush->log.lbStyle) {
    case BS_SOLID:
        return ToPixel(brush->Color());
    case BS_HATCHED:
        return HatchBit(int(brush->log.lbHatch), x - origin.x, y - origin.y)
                   ? ToPixel(brush->Color())
                   : ToPixel(dc->attributes.bkColor);
    case BS_PATTERN: {
        int w = cairo_image_surface_get_width(brush->pattern);
        int h = cairo_image_surface_get_height(brush->pattern);
        if (w <= 0 || h <= 0)
            return 0;
        int px = ((x - origin.x) % w + w) % w, py = ((y - origin.y) % h + h) % h;
        std::uint32_t pixel = Row(brush->pattern, py)[px];
        if (brush->monochromePattern)
            return (pixel & 0xFFFFFF) == 0 ? ToPixel(dc->attributes.textColor)
                                           : ToPixel(dc->attributes.bkColor);
        return pixel;
    }
    default:
        return 0;
    }
}

} // namespace gdi

using namespace gdi;

namespace {

RECT Normalized(RECT r) {
    if (r.right < r.left)
        std::swap(r.left, r.right);
    if (r.bottom < r.top)
        std::swap(r.top, r.bottom);
    return r;
}

struct BrushContext {
    DcState* dc;
    BrushObject* brush;
};

std::uint32_t BrushAt(const void* context, int x, int y) {
    auto* c = static_cast<const BrushContext*>(context);
    return BrushPixel(c->dc, c->brush, x, y);
}

std::uint32_t CheckerAt(const void*, int x, int y) {
    return ((x + y) & 1) == 0 ? 0xFFFFFF : 0;
}

// Applies a raster operation without a source over a surface rectangle of a context.
void PatternOp(DcState* dc, const RECT& area, std::uint8_t rop, PixelAt pattern,
               const void* context, const cairo_region_t* extraClip = nullptr) {
    Surface* target = dc->target();
    if (target == nullptr)
        return;
    cairo_region_t* clip = dc->EffectiveClip();
    if (extraClip != nullptr)
        cairo_region_intersect(clip, extraClip);
    ApplyRop3(static_cast<cairo_surface_t*>(target->NativeHandle()), clip, area, rop, pattern,
              context, nullptr, nullptr);
    cairo_region_destroy(clip);
}

void FillWithBrush(DcState* dc, const RECT& area, BrushObject* brush) {
    cairo_pattern_t* pattern = BrushPattern(dc, brush);
    if (pattern == nullptr)
        return;
    cairo_t* cr = dc->Cairo();
    cairo_set_source(cr, pattern);
    cairo_rectangle(cr, area.left, area.top, area.right - area.left, area.bottom - area.top);
    cairo_fill(cr);
    cairo_pattern_destroy(pattern);
}

BrushObject* BrushOf(CBrush* brush) {
    return brush != nullptr ? Lookup<BrushObject>(brush->m_hObject, Kind::Brush) : nullptr;
}

// A source of pixels for a blit: the source surface shifted onto the destination, with the
// colour conversions between monochrome and colour bitmaps.
struct SourceContext {
    cairo_surface_t* surface;
    int dx, dy; // source = destination + (dx, dy)
    enum { Same, MonoToColor, ColorToMono } conversion;
    std::uint32_t textPixel, bkPixel; // of the destination, for monochrome sources
    std::uint32_t sourceBk;           // of the source, for monochrome destinations
};

std::uint32_t SourceAt(const void* context, int x, int y) {
    auto* c = static_cast<const SourceContext*>(context);
    std::uint32_t pixel = Row(c->surface, y + c->dy)[x + c->dx];
    switch (c->conversion) {
    case SourceContext::MonoToColor:
        return (pixel & 0xFFFFFF) == 0 ? c->textPixel : c->bkPixel;
    case SourceContext::ColorToMono:
        return (pixel & 0xFFFFFF) == (c->sourceBk & 0xFFFFFF) ? 0xFFFFFFFF : 0xFF000000;
    default:
        return pixel;
    }
}

bool IsMonochrome(DcState* dc) {
    auto* bitmap = dc->window == nullptr ? dc->attributes.bitmap.as<BitmapObject>() : nullptr;
    return bitmap != nullptr && bitmap->bitsPerPixel == 1;
}

bool UsesSource(DWORD rop) {
    auto r = std::uint8_t(rop >> 16);
    return ((r >> 2) & 0x33) != (r & 0x33);
}

bool UsesPattern(DWORD rop) {
    auto r = std::uint8_t(rop >> 16);
    return ((r >> 4) & 0x0F) != (r & 0x0F);
}

// Blits `source` (a surface, taken at surface point sx, sy) onto the destination surface
// rectangle `area`.
BOOL Blit(DcState* dst, RECT area, cairo_surface_t* source, int sx, int sy, bool sourceMono,
          COLORREF sourceBk, DWORD rop) {
    Surface* target = dst->target();
    if (target == nullptr)
        return FALSE;
    auto* surface = static_cast<cairo_surface_t*>(target->NativeHandle());
    int dx = sx - area.left, dy = sy - area.top;
    // Only where the source has pixels.
    RECT sourceBox{-dx, -dy, cairo_image_surface_get_width(source) - dx,
                   cairo_image_surface_get_height(source) - dy};
    area = {std::max(area.left, sourceBox.left), std::max(area.top, sourceBox.top),
            std::min(area.right, sourceBox.right), std::min(area.bottom, sourceBox.bottom)};
    if (area.right <= area.left || area.bottom <= area.top)
        return TRUE;
    bool destMono = IsMonochrome(dst);
    cairo_surface_t* owned = nullptr;
    if (source == surface) {
        // Copying within one surface: read from a snapshot, so that overlapping areas work.
        owned = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, area.right - area.left,
                                           area.bottom - area.top);
        cairo_t* cr = cairo_create(owned);
        cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
        cairo_set_source_surface(cr, source, -(area.left + dx), -(area.top + dy));
        cairo_paint(cr);
        cairo_destroy(cr);
        source = owned;
        dx = -area.left;
        dy = -area.top;
    }
    if (rop == SRCCOPY && sourceMono == destMono) {
        cairo_t* cr = dst->Cairo();
        cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
        cairo_set_source_surface(cr, source, -dx, -dy);
        cairo_rectangle(cr, area.left, area.top, area.right - area.left, area.bottom - area.top);
        cairo_fill(cr);
        cairo_set_operator(cr, CAIRO_OPERATOR_OVER);
    } else {
        cairo_surface_flush(source);
        SourceContext context{source,
                              dx,
                              dy,
                              sourceMono && !destMono   ? SourceContext::MonoToColor
                              : !sourceMono && destMono ? SourceContext::ColorToMono
                                                        : SourceContext::Same,
                              ToPixel(dst->attributes.textColor),
                              ToPixel(dst->attributes.bkColor),
                              ToPixel(sourceBk)};
        BrushContext brush{dst, dst->attributes.brush.as<BrushObject>()};
        cairo_region_t* clip = dst->EffectiveClip();
        ApplyRop3(surface, clip, area, std::uint8_t(rop >> 16),
                  UsesPattern(rop) ? BrushAt : nullptr, &brush, SourceAt, &context);
        cairo_region_destroy(clip);
    }
    if (owned != nullptr)
        cairo_surface_destroy(owned);
    return TRUE;
}

} // namespace

int FillRect(HDC dc, const RECT* rect, HBRUSH brush) {
    CDC* cdc = CDC::FromHandle(dc);
    if (cdc == nullptr || rect == nullptr)
        return 0;
    // As the system allows, a system colour index plus one stands for that colour's brush.
    auto value = reinterpret_cast<std::uintptr_t>(brush);
    if (value >= 1 && value <= std::uintptr_t(COLOR_COUNT))
        brush = GetSysColorBrush(int(value) - 1);
    CBrush* wrapper = CBrush::FromHandle(brush);
    if (wrapper == nullptr)
        return 0;
    cdc->FillRect(rect, wrapper);
    return 1;
}

BOOL BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int xSrc, int ySrc,
            DWORD rop) {
    CDC* cdc = CDC::FromHandle(dc);
    return cdc != nullptr &&
           cdc->BitBlt(x, y, width, height, CDC::FromHandle(source), xSrc, ySrc, rop);
}

void CDC::FillRect(LPCRECT rect, CBrush* brush) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || rect == nullptr || rect->right <= rect->left || rect->bottom <= rect->top)
        return;
    FillWithBrush(dc, dc->ToSurface(*rect), BrushOf(brush));
}

void CDC::FrameRect(LPCRECT rect, CBrush* brush) {
    if (rect == nullptr || rect->right <= rect->left || rect->bottom <= rect->top)
        return;
    const RECT& r = *rect;
    RECT sides[] = {{r.left, r.top, r.right, r.top + 1},
                    {r.left, r.bottom - 1, r.right, r.bottom},
                    {r.left, r.top + 1, r.left + 1, r.bottom - 1},
                    {r.right - 1, r.top + 1, r.right, r.bottom - 1}};
    for (const RECT& side : sides)
        FillRect(&side, brush);
}

void CDC::InvertRect(LPCRECT rect) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || rect == nullptr)
        return;
    PatternOp(dc, dc->ToSurface(Normalized(*rect)), std::uint8_t(DSTINVERT >> 16), nullptr,
              nullptr);
}

void CDC::DrawFocusRect(LPCRECT rect) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || rect == nullptr || rect->right <= rect->left || rect->bottom <= rect->top)
        return;
    // A dotted frame one pixel wide, inverted every other pixel; each pixel of the frame is
    // touched once, so that a second call restores the picture.
    RECT outer = dc->ToSurface(*rect);
    cairo_rectangle_int_t o{outer.left, outer.top, outer.right - outer.left,
                            outer.bottom - outer.top};
    cairo_rectangle_int_t i{outer.left + 1, outer.top + 1, std::max(0, o.width - 2),
                            std::max(0, o.height - 2)};
    cairo_region_t* frame = cairo_region_create_rectangle(&o);
    cairo_region_t* inner = cairo_region_create_rectangle(&i);
    cairo_region_subtract(frame, inner);
    PatternOp(dc, outer, std::uint8_t(PATINVERT >> 16), CheckerAt, nullptr, frame);
    cairo_region_destroy(inner);
    cairo_region_destroy(frame);
}

void CDC::Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight) {
    if (rect != nullptr)
        Draw3dRect(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top,
                   topLeft, bottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight) {
    // As the framework draws it, leaving the background colour at the last one used.
    FillSolidRect(x, y, cx - 1, 1, topLeft);
    FillSolidRect(x, y, 1, cy - 1, topLeft);
    FillSolidRect(x + cx, y, -1, cy, bottomRight);
    FillSolidRect(x, y + cy, cx, -1, bottomRight);
}

BOOL CDC::PatBlt(int x, int y, int width, int height, DWORD rop) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return FALSE;
    RECT area = dc->ToSurface(Normalized({x, y, x + width, y + height}));
    if (area.right <= area.left || area.bottom <= area.top)
        return TRUE;
    auto* brush = dc->attributes.brush.as<BrushObject>();
    switch (rop) {
    case PATCOPY:
        if (brush == nullptr || brush->log.lbStyle == BS_NULL)
            return TRUE;
        if (brush->log.lbStyle == BS_SOLID) {
            FillWithBrush(dc, area, brush);
            return TRUE;
        }
        break;
    case BLACKNESS:
    case WHITENESS: {
        cairo_t* cr = dc->Cairo();
        SetSource(cr, rop == BLACKNESS ? RGB(0, 0, 0) : RGB(255, 255, 255));
        cairo_rectangle(cr, area.left, area.top, area.right - area.left, area.bottom - area.top);
        cairo_fill(cr);
        return TRUE;
    }
    default:
        break;
    }
    BrushContext context{dc, brush};
    PatternOp(dc, area, std::uint8_t(rop >> 16), UsesPattern(rop) ? BrushAt : nullptr, &context);
    return TRUE;
}

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, DWORD rop) {
    if (!UsesSource(rop))
        return PatBlt(x, y, width, height, rop);
    DcState* dc = LookupDC(m_hDC);
    DcState* src = source != nullptr ? LookupDC(source->m_hDC) : nullptr;
    if (dc == nullptr || src == nullptr || src->target() == nullptr || width < 0 || height < 0)
        return FALSE;
    RECT area = dc->ToSurface(RECT{x, y, x + width, y + height});
    POINT from = src->ToSurface(xSrc, ySrc);
    return Blit(dc, area, static_cast<cairo_surface_t*>(src->target()->NativeHandle()), from.x,
                from.y, IsMonochrome(src), src->attributes.bkColor, rop);
}

BOOL CDC::StretchBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc,
                     int srcWidth, int srcHeight, DWORD rop) {
    if (width == srcWidth && height == srcHeight)
        return BitBlt(x, y, width, height, source, xSrc, ySrc, rop);
    if (!UsesSource(rop))
        return PatBlt(x, y, width, height, rop);
    DcState* dc = LookupDC(m_hDC);
    DcState* src = source != nullptr ? LookupDC(source->m_hDC) : nullptr;
    if (dc == nullptr || src == nullptr || src->target() == nullptr || width == 0 || height == 0 ||
        srcWidth == 0 || srcHeight == 0)
        return FALSE;
    // Scale the source into a picture of the destination's size (mirrored for negative sizes),
    // then blit that.
    int w = std::abs(width), h = std::abs(height);
    cairo_surface_t* scaled = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, w, h);
    if (cairo_surface_status(scaled) != CAIRO_STATUS_SUCCESS) {
        cairo_surface_destroy(scaled);
        return FALSE;
    }
    cairo_t* cr = cairo_create(scaled);
    POINT from = src->ToSurface(xSrc, ySrc);
    double scaleX = double(width) / srcWidth, scaleY = double(height) / srcHeight;
    cairo_translate(cr, scaleX < 0 ? w : 0, scaleY < 0 ? h : 0);
    cairo_scale(cr, scaleX, scaleY);
    cairo_set_source_surface(cr, static_cast<cairo_surface_t*>(src->target()->NativeHandle()),
                             -from.x, -from.y);
    cairo_pattern_set_filter(cairo_get_source(cr), CAIRO_FILTER_NEAREST);
    cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
    cairo_paint(cr);
    cairo_destroy(cr);
    RECT area = dc->ToSurface(Normalized({x, y, x + width, y + height}));
    BOOL done = Blit(dc, area, scaled, 0, 0, IsMonochrome(src), src->attributes.bkColor, rop);
    cairo_surface_destroy(scaled);
    return done;
}
