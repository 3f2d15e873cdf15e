#include "platform/gdi/GdiInternal.h"
#include "platform/system/SysColors.h"

#include <algorithm>

using namespace gdi;

namespace {

// Fills without the side effect of FillSolidRect on the background colour.
void Fill(CDC* dc, int left, int top, int right, int bottom, COLORREF color) {
    if (right <= left || bottom <= top)
        return;
    COLORREF old = dc->GetBkColor();
    dc->FillSolidRect(RECT{left, top, right, bottom}, color);
    dc->SetBkColor(old);
}

struct EdgeColors {
    COLORREF topLeft;
    COLORREF bottomRight;
};

// One pixel of border along the sides that `flags` names; the bottom and right sides own the
// corners they share with the top and left ones.
void DrawBorder(CDC* dc, RECT& r, UINT flags, EdgeColors colors) {
    if (flags & BF_TOP)
        Fill(dc, r.left, r.top, r.right - ((flags & BF_RIGHT) ? 1 : 0), r.top + 1, colors.topLeft);
    if (flags & BF_LEFT)
        Fill(dc, r.left, r.top, r.left + 1, r.bottom - ((flags & BF_BOTTOM) ? 1 : 0),
             colors.topLeft);
    if (flags & BF_RIGHT)
        Fill(dc, r.right - 1, r.top, r.right, r.bottom, colors.bottomRight);
    if (flags & BF_BOTTOM)
        Fill(dc, r.left, r.bottom - 1, r.right, r.bottom, colors.bottomRight);
    if (flags & BF_LEFT)
        ++r.left;
    if (flags & BF_TOP)
        ++r.top;
    if (flags & BF_RIGHT)
        --r.right;
    if (flags & BF_BOTTOM)
        --r.bottom;
}

EdgeColors OuterColors(UINT edge, UINT flags) {
    if (flags & BF_MONO)
        return {GetSysColor(COLOR_WINDOWFRAME), GetSysColor(COLOR_WINDOWFRAME)};
    if (flags & BF_FLAT)
        return {GetSysColor(COLOR_3DSHADOW), GetSysColor(COLOR_3DSHADOW)};
    // Soft edges swap the lighter and darker shades of the outer and inner borders.
    bool soft = (flags & BF_SOFT) != 0;
    if (edge & BDR_RAISEDOUTER)
        return {GetSysColor(soft ? COLOR_3DHILIGHT : COLOR_3DLIGHT), GetSysColor(COLOR_3DDKSHADOW)};
    return {GetSysColor(soft ? COLOR_3DDKSHADOW : COLOR_3DSHADOW), GetSysColor(COLOR_3DHILIGHT)};
}

EdgeColors InnerColors(UINT edge, UINT flags) {
    if (flags & BF_MONO)
        return {GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_WINDOW)};
    if (flags & BF_FLAT)
        return {GetSysColor(COLOR_3DFACE), GetSysColor(COLOR_3DFACE)};
    bool soft = (flags & BF_SOFT) != 0;
    if (edge & BDR_RAISEDINNER)
        return {GetSysColor(soft ? COLOR_3DLIGHT : COLOR_3DHILIGHT), GetSysColor(COLOR_3DSHADOW)};
    return {GetSysColor(soft ? COLOR_3DSHADOW : COLOR_3DDKSHADOW), GetSysColor(COLOR_3DLIGHT)};
}

// A small triangle pointing `direction` (0 up, 1 down, 2 left, 3 right), centred in `r`, with
// `size` rows: 4 in a button of 16 pixels.
void Arrow(CDC* dc, const RECT& r, UINT direction, int size, COLORREF color) {
    int w = r.right - r.left, h = r.bottom - r.top;
    int cx = r.left + w / 2, cy = r.top + h / 2;
    for (int i = 0; i < size; ++i) {
        int half = (direction == 0 || direction == 2) ? i : size - 1 - i;
        int along = i - size / 2;
        if (direction <= 1)
            Fill(dc, cx - half, cy + along, cx + half + 1, cy + along + 1, color);
        else
            Fill(dc, cx + along, cy - half, cx + along + 1, cy + half + 1, color);
    }
}

void CheckMark(CDC* dc, const RECT& box, COLORREF color) {
    static const int kTops[7] = {2, 3, 4, 3, 2, 1, 0};
    int x = box.left + (box.right - box.left - 7) / 2;
    int y = box.top + (box.bottom - box.top - 7) / 2;
    for (int i = 0; i < 7; ++i)
        Fill(dc, x + i, y + kTops[i], x + i + 1, y + kTops[i] + 3, color);
}

} // namespace

BOOL CDC::DrawEdge(LPRECT rect, UINT edge, UINT flags) {
    if (rect == nullptr || LookupDC(m_hDC) == nullptr)
        return FALSE;
    RECT r = *rect;
    if (edge & BDR_OUTER)
        DrawBorder(this, r, flags, OuterColors(edge, flags));
    if (edge & BDR_INNER)
        DrawBorder(this, r, flags, InnerColors(edge, flags));
    if (flags & BF_MIDDLE)
        Fill(this, r.left, r.top, r.right, r.bottom,
             GetSysColor((flags & BF_MONO) ? COLOR_WINDOW : COLOR_3DFACE));
    if (flags & BF_ADJUST)
        *rect = r;
    return TRUE;
}

BOOL CDC::DrawFrameControl(LPRECT rect, UINT type, UINT state) {
    if (rect == nullptr || LookupDC(m_hDC) == nullptr)
        return FALSE;
    RECT r = *rect;
    bool flat = (state & (DFCS_FLAT | DFCS_MONO)) != 0;
    bool pushed = (state & DFCS_PUSHED) != 0;
    bool inactive = (state & DFCS_INACTIVE) != 0;
    UINT flatFlags = (state & DFCS_MONO) ? BF_MONO : BF_FLAT;
    switch (type) {
    case DFC_BUTTON: {
        if (state & DFCS_BUTTONPUSH) {
            if (flat) {
                DrawEdge(&r, EDGE_RAISED, BF_RECT | BF_ADJUST | BF_MIDDLE | flatFlags);
            } else if (pushed) {
                // Pressed: a dark frame around a shadow frame, flat inside.
                DrawEdge(&r, BDR_OUTER, BF_RECT | BF_ADJUST | BF_MONO);
                Fill(this, r.left, r.top, r.right, r.bottom, GetSysColor(COLOR_3DSHADOW));
                r.left += 1, r.top += 1, r.right -= 1, r.bottom -= 1;
                Fill(this, r.left, r.top, r.right, r.bottom, GetSysColor(COLOR_3DFACE));
            } else if (state & DFCS_CHECKED) {
                DrawEdge(&r, EDGE_SUNKEN, BF_RECT | BF_ADJUST | BF_MIDDLE | BF_SOFT);
            } else {
                DrawEdge(&r, EDGE_RAISED, BF_RECT | BF_ADJUST | BF_MIDDLE | BF_SOFT);
            }
            return TRUE;
        }
        if (state & DFCS_BUTTONRADIO) {
            CBrush face(GetSysColor(pushed || inactive ? COLOR_3DFACE : COLOR_WINDOW));
            CPen outline(PS_SOLID, 1, GetSysColor(COLOR_3DSHADOW));
            CBrush* oldBrush = SelectObject(&face);
            CPen* oldPen = SelectObject(&outline);
            Ellipse(&r);
            if (state & DFCS_CHECKED) {
                CBrush dot(GetSysColor(inactive ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT));
                SelectObject(&dot);
                SelectStockObject(NULL_PEN);
                int cx = (r.left + r.right) / 2, cy = (r.top + r.bottom) / 2;
                Ellipse(cx - 2, cy - 2, cx + 2, cy + 2);
                SelectObject(&face);
            }
            SelectObject(oldPen);
            SelectObject(oldBrush);
            return TRUE;
        }
        // A check box fills the rectangle.
        if (flat)
            DrawEdge(&r, EDGE_SUNKEN, BF_RECT | BF_ADJUST | flatFlags);
        else
            DrawEdge(&r, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
        Fill(this, r.left, r.top, r.right, r.bottom,
             GetSysColor(pushed || inactive ? COLOR_3DFACE : COLOR_WINDOW));
        if (state & DFCS_CHECKED)
            CheckMark(this, r, GetSysColor(inactive ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT));
        return TRUE;
    }
    case DFC_SCROLL: {
        int arrowRows = std::max(2, (std::min(r.right - r.left, r.bottom - r.top) + 1) / 4);
        if (flat || pushed)
            DrawEdge(&r, EDGE_RAISED,
                     BF_RECT | BF_ADJUST | BF_MIDDLE | (flat ? flatFlags : BF_FLAT));
        else
            DrawEdge(&r, EDGE_RAISED, BF_RECT | BF_ADJUST | BF_MIDDLE | BF_SOFT);
        if (pushed)
            OffsetRect(&r, 1, 1);
        UINT kind = state & 0xFF;
        UINT direction = kind == DFCS_SCROLLCOMBOBOX ? 1 : kind;
        if (direction > 3)
            return TRUE;
        if (inactive) {
            // The raised, greyed look: a light copy one pixel down and right under the shadow.
            RECT light = r;
            OffsetRect(&light, 1, 1);
            Arrow(this, light, direction, arrowRows, GetSysColor(COLOR_3DHILIGHT));
            Arrow(this, r, direction, arrowRows, GetSysColor(COLOR_3DSHADOW));
        } else {
            Arrow(this, r, direction, arrowRows, GetSysColor(COLOR_BTNTEXT));
        }
        return TRUE;
    }
    default:
        return FALSE;
    }
}
