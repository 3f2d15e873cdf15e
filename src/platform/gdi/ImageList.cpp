#include "platform/gdi/ImageList.h"

#include "platform/gdi/GdiInternal.h"
#include "platform/gdi/Surface.h"

#include <memory>
#include <unordered_set>
#include <vector>

namespace {

struct ImageListObject {
    int cx = 0;
    int cy = 0;
    UINT flags = 0;
    COLORREF bkColor = CLR_NONE;
    std::vector<cairo_surface_t*> images; // premultiplied, transparent where masked
    CImageList* permanent = nullptr;
    std::unique_ptr<CImageList> temporary;

    ~ImageListObject() {
        for (cairo_surface_t* image : images)
            cairo_surface_destroy(image);
        if (temporary)
            temporary->m_hImageList = nullptr;
        if (permanent != nullptr)
            permanent->m_hImageList = nullptr;
    }
};

// Live lists; single-threaded like the rest of the drawing layer.
std::unordered_set<ImageListObject*>& LiveLists() {
    static std::unordered_set<ImageListObject*> lists;
    return lists;
}

ImageListObject* LookupList(HIMAGELIST handle) {
    auto* list = reinterpret_cast<ImageListObject*>(handle);
    return handle != nullptr && LiveLists().count(list) != 0 ? list : nullptr;
}

std::uint32_t PixelOf(cairo_surface_t* surface, int x, int y) {
    const unsigned char* row =
        cairo_image_surface_get_data(surface) +
        std::size_t(y) * std::size_t(cairo_image_surface_get_stride(surface));
    return reinterpret_cast<const std::uint32_t*>(row)[x];
}

// Cuts `bitmap` into pictures; `transparent(x, y)` says which bitmap pixels to leave out.
template <class Transparent>
int AddPictures(ImageListObject* list, Surface* bitmap, Transparent transparent) {
    if (list->cx <= 0 || list->cy <= 0 || bitmap->Width() < list->cx)
        return -1;
    auto* source = static_cast<cairo_surface_t*>(bitmap->NativeHandle());
    cairo_surface_flush(source);
    int first = int(list->images.size());
    int count = bitmap->Width() / list->cx;
    for (int n = 0; n < count; ++n) {
        cairo_surface_t* image =
            cairo_image_surface_create(CAIRO_FORMAT_ARGB32, list->cx, list->cy);
        cairo_surface_flush(image);
        for (int y = 0; y < list->cy && y < bitmap->Height(); ++y) {
            auto* row = reinterpret_cast<std::uint32_t*>(
                cairo_image_surface_get_data(image) +
                std::size_t(y) * std::size_t(cairo_image_surface_get_stride(image)));
            for (int x = 0; x < list->cx; ++x) {
                int sx = n * list->cx + x;
                row[x] = transparent(sx, y) ? 0 : (PixelOf(source, sx, y) | 0xFF000000u);
            }
        }
        cairo_surface_mark_dirty(image);
        list->images.push_back(image);
    }
    return first;
}

} // namespace

IMPLEMENT_DYNAMIC(CImageList, CObject)

CImageList::~CImageList() {
    DeleteImageList();
}

CImageList* CImageList::FromHandle(HIMAGELIST handle) {
    ImageListObject* list = LookupList(handle);
    if (list == nullptr)
        return nullptr;
    if (list->permanent != nullptr)
        return list->permanent;
    if (!list->temporary) {
        list->temporary = std::make_unique<CImageList>();
        list->temporary->m_hImageList = handle;
    }
    return list->temporary.get();
}

BOOL CImageList::Attach(HIMAGELIST handle) {
    ImageListObject* list = LookupList(handle);
    if (list == nullptr)
        return FALSE;
    m_hImageList = handle;
    list->permanent = this;
    return TRUE;
}

HIMAGELIST CImageList::Detach() {
    HIMAGELIST handle = m_hImageList;
    if (ImageListObject* list = LookupList(handle); list != nullptr && list->permanent == this)
        list->permanent = nullptr;
    m_hImageList = nullptr;
    return handle;
}

BOOL CImageList::Create(int cx, int cy, UINT flags, int, int) {
    if (cx <= 0 || cy <= 0)
        return FALSE;
    DeleteImageList();
    auto* list = new ImageListObject;
    list->cx = cx;
    list->cy = cy;
    list->flags = flags;
    LiveLists().insert(list);
    return Attach(reinterpret_cast<HIMAGELIST>(list));
}

BOOL CImageList::DeleteImageList() {
    if (m_hImageList == nullptr)
        return FALSE;
    ImageListObject* list = LookupList(m_hImageList);
    if (list != nullptr && list->temporary.get() == this) {
        m_hImageList = nullptr; // a temporary object never owns its list
        return FALSE;
    }
    return ImageList_Destroy(Detach());
}

int CImageList::Add(CBitmap* bitmap, COLORREF maskColor) {
    ImageListObject* list = LookupList(m_hImageList);
    Surface* pixels = bitmap != nullptr ? GdiBitmapSurface(HBITMAP(bitmap->m_hObject)) : nullptr;
    if (list == nullptr || pixels == nullptr)
        return -1;
    bool masked = (list->flags & ILC_MASK) != 0 && maskColor != CLR_NONE;
    return AddPictures(list, pixels, [&](int x, int y) {
        return masked && pixels->GetPixel(x, y) == (maskColor & 0xFFFFFF);
    });
}

int CImageList::Add(CBitmap* bitmap, CBitmap* mask) {
    ImageListObject* list = LookupList(m_hImageList);
    Surface* pixels = bitmap != nullptr ? GdiBitmapSurface(HBITMAP(bitmap->m_hObject)) : nullptr;
    Surface* maskPixels = mask != nullptr ? GdiBitmapSurface(HBITMAP(mask->m_hObject)) : nullptr;
    if (list == nullptr || pixels == nullptr)
        return -1;
    bool masked = (list->flags & ILC_MASK) != 0 && maskPixels != nullptr;
    return AddPictures(list, pixels, [&](int x, int y) {
        return masked && maskPixels->GetPixel(x, y) == RGB(255, 255, 255);
    });
}

BOOL CImageList::Remove(int index) {
    ImageListObject* list = LookupList(m_hImageList);
    if (list == nullptr || index < -1 || index >= int(list->images.size()))
        return FALSE;
    if (index == -1) {
        for (cairo_surface_t* image : list->images)
            cairo_surface_destroy(image);
        list->images.clear();
        return TRUE;
    }
    cairo_surface_destroy(list->images[std::size_t(index)]);
    list->images.erase(list->images.begin() + index);
    return TRUE;
}

int CImageList::GetImageCount() const {
    return ImageList_GetImageCount(m_hImageList);
}

BOOL CImageList::GetImageInfo(int index, IMAGEINFO* info) const {
    ImageListObject* list = LookupList(m_hImageList);
    if (list == nullptr || info == nullptr || index < 0 || index >= int(list->images.size()))
        return FALSE;
    *info = IMAGEINFO{};
    info->rcImage = {0, 0, list->cx, list->cy};
    return TRUE;
}

COLORREF CImageList::SetBkColor(COLORREF color) {
    ImageListObject* list = LookupList(m_hImageList);
    if (list == nullptr)
        return CLR_NONE;
    COLORREF old = list->bkColor;
    list->bkColor = color;
    return old;
}

COLORREF CImageList::GetBkColor() const {
    ImageListObject* list = LookupList(m_hImageList);
    return list != nullptr ? list->bkColor : CLR_NONE;
}

BOOL CImageList::Draw(CDC* dc, int index, POINT point, UINT style) {
    return dc != nullptr && ImageList_Draw(m_hImageList, index, dc->m_hDC, point.x, point.y, style);
}

BOOL ImageList_GetIconSize(HIMAGELIST handle, int* cx, int* cy) {
    ImageListObject* list = LookupList(handle);
    if (list == nullptr || cx == nullptr || cy == nullptr)
        return FALSE;
    *cx = list->cx;
    *cy = list->cy;
    return TRUE;
}

int ImageList_GetImageCount(HIMAGELIST handle) {
    ImageListObject* list = LookupList(handle);
    return list != nullptr ? int(list->images.size()) : 0;
}

BOOL ImageList_Draw(HIMAGELIST handle, int index, HDC dcHandle, int x, int y, UINT style) {
    ImageListObject* list = LookupList(handle);
    gdi::DcState* dc = gdi::LookupDC(dcHandle);
    if (list == nullptr || dc == nullptr || index < 0 || index >= int(list->images.size()))
        return FALSE;
    POINT at = dc->ToSurface(x, y);
    cairo_t* cr = dc->Cairo();
    if ((style & ILD_TRANSPARENT) == 0 && list->bkColor != CLR_NONE) {
        gdi::SetSource(cr, list->bkColor);
        cairo_rectangle(cr, at.x, at.y, list->cx, list->cy);
        cairo_fill(cr);
    }
    cairo_set_source_surface(cr, list->images[std::size_t(index)], at.x, at.y);
    cairo_rectangle(cr, at.x, at.y, list->cx, list->cy);
    cairo_fill(cr);
    return TRUE;
}

BOOL ImageList_Destroy(HIMAGELIST handle) {
    ImageListObject* list = LookupList(handle);
    if (list == nullptr)
        return FALSE;
    LiveLists().erase(list);
    delete list;
    return TRUE;
}
