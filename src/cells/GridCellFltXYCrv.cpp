// The XY curve cell: a constant, a transient curve or a data set in one cell.

#include "cells/GridCellFltXYCrv.h"

IMPLEMENT_DYNCREATE(CGridCellFltXYCrv, CGridCell)

CGridCellFltXYCrv::CGridCellFltXYCrv() {
    m_Options.Add("<constant>");
    m_Options.Add("<transient>");
    m_Options.Add("<data set>");
}

void CGridCellFltXYCrv::SetText(LPCTSTR text) {
    CGridCell::SetText(text);
}

void CGridCellFltXYCrv::SetData(LPARAM data) {}

LPARAM CGridCellFltXYCrv::GetData() const {
    return 0;
}

BOOL CGridCellFltXYCrv::Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground) {
    return CGridCell::Draw(dc, row, col, rect, eraseBackground);
}

BOOL CGridCellFltXYCrv::GetTextRect(LPRECT rect) {
    return CGridCell::GetTextRect(rect);
}

CSize CGridCellFltXYCrv::GetCellExtent(CDC* dc) {
    return CGridCell::GetCellExtent(dc);
}

BOOL CGridCellFltXYCrv::Edit(int row, int col, CRect rect, CPoint point, UINT id, UINT ch) {
    return CGridCell::Edit(row, col, rect, point, id, ch);
}

BOOL CGridCellFltXYCrv::OnClickDown(CPoint point, int row, int col) {
    return FALSE;
}

void CGridCellFltXYCrv::SetComboSelection(int index) {}

void CGridCellFltXYCrv::SetComboText(const char* text) {}

void CGridCellFltXYCrv::SetOptions(CStringArray& options) {}

void CGridCellFltXYCrv::GetOptions(CStringArray& options) const {}

CRect CGridCellFltXYCrv::GetTopRect(CRect rect) const {
    return rect;
}

CRect CGridCellFltXYCrv::GetBotRect(CRect rect) const {
    return rect;
}

int CGridCellFltXYCrv::IndexFromComboText(const char* text) const {
    return -1;
}
