// CStatic's wrappers over the static control's messages.

#include "platform/widgets/Static.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)

BOOL CStatic::Create(LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create("Static", text, style, rect, parent, id);
}

HBITMAP CStatic::SetBitmap(HBITMAP bitmap) {
    return reinterpret_cast<HBITMAP>(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, LPARAM(bitmap)));
}

HBITMAP CStatic::GetBitmap() const {
    return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP));
}
