// The road of a change of text into a cell: the application may veto before and refuse after,
// and a refused change puts the old text back.

#include "grid/GridCtrl.h"

#include "platform/gdi/Font.h"

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
    if (!IsValid(row, col) || !IsCellEditable(row, col)) {
        return;
    }
    EnsureVisible(row, col);
    CRect rect;
    if (!IsCellVisible(row, col) || !GetCellRect(row, col, &rect)) {
        return;
    }
    const HWND self = m_hWnd;
    if (SendMessageToParent(row, col, GV_NOTIFY_BEGINLABELEDIT) < 0 || !::IsWindow(self)) {
        return;
    }
    if (CGridCellBase* cell = GetCell(row, col)) {
        cell->Edit(row, col, rect, point, IDC_INPLACE_CONTROL, ch);
    }
}

HFONT CGridCtrl::OnGetFont() {
    CFont* font = m_cellDefault.GetFontObject();
    return font != nullptr ? HFONT(font->GetSafeHandle()) : nullptr;
}

BOOL CGridCtrl::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (header != nullptr && header->idFrom == IDC_INPLACE_CONTROL &&
        header->code == UINT(GV_NOTIFY_ENDLABELEDIT)) {
        OnEndInPlaceEdit(header, result);
        return TRUE;
    }
    return CWnd::OnNotify(wParam, lParam, result);
}

void CGridCtrl::OnEndInPlaceEdit(NMHDR* notify, LRESULT* result) {
    *result = 0;
    if (GetSafeHwnd() == nullptr || !::IsWindow(m_hWnd)) {
        return;
    }
    const auto* info = reinterpret_cast<const GV_DISPINFO*>(notify);
    const HWND self = m_hWnd;
    OnEndEditCell(info->item.row, info->item.col, info->item.text);
    // Tab and the navigation keys carry the edit on to the next cell; Return stays.
    const UINT key = UINT(info->item.param);
    if (::IsWindow(self) && (key == VK_TAB || (key >= VK_PRIOR && key <= VK_DOWN))) {
        OnKeyDown(key, 0, 0);
        if (::IsWindow(self)) {
            OnEditCell(m_focusCell.row, m_focusCell.col, CPoint(-1, -1), key);
        }
    }
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
