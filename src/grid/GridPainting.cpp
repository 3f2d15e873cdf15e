// Painting. The grid erases its regions, walks the cells in view and asks each to draw itself,
// then lays the grid lines over them. Single cells repaint straight through a window context.

#include "grid/GridCtrl.h"

#include "platform/gdi/DC.h"
#include "platform/window/WindowDC.h"
#include "support/MemDC.h"

#include <algorithm>

namespace {

// Where each line starts when the lines are laid one after the other from `start`, skipping
// hidden ones: the callback gets the line and its first and last pixel.
template <typename SizeOf, typename Visit>
void WalkLines(int first, int last, int start, SizeOf sizeOf, Visit visit) {
    int end = start - 1;
    for (int line = first; line <= last; line++) {
        const int size = sizeOf(line);
        if (size <= 0) {
            continue;
        }
        const int begin = end + 1;
        end = begin + size - 1;
        if (!visit(line, begin, end)) {
            return;
        }
    }
}

} // namespace

void CGridCtrl::SetGridLines(int whichLines) {
    m_gridLines = whichLines;
    Refresh();
}

void CGridCtrl::OnPaint() {
    CPaintDC dc(this);
    if (m_doubleBuffer) {
        CMemDC memDC(&dc);
        OnDraw(&memDC);
    } else {
        OnDraw(&dc);
    }
}

BOOL CGridCtrl::OnEraseBkgnd(CDC* dc) {
    return TRUE; // OnDraw erases, and erasing here would flicker
}

void CGridCtrl::EraseBkgnd(CDC* dc) {
    CRect clip;
    if (dc->GetClipBox(&clip) == ERROR) {
        return;
    }
    CRect visible;
    GetVisibleNonFixedCellRange(&visible);
    const int fixedWidth = GetFixedColumnWidth();
    const int fixedHeight = GetFixedRowHeight();

    if (clip.left < fixedWidth && clip.top < fixedHeight) {
        dc->FillSolidRect(CRect(clip.left, clip.top, fixedWidth, visible.bottom),
                          m_cellFixedRowColDef.GetBackClr());
    }
    // Overpaints the corner as well: the corner keeps the fixed column colour.
    if (clip.left < fixedWidth && clip.top < visible.bottom) {
        dc->FillSolidRect(CRect(clip.left, clip.top, fixedWidth, visible.bottom),
                          m_cellFixedColDef.GetBackClr());
    }
    if (clip.top < fixedHeight && clip.right > fixedWidth && clip.left < visible.right) {
        dc->FillSolidRect(CRect(fixedWidth - 1, clip.top, visible.right, fixedHeight),
                          m_cellFixedRowDef.GetBackClr());
    }
    CRect cells;
    if (cells.IntersectRect(&clip, &visible)) {
        cells.left = std::max<LONG>(cells.left, fixedWidth);
        cells.top = std::max<LONG>(cells.top, fixedHeight);
        dc->FillSolidRect(cells, m_cellDefault.GetBackClr());
    }
    if (clip.right > visible.right) {
        dc->FillSolidRect(CRect(visible.right, clip.top, clip.right, clip.bottom), m_gridBkColor);
    }
    if (clip.bottom > visible.bottom && clip.left < visible.right) {
        dc->FillSolidRect(CRect(clip.left, visible.bottom, visible.right, clip.bottom),
                          m_gridBkColor);
    }
}

void CGridCtrl::OnDraw(CDC* dc) {
    CRect clip;
    if (!m_allowDraw || dc == nullptr || dc->GetClipBox(&clip) == ERROR) {
        return;
    }
    EraseBkgnd(dc);

    const int fixedWidth = GetFixedColumnWidth();
    const int fixedHeight = GetFixedRowHeight();
    CRect visibleRect;
    const CCellRange visible = GetVisibleNonFixedCellRange(&visibleRect);
    if (m_virtualMode) {
        SendCacheHintToParent(visible);
    }
    auto heightOf = [this](int row) { return GetRowHeight(row); };
    auto widthOf = [this](int col) { return GetColumnWidth(col); };
    std::vector<CCellID> blocks;

    // Draws the cells of the given rows and columns, skipping those outside the clip box; a
    // line that starts past the clip ends its walk.
    auto pass = [&](int firstRow, int lastRow, int top, int firstCol, int lastCol, int left) {
        WalkLines(firstRow, lastRow, top, heightOf, [&](int row, int rowTop, int rowBottom) {
            if (rowTop > clip.bottom) {
                return false;
            }
            if (rowBottom < clip.top) {
                return true;
            }
            WalkLines(firstCol, lastCol, left, widthOf, [&](int col, int colLeft, int colRight) {
                if (colLeft > clip.right) {
                    return false;
                }
                if (colRight >= clip.left) {
                    DrawCellInPass(dc, row, col, CRect(colLeft, rowTop, colRight, rowBottom),
                                   blocks);
                }
                return true;
            });
            return true;
        });
    };
    pass(0, m_fixedRowCount - 1, 0, 0, m_fixedColCount - 1, 0);
    pass(visible.minRow, visible.maxRow, fixedHeight, 0, m_fixedColCount - 1, 0);
    pass(0, m_fixedRowCount - 1, 0, visible.minCol, visible.maxCol, fixedWidth);
    pass(visible.minRow, visible.maxRow, fixedHeight, visible.minCol, visible.maxCol, fixedWidth);

    DrawGridLines(dc, visible, visibleRect);
    // Blocks come last, each once, so that a block covers the lines inside it.
    for (const CCellID& topLeft : blocks) {
        DrawMergedBlock(dc, topLeft);
    }

    dc->SelectStockObject(NULL_PEN);
    if (m_virtualMode) {
        SendCacheHintToParent(CCellRange(-1, -1, -1, -1));
    }
    if (!IsWindowEnabled()) {
        CRect client;
        GetClientRect(&client);
        m_cellDefault.DrawDisabled(dc, client); // fixed cells included
    }
}

void CGridCtrl::DrawCellInPass(CDC* dc, int row, int col, const CRect& rect,
                               std::vector<CCellID>& blocks) {
    CGridCellBase* cell = GetCell(row, col);
    if (cell == nullptr) {
        return;
    }
    CCellID topLeft(row, col);
    if (cell->IsMergeWithOthers()) {
        topLeft = cell->GetMergeCellID();
    } else if (!cell->IsMerged()) {
        cell->SetCoords(row, col);
        cell->Draw(dc, row, col, rect, FALSE); // the background is erased already
        return;
    }
    if (std::find(blocks.begin(), blocks.end(), topLeft) == blocks.end()) {
        blocks.push_back(topLeft);
    }
}

void CGridCtrl::DrawMergedBlock(CDC* dc, const CCellID& topLeft) {
    CGridCellBase* cell = GetCell(topLeft);
    CRect rect;
    if (cell == nullptr || !cell->IsMerged() || !GetCellRangeRect(cell->GetMergeRange(), &rect)) {
        return;
    }
    rect.right--;
    rect.bottom--;
    cell->SetCoords(topLeft.row, topLeft.col);
    cell->Draw(dc, topLeft.row, topLeft.col, rect, TRUE);
}

// The one routine that strokes a grid line, with the grid pen that the caller selected, when
// the grid's style has lines of that kind: a vertical line at x = `at` or a horizontal one at
// y = `at`, from `from` to before `to`.
void CGridCtrl::DrawGridLine(CDC* dc, bool vertical, int at, int from, int to) {
    if (!(m_gridLines & (vertical ? GVL_VERT : GVL_HORZ))) {
        return;
    }
    dc->MoveTo(vertical ? at : from, vertical ? from : at);
    dc->LineTo(vertical ? at : to, vertical ? to : at);
}

// Lines at the last pixel of each non-fixed column and row in view; fixed cells draw their
// own edges.
void CGridCtrl::DrawGridLines(CDC* dc, const CCellRange& visible, const CRect& visibleRect) {
    if (m_gridLines == GVL_NONE) {
        return;
    }
    CPen pen(PS_SOLID, 0, m_gridLineColor);
    CPen* oldPen = dc->SelectObject(&pen);
    const int fixedWidth = GetFixedColumnWidth();
    const int fixedHeight = GetFixedRowHeight();
    WalkLines(
        visible.minCol, visible.maxCol, fixedWidth, [this](int col) { return GetColumnWidth(col); },
        [&](int, int, int right) {
            DrawGridLine(dc, true, right, fixedHeight, visibleRect.bottom);
            return true;
        });
    WalkLines(
        visible.minRow, visible.maxRow, fixedHeight, [this](int row) { return GetRowHeight(row); },
        [&](int, int, int bottom) {
            DrawGridLine(dc, false, bottom, fixedWidth, visibleRect.right);
            return true;
        });
    dc->SelectObject(oldPen);
}

BOOL CGridCtrl::RedrawCell(int row, int col, CDC* dc) {
    CRect rect;
    if (!m_allowDraw || !IsCellVisible(row, col) || !GetCellRect(row, col, &rect)) {
        return FALSE;
    }
    CDC* drawing = dc != nullptr ? dc : GetDC();
    if (drawing == nullptr) {
        InvalidateRect(&rect, TRUE);
        return FALSE;
    }
    BOOL drawn = FALSE;
    if (CGridCellBase* cell = GetCell(row, col)) {
        cell->SetCoords(row, col);
        drawn = cell->Draw(drawing, row, col, rect, TRUE);
        // A non-fixed cell covered its share of the grid lines; put them back.
        if (!IsCellFixed(row, col) && m_gridLines != GVL_NONE) {
            CPen pen(PS_SOLID, 0, m_gridLineColor);
            CPen* oldPen = drawing->SelectObject(&pen);
            DrawGridLine(drawing, false, rect.bottom, rect.left, rect.right + 1);
            DrawGridLine(drawing, true, rect.right, rect.top, rect.bottom + 1);
            drawing->SelectObject(oldPen);
        }
    }
    if (drawing != dc) {
        ReleaseDC(drawing);
    }
    return drawn;
}

BOOL CGridCtrl::RedrawRow(int row) {
    if (GetSafeHwnd() == nullptr) {
        return FALSE;
    }
    CDC* dc = GetDC();
    BOOL all = TRUE;
    for (int col = 0; col < m_colCount; col++) {
        all = RedrawCell(row, col, dc) && all;
    }
    if (dc != nullptr) {
        ReleaseDC(dc);
    }
    return all;
}

BOOL CGridCtrl::RedrawColumn(int col) {
    if (GetSafeHwnd() == nullptr) {
        return FALSE;
    }
    CDC* dc = GetDC();
    BOOL all = TRUE;
    for (int row = 0; row < m_rowCount; row++) {
        all = RedrawCell(row, col, dc) && all;
    }
    if (dc != nullptr) {
        ReleaseDC(dc);
    }
    return all;
}

BOOL CGridCtrl::InvalidateCellRect(int row, int col) {
    CRect rect;
    if (GetSafeHwnd() == nullptr || !m_allowDraw || !IsValid(row, col) ||
        !IsCellVisible(row, col) || !GetCellRect(row, col, &rect)) {
        return FALSE;
    }
    rect = ExclusiveCellRect(rect);
    InvalidateRect(&rect, TRUE);
    return TRUE;
}

BOOL CGridCtrl::InvalidateCellRect(const CCellRange& cellRange) {
    if (GetSafeHwnd() == nullptr || !m_allowDraw || !IsValid(cellRange)) {
        return FALSE;
    }
    const CCellRange visible = GetVisibleNonFixedCellRange();
    const CCellRange shown(
        std::max(cellRange.minRow, visible.minRow), std::max(cellRange.minCol, visible.minCol),
        std::min(cellRange.maxRow, visible.maxRow), std::min(cellRange.maxCol, visible.maxCol));
    CRect rect;
    if (!shown.IsValid() || !GetCellRangeRect(shown, &rect)) {
        return FALSE;
    }
    rect = ExclusiveCellRect(rect);
    InvalidateRect(&rect, TRUE);
    return TRUE;
}
