// The check box cell: a box and a label, toggled by a press and release on the box.

#include "cells/GridCellCheckbox.h"

#include "cells/InPlaceButton.h"
#include "grid/GridCtrl.h"
#include "platform/gdi/DC.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CGridCellCheckbox, CGridCell)

namespace {

constexpr int kBoxSide = 14;
constexpr int kLabelGap = 4;
constexpr COLORREF kSelectedLabel = RGB(255, 255, 255);

int BoxSide(const CRect& cellRect) {
    return std::min({kBoxSide, cellRect.Width() - 2, cellRect.Height() - 2});
}

} // namespace

CRect CGridCellCheckbox::BoxRect(const CRect& cellRect) {
    const int side = BoxSide(cellRect);
    return CRect(cellRect.left + 1, cellRect.top + 1, cellRect.left + 1 + side,
                 cellRect.top + 1 + side);
}

BOOL CGridCellCheckbox::Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground) {
    if (IsEditing()) {
        return TRUE;
    }
    const int saved = dc->SaveDC();
    // The base draws background and borders only; the box and label follow.
    const CString label = GetText();
    SetText("");
    const BOOL result = CGridCell::Draw(dc, row, col, rect, eraseBackground);

    CRect box = BoxRect(rect);
    dc->DrawFrameControl(&box, DFC_BUTTON, DFCS_BUTTONCHECK | (GetData() != 0 ? DFCS_CHECKED : 0));

    CRect labelRect = rect;
    labelRect.left = box.right + kLabelGap;
    dc->SelectObject(GetFontObject());
    COLORREF textColor = GetTextClr();
    if (textColor == CLR_DEFAULT && GetDefaultCell() != nullptr) {
        textColor = GetDefaultCell()->GetTextClr();
    }
    dc->SetTextColor(IsSelected() ? kSelectedLabel : textColor);
    dc->SetBkMode(TRANSPARENT);
    dc->DrawText(label, &labelRect,
                 GetFormat() | DT_END_ELLIPSIS | DT_EXTERNALLEADING | DT_SINGLELINE);

    SetText(label);
    dc->RestoreDC(saved);
    return result;
}

BOOL CGridCellCheckbox::OnClickDown(CPoint point, int row, int col) {
    m_bEnabled = !IsDisabled();
    CGridCtrl* grid = GetGrid();
    CRect rect;
    if (grid == nullptr || !grid->GetCellRect(row, col, &rect)) {
        return FALSE;
    }
    const int side = BoxSide(rect);
    const bool onBox = point.x > 0 && point.y > 0 && point.x <= side && point.y <= side;
    if (!onBox || !m_bEnabled) {
        return FALSE;
    }
    grid->SetFocusCell(row, col);
    CRect box = BoxRect(rect);
    // The button owns itself from here on.
    new CInPlaceButton(GetData() != 0 ? "" : nullptr, nullptr, box, BS_AUTOCHECKBOX,
                       IDC_INPLACE_BUTTON, VK_LBUTTON, point, grid, row, col);
    return TRUE;
}
