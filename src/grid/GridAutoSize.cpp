// Sizes fitted to the contents (auto size) and to the window (expand to fit).

#include "grid/GridCtrl.h"

#include "platform/gdi/DC.h"
#include "platform/system/SystemMetrics.h"

#include <algorithm>

namespace {

// The rows that a style measures: the fixed ones, the others, or both.
struct MeasuredRows {
    int first;
    int last;
};

MeasuredRows RowsOfStyle(UINT style, int fixedRows, int rows) {
    return {(style & GVS_HEADER) ? 0 : fixedRows, ((style & GVS_DATA) ? rows : fixedRows) - 1};
}

// A size changed by `delta`, not below 0 (a size is never negative).
UINT Grown(UINT size, long delta) {
    return UINT(std::max(0L, long(size) + delta));
}

} // namespace

BOOL CGridCtrl::AutoSizeColumn(int col, UINT style, BOOL resetScrollBars) {
    if (col < 0 || col >= m_colCount || GetColumnWidth(col) == 0) {
        return FALSE; // a hidden column stays hidden
    }
    CDC* dc = GetSafeHwnd() != nullptr ? GetDC() : nullptr;
    if (dc == nullptr) {
        return FALSE;
    }
    const MeasuredRows rows =
        RowsOfStyle(style == 0 ? m_autoSizeStyle : style, m_fixedRowCount, m_rowCount);
    if (m_virtualMode) {
        SendCacheHintToParent(CCellRange(rows.first, col, rows.last, col));
    }
    int width = 0;
    for (int row = rows.first; row <= rows.last; row++) {
        if (CGridCellBase* cell = GetCell(row, col)) {
            width = std::max(width, int(cell->GetCellExtent(dc).cx));
        }
    }
    if (m_virtualMode) {
        SendCacheHintToParent(CCellRange(-1, -1, -1, -1));
    }
    ReleaseDC(dc);
    WidthAt(col) = UINT(width);
    if (resetScrollBars) {
        ResetScrollBars();
    }
    return TRUE;
}

BOOL CGridCtrl::AutoSizeRow(int row, BOOL resetScrollBars) {
    if (row < 0 || row >= m_rowCount || GetRowHeight(row) == 0) {
        return FALSE;
    }
    CDC* dc = GetSafeHwnd() != nullptr ? GetDC() : nullptr;
    if (dc == nullptr) {
        return FALSE;
    }
    if (m_virtualMode) {
        SendCacheHintToParent(CCellRange(row, 0, row, m_colCount - 1));
    }
    int height = 0;
    for (int col = 0; col < m_colCount; col++) {
        if (CGridCellBase* cell = GetCell(row, col)) {
            height = std::max(height, int(cell->GetCellExtent(dc).cy));
        }
    }
    if (m_virtualMode) {
        SendCacheHintToParent(CCellRange(-1, -1, -1, -1));
    }
    ReleaseDC(dc);
    HeightAt(row) = UINT(height);
    if (resetScrollBars) {
        ResetScrollBars();
    }
    return TRUE;
}

void CGridCtrl::AutoSizeColumns(UINT style) {
    for (int col = 0; col < m_colCount; col++) {
        if (GetColumnWidth(col) > 0) {
            AutoSizeColumn(col, style, FALSE);
        }
    }
    ResetScrollBars();
}

void CGridCtrl::AutoSizeRows() {
    for (int row = 0; row < m_rowCount; row++) {
        if (GetRowHeight(row) > 0) {
            AutoSizeRow(row, FALSE);
        }
    }
    ResetScrollBars();
}

void CGridCtrl::AutoSize(UINT style) {
    CDC* dc = GetSafeHwnd() != nullptr ? GetDC() : nullptr;
    if (dc == nullptr) {
        return;
    }
    const MeasuredRows rows =
        RowsOfStyle(style == 0 ? m_autoSizeStyle : style, m_fixedRowCount, m_rowCount);
    // Measured rows start at 1, not 0, so that they are not taken for hidden ones.
    for (int row = rows.first; row <= rows.last; row++) {
        if (GetRowHeight(row) > 0) {
            HeightAt(row) = 1;
        }
    }
    for (int col = 0; col < m_colCount; col++) {
        if (GetColumnWidth(col) > 0) {
            WidthAt(col) = 0;
        }
    }
    for (int row = rows.first; row <= rows.last; row++) {
        if (GetRowHeight(row) == 0) {
            continue;
        }
        for (int col = 0; col < m_colCount; col++) {
            if (CGridCellBase* cell = GetCell(row, col)) {
                const CSize extent = cell->GetCellExtent(dc);
                WidthAt(col) = std::max(WidthAt(col), UINT(std::max(0, int(extent.cx))));
                HeightAt(row) = std::max(HeightAt(row), UINT(std::max(0, int(extent.cy))));
            }
        }
    }
    ReleaseDC(dc);
    ResetScrollBars();
    Refresh();
}

void CGridCtrl::ExpandColumnToFit(int col) {
    if (GetSafeHwnd() == nullptr || col < 0 || col >= m_colCount) {
        return;
    }
    EnableScrollBars(SB_HORZ, FALSE);
    CRect client;
    GetClientRect(&client);
    WidthAt(col) = Grown(WidthAt(col), client.Width() - GetVirtualWidth());
    Refresh();
    ResetScrollBars();
}

void CGridCtrl::ExpandColumnsToFit(BOOL expandFixed) {
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    EnableScrollBars(SB_HORZ, FALSE);
    const int first = expandFixed ? 0 : m_fixedColCount;
    const int shared = m_colCount - first - GetHiddenColumnCount();
    if (shared <= 0) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    const long difference = client.Width() - GetVirtualWidth();
    const long quotient = difference / shared;
    const long remainder = difference % shared;
    for (int col = first; col < m_colCount; col++) {
        if (GetColumnWidth(col) > 0) {
            WidthAt(col) = Grown(WidthAt(col), quotient);
        }
    }
    // The odd pixels go one each to the first columns in scope. A hidden one among them keeps
    // hidden and its pixel is not passed on; a pixel taken from a hidden one is not found
    // elsewhere either.
    const int odd = int(std::abs(remainder));
    for (int col = first; col < std::min(m_colCount, first + odd); col++) {
        if (remainder > 0 && GetColumnWidth(col) == 0) {
            continue;
        }
        WidthAt(col) = Grown(WidthAt(col), remainder > 0 ? 1 : -1);
    }
    Refresh();
    ResetScrollBars();
}

void CGridCtrl::ExpandRowsToFit(BOOL expandFixed) {
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    EnableScrollBars(SB_VERT, FALSE);
    const int first = expandFixed ? 0 : m_fixedRowCount;
    const int shared = m_rowCount - first;
    if (shared <= 0) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    const long difference = client.Height() - GetVirtualHeight();
    const long quotient = difference / shared;
    const long remainder = difference % shared;
    // Unlike columns, hidden rows share too: a growing grid shows them again.
    for (int row = first; row < m_rowCount; row++) {
        HeightAt(row) = Grown(HeightAt(row), quotient);
    }
    const int odd = int(std::abs(remainder));
    for (int row = first; row < std::min(m_rowCount, first + odd); row++) {
        HeightAt(row) = Grown(HeightAt(row), remainder > 0 ? 1 : -1);
    }
    Refresh();
    ResetScrollBars();
}

void CGridCtrl::ExpandToFit(BOOL expandFixed) {
    ExpandColumnsToFit(expandFixed);
    ExpandRowsToFit(expandFixed);
    // Again, to take up the width that the vertical bar gave back.
    ExpandColumnsToFit(expandFixed);
    Refresh();
}

void CGridCtrl::ExpandLastColumn() {
    if (GetSafeHwnd() == nullptr || m_colCount <= 0) {
        return;
    }
    EnableScrollBars(SB_VERT, FALSE);
    CRect client;
    GetClientRect(&client);
    CRect window;
    GetWindowRect(&window);
    const int barWidth = ::GetSystemMetrics(SM_CXVSCROLL);
    long difference = client.Width() - GetVirtualWidth();
    if (window.Width() - 2 * ::GetSystemMetrics(SM_CXEDGE) - client.Width() == barWidth) {
        difference += barWidth;
    }
    if (difference > 0) {
        if (client.Height() < GetVirtualHeight()) {
            difference -= barWidth;
        }
        WidthAt(m_colCount - 1) = Grown(WidthAt(m_colCount - 1), difference);
        Refresh();
    }
    ResetScrollBars();
}
