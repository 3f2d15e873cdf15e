// The road of a change of text into a cell: the application may veto before and refuse after,
// and a refused change puts the old text back.

#include "grid/GridCtrl.h"

void CGridCtrl::ValidateAndModifyCellContents(int row, int col, LPCTSTR text) {
    if (SendMessageToParent(row, col, GV_NOTIFY_BEGINLABELEDIT) < 0) {
        return;
    }
    const CString oldText = GetItemText(row, col);
    if (oldText == (text != nullptr ? text : "")) {
        return;
    }
    SetItemText(row, col, text);
    AcceptOrRollBackEdit(row, col, text, oldText);
}

void CGridCtrl::AcceptOrRollBackEdit(int row, int col, LPCTSTR text, const CString& oldText) {
    if (ValidateEdit(row, col, text) &&
        SendMessageToParent(row, col, GV_NOTIFY_ENDLABELEDIT) >= 0) {
        OnCellChanged(row, col);
        SetModified(TRUE, row, col);
        RedrawCell(row, col);
    } else {
        // A modified flag set on the way stays: a refused edit leaves the cell marked.
        SetItemText(row, col, oldText);
    }
}

void CGridCtrl::OnEditCell(int row, int col, CPoint point, UINT ch) {
    // Editing in place needs the cell's editor window; a cell without one refuses in Edit.
    CGridCellBase* cell = GetCell(row, col);
    if (cell == nullptr || !IsCellEditable(row, col) || GetSafeHwnd() == nullptr) {
        return;
    }
    if (SendMessageToParent(row, col, GV_NOTIFY_BEGINLABELEDIT) < 0) {
        return;
    }
    cell->Edit(row, col, CRect(), point, 0, ch);
}

void CGridCtrl::OnEndEditCell(int row, int col, CString text) {
    const CString oldText = GetItemText(row, col);
    if (oldText != text) {
        CGridCellBase* cell = GetCell(row, col);
        if (!m_virtualMode && cell != nullptr) {
            cell->SetText(text);
            SetModified(TRUE, row, col);
        }
        AcceptOrRollBackEdit(row, col, text, oldText);
    }
    if (CGridCellBase* cell = GetCell(row, col)) {
        cell->OnEndEdit();
    }
}

BOOL CGridCtrl::ValidateEdit(int row, int col, LPCTSTR text) {
    CGridCellBase* cell = GetCell(row, col);
    return cell == nullptr || cell->ValidateEdit(text);
}

void CGridCtrl::EndEditing() {
    if (!IsValid(m_focusCell)) {
        return;
    }
    if (CGridCellBase* cell = GetCell(m_focusCell)) {
        cell->EndEdit();
    }
}
