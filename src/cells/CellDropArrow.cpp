// The drop arrow of the combo, time and curve cells.

#include "cells/CellDropArrow.h"

#include "platform/gdi/DC.h"
#include "platform/system/SystemMetrics.h"

CSize DropArrowSize(const CRect& cell) {
    CSize size(GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL));
    if (cell.Width() < size.cx) {
        size.cx = cell.Width() - 1;
    }
    if (cell.Height() < size.cy) {
        size.cy = cell.Height() - 1;
    }
    return size;
}

CRect TopRightDropArrow(const CRect& cell) {
    const CSize size = DropArrowSize(cell);
    return CRect(cell.right - size.cx, cell.top, cell.right, cell.top + size.cy);
}

bool IsOnTopRightDropArrow(CPoint point, const CRect& cell) {
    // The cell's last pixel column is its grid line: the arrow is drawn short of it, and the
    // editor that the arrow opens is laid short of it too, so a click there belongs to neither.
    const CRect arrow = TopRightDropArrow(CRect(CPoint(0, 0), cell.Size()));
    return point.x > arrow.left && point.x < arrow.right && point.y < arrow.bottom;
}

void DrawDropArrow(CDC* dc, CRect arrow) {
    dc->DrawFrameControl(&arrow, DFC_SCROLL, DFCS_SCROLLDOWN);
}
