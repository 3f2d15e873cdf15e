// Repainting. Cells are drawn by their own Draw; the grid decides what to repaint.

#include "grid/GridCtrl.h"

void CGridCtrl::SetGridLines(int whichLines) {
    m_gridLines = whichLines;
    Refresh();
}

BOOL CGridCtrl::RedrawCell(int row, int col, CDC* dc) {
    if (!m_allowDraw || GetSafeHwnd() == nullptr || !IsValid(row, col)) {
        return FALSE;
    }
    return InvalidateCellRect(row, col);
}

BOOL CGridCtrl::InvalidateCellRect(int row, int col) {
    if (!m_allowDraw || GetSafeHwnd() == nullptr || !IsValid(row, col)) {
        return FALSE;
    }
    Invalidate();
    return TRUE;
}

void CGridCtrl::OnDraw(CDC* dc) {}
