// Rows, columns and the cells in them: counts, fixed counts, insertion and deletion.

#include "grid/GridCtrl.h"

#include "platform/base/Exceptions.h"

#include <algorithm>
#include <memory>
#include <new>

CGridCtrl::GridRow* CGridCtrl::RowAt(int row) const {
    if (row < 0 || size_t(row) >= m_rowData.size()) {
        AfxThrowInvalidArgException();
    }
    return m_rowData[size_t(row)].get();
}

UINT& CGridCtrl::HeightAt(int row) {
    if (row < 0 || size_t(row) >= m_rowHeights.size()) {
        AfxThrowInvalidArgException();
    }
    return m_rowHeights[size_t(row)];
}

UINT& CGridCtrl::WidthAt(int col) {
    if (col < 0 || size_t(col) >= m_colWidths.size()) {
        AfxThrowInvalidArgException();
    }
    return m_colWidths[size_t(col)];
}

BOOL CGridCtrl::IsValid(int row, int col) const {
    return row >= 0 && row < m_rowCount && col >= 0 && col < m_colCount;
}

BOOL CGridCtrl::IsValid(const CCellRange& range) const {
    return range.IsValid() && range.maxRow < m_rowCount && range.maxCol < m_colCount;
}

void CGridCtrl::ClearSelectionAndFocus() {
    m_prevSelectedCellMap.clear();
    SetSelectedRange(-1, -1, -1, -1, FALSE, TRUE);
    SetFocusCell(-1, -1);
}

std::unique_ptr<CGridCtrl::GridRow> CGridCtrl::MakeRow(int row) {
    auto cells = std::make_unique<GridRow>(size_t(m_colCount));
    for (int col = 0; col < m_colCount; col++) {
        (*cells)[size_t(col)].reset(CreateCell(row, col));
    }
    return cells;
}

BOOL CGridCtrl::SetRowCount(int rows) {
    if (rows == m_rowCount) {
        return TRUE;
    }
    if (rows < 0) {
        return FALSE;
    }
    ForgetTopLeftCell();
    if (rows < m_fixedRowCount) {
        m_fixedRowCount = rows;
    }
    if (m_focusCell.row >= rows) {
        SetFocusCell(-1, -1);
    }
    if (rows < m_rowCount) {
        if (!m_virtualMode) {
            for (int row = rows; row < m_rowCount; row++) {
                for (int col = 0; col < m_colCount; col++) {
                    DestroyCell(row, col);
                }
            }
            m_rowData.resize(size_t(rows));
        }
        m_rowCount = rows;
    }
    // Each row is made whole and then joins the store, so a failed allocation leaves only the
    // rows made before it, all complete.
    const bool made = Allocating([this, rows] {
        const UINT height = UINT(m_cellDefault.GetHeight());
        m_rowHeights.reserve(size_t(rows));
        m_rowData.reserve(m_virtualMode ? 0 : size_t(rows));
        for (int row = m_rowCount; row < rows; row++) {
            if (!m_virtualMode) {
                m_rowData.push_back(MakeRow(row));
            }
            m_rowHeights.push_back(height);
            m_rowCount++;
        }
    });
    m_rowHeights.resize(size_t(m_rowCount));
    if (!made) {
        return FALSE;
    }
    SetModified(TRUE, -1, -1);
    ResetScrollBars();
    Refresh();
    return TRUE;
}

BOOL CGridCtrl::SetColumnCount(int cols) {
    if (cols == m_colCount) {
        return TRUE;
    }
    if (cols < 0) {
        return FALSE;
    }
    ForgetTopLeftCell();
    if (cols < m_fixedColCount) {
        m_fixedColCount = cols;
    }
    if (m_focusCell.col >= cols) {
        SetFocusCell(-1, -1);
    }
    const int oldCount = m_colCount;
    if (cols < oldCount && !m_virtualMode) {
        for (int row = 0; row < m_rowCount; row++) {
            for (int col = cols; col < oldCount; col++) {
                DestroyCell(row, col);
            }
        }
    }
    const bool made = Allocating([this, cols, oldCount] {
        m_colWidths.resize(size_t(cols), UINT(m_cellFixedColDef.GetWidth()));
        if (m_virtualMode) {
            return;
        }
        for (int row = 0; row < m_rowCount; row++) {
            GridRow* cells = RowAt(row);
            cells->resize(size_t(cols));
            for (int col = oldCount; col < cols; col++) {
                (*cells)[size_t(col)].reset(CreateCell(row, col));
            }
        }
    });
    if (!made) {
        // Only growth allocates: every row goes back to the old shape.
        for (const std::unique_ptr<GridRow>& cells : m_rowData) {
            cells->resize(std::min(cells->size(), size_t(oldCount)));
        }
        m_colWidths.resize(size_t(oldCount));
        return FALSE;
    }
    m_colCount = cols;
    SetModified(TRUE, -1, -1);
    ResetScrollBars();
    Refresh();
    return TRUE;
}

BOOL CGridCtrl::SetFixedRowCount(int fixedRows) {
    if (fixedRows == m_fixedRowCount) {
        return TRUE;
    }
    if (fixedRows < 0) {
        return FALSE;
    }
    ClearSelectionAndFocus();
    ForgetTopLeftCell();
    if (fixedRows > m_rowCount && !SetRowCount(fixedRows)) {
        return FALSE;
    }
    if (m_focusCell.row < fixedRows) {
        SetFocusCell(-1, -1);
    }
    if (!m_virtualMode) {
        // A cell changing kind loses its own colours, except that a cell of a fixed column
        // keeps them when only its fixed row goes.
        for (int row = m_fixedRowCount; row < fixedRows; row++) {
            for (int col = 0; col < m_colCount; col++) {
                SetItemState(row, col, GetItemState(row, col) | GV_STATE_FIXED | GV_STATE_FIXEDROW);
                SetItemBkColour(row, col, CLR_DEFAULT);
                SetItemFgColour(row, col, CLR_DEFAULT);
            }
        }
        for (int row = fixedRows; row < m_fixedRowCount; row++) {
            for (int col = 0; col < m_colCount; col++) {
                if (col < m_fixedColCount) {
                    SetItemState(row, col, GetItemState(row, col) & ~GV_STATE_FIXEDROW);
                } else {
                    SetItemState(row, col,
                                 GetItemState(row, col) & ~(GV_STATE_FIXED | GV_STATE_FIXEDROW));
                    SetItemBkColour(row, col, CLR_DEFAULT);
                    SetItemFgColour(row, col, CLR_DEFAULT);
                }
            }
        }
    }
    m_fixedRowCount = fixedRows;
    Refresh();
    return TRUE;
}

BOOL CGridCtrl::SetFixedColumnCount(int fixedCols) {
    if (fixedCols == m_fixedColCount) {
        return TRUE;
    }
    if (fixedCols < 0) {
        return FALSE;
    }
    if (fixedCols > m_colCount && !SetColumnCount(fixedCols)) {
        return FALSE;
    }
    if (m_focusCell.col < fixedCols) {
        SetFocusCell(-1, -1);
    }
    ClearSelectionAndFocus();
    ForgetTopLeftCell();
    if (!m_virtualMode) {
        for (int row = 0; row < m_rowCount; row++) {
            for (int col = m_fixedColCount; col < fixedCols; col++) {
                SetItemState(row, col, GetItemState(row, col) | GV_STATE_FIXED | GV_STATE_FIXEDCOL);
                SetItemBkColour(row, col, CLR_DEFAULT);
                SetItemFgColour(row, col, CLR_DEFAULT);
            }
        }
        for (int row = 0; row < m_rowCount; row++) {
            for (int col = fixedCols; col < m_fixedColCount; col++) {
                if (row < m_fixedRowCount) {
                    SetItemState(row, col, GetItemState(row, col) & ~GV_STATE_FIXEDCOL);
                } else {
                    SetItemState(row, col,
                                 GetItemState(row, col) & ~(GV_STATE_FIXED | GV_STATE_FIXEDCOL));
                    SetItemBkColour(row, col, CLR_DEFAULT);
                    SetItemFgColour(row, col, CLR_DEFAULT);
                }
            }
        }
    }
    m_fixedColCount = fixedCols;
    Refresh();
    return TRUE;
}

int CGridCtrl::GetHiddenColumnCount() const {
    int hidden = 0;
    for (UINT width : m_colWidths) {
        hidden += width == 0 ? 1 : 0;
    }
    return hidden;
}

int CGridCtrl::InsertColumn(LPCTSTR heading, UINT format, int column) {
    if (column >= 0 && (column < m_fixedColCount || column > m_colCount)) {
        return -1;
    }
    ForgetTopLeftCell();
    ClearSelectionAndFocus();
    if (m_rowCount == 0 && !SetRowCount(1)) {
        return -1;
    }
    if (column == m_colCount) {
        column = -1;
    }
    if (column < 0) {
        column = m_colCount;
    }
    const bool made = Allocating([&] {
        m_colWidths.insert(m_colWidths.begin() + column, 0);
        for (int row = 0; row < m_rowCount && !m_virtualMode; row++) {
            GridRow* cells = RowAt(row);
            cells->insert(cells->begin() + column,
                          std::unique_ptr<CGridCellBase>(CreateCell(row, column)));
        }
    });
    if (!made) {
        // The rows that took the new cell give it back.
        for (const std::unique_ptr<GridRow>& cells : m_rowData) {
            if (cells->size() > size_t(m_colCount)) {
                cells->erase(cells->begin() + column);
            }
        }
        if (m_colWidths.size() > size_t(m_colCount)) {
            m_colWidths.erase(m_colWidths.begin() + column);
        }
        return -1;
    }
    m_colCount++;
    if (!m_virtualMode) {
        GetCell(0, column)->SetText(heading);
        SetModified(TRUE, 0, column);
        for (int row = 0; row < m_rowCount; row++) {
            GetCell(row, column)->SetFormat(format);
        }
    }
    if (CGridCellBase* header = GetCell(0, column)) {
        SetColumnWidth(column, header->GetTextExtent(heading, nullptr).cx);
    }
    if (m_focusCell.col != -1 && m_focusCell.col > column) {
        m_focusCell.col++;
    }
    ResetScrollBars();
    SetModified(TRUE, -1, -1);
    return column;
}

int CGridCtrl::InsertRow(LPCTSTR heading, int row) {
    // Unlike a column, a row cannot be placed at the count: appending takes a negative row.
    if (row >= 0 && (row < m_fixedRowCount || row >= m_rowCount)) {
        return -1;
    }
    ForgetTopLeftCell();
    ClearSelectionAndFocus();
    if (m_colCount == 0 && !SetColumnCount(1)) {
        return -1;
    }
    if (row < 0) {
        row = m_rowCount;
    }
    // The row is made whole first; room is made before it joins, so joining cannot fail.
    const bool made = Allocating([&] {
        std::unique_ptr<GridRow> cells = m_virtualMode ? nullptr : MakeRow(row);
        m_rowHeights.reserve(m_rowHeights.size() + 1);
        m_rowData.reserve(m_rowData.size() + 1);
        m_rowHeights.insert(m_rowHeights.begin() + row, 0);
        if (cells != nullptr) {
            m_rowData.insert(m_rowData.begin() + row, std::move(cells));
        }
        m_rowCount++;
    });
    if (!made) {
        return -1;
    }
    if (!m_virtualMode) {
        if (CGridCellBase* header = GetCell(row, 0)) {
            header->SetText(heading);
        }
        SetModified(TRUE, row, 0);
    }
    CGridCellBase* header = GetCell(row, 0);
    if (heading == nullptr || *heading == '\0' || header == nullptr) {
        SetRowHeight(row, m_cellFixedRowDef.GetHeight(), FALSE);
    } else {
        SetRowHeight(row, header->GetTextExtent(heading, nullptr).cy, FALSE);
    }
    if (m_focusCell.row != -1 && m_focusCell.row > row) {
        m_focusCell.row++;
    }
    ResetScrollBars();
    SetModified(TRUE, -1, -1);
    return row;
}

BOOL CGridCtrl::DeleteColumn(int column) {
    if (column < 0 || column >= m_colCount) {
        return FALSE;
    }
    ClearSelectionAndFocus();
    if (!m_virtualMode) {
        for (int row = 0; row < m_rowCount; row++) {
            DestroyCell(row, column);
            GridRow* cells = RowAt(row);
            cells->erase(cells->begin() + column);
        }
    }
    m_colWidths.erase(m_colWidths.begin() + column);
    m_colCount--;
    if (column < m_fixedColCount) {
        m_fixedColCount--;
    }
    if (column == m_focusCell.col) {
        SetFocusCell(-1, -1);
    } else if (column < m_focusCell.col) {
        m_focusCell.col--;
    }
    ResetScrollBars();
    SetModified(TRUE, -1, -1);
    return TRUE;
}

BOOL CGridCtrl::DeleteRow(int row) {
    if (row < 0 || row >= m_rowCount) {
        return FALSE;
    }
    ClearSelectionAndFocus();
    // Only rows announce their deletion as a selection change; columns go silently.
    SendMessageToParent(-1, -1, GV_NOTIFY_SELCHANGED);
    if (!m_virtualMode) {
        for (int col = 0; col < m_colCount; col++) {
            DestroyCell(row, col);
        }
        m_rowData.erase(m_rowData.begin() + row);
    }
    m_rowHeights.erase(m_rowHeights.begin() + row);
    m_rowCount--;
    if (row < m_fixedRowCount) {
        m_fixedRowCount--;
    }
    if (row == m_focusCell.row) {
        SetFocusCell(-1, -1);
    } else if (row < m_focusCell.row) {
        m_focusCell.row--;
    }
    ResetScrollBars();
    SetModified(TRUE, -1, -1);
    return TRUE;
}

BOOL CGridCtrl::DeleteNonFixedRows() {
    ClearSelectionAndFocus();
    for (int row = m_rowCount; row >= m_fixedRowCount; row--) {
        DeleteRow(row);
    }
    return TRUE;
}

BOOL CGridCtrl::DeleteNonFixedColumns() {
    ClearSelectionAndFocus();
    for (int col = m_colCount; col >= m_fixedColCount; col--) {
        DeleteColumn(col);
    }
    return TRUE;
}

BOOL CGridCtrl::DeleteAllItems() {
    ClearSelectionAndFocus();
    m_rowHeights.clear();
    m_colWidths.clear();
    if (!m_virtualMode) {
        for (int row = 0; row < m_rowCount; row++) {
            for (int col = 0; col < m_colCount; col++) {
                DestroyCell(row, col);
            }
        }
        m_rowData.clear();
    }
    m_focusCell = CCellID(-1, -1);
    m_rowCount = m_colCount = m_fixedRowCount = m_fixedColCount = 0;
    ResetScrollBars();
    SetModified(TRUE, -1, -1);
    return TRUE;
}

void CGridCtrl::ClearCells(CCellRange selection) {
    SendMessageToParent(0, 0, GV_NOTIFY_BEGINBULKEDIT);
    for (int row = selection.minRow; row <= selection.maxRow; row++) {
        if (GetRowHeight(row) == 0) {
            continue;
        }
        for (int col = selection.minCol; col <= selection.maxCol; col++) {
            // Hidden cells survive a clear.
            if (GetColumnWidth(col) != 0) {
                ValidateAndModifyCellContents(row, col, "");
            }
        }
    }
    SendMessageToParent(0, 0, GV_NOTIFY_ENDBULKEDIT);
    Refresh();
}
