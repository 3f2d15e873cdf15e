// The combo cell: a list of options, edited in place by a drop-down list.

#include "cells/GridCellCombo.h"

#include "cells/CellDropArrow.h"
#include "cells/InPlaceList.h"
#include "grid/GridCtrl.h"
#include "platform/gdi/DC.h"
#include "platform/system/SystemMetrics.h"

IMPLEMENT_DYNCREATE(CGridCellCombo, CGridCell)

void CGridCellCombo::SetOptions(CStringArray& options) {
    m_Options.RemoveAll();
    for (int i = 0; i < options.GetSize(); i++) {
        m_Options.Add(options[i]);
    }
}

void CGridCellCombo::SetText(LPCTSTR text) {
    const CString word(text != nullptr ? text : "");
    if (IsListOnly() && !word.IsEmpty()) {
        bool isOption = false;
        for (int i = 0; i < m_Options.GetSize() && !isOption; i++) {
            isOption = m_Options[i] == word;
        }
        if (!isOption) {
            return;
        }
    }
    CGridCell::SetText(word);
}

void CGridCellCombo::SetData(LPARAM data) {
    if (data == -1) {
        SetText("");
    } else if (data >= 0 && data < m_Options.GetSize()) {
        SetText(m_Options[int(data)]);
    }
}

LPARAM CGridCellCombo::GetData() const {
    for (int i = 0; i < m_Options.GetSize(); i++) {
        if (m_Options[i] == m_text) {
            return i;
        }
    }
    return -1;
}

CWnd* CGridCellCombo::GetEditWnd() const {
    if (!m_editing || m_editWnd == nullptr || !m_editWnd->IsKindOf(RUNTIME_CLASS(CInPlaceList))) {
        return nullptr;
    }
    return static_cast<CInPlaceList*>(m_editWnd)->GetEditField();
}

bool CGridCellCombo::IsEditableAt(int row, int col) const {
    CGridCtrl* grid = GetGrid();
    return grid != nullptr && grid->IsCellEditable(row, col);
}

BOOL CGridCellCombo::Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground) {
    if (IsEditableAt(row, col) && !IsEditing() && m_bShowDropArrow && rect.Width() > 0 &&
        rect.Height() > 0) {
        // At the top, of the platform's height, also in a tall cell.
        const CRect arrow = TopRightDropArrow(rect);
        DrawDropArrow(dc, arrow);
        rect.right = arrow.left;
    }
    if (!IsEditing()) {
        return CGridCell::Draw(dc, row, col, rect, eraseBackground);
    }
    // Nothing may shine through the open editor. The base's setter puts the text back as it
    // was, even a word that is not an option.
    const CString text = m_text;
    CGridCell::SetText("");
    const BOOL result = CGridCell::Draw(dc, row, col, rect, eraseBackground);
    CGridCell::SetText(text);
    return result;
}

BOOL CGridCellCombo::GetTextRect(LPRECT rect) {
    if (rect == nullptr) {
        return FALSE;
    }
    const int arrowWidth = DropArrowSize(CRect(*rect)).cx;
    CGridCell::GetTextRect(rect);
    rect->right -= arrowWidth;
    return TRUE;
}

CSize CGridCellCombo::GetCellExtent(CDC* dc) {
    CSize extent = CGridCell::GetCellExtent(dc);
    extent.cx += GetSystemMetrics(SM_CXVSCROLL);
    return extent;
}

BOOL CGridCellCombo::Edit(int row, int col, CRect rect, CPoint point, UINT id, UINT ch) {
    // A plain second click and F2 come here with the mouse button too, and open nothing.
    if (ch == VK_LBUTTON && !m_bOpening) {
        return FALSE;
    }
    if (m_editing && m_editWnd != nullptr) {
        return TRUE; // one editor per cell
    }
    m_editing = TRUE;
    // The list owns itself and goes with its window; the cell only points at it.
    m_editWnd = new CInPlaceList(GetGrid(), rect, m_dwStyle, id, row, col, GetTextClr(),
                                 GetBackClr(), m_Options, CString(GetText()), ch);
    return TRUE;
}

void CGridCellCombo::EndEdit() {
    if (m_editWnd != nullptr && m_editWnd->IsKindOf(RUNTIME_CLASS(CInPlaceList))) {
        static_cast<CInPlaceList*>(m_editWnd)->EndEdit();
    }
}

BOOL CGridCellCombo::OnClickDown(CPoint point, int row, int col) {
    CGridCtrl* grid = GetGrid();
    CRect rect;
    if (grid == nullptr || !grid->IsCellEditable(row, col) || !grid->GetCellRect(row, col, &rect)) {
        return FALSE;
    }
    const bool onArrow = IsOnTopRightDropArrow(point, rect);
    if (!onArrow || !m_bShowDropArrow) {
        m_bOpening = false;
        return FALSE;
    }
    grid->SetFocusCell(row, col);
    // Left set until the next press on the cell, which clears it unless it too is on the arrow.
    m_bOpening = true;
    Edit(row, col, rect, point, IDC_INPLACE_CONTROL, VK_LBUTTON);
    return TRUE;
}

void CGridCellCombo::OnDblClick(CPoint point, int row, int col) {
    CGridCtrl* grid = GetGrid();
    if (grid != nullptr && grid->IsCellEditable(row, col)) {
        m_bOpening = true;
        CRect rect;
        if (grid->GetCellRect(row, col, &rect)) {
            Edit(row, col, rect, point, IDC_INPLACE_CONTROL, VK_LBUTTON);
        }
    }
    m_bOpening = false;
    CGridCell::OnDblClick(point, row, col);
}
