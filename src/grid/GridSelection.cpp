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
        RedrawFocusHeadings(previous, m_focusCell);
    }
    if (IsValid(m_focusCell)) {
        SetItemState(m_focusCell.row, m_focusCell.col,
                     GetItemState(m_focusCell.row, m_focusCell.col) | GV_STATE_FOCUSED);
        RedrawCell(m_focusCell);
        RedrawFocusHeadings(m_focusCell, previous);
    }
    return previous;
}

// With track focus the headings of the focus row and column look sunk: those of `cell` repaint
// where its row or column differs from `other`.
void CGridCtrl::RedrawFocusHeadings(const CCellID& cell, const CCellID& other) {
    if (!m_trackFocusCell) {
        return;
    }
    if (cell.col != other.col) {
        for (int row = 0; row < m_fixedRowCount; row++) {
            RedrawCell(row, cell.col);
        }
    }
    if (cell.row != other.row) {
        for (int col = 0; col < m_fixedColCount; col++) {
            RedrawCell(cell.row, col);
        }
    }
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
    const CCellRange visible =
        GetSafeHwnd() != nullptr ? GetVisibleNonFixedCellRange() : CCellRange();
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

BOOL CGridCtrl::IsSelectedContinuous() {
    // An empty selection gives an inverted range, so it passes without a cell tested.
    const CCellRange range = GetSelectedCellRange();
    for (int row = range.minRow; row <= range.maxRow; row++) {
        for (int col = range.minCol; col <= range.maxCol; col++) {
            if (!IsCellSelected(row, col)) {
                return FALSE;
            }
        }
    }
    return TRUE;
}

void CGridCtrl::OnSelecting(const CCellID& cell) {
    if (!m_enableSelection) {
        return;
    }
    switch (m_mouseMode) {
    case MOUSE_SELECT_ALL:
        SelectAllCells();
        break;
    case MOUSE_SELECT_COL:
        SelectColumns(cell, FALSE, TRUE);
        break;
    case MOUSE_SELECT_ROW:
        SelectRows(cell, FALSE, TRUE);
        break;
    case MOUSE_SELECT_CELLS:
        SelectCells(cell, FALSE, TRUE);
        break;
    default:
        break;
    }
}

void CGridCtrl::SelectAllCells() {
    if (!m_enableSelection) {
        return;
    }
    SetSelectedRange(m_fixedRowCount, m_fixedColCount, m_rowCount - 1, m_colCount - 1, FALSE, TRUE);
}

void CGridCtrl::SelectColumns(CCellID cell, BOOL forceRedraw, BOOL select) {
    if (!m_enableSelection || !IsValid(cell) || cell.col < m_fixedColCount) {
        return;
    }
    const int first =
        GetSingleColSelection() ? cell.col : std::min(m_selectionStartCell.col, cell.col);
    const int last =
        GetSingleColSelection() ? cell.col : std::max(m_selectionStartCell.col, cell.col);
    SetSelectedRange(m_fixedRowCount, first, m_rowCount - 1, last, forceRedraw, select);
}

void CGridCtrl::SelectRows(CCellID cell, BOOL forceRedraw, BOOL select) {
    if (!m_enableSelection || !IsValid(cell) || cell.row < m_fixedRowCount) {
        return;
    }
    const int first =
        GetSingleRowSelection() ? cell.row : std::min(m_selectionStartCell.row, cell.row);
    const int last =
        GetSingleRowSelection() ? cell.row : std::max(m_selectionStartCell.row, cell.row);
    SetSelectedRange(first, m_fixedColCount, last, m_colCount - 1, forceRedraw, select);
}

void CGridCtrl::SelectCells(CCellID cell, BOOL forceRedraw, BOOL select) {
    if (!m_enableSelection || !IsValid(cell) || cell.row < m_fixedRowCount ||
        cell.col < m_fixedColCount) {
        return;
    }
    SetSelectedRange(std::min(m_selectionStartCell.row, cell.row),
                     std::min(m_selectionStartCell.col, cell.col),
                     std::max(m_selectionStartCell.row, cell.row),
                     std::max(m_selectionStartCell.col, cell.col), forceRedraw, select);
}

namespace {

// The state bits that the state flags of a search ask for.
UINT WantedStates(int flags, bool disabledCounts) {
    UINT wanted = 0;
    const std::pair<int, UINT> table[] = {{GVNI_FOCUSED, GV_STATE_FOCUSED},
                                          {GVNI_SELECTED, GV_STATE_SELECTED},
                                          {GVNI_DROPHILITED, GV_STATE_DROPHILITED},
                                          {GVNI_READONLY, GV_STATE_READONLY},
                                          {GVNI_FIXED, GV_STATE_FIXED},
                                          {GVNI_MODIFIED, GV_STATE_MODIFIED}};
    for (const auto& [flag, state] : table) {
        if (flags & flag) {
            wanted |= state;
        }
    }
    if (disabledCounts && (flags & GVNI_DISABLED)) {
        wanted |= GV_STATE_DISABLED;
    }
    return wanted;
}

} // namespace

CCellID CGridCtrl::GetNextItem(CCellID& cell, int flags) const {
    auto matches = [this](int row, int col, UINT wanted) {
        return (GetItemState(row, col) & wanted) != 0;
    };
    const int firstRow = cell.row < 1 ? m_fixedRowCount : cell.row;
    const int nextCol = cell.col < 1 ? m_fixedColCount : cell.col + 1;

    if ((flags & GVNI_ALL) == GVNI_ALL || (flags & GVNI_AREA) == GVNI_AREA) {
        // All runs on from the fixed columns in each following row; area keeps to the columns
        // right of the cell.
        const bool all = (flags & GVNI_ALL) == GVNI_ALL;
        const UINT wanted = WantedStates(flags, true);
        if (wanted == 0) {
            return CCellID();
        }
        for (int row = firstRow, col = nextCol; row < m_rowCount; row++) {
            for (; col < m_colCount; col++) {
                if (matches(row, col, wanted)) {
                    return CCellID(row, col);
                }
            }
            col = all ? m_fixedColCount : nextCol;
        }
        return CCellID();
    }

    // The other searches run along one line from the cell.
    int rowStep = 0;
    int colStep = 0;
    UINT wanted = WantedStates(flags, false);
    if (flags & GVNI_ABOVE) {
        rowStep = -1;
        wanted |= GV_STATE_DISABLED; // the flag names both the direction and the state here
    } else if (flags & GVNI_BELOW) {
        rowStep = 1;
    } else if (flags & GVNI_TOLEFT) {
        colStep = -1;
    } else if (flags & GVNI_TORIGHT) {
        colStep = 1;
    }
    if (wanted == 0 || (rowStep == 0 && colStep == 0)) {
        return CCellID();
    }
    for (int row = cell.row + rowStep, col = cell.col + colStep;
         row >= (rowStep < 0 ? m_fixedRowCount : 0) && row < m_rowCount &&
         col >= (colStep < 0 ? m_fixedColCount : 0) && col < m_colCount;
         row += rowStep, col += colStep) {
        if (matches(row, col, wanted)) {
            return CCellID(row, col);
        }
    }
    return CCellID();
}

void CGridCtrl::EnableCell(int row, int col, BOOL enable) {
    const UINT bits = GV_STATE_DISABLED | GV_STATE_READONLY;
    if (!enable) {
        SetItemState(row, col, GetItemState(row, col) | bits);
        return;
    }
    SetItemState(row, col, GetItemState(row, col) & ~bits);
    // Drawing stored the face colour in the disabled cell; it goes with the state.
    if (!m_virtualMode) {
        SetItemBkColour(row, col, CLR_DEFAULT);
    }
}
