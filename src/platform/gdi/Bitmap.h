#pragma once

#include "platform/gdi/GdiObject.h"

class CDC;
class Surface;

// A bitmap: colour (32 bits per pixel) or monochrome (1 bit per pixel, the bits of CreateBitmap
// in rows padded to 16 bits, 1 = white). A memory context that selects it draws into its pixels.
class ORVA_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)
public:
    static CBitmap* FromHandle(HBITMAP handle);
    operator HBITMAP() const { return HBITMAP(m_hObject); }

    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    // From the application's resource table (RegisterBitmapResource).
    BOOL LoadBitmap(LPCTSTR resourceName);
    BOOL LoadBitmap(UINT resourceId);
    int GetBitmap(BITMAP* bitmap) const;
    CSize GetBitmapDimension() const;
};

ORVA_API HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel,
                              const void* bits);
ORVA_API HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height);

// The pixels of a bitmap (for tests and the image list); null for anything but a bitmap.
ORVA_API Surface* GdiBitmapSurface(HBITMAP bitmap);

// The application's bitmap resources. `pixels` are `width` * `height` colours, row by row from
// the top. Registering an id or name again replaces the picture.
ORVA_API void RegisterBitmapResource(UINT id, int width, int height, const COLORREF* pixels);
ORVA_API void RegisterBitmapResource(LPCTSTR name, int width, int height, const COLORREF* pixels);
// A new bitmap from a resource given by name or by MAKEINTRESOURCE(id); null if none.
ORVA_API HBITMAP LoadBitmap(HINSTANCE instance, LPCTSTR name);
