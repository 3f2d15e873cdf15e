// The transient button over a button or check box cell, alive from the press to the release.

#include "cells/InPlaceButton.h"

#include "cells/GridCellCheckbox.h"
#include "grid/GridCtrl.h"
#include "grid/GridNotify.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"

IMPLEMENT_DYNAMIC(CInPlaceButton, CButton)

namespace {

bool IsAutoCheckBox(DWORD style) {
    return (style & BS_AUTOCHECKBOX) == BS_AUTOCHECKBOX;
}

} // namespace

CInPlaceButton::CInPlaceButton(LPCTSTR caption, CFont* font, CRect& rect, DWORD style, UINT id,
                               UINT firstChar, CPoint& point, CWnd* parent, int row, int col)
    : m_nRow(row), m_nCol(col) {
    // The object is only ever made with new (its destructor is private) and nobody keeps the
    // pointer, so a press that cannot be passed on ends it here.
    const bool checkBox = IsAutoCheckBox(style);
    if ((firstChar != VK_LBUTTON && firstChar != VK_SPACE) ||
        !Create(checkBox ? "" : caption, WS_CHILD | style, rect, parent, id)) {
        delete this;
        return;
    }
    const HWND self = m_hWnd;
    if (checkBox) {
        SetCheck(caption != nullptr ? BST_CHECKED : BST_UNCHECKED);
    } else if (font != nullptr) {
        SetFont(font);
    }
    SetState(TRUE);
    if (firstChar == VK_LBUTTON) {
        SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(WORD(point.x), WORD(point.y)));
    } else {
        SendMessage(WM_KEYDOWN, VK_SPACE, 0);
    }
    // Taking the press moves the focus here, and a focus handler may have closed the window.
    if (::IsWindow(self)) {
        ShowWindow(SW_SHOW);
    }
}

BOOL CInPlaceButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED) {
        OnReflectBnClicked();
        return TRUE;
    }
    return CButton::OnChildNotify(message, wParam, lParam, result);
}

void CInPlaceButton::OnReflectBnClicked() {
    CWnd* parent = GetParent();
    if (parent == nullptr || !parent->IsKindOf(RUNTIME_CLASS(CGridCtrl))) {
        return;
    }
    auto* grid = static_cast<CGridCtrl*>(parent);
    CGridCellBase* cell = grid->IsValid(m_nRow, m_nCol) ? grid->GetCell(m_nRow, m_nCol) : nullptr;
    if (cell == nullptr) {
        return;
    }
    // The button has toggled its check already; the cell takes it before the owner hears.
    if (cell->IsKindOf(RUNTIME_CLASS(CGridCellCheckbox))) {
        cell->SetData(GetCheck());
    }
    cell->SendMessageToParent(m_nRow, m_nCol, GV_NOTIFY_CELLBUTTON);
}

void CInPlaceButton::OnLButtonUp(UINT flags, CPoint point) {
    const HWND parent = ::GetParent(m_hWnd);
    // The release may run the click, and the owner's answer to it may do anything: only the
    // parent's handle is used after it.
    CButton::OnLButtonUp(flags, point);
    if (::IsWindow(parent)) {
        ::SetFocus(parent); // this button closes as it loses the focus
        ::SendMessage(parent, WM_LBUTTONUP, flags, MAKELPARAM(0, 0));
    }
}

void CInPlaceButton::OnKillFocus(CWnd* newWnd) {
    CButton::OnKillFocus(newWnd);
    if (newWnd != this && ::IsWindow(m_hWnd)) {
        PostMessage(WM_CLOSE);
    }
}

void CInPlaceButton::PostNcDestroy() {
    CButton::PostNcDestroy();
    delete this;
}
