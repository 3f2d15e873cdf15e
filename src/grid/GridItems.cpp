// Cells and their attributes: creation by run-time class, item access and the modified flag.

#include "grid/GridCtrl.h"

#include <cstdarg>
#include <memory>

CGridDefaultCell* CGridCtrl::GetDefaultCell(BOOL fixedRow, BOOL fixedCol) const {
    const CGridDefaultCell* chosen = &m_cellDefault;
    if (fixedRow && fixedCol) {
        chosen = &m_cellFixedRowColDef;
    } else if (fixedRow) {
        chosen = &m_cellFixedRowDef;
    } else if (fixedCol) {
        chosen = &m_cellFixedColDef;
    }
    return const_cast<CGridDefaultCell*>(chosen);
}

void CGridCtrl::SetFixedTextColor(COLORREF color) {
    m_cellFixedRowDef.SetTextClr(color);
    m_cellFixedColDef.SetTextClr(color);
    m_cellFixedRowColDef.SetTextClr(color);
}

void CGridCtrl::SetFixedBkColor(COLORREF color) {
    m_cellFixedRowDef.SetBackClr(color);
    m_cellFixedColDef.SetBackClr(color);
    m_cellFixedRowColDef.SetBackClr(color);
}

void CGridCtrl::SetDefCellMargin(int margin) {
    for (CGridDefaultCell* defaultCell :
         {&m_cellDefault, &m_cellFixedRowDef, &m_cellFixedColDef, &m_cellFixedRowColDef}) {
        defaultCell->SetMargin(UINT(margin));
    }
}

void CGridCtrl::SetDefCellHeight(int height) {
    for (CGridDefaultCell* defaultCell :
         {&m_cellDefault, &m_cellFixedRowDef, &m_cellFixedColDef, &m_cellFixedRowColDef}) {
        defaultCell->SetHeight(height);
    }
}

void CGridCtrl::SetDefCellWidth(int width) {
    for (CGridDefaultCell* defaultCell :
         {&m_cellDefault, &m_cellFixedRowDef, &m_cellFixedColDef, &m_cellFixedRowColDef}) {
        defaultCell->SetWidth(width);
    }
}

BOOL CGridCtrl::SetCell(int row, int col, std::unique_ptr<CGridCellBase> cell) {
    if (m_virtualMode || !IsValid(row, col) || cell == nullptr) {
        return FALSE;
    }
    GridRow* cells = RowAt(row);
    if (cells == nullptr) {
        return FALSE;
    }
    cell->SetCoords(row, col);
    (*cells)[size_t(col)] = std::move(cell);
    return TRUE;
}

CGridCellBase* CGridCtrl::CreateCell(int row, int col) {
    if (m_defaultCellClass == nullptr ||
        !m_defaultCellClass->IsDerivedFrom(RUNTIME_CLASS(CGridCellBase))) {
        return nullptr;
    }
    auto* made = static_cast<CGridCellBase*>(m_defaultCellClass->CreateObject());
    if (made == nullptr) {
        return nullptr;
    }
    made->SetGrid(this);
    made->SetCoords(row, col);
    if (col < m_fixedColCount) {
        made->SetState(made->GetState() | GV_STATE_FIXED | GV_STATE_FIXEDCOL);
    }
    if (row < m_fixedRowCount) {
        made->SetState(made->GetState() | GV_STATE_FIXED | GV_STATE_FIXEDROW);
    }
    // Each cell keeps its own copy: a later change of the default format does not reach it.
    if (CGridCellBase* defaultCell = made->GetDefaultCell()) {
        made->SetFormat(defaultCell->GetFormat());
    }
    return made;
}

void CGridCtrl::DestroyCell(int row, int col) {
    CGridCellBase* cell = GetCell(row, col);
    if (cell == nullptr) {
        return;
    }
    if (cell->IsSelected()) {
        m_selectedCellMap.erase(SelectionKey(row, col));
    }
    // The made-up cell of virtual mode is not the grid's to delete.
    if (m_virtualMode) {
        return;
    }
    cell->SetState(0);
    (*RowAt(row))[size_t(col)].reset();
}

BOOL CGridCtrl::SetCellType(int row, int col, CRuntimeClass* cellClass) {
    if (m_virtualMode || !IsValid(row, col) || cellClass == nullptr ||
        !cellClass->IsDerivedFrom(RUNTIME_CLASS(CGridCellBase))) {
        return FALSE;
    }
    std::unique_ptr<CGridCellBase> made(static_cast<CGridCellBase*>(cellClass->CreateObject()));
    if (made == nullptr) {
        return FALSE;
    }
    if (CGridCellBase* old = GetCell(row, col)) {
        *made = *old;
    }
    return SetCell(row, col, std::move(made));
}

BOOL CGridCtrl::SetDefaultCellType(CRuntimeClass* cellClass) {
    if (cellClass == nullptr || !cellClass->IsDerivedFrom(RUNTIME_CLASS(CGridCellBase))) {
        return FALSE;
    }
    m_defaultCellClass = cellClass;
    return TRUE;
}

BOOL CGridCtrl::GetItem(GV_ITEM* item) {
    if (item == nullptr) {
        return FALSE;
    }
    CGridCellBase* cell = GetCell(item->row, item->col);
    if (cell == nullptr) {
        return FALSE;
    }
    if (item->mask & GV_MASK_TEXT) {
        item->text = GetItemText(item->row, item->col);
    }
    if (item->mask & GV_MASK_PARAM) {
        item->param = cell->GetData();
    }
    if (item->mask & GV_MASK_IMAGE) {
        item->image = cell->GetImage();
    }
    if (item->mask & GV_MASK_STATE) {
        item->state = cell->GetState();
    }
    if (item->mask & GV_MASK_FORMAT) {
        item->format = cell->GetFormat();
    }
    if (item->mask & GV_MASK_BKCLR) {
        item->backColor = cell->GetBackClr();
    }
    if (item->mask & GV_MASK_FGCLR) {
        item->textColor = cell->GetTextClr();
    }
    if (item->mask & GV_MASK_FONT) {
        if (const LOGFONT* font = cell->GetFont()) {
            item->font = *font;
        }
    }
    if (item->mask & GV_MASK_MARGIN) {
        item->margin = cell->GetMargin();
    }
    return TRUE;
}

BOOL CGridCtrl::SetItem(const GV_ITEM* item) {
    if (item == nullptr || m_virtualMode) {
        return FALSE;
    }
    CGridCellBase* cell = GetCell(item->row, item->col);
    if (cell == nullptr) {
        return FALSE;
    }
    SetModified(TRUE, item->row, item->col);
    if (item->mask & GV_MASK_TEXT) {
        cell->SetText(item->text);
    }
    if (item->mask & GV_MASK_PARAM) {
        cell->SetData(item->param);
    }
    if (item->mask & GV_MASK_IMAGE) {
        cell->SetImage(item->image);
    }
    // Straight to the cell: unlike SetItemState, the selected cell map is not updated.
    if (item->mask & GV_MASK_STATE) {
        cell->SetState(item->state);
    }
    if (item->mask & GV_MASK_FORMAT) {
        cell->SetFormat(item->format);
    }
    if (item->mask & GV_MASK_BKCLR) {
        cell->SetBackClr(item->backColor);
    }
    if (item->mask & GV_MASK_FGCLR) {
        cell->SetTextClr(item->textColor);
    }
    if (item->mask & GV_MASK_FONT) {
        cell->SetFont(&item->font);
    }
    if (item->mask & GV_MASK_MARGIN) {
        cell->SetMargin(item->margin);
    }
    return TRUE;
}

CString CGridCtrl::GetItemText(int row, int col) const {
    CGridCellBase* cell = IsValid(row, col) ? GetCell(row, col) : nullptr;
    if (cell == nullptr || cell->GetText() == nullptr) {
        return CString();
    }
    return CString(cell->GetText());
}

BOOL CGridCtrl::SetItemText(int row, int col, LPCTSTR text) {
    CGridCellBase* cell = m_virtualMode ? nullptr : GetCell(row, col);
    if (cell == nullptr) {
        return FALSE;
    }
    cell->SetText(text);
    SetModified(TRUE, row, col);
    return TRUE;
}

BOOL CGridCtrl::SetItemTextFmt(int row, int col, LPCTSTR format, ...) {
    CGridCellBase* cell = m_virtualMode ? nullptr : GetCell(row, col);
    if (cell == nullptr || format == nullptr) {
        return FALSE;
    }
    CString text;
    va_list args;
    va_start(args, format);
    text.FormatV(format, args);
    va_end(args);
    cell->SetText(text);
    SetModified(TRUE, row, col);
    return TRUE;
}

LPARAM CGridCtrl::GetItemData(int row, int col) const {
    CGridCellBase* cell = GetCell(row, col);
    return cell != nullptr ? cell->GetData() : 0;
}

BOOL CGridCtrl::SetItemData(int row, int col, LPARAM data) {
    CGridCellBase* cell = m_virtualMode ? nullptr : GetCell(row, col);
    if (cell == nullptr) {
        return FALSE;
    }
    cell->SetData(data);
    SetModified(TRUE, row, col);
    return TRUE;
}

int CGridCtrl::GetItemImage(int row, int col) const {
    CGridCellBase* cell = GetCell(row, col);
    return cell != nullptr ? cell->GetImage() : 0;
}

BOOL CGridCtrl::SetItemImage(int row, int col, int image) {
    CGridCellBase* cell = m_virtualMode ? nullptr : GetCell(row, col);
    if (cell == nullptr) {
        return FALSE;
    }
    cell->SetImage(image);
    SetModified(TRUE, row, col);
    return TRUE;
}

UINT CGridCtrl::GetItemState(int row, int col) const {
    CGridCellBase* cell = GetCell(row, col);
    return cell != nullptr ? cell->GetState() : 0;
}

BOOL CGridCtrl::SetItemState(int row, int col, UINT state) {
    CGridCellBase* cell = GetCell(row, col);
    if (cell == nullptr) {
        return FALSE;
    }
    // The map follows the bit even in virtual mode, where the map is the only record.
    const bool wasSelected = cell->IsSelected();
    if (!wasSelected && (state & GV_STATE_SELECTED)) {
        m_selectedCellMap[SelectionKey(row, col)] = CCellID(row, col);
    } else if (wasSelected && !(state & GV_STATE_SELECTED)) {
        m_selectedCellMap.erase(SelectionKey(row, col));
    }
    if (m_virtualMode) {
        return FALSE;
    }
    cell->SetState(state);
    return TRUE;
}

UINT CGridCtrl::GetItemFormat(int row, int col) const {
    CGridCellBase* cell = GetCell(row, col);
    return cell != nullptr ? cell->GetFormat() : 0;
}

BOOL CGridCtrl::SetItemFormat(int row, int col, UINT format) {
    CGridCellBase* cell = m_virtualMode ? nullptr : GetCell(row, col);
    if (cell == nullptr) {
        return FALSE;
    }
    cell->SetFormat(format);
    return TRUE;
}

COLORREF CGridCtrl::GetItemBkColour(int row, int col) const {
    CGridCellBase* cell = GetCell(row, col);
    return cell != nullptr ? cell->GetBackClr() : 0;
}

BOOL CGridCtrl::SetItemBkColour(int row, int col, COLORREF color) {
    CGridCellBase* cell = m_virtualMode ? nullptr : GetCell(row, col);
    if (cell == nullptr) {
        return FALSE;
    }
    cell->SetBackClr(color);
    return TRUE;
}

COLORREF CGridCtrl::GetItemFgColour(int row, int col) const {
    CGridCellBase* cell = GetCell(row, col);
    return cell != nullptr ? cell->GetTextClr() : 0;
}

BOOL CGridCtrl::SetItemFgColour(int row, int col, COLORREF color) {
    CGridCellBase* cell = m_virtualMode ? nullptr : GetCell(row, col);
    if (cell == nullptr) {
        return FALSE;
    }
    cell->SetTextClr(color);
    return TRUE;
}

const LOGFONT* CGridCtrl::GetItemFont(int row, int col) {
    CGridCellBase* cell = GetCell(row, col);
    if (cell == nullptr) {
        return GetDefaultCell(row < m_fixedRowCount, col < m_fixedColCount)->GetFont();
    }
    return cell->GetFont();
}

BOOL CGridCtrl::SetItemFont(int row, int col, const LOGFONT* logFont) {
    CGridCellBase* cell = m_virtualMode ? nullptr : GetCell(row, col);
    if (cell == nullptr) {
        return FALSE;
    }
    cell->SetFont(logFont);
    return TRUE;
}

BOOL CGridCtrl::IsItemEditing(int row, int col) {
    CGridCellBase* cell = GetCell(row, col);
    return cell != nullptr && cell->IsEditing();
}

BOOL CGridCtrl::IsCellEditable(int row, int col) const {
    return m_editable && !(GetItemState(row, col) & (GV_STATE_READONLY | GV_STATE_DISABLED));
}

BOOL CGridCtrl::IsCellFixed(int row, int col) const {
    return row < m_fixedRowCount || col < m_fixedColCount;
}

void CGridCtrl::SetModified(BOOL modified, int row, int col) {
    // A change to the sorted column, or to the grid as a whole, cancels the sort indicator.
    if (col < 0 || col == m_sortColumn) {
        if (m_sortColumn != -1) {
            InvalidateCellRect(0, m_sortColumn);
        }
        m_sortColumn = -1;
    }
    // Strictly above 0: row 0 and column 0 are headings and are never marked.
    if (row > 0 && col > 0) {
        if (modified) {
            SetItemState(row, col, GetItemState(row, col) | GV_STATE_MODIFIED);
            m_modified = TRUE;
        } else {
            SetItemState(row, col, GetItemState(row, col) & ~GV_STATE_MODIFIED);
        }
    } else {
        m_modified = modified;
    }
    // Virtual mode keeps no state on cells, so there is nothing to clear.
    if (!m_modified && !m_virtualMode) {
        for (int r = 0; r < m_rowCount; r++) {
            for (int c = 0; c < m_colCount; c++) {
                SetItemState(r, c, GetItemState(r, c) & ~GV_STATE_MODIFIED);
            }
        }
    }
}

BOOL CGridCtrl::GetModified(int row, int col) {
    if (row > 0 && col > 0) {
        return (GetItemState(row, col) & GV_STATE_MODIFIED) != 0;
    }
    return m_modified;
}
