#include "grid/GridDropTarget.h"

#include "grid/GridCtrl.h"

BOOL CGridDropTarget::Register(CGridCtrl* grid) {
    // Registering reaches the window layer, which may call back; the guard is shared by all
    // targets, which live on one thread.
    static bool registering = false;
    if (m_bRegistered || registering || grid == nullptr ||
        !grid->IsKindOf(RUNTIME_CLASS(CGridCtrl))) {
        return FALSE;
    }
    registering = true;
    m_pGridCtrl = grid;
    m_bRegistered = COleDropTarget::Register(grid);
    registering = false;
    return m_bRegistered;
}

void CGridDropTarget::Revoke() {
    m_bRegistered = FALSE;
    COleDropTarget::Revoke();
}

bool CGridDropTarget::ForMyGrid(CWnd* wnd) const {
    return m_pGridCtrl != nullptr && SafeHwnd(wnd) != nullptr &&
           SafeHwnd(wnd) == m_pGridCtrl->GetSafeHwnd();
}

DROPEFFECT CGridDropTarget::OnDragEnter(CWnd* wnd, COleDataObject* dataObject, DWORD keyState,
                                        CPoint point) {
    return ForMyGrid(wnd) ? m_pGridCtrl->OnDragEnter(dataObject, keyState, point) : DROPEFFECT_NONE;
}

DROPEFFECT CGridDropTarget::OnDragOver(CWnd* wnd, COleDataObject* dataObject, DWORD keyState,
                                       CPoint point) {
    return ForMyGrid(wnd) ? m_pGridCtrl->OnDragOver(dataObject, keyState, point) : DROPEFFECT_NONE;
}

void CGridDropTarget::OnDragLeave(CWnd* wnd) {
    if (ForMyGrid(wnd)) {
        m_pGridCtrl->OnDragLeave();
    }
}

BOOL CGridDropTarget::OnDrop(CWnd* wnd, COleDataObject* dataObject, DROPEFFECT dropEffect,
                             CPoint point) {
    return ForMyGrid(wnd) && m_pGridCtrl->OnDrop(dataObject, dropEffect, point);
}

DROPEFFECT CGridDropTarget::OnDragScroll(CWnd* wnd, DWORD keyState, CPoint point) {
    if (!ForMyGrid(wnd)) {
        return DROPEFFECT_NONE;
    }
    return (keyState & MK_CONTROL) ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
}
