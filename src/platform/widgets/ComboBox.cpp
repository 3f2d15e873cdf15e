// CComboBox's wrappers over the combo box's messages.

#include "platform/widgets/ComboBox.h"

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create("ComboBox", nullptr, style, rect, parent, id);
}

int CComboBox::AddString(LPCSTR text) {
    return int(SendMessage(CB_ADDSTRING, 0, LPARAM(text)));
}
int CComboBox::InsertString(int index, LPCSTR text) {
    return int(SendMessage(CB_INSERTSTRING, WPARAM(index), LPARAM(text)));
}
int CComboBox::DeleteString(UINT index) {
    return int(SendMessage(CB_DELETESTRING, WPARAM(index)));
}
void CComboBox::ResetContent() {
    SendMessage(CB_RESETCONTENT);
}
int CComboBox::GetCount() const {
    return int(SendMessage(CB_GETCOUNT));
}
int CComboBox::GetLBText(int index, LPSTR buffer) const {
    return int(SendMessage(CB_GETLBTEXT, WPARAM(index), LPARAM(buffer)));
}
void CComboBox::GetLBText(int index, CString& text) const {
    const int length = GetLBTextLen(index);
    if (length == CB_ERR) {
        text.Empty();
        return;
    }
    GetLBText(index, text.GetBufferSetLength(length));
    text.ReleaseBuffer();
}
int CComboBox::GetLBTextLen(int index) const {
    return int(SendMessage(CB_GETLBTEXTLEN, WPARAM(index)));
}
DWORD_PTR CComboBox::GetItemData(int index) const {
    return DWORD_PTR(SendMessage(CB_GETITEMDATA, WPARAM(index)));
}
int CComboBox::SetItemData(int index, DWORD_PTR data) {
    return int(SendMessage(CB_SETITEMDATA, WPARAM(index), LPARAM(data)));
}

int CComboBox::GetCurSel() const {
    return int(SendMessage(CB_GETCURSEL));
}
int CComboBox::SetCurSel(int select) {
    return int(SendMessage(CB_SETCURSEL, WPARAM(select)));
}
int CComboBox::FindString(int startAfter, LPCSTR text) const {
    return int(SendMessage(CB_FINDSTRING, WPARAM(startAfter), LPARAM(text)));
}
int CComboBox::FindStringExact(int startAfter, LPCSTR text) const {
    return int(SendMessage(CB_FINDSTRINGEXACT, WPARAM(startAfter), LPARAM(text)));
}
int CComboBox::SelectString(int startAfter, LPCSTR text) {
    return int(SendMessage(CB_SELECTSTRING, WPARAM(startAfter), LPARAM(text)));
}

int CComboBox::SetItemHeight(int index, UINT height) {
    return int(SendMessage(CB_SETITEMHEIGHT, WPARAM(index), LPARAM(height)));
}
int CComboBox::GetItemHeight(int index) const {
    return int(SendMessage(CB_GETITEMHEIGHT, WPARAM(index)));
}
int CComboBox::SetDroppedWidth(UINT width) {
    return int(SendMessage(CB_SETDROPPEDWIDTH, WPARAM(width)));
}
int CComboBox::GetDroppedWidth() const {
    return int(SendMessage(CB_GETDROPPEDWIDTH));
}
void CComboBox::SetHorizontalExtent(UINT extent) {
    SendMessage(CB_SETHORIZONTALEXTENT, WPARAM(extent));
}
UINT CComboBox::GetHorizontalExtent() const {
    return UINT(SendMessage(CB_GETHORIZONTALEXTENT));
}
int CComboBox::GetTopIndex() const {
    return int(SendMessage(CB_GETTOPINDEX));
}
int CComboBox::SetTopIndex(int index) {
    return int(SendMessage(CB_SETTOPINDEX, WPARAM(index)));
}

void CComboBox::ShowDropDown(BOOL show) {
    SendMessage(CB_SHOWDROPDOWN, WPARAM(show));
}
BOOL CComboBox::GetDroppedState() const {
    return BOOL(SendMessage(CB_GETDROPPEDSTATE));
}
void CComboBox::GetDroppedControlRect(LPRECT rect) const {
    SendMessage(CB_GETDROPPEDCONTROLRECT, 0, LPARAM(rect));
}

BOOL CComboBox::LimitText(int maxChars) {
    return BOOL(SendMessage(CB_LIMITTEXT, WPARAM(maxChars)));
}
DWORD CComboBox::GetEditSel() const {
    return DWORD(SendMessage(CB_GETEDITSEL));
}
BOOL CComboBox::SetEditSel(int start, int end) {
    return BOOL(SendMessage(CB_SETEDITSEL, 0, MAKELPARAM(WORD(start), WORD(end))));
}
