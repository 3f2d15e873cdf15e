// The in-place date and time picker of a time cell, which owns itself and ends the edit.

#include "cells/InPlaceTimeCtrl.h"

#include "cells/GridCellTimeCtrl.h"
#include "grid/GridNotify.h"
#include "platform/widgets/MonthCalCtrl.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"

#include <cctype>

IMPLEMENT_DYNAMIC(CInPlaceTimeCtrl, CWnd)

namespace {

bool IsNavigationKey(UINT key) {
    return key >= VK_PRIOR && key <= VK_DOWN;
}

} // namespace

CString QuotePictureLiterals(const char* picture) {
    // Each run of non-letters opens a quote, the next letter closes it; a picture that ends in
    // a literal leaves its quote open, which the picker reads to the end.
    CString quoted;
    bool inLiteral = false;
    for (const char* at = picture; *at != '\0'; ++at) {
        const bool letter = std::isalpha(static_cast<unsigned char>(*at)) != 0;
        if (letter == inLiteral) {
            quoted += '\'';
            inLiteral = !letter;
        }
        quoted += *at;
    }
    return quoted;
}

CInPlaceTimeCtrl::CInPlaceTimeCtrl(COleDateTime* time, CFont* font, CRect& rect, DWORD style,
                                   UINT id, UINT firstChar, CPoint& point, CWnd* parent, int row,
                                   int col, bool showTime, bool noSeconds)
    : m_pTime(time), m_bShowTime(showTime), m_bNoSeconds(noSeconds), m_nRow(row), m_nCol(col),
      m_nLastChar(firstChar) {
    if (!Create(WS_CHILD | WS_VISIBLE | style, rect, parent, id)) {
        return; // stays windowless
    }
    SetTime(*m_pTime);

    const CString timePicture = noSeconds ? ReadInternationalSetting("sShortTime", "h:mm tt")
                                          : ReadInternationalSetting("sTimeFormat", "h:mm:ss tt");
    const CString datePicture = ReadInternationalSetting("sShortDate", "M/d/yyyy");
    CString format = QuotePictureLiterals(datePicture) + " ";
    if (showTime) {
        format += QuotePictureLiterals(timePicture);
    }
    SetFormat(format);
    SetFont(font, FALSE);

    if (firstChar == VK_LBUTTON) {
        // The click that opened the picker takes effect in it: on the arrow it drops the
        // calendar, elsewhere it picks a field.
        SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(WORD(point.x), WORD(point.y)));
    }
}

BOOL CInPlaceTimeCtrl::PreTranslateMessage(MSG* msg) {
    // Tab, Return and Escape are the editor's, not a dialog's around the grid.
    if (msg->message == WM_KEYDOWN && msg->hwnd == m_hWnd &&
        (msg->wParam == VK_TAB || msg->wParam == VK_RETURN || msg->wParam == VK_ESCAPE)) {
        SendMessage(msg->message, msg->wParam, msg->lParam);
        return TRUE;
    }
    return CDateTimeCtrl::PreTranslateMessage(msg);
}

void CInPlaceTimeCtrl::OnKeyDown(UINT ch, UINT repeat, UINT flags) {
    const bool ends =
        ch == VK_TAB || ch == VK_RETURN || (IsNavigationKey(ch) && ::GetKeyState(VK_CONTROL) < 0);
    if (!ends) {
        // Escape too: it neither ends the edit nor restores the value.
        CDateTimeCtrl::OnKeyDown(ch, repeat, flags);
        return;
    }
    if (GetMonthCalCtrl() != nullptr) {
        return; // the open calendar has the keys
    }
    m_nLastChar = ch;
    GetParent()->SetFocus(); // ends the edit, and this object
}

void CInPlaceTimeCtrl::OnKillFocus(CWnd* newWnd) {
    const CMonthCalCtrl* calendar = GetMonthCalCtrl();
    const HWND to = newWnd != nullptr ? newWnd->GetSafeHwnd() : nullptr;
    if (calendar != nullptr && to == calendar->GetSafeHwnd()) {
        return; // the picker's own calendar is part of the edit
    }
    CDateTimeCtrl::OnKillFocus(newWnd);
    if (to != m_hWnd) {
        EndEdit();
    }
}

void CInPlaceTimeCtrl::EndEdit() {
    if (m_bEnded || m_hWnd == nullptr || !::IsWindow(m_hWnd)) {
        return;
    }
    m_bEnded = true;
    const HWND self = m_hWnd;

    // The cell's value changes here, before the grid or the application hears of it.
    GetTime(*m_pTime);
    CString text =
        FormatDateTime(m_pTime, m_bNoSeconds ? kFormatDate | kFormatTime | kFormatNoSeconds
                                             : kFormatDate | kFormatTime);
    if (!m_bShowTime) {
        const int blank = text.Find(' ');
        if (blank >= 0) {
            text = text.Left(blank);
        }
    }

    GV_DISPINFO info{};
    info.hdr.hwndFrom = self;
    info.hdr.idFrom = UINT_PTR(GetDlgCtrlID());
    info.hdr.code = UINT(GV_NOTIFY_ENDLABELEDIT);
    info.item.mask = GV_MASK_TEXT | GV_MASK_PARAM;
    info.item.row = m_nRow;
    info.item.col = m_nCol;
    info.item.text = text;
    info.item.param = LPARAM(m_nLastChar);
    CWnd* receiver = GetOwner() != nullptr ? GetOwner() : GetParent();
    if (receiver != nullptr) {
        receiver->SendMessage(WM_NOTIFY, info.hdr.idFrom, LPARAM(&info));
    }
    // A handler may have destroyed the window, and this object with it.
    if (::IsWindow(self)) {
        ::PostMessage(self, WM_CLOSE, 0, 0);
    }
}

void CInPlaceTimeCtrl::PostNcDestroy() {
    CDateTimeCtrl::PostNcDestroy();
    delete this;
}
