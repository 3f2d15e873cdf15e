// Drag and drop of ranges: a drag of a selection leaves as the grid's clipboard text, and text
// dropped on an editable cell is pasted there. A move clears the source cells once the drop
// has taken them.

#include "grid/GridCtrl.h"

#include "grid/GridDropTarget.h"
#include "platform/gdi/Bitmap.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/ImageList.h"
#include "platform/host/Clipboard.h"

#include <memory>

namespace {

DROPEFFECT EffectByKeys(DWORD keyState) {
    return (keyState & MK_CONTROL) ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
}

} // namespace

void CGridCtrl::RegisterDropTarget() {
    if (m_dropTarget == nullptr) {
        m_dropTarget = std::make_unique<CGridDropTarget>();
    }
    m_dropTarget->Register(this);
}

void CGridCtrl::OnDestroy() {
    if (m_dropTarget != nullptr) {
        m_dropTarget->Revoke();
    }
    CWnd::OnDestroy();
}

void CGridCtrl::SetDropHighlight(const CCellID& cell, bool on) {
    if (!IsValid(cell)) {
        return;
    }
    const UINT state = GetItemState(cell.row, cell.col);
    SetItemState(cell.row, cell.col,
                 on ? state | GV_STATE_DROPHILITED : state & ~GV_STATE_DROPHILITED);
    RedrawCell(cell);
}

DROPEFFECT CGridCtrl::OnDragEnter(COleDataObject* dataObject, DWORD keyState, CPoint point) {
    if (!m_allowDragAndDrop || dataObject == nullptr || !dataObject->IsDataAvailable(CF_TEXT)) {
        return DROPEFFECT_NONE;
    }
    m_lastDragOverCell = GetCellFromPt(point, FALSE);
    if (!IsValid(m_lastDragOverCell) || !IsCellEditable(m_lastDragOverCell)) {
        return DROPEFFECT_NONE;
    }
    SetDropHighlight(m_lastDragOverCell, true);
    return EffectByKeys(keyState);
}

DROPEFFECT CGridCtrl::OnDragOver(COleDataObject* dataObject, DWORD keyState, CPoint point) {
    if (!m_allowDragAndDrop || !m_editable || dataObject == nullptr ||
        !dataObject->IsDataAvailable(CF_TEXT)) {
        return DROPEFFECT_NONE;
    }
    const CCellID cell = GetCellFromPt(point, FALSE);
    if (!IsValid(cell)) {
        OnDragLeave();
        m_lastDragOverCell = CCellID(-1, -1);
        return DROPEFFECT_NONE;
    }
    if (!IsCellEditable(cell)) {
        return DROPEFFECT_NONE; // the highlight stays where it was
    }
    if (cell != m_lastDragOverCell) {
        SetDropHighlight(m_lastDragOverCell, false);
        m_lastDragOverCell = cell;
        SetDropHighlight(m_lastDragOverCell, true);
    }
    return EffectByKeys(keyState);
}

void CGridCtrl::OnDragLeave() {
    SetDropHighlight(m_lastDragOverCell, false);
}

BOOL CGridCtrl::OnDrop(COleDataObject* dataObject, DROPEFFECT dropEffect, CPoint point) {
    m_mouseMode = MOUSE_NOTHING;
    if (!m_allowDragAndDrop || !IsCellEditable(m_lastDragOverCell)) {
        return FALSE;
    }
    OnDragLeave();
    // A drop is pasted without the bulk notifications that a paste command sends.
    return PasteTextToGrid(m_lastDragOverCell, dataObject);
}

void CGridCtrl::OnBeginDrag() {
    if (!m_allowDragAndDrop) {
        return;
    }
    std::unique_ptr<COleDataSource> source(CopyTextFromGrid());
    if (source == nullptr) {
        return;
    }
    const HWND self = m_hWnd;
    const CCellRange selection = GetSelectedCellRange();
    SendMessageToParent(selection.minRow, selection.minCol, GV_NOTIFY_BEGINDRAG);
    if (!::IsWindow(self)) {
        return;
    }
    m_mouseMode = MOUSE_DRAGGING;
    m_lMouseButtonDown = FALSE;
    const DROPEFFECT effect = source->DoDragDrop(DROPEFFECT_COPY | DROPEFFECT_MOVE);
    // The drop may have gone to a window that closed this grid on its way.
    if (::IsWindow(self) && (effect & DROPEFFECT_MOVE)) {
        CutSelectedText();
    }
}

CImageList* CGridCtrl::CreateDragImage(CPoint* hotSpot) {
    CRect rect;
    CGridCellBase* cell = GetCell(m_focusCell);
    if (GetSafeHwnd() == nullptr || cell == nullptr || !GetCellRect(m_focusCell, &rect)) {
        return nullptr;
    }
    const int width = rect.Width() + 1;
    const int height = rect.Height() + 1;
    if (hotSpot != nullptr) {
        *hotSpot = CPoint(width, height);
    }
    auto list = std::make_unique<CImageList>();
    if (!list->Create(width, height, ILC_MASK, 1, 1)) {
        return nullptr;
    }
    CDC* gridDC = GetDC();
    CDC memory;
    CBitmap picture;
    if (gridDC != nullptr && memory.CreateCompatibleDC(gridDC) &&
        picture.CreateCompatibleBitmap(gridDC, width, height)) {
        CBitmap* old = memory.SelectObject(&picture);
        cell->Draw(&memory, m_focusCell.row, m_focusCell.col, CRect(0, 0, width - 1, height - 1),
                   FALSE);
        memory.SelectObject(old);
        list->Add(&picture, GetDefaultCell(FALSE, FALSE)->GetBackClr());
    }
    if (gridDC != nullptr) {
        ReleaseDC(gridDC);
    }
    return list.release(); // the caller's
}
