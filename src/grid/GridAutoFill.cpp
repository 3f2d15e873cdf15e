// The fill handle: the hot square at the focus cell's lower right corner. Dragging it extends
// the selection as a number series or a repeating text; double-clicking it copies the cell down
// its column. Also AutoFill, which fills the window with an empty grid.

#include "grid/GridCtrl.h"

#include "support/FormatDouble.h"

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace {

// The square around the corner, in pixels from the text rectangle's bottom-right corner.
constexpr int kCornerInside = 6;
constexpr int kCornerOutside = 2;

} // namespace

BOOL CGridCtrl::IsInAutoFillCornor(CPoint point, CCellID cell) {
    CGridCellBase* found = GetCell(cell);
    CRect rect;
    if (found == nullptr || !GetCellRect(cell, &rect) || !found->GetTextRect(&rect)) {
        return FALSE;
    }
    return point.x > rect.right - kCornerInside && point.x < rect.right + kCornerOutside &&
           point.y > rect.bottom - kCornerInside && point.y < rect.bottom + kCornerOutside;
}

CString CGridCtrl::NextInSeries(const CString& nearText, const CString& farText) {
    // The last character is not looked at, so "12a" counts as a number; a text of one
    // character is looked at whole, so that a single letter repeats as text.
    const char* far = farText.GetString();
    const size_t length = std::strlen(far);
    const size_t examined = length > 1 ? length - 1 : length;
    for (size_t i = 0; i < examined; i++) {
        if (std::strchr("0123456789.e-", far[i]) == nullptr) {
            return farText; // text alternates between its last two values
        }
    }
    if (farText.IsEmpty() || nearText.IsEmpty()) {
        return farText;
    }
    const double n = std::atof(nearText.GetString());
    const double f = std::atof(far);
    double value;
    if (f == 0.0) {
        value = 2 * n;
    } else if (n < 0 && f > 0) {
        value = -f; // a change of sign, not an extrapolation
    } else {
        value = n + (n - f);
    }
    return xgFormatDouble(value, -1, 15, 0);
}

void CGridCtrl::FillCell(int row, int col, const CString& text) {
    if (CGridCellBase* cell = GetCell(row, col)) {
        cell->SetText(text);
    }
}

void CGridCtrl::FillByDrag(const CCellID& target) {
    const HWND self = m_hWnd;
    const CCellID start = m_leftClickDownCell;
    const CCellRange range = GetSelectedCellRange();
    const bool vertical = std::abs(target.row - start.row) > std::abs(target.col - start.col);
    if (vertical) {
        SetSelectedRange(range.minRow, range.minCol, target.row, range.maxCol, FALSE, TRUE);
    } else {
        SetSelectedRange(range.minRow, range.minCol, range.maxRow, target.col, FALSE, TRUE);
    }

    // Lines run along the fill; the cross lines are the range's columns (or rows) filled at
    // each step.
    const int from = vertical ? start.row : start.col;
    const int to = vertical ? target.row : target.col;
    const int step = to > from ? 1 : -1;
    const int lineCount = vertical ? m_rowCount : m_colCount;
    const int firstCross = vertical ? range.minCol : range.minRow;
    const int lastCross = vertical ? range.maxCol : range.maxRow;
    const int rangeFirst = vertical ? range.minRow : range.minCol;
    const int rangeLast = vertical ? range.maxRow : range.maxCol;
    auto sizeOf = [&](int line) { return vertical ? GetRowHeight(line) : GetColumnWidth(line); };
    auto rowOf = [vertical](int line, int cross) { return vertical ? line : cross; };
    auto colOf = [vertical](int line, int cross) { return vertical ? cross : line; };
    // The nearest shown line from `line` backwards (against the fill), or -1.
    auto shownBack = [&](int line) {
        while (line >= 0 && line < lineCount && sizeOf(line) == 0) {
            line -= step;
        }
        return line >= 0 && line < lineCount ? line : -1;
    };
    auto textAt = [&](int line, int cross) {
        return line >= 0 && GetCell(rowOf(line, cross), colOf(line, cross)) != nullptr
                   ? GetItemText(rowOf(line, cross), colOf(line, cross))
                   : CString();
    };

    // Each new value is read back as the source of the next, so the series carries on.
    for (int line = from; line != to && line > 0; line += step) {
        const int next = line + step;
        for (int cross = firstCross; cross <= lastCross; cross++) {
            const int row = rowOf(next, cross);
            const int col = colOf(next, cross);
            if (!IsCellEditable(row, col)) {
                continue;
            }
            const int nearLine = shownBack(next - step);
            const CString nearText = textAt(nearLine, cross);
            CString farText = nearText;
            const int behind = nearLine - step;
            const bool outside = step > 0 ? behind < rangeFirst : behind > rangeLast;
            if (nearLine != -1 && !outside) {
                const CString behindText = textAt(shownBack(behind), cross);
                if (!behindText.IsEmpty()) {
                    farText = behindText;
                }
            }
            // The application hears of the change; its answers do not stop a fill.
            if (!nearText.IsEmpty()) {
                SendMessageToParent(row, col, GV_NOTIFY_BEGINLABELEDIT);
            }
            if (!::IsWindow(self)) {
                return;
            }
            FillCell(row, col, NextInSeries(nearText, farText));
            SendMessageToParent(row, col, GV_NOTIFY_ENDLABELEDIT);
            if (!::IsWindow(self)) {
                return;
            }
            OnCellChanged(row, col);
        }
    }

    const CCellRange filled = GetSelectedCellRange();
    SetFocusCell(filled.maxRow, filled.maxCol);
    if (GetCapture() == this) {
        ::ReleaseCapture();
    }
    KillTimer(m_timerId);
    m_timerId = 0;
}

void CGridCtrl::FillDown(const CCellID& source) {
    const HWND self = m_hWnd;
    const CString text = GetItemText(source.row, source.col);
    // Only cells that hold text already are overwritten: the empty ones stay empty.
    for (int row = source.row; row < m_rowCount; row++) {
        if (!IsCellEditable(row, source.col) || GetRowHeight(row) == 0 ||
            GetItemText(row, source.col).IsEmpty()) {
            continue;
        }
        SendMessageToParent(row, source.col, GV_NOTIFY_BEGINLABELEDIT);
        if (!::IsWindow(self)) {
            return;
        }
        FillCell(row, source.col, text);
        SendMessageToParent(row, source.col, GV_NOTIFY_ENDLABELEDIT);
        if (!::IsWindow(self)) {
            return;
        }
        OnCellChanged(row, source.col);
    }
}

void CGridCtrl::AutoFill() {
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    SetColumnCount(client.Width() / m_cellDefault.GetWidth() + 1);
    SetRowCount(client.Height() / m_cellDefault.GetHeight() + 1);
    SetFixedRowCount(1);
    SetFixedColumnCount(1);
    ExpandColumnsToFit(TRUE);
    ExpandRowsToFit(TRUE);
    ExpandColumnsToFit(TRUE);
    Refresh();
}
