// The date and time cell: a value shown in the regional formats, edited by a picker.

#include "cells/GridCellTimeCtrl.h"

#include "cells/CellDropArrow.h"
#include "cells/InPlaceTimeCtrl.h"
#include "grid/GridCtrl.h"
#include "platform/gdi/DC.h"
#include "platform/system/SystemMetrics.h"
#include "platform/system/UserSettings.h"

IMPLEMENT_DYNCREATE(CGridCellTimeCtrl, CGridCell)

namespace {

constexpr DWORD kSettingBytes = 256;
constexpr int kFormattedChars = 1024;

} // namespace

CString ReadInternationalSetting(const char* name, const char* fallback) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, kInternationalKey, 0, KEY_READ, &key) != ERROR_SUCCESS) {
        return fallback;
    }
    char buffer[kSettingBytes] = {};
    DWORD size = sizeof buffer;
    DWORD type = 0;
    const LSTATUS status =
        RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size);
    RegCloseKey(key);
    if (status != ERROR_SUCCESS || type != REG_SZ) {
        return fallback;
    }
    buffer[kSettingBytes - 1] = '\0';
    return buffer;
}

CString FormatDateTime(const COleDateTime* time, unsigned flags) {
    SYSTEMTIME fields{};
    if (time == nullptr || time->GetStatus() != COleDateTime::valid ||
        !time->GetAsSystemTime(fields)) {
        return "";
    }
    CString result;
    char buffer[kFormattedChars];
    if (flags & kFormatDate) {
        // Dates show four-digit years, whatever the user's setting.
        CString picture = ReadInternationalSetting("sShortDate", "M/d/yyyy");
        if (picture.Find("yy") >= 0 && picture.Find("yyyy") < 0) {
            const int at = picture.Find("yy");
            picture = picture.Left(at) + "yyyy" + picture.Mid(at + 2);
        }
        if (GetDateFormat(LOCALE_USER_DEFAULT, 0, &fields, picture, buffer, kFormattedChars) > 0) {
            result += buffer;
        }
    }
    if (flags & kFormatTime) {
        result += " ";
        const DWORD timeFlags = (flags & kFormatNoSeconds) ? TIME_NOSECONDS : 0;
        if (GetTimeFormat(LOCALE_USER_DEFAULT, timeFlags, &fields, nullptr, buffer,
                          kFormattedChars) > 0) {
            result += buffer;
        }
    }
    return result;
}

CGridCellTimeCtrl::~CGridCellTimeCtrl() = default;

void CGridCellTimeCtrl::SetText(LPCTSTR text) {
    const CString typed(text != nullptr ? text : "");
    if (typed.IsEmpty()) {
        // Clears the value; the text shown stays as it was. An open picker writes its value
        // into this very time when it ends, so the time outlives the edit: the edit's end sets
        // the value again in any case.
        if (!m_editing) {
            m_pTime.reset();
        }
        return;
    }
    if (typed[0] == '^') {
        const COleDateTime now = COleDateTime::GetCurrentTime();
        SetData(reinterpret_cast<LPARAM>(&now));
        return;
    }
    DATE parsed = 0.0;
    if (VarDateFromStr(typed, LOCALE_USER_DEFAULT, LOCALE_NOUSEROVERRIDE, &parsed) == S_OK) {
        if (m_pTime == nullptr) {
            m_pTime = std::make_unique<COleDateTime>();
        }
        *m_pTime = COleDateTime(parsed);
    }
    // A text that reads as no date stands as typed, with the old value behind it.
    CGridCell::SetText(typed);
}

void CGridCellTimeCtrl::SetData(LPARAM data) {
    if (data == 0) {
        return;
    }
    // `data` may be this cell's own value.
    const COleDateTime value = *reinterpret_cast<const COleDateTime*>(data);
    if (m_pTime == nullptr) {
        m_pTime = std::make_unique<COleDateTime>(value);
    } else {
        *m_pTime = value;
    }
    SetText(FormatDateTime(m_pTime.get(), m_bNoSeconds
                                              ? kFormatDate | kFormatTime | kFormatNoSeconds
                                              : kFormatDate | kFormatTime));
}

LPARAM CGridCellTimeCtrl::GetData() const {
    return reinterpret_cast<LPARAM>(m_pTime.get());
}

BOOL CGridCellTimeCtrl::Draw(CDC* dc, int row, int col, CRect rect, BOOL eraseBackground) {
    CGridCtrl* grid = GetGrid();
    const bool editable = grid != nullptr && grid->IsCellEditable(row, col);
    if (editable && !IsEditing() && m_bShowDropArrow && m_pTime != nullptr && rect.Width() > 0 &&
        rect.Height() > 0) {
        // At the top and of the platform's height, also in a tall cell.
        const CRect arrow = TopRightDropArrow(rect);
        DrawDropArrow(dc, arrow);
        rect.right = arrow.left;
    }
    if (!IsEditing()) {
        return CGridCell::Draw(dc, row, col, rect, eraseBackground);
    }
    // Blanked in place, not through SetText, which would drop the value; nothing may shine
    // through the editor, and the editor is drawn again on top.
    const CString text = m_text;
    m_text.Empty();
    const BOOL result = CGridCell::Draw(dc, row, col, rect, eraseBackground);
    m_text = text;
    if (m_editWnd != nullptr) {
        m_editWnd->Invalidate();
    }
    return result;
}

BOOL CGridCellTimeCtrl::GetTextRect(LPRECT rect) {
    if (!CGridCell::GetTextRect(rect)) {
        return FALSE;
    }
    rect->right -= DropArrowSize(CRect(*rect)).cx;
    return TRUE;
}

BOOL CGridCellTimeCtrl::Edit(int row, int col, CRect rect, CPoint point, UINT id, UINT ch) {
    // A second click and F2 open nothing: only the arrow and a double click do.
    if (ch == VK_LBUTTON && !m_bOpening) {
        return FALSE;
    }
    if (m_editing && m_editWnd != nullptr) {
        // One picker per cell: a second would end the first as it took the focus, and that end
        // would leave the cell saying it no longer edits, under the second.
        return TRUE;
    }
    m_editing = TRUE;
    if (m_pTime == nullptr) {
        m_pTime = std::make_unique<COleDateTime>(COleDateTime::GetCurrentTime());
    }
    // The typed character is dropped: the picker starts as if clicked. It owns itself and
    // writes into the cell's value, which outlives it.
    m_editWnd =
        new CInPlaceTimeCtrl(m_pTime.get(), nullptr, rect, 0, IDC_INPLACE_CONTROL, VK_LBUTTON,
                             point, GetGrid(), row, col, m_bShowTime, m_bNoSeconds);
    return TRUE;
}

void CGridCellTimeCtrl::EndEdit() {
    if (m_editWnd != nullptr && m_editWnd->IsKindOf(RUNTIME_CLASS(CInPlaceTimeCtrl))) {
        static_cast<CInPlaceTimeCtrl*>(m_editWnd)->EndEdit();
    }
}

BOOL CGridCellTimeCtrl::OnClickDown(CPoint point, int row, int col) {
    CGridCtrl* grid = GetGrid();
    CRect rect;
    if (grid == nullptr || !grid->IsCellEditable(row, col) || !grid->GetCellRect(row, col, &rect)) {
        return FALSE;
    }
    const bool onArrow = IsOnTopRightDropArrow(point, rect);
    if (!onArrow || !m_bShowDropArrow || m_pTime == nullptr) {
        return FALSE;
    }
    m_bOpening = true;
    Edit(row, col, rect, point, IDC_INPLACE_CONTROL, VK_LBUTTON);
    m_bOpening = false;
    return TRUE;
}

void CGridCellTimeCtrl::OnDblClick(CPoint point, int row, int col) {
    CGridCtrl* grid = GetGrid();
    if (grid != nullptr && grid->IsCellEditable(row, col)) {
        m_bOpening = true;
        CRect rect;
        if (grid->GetCellRect(row, col, &rect)) {
            Edit(row, col, rect, point, IDC_INPLACE_CONTROL, VK_LBUTTON);
        }
        m_bOpening = false;
    }
    CGridCell::OnDblClick(point, row, col);
}
