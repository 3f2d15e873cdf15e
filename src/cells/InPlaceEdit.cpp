// The in-place text editor of a cell: an edit control that ends the edit when it loses focus.

#include "cells/InPlaceEdit.h"

#include "cells/InPlaceEndEdit.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/Font.h"

IMPLEMENT_DYNAMIC(CInPlaceEdit, CEdit)

namespace {

bool IsNavigationKey(UINT key) {
    return key >= VK_PRIOR && key <= VK_DOWN;
}

} // namespace

CInPlaceEdit::CInPlaceEdit(CWnd* parent, CRect& rect, DWORD style, UINT id, int row, int column,
                           CString initText, UINT firstChar)
    : m_nRow(row), m_nColumn(column), m_sInitText(initText),
      m_bExitOnArrows(firstChar != VK_LBUTTON), m_Rect(rect) {
    if (!Create(WS_BORDER | WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | style, rect, parent, id)) {
        return; // stays windowless
    }
    SetFont(parent->GetFont());
    SetWindowText(initText);
    SetFocus();

    // A typed character replaces the text; a space or an arrow carried over from the edit
    // before only selects it; the mouse and Return put the caret at the end.
    const int length = initText.GetLength();
    switch (firstChar) {
    case VK_LBUTTON:
    case VK_RETURN:
        SetSel(length, length);
        break;
    case VK_BACK:
        SetSel(length, length);
        SendMessage(WM_CHAR, firstChar);
        break;
    case VK_TAB:
    case VK_SPACE:
        SetSel(0, -1);
        break;
    default:
        SetSel(0, -1);
        if (!IsNavigationKey(firstChar)) {
            SendMessage(WM_CHAR, firstChar);
        }
        break;
    }
    if (::IsWindow(m_hWnd)) {
        SendMessage(EM_SCROLLCARET);
    }
}

void CInPlaceEdit::OnChar(UINT ch, UINT repeat, UINT flags) {
    if (ch == VK_TAB || ch == VK_RETURN || ch == VK_ESCAPE) {
        if (ch == VK_ESCAPE) {
            SetWindowText(m_sInitText);
        }
        m_nLastChar = ch;
        // Losing the focus ends the edit and this object with it: nothing may follow.
        GetParent()->SetFocus();
        return;
    }
    CEdit::OnChar(ch, repeat, flags);
    GrowToText();
}

// Widens the window to the right as the text grows, up to the parent's client edge; it never
// shrinks and keeps its height.
void CInPlaceEdit::GrowToText() {
    CString text;
    GetWindowText(text);
    text += "  ";
    CDC* dc = GetDC();
    if (dc == nullptr) {
        return;
    }
    CFont* oldFont = dc->SelectObject(GetFont());
    const CSize size = dc->GetTextExtent(text);
    dc->SelectObject(oldFont);
    ReleaseDC(dc);
    if (size.cx <= m_Rect.Width()) {
        return;
    }
    CRect parentClient;
    GetParent()->GetClientRect(&parentClient);
    m_Rect.right =
        m_Rect.left + size.cx < parentClient.right ? m_Rect.left + size.cx : parentClient.right;
    MoveWindow(&m_Rect);
}

void CInPlaceEdit::OnKeyDown(UINT ch, UINT repeat, UINT flags) {
    if (IsNavigationKey(ch) && (m_bExitOnArrows || ::GetKeyState(VK_CONTROL) < 0)) {
        m_nLastChar = ch;
        GetParent()->SetFocus(); // ends the edit, and this object
        return;
    }
    CEdit::OnKeyDown(ch, repeat, flags);
}

void CInPlaceEdit::OnKillFocus(CWnd* newWnd) {
    CEdit::OnKillFocus(newWnd);
    EndEdit();
}

UINT CInPlaceEdit::OnGetDlgCode() {
    return DLGC_WANTALLKEYS;
}

BOOL CInPlaceEdit::PreTranslateMessage(MSG* msg) {
    if (msg->message == WM_SYSCHAR) {
        return TRUE;
    }
    return CEdit::PreTranslateMessage(msg);
}

void CInPlaceEdit::EndEdit() {
    // Ending moves the focus, and losing the focus ends an edit: one end at a time in the
    // process, whichever editor it is. Single-threaded, as every window is.
    static bool ending = false;
    if (ending || m_hWnd == nullptr) {
        return;
    }
    ending = true;
    const HWND self = m_hWnd;
    CString text;
    GetWindowText(text);
    SendEndEdit(*this, m_nRow, m_nColumn, text, m_nLastChar);
    // The grid may have closed the editor already; this object goes with its window.
    if (::IsWindow(self)) {
        ::SendMessage(self, WM_CLOSE, 0, 0);
    }
    ending = false;
}

void CInPlaceEdit::PostNcDestroy() {
    CEdit::PostNcDestroy();
    delete this;
}
