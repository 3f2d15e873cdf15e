#pragma once

// CDC, the device context: drawing on a window's part of its surface, on a memory bitmap, or
// (with m_bPrinting set) standing for a printer. Logical coordinates are pixels shifted by the
// window and viewport origins. The GDI's pixel rules hold: a filled rectangle covers left to
// right - 1 and top to bottom - 1, LineTo leaves out its last pixel, a pen of width 0 or 1 is one
// crisp pixel, DrawFocusRect and InvertRect invert so that drawing twice restores.

#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/Rect.h"
#include "platform/base/String.h"
#include "platform/gdi/Bitmap.h"
#include "platform/gdi/Brush.h"
#include "platform/gdi/Font.h"
#include "platform/gdi/GdiTypes.h"
#include "platform/gdi/Pen.h"
#include "platform/gdi/Rgn.h"

class ORVA_API CDC : public CObject {
    DECLARE_DYNAMIC(CDC)
public:
    CDC() = default;
    ~CDC() override; // deletes the context it holds
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    HDC m_hDC = nullptr;       // where output goes
    HDC m_hAttribDC = nullptr; // what queries read
    BOOL m_bPrinting = FALSE;

    // The object that holds `dc`: the attached CDC if there is one, otherwise a temporary one
    // that lives as long as the context. Null for a null or unknown handle.
    static CDC* FromHandle(HDC dc);
    BOOL Attach(HDC dc);
    HDC Detach();
    BOOL DeleteDC();
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }
    BOOL IsPrinting() const { return m_bPrinting; }

    BOOL CreateCompatibleDC(CDC* dc);
    int GetDeviceCaps(int index) const;

    // State.
    int SaveDC();
    BOOL RestoreDC(int savedDC); // a negative value counts back from the latest save

    // Coordinates.
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint GetWindowOrg() const;
    CPoint OffsetWindowOrg(int dx, int dy);
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    CPoint GetViewportOrg() const;
    CPoint OffsetViewportOrg(int dx, int dy);
    int SetMapMode(int mode);
    int GetMapMode() const { return MM_TEXT; }
    void LPtoDP(LPPOINT points, int count = 1) const;
    void LPtoDP(LPRECT rect) const;
    void DPtoLP(LPPOINT points, int count = 1) const;
    void DPtoLP(LPRECT rect) const;

    // Clipping; boxes in logical coordinates, regions in device coordinates.
    int GetClipBox(LPRECT rect) const;
    int IntersectClipRect(int left, int top, int right, int bottom);
    int IntersectClipRect(LPCRECT rect);
    int ExcludeClipRect(int left, int top, int right, int bottom);
    int ExcludeClipRect(LPCRECT rect);
    int SelectClipRgn(CRgn* region); // null removes the extra clipping
    int SelectClipRgn(CRgn* region, int mode);
    BOOL PtVisible(int x, int y) const;
    BOOL RectVisible(LPCRECT rect) const;

    // Objects; each answers the object that was selected before.
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    CFont* SelectObject(CFont* font);
    CBitmap* SelectObject(CBitmap* bitmap);
    CGdiObject* SelectObject(CGdiObject* object);
    int SelectObject(CRgn* region) { return SelectClipRgn(region); }
    CGdiObject* SelectStockObject(int index);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;

    // Attributes.
    COLORREF SetBkColor(COLORREF color);
    COLORREF GetBkColor() const;
    int SetBkMode(int mode);
    int GetBkMode() const;
    COLORREF SetTextColor(COLORREF color);
    COLORREF GetTextColor() const;
    UINT SetTextAlign(UINT flags);
    UINT GetTextAlign() const;
    int SetROP2(int mode);
    int GetROP2() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint GetBrushOrg() const;

    // Pixels and rectangles.
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF color);
    void FillSolidRect(const RECT& rect, COLORREF color);
    void FillSolidRect(LPCRECT rect, COLORREF color) { FillSolidRect(*rect, color); }
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF color);
    void FillRect(LPCRECT rect, CBrush* brush);
    void FrameRect(LPCRECT rect, CBrush* brush);
    void InvertRect(LPCRECT rect);
    void DrawFocusRect(LPCRECT rect);
    void Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight);
    BOOL DrawEdge(LPRECT rect, UINT edge, UINT flags);
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state);

    // Lines and shapes, with the selected pen (outline) and brush (inside).
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    CPoint GetCurrentPosition() const;
    BOOL Polyline(const POINT* points, int count);
    BOOL Polygon(const POINT* points, int count);
    BOOL Rectangle(int left, int top, int right, int bottom);
    BOOL Rectangle(LPCRECT rect);
    BOOL Ellipse(int left, int top, int right, int bottom);
    BOOL Ellipse(LPCRECT rect);

    // Blits.
    BOOL PatBlt(int x, int y, int width, int height, DWORD rop);
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, DWORD rop);
    BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc,
                    int srcWidth, int srcHeight, DWORD rop);

    // Text, with the selected font.
    int DrawText(LPCTSTR text, int count, LPRECT rect, UINT format);
    int DrawText(const CString& text, LPRECT rect, UINT format);
    BOOL TextOut(int x, int y, LPCTSTR text, int count);
    BOOL TextOut(int x, int y, const CString& text);
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count,
                    const int* widths);
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text,
                    const int* widths);
    CSize GetTextExtent(LPCTSTR text, int count) const;
    CSize GetTextExtent(const CString& text) const;
    CSize GetOutputTextExtent(LPCTSTR text, int count) const;
    CSize GetOutputTextExtent(const CString& text) const;
    BOOL GetTextMetrics(TEXTMETRIC* metrics) const;
    BOOL GetOutputTextMetrics(TEXTMETRIC* metrics) const;
    int GetTextFace(int count, LPTSTR faceName) const;

private:
    HDC AttribDC() const { return m_hAttribDC != nullptr ? m_hAttribDC : m_hDC; }
};

ORVA_API BOOL DeleteDC(HDC dc);
ORVA_API HDC CreateCompatibleDC(HDC dc); // a null `dc` makes one compatible with the screen
ORVA_API HGDIOBJ SelectObject(HDC dc, AnyGdiHandle object);
ORVA_API int SaveDC(HDC dc);
ORVA_API BOOL RestoreDC(HDC dc, int savedDC);
ORVA_API COLORREF SetBkColor(HDC dc, COLORREF color);
ORVA_API COLORREF SetTextColor(HDC dc, COLORREF color);
ORVA_API int SetBkMode(HDC dc, int mode);
ORVA_API int FillRect(HDC dc, const RECT* rect, HBRUSH brush);
ORVA_API int DrawText(HDC dc, LPCTSTR text, int count, LPRECT rect, UINT format);
ORVA_API BOOL BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int xSrc, int ySrc,
                     DWORD rop);
ORVA_API int GetDeviceCaps(HDC dc, int index);
ORVA_API BOOL GetTextExtentPoint32(HDC dc, LPCTSTR text, int count, SIZE* size);
ORVA_API BOOL GetTextMetrics(HDC dc, TEXTMETRIC* metrics);
ORVA_API BOOL TextOut(HDC dc, int x, int y, LPCTSTR text, int count);
ORVA_API BOOL PatBlt(HDC dc, int x, int y, int width, int height, DWORD rop);
ORVA_API BOOL InvertRect(HDC dc, const RECT* rect);
ORVA_API BOOL DrawFocusRect(HDC dc, const RECT* rect);
ORVA_API BOOL DrawEdge(HDC dc, LPRECT rect, UINT edge, UINT flags);
ORVA_API BOOL DrawFrameControl(HDC dc, LPRECT rect, UINT type, UINT state);
ORVA_API BOOL MoveToEx(HDC dc, int x, int y, LPPOINT previous);
ORVA_API BOOL LineTo(HDC dc, int x, int y);
ORVA_API int SetROP2(HDC dc, int mode);
ORVA_API int GetClipBox(HDC dc, LPRECT rect);
ORVA_API int IntersectClipRect(HDC dc, int left, int top, int right, int bottom);
ORVA_API int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom);
ORVA_API int SelectClipRgn(HDC dc, HRGN region);
