#pragma once

// CInPlaceButton: the short-lived button laid over a check box or button cell for one press.
// The platform's button shows the press and decides on release whether it was a click; a click
// sets a check box cell's data and tells the grid's owner by GV_NOTIFY_CELLBUTTON. The object
// owns itself: made with new by the cell, it closes once the focus leaves it and deletes
// itself with its window.

#include "platform/base/Rect.h"
#include "platform/widgets/Button.h"

constexpr UINT IDC_INPLACE_BUTTON = 2001;

class CFont;

class ORVA_API CInPlaceButton : public CButton {
    DECLARE_DYNAMIC(CInPlaceButton)
public:
    // `firstChar` VK_LBUTTON passes on a press of the mouse at `point`, VK_SPACE a key-down of
    // space; with any other the object deletes itself at once. For an auto check box a
    // non-null `caption` means checked, and the box has no text.
    CInPlaceButton(LPCTSTR caption, CFont* font, CRect& rect, DWORD style, UINT id, UINT firstChar,
                   CPoint& point, CWnd* parent, int row, int col);

protected:
    void OnKillFocus(CWnd* newWnd) override;
    void OnLButtonUp(UINT flags, CPoint point) override;
    // The button's own BN_CLICKED, offered back to it by the grid.
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void OnReflectBnClicked();
    // The button deletes itself with its window.
    void PostNcDestroy() override;

private:
    ~CInPlaceButton() override = default;

    int m_nRow;
    int m_nCol;
};
