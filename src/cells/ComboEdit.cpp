// The edit field of an in-place drop-down list: hands the list's keys on and ends the edit.

#include "cells/ComboEdit.h"

#include "cells/InPlaceList.h"

IMPLEMENT_DYNAMIC(CComboEdit, CEdit)

namespace {

// The combo box's edit child, the only one whose keys go on to the in-place list.
constexpr int kComboEditId = 1001;

// The keys that, with Control held, end the edit and carry it on to a neighbouring cell; Home
// and End stay with the field.
bool IsExitArrow(UINT key) {
    return key == VK_PRIOR || key == VK_NEXT || (key >= VK_LEFT && key <= VK_DOWN);
}

CInPlaceList* InPlaceListOf(CWnd* wnd) {
    return wnd != nullptr && wnd->IsKindOf(RUNTIME_CLASS(CInPlaceList))
               ? static_cast<CInPlaceList*>(wnd)
               : nullptr;
}

} // namespace

BOOL CComboEdit::PreTranslateMessage(MSG* msg) {
    // Keys are the editor's own: no dialog or accelerator above may take them first.
    if (msg->message == WM_KEYDOWN || msg->message == WM_KEYUP) {
        ::TranslateMessage(msg);
        ::DispatchMessage(msg);
        return TRUE;
    }
    if (msg->message == WM_SYSCHAR) {
        return TRUE;
    }
    return CEdit::PreTranslateMessage(msg);
}

void CComboEdit::OnKeyDown(UINT ch, UINT repeat, UINT flags) {
    if (IsExitArrow(ch) && ::GetKeyState(VK_CONTROL) < 0 && GetDlgCtrlID() == kComboEditId) {
        if (CInPlaceList* list = InPlaceListOf(GetParent())) {
            list->SendMessage(WM_KEYDOWN, ch, MAKELPARAM(WORD(repeat), WORD(flags)));
            return;
        }
    }
    CEdit::OnKeyDown(ch, repeat, flags);
}

void CComboEdit::OnKeyUp(UINT ch, UINT repeat, UINT flags) {
    if (ch == VK_TAB || ch == VK_RETURN || ch == VK_ESCAPE) {
        if (CInPlaceList* list = InPlaceListOf(GetParent())) {
            list->SendMessage(WM_KEYUP, ch, MAKELPARAM(WORD(repeat), WORD(flags)));
            return;
        }
    }
    CEdit::OnKeyUp(ch, repeat, flags);
}

void CComboEdit::OnKillFocus(CWnd* newWnd) {
    CEdit::OnKillFocus(newWnd);
    if (CInPlaceList* list = InPlaceListOf(GetParent())) {
        list->EndEdit();
    }
}
