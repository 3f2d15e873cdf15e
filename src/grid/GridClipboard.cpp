// The edit commands. The platform offers no data source for the grid's text format yet, so
// copying yields nothing and pasting takes nothing; cutting still clears the selection.

#include "grid/GridCtrl.h"

void CGridCtrl::CutSelectedText() {
    const CCellRange selection = GetSelectedCellRange();
    if (m_editable && IsValid(selection)) {
        ClearCells(selection);
    }
}

COleDataSource* CGridCtrl::CopyTextFromGrid() {
    return nullptr;
}

BOOL CGridCtrl::PasteTextToGrid(CCellID cell, COleDataObject* dataObject) {
    return FALSE;
}

void CGridCtrl::OnEditCut() {
    if (m_editable && CopyTextFromGrid() != nullptr) {
        CutSelectedText();
    }
}

void CGridCtrl::OnEditCopy() {
    CopyTextFromGrid();
}

void CGridCtrl::OnEditPaste() {}

void CGridCtrl::OnEditSelectAll() {
    SendMessageToParent(m_leftClickDownCell.row, m_leftClickDownCell.col, GV_NOTIFY_SELCHANGING);
    if (IsSelectable()) {
        SetSelectedRange(m_fixedRowCount, m_fixedColCount, m_rowCount - 1, m_colCount - 1);
    }
    SendMessageToParent(m_focusCell.row, m_focusCell.col, GV_NOTIFY_SELCHANGED);
}

CImageList* CGridCtrl::CreateDragImage(CPoint* hotSpot) {
    return nullptr;
}
