#pragma once

#include "platform/gdi/GdiObject.h"

// A font from a LOGFONT. lfHeight < 0 is the character (em) height in pixels, > 0 the cell
// height, 0 the default of 8 points at 96 DPI. Faces map to installed metric-compatible fonts:
// the sans-serif faces of the system to Liberation Sans, the serif ones to Liberation Serif,
// the typewriter ones to Liberation Mono, unknown faces to Liberation Sans.
class ORVA_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)
public:
    static CFont* FromHandle(HFONT handle);
    operator HFONT() const { return HFONT(m_hObject); }

    BOOL CreateFontIndirect(const LOGFONT* logFont);
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                    BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision,
                    BYTE clipPrecision, BYTE quality, BYTE pitchAndFamily, LPCTSTR faceName);
    // `pointSize` in tenths of a point.
    BOOL CreatePointFont(int pointSize, LPCTSTR faceName, class CDC* dc = nullptr);
    // lfHeight of `logFont` in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* logFont, class CDC* dc = nullptr);
    int GetLogFont(LOGFONT* logFont) const;
};

ORVA_API HFONT CreateFontIndirect(const LOGFONT* logFont);
// The installed family that a face name maps to ("Arial" -> "Liberation Sans").
ORVA_API const char* GdiMapFontFace(const char* faceName);
