#pragma once

// CImageList: a row of same-sized pictures, drawn by index; pictures added with a mask colour
// are transparent where they have that colour.

#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/Rect.h"
#include "platform/gdi/GdiTypes.h"

class CBitmap;
class CDC;

class ORVA_API CImageList : public CObject {
    DECLARE_DYNAMIC(CImageList)
public:
    CImageList() = default;
    ~CImageList() override; // deletes the list it holds
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;

    HIMAGELIST m_hImageList = nullptr;

    // The attached object, or a temporary one that lives as long as the list.
    static CImageList* FromHandle(HIMAGELIST list);
    BOOL Attach(HIMAGELIST list);
    HIMAGELIST Detach();
    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    operator HIMAGELIST() const { return m_hImageList; }

    // Pictures of cx by cy pixels; ILC_MASK makes transparent pictures possible.
    BOOL Create(int cx, int cy, UINT flags, int initial, int grow);
    BOOL DeleteImageList();

    // Adds the pictures of `bitmap`, cut into cx-wide pieces from the left; pixels of
    // `maskColor` become transparent. Answers the index of the first, or -1.
    int Add(CBitmap* bitmap, COLORREF maskColor);
    // The same with a monochrome mask whose white pixels are transparent; null for none.
    int Add(CBitmap* bitmap, CBitmap* mask);
    BOOL Remove(int index); // -1 removes all
    int GetImageCount() const;
    BOOL GetImageInfo(int index, IMAGEINFO* info) const;
    COLORREF SetBkColor(COLORREF color); // CLR_NONE draws transparently
    COLORREF GetBkColor() const;

    // ILD_NORMAL draws on the list's background colour (transparently when it is CLR_NONE),
    // ILD_TRANSPARENT always transparently.
    BOOL Draw(CDC* dc, int index, POINT point, UINT style);
};

ORVA_API BOOL ImageList_GetIconSize(HIMAGELIST list, int* cx, int* cy);
ORVA_API int ImageList_GetImageCount(HIMAGELIST list);
ORVA_API BOOL ImageList_Draw(HIMAGELIST list, int index, HDC dc, int x, int y, UINT style);
ORVA_API BOOL ImageList_Destroy(HIMAGELIST list);
