#pragma once

#include "platform/gdi/GdiObject.h"

// A pen: PS_SOLID, PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT or PS_NULL, with a width in pixels
// (0 and 1 draw one crisp pixel) and a colour.
class ORVA_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default;
    CPen(int style, int width, COLORREF color);

    static CPen* FromHandle(HPEN handle);
    operator HPEN() const { return HPEN(m_hObject); }

    BOOL CreatePen(int style, int width, COLORREF color);
    BOOL CreatePenIndirect(const LOGPEN* logPen);
    int GetLogPen(LOGPEN* logPen) const;
};

ORVA_API HPEN CreatePen(int style, int width, COLORREF color);
ORVA_API HPEN CreatePenIndirect(const LOGPEN* logPen);
