#include "platform/gdi/GdiInternal.h"
#include "platform/gdi/Surface.h"
#include "platform/system/SysColors.h"

#include <array>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace gdi {

namespace {

// The handle table. A handle is (generation << kIndexBits) | (index + kFirstHandle): small,
// positive as a 32-bit integer, and never one of the numbers below kFirstHandle that stand for
// system colours where a brush is expected (COLOR_WINDOW + 1).
constexpr unsigned kIndexBits = 20;
constexpr std::uintptr_t kFirstHandle = 0x100;
constexpr std::uintptr_t kIndexMask = (std::uintptr_t(1) << kIndexBits) - 1;
constexpr std::uintptr_t kGenerationMask = 0x7FF; // keeps the handle below 2^31

struct HandleSlot {
    void* target = nullptr;
    bool context = false;
    std::uintptr_t generation = 0;
};

struct HandleTable {
    std::vector<HandleSlot> slots;
    std::vector<std::uintptr_t> free; // indices of empty slots
};

HandleTable& Handles() {
    static HandleTable table;
    return table;
}

HandleSlot* SlotOf(std::uintptr_t handle) {
    HandleTable& table = Handles();
    const std::uintptr_t index = (handle & kIndexMask) - kFirstHandle;
    if ((handle & kIndexMask) < kFirstHandle || (handle >> kIndexBits) > kGenerationMask ||
        index >= table.slots.size())
        return nullptr;
    HandleSlot& slot = table.slots[index];
    return slot.target != nullptr && slot.generation == handle >> kIndexBits ? &slot : nullptr;
}

std::unique_ptr<CGdiObject> NewWrapper(Kind kind) {
    switch (kind) {
    case Kind::Pen:
        return std::make_unique<CPen>();
    case Kind::Brush:
        return std::make_unique<CBrush>();
    case Kind::Font:
        return std::make_unique<CFont>();
    case Kind::Bitmap:
        return std::make_unique<CBitmap>();
    case Kind::Region:
        return std::make_unique<CRgn>();
    }
    return nullptr;
}

} // namespace

Object::~Object() {
    if (temporary)
        temporary->m_hObject = nullptr;
    if (permanent != nullptr)
        permanent->m_hObject = nullptr;
}

BrushObject::~BrushObject() {
    if (pattern != nullptr)
        cairo_surface_destroy(pattern);
}

COLORREF BrushObject::Color() const {
    return sysColor >= 0 ? GetSysColor(sysColor) : log.lbColor;
}

BitmapObject::~BitmapObject() {
    RecycleSurface(std::move(pixels));
}

RegionObject::~RegionObject() {
    if (region != nullptr)
        cairo_region_destroy(region);
}

Ref::Ref(Object* o) : m_object(o) {
    if (m_object != nullptr)
        ++m_object->references;
}

Ref& Ref::operator=(const Ref& other) {
    if (other.m_object != nullptr)
        ++other.m_object->references;
    if (m_object != nullptr)
        Release(m_object);
    m_object = other.m_object;
    return *this;
}

Ref::~Ref() {
    if (m_object != nullptr)
        Release(m_object);
}

std::uintptr_t NewHandle(void* target, bool context) {
    HandleTable& table = Handles();
    std::uintptr_t index = 0;
    if (!table.free.empty()) {
        index = table.free.back();
        table.free.pop_back();
    } else if (table.slots.size() < kIndexMask - kFirstHandle) {
        index = table.slots.size();
        table.slots.emplace_back();
    } else {
        return 0; // a million live objects: the table is full
    }
    HandleSlot& slot = table.slots[index];
    slot.target = target;
    slot.context = context;
    return (slot.generation << kIndexBits) | (index + kFirstHandle);
}

void FreeHandle(std::uintptr_t handle) {
    if (HandleSlot* slot = SlotOf(handle)) {
        slot->target = nullptr;
        slot->generation = (slot->generation + 1) & kGenerationMask;
        Handles().free.push_back((handle & kIndexMask) - kFirstHandle);
    }
}

void* HandleTarget(const void* handle, bool context) {
    const HandleSlot* slot = SlotOf(reinterpret_cast<std::uintptr_t>(handle));
    return slot != nullptr && slot->context == context ? slot->target : nullptr;
}

void Register(Object* object) {
    if (object->handle == 0) // stock objects pass through here twice
        object->handle = NewHandle(object, false);
}

void Release(Object* object) {
    if (--object->references > 0 || object->stock)
        return;
    FreeHandle(object->handle);
    delete object;
}

Object* Lookup(AnyGdiHandle handle) {
    // An object deleted while still selected lives on for its contexts but has no handle.
    auto* object = static_cast<Object*>(HandleTarget(handle.handle, false));
    return object != nullptr && !object->deleted ? object : nullptr;
}

BitmapObject* NewBitmap(int width, int height, int bitsPerPixel, NewPixels contents) {
    auto pixels = NewSurface(std::max(width, 0), std::max(height, 0), contents);
    if (pixels->Width() != std::max(width, 0) || pixels->Height() != std::max(height, 0))
        return nullptr; // too large to allocate
    auto* bitmap = new BitmapObject;
    bitmap->pixels = std::move(pixels);
    bitmap->bitsPerPixel = bitsPerPixel;
    Register(bitmap);
    return bitmap;
}

namespace {

Object* MakePen(UINT style, int width, COLORREF color) {
    auto* pen = new PenObject;
    pen->log = {style, {width, 0}, color};
    return pen;
}

Object* MakeBrush(UINT style, COLORREF color) {
    auto* brush = new BrushObject;
    brush->log = {style, color, 0};
    return brush;
}

Object* MakeFont(LONG height, LONG weight, const char* face) {
    LOGFONT lf{};
    lf.lfHeight = height;
    lf.lfWeight = weight;
    std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
    return Lookup(CreateFontIndirect(&lf));
}

Object* MakeStock(int index) {
    switch (index) {
    case WHITE_BRUSH:
        return MakeBrush(BS_SOLID, RGB(255, 255, 255));
    case LTGRAY_BRUSH:
        return MakeBrush(BS_SOLID, RGB(192, 192, 192));
    case GRAY_BRUSH:
        return MakeBrush(BS_SOLID, RGB(128, 128, 128));
    case DKGRAY_BRUSH:
        return MakeBrush(BS_SOLID, RGB(64, 64, 64));
    case BLACK_BRUSH:
        return MakeBrush(BS_SOLID, RGB(0, 0, 0));
    case NULL_BRUSH:
        return MakeBrush(BS_NULL, 0);
    case WHITE_PEN:
        return MakePen(PS_SOLID, 0, RGB(255, 255, 255));
    case BLACK_PEN:
        return MakePen(PS_SOLID, 0, RGB(0, 0, 0));
    case NULL_PEN:
        return MakePen(PS_NULL, 0, 0);
    case OEM_FIXED_FONT:
    case ANSI_FIXED_FONT:
    case SYSTEM_FIXED_FONT:
        return MakeFont(-13, FW_NORMAL, "Courier New");
    case ANSI_VAR_FONT:
    case DEFAULT_GUI_FONT:
        return MakeFont(-11, FW_NORMAL, "MS Sans Serif");
    case SYSTEM_FONT:
    case DEVICE_DEFAULT_FONT:
        return MakeFont(16, FW_BOLD, "System");
    default:
        return nullptr;
    }
}

constexpr int kStockBitmap = 32; // the 1 x 1 monochrome bitmap of a new memory context

} // namespace

Object* StockObject(int index) {
    // Made once, on first use, and never freed.
    static std::array<Object*, kStockBitmap + 1> stock{};
    if (index < 0 || index > kStockBitmap)
        return nullptr;
    if (stock[std::size_t(index)] == nullptr) {
        Object* object = index == kStockBitmap ? NewBitmap(1, 1, 1) : MakeStock(index);
        if (object == nullptr)
            return nullptr;
        Register(object);
        object->stock = true;
        stock[std::size_t(index)] = object;
    }
    return stock[std::size_t(index)];
}

} // namespace gdi

using namespace gdi;

// Handle-level calls.

HGDIOBJ GetStockObject(int index) {
    return Handle(StockObject(index));
}

BOOL DeleteObject(AnyGdiHandle handle) {
    Object* object = Lookup(handle);
    if (object == nullptr)
        return FALSE;
    if (object->stock)
        return TRUE;
    if (object->deleted)
        return FALSE;
    object->deleted = true;
    if (object->permanent != nullptr) {
        object->permanent->m_hObject = nullptr;
        object->permanent = nullptr;
    }
    Release(object);
    return TRUE;
}

int GetObject(AnyGdiHandle handle, int count, LPVOID buffer) {
    Object* object = Lookup(handle);
    if (object == nullptr)
        return 0;
    auto copy = [&](const void* record, int size) {
        if (buffer == nullptr)
            return size;
        if (count < size)
            return 0;
        std::memcpy(buffer, record, std::size_t(size));
        return size;
    };
    switch (object->kind) {
    case Kind::Pen:
        return copy(&static_cast<PenObject*>(object)->log, sizeof(LOGPEN));
    case Kind::Brush: {
        auto* brush = static_cast<BrushObject*>(object);
        LOGBRUSH record = brush->log;
        record.lbColor = brush->Color();
        return copy(&record, sizeof(LOGBRUSH));
    }
    case Kind::Font:
        return copy(&static_cast<FontObject*>(object)->log, sizeof(LOGFONT));
    case Kind::Bitmap: {
        auto* bitmap = static_cast<BitmapObject*>(object);
        BITMAP record{};
        record.bmWidth = bitmap->pixels->Width();
        record.bmHeight = bitmap->pixels->Height();
        record.bmPlanes = 1;
        record.bmBitsPixel = WORD(bitmap->bitsPerPixel);
        record.bmWidthBytes =
            bitmap->bitsPerPixel == 1 ? ((record.bmWidth + 15) / 16) * 2 : record.bmWidth * 4;
        return copy(&record, sizeof(BITMAP));
    }
    case Kind::Region:
        return 0;
    }
    return 0;
}

DWORD GetObjectType(AnyGdiHandle handle) {
    Object* object = Lookup(handle);
    if (object == nullptr)
        return 0;
    switch (object->kind) {
    case Kind::Pen:
        return OBJ_PEN;
    case Kind::Brush:
        return OBJ_BRUSH;
    case Kind::Font:
        return OBJ_FONT;
    case Kind::Bitmap:
        return OBJ_BITMAP;
    case Kind::Region:
        return OBJ_REGION;
    }
    return 0;
}

HPEN CreatePen(int style, int width, COLORREF color) {
    LOGPEN log{UINT(style), {width, 0}, color};
    return CreatePenIndirect(&log);
}

HPEN CreatePenIndirect(const LOGPEN* logPen) {
    if (logPen == nullptr || (logPen->lopnStyle & PS_STYLE_MASK) > PS_INSIDEFRAME)
        return nullptr;
    auto* pen = new PenObject;
    pen->log = *logPen;
    pen->log.lopnWidth.x = std::max<LONG>(logPen->lopnWidth.x, 0);
    Register(pen);
    return HPEN(Handle(pen));
}

HBRUSH CreateSolidBrush(COLORREF color) {
    auto* brush = new BrushObject;
    brush->log = {BS_SOLID, color & 0xFFFFFF, 0};
    Register(brush);
    return HBRUSH(Handle(brush));
}

HBRUSH CreateHatchBrush(int index, COLORREF color) {
    if (index < HS_HORIZONTAL || index > HS_DIAGCROSS)
        return nullptr;
    auto* brush = new BrushObject;
    brush->log = {BS_HATCHED, color & 0xFFFFFF, UINT_PTR(index)};
    Register(brush);
    return HBRUSH(Handle(brush));
}

HBRUSH CreatePatternBrush(HBITMAP handle) {
    auto* bitmap = Lookup<BitmapObject>(handle, Kind::Bitmap);
    if (bitmap == nullptr)
        return nullptr;
    // The brush keeps its own copy, so that the bitmap may be deleted afterwards.
    auto* source = static_cast<cairo_surface_t*>(bitmap->pixels->NativeHandle());
    int w = bitmap->pixels->Width(), h = bitmap->pixels->Height();
    cairo_surface_t* copy = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, w, h);
    cairo_t* cr = cairo_create(copy);
    cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
    cairo_set_source_surface(cr, source, 0, 0);
    cairo_paint(cr);
    cairo_destroy(cr);
    auto* brush = new BrushObject;
    brush->log = {BS_PATTERN, 0, UINT_PTR(handle)};
    brush->pattern = copy;
    brush->monochromePattern = bitmap->bitsPerPixel == 1;
    Register(brush);
    return HBRUSH(Handle(brush));
}

HBRUSH GetSysColorBrush(int index) {
    // One shared brush per colour, following the colour table when it changes.
    static std::array<BrushObject*, COLOR_COUNT> brushes{};
    if (index < 0 || index >= COLOR_COUNT)
        return nullptr;
    BrushObject*& brush = brushes[std::size_t(index)];
    if (brush == nullptr) {
        brush = new BrushObject;
        brush->stock = true;
        Register(brush);
    }
    brush->log = {BS_SOLID, GetSysColor(index), 0};
    brush->sysColor = index;
    return HBRUSH(Handle(brush));
}

HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits) {
    if (width < 0 || height < 0 || planes != 1 ||
        (bitsPerPixel != 1 && bitsPerPixel != 24 && bitsPerPixel != 32))
        return nullptr;
    BitmapObject* bitmap = NewBitmap(width, height, bitsPerPixel == 1 ? 1 : 32);
    if (bitmap == nullptr)
        return nullptr;
    if (bits == nullptr) {
        if (bitsPerPixel == 1)
            return HBITMAP(Handle(bitmap));
        // A colour bitmap without bits starts black, as the system's does.
    }
    auto* surface = static_cast<cairo_surface_t*>(bitmap->pixels->NativeHandle());
    cairo_surface_flush(surface);
    unsigned char* data = cairo_image_surface_get_data(surface);
    int stride = cairo_image_surface_get_stride(surface);
    auto* in = static_cast<const std::uint8_t*>(bits);
    for (int y = 0; y < height; ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(data + std::size_t(y) * std::size_t(stride));
        for (int x = 0; x < width; ++x) {
            std::uint32_t pixel = 0xFF000000;
            if (in != nullptr && bitsPerPixel == 1) {
                const std::uint8_t* line = in + std::size_t(y) * std::size_t((width + 15) / 16 * 2);
                pixel = (line[x / 8] & (0x80 >> (x % 8))) != 0 ? 0xFFFFFFFF : 0xFF000000;
            } else if (in != nullptr && bitsPerPixel == 24) {
                const std::uint8_t* p =
                    in + std::size_t(y) * std::size_t((width * 3 + 3) / 4 * 4) + std::size_t(x) * 3;
                pixel =
                    0xFF000000u | (std::uint32_t(p[2]) << 16) | (std::uint32_t(p[1]) << 8) | p[0];
            } else if (in != nullptr) {
                std::memcpy(&pixel, in + (std::size_t(y) * std::size_t(width) + std::size_t(x)) * 4,
                            4);
                pixel |= 0xFF000000u;
            }
            row[x] = pixel;
        }
    }
    cairo_surface_mark_dirty(surface);
    return HBITMAP(Handle(bitmap));
}

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height) {
    if (dc != nullptr && LookupDC(dc) == nullptr)
        return nullptr;
    if (width < 0 || height < 0)
        return nullptr;
    BitmapObject* bitmap = NewBitmap(width, height, 32, NewPixels::Undefined);
    return bitmap != nullptr ? HBITMAP(Handle(bitmap)) : nullptr;
}

Surface* GdiBitmapSurface(HBITMAP handle) {
    auto* bitmap = Lookup<BitmapObject>(handle, Kind::Bitmap);
    return bitmap != nullptr ? bitmap->pixels.get() : nullptr;
}

namespace {

struct BitmapResource {
    int width;
    int height;
    std::vector<COLORREF> pixels;
};

// The application's bitmap resources, by id and by name.
std::map<UINT, BitmapResource>& ResourcesById() {
    static std::map<UINT, BitmapResource> table;
    return table;
}
std::map<std::string, BitmapResource>& ResourcesByName() {
    static std::map<std::string, BitmapResource> table;
    return table;
}

BitmapResource MakeResource(int width, int height, const COLORREF* pixels) {
    BitmapResource resource{std::max(width, 0), std::max(height, 0), {}};
    if (pixels != nullptr)
        resource.pixels.assign(pixels,
                               pixels + std::size_t(resource.width) * std::size_t(resource.height));
    return resource;
}

HBITMAP BitmapFromResource(const BitmapResource& resource) {
    BitmapObject* bitmap = NewBitmap(resource.width, resource.height, 32);
    if (bitmap == nullptr)
        return nullptr;
    auto* surface = static_cast<cairo_surface_t*>(bitmap->pixels->NativeHandle());
    cairo_surface_flush(surface);
    unsigned char* data = cairo_image_surface_get_data(surface);
    int stride = cairo_image_surface_get_stride(surface);
    for (int y = 0; y < resource.height && !resource.pixels.empty(); ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(data + std::size_t(y) * std::size_t(stride));
        for (int x = 0; x < resource.width; ++x)
            row[x] = ToPixel(
                resource.pixels[std::size_t(y) * std::size_t(resource.width) + std::size_t(x)]);
    }
    cairo_surface_mark_dirty(surface);
    return HBITMAP(Handle(bitmap));
}

} // namespace

void RegisterBitmapResource(UINT id, int width, int height, const COLORREF* pixels) {
    ResourcesById()[id] = MakeResource(width, height, pixels);
}

void RegisterBitmapResource(LPCTSTR name, int width, int height, const COLORREF* pixels) {
    if (name == nullptr)
        return;
    if (IS_INTRESOURCE(name))
        RegisterBitmapResource(UINT(reinterpret_cast<std::uintptr_t>(name)), width, height, pixels);
    else
        ResourcesByName()[name] = MakeResource(width, height, pixels);
}

HBITMAP LoadBitmap(HINSTANCE, LPCTSTR name) {
    if (name == nullptr)
        return nullptr;
    if (IS_INTRESOURCE(name)) {
        auto found = ResourcesById().find(UINT(reinterpret_cast<std::uintptr_t>(name)));
        return found == ResourcesById().end() ? nullptr : BitmapFromResource(found->second);
    }
    auto found = ResourcesByName().find(name);
    return found == ResourcesByName().end() ? nullptr : BitmapFromResource(found->second);
}

HRGN CreateRectRgn(int left, int top, int right, int bottom) {
    auto* region = new RegionObject;
    cairo_rectangle_int_t r{std::min(left, right), std::min(top, bottom), std::abs(right - left),
                            std::abs(bottom - top)};
    region->region = cairo_region_create_rectangle(&r);
    Register(region);
    return HRGN(Handle(region));
}

namespace {

int RegionKind(const cairo_region_t* region) {
    int n = cairo_region_num_rectangles(region);
    return n == 0 ? NULLREGION : n == 1 ? SIMPLEREGION : COMPLEXREGION;
}

} // namespace

int CombineRgn(HRGN destination, HRGN a, HRGN b, int mode) {
    auto* dst = Lookup<RegionObject>(destination, Kind::Region);
    auto* first = Lookup<RegionObject>(a, Kind::Region);
    auto* second = Lookup<RegionObject>(b, Kind::Region);
    if (dst == nullptr || first == nullptr || (mode != RGN_COPY && second == nullptr))
        return ERROR;
    cairo_region_t* result = cairo_region_copy(first->region);
    switch (mode) {
    case RGN_AND:
        cairo_region_intersect(result, second->region);
        break;
    case RGN_OR:
        cairo_region_union(result, second->region);
        break;
    case RGN_XOR:
        cairo_region_xor(result, second->region);
        break;
    case RGN_DIFF:
        cairo_region_subtract(result, second->region);
        break;
    case RGN_COPY:
        break;
    default:
        cairo_region_destroy(result);
        return ERROR;
    }
    cairo_region_destroy(dst->region);
    dst->region = result;
    return RegionKind(result);
}

// The C++ wrappers.

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CGdiObject::~CGdiObject() {
    DeleteObject();
}

CGdiObject* CGdiObject::FromHandle(AnyGdiHandle handle) {
    Object* object = Lookup(handle);
    if (object == nullptr)
        return nullptr;
    if (object->permanent != nullptr)
        return object->permanent;
    if (!object->temporary) {
        object->temporary = NewWrapper(object->kind);
        object->temporary->m_hObject = handle;
    }
    return object->temporary.get();
}

BOOL CGdiObject::Attach(AnyGdiHandle handle) {
    Object* object = Lookup(handle);
    if (object == nullptr)
        return FALSE;
    m_hObject = handle;
    object->permanent = this;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    HGDIOBJ handle = m_hObject;
    if (Object* object = Lookup(handle); object != nullptr && object->permanent == this)
        object->permanent = nullptr;
    m_hObject = nullptr;
    return handle;
}

BOOL CGdiObject::DeleteObject() {
    if (m_hObject == nullptr)
        return FALSE;
    Object* object = Lookup(m_hObject);
    if (object != nullptr && object->temporary.get() == this) {
        // A temporary wrapper never owns its object.
        m_hObject = nullptr;
        return FALSE;
    }
    return ::DeleteObject(Detach());
}

int CGdiObject::GetObject(int count, LPVOID buffer) const {
    return ::GetObject(m_hObject, count, buffer);
}

UINT CGdiObject::GetObjectType() const {
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int index) {
    return Attach(GetStockObject(index));
}

CPen::CPen(int style, int width, COLORREF color) {
    CreatePen(style, width, color);
}

CPen* CPen::FromHandle(HPEN handle) {
    return static_cast<CPen*>(
        Lookup<PenObject>(handle, Kind::Pen) != nullptr ? CGdiObject::FromHandle(handle) : nullptr);
}

BOOL CPen::CreatePen(int style, int width, COLORREF color) {
    return Attach(::CreatePen(style, width, color));
}

BOOL CPen::CreatePenIndirect(const LOGPEN* logPen) {
    return Attach(::CreatePenIndirect(logPen));
}

int CPen::GetLogPen(LOGPEN* logPen) const {
    return GetObject(sizeof(LOGPEN), logPen);
}

CBrush::CBrush(COLORREF color) {
    CreateSolidBrush(color);
}

CBrush::CBrush(int hatchIndex, COLORREF color) {
    CreateHatchBrush(hatchIndex, color);
}

CBrush::CBrush(CBitmap* bitmap) {
    CreatePatternBrush(bitmap);
}

CBrush* CBrush::FromHandle(HBRUSH handle) {
    return static_cast<CBrush*>(Lookup<BrushObject>(handle, Kind::Brush) != nullptr
                                    ? CGdiObject::FromHandle(handle)
                                    : nullptr);
}

BOOL CBrush::CreateSolidBrush(COLORREF color) {
    return Attach(::CreateSolidBrush(color));
}

BOOL CBrush::CreateHatchBrush(int index, COLORREF color) {
    return Attach(::CreateHatchBrush(index, color));
}

BOOL CBrush::CreatePatternBrush(CBitmap* bitmap) {
    return bitmap != nullptr && Attach(::CreatePatternBrush(HBITMAP(bitmap->m_hObject)));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* logBrush) {
    if (logBrush == nullptr)
        return FALSE;
    switch (logBrush->lbStyle) {
    case BS_SOLID:
        return CreateSolidBrush(logBrush->lbColor);
    case BS_NULL:
        return CreateStockObject(NULL_BRUSH);
    case BS_HATCHED:
        return CreateHatchBrush(int(logBrush->lbHatch), logBrush->lbColor);
    case BS_PATTERN:
        return Attach(::CreatePatternBrush(reinterpret_cast<HBITMAP>(logBrush->lbHatch)));
    default:
        return FALSE;
    }
}

BOOL CBrush::CreateSysColorBrush(int index) {
    if (index < 0 || index >= COLOR_COUNT)
        return FALSE;
    // A brush of its own, which this object may delete.
    return CreateSolidBrush(GetSysColor(index));
}

int CBrush::GetLogBrush(LOGBRUSH* logBrush) const {
    return GetObject(sizeof(LOGBRUSH), logBrush);
}

CBitmap* CBitmap::FromHandle(HBITMAP handle) {
    return static_cast<CBitmap*>(Lookup<BitmapObject>(handle, Kind::Bitmap) != nullptr
                                     ? CGdiObject::FromHandle(handle)
                                     : nullptr);
}

BOOL CBitmap::CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel,
                           const void* bits) {
    return Attach(::CreateBitmap(width, height, planes, bitsPerPixel, bits));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height) {
    return Attach(::CreateCompatibleBitmap(dc != nullptr ? dc->m_hDC : nullptr, width, height));
}

BOOL CBitmap::LoadBitmap(LPCTSTR resourceName) {
    return Attach(::LoadBitmap(nullptr, resourceName));
}

BOOL CBitmap::LoadBitmap(UINT resourceId) {
    return LoadBitmap(MAKEINTRESOURCE(resourceId));
}

int CBitmap::GetBitmap(BITMAP* bitmap) const {
    return GetObject(sizeof(BITMAP), bitmap);
}

CSize CBitmap::GetBitmapDimension() const {
    BITMAP record{};
    GetBitmap(&record);
    return CSize(record.bmWidth, record.bmHeight);
}

CRgn* CRgn::FromHandle(HRGN handle) {
    return static_cast<CRgn*>(Lookup<RegionObject>(handle, Kind::Region) != nullptr
                                  ? CGdiObject::FromHandle(handle)
                                  : nullptr);
}

BOOL CRgn::CreateRectRgn(int left, int top, int right, int bottom) {
    return Attach(::CreateRectRgn(left, top, right, bottom));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT rect) {
    return rect != nullptr && CreateRectRgn(rect->left, rect->top, rect->right, rect->bottom);
}

int CRgn::CombineRgn(CRgn* a, CRgn* b, int mode) {
    return ::CombineRgn(HRGN(m_hObject), a != nullptr ? HRGN(a->m_hObject) : nullptr,
                        b != nullptr ? HRGN(b->m_hObject) : nullptr, mode);
}

BOOL CRgn::SetRectRgn(int left, int top, int right, int bottom) {
    auto* region = Lookup<RegionObject>(m_hObject, Kind::Region);
    if (region == nullptr)
        return FALSE;
    cairo_rectangle_int_t r{std::min(left, right), std::min(top, bottom), std::abs(right - left),
                            std::abs(bottom - top)};
    cairo_region_destroy(region->region);
    region->region = cairo_region_create_rectangle(&r);
    return TRUE;
}

BOOL CRgn::PtInRegion(int x, int y) const {
    auto* region = Lookup<RegionObject>(m_hObject, Kind::Region);
    return region != nullptr && cairo_region_contains_point(region->region, x, y);
}

BOOL CRgn::RectInRegion(LPCRECT rect) const {
    auto* region = Lookup<RegionObject>(m_hObject, Kind::Region);
    if (region == nullptr || rect == nullptr)
        return FALSE;
    cairo_rectangle_int_t r{rect->left, rect->top, rect->right - rect->left,
                            rect->bottom - rect->top};
    return cairo_region_contains_rectangle(region->region, &r) != CAIRO_REGION_OVERLAP_OUT;
}

int CRgn::GetRgnBox(LPRECT rect) const {
    auto* region = Lookup<RegionObject>(m_hObject, Kind::Region);
    if (region == nullptr || rect == nullptr)
        return ERROR;
    cairo_rectangle_int_t box;
    cairo_region_get_extents(region->region, &box);
    *rect = {box.x, box.y, box.x + box.width, box.y + box.height};
    return RegionKind(region->region);
}

int CRgn::OffsetRgn(int x, int y) {
    auto* region = Lookup<RegionObject>(m_hObject, Kind::Region);
    if (region == nullptr)
        return ERROR;
    cairo_region_translate(region->region, x, y);
    return RegionKind(region->region);
}
