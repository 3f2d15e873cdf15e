// The button cell: a push button drawn in the cell that reports a click inside it.

#include "cells/GridCellButton.h"

#include "cells/InPlaceButton.h"
#include "grid/GridCtrl.h"
#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"

IMPLEMENT_DYNCREATE(CGridCellButton, CGridCell)

namespace {

// A press this close to a side edge belongs to the grid: it may be meant for a divider.
constexpr int kEdgeZone = 4;
// Taken from the button face for a greyed caption.
constexpr COLORREF kDisabledShift = 0x444450;

} // namespace

BOOL CGridCellButton::Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground) {
    if (IsEditing()) {
        return TRUE;
    }
    const int saved = dc->SaveDC();
    const CString caption = GetText();
    SetText("");
    const BOOL result = CGridCell::Draw(dc, row, col, rect, eraseBackground);

    // A cell too small for a frame and a caption shows its background only.
    const int edgeX = ::GetSystemMetrics(SM_CXEDGE);
    const int edgeY = ::GetSystemMetrics(SM_CYEDGE);
    if (rect.Width() > 2 * edgeX + 8 && rect.Height() > 2 * edgeY) {
        dc->DrawFrameControl(&rect, DFC_BUTTON, DFCS_BUTTONPUSH);
        rect.DeflateRect(edgeX, edgeY);
        dc->SelectObject(GetFontObject());
        COLORREF textColor = GetTextClr();
        if (textColor == CLR_DEFAULT && GetDefaultCell() != nullptr) {
            textColor = GetDefaultCell()->GetTextClr();
        }
        if (IsDisabled()) {
            textColor = ::GetSysColor(COLOR_BTNFACE) - kDisabledShift;
        }
        dc->SetTextColor(textColor);
        dc->SetBkMode(TRANSPARENT);
        dc->DrawText(caption, &rect,
                     DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_EXTERNALLEADING | DT_END_ELLIPSIS);
    }

    SetText(caption);
    dc->RestoreDC(saved);
    return result;
}

BOOL CGridCellButton::OnClickDown(CPoint point, int row, int col) {
    m_bEnabled = !IsDisabled();
    CGridCtrl* grid = GetGrid();
    CRect rect;
    if (grid == nullptr || !grid->GetCellRect(row, col, &rect) || !m_bEnabled ||
        point.x <= kEdgeZone || point.x >= rect.Width() - kEdgeZone) {
        return FALSE;
    }
    grid->SetFocusCell(row, col);
    // The button owns itself from here on.
    new CInPlaceButton(GetText(), GetFontObject(), rect, BS_PUSHBUTTON, IDC_INPLACE_BUTTON,
                       VK_LBUTTON, point, grid, row, col);
    return TRUE;
}
