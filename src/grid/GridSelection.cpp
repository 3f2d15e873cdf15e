// The focus cell and the set of selected cells, kept both as a state bit on each cell and as a
// map of positions, so that virtual mode, which has no cells, can select too.

#include "grid/GridCtrl.h"

#include <algorithm>

CCellID CGridCtrl::SetFocusCell(CCellID cell) {
    const CCellID previous = m_focusCell;
    if (cell == m_focusCell) {
        return previous;
    }
    // A focus never lies on a fixed cell; -1 passes unchanged.
    if (cell.row != -1 && cell.row < m_fixedRowCount) {
        cell.row = m_fixedRowCount;
    }
    if (cell.col != -1 && cell.col < m_fixedColCount) {
        cell.col = m_fixedColCount;
    }
    m_focusCell = cell;
    if (IsValid(previous)) {
        SetItemState(previous.row, previous.col,
                     GetItemState(previous.row, previous.col) & ~GV_STATE_FOCUSED);
        RedrawCell(previous);
    }
    if (IsValid(m_focusCell)) {
        SetItemState(m_focusCell.row, m_focusCell.col,
                     GetItemState(m_focusCell.row, m_focusCell.col) | GV_STATE_FOCUSED);
        RedrawCell(m_focusCell);
    }
    return previous;
}

void CGridCtrl::SetSelectedRange(const CCellRange& range, BOOL forceRepaint, BOOL select) {
    SetSelectedRange(range.minRow, range.minCol, range.maxRow, range.maxCol, forceRepaint, select);
}

void CGridCtrl::SetSelectedRange(int minRow, int minCol, int maxRow, int maxCol, BOOL forceRepaint,
                                 BOOL select) {
    if (!m_enableSelection) {
        return;
    }
    CDC* dc = forceRepaint && GetSafeHwnd() != nullptr ? GetDC() : nullptr;
    const CCellRange visible = GetSafeHwnd() != nullptr ? GetCellRange() : CCellRange();
    auto show = [&](int row, int col) {
        if (dc != nullptr) {
            RedrawCell(row, col, dc);
        } else {
            InvalidateCellRect(row, col);
        }
    };

    if (minRow >= 0 && minRow < m_fixedRowCount) {
        minRow = m_fixedRowCount;
    }
    if (maxRow >= 0 && maxRow < m_fixedRowCount) {
        maxRow = m_fixedRowCount;
    }
    if (minCol >= 0 && minCol < m_fixedColCount) {
        minCol = m_fixedColCount;
    }
    if (maxCol >= 0 && maxCol < m_fixedColCount) {
        maxCol = m_fixedColCount;
    }
    const CCellRange range(minRow, minCol, maxRow, maxCol);

    bool done = false;
    if (select) {
        const CellMap selected = m_selectedCellMap;
        for (const auto& [key, cell] : selected) {
            if (!IsValid(cell)) {
                m_selectedCellMap.erase(key);
                continue;
            }
            SetItemState(cell.row, cell.col, GetItemState(cell.row, cell.col) & ~GV_STATE_SELECTED);
            m_selectedCellMap.erase(key); // also when the bit went by another road
            if (!range.InRange(cell) && visible.InRange(cell)) {
                show(cell.row, cell.col);
            }
        }
        if (!GetSingleRowSelection()) {
            if (minRow < 0) {
                done = true;
            } else if (minCol >= 0 && maxRow >= 0 && maxCol >= 0) {
                for (const auto& [key, cell] : m_prevSelectedCellMap) {
                    if (!IsValid(cell)) {
                        continue;
                    }
                    SetItemState(cell.row, cell.col,
                                 GetItemState(cell.row, cell.col) | GV_STATE_SELECTED);
                    if (visible.InRange(cell)) {
                        show(cell.row, cell.col);
                    }
                }
            }
        }
    }

    if (!done && minRow >= 0 && minCol >= 0 && maxRow >= 0 && maxCol >= 0 && maxRow < m_rowCount &&
        maxCol < m_colCount && minRow <= maxRow && minCol <= maxCol) {
        for (int row = minRow; row <= maxRow; row++) {
            for (int col = minCol; col <= maxCol; col++) {
                const bool selected = IsCellSelected(row, col);
                if (bool(select) == selected) {
                    continue;
                }
                const UINT state = GetItemState(row, col);
                SetItemState(row, col,
                             select ? state | GV_STATE_SELECTED : state & ~GV_STATE_SELECTED);
                if (visible.InRange(row, col)) {
                    show(row, col);
                }
            }
        }
    }
    if (dc != nullptr) {
        ReleaseDC(dc);
    }
}

CCellRange CGridCtrl::GetSelectedCellRange() const {
    CCellRange range(m_rowCount, m_colCount, -1, -1);
    for (const auto& [key, cell] : m_selectedCellMap) {
        range.minRow = std::min(range.minRow, cell.row);
        range.minCol = std::min(range.minCol, cell.col);
        range.maxRow = std::max(range.maxRow, cell.row);
        range.maxCol = std::max(range.maxCol, cell.col);
    }
    return range;
}

CCellRange CGridCtrl::GetCellRange() const {
    return CCellRange(0, 0, m_rowCount - 1, m_colCount - 1);
}

BOOL CGridCtrl::IsCellSelected(int row, int col) const {
    if (!m_enableSelection) {
        return FALSE;
    }
    if (m_virtualMode) {
        return m_selectedCellMap.count(SelectionKey(row, col)) != 0;
    }
    CGridCellBase* cell = GetCell(row, col);
    return cell != nullptr && cell->IsSelected();
}

void CGridCtrl::ResetSelectedRange() {
    m_prevSelectedCellMap.clear();
    SetSelectedRange(-1, -1, -1, -1, FALSE, TRUE);
    SetFocusCell(-1, -1);
}

void CGridCtrl::EnableSelection(BOOL enable) {
    ResetSelectedRange();
    m_enableSelection = enable;
    ResetSelectedRange();
}

void CGridCtrl::SetListMode(BOOL enableListMode) {
    ResetSelectedRange();
    SetSortColumn(-1);
    m_listMode = enableListMode;
    SetFixedRowSelection(FALSE);
    Refresh();
}

void CGridCtrl::SetSortColumn(int col) {
    if (m_sortColumn != -1) {
        InvalidateCellRect(0, m_sortColumn);
    }
    m_sortColumn = col;
    if (col >= 0) {
        InvalidateCellRect(0, col);
    }
}
