#pragma once

// What lies behind the drawing handles. Private to the gdi layer: it includes Cairo and Pango.
// Everything here runs on the user-interface thread only; the handle tables are not locked.

#include "platform/gdi/DC.h"
#include "platform/gdi/SurfaceDC.h"

#include <cairo.h>
#include <pango/pangocairo.h>

#include <cstdint>
#include <memory>
#include <vector>

class Surface;

namespace gdi {

enum class Kind { Pen, Brush, Font, Bitmap, Region };

// Handles are small numbers from one table of drawing objects and contexts, not addresses: a
// handle fits the 32-bit integers through which some interfaces hand it out (a chart gives its
// image's bitmap and context as integer properties). A handle carries the generation of its
// slot, so a stale one is refused rather than taken for the slot's next user.
std::uintptr_t NewHandle(void* target, bool context);
void FreeHandle(std::uintptr_t handle);
void* HandleTarget(const void* handle, bool context); // null for a stale or foreign handle

// A pen, brush, font, bitmap or region. Its handle comes from Register. One reference belongs to
// the handle until DeleteObject; each context (and saved context state) that selects it holds one
// more, so that an object deleted while selected stays valid until it is let go.
struct Object {
    explicit Object(Kind k) : kind(k) {}
    virtual ~Object();
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    Kind kind;
    std::uintptr_t handle = 0;
    int references = 1;
    bool stock = false;
    bool deleted = false;
    CGdiObject* permanent = nullptr;       // the C++ object attached to the handle
    std::unique_ptr<CGdiObject> temporary; // made by FromHandle, owned here
};

struct PenObject : Object {
    PenObject() : Object(Kind::Pen) {}
    LOGPEN log{};
};

struct BitmapObject;

struct BrushObject : Object {
    BrushObject() : Object(Kind::Brush) {}
    LOGBRUSH log{};
    cairo_surface_t* pattern = nullptr; // the pattern's pixels, for pattern brushes
    bool monochromePattern = false;
    int sysColor = -1; // the system colour a shared brush follows, or -1
    ~BrushObject() override;
    COLORREF Color() const; // the colour now, for solid and hatched brushes
};

struct FontObject : Object {
    FontObject() : Object(Kind::Font) {}
    ~FontObject() override;
    LOGFONT log{};
    PangoFontDescription* description = nullptr;
    bool metricsKnown = false;
    TEXTMETRIC metrics{};
    int baseline = 0; // of a layout line, from its top, in pixels
};

struct BitmapObject : Object {
    BitmapObject() : Object(Kind::Bitmap) {}
    ~BitmapObject() override;
    std::unique_ptr<Surface> pixels;
    int bitsPerPixel = 32;
};

struct RegionObject : Object {
    RegionObject() : Object(Kind::Region) {}
    ~RegionObject() override;
    cairo_region_t* region = nullptr;
};

// A counted hold on an object.
class Ref {
public:
    Ref() = default;
    explicit Ref(Object* o);
    Ref(const Ref& other) : Ref(other.m_object) {}
    Ref& operator=(const Ref& other);
    ~Ref();
    Object* get() const { return m_object; }
    template <class T> T* as() const { return static_cast<T*>(m_object); }

private:
    Object* m_object = nullptr;
};

void Register(Object* object);
void Release(Object* object); // drops one reference, freeing at zero
Object* Lookup(AnyGdiHandle handle);
template <class T> T* Lookup(AnyGdiHandle handle, Kind kind) {
    Object* o = Lookup(handle);
    return o != nullptr && o->kind == kind ? static_cast<T*>(o) : nullptr;
}
inline HGDIOBJ Handle(Object* object) {
    return reinterpret_cast<HGDIOBJ>(object != nullptr ? object->handle : 0);
}
Object* StockObject(int index);
// What a new bitmap's pixels hold. A compatible bitmap's are undefined, as on Windows: reused
// pixels keep what the last bitmap of that size drew, which spares a pass over megabytes that
// the drawing covers anyway.
enum class NewPixels { White, Undefined };
BitmapObject* NewBitmap(int width, int height, int bitsPerPixel,
                        NewPixels contents = NewPixels::White);
// Pixels for a new bitmap, reusing those of a bitmap that died at the same size; fresh pixels
// are white.
std::unique_ptr<Surface> NewSurface(int width, int height, NewPixels contents);
// Offers the pixels of a dying bitmap for reuse.
void RecycleSurface(std::unique_ptr<Surface> pixels);

// What SaveDC keeps and RestoreDC brings back.
struct DcAttributes {
    Ref pen, brush, font, bitmap;
    COLORREF bkColor = RGB(255, 255, 255);
    COLORREF textColor = RGB(0, 0, 0);
    int bkMode = OPAQUE;
    int rop2 = R2_COPYPEN;
    UINT textAlign = TA_LEFT | TA_TOP;
    POINT windowOrg{0, 0};
    POINT viewportOrg{0, 0};
    POINT position{0, 0};
    POINT brushOrg{0, 0};
    cairo_region_t* clip = nullptr; // extra clipping in surface coordinates; null for none

    DcAttributes() = default;
    DcAttributes(const DcAttributes& other);
    DcAttributes& operator=(const DcAttributes& other);
    ~DcAttributes();
};

struct DcState {
    ~DcState();

    std::uintptr_t handle = 0; // from NewHandle, freed by DeleteDC
    Surface* window = nullptr; // the surface of a window context; null for a memory context
    POINT origin{0, 0};        // the device origin on the surface
    RECT windowClip{0, 0, 0, 0};
    DcAttributes attributes;
    std::vector<DcAttributes> saved;
    CDC* permanent = nullptr;
    std::unique_ptr<CDC> temporary;

    // The cairo context on the current surface, with the effective clip applied.
    cairo_t* cr = nullptr;
    void* crTarget = nullptr;
    bool crClipValid = false;
    cairo_region_t* crClip = nullptr; // the clip applied to `cr`, in surface coordinates; owned

    Surface* target() const;
    cairo_t* Cairo(); // recreated when the surface changes
    void ClipChanged() { crClipValid = false; }
    // The effective clip in surface coordinates: the window's part, the surface, the extra clip.
    cairo_region_t* EffectiveClip() const; // caller destroys
    POINT ToSurface(int x, int y) const {
        return {x - attributes.windowOrg.x + attributes.viewportOrg.x + origin.x,
                y - attributes.windowOrg.y + attributes.viewportOrg.y + origin.y};
    }
    RECT ToSurface(const RECT& r) const;
    POINT FromSurface(int x, int y) const {
        return {x + attributes.windowOrg.x - attributes.viewportOrg.x - origin.x,
                y + attributes.windowOrg.y - attributes.viewportOrg.y - origin.y};
    }
};

DcState* LookupDC(HDC dc);
inline HDC Handle(DcState* dc) {
    return reinterpret_cast<HDC>(dc != nullptr ? dc->handle : 0);
}

// Pixels: 0xFFRRGGBB on opaque surfaces.
inline std::uint32_t ToPixel(COLORREF c) {
    return 0xFF000000u | (std::uint32_t(GetRValue(c)) << 16) | (std::uint32_t(GetGValue(c)) << 8) |
           GetBValue(c);
}
inline COLORREF FromPixel(std::uint32_t p) {
    return RGB(BYTE((p >> 16) & 0xFF), BYTE((p >> 8) & 0xFF), BYTE(p & 0xFF));
}
inline void SetSource(cairo_t* cr, COLORREF c) {
    cairo_set_source_rgb(cr, GetRValue(c) / 255.0, GetGValue(c) / 255.0, GetBValue(c) / 255.0);
}

// Raster operations on the pixels of a surface rectangle, clipped to `clip` (surface
// coordinates). `pattern(x, y)` gives the brush pixel, `source(x, y)` the source pixel.
using PixelAt = std::uint32_t (*)(const void* context, int x, int y);
void ApplyRop3(cairo_surface_t* surface, const cairo_region_t* clip, const RECT& area,
               std::uint8_t rop, PixelAt pattern, const void* patternContext, PixelAt source,
               const void* sourceContext);
// Applies a binary pen operation wherever `mask` (A8, placed at maskX, maskY) is set.
void ApplyRop2Mask(cairo_surface_t* surface, const cairo_region_t* clip, cairo_surface_t* mask,
                   int maskX, int maskY, std::uint32_t penPixel, int rop2);
// Applies the context's pen operation (R2_*) to single surface pixels, each with its colour.
void ApplyRop2Pixels(DcState* dc, const std::vector<POINT>& pixels,
                     const std::vector<COLORREF>& colors);
// The cairo source for a brush on a context, aligned to the brush origin; null for a hollow
// brush. The caller destroys it.
cairo_pattern_t* BrushPattern(DcState* dc, BrushObject* brush);
// The brush's pixel at a surface point, for raster operations.
std::uint32_t BrushPixel(DcState* dc, BrushObject* brush, int x, int y);

// Text.
FontObject* CurrentFont(DcState* dc);
const TEXTMETRIC& Metrics(FontObject* font);
PangoLayout* SharedLayout();

} // namespace gdi
