#pragma once

// CGridDropTarget: the drop target of one grid. It answers only for its grid's window and
// hands each drag event to the grid, which decides what a drop does.

#include "platform/window/OleDropTarget.h"

class CGridCtrl;

class ORVA_API CGridDropTarget : public COleDropTarget {
public:
    // Registers for the grid's window, once; false if registered already, if a registration is
    // running, or if `grid` is not a grid.
    BOOL Register(CGridCtrl* grid);
    void Revoke() override;
    BOOL IsRegistered() const { return m_bRegistered; }

    DROPEFFECT OnDragEnter(CWnd* wnd, COleDataObject* dataObject, DWORD keyState,
                           CPoint point) override;
    DROPEFFECT OnDragOver(CWnd* wnd, COleDataObject* dataObject, DWORD keyState,
                          CPoint point) override;
    void OnDragLeave(CWnd* wnd) override;
    BOOL OnDrop(CWnd* wnd, COleDataObject* dataObject, DROPEFFECT dropEffect,
                CPoint point) override;
    // Does not scroll: it answers the effect by the keys for the grid's window.
    DROPEFFECT OnDragScroll(CWnd* wnd, DWORD keyState, CPoint point) override;

private:
    bool ForMyGrid(CWnd* wnd) const;

    CGridCtrl* m_pGridCtrl = nullptr;
    BOOL m_bRegistered = FALSE;
};
