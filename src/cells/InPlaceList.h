#pragma once

// CInPlaceList: the short-lived combo box laid over a combo cell, opened at once with its list
// of options. It owns itself: made with new by the cell, it deletes itself once its window is
// gone. When the edit ends it tells the grid the chosen text and the key that ended it, then
// posts itself a close.

#include "cells/ComboEdit.h"
#include "platform/base/Rect.h"
#include "platform/base/String.h"
#include "platform/base/StringArray.h"
#include "platform/widgets/ComboBox.h"

class ORVA_API CInPlaceList : public CComboBox {
    DECLARE_DYNAMIC(CInPlaceList)
public:
    // `dwStyle` is CBS_DROPDOWN (a free edit field) or CBS_DROPDOWNLIST; `rect` is the cell's.
    // `crFore` and `crBack` are kept but not used: the list keeps the platform's colours.
    CInPlaceList(CWnd* pParent, CRect& rect, DWORD dwStyle, UINT nID, int nRow, int nColumn,
                 COLORREF crFore, COLORREF crBack, CStringArray& items, CString sInitText,
                 UINT nFirstChar);

    // Sends the end notification and posts the close.
    void EndEdit();
    // The edit field, or null in a drop-down list, which has none.
    CComboEdit* GetEditField();

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

protected:
    // The widest item with room for a scroll bar, never above 200 pixels.
    int GetCorrectDropWidth();

    void OnKillFocus(CWnd* pNewWnd) override;
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) override;
    // Swallows the releases of Tab, Return and Escape that the edit field hands on.
    void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags) override {}
    UINT OnGetDlgCode() override;
    void OnCloseUp();
    void OnDropDown();
    // The list deletes itself with its window.
    void PostNcDestroy() override;

private:
    ~CInPlaceList() override = default;
    bool IsListOnly() const;
    // Makes the closed combo, frame included, `height` pixels high.
    void FitFieldTo(int height);

    CComboEdit m_edit;
    int m_nNumLines;
    CString m_sInitText;
    int m_nRow;
    int m_nCol;
    UINT m_nLastChar = 0;
    BOOL m_bExitOnArrows = FALSE;
    COLORREF m_crForeClr;
    COLORREF m_crBackClr;
};
