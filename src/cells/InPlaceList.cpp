// The in-place drop-down list of a combo cell, which owns itself and ends the edit.

#include "cells/InPlaceList.h"

#include "cells/InPlaceEndEdit.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/Font.h"
#include "platform/system/SystemMetrics.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CInPlaceList, CComboBox)

namespace {

constexpr int kListRows = 4;
constexpr int kEditFieldId = 1001;
constexpr int kMaxDropWidth = 200;
// Child, visible, vertical scroll bar, and automatic horizontal scroll of the edit field.
constexpr DWORD kListWindowStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_AUTOHSCROLL;

bool IsNavigationKey(UINT key) {
    return key >= VK_PRIOR && key <= VK_DOWN;
}

// The keys that can end the edit and carry it on to a neighbouring cell; Home and End cannot.
bool IsExitArrow(UINT key) {
    return key == VK_PRIOR || key == VK_NEXT || (key >= VK_LEFT && key <= VK_DOWN);
}

} // namespace

CInPlaceList::CInPlaceList(CWnd* pParent, CRect& rect, DWORD dwStyle, UINT nID, int nRow,
                           int nColumn, COLORREF crFore, COLORREF crBack, CStringArray& items,
                           CString sInitText, UINT nFirstChar)
    : m_nNumLines(kListRows), m_sInitText(sInitText), m_nRow(nRow), m_nCol(nColumn),
      m_crForeClr(crFore), m_crBackClr(crBack) {
    // The window's height is that of the field and the open list together.
    const int cellHeight = rect.Height();
    CRect dropRect = rect;
    dropRect.bottom += GetSystemMetrics(SM_CYHSCROLL) + m_nNumLines * cellHeight;
    if (!Create(dwStyle | kListWindowStyle, dropRect, pParent, nID)) {
        return; // stays windowless
    }
    for (int i = 0; i < items.GetSize(); i++) {
        AddString(items[i]);
    }
    SetFont(pParent->GetFont());
    FitFieldTo(cellHeight);
    // A combo takes any height beyond its field for its open list; the lower field left the
    // window at the old field's height, so the whole height is given again.
    MoveWindow(dropRect);
    SetDroppedWidth(UINT(GetCorrectDropWidth()));
    SetHorizontalExtent(0);
    if (SelectString(-1, sInitText) == CB_ERR) {
        SetWindowText(sInitText);
    }
    ShowDropDown();
    SetFocus();

    if (IsListOnly()) {
        return;
    }
    m_edit.SubclassDlgItem(kEditFieldId, this);
    // As in the text editor, but Tab and space are typed like any other key. The key goes to
    // the edit field, which is where the combo box would pass it.
    const int length = m_edit.GetWindowTextLength();
    switch (nFirstChar) {
    case VK_LBUTTON:
    case VK_RETURN:
        SetEditSel(length, length);
        break;
    case VK_BACK:
        SetEditSel(length, length);
        m_edit.SendMessage(WM_CHAR, nFirstChar);
        break;
    default:
        SetEditSel(0, -1);
        if (!IsNavigationKey(nFirstChar)) {
            m_edit.SendMessage(WM_CHAR, nFirstChar);
        }
        break;
    }
}

void CInPlaceList::FitFieldTo(int height) {
    // The closed combo is its field's item height and a frame around it; the frame is what the
    // window shows beyond that item, so that the whole field, frame and all, fits the row.
    CRect closed;
    GetWindowRect(&closed);
    const int frame = closed.Height() - GetItemHeight(-1);
    SetItemHeight(-1, UINT(std::max(1, height - frame)));
}

CComboEdit* CInPlaceList::GetEditField() {
    return IsListOnly() ? nullptr : &m_edit;
}

bool CInPlaceList::IsListOnly() const {
    return (GetStyle() & 0x3) == CBS_DROPDOWNLIST;
}

int CInPlaceList::GetCorrectDropWidth() {
    CDC* dc = GetDC();
    if (dc == nullptr) {
        return 0;
    }
    CFont* oldFont = dc->SelectObject(GetFont());
    const int scrollWidth = GetSystemMetrics(SM_CXVSCROLL);
    int width = 0;
    for (int i = 0; i < GetCount(); i++) {
        CString item;
        GetLBText(i, item);
        width = std::max(width, int(dc->GetTextExtent(item).cx) + scrollWidth);
    }
    width += dc->GetTextExtent("0").cx;
    dc->SelectObject(oldFont);
    ReleaseDC(dc);
    return std::min(width, kMaxDropWidth);
}

BOOL CInPlaceList::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND) {
        switch (HIWORD(wParam)) {
        case CBN_CLOSEUP:
            OnCloseUp();
            return TRUE;
        case CBN_DROPDOWN:
            OnDropDown();
            return TRUE;
        default:
            break;
        }
    }
    return CComboBox::OnChildNotify(message, wParam, lParam, result);
}

void CInPlaceList::OnDropDown() {
    SetDroppedWidth(UINT(GetCorrectDropWidth()));
}

void CInPlaceList::OnCloseUp() {
    // A pick ends a list-only edit; in a drop-down the user may go on typing.
    if (IsListOnly()) {
        GetParent()->SetFocus(); // ends the edit, and this object with it
    }
}

void CInPlaceList::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    const bool exitByArrow =
        IsExitArrow(nChar) && (m_bExitOnArrows || ::GetKeyState(VK_CONTROL) < 0);
    if (exitByArrow || nChar == VK_TAB || nChar == VK_RETURN) {
        m_nLastChar = nChar;
        GetParent()->SetFocus(); // ends the edit, and this object with it
        return;
    }
    if (nChar == VK_ESCAPE) {
        SetWindowText(m_sInitText);
        m_nLastChar = nChar;
        GetParent()->SetFocus();
        return;
    }
    // Plain arrows walk the list.
    CComboBox::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CInPlaceList::OnKillFocus(CWnd* pNewWnd) {
    CComboBox::OnKillFocus(pNewWnd);
    // In a drop-down the focus passes between the combo box and its edit field, whose own loss
    // of focus ends the edit.
    if (pNewWnd != this && IsListOnly()) {
        EndEdit();
    }
}

UINT CInPlaceList::OnGetDlgCode() {
    return DLGC_WANTALLKEYS;
}

void CInPlaceList::EndEdit() {
    const HWND self = m_hWnd;
    CString text;
    if (::IsWindow(self)) {
        GetWindowText(text);
    }
    SendEndEdit(*this, m_nRow, m_nCol, text, m_nLastChar);
    // The close is posted, not sent: the combo box may still be inside the handler of the
    // notification that ended the edit (a pick in its list), and must not die under it. The
    // grid may have destroyed the window already, so it is looked up again by its handle.
    if (::IsWindow(self)) {
        ::PostMessage(self, WM_CLOSE, 0, 0);
    }
}

void CInPlaceList::PostNcDestroy() {
    CComboBox::PostNcDestroy();
    delete this;
}
