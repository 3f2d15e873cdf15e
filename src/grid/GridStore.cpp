// Rows, columns and the cells in them: counts, fixed counts, insertion and deletion.

#include "grid/GridCtrl.h"

#include "platform/base/Exceptions.h"

#include <memory>
#include <new>

CGridCtrl::GridRow* CGridCtrl::RowAt(int row) const {
    if (row < 0 || size_t(row) >= m_rowData.size()) {
        AfxThrowInvalidArgException();
    }
    return m_rowData[size_t(row)];
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

BOOL CGridCtrl::SetRowCount(int rows) {
    if (rows == m_rowCount) {
        return TRUE;
    }
    if (rows < 0) {
        return FALSE;
    }
    m_topLeftCell.col = -1;
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
                delete RowAt(row);
                m_rowData[size_t(row)] = nullptr;
            }
        }
        m_rowCount = rows;
    }
    const bool made = Allocating([this, rows] {
        const UINT height = UINT(m_cellDefault.GetHeight());
        m_rowHeights.resize(size_t(rows), height);
        if (m_virtualMode) {
            m_rowCount = rows;
            return;
        }
        m_rowData.resize(size_t(rows), nullptr);
        // The count grows row by row, so that CreateCell sees the rows made before.
        for (int row = m_rowCount; row < rows; row++) {
            m_rowHeights[size_t(row)] = height;
            m_rowData[size_t(row)] = new GridRow(size_t(m_colCount), nullptr);
            for (int col = 0; col < m_colCount; col++) {
                (*m_rowData[size_t(row)])[size_t(col)] = CreateCell(row, col);
            }
            m_rowCount++;
        }
    });
    if (!made) {
        DiscardRowsBeyondCount();
        return FALSE;
    }
    SetModified(TRUE, -1, -1);
    ResetScrollBars();
    Refresh();
    return TRUE;
}

// After a failed allocation: the row being made, if any, goes, and the arrays match the count.
void CGridCtrl::DiscardRowsBeyondCount() {
    for (size_t row = size_t(m_rowCount); row < m_rowData.size(); row++) {
        if (GridRow* cells = m_rowData[row]) {
            for (CGridCellBase* made : *cells) {
                delete made;
            }
            delete cells;
        }
    }
    if (!m_virtualMode) {
        m_rowData.resize(size_t(m_rowCount));
    }
    m_rowHeights.resize(size_t(m_rowCount));
}

BOOL CGridCtrl::SetColumnCount(int cols) {
    if (cols == m_colCount) {
        return TRUE;
    }
    if (cols < 0) {
        return FALSE;
    }
    m_topLeftCell.col = -1;
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
            cells->resize(size_t(cols), nullptr);
            for (int col = oldCount; col < cols; col++) {
                (*cells)[size_t(col)] = CreateCell(row, col);
            }
        }
    });
    if (!made) {
        // Only growth allocates: go back to the old shape.
        for (GridRow* cells : m_rowData) {
            for (size_t col = size_t(oldCount); cells != nullptr && col < cells->size(); col++) {
                delete (*cells)[col];
            }
            if (cells != nullptr && cells->size() > size_t(oldCount)) {
                cells->resize(size_t(oldCount));
            }
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
    m_topLeftCell.col = -1;
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
    m_topLeftCell.col = -1;
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
    m_topLeftCell.col = -1;
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
    int rowsDone = 0;
    bool rowMissing = false;
    const bool made = Allocating([&] {
        m_colWidths.insert(m_colWidths.begin() + column, 0);
        if (m_virtualMode) {
            return;
        }
        for (; rowsDone < m_rowCount; rowsDone++) {
            GridRow* cells = RowAt(rowsDone);
            if (cells == nullptr) {
                rowMissing = true;
                return;
            }
            cells->insert(cells->begin() + column, nullptr);
            (*cells)[size_t(column)] = CreateCell(rowsDone, column);
        }
    });
    if (rowMissing) {
        return -1;
    }
    if (!made) {
        for (int row = 0; row <= rowsDone && row < m_rowCount; row++) {
            GridRow* cells = RowAt(row);
            if (cells->size() > size_t(m_colCount)) {
                delete (*cells)[size_t(column)];
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
    m_topLeftCell.col = -1;
    ClearSelectionAndFocus();
    if (m_colCount == 0 && !SetColumnCount(1)) {
        return -1;
    }
    if (row < 0) {
        row = m_rowCount;
    }
    bool heightInserted = false;
    GridRow* cells = nullptr;
    bool counted = false;
    const bool made = Allocating([&] {
        m_rowHeights.insert(m_rowHeights.begin() + row, 0);
        heightInserted = true;
        if (!m_virtualMode) {
            auto newRow = std::make_unique<GridRow>(size_t(m_colCount), nullptr);
            m_rowData.insert(m_rowData.begin() + row, newRow.get());
            cells = newRow.release();
        }
        m_rowCount++;
        counted = true;
        // Cells are made once the row counts, so that CreateCell sees it.
        for (int col = 0; cells != nullptr && col < m_colCount; col++) {
            (*cells)[size_t(col)] = CreateCell(row, col);
        }
    });
    if (!made) {
        if (cells != nullptr) {
            for (CGridCellBase* cell : *cells) {
                delete cell;
            }
            delete cells;
            m_rowData.erase(m_rowData.begin() + row);
        }
        if (counted) {
            m_rowCount--;
        }
        if (heightInserted) {
            m_rowHeights.erase(m_rowHeights.begin() + row);
        }
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
            GridRow* cells = RowAt(row);
            if (cells == nullptr) {
                return FALSE;
            }
            DestroyCell(row, column);
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
        GridRow* cells = RowAt(row);
        if (cells == nullptr) {
            return FALSE;
        }
        for (int col = 0; col < m_colCount; col++) {
            DestroyCell(row, col);
        }
        delete cells;
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
            delete RowAt(row);
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
