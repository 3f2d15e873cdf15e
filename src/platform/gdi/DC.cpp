#include "platform/gdi/GdiInternal.h"
#include "platform/gdi/Surface.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <unordered_set>

namespace gdi {

namespace {

// Live contexts, so that a stale handle is refused rather than followed.
std::unordered_set<DcState*>& LiveContexts() {
    static std::unordered_set<DcState*> contexts;
    return contexts;
}

constexpr int kEverywhere = INT_MAX / 4;

cairo_region_t* Everywhere() {
    cairo_rectangle_int_t all{-kEverywhere, -kEverywhere, 2 * kEverywhere, 2 * kEverywhere};
    return cairo_region_create_rectangle(&all);
}

cairo_region_t* RegionOf(const RECT& r) {
    cairo_rectangle_int_t box{r.left, r.top, std::max(0, int(r.right - r.left)),
                              std::max(0, int(r.bottom - r.top))};
    return cairo_region_create_rectangle(&box);
}

int RegionKind(const cairo_region_t* region) {
    int n = cairo_region_num_rectangles(region);
    return n == 0 ? NULLREGION : n == 1 ? SIMPLEREGION : COMPLEXREGION;
}

DcState* NewContext() {
    auto* dc = new DcState;
    dc->attributes.pen = Ref(StockObject(BLACK_PEN));
    dc->attributes.brush = Ref(StockObject(WHITE_BRUSH));
    dc->attributes.font = Ref(StockObject(SYSTEM_FONT));
    LiveContexts().insert(dc);
    dc->handle = NewHandle(dc, true);
    return dc;
}

} // namespace

DcAttributes::DcAttributes(const DcAttributes& other)
    : pen(other.pen), brush(other.brush), font(other.font), bitmap(other.bitmap),
      bkColor(other.bkColor), textColor(other.textColor), bkMode(other.bkMode), rop2(other.rop2),
      textAlign(other.textAlign), windowOrg(other.windowOrg), viewportOrg(other.viewportOrg),
      position(other.position), brushOrg(other.brushOrg),
      clip(other.clip != nullptr ? cairo_region_copy(other.clip) : nullptr) {}

DcAttributes& DcAttributes::operator=(const DcAttributes& other) {
    if (this == &other)
        return *this;
    DcAttributes copy(other);
    std::swap(clip, copy.clip);
    pen = other.pen;
    brush = other.brush;
    font = other.font;
    bitmap = other.bitmap;
    bkColor = other.bkColor;
    textColor = other.textColor;
    bkMode = other.bkMode;
    rop2 = other.rop2;
    textAlign = other.textAlign;
    windowOrg = other.windowOrg;
    viewportOrg = other.viewportOrg;
    position = other.position;
    brushOrg = other.brushOrg;
    return *this;
}

DcAttributes::~DcAttributes() {
    if (clip != nullptr)
        cairo_region_destroy(clip);
}

DcState::~DcState() {
    if (cr != nullptr)
        cairo_destroy(cr);
    if (crClip != nullptr)
        cairo_region_destroy(crClip);
    if (temporary)
        temporary->m_hDC = temporary->m_hAttribDC = nullptr;
    if (permanent != nullptr) {
        if (permanent->m_hAttribDC == permanent->m_hDC)
            permanent->m_hAttribDC = nullptr;
        permanent->m_hDC = nullptr;
    }
}

Surface* DcState::target() const {
    if (window != nullptr)
        return window;
    auto* bitmap = attributes.bitmap.as<BitmapObject>();
    return bitmap != nullptr ? bitmap->pixels.get() : nullptr;
}

cairo_region_t* DcState::EffectiveClip() const {
    Surface* surface = target();
    cairo_region_t* region = RegionOf({0, 0, surface != nullptr ? surface->Width() : 0,
                                       surface != nullptr ? surface->Height() : 0});
    if (window != nullptr) {
        cairo_region_t* part = RegionOf(windowClip);
        cairo_region_intersect(region, part);
        cairo_region_destroy(part);
    }
    if (attributes.clip != nullptr)
        cairo_region_intersect(region, attributes.clip);
    return region;
}

cairo_t* DcState::Cairo() {
    Surface* surface = target();
    void* native = surface != nullptr ? surface->NativeHandle() : nullptr;
    if (cr == nullptr || crTarget != native) {
        if (cr != nullptr)
            cairo_destroy(cr);
        cairo_surface_t* s = static_cast<cairo_surface_t*>(native);
        // A context on a 0 x 0 surface stands in when there is nothing to draw on.
        static cairo_surface_t* nothing = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 0, 0);
        cr = cairo_create(s != nullptr ? s : nothing);
        cairo_set_antialias(cr, CAIRO_ANTIALIAS_NONE);
        crTarget = native;
        crClipValid = false;
    }
    if (!crClipValid) {
        cairo_reset_clip(cr);
        if (crClip != nullptr)
            cairo_region_destroy(crClip);
        crClip = EffectiveClip();
        int n = cairo_region_num_rectangles(crClip);
        for (int i = 0; i < n; ++i) {
            cairo_rectangle_int_t r;
            cairo_region_get_rectangle(crClip, i, &r);
            cairo_rectangle(cr, r.x, r.y, r.width, r.height);
        }
        cairo_clip(cr);
        crClipValid = true;
    }
    return cr;
}

RECT DcState::ToSurface(const RECT& r) const {
    POINT a = ToSurface(r.left, r.top);
    POINT b = ToSurface(r.right, r.bottom);
    return {a.x, a.y, b.x, b.y};
}

DcState* LookupDC(HDC handle) {
    auto* dc = static_cast<DcState*>(HandleTarget(handle, true));
    return dc != nullptr && LiveContexts().count(dc) != 0 ? dc : nullptr;
}

} // namespace gdi

using namespace gdi;

HDC CreateSurfaceDC(Surface* surface, POINT origin, const RECT& clip) {
    if (surface == nullptr)
        return nullptr;
    DcState* dc = NewContext();
    dc->window = surface;
    dc->origin = origin;
    dc->windowClip = clip;
    return Handle(dc);
}

HDC CreateCompatibleDC(HDC handle) {
    if (handle != nullptr && LookupDC(handle) == nullptr)
        return nullptr;
    DcState* dc = NewContext();
    dc->attributes.bitmap = Ref(StockObject(32));
    return Handle(dc);
}

BOOL DeleteDC(HDC handle) {
    DcState* dc = LookupDC(handle);
    if (dc == nullptr)
        return FALSE;
    LiveContexts().erase(dc);
    FreeHandle(dc->handle);
    delete dc;
    return TRUE;
}

Surface* GdiSurfaceOf(HDC handle, POINT* origin) {
    DcState* dc = LookupDC(handle);
    if (dc == nullptr)
        return nullptr;
    if (origin != nullptr)
        *origin = dc->origin;
    return dc->target();
}

HGDIOBJ SelectObject(HDC handle, AnyGdiHandle objectHandle) {
    DcState* dc = LookupDC(handle);
    Object* object = Lookup(objectHandle);
    if (dc == nullptr || object == nullptr)
        return nullptr;
    Ref* slot = nullptr;
    switch (object->kind) {
    case Kind::Pen:
        slot = &dc->attributes.pen;
        break;
    case Kind::Brush:
        slot = &dc->attributes.brush;
        break;
    case Kind::Font:
        slot = &dc->attributes.font;
        break;
    case Kind::Bitmap:
        if (dc->window != nullptr)
            return nullptr; // only a memory context draws on a bitmap
        slot = &dc->attributes.bitmap;
        dc->ClipChanged();
        break;
    case Kind::Region: {
        CDC* cdc = CDC::FromHandle(handle);
        int kind = cdc->SelectClipRgn(CRgn::FromHandle(HRGN(objectHandle.handle)));
        return reinterpret_cast<HGDIOBJ>(std::intptr_t(kind));
    }
    }
    HGDIOBJ previous = Handle(slot->get());
    *slot = Ref(object);
    return previous;
}

int SaveDC(HDC dc) {
    return CDC::FromHandle(dc) != nullptr ? CDC::FromHandle(dc)->SaveDC() : 0;
}

BOOL RestoreDC(HDC dc, int savedDC) {
    CDC* cdc = CDC::FromHandle(dc);
    return cdc != nullptr && cdc->RestoreDC(savedDC);
}

COLORREF SetBkColor(HDC dc, COLORREF color) {
    CDC* cdc = CDC::FromHandle(dc);
    return cdc != nullptr ? cdc->SetBkColor(color) : CLR_INVALID;
}

COLORREF SetTextColor(HDC dc, COLORREF color) {
    CDC* cdc = CDC::FromHandle(dc);
    return cdc != nullptr ? cdc->SetTextColor(color) : CLR_INVALID;
}

int SetBkMode(HDC dc, int mode) {
    CDC* cdc = CDC::FromHandle(dc);
    return cdc != nullptr ? cdc->SetBkMode(mode) : 0;
}

int GetDeviceCaps(HDC dc, int index) {
    CDC* cdc = CDC::FromHandle(dc);
    return cdc != nullptr ? cdc->GetDeviceCaps(index) : 0;
}

// CDC: the context, its state and coordinates.

IMPLEMENT_DYNAMIC(CDC, CObject)

CDC::~CDC() {
    if (m_hDC != nullptr)
        ::DeleteDC(Detach());
}

CDC* CDC::FromHandle(HDC handle) {
    DcState* dc = LookupDC(handle);
    if (dc == nullptr)
        return nullptr;
    if (dc->permanent != nullptr)
        return dc->permanent;
    if (!dc->temporary) {
        dc->temporary = std::make_unique<CDC>();
        dc->temporary->m_hDC = dc->temporary->m_hAttribDC = handle;
    }
    return dc->temporary.get();
}

BOOL CDC::Attach(HDC handle) {
    DcState* dc = LookupDC(handle);
    if (dc == nullptr)
        return FALSE;
    m_hDC = m_hAttribDC = handle;
    dc->permanent = this;
    return TRUE;
}

HDC CDC::Detach() {
    HDC handle = m_hDC;
    if (DcState* dc = LookupDC(handle); dc != nullptr && dc->permanent == this)
        dc->permanent = nullptr;
    m_hDC = m_hAttribDC = nullptr;
    return handle;
}

BOOL CDC::DeleteDC() {
    if (m_hDC == nullptr)
        return FALSE;
    return ::DeleteDC(Detach());
}

BOOL CDC::CreateCompatibleDC(CDC* dc) {
    return Attach(::CreateCompatibleDC(dc != nullptr ? dc->m_hDC : nullptr));
}

int CDC::GetDeviceCaps(int index) const {
    DcState* dc = LookupDC(AttribDC());
    Surface* surface = dc != nullptr ? dc->target() : nullptr;
    int width = surface != nullptr ? surface->Width() : 0;
    int height = surface != nullptr ? surface->Height() : 0;
    switch (index) {
    case LOGPIXELSX:
    case LOGPIXELSY:
        return 96;
    case HORZRES:
        return width;
    case VERTRES:
        return height;
    case HORZSIZE:
        return int(width * 25.4 / 96 + 0.5);
    case VERTSIZE:
        return int(height * 25.4 / 96 + 0.5);
    case BITSPIXEL:
        return 32;
    case PLANES:
        return 1;
    case NUMCOLORS:
        return -1;
    case TECHNOLOGY:
        return m_bPrinting ? DT_RASPRINTER : DT_RASDISPLAY;
    case RASTERCAPS:
        return RC_BITBLT | RC_STRETCHBLT;
    default:
        return 0;
    }
}

int CDC::SaveDC() {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return 0;
    dc->saved.push_back(dc->attributes);
    return int(dc->saved.size());
}

BOOL CDC::RestoreDC(int savedDC) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return FALSE;
    int count = int(dc->saved.size());
    int level = savedDC < 0 ? count + savedDC + 1 : savedDC;
    if (savedDC == 0 || level < 1 || level > count)
        return FALSE;
    // Most saves wrap drawing that leaves the clip alone: keeping Cairo's clip then spares
    // building it again for the next drawing.
    const cairo_region_t* current = dc->attributes.clip;
    const cairo_region_t* restored = dc->saved[std::size_t(level - 1)].clip;
    const bool sameClip = current == nullptr || restored == nullptr
                              ? current == restored
                              : cairo_region_equal(current, restored) != 0;
    dc->attributes = dc->saved[std::size_t(level - 1)];
    dc->saved.resize(std::size_t(level - 1));
    if (!sameClip)
        dc->ClipChanged();
    return TRUE;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return CPoint(0, 0);
    CPoint old(dc->attributes.windowOrg);
    dc->attributes.windowOrg = {x, y};
    return old;
}

CPoint CDC::GetWindowOrg() const {
    DcState* dc = LookupDC(m_hDC);
    return dc != nullptr ? CPoint(dc->attributes.windowOrg) : CPoint(0, 0);
}

CPoint CDC::OffsetWindowOrg(int dx, int dy) {
    CPoint old = GetWindowOrg();
    SetWindowOrg(old.x + dx, old.y + dy);
    return old;
}

CPoint CDC::SetViewportOrg(int x, int y) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return CPoint(0, 0);
    CPoint old(dc->attributes.viewportOrg);
    dc->attributes.viewportOrg = {x, y};
    return old;
}

CPoint CDC::GetViewportOrg() const {
    DcState* dc = LookupDC(m_hDC);
    return dc != nullptr ? CPoint(dc->attributes.viewportOrg) : CPoint(0, 0);
}

CPoint CDC::OffsetViewportOrg(int dx, int dy) {
    CPoint old = GetViewportOrg();
    SetViewportOrg(old.x + dx, old.y + dy);
    return old;
}

int CDC::SetMapMode(int mode) {
    return mode == MM_TEXT ? MM_TEXT : 0;
}

void CDC::LPtoDP(LPPOINT points, int count) const {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || points == nullptr)
        return;
    for (int i = 0; i < count; ++i) {
        points[i].x += dc->attributes.viewportOrg.x - dc->attributes.windowOrg.x;
        points[i].y += dc->attributes.viewportOrg.y - dc->attributes.windowOrg.y;
    }
}

void CDC::LPtoDP(LPRECT rect) const {
    LPtoDP(reinterpret_cast<LPPOINT>(rect), 2);
}

void CDC::DPtoLP(LPPOINT points, int count) const {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || points == nullptr)
        return;
    for (int i = 0; i < count; ++i) {
        points[i].x -= dc->attributes.viewportOrg.x - dc->attributes.windowOrg.x;
        points[i].y -= dc->attributes.viewportOrg.y - dc->attributes.windowOrg.y;
    }
}

void CDC::DPtoLP(LPRECT rect) const {
    DPtoLP(reinterpret_cast<LPPOINT>(rect), 2);
}

// Clipping.

int CDC::GetClipBox(LPRECT rect) const {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || rect == nullptr)
        return ERROR;
    cairo_region_t* clip = dc->EffectiveClip();
    cairo_rectangle_int_t box;
    cairo_region_get_extents(clip, &box);
    int kind = RegionKind(clip);
    cairo_region_destroy(clip);
    if (kind == NULLREGION)
        box = {0, 0, 0, 0};
    POINT a = dc->FromSurface(box.x, box.y);
    *rect = {a.x, a.y, a.x + box.width, a.y + box.height};
    return kind;
}

namespace {

int AfterClipChange(DcState* dc) {
    dc->ClipChanged();
    cairo_region_t* clip = dc->EffectiveClip();
    int kind = RegionKind(clip);
    cairo_region_destroy(clip);
    return kind;
}

RECT Normalized(int left, int top, int right, int bottom) {
    return {std::min(left, right), std::min(top, bottom), std::max(left, right),
            std::max(top, bottom)};
}

} // namespace

int CDC::IntersectClipRect(int left, int top, int right, int bottom) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return ERROR;
    cairo_region_t* box = RegionOf(dc->ToSurface(Normalized(left, top, right, bottom)));
    if (dc->attributes.clip == nullptr) {
        dc->attributes.clip = box;
    } else {
        cairo_region_intersect(dc->attributes.clip, box);
        cairo_region_destroy(box);
    }
    return AfterClipChange(dc);
}

int CDC::IntersectClipRect(LPCRECT rect) {
    return rect != nullptr ? IntersectClipRect(rect->left, rect->top, rect->right, rect->bottom)
                           : ERROR;
}

int CDC::ExcludeClipRect(int left, int top, int right, int bottom) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return ERROR;
    if (dc->attributes.clip == nullptr)
        dc->attributes.clip = Everywhere();
    cairo_region_t* box = RegionOf(dc->ToSurface(Normalized(left, top, right, bottom)));
    cairo_region_subtract(dc->attributes.clip, box);
    cairo_region_destroy(box);
    return AfterClipChange(dc);
}

int CDC::ExcludeClipRect(LPCRECT rect) {
    return rect != nullptr ? ExcludeClipRect(rect->left, rect->top, rect->right, rect->bottom)
                           : ERROR;
}

int CDC::SelectClipRgn(CRgn* region) {
    return SelectClipRgn(region, RGN_COPY);
}

int CDC::SelectClipRgn(CRgn* region, int mode) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return ERROR;
    auto* object =
        region != nullptr ? Lookup<RegionObject>(region->m_hObject, Kind::Region) : nullptr;
    if (region != nullptr && object == nullptr)
        return ERROR;
    if (object == nullptr) {
        if (mode != RGN_COPY)
            return ERROR;
        if (dc->attributes.clip != nullptr)
            cairo_region_destroy(dc->attributes.clip);
        dc->attributes.clip = nullptr;
        return AfterClipChange(dc);
    }
    // Regions are in device coordinates, which start at the context's origin on the surface.
    cairo_region_t* given = cairo_region_copy(object->region);
    cairo_region_translate(given, dc->origin.x, dc->origin.y);
    cairo_region_t* current = dc->attributes.clip != nullptr ? dc->attributes.clip : Everywhere();
    switch (mode) {
    case RGN_AND:
        cairo_region_intersect(current, given);
        break;
    case RGN_OR:
        cairo_region_union(current, given);
        break;
    case RGN_XOR:
        cairo_region_xor(current, given);
        break;
    case RGN_DIFF:
        cairo_region_subtract(current, given);
        break;
    case RGN_COPY:
        std::swap(current, given);
        break;
    default:
        cairo_region_destroy(given);
        if (current != dc->attributes.clip)
            cairo_region_destroy(current);
        return ERROR;
    }
    cairo_region_destroy(given);
    dc->attributes.clip = current;
    return AfterClipChange(dc);
}

BOOL CDC::PtVisible(int x, int y) const {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return FALSE;
    cairo_region_t* clip = dc->EffectiveClip();
    POINT p = dc->ToSurface(x, y);
    BOOL visible = cairo_region_contains_point(clip, p.x, p.y);
    cairo_region_destroy(clip);
    return visible;
}

BOOL CDC::RectVisible(LPCRECT rect) const {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || rect == nullptr)
        return FALSE;
    cairo_region_t* clip = dc->EffectiveClip();
    RECT r = dc->ToSurface(*rect);
    cairo_rectangle_int_t box{r.left, r.top, r.right - r.left, r.bottom - r.top};
    BOOL visible = box.width > 0 && box.height > 0 &&
                   cairo_region_contains_rectangle(clip, &box) != CAIRO_REGION_OVERLAP_OUT;
    cairo_region_destroy(clip);
    return visible;
}

// Objects. Settings go to both contexts when output and queries are split, as the framework
// does; answers come from the output context.

CPen* CDC::SelectObject(CPen* pen) {
    if (pen == nullptr)
        return nullptr;
    return CPen::FromHandle(HPEN(::SelectObject(m_hDC, pen->m_hObject)));
}

CBrush* CDC::SelectObject(CBrush* brush) {
    if (brush == nullptr)
        return nullptr;
    return CBrush::FromHandle(HBRUSH(::SelectObject(m_hDC, brush->m_hObject)));
}

CFont* CDC::SelectObject(CFont* font) {
    if (font == nullptr)
        return nullptr;
    if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC)
        ::SelectObject(m_hAttribDC, font->m_hObject);
    return CFont::FromHandle(HFONT(::SelectObject(m_hDC, font->m_hObject)));
}

CBitmap* CDC::SelectObject(CBitmap* bitmap) {
    if (bitmap == nullptr)
        return nullptr;
    return CBitmap::FromHandle(HBITMAP(::SelectObject(m_hDC, bitmap->m_hObject)));
}

CGdiObject* CDC::SelectObject(CGdiObject* object) {
    if (object == nullptr)
        return nullptr;
    return CGdiObject::FromHandle(::SelectObject(m_hDC, object->m_hObject));
}

CGdiObject* CDC::SelectStockObject(int index) {
    return CGdiObject::FromHandle(::SelectObject(m_hDC, GetStockObject(index)));
}

CPen* CDC::GetCurrentPen() const {
    DcState* dc = LookupDC(m_hDC);
    return dc != nullptr ? CPen::FromHandle(HPEN(Handle(dc->attributes.pen.get()))) : nullptr;
}

CBrush* CDC::GetCurrentBrush() const {
    DcState* dc = LookupDC(m_hDC);
    return dc != nullptr ? CBrush::FromHandle(HBRUSH(Handle(dc->attributes.brush.get()))) : nullptr;
}

CFont* CDC::GetCurrentFont() const {
    DcState* dc = LookupDC(m_hDC);
    return dc != nullptr ? CFont::FromHandle(HFONT(Handle(dc->attributes.font.get()))) : nullptr;
}

CBitmap* CDC::GetCurrentBitmap() const {
    DcState* dc = LookupDC(m_hDC);
    return dc != nullptr ? CBitmap::FromHandle(HBITMAP(Handle(dc->attributes.bitmap.get())))
                         : nullptr;
}

// Attributes.

namespace {

template <class T, class Field> T Exchange(HDC output, HDC attrib, Field field, T value, T failed) {
    DcState* dc = LookupDC(output);
    if (dc == nullptr)
        return failed;
    T old = dc->attributes.*field;
    dc->attributes.*field = value;
    if (DcState* other = LookupDC(attrib); other != nullptr && other != dc)
        other->attributes.*field = value;
    return old;
}

template <class T, class Field> T Read(HDC handle, Field field, T failed) {
    DcState* dc = LookupDC(handle);
    return dc != nullptr ? dc->attributes.*field : failed;
}

} // namespace

COLORREF CDC::SetBkColor(COLORREF color) {
    return Exchange<COLORREF>(m_hDC, m_hAttribDC, &DcAttributes::bkColor, color & 0xFFFFFF,
                              CLR_INVALID);
}

COLORREF CDC::GetBkColor() const {
    return Read<COLORREF>(AttribDC(), &DcAttributes::bkColor, CLR_INVALID);
}

int CDC::SetBkMode(int mode) {
    if (mode != TRANSPARENT && mode != OPAQUE)
        return 0;
    return Exchange<int>(m_hDC, m_hAttribDC, &DcAttributes::bkMode, mode, 0);
}

int CDC::GetBkMode() const {
    return Read<int>(AttribDC(), &DcAttributes::bkMode, 0);
}

COLORREF CDC::SetTextColor(COLORREF color) {
    return Exchange<COLORREF>(m_hDC, m_hAttribDC, &DcAttributes::textColor, color & 0xFFFFFF,
                              CLR_INVALID);
}

COLORREF CDC::GetTextColor() const {
    return Read<COLORREF>(AttribDC(), &DcAttributes::textColor, CLR_INVALID);
}

UINT CDC::SetTextAlign(UINT flags) {
    return Exchange<UINT>(m_hDC, m_hAttribDC, &DcAttributes::textAlign, flags, GDI_ERROR);
}

UINT CDC::GetTextAlign() const {
    return Read<UINT>(AttribDC(), &DcAttributes::textAlign, GDI_ERROR);
}

int CDC::SetROP2(int mode) {
    if (mode < R2_BLACK || mode > R2_WHITE)
        return 0;
    return Exchange<int>(m_hDC, m_hAttribDC, &DcAttributes::rop2, mode, 0);
}

int CDC::GetROP2() const {
    return Read<int>(AttribDC(), &DcAttributes::rop2, 0);
}

CPoint CDC::SetBrushOrg(int x, int y) {
    return CPoint(
        Exchange<POINT>(m_hDC, m_hAttribDC, &DcAttributes::brushOrg, POINT{x, y}, POINT{0, 0}));
}

CPoint CDC::GetBrushOrg() const {
    return CPoint(Read<POINT>(m_hDC, &DcAttributes::brushOrg, POINT{0, 0}));
}

// Pixels.

COLORREF CDC::GetPixel(int x, int y) const {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || !PtVisible(x, y))
        return CLR_INVALID;
    POINT p = dc->ToSurface(x, y);
    return dc->target()->GetPixel(p.x, p.y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF color) {
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr || !PtVisible(x, y))
        return CLR_INVALID;
    POINT p = dc->ToSurface(x, y);
    cairo_t* cr = dc->Cairo();
    SetSource(cr, color);
    cairo_rectangle(cr, p.x, p.y, 1, 1);
    cairo_fill(cr);
    return color & 0xFFFFFF;
}

void CDC::FillSolidRect(const RECT& rect, COLORREF color) {
    // As the framework does it: the background colour becomes `color`.
    SetBkColor(color);
    DcState* dc = LookupDC(m_hDC);
    if (dc == nullptr)
        return;
    // An upside-down rectangle is turned the right way, as the framework's opaque fill does.
    const RECT r = dc->ToSurface(Normalized(rect.left, rect.top, rect.right, rect.bottom));
    dc->Cairo(); // brings the clip up to date
    Surface* target = dc->target();
    if (target == nullptr)
        return;
    // An opaque colour on whole pixels: the same pixels as Cairo's fill, written directly,
    // since a grid fills every cell and Cairo's path machinery costs more than the pixels.
    auto* surface = static_cast<cairo_surface_t*>(target->NativeHandle());
    cairo_surface_flush(surface);
    unsigned char* data = cairo_image_surface_get_data(surface);
    const std::size_t stride = std::size_t(cairo_image_surface_get_stride(surface));
    const std::uint32_t pixel = ToPixel(color);
    const int pieces = cairo_region_num_rectangles(dc->crClip);
    for (int i = 0; i < pieces; ++i) {
        cairo_rectangle_int_t piece;
        cairo_region_get_rectangle(dc->crClip, i, &piece);
        const int left = std::max<int>(r.left, piece.x);
        const int right = std::min<int>(r.right, piece.x + piece.width);
        const int top = std::max<int>(r.top, piece.y);
        const int bottom = std::min<int>(r.bottom, piece.y + piece.height);
        if (left >= right || top >= bottom)
            continue;
        for (int y = top; y < bottom; ++y)
            std::fill_n(reinterpret_cast<std::uint32_t*>(data + std::size_t(y) * stride) + left,
                        right - left, pixel);
        cairo_surface_mark_dirty_rectangle(surface, left, top, right - left, bottom - top);
    }
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF color) {
    FillSolidRect(RECT{x, y, x + cx, y + cy}, color);
}
