// Draws the message box icons with the device context's shapes and a bold glyph.

#include "platform/window/MessageBoxIcon.h"

#include "platform/base/Messages.h"
#include "platform/gdi/Brush.h"
#include "platform/gdi/Font.h"
#include "platform/gdi/Pen.h"

#include <cstring>

namespace {

constexpr COLORREF kOutline = RGB(0, 0, 0);
constexpr COLORREF kStopRed = RGB(255, 0, 0);
constexpr COLORREF kWarningYellow = RGB(255, 255, 0);
constexpr COLORREF kBalloonWhite = RGB(255, 255, 255);
constexpr COLORREF kGlyphBlue = RGB(0, 0, 255);
constexpr COLORREF kGlyphWhite = RGB(255, 255, 255);

void Glyph(CDC& dc, const CRect& box, const char* glyph, COLORREF colour) {
    LOGFONT lf{};
    lf.lfHeight = -box.Height() * 3 / 4;
    lf.lfWeight = FW_BOLD;
    std::strncpy(lf.lfFaceName, "Times New Roman", LF_FACESIZE - 1);
    CFont font;
    font.CreateFontIndirect(&lf);
    CFont* oldFont = dc.SelectObject(&font);
    const int oldMode = dc.SetBkMode(TRANSPARENT);
    const COLORREF oldColour = dc.SetTextColor(colour);
    CRect r = box;
    dc.DrawText(glyph, -1, &r, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    dc.SetTextColor(oldColour);
    dc.SetBkMode(oldMode);
    dc.SelectObject(oldFont);
}

void Disc(CDC& dc, const CRect& box, COLORREF fill) {
    CPen pen(PS_SOLID, 1, kOutline);
    CBrush brush(fill);
    CPen* oldPen = dc.SelectObject(&pen);
    CBrush* oldBrush = dc.SelectObject(&brush);
    dc.Ellipse(&box);
    dc.SelectObject(oldBrush);
    dc.SelectObject(oldPen);
}

void StopSign(CDC& dc, const CRect& box) {
    Disc(dc, box, kStopRed);
    CPen cross(PS_SOLID, 3, kGlyphWhite);
    CPen* old = dc.SelectObject(&cross);
    const int inset = box.Width() * 3 / 10;
    dc.MoveTo(box.left + inset, box.top + inset);
    dc.LineTo(box.right - inset, box.bottom - inset);
    dc.MoveTo(box.right - inset, box.top + inset);
    dc.LineTo(box.left + inset, box.bottom - inset);
    dc.SelectObject(old);
}

void WarningTriangle(CDC& dc, const CRect& box) {
    const POINT corners[] = {{(box.left + box.right) / 2, box.top + 1},
                             {box.right - 1, box.bottom - 2},
                             {box.left, box.bottom - 2}};
    CPen pen(PS_SOLID, 1, kOutline);
    CBrush brush(kWarningYellow);
    CPen* oldPen = dc.SelectObject(&pen);
    CBrush* oldBrush = dc.SelectObject(&brush);
    dc.Polygon(corners, 3);
    dc.SelectObject(oldBrush);
    dc.SelectObject(oldPen);
    CRect glyph = box;
    glyph.top += box.Height() / 4;
    Glyph(dc, glyph, "!", kOutline);
}

} // namespace

void DrawMessageBoxIcon(CDC& dc, POINT topLeft, UINT icon) {
    const CRect box(topLeft, CSize(kMessageBoxIconSize, kMessageBoxIconSize));
    switch (icon & MB_ICONMASK) {
    case MB_ICONHAND:
        StopSign(dc, box);
        break;
    case MB_ICONQUESTION:
        Disc(dc, box, kBalloonWhite);
        Glyph(dc, box, "?", kGlyphBlue);
        break;
    case MB_ICONEXCLAMATION:
        WarningTriangle(dc, box);
        break;
    case MB_ICONASTERISK:
        Disc(dc, box, kBalloonWhite);
        Glyph(dc, box, "i", kGlyphBlue);
        break;
    default:
        break;
    }
}
