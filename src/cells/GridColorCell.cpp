// The colour cell: a cell that shows its background colour and opens the chooser.

#include "cells/GridColorCell.h"

#include "cells/ColorChooserDlg.h"
#include "grid/GridCtrl.h"
#include "grid/GridNotify.h"

IMPLEMENT_DYNCREATE(CGridColorCell, CGridCell)

void CGridColorCell::OnDblClick(CPoint point, int row, int col) {
    CGridCtrl* grid = GetGrid();
    if (grid == nullptr || IsDisabled()) {
        return;
    }
    COLORREF shown = GetBackClr();
    if (shown == CLR_DEFAULT && GetDefaultCell() != nullptr) {
        shown = GetDefaultCell()->GetBackClr();
    }
    const HWND gridWindow = grid->GetSafeHwnd();
    CColorChooserDlg chooser(shown, grid);
    if (chooser.DoModal() != IDOK) {
        return;
    }
    // While the chooser was open the grid, and this cell with it, may have gone: go on by the
    // grid's handle and the cell's place.
    if (!::IsWindow(gridWindow) || !grid->IsValid(row, col) || grid->GetCell(row, col) != this) {
        return;
    }
    SetBackClr(chooser.GetColor());
    grid->SetModified(TRUE, row, col);
    grid->RedrawCell(row, col);
    SendMessageToParent(row, col, GV_NOTIFY_CELLBUTTON);
}
