// Heights of rows and widths of columns, and their sums. A size of 0 hides its row or column.

#include "grid/GridCtrl.h"

#include <numeric>

int CGridCtrl::GetRowHeight(int row) const {
    if (row < 0 || row >= m_rowCount) {
        return -1;
    }
    return int(m_rowHeights.at(size_t(row)));
}

int CGridCtrl::GetColumnWidth(int col) const {
    if (col < 0 || col >= m_colCount) {
        return -1;
    }
    return int(m_colWidths.at(size_t(col)));
}

BOOL CGridCtrl::SetRowHeight(int row, int height, BOOL resetScrollBars) {
    if (row < 0 || row >= m_rowCount || height < 0) {
        return FALSE;
    }
    HeightAt(row) = UINT(height);
    if (resetScrollBars) {
        ResetScrollBars();
    }
    return TRUE;
}

BOOL CGridCtrl::SetColumnWidth(int col, int width) {
    if (col < 0 || col >= m_colCount || width < 0) {
        return FALSE;
    }
    WidthAt(col) = UINT(width);
    return TRUE;
}

int CGridCtrl::GetFixedRowHeight() const {
    return int(std::accumulate(m_rowHeights.begin(), m_rowHeights.begin() + m_fixedRowCount, 0L));
}

int CGridCtrl::GetFixedColumnWidth() const {
    return int(std::accumulate(m_colWidths.begin(), m_colWidths.begin() + m_fixedColCount, 0L));
}

long CGridCtrl::GetVirtualHeight() const {
    return std::accumulate(m_rowHeights.begin(), m_rowHeights.end(), 0L);
}

long CGridCtrl::GetVirtualWidth() const {
    return std::accumulate(m_colWidths.begin(), m_colWidths.end(), 0L);
}
