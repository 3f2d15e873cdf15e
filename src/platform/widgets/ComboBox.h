#pragma once

// CComboBox: the combo box ("ComboBox" window class) with its CB_ messages: CBS_DROPDOWN (an
// "Edit" child of id 1001 that a derived class may subclass) and CBS_DROPDOWNLIST. The member
// functions are thin wrappers over the messages. The height given at creation is that of the
// closed field and the open list together; the window keeps the field's height.

#include "platform/window/Wnd.h"

class ORVA_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    CComboBox() = default;

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Items. Indexes count from 0; CB_ERR (-1) answers a bad index or a failed search.
    int AddString(LPCSTR text);
    int InsertString(int index, LPCSTR text);
    int DeleteString(UINT index);
    void ResetContent();
    int GetCount() const;
    int GetLBText(int index, LPSTR buffer) const;
    void GetLBText(int index, CString& text) const;
    int GetLBTextLen(int index) const;
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR data);

    // The selection, and finding by text: a prefix, or the whole text, without regard to case,
    // searching after `startAfter` (-1: from the start) and round again.
    int GetCurSel() const;
    int SetCurSel(int select);
    int FindString(int startAfter, LPCSTR text) const;
    int FindStringExact(int startAfter, LPCSTR text) const;
    int SelectString(int startAfter, LPCSTR text);

    // Sizes: -1 is the selection field, any other index the list's items.
    int SetItemHeight(int index, UINT height);
    int GetItemHeight(int index) const;
    int SetDroppedWidth(UINT width);
    int GetDroppedWidth() const;
    void SetHorizontalExtent(UINT extent);
    UINT GetHorizontalExtent() const;
    int GetTopIndex() const;
    int SetTopIndex(int index);

    // The list.
    void ShowDropDown(BOOL show = TRUE);
    BOOL GetDroppedState() const;
    void GetDroppedControlRect(LPRECT rect) const;

    // The edit field of a drop-down combo.
    BOOL LimitText(int maxChars);
    DWORD GetEditSel() const;
    BOOL SetEditSel(int start, int end);
};
