#pragma once

#include "platform/gdi/GdiObject.h"

class CBitmap;

// A brush: solid, hatched (HS_*, drawn in the brush colour over the context's background when
// it is opaque), or a pattern from a bitmap. A monochrome pattern takes the context's text
// colour for its black bits and background colour for its white ones.
class ORVA_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default;
    explicit CBrush(COLORREF color);
    CBrush(int hatchIndex, COLORREF color);
    explicit CBrush(CBitmap* bitmap);

    static CBrush* FromHandle(HBRUSH handle);
    operator HBRUSH() const { return HBRUSH(m_hObject); }

    BOOL CreateSolidBrush(COLORREF color);
    BOOL CreateHatchBrush(int index, COLORREF color);
    BOOL CreatePatternBrush(CBitmap* bitmap);
    BOOL CreateBrushIndirect(const LOGBRUSH* logBrush);
    BOOL CreateSysColorBrush(int index);
    int GetLogBrush(LOGBRUSH* logBrush) const;
};

ORVA_API HBRUSH CreateSolidBrush(COLORREF color);
ORVA_API HBRUSH CreateHatchBrush(int index, COLORREF color);
ORVA_API HBRUSH CreatePatternBrush(HBITMAP bitmap);
// The shared brush of a system colour (GetSysColor); never to be deleted. Null for an index
// outside the colour table.
ORVA_API HBRUSH GetSysColorBrush(int index);
