#pragma once

// CGdiObject, the base of the pens, brushes, fonts, bitmaps and regions that a device context
// selects, and the handle-level calls on those objects.

#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/Rect.h"
#include "platform/gdi/GdiTypes.h"

#include <cstddef>

// The handle of any drawing object. The system's calls take pens, brushes, fonts, bitmaps and
// regions through one untyped handle; this keeps those calls working with the typed handles.
struct AnyGdiHandle {
    HGDIOBJ handle;
    AnyGdiHandle(HGDIOBJ h) : handle(h) {}
    AnyGdiHandle(std::nullptr_t) : handle(nullptr) {}
    AnyGdiHandle(HPEN h) : handle(reinterpret_cast<HGDIOBJ>(h)) {}
    AnyGdiHandle(HBRUSH h) : handle(reinterpret_cast<HGDIOBJ>(h)) {}
    AnyGdiHandle(HFONT h) : handle(reinterpret_cast<HGDIOBJ>(h)) {}
    AnyGdiHandle(HBITMAP h) : handle(reinterpret_cast<HGDIOBJ>(h)) {}
    AnyGdiHandle(HRGN h) : handle(reinterpret_cast<HGDIOBJ>(h)) {}
    operator HGDIOBJ() const { return handle; }
};

class ORVA_API CGdiObject : public CObject {
    DECLARE_DYNAMIC(CGdiObject)
public:
    CGdiObject() = default;
    ~CGdiObject() override; // deletes the object it holds
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;

    HGDIOBJ m_hObject = nullptr;

    // The object that holds `handle`: the attached C++ object if there is one, otherwise a
    // temporary one that lives as long as the handle. Null for a null or unknown handle.
    static CGdiObject* FromHandle(AnyGdiHandle handle);

    BOOL Attach(AnyGdiHandle handle);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    operator HGDIOBJ() const { return m_hObject; }
    int GetObject(int count, LPVOID buffer) const;
    UINT GetObjectType() const;
    BOOL CreateStockObject(int index);
    BOOL UnrealizeObject() { return m_hObject != nullptr; }
};

ORVA_API HGDIOBJ GetStockObject(int index);
// Frees a pen, brush, font, bitmap or region. An object still selected into a context stays
// usable there and is freed when the context lets it go. Stock objects are never freed.
ORVA_API BOOL DeleteObject(AnyGdiHandle object);
// Copies the object's record (LOGPEN, LOGBRUSH, LOGFONT, BITMAP) into `buffer`; with a null
// buffer answers the size needed.
ORVA_API int GetObject(AnyGdiHandle object, int count, LPVOID buffer);
ORVA_API DWORD GetObjectType(AnyGdiHandle object);
