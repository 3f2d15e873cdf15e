// Sorting the rows by one column: by a click on a heading or by call. Rows move whole, by
// their cell pointers and heights, and the fixed rows stay where they are.

#include "grid/GridCtrl.h"

#include <cstdlib>
#include <cstring>
#include <utility>

int CGridCtrl::pfnCellTextCompare(LPARAM cell1, LPARAM cell2, LPARAM) {
    const auto* first = reinterpret_cast<const CGridCellBase*>(cell1);
    const auto* second = reinterpret_cast<const CGridCellBase*>(cell2);
    if (first == nullptr || second == nullptr) {
        return 0;
    }
    const char* a = first->GetText();
    const char* b = second->GetText();
    return std::strcmp(a != nullptr ? a : "", b != nullptr ? b : "");
}

int CGridCtrl::pfnCellNumericCompare(LPARAM cell1, LPARAM cell2, LPARAM) {
    const auto* first = reinterpret_cast<const CGridCellBase*>(cell1);
    const auto* second = reinterpret_cast<const CGridCellBase*>(cell2);
    if (first == nullptr || second == nullptr) {
        return 0;
    }
    // Whole numbers only: decimals are cut.
    const long a = std::atol(first->GetText() != nullptr ? first->GetText() : "");
    const long b = std::atol(second->GetText() != nullptr ? second->GetText() : "");
    return a < b ? -1 : a > b ? 1 : 0;
}

BOOL CGridCtrl::SortTextItems(int col, BOOL ascending, LPARAM data) {
    return SortItems(pfnCellTextCompare, col, ascending, data);
}

BOOL CGridCtrl::SortItems(int col, BOOL ascending, LPARAM data) {
    // The public forms each do the opening steps, so they run twice here: harmless.
    SetSortColumn(col);
    m_ascending = ascending;
    ResetSelectedRange();
    SetFocusCell(-1, -1);
    return SortItems(m_compareFunction != nullptr ? m_compareFunction : pfnCellTextCompare, col,
                     ascending, data);
}

BOOL CGridCtrl::SortItems(PFNLVCOMPARE compare, int col, BOOL ascending, LPARAM data) {
    SetSortColumn(col);
    m_ascending = ascending;
    ResetSelectedRange();
    SetFocusCell(-1, -1);
    return SortItems(compare, col, ascending, data, m_fixedRowCount, -1);
}

void CGridCtrl::SwapRows(int row1, int row2) {
    std::swap(m_rowData[size_t(row1)], m_rowData[size_t(row2)]);
    std::swap(HeightAt(row1), HeightAt(row2));
}

BOOL CGridCtrl::SortItems(PFNLVCOMPARE compare, int col, BOOL ascending, LPARAM data, int low,
                          int high) {
    if (col >= m_colCount || m_virtualMode) {
        return FALSE;
    }
    if (high == -1) {
        high = m_rowCount - 1;
    }
    if (high <= low) {
        return FALSE;
    }
    auto cellAt = [this, col](int row) { return LPARAM(GetCell(row, col)); };
    const LPARAM pivot = cellAt((low + high) / 2); // travels with its row
    const int sign = ascending ? 1 : -1;
    int lo = low;
    int hi = high;
    while (lo <= hi) {
        while (lo < high && sign * compare(cellAt(lo), pivot, data) < 0) {
            lo++;
        }
        while (hi > low && sign * compare(cellAt(hi), pivot, data) > 0) {
            hi--;
        }
        if (lo <= hi) {
            if (compare(cellAt(lo), cellAt(hi), data) != 0) {
                SwapRows(lo, hi);
            }
            lo++;
            hi--;
        }
    }
    if (low < hi) {
        SortItems(compare, col, ascending, data, low, hi);
    }
    if (lo < high) {
        SortItems(compare, col, ascending, data, lo, high);
    }
    return TRUE;
}

void CGridCtrl::OnFixedRowClick(CCellID& cell) {
    if (!IsValid(cell)) {
        return;
    }
    if (m_sortOnClick) {
        const HCURSOR previous = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        const BOOL ascending = cell.col == m_sortColumn ? !m_ascending : TRUE;
        SortItems(cell.col, ascending, 0);
        Invalidate();
        ::SetCursor(previous);
    }
    if (m_fixedRowSelection) {
        m_mouseMode = cell.col < m_fixedColCount ? MOUSE_SELECT_ALL : MOUSE_SELECT_COL;
        OnSelecting(cell);
    }
}

void CGridCtrl::OnFixedColumnClick(CCellID& cell) {
    if (!IsValid(cell) || !m_fixedColumnSelection) {
        return;
    }
    m_mouseMode = cell.row < m_fixedRowCount ? MOUSE_SELECT_ALL : MOUSE_SELECT_ROW;
    OnSelecting(cell);
}
