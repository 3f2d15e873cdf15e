// From cells to pixels and back. Nothing here is stored but the top-left cell in view: every
// position is a walk over the sizes from the scroll positions.

#include "grid/GridCtrl.h"

#include <algorithm>
#include <numeric>

namespace {

// Sizes summed a block at a time: a whole block lies before the position when its sum does, and
// a block of plain additions runs several times faster than a walk that tests every size. A
// million rows scrolled to the middle are then passed in a fraction of a repaint.
constexpr std::ptrdiff_t kSizesPerBlock = 256;

// The walk from `first` over `sizes` (widths or heights) to the first one whose leading edge is at
// or past `position`; it never passes index `last`.
int FirstIndexAtOrPast(const std::vector<UINT>& sizes, int first, int last, int position) {
    const int blocksEnd = std::min(last, int(sizes.size()));
    int index = first;
    long long edge = 0;
    while (index >= 0 && index + int(kSizesPerBlock) <= blocksEnd) {
        const auto block = sizes.begin() + index;
        const long long sum = std::accumulate(block, block + kSizesPerBlock, 0LL);
        if (edge + sum >= position) {
            break;
        }
        edge += sum;
        index += int(kSizesPerBlock);
    }
    for (; edge < position && index < last; index++) {
        edge += sizes.at(std::size_t(index));
    }
    return index;
}

} // namespace

CCellID CGridCtrl::GetTopleftNonFixedCell(BOOL forceRecalculation) {
    if (m_topLeftCell.row >= 0 && m_topLeftCell.col >= 0 && !forceRecalculation) {
        return m_topLeftCell;
    }
    m_topLeftCell = CCellID(
        FirstIndexAtOrPast(m_rowHeights, m_fixedRowCount, m_rowCount - 1, GetScrollPos32(SB_VERT)),
        FirstIndexAtOrPast(m_colWidths, m_fixedColCount, m_colCount - 1, GetScrollPos32(SB_HORZ)));
    return m_topLeftCell;
}

BOOL CGridCtrl::CellOrigin(int row, int col, CPoint& origin) {
    if (!IsValid(row, col)) {
        return FALSE;
    }
    CCellID topLeft;
    if (row >= m_fixedRowCount || col >= m_fixedColCount) {
        topLeft = GetTopleftNonFixedCell();
        if ((row >= m_fixedRowCount && row < topLeft.row) ||
            (col >= m_fixedColCount && col < topLeft.col)) {
            return FALSE; // scrolled away
        }
    }
    origin.x = 0;
    if (col < m_fixedColCount) {
        for (int c = 0; c < col; c++) {
            origin.x += GetColumnWidth(c);
        }
    } else {
        origin.x = GetFixedColumnWidth();
        for (int c = topLeft.col; c < col; c++) {
            origin.x += GetColumnWidth(c);
        }
    }
    origin.y = 0;
    if (row < m_fixedRowCount) {
        for (int r = 0; r < row; r++) {
            origin.y += GetRowHeight(r);
        }
    } else {
        origin.y = GetFixedRowHeight();
        for (int r = topLeft.row; r < row; r++) {
            origin.y += GetRowHeight(r);
        }
    }
    return TRUE;
}

// Merging does not move a cell's origin, and a cell scrolled away has none, so both forms
// answer alike.
BOOL CGridCtrl::GetCellOrigin(int row, int col, LPPOINT point) {
    return GetCellOriginNoMerge(row, col, point);
}

BOOL CGridCtrl::GetCellOrigin(const CCellID& cell, LPPOINT point) {
    return GetCellOrigin(cell.row, cell.col, point);
}

BOOL CGridCtrl::GetCellOriginNoMerge(int row, int col, LPPOINT point) {
    CPoint origin;
    if (point == nullptr || !CellOrigin(row, col, origin)) {
        return FALSE;
    }
    *point = origin;
    return TRUE;
}

BOOL CGridCtrl::GetCellRangeRect(const CCellRange& cellRange, LPRECT rect) {
    CPoint first;
    CPoint last;
    if (rect == nullptr || !CellOrigin(cellRange.minRow, cellRange.minCol, first) ||
        !CellOrigin(cellRange.maxRow, cellRange.maxCol, last)) {
        return FALSE;
    }
    rect->left = first.x;
    rect->top = first.y;
    rect->right = last.x + GetColumnWidth(cellRange.maxCol) - 1;
    rect->bottom = last.y + GetRowHeight(cellRange.maxRow) - 1;
    return TRUE;
}

BOOL CGridCtrl::GetCellRect(int row, int col, LPRECT rect) {
    CPoint origin;
    if (rect == nullptr || !CellOrigin(row, col, origin)) {
        return FALSE;
    }
    CGridCellBase* cell = GetCell(row, col);
    if (cell != nullptr && cell->IsMerged()) {
        return GetCellRangeRect(cell->GetMergeRange(), rect);
    }
    rect->left = origin.x;
    rect->top = origin.y;
    rect->right = origin.x + GetColumnWidth(col) - 1;
    rect->bottom = origin.y + GetRowHeight(row) - 1;
    return TRUE;
}

BOOL CGridCtrl::GetCellRect(const CCellID& cell, LPRECT rect) {
    return GetCellRect(cell.row, cell.col, rect);
}

BOOL CGridCtrl::GetTextRect(int row, int col, LPRECT rect) {
    CGridCellBase* cell = GetCell(row, col);
    if (cell == nullptr || !GetCellRect(row, col, rect)) {
        return FALSE;
    }
    return cell->GetTextRect(rect);
}

BOOL CGridCtrl::GetTextRect(const CCellID& cell, LPRECT rect) {
    return GetTextRect(cell.row, cell.col, rect);
}

CCellID CGridCtrl::GetCellFromPt(CPoint point, BOOL allowFixedCellCheck) {
    CCellID found;
    const CCellID topLeft = GetTopleftNonFixedCell();
    if (!IsValid(topLeft)) {
        return found;
    }
    // Finds the line whose far edge passes `at`, in the fixed lines or from the first in view.
    auto walk = [allowFixedCellCheck](int at, int fixedSize, int first, int count, auto sizeOf) {
        if (at < 0 || (!allowFixedCellCheck && at < fixedSize)) {
            return -1;
        }
        int line = at < fixedSize ? 0 : first;
        for (int end = at < fixedSize ? 0 : fixedSize; line < count; line++) {
            end += sizeOf(line);
            if (end > at) {
                return line;
            }
        }
        return -1;
    };
    found.col = walk(point.x, GetFixedColumnWidth(), topLeft.col, m_colCount,
                     [this](int col) { return GetColumnWidth(col); });
    found.row = walk(point.y, GetFixedRowHeight(), topLeft.row, m_rowCount,
                     [this](int row) { return GetRowHeight(row); });

    CGridCellBase* cell = GetCell(found);
    if (cell != nullptr && cell->IsMergeWithOthers()) {
        found = cell->GetMergeCellID();
    }
    return found;
}

namespace {

// The last line reached from `first` before `limit`, and where the painted part ends.
struct VisibleEnd {
    int last;
    int end;
    bool pastEdge; // the last line reached runs past `limit`
};

template <typename SizeOf>
VisibleEnd WalkToEdge(int first, int count, int start, int limit, SizeOf sizeOf) {
    int end = start;
    int line = first;
    for (; line < count; line++) {
        end += sizeOf(line);
        if (end >= limit) {
            return {std::min(line, count - 1), limit, end > limit};
        }
    }
    return {count - 1, end, false};
}

} // namespace

CCellRange CGridCtrl::GetVisibleNonFixedCellRange(LPRECT rect, BOOL forceRecalculation) {
    CRect client(0, 0, 0, 0);
    if (GetSafeHwnd() != nullptr) {
        GetClientRect(&client);
    }
    const CCellID topLeft = GetTopleftNonFixedCell(forceRecalculation);
    const VisibleEnd rows = WalkToEdge(topLeft.row, m_rowCount, GetFixedRowHeight(), client.bottom,
                                       [this](int row) { return GetRowHeight(row); });
    const VisibleEnd cols = WalkToEdge(topLeft.col, m_colCount, GetFixedColumnWidth(), client.right,
                                       [this](int col) { return GetColumnWidth(col); });
    if (rect != nullptr) {
        *rect = CRect(0, 0, cols.end, rows.end);
    }
    return CCellRange(topLeft.row, topLeft.col, rows.last, cols.last);
}

CCellRange CGridCtrl::GetUnobstructedNonFixedCellRange(BOOL forceRecalculation) {
    CRect client(0, 0, 0, 0);
    if (GetSafeHwnd() != nullptr) {
        GetClientRect(&client);
    }
    const CCellID topLeft = GetTopleftNonFixedCell(forceRecalculation);
    VisibleEnd rows = WalkToEdge(topLeft.row, m_rowCount, GetFixedRowHeight(), client.bottom,
                                 [this](int row) { return GetRowHeight(row); });
    VisibleEnd cols = WalkToEdge(topLeft.col, m_colCount, GetFixedColumnWidth(), client.right,
                                 [this](int col) { return GetColumnWidth(col); });
    if (rows.pastEdge && rows.last > 0) {
        rows.last--;
    }
    if (cols.pastEdge && cols.last > 0) {
        cols.last--;
    }
    return CCellRange(topLeft.row, topLeft.col, rows.last, cols.last);
}

BOOL CGridCtrl::IsCellVisible(int row, int col) {
    if (GetSafeHwnd() == nullptr) {
        return FALSE;
    }
    CPoint origin;
    if (!CellOrigin(row, col, origin)) {
        return FALSE;
    }
    CRect client;
    GetClientRect(&client);
    // A partly shown cell counts as visible.
    return origin.x < client.right && origin.y < client.bottom;
}

void CGridCtrl::EnsureVisible(int row, int col) {
    if (!m_allowDraw || GetSafeHwnd() == nullptr || !IsValid(row, col)) {
        return;
    }
    const CCellRange visible = GetVisibleNonFixedCellRange();
    for (int c = visible.maxCol + 1; c <= col; c++) {
        if (GetColumnWidth(c) > 0) {
            SendMessage(WM_HSCROLL, SB_LINERIGHT, 0);
        }
    }
    for (int c = visible.minCol - 1; c >= col; c--) {
        if (GetColumnWidth(c) > 0) {
            SendMessage(WM_HSCROLL, SB_LINELEFT, 0);
        }
    }
    for (int r = visible.maxRow + 1; r <= row; r++) {
        if (GetRowHeight(r) > 0 && GetCell(r, 0) != nullptr) {
            SendMessage(WM_VSCROLL, SB_LINEDOWN, 0);
        }
    }
    for (int r = visible.minRow - 1; r >= row; r--) {
        if (GetRowHeight(r) > 0) {
            SendMessage(WM_VSCROLL, SB_LINEUP, 0);
        }
    }

    // A cell still cut by the right or bottom edge moves in line by line, as long as a line
    // still moves the grid.
    CRect client;
    GetClientRect(&client);
    CRect rect;
    while (GetCellRect(row, col, &rect) && rect.right > client.right &&
           rect.left > GetFixedColumnWidth() && IsVisibleHScroll()) {
        const int before = GetScrollPos32(SB_HORZ);
        SendMessage(WM_HSCROLL, SB_LINERIGHT, 0);
        if (GetScrollPos32(SB_HORZ) == before) {
            break;
        }
    }
    while (GetCellRect(row, col, &rect) && rect.bottom > client.bottom &&
           rect.top > GetFixedRowHeight() && IsVisibleVScroll()) {
        const int before = GetScrollPos32(SB_VERT);
        SendMessage(WM_VSCROLL, SB_LINEDOWN, 0);
        if (GetScrollPos32(SB_VERT) == before) {
            break;
        }
    }
}
