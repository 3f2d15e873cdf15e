#pragma once

#include "platform/gdi/GdiObject.h"

// A region: a set of rectangles, for clipping.
class ORVA_API CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)
public:
    static CRgn* FromHandle(HRGN handle);
    operator HRGN() const { return HRGN(m_hObject); }

    BOOL CreateRectRgn(int left, int top, int right, int bottom);
    BOOL CreateRectRgnIndirect(LPCRECT rect);
    // Sets this region to `a` combined with `b` by RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF or
    // RGN_COPY; answers the kind of the result (NULLREGION, SIMPLEREGION, COMPLEXREGION, ERROR).
    int CombineRgn(CRgn* a, CRgn* b, int mode);
    BOOL SetRectRgn(int left, int top, int right, int bottom);
    BOOL PtInRegion(int x, int y) const;
    BOOL RectInRegion(LPCRECT rect) const;
    int GetRgnBox(LPRECT rect) const;
    int OffsetRgn(int x, int y);
};

ORVA_API HRGN CreateRectRgn(int left, int top, int right, int bottom);
ORVA_API int CombineRgn(HRGN destination, HRGN a, HRGN b, int mode);
