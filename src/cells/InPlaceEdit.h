#pragma once

// CInPlaceEdit: the short-lived text editor laid over a grid cell. It owns itself: made with
// new by the cell, it deletes itself once its window is gone. When it loses the focus it tells
// the grid the final text and the key that ended the edit, then closes.

#include "platform/base/Rect.h"
#include "platform/base/String.h"
#include "platform/widgets/Edit.h"

class ORVA_API CInPlaceEdit : public CEdit {
    DECLARE_DYNAMIC(CInPlaceEdit)
public:
    CInPlaceEdit(CWnd* parent, CRect& rect, DWORD style, UINT id, int row, int column,
                 CString initText, UINT firstChar);

    // Sends the end notification and closes the window, once.
    void EndEdit();

protected:
    void OnKeyDown(UINT ch, UINT repeat, UINT flags) override;
    void OnChar(UINT ch, UINT repeat, UINT flags) override;
    void OnKillFocus(CWnd* newWnd) override;
    UINT OnGetDlgCode() override;
    BOOL PreTranslateMessage(MSG* msg) override;
    // The editor deletes itself with its window.
    void PostNcDestroy() override;

private:
    ~CInPlaceEdit() override = default;
    void GrowToText();

    int m_nRow;
    int m_nColumn;
    CString m_sInitText;
    UINT m_nLastChar = 0;
    BOOL m_bExitOnArrows;
    CRect m_Rect;
};
