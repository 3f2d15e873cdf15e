#pragma once

// CInPlaceTimeCtrl: the date-and-time picker laid over a date cell for one edit. It shows the
// cell's value in the regional formats and writes the picked value straight back into it; when
// the focus leaves it for anything but its own drop-down calendar, it tells the grid the new
// text and closes. The object owns itself: made with new by the cell, it deletes itself with
// its window.

#include "platform/base/Rect.h"
#include "platform/widgets/DateTimeCtrl.h"

class CFont;

// A regional picture with its literal runs quoted, as the picker's custom format wants it.
ORVA_API CString QuotePictureLiterals(const char* picture);

class ORVA_API CInPlaceTimeCtrl : public CDateTimeCtrl {
    DECLARE_DYNAMIC(CInPlaceTimeCtrl)
public:
    // `time` is the cell's value and must outlive the editor. With `firstChar` VK_LBUTTON the
    // click at `point` that opened the editor is passed on to it.
    CInPlaceTimeCtrl(COleDateTime* time, CFont* font, CRect& rect, DWORD style, UINT id,
                     UINT firstChar, CPoint& point, CWnd* parent, int row, int col, bool showTime,
                     bool noSeconds);

    // Writes the value back, sends the end notification and closes the window, once.
    void EndEdit();

protected:
    void OnKeyDown(UINT ch, UINT repeat, UINT flags) override;
    void OnKillFocus(CWnd* newWnd) override;
    BOOL PreTranslateMessage(MSG* msg) override;
    // The editor deletes itself with its window.
    void PostNcDestroy() override;

private:
    ~CInPlaceTimeCtrl() override = default;

    COleDateTime* m_pTime;
    bool m_bShowTime;
    bool m_bNoSeconds;
    int m_nRow;
    int m_nCol;
    UINT m_nLastChar;
    // The close is posted: until it arrives, a second loss of focus must not end the edit again.
    bool m_bEnded = false;
};
