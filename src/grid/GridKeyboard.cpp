// The keyboard: keys move the focus cell and the selection, scroll, run the clipboard
// shortcuts and clear cells; typing starts an edit. In the custom tabs mode the grid is a
// vertical form whose Tab hands the focus on to the dialog's next control.
//
// Sections: dialog code and characters; one key press (the standard table, the custom tabs
// table, the page step); the common ending.

#include "grid/GridCtrl.h"

#include <algorithm>

namespace {

bool KeyHeld(int key) {
    return ::GetKeyState(key) < 0;
}

} // namespace

UINT CGridCtrl::OnGetDlgCode() {
    UINT code = DLGC_WANTARROWS | DLGC_WANTCHARS;
    // Control with Tab is always the dialog's.
    if (m_handleTabKey && !KeyHeld(VK_CONTROL)) {
        code |= DLGC_WANTTAB;
    }
    return code;
}

void CGridCtrl::OnChar(UINT key, UINT repeat, UINT flags) {
    const HWND self = m_hWnd;
    if (!KeyHeld(VK_CONTROL) && m_mouseMode == MOUSE_NOTHING && key != VK_ESCAPE &&
        !(key == VK_TAB && m_handleTabKey)) {
        OnEditCell(m_focusCell.row, m_focusCell.col, CPoint(-1, -1), key);
    }
    if (::IsWindow(self)) {
        CWnd::OnChar(key, repeat, flags);
    }
}

// The key press under way: the cell it leads to and what it scrolled.
struct CGridCtrl::KeyMove {
    CCellID next;
    bool wrapped = false;
    bool scrolledH = false;
    bool scrolledV = false;
};

int CGridCtrl::NextVisibleRow(int from) const {
    for (int row = from + 1; row < m_rowCount; row++) {
        if (GetRowHeight(row) > 0) {
            return row;
        }
    }
    return -1;
}

int CGridCtrl::PreviousVisibleRow(int from) const {
    for (int row = from - 1; row >= m_fixedRowCount; row--) {
        if (GetRowHeight(row) > 0) {
            return row;
        }
    }
    return -1;
}

// Clears the selected cells that may be edited, as one bulk change.
void CGridCtrl::ClearSelectedEditableCells() {
    const CCellRange selection = GetSelectedCellRange();
    SendMessageToParent(0, 0, GV_NOTIFY_BEGINBULKEDIT);
    for (int row = selection.minRow; row <= selection.maxRow; row++) {
        for (int col = selection.minCol; col <= selection.maxCol; col++) {
            if (GetCell(row, col) != nullptr && IsCellSelected(row, col) &&
                IsCellEditable(row, col)) {
                ValidateAndModifyCellContents(row, col, "");
            }
        }
    }
    SendMessageToParent(0, 0, GV_NOTIFY_ENDBULKEDIT);
}

// Scrolls a page and answers how many rows the top row moved.
int CGridCtrl::PageStep(UINT code, KeyMove& move) {
    const int before = GetTopleftNonFixedCell().row;
    SendMessage(WM_VSCROLL, code, 0);
    move.scrolledV = true;
    return GetTopleftNonFixedCell().row - before;
}

void CGridCtrl::PageDown(KeyMove& move) {
    const int change = PageStep(SB_PAGEDOWN, move);
    move.next.row =
        change == 0 ? m_rowCount - 1 : std::min(m_focusCell.row + change, m_rowCount - 1);
}

void CGridCtrl::PageUp(KeyMove& move) {
    const int change = PageStep(SB_PAGEUP, move);
    move.next.row =
        change == 0 ? m_fixedRowCount : std::max(m_focusCell.row + change, m_fixedRowCount);
}

void CGridCtrl::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    if (!IsValid(m_focusCell)) {
        CWnd::OnKeyDown(key, repeat, flags);
        return;
    }
    const HWND self = m_hWnd;
    SendMessageToParent(m_focusCell.row, m_focusCell.col, GV_NOTIFY_SELCHANGING);
    if (!::IsWindow(self)) {
        return;
    }
    const bool control = KeyHeld(VK_CONTROL);
    const bool shift = KeyHeld(VK_SHIFT);
    if (control) {
        switch (key) {
        case 'X':
            OnEditCut();
            break;
        case 'C':
        case VK_INSERT:
            OnEditCopy();
            break;
        case 'V':
            OnEditPaste();
            break;
        case 'A':
            OnEditSelectAll();
            break;
        default:
            break;
        }
    }
    if (shift && key == VK_INSERT) {
        OnEditPaste();
    }
    if (!::IsWindow(self) || !IsValid(m_focusCell)) {
        return;
    }

    KeyMove move{m_focusCell};
    const bool handled =
        m_customTabs ? CustomTabsKey(key, shift, move) : StandardKey(key, shift, control, move);
    if (!::IsWindow(self)) {
        return;
    }
    if (!handled) {
        CWnd::OnKeyDown(key, repeat, flags);
        return;
    }
    FinishKeyMove(key, shift, move);
}

// The standard table. False when the key is passed on and the press ends.
bool CGridCtrl::StandardKey(UINT key, bool shift, bool control, KeyMove& move) {
    switch (key) {
    case VK_DELETE:
        ClearSelectedEditableCells();
        return false;
    case VK_DOWN:
        if (const int row = NextVisibleRow(m_focusCell.row); row != -1) {
            move.next.row = row;
        }
        return true;
    case VK_UP:
        if (const int row = PreviousVisibleRow(m_focusCell.row); row != -1) {
            move.next.row = row;
        }
        return true;
    case VK_RIGHT:
    case VK_LEFT:
    case VK_TAB: {
        const bool forward = key == VK_RIGHT || (key == VK_TAB && !shift);
        int column = m_focusCell.col + (forward ? 1 : -1);
        if (key == VK_TAB) {
            if (forward && column == m_colCount && m_focusCell.row != m_rowCount - 1) {
                column = m_fixedColCount;
                move.next.row++;
                move.wrapped = true;
            } else if (!forward && column == m_fixedColCount - 1 &&
                       m_focusCell.row > m_fixedRowCount) {
                move.next.row--;
                column = m_colCount - 1;
                move.wrapped = true;
            } else {
                CWnd::OnKeyDown(key, 0, 0);
            }
        }
        if (forward) {
            while (column < m_colCount && GetColumnWidth(column) == 0) {
                column++;
            }
            move.next.col = column < m_colCount ? column : m_focusCell.col;
        } else {
            while (column >= m_fixedColCount && GetColumnWidth(column) == 0) {
                column--;
            }
            move.next.col = column >= m_fixedColCount ? column : m_focusCell.col;
        }
        return true;
    }
    case VK_NEXT:
        PageDown(move);
        return true;
    case VK_PRIOR:
        PageUp(move);
        return true;
    case VK_HOME:
    case VK_END: {
        const bool home = key == VK_HOME;
        SendMessage(WM_HSCROLL, home ? SB_LEFT : SB_RIGHT, 0);
        if (control) {
            SendMessage(WM_VSCROLL, home ? SB_TOP : SB_BOTTOM, 0);
            move.next.row = home ? m_fixedRowCount : m_rowCount - 1;
            move.scrolledV = true;
        }
        move.scrolledH = true;
        int column = home ? m_fixedColCount : m_colCount - 1;
        if (home) {
            while (column < m_colCount - 1 && GetColumnWidth(column) == 0) {
                column++;
            }
        } else {
            while (column > m_fixedColCount + 1 && GetColumnWidth(column) == 0) {
                column--;
            }
        }
        move.next.col = column;
        return true;
    }
    case VK_F2:
        OnEditCell(m_focusCell.row, m_focusCell.col, CPoint(-1, -1), VK_LBUTTON);
        return true;
    default:
        return false;
    }
}

// The custom tabs table: a form moves up and down only, and Tab leaves it past either end.
bool CGridCtrl::CustomTabsKey(UINT key, bool shift, KeyMove& move) {
    switch (key) {
    case VK_DELETE:
        ClearSelectedEditableCells();
        return false;
    case VK_DOWN:
    case VK_UP: {
        const int row =
            key == VK_DOWN ? NextVisibleRow(m_focusCell.row) : PreviousVisibleRow(m_focusCell.row);
        if (row != -1) {
            move.next.row = row;
        }
        break;
    }
    case VK_TAB: {
        const int row =
            shift ? PreviousVisibleRow(m_focusCell.row) : NextVisibleRow(m_focusCell.row);
        if (row == -1) {
            // Past the last (or first) row the focus goes on to the dialog's next control.
            CWnd* dialog = GetParent();
            CWnd* control =
                dialog != nullptr ? dialog->GetNextDlgTabItem(GetFocus(), shift) : nullptr;
            if (control != nullptr) {
                control->SetFocus();
            }
            return false;
        }
        move.next.row = row;
        break;
    }
    case VK_NEXT:
    case VK_END:
        PageDown(move);
        break;
    case VK_PRIOR:
    case VK_HOME:
        PageUp(move);
        break;
    case VK_F2:
        OnEditCell(m_focusCell.row, m_focusCell.col, CPoint(-1, -1), VK_LBUTTON);
        return true;
    default:
        return false;
    }
    // A form of label, value and note columns comes back to the value column.
    if (m_focusCell.col == 2) {
        move.next.col = 1;
    }
    return true;
}

void CGridCtrl::FinishKeyMove(UINT key, bool shift, KeyMove& move) {
    const HWND self = m_hWnd;
    const CCellID next = move.next;
    if (next == m_focusCell) {
        return;
    }
    if (m_mouseMode == MOUSE_NOTHING) {
        // Shift extends the selection from where it started; a plain move starts it anew.
        m_prevSelectedCellMap.clear();
        m_mouseMode = m_listMode ? MOUSE_SELECT_ROW : MOUSE_SELECT_CELLS;
        if (!shift || key == VK_TAB) {
            m_selectionStartCell = next;
        }
        OnSelecting(next);
        m_mouseMode = MOUSE_NOTHING;
    }
    if (IsValid(next) && GetCell(next) != nullptr) {
        SetFocusCell(next);
        if (!IsCellVisible(next)) {
            switch (key) {
            case VK_RIGHT:
                SendMessage(WM_HSCROLL, SB_LINERIGHT, 0);
                move.scrolledH = true;
                break;
            case VK_LEFT:
                SendMessage(WM_HSCROLL, SB_LINELEFT, 0);
                move.scrolledH = true;
                break;
            case VK_DOWN:
                SendMessage(WM_VSCROLL, SB_LINEDOWN, 0);
                move.scrolledV = true;
                break;
            case VK_UP:
                SendMessage(WM_VSCROLL, SB_LINEUP, 0);
                move.scrolledV = true;
                break;
            case VK_TAB:
                if (move.wrapped) {
                    SendMessage(WM_VSCROLL, shift ? SB_LINEUP : SB_LINEDOWN, 0);
                    SetScrollPos32(SB_HORZ, shift ? m_hScrollMax : 0, TRUE);
                    move.scrolledV = true;
                } else {
                    SendMessage(WM_HSCROLL, shift ? SB_LINELEFT : SB_LINERIGHT, 0);
                    move.scrolledH = true;
                }
                break;
            default:
                break;
            }
            EnsureVisible(next);
            Invalidate();
        }
        EnsureVisible(next);
    }
    if (move.scrolledH) {
        SendMessage(WM_HSCROLL, SB_ENDSCROLL, 0);
    }
    if (move.scrolledV) {
        SendMessage(WM_VSCROLL, SB_ENDSCROLL, 0);
    }
    if (::IsWindow(self)) {
        SendMessageToParent(next.row, next.col, GV_NOTIFY_SELCHANGED);
    }
}
