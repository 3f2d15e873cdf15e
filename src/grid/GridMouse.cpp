// The mouse: the gesture state machine of presses, moves and releases, with capture, the
// auto-scroll timer, divider sizing behind an inverted tracking band, the fill outline, the
// cursors and the notifications of a click.
//
// Sections: hit tests; the left button going down; divider sizing; moves; the left button
// going up; double click; the right button; timer, cursor and capture; the fill outline.

#include "grid/GridCtrl.h"

#include "platform/gdi/DC.h"

#include <algorithm>
#include <cstdlib>

namespace {

bool ControlHeld(UINT flags) {
    return (flags & MK_CONTROL) != 0;
}

bool ShiftHeld(UINT flags) {
    return (flags & MK_SHIFT) != 0;
}

void ShowCursor(LPCSTR name) {
    ::SetCursor(::LoadCursor(nullptr, name));
}

// Notification handlers may destroy the grid: code that goes on after one asks here first.
bool StillThere(HWND grid) {
    return ::IsWindow(grid) != FALSE;
}

} // namespace

int CGridCtrl::SetMouseMode(int mode) {
    const int previous = m_mouseMode;
    m_mouseMode = mode;
    return previous;
}

// ---- Hit tests -------------------------------------------------------------------------

CPoint CGridCtrl::GetPointClicked(int row, int col, const CPoint& point) {
    CPoint origin;
    if (!GetCellOrigin(row, col, &origin)) {
        return CPoint(0, 0);
    }
    return CPoint(point.x - origin.x, point.y - origin.y);
}

BOOL CGridCtrl::MouseOverColumnResizeArea(CPoint& point) {
    if (point.y >= GetFixedRowHeight()) {
        return FALSE; // dividers are only reachable in the fixed rows
    }
    const CCellID cell = GetCellFromPt(point);
    CPoint start;
    if (!GetCellOrigin(cell, &start)) {
        return FALSE;
    }
    const int right = start.x + GetMergeCellWidth(cell);
    return (point.x - start.x < m_resizeCaptureRange && cell.col != 0) ||
           right - point.x < m_resizeCaptureRange;
}

BOOL CGridCtrl::MouseOverRowResizeArea(CPoint& point) {
    if (point.x >= GetFixedColumnWidth()) {
        return FALSE;
    }
    const CCellID cell = GetCellFromPt(point);
    CPoint start;
    if (!GetCellOrigin(cell, &start)) {
        return FALSE;
    }
    const int bottom = start.y + GetMergeCellHeight(cell);
    return (point.y - start.y < m_resizeCaptureRange && cell.row != 0) ||
           bottom - point.y < m_resizeCaptureRange;
}

// ---- The left button going down -------------------------------------------------------

void CGridCtrl::OnLButtonDown(UINT flags, CPoint point) {
    const HWND self = m_hWnd;
    SetFocus();
    if (!StillThere(self)) {
        return;
    }
    m_leftClickDownPoint = point;
    m_lMouseButtonDown = TRUE;
    m_leftClickDownCell = GetCellFromPt(point);
    if (!IsValid(m_leftClickDownCell)) {
        return;
    }
    if (!ShiftHeld(flags)) {
        m_selectionStartCell = m_leftClickDownCell;
    } else if (!IsValid(m_selectionStartCell)) {
        m_selectionStartCell = m_focusCell;
    }
    EndEditing();
    if (!StillThere(self)) {
        return;
    }

    // The cell has the first refusal: a typed cell may act on the press itself.
    BOOL consumed = FALSE;
    if (CGridCellBase* cell = GetCell(m_leftClickDownCell)) {
        consumed = cell->OnClickDown(
            GetPointClicked(m_leftClickDownCell.row, m_leftClickDownCell.col, point),
            m_leftClickDownCell.row, m_leftClickDownCell.col);
        if (!StillThere(self)) {
            return;
        }
    }
    if (consumed) {
        m_lMouseButtonDown = FALSE;
    }

    if (m_leftClickDownCell == m_focusCell) {
        // No selection and no capture: the press edits or fills on its way up, or does nothing.
        if (consumed) {
            m_mouseMode = MOUSE_NOTHING;
        } else if (IsInAutoFillCornor(point, m_leftClickDownCell) && IsSelectedContinuous() &&
                   IsCellEditable(m_leftClickDownCell)) {
            m_mouseMode = MOUSE_AUTOFILL;
            m_timerId = SetTimer(GRID_AUTOSCROLL_TIMER, UINT(m_timerInterval));
        } else if (IsCellEditable(m_leftClickDownCell)) {
            m_mouseMode = MOUSE_PREPARE_EDIT;
        }
        return;
    }

    if (!IsCellSelected(m_leftClickDownCell)) {
        if (m_mouseMode != MOUSE_OVER_COL_DIVIDE && m_mouseMode != MOUSE_OVER_ROW_DIVIDE) {
            SetFocusCell(-1, -1);
            if (m_rowCount > m_fixedRowCount && m_colCount > m_fixedColCount) {
                SetFocusCell(std::max(m_leftClickDownCell.row, m_fixedRowCount),
                             std::max(m_leftClickDownCell.col, m_fixedColCount));
            }
        }
    } else if (ControlHeld(flags)) {
        // A control click on a selected cell takes it (or its row) out of the selection.
        SetFocusCell(m_leftClickDownCell);
        if (m_listMode) {
            SelectRows(m_leftClickDownCell, TRUE, FALSE);
        } else {
            SelectCells(m_leftClickDownCell, TRUE, FALSE);
        }
        return;
    } else if (m_allowDragAndDrop) {
        m_mouseMode = MOUSE_PREPARE_DRAG;
    }

    if (consumed) {
        m_mouseMode = MOUSE_NOTHING;
    } else {
        SetCapture();
    }

    if (m_mouseMode == MOUSE_NOTHING) {
        if (m_allowColumnResize && MouseOverColumnResizeArea(point)) {
            ShowCursor(IDC_SIZEWE);
            m_mouseMode = MOUSE_OVER_COL_DIVIDE;
        } else if (m_allowRowResize && MouseOverRowResizeArea(point)) {
            ShowCursor(IDC_SIZENS);
            m_mouseMode = MOUSE_OVER_ROW_DIVIDE;
        }
    }

    switch (m_mouseMode) {
    case MOUSE_OVER_COL_DIVIDE:
        StartDividerDrag(true, point);
        break;
    case MOUSE_OVER_ROW_DIVIDE:
        StartDividerDrag(false, point);
        break;
    case MOUSE_PREPARE_DRAG:
        break;
    default:
        SendMessageToParent(m_leftClickDownCell.row, m_leftClickDownCell.col,
                            GV_NOTIFY_SELCHANGING);
        if (!StillThere(self)) {
            return;
        }
        // With control the selection accumulates: what is selected now stays selected.
        m_prevSelectedCellMap.clear();
        if (ControlHeld(flags)) {
            m_prevSelectedCellMap = m_selectedCellMap;
        }
        if (m_leftClickDownCell.row < m_fixedRowCount) {
            OnFixedRowClick(m_leftClickDownCell);
        } else if (m_leftClickDownCell.col < m_fixedColCount) {
            OnFixedColumnClick(m_leftClickDownCell);
        } else {
            if (!consumed) {
                m_mouseMode = m_listMode ? MOUSE_SELECT_ROW : MOUSE_SELECT_CELLS;
            }
            OnSelecting(m_leftClickDownCell);
            if (!consumed) {
                m_timerId = SetTimer(GRID_AUTOSCROLL_TIMER, UINT(m_timerInterval));
            }
        }
        break;
    }
    m_lastMousePoint = point;
}

// ---- Divider sizing --------------------------------------------------------------------

// The band that follows a divider drag: two pixels across the whole client area, inverted so
// that drawing it again takes it away.
void CGridCtrl::InvertTrackingBand(bool columns, CPoint point) {
    CRect client;
    GetClientRect(&client);
    CRect band = client;
    if (columns) {
        band.left = point.x - 1;
        band.right = point.x + 1;
    } else {
        band.top = point.y - 1;
        band.bottom = point.y + 1;
    }
    if (CDC* dc = GetDC()) {
        dc->InvertRect(&band);
        ReleaseDC(dc);
    }
}

void CGridCtrl::StartDividerDrag(bool columns, CPoint point) {
    CRect client;
    GetClientRect(&client);
    int& line = columns ? m_leftClickDownCell.col : m_leftClickDownCell.row;
    const int count = columns ? m_colCount : m_rowCount;
    auto sizeOf = [&](int at) { return columns ? GetColumnWidth(at) : GetRowHeight(at); };
    auto originOf = [&](int at, CPoint& origin) {
        return columns ? GetCellOrigin(0, at, &origin) : GetCellOrigin(at, 0, &origin);
    };
    auto along = [columns](const POINT& p) { return columns ? p.x : p.y; };
    const int range = m_resizeCaptureRange;

    // A squeezed last line can still be caught at the far edge of the client area.
    const int clientEnd = columns ? client.right : client.bottom;
    if (count > 0 && sizeOf(count - 1) < range && clientEnd - along(point) < range) {
        line = count - 1;
    }
    CPoint start;
    if (!originOf(line, start)) {
        m_mouseMode = MOUSE_NOTHING;
        return;
    }
    const bool unhide = columns ? m_hiddenColUnhide : m_hiddenRowUnhide;
    if (!unhide) {
        // The divider of a hidden line cannot be grabbed: take the nearest visible one before.
        if (along(point) - along(start) < range && line > 0) {
            line--;
        }
        while (line > 0 && sizeOf(line) == 0) {
            line--;
        }
        if (!originOf(line, start)) {
            m_mouseMode = MOUSE_NOTHING;
            return;
        }
    }
    InvertTrackingBand(columns, point);
    if (along(point) - along(start) < range && line > 0 &&
        (line != count - 1 || sizeOf(count - 1) >= range)) {
        line--;
        originOf(line, start);
    }
    CRect clip = client;
    (columns ? clip.left : clip.top) = along(start);
    ClientToScreen(&clip);
    ::ClipCursor(&clip);
    m_mouseMode = columns ? MOUSE_SIZING_COL : MOUSE_SIZING_ROW;
}

void CGridCtrl::EndDividerDrag(bool columns, CPoint point) {
    InvertTrackingBand(columns, m_lastMousePoint);
    if (point == m_leftClickDownPoint || (point.x == 0 && point.y == 0)) {
        return;
    }
    const CCellID cell = GetMergeCellID(m_leftClickDownCell);
    CPoint start;
    if (!GetCellOrigin(cell, &start)) {
        return;
    }
    const bool mayHide = columns ? m_allowColHide : m_allowRowHide;
    const int size = std::max(columns ? point.x - start.x : point.y - start.y, mayHide ? 0 : 1);
    // The block keeps the rest of its lines: only the dragged line takes the change.
    if (columns) {
        SetColumnWidth(cell.col, size - (GetMergeCellWidth(cell) - GetColumnWidth(cell.col)));
    } else {
        SetRowHeight(cell.row, size - (GetMergeCellHeight(cell) - GetRowHeight(cell.row)), TRUE);
    }
    ResetScrollBars();
    Invalidate();
}

// ---- Moves -------------------------------------------------------------------------------

void CGridCtrl::OnMouseMove(UINT flags, CPoint point) {
    CRect client;
    GetClientRect(&client);
    if (!client.PtInRect(point) && m_mouseMode != MOUSE_DRAGGING) {
        return;
    }
    const HWND self = m_hWnd;

    if (m_lMouseButtonDown && m_mouseMode == MOUSE_AUTOFILL) {
        DrawRect(std::make_unique<CCellRange>(FillOutline(point)));
    }

    if (m_lMouseButtonDown && m_mouseMode != MOUSE_NOTHING) {
        if (!IsValid(m_leftClickDownCell)) {
            m_lastMousePoint = point;
            return;
        }
        switch (m_mouseMode) {
        case MOUSE_SELECT_COL:
        case MOUSE_SELECT_ROW:
        case MOUSE_SELECT_CELLS: {
            const CCellID cell = GetCellFromPt(point);
            if (IsValid(cell) && cell != m_focusCell) {
                OnSelecting(cell);
                if (!IsCellFixed(cell.row, cell.col) || m_mouseMode != MOUSE_SELECT_CELLS) {
                    SetFocusCell(cell);
                }
            }
            break;
        }
        case MOUSE_SIZING_ROW:
        case MOUSE_SIZING_COL: {
            const bool columns = m_mouseMode == MOUSE_SIZING_COL;
            InvertTrackingBand(columns, m_lastMousePoint);
            InvertTrackingBand(columns, point);
            break;
        }
        case MOUSE_PREPARE_EDIT:
        case MOUSE_PREPARE_DRAG:
            m_mouseMode = MOUSE_PREPARE_DRAG;
            OnBeginDrag();
            if (!StillThere(self)) {
                return;
            }
            break;
        default:
            break;
        }
        m_lastMousePoint = point;
        return;
    }

    if (m_allowColumnResize && MouseOverColumnResizeArea(point)) {
        if (m_mouseMode != MOUSE_OVER_COL_DIVIDE) {
            ShowCursor(IDC_SIZEWE);
            m_mouseMode = MOUSE_OVER_COL_DIVIDE;
        }
    } else if (m_allowRowResize && MouseOverRowResizeArea(point)) {
        if (m_mouseMode != MOUSE_OVER_ROW_DIVIDE) {
            ShowCursor(IDC_SIZENS);
            m_mouseMode = MOUSE_OVER_ROW_DIVIDE;
        }
    } else if (m_mouseMode != MOUSE_NOTHING) {
        ShowCursor(IDC_ARROW);
        m_mouseMode = MOUSE_NOTHING;
    }

    if (m_mouseMode == MOUSE_NOTHING && (!m_virtualMode || m_titleTips)) {
        if (CGridCellBase* cell = GetCell(GetCellFromPt(point))) {
            cell->OnMouseOver();
        }
    }
    m_lastMousePoint = point;
}

// ---- The left button going up -------------------------------------------------------------

void CGridCtrl::OnLButtonUp(UINT flags, CPoint point) {
    const HWND self = m_hWnd;
    DrawRect(nullptr);
    CWnd::OnLButtonUp(flags, point);
    m_lMouseButtonDown = FALSE;
    ::ClipCursor(nullptr);
    const bool hadCapture = GetCapture() == this;
    if (hadCapture) {
        ::ReleaseCapture();
        KillTimer(m_timerId);
        m_timerId = 0;
    }
    const CPoint relative = GetPointClicked(m_focusCell.row, m_focusCell.col, point);

    if (m_mouseMode == MOUSE_AUTOFILL) {
        const CCellID target = GetCellFromPt(point);
        if (IsValid(target)) {
            FillByDrag(target);
        } else {
            KillTimer(m_timerId);
            m_timerId = 0;
        }
        if (!StillThere(self)) {
            return;
        }
    }

    switch (m_mouseMode) {
    case MOUSE_PREPARE_EDIT:
        OnEditCell(m_focusCell.row, m_focusCell.col, relative, VK_LBUTTON);
        break;
    case MOUSE_PREPARE_DRAG:
        // No drag took place: this was a click on a selected cell, which clears the selection.
        if (CGridCellBase* cell = GetCell(m_focusCell)) {
            cell->OnClick(relative);
        }
        SendMessageToParent(m_leftClickDownCell.row, m_leftClickDownCell.col, NM_CLICK);
        if (!StillThere(self)) {
            return;
        }
        SendMessageToParent(m_leftClickDownCell.row, m_leftClickDownCell.col,
                            GV_NOTIFY_SELCHANGING);
        if (!StillThere(self)) {
            return;
        }
        m_prevSelectedCellMap.clear();
        SetSelectedRange(-1, -1, -1, -1, FALSE, TRUE);
        SetFocusCell(-1, -1);
        SendMessageToParent(m_focusCell.row, m_focusCell.col, GV_NOTIFY_SELCHANGED);
        break;
    case MOUSE_SIZING_COL:
        EndDividerDrag(true, point);
        break;
    case MOUSE_SIZING_ROW:
        EndDividerDrag(false, point);
        break;
    default:
        SendMessageToParent(m_focusCell.row, m_focusCell.col, GV_NOTIFY_SELCHANGED);
        if (!StillThere(self)) {
            return;
        }
        if (CGridCellBase* cell = GetCell(m_focusCell)) {
            cell->OnClick(relative);
        }
        SendMessageToParent(m_leftClickDownCell.row, m_leftClickDownCell.col, NM_CLICK);
        break;
    }
    if (!StillThere(self)) {
        return;
    }
    m_mouseMode = MOUSE_NOTHING;
    ShowCursor(IDC_ARROW);
    // The move that follows a release of the capture finds a divider still under the pointer,
    // so that a double click there fits the column.
    if (hadCapture) {
        PostMessage(WM_MOUSEMOVE, flags & ~MK_LBUTTON, MAKELPARAM(point.x, point.y));
    }

    // A click also arrives as a command, after everything else.
    if (IsValid(m_leftClickDownCell)) {
        if (CWnd* owner = NotifyTarget()) {
            owner->PostMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID() & 0xFFFF, 0), LPARAM(m_hWnd));
        }
    }
}

// ---- Double click ------------------------------------------------------------------------

void CGridCtrl::OnLButtonDblClk(UINT flags, CPoint point) {
    const HWND self = m_hWnd;
    const CCellID cell = GetCellFromPt(point);
    if (!IsValid(cell)) {
        CWnd::OnLButtonDblClk(flags, point);
        return;
    }
    if (m_mouseMode == MOUSE_OVER_COL_DIVIDE || m_mouseMode == MOUSE_OVER_ROW_DIVIDE) {
        // A double click on a divider fits the line before it to its contents.
        const bool columns = m_mouseMode == MOUSE_OVER_COL_DIVIDE;
        int line = columns ? cell.col : cell.row;
        CPoint start;
        if (columns ? GetCellOrigin(0, line, &start) : GetCellOrigin(line, 0, &start)) {
            const int offset = columns ? point.x - start.x : point.y - start.y;
            if (offset < m_resizeCaptureRange && line > 0) {
                line--;
            }
            while (line > 0 && (columns ? GetColumnWidth(line) : GetRowHeight(line)) == 0) {
                line--;
            }
            if (columns) {
                AutoSizeColumn(line, m_autoSizeStyle, TRUE);
            } else {
                AutoSizeRow(line, TRUE);
            }
            Invalidate();
        }
        CWnd::OnLButtonDblClk(flags, point);
        return;
    }
    if (m_mouseMode != MOUSE_NOTHING) {
        CWnd::OnLButtonDblClk(flags, point);
        return;
    }

    const CPoint relative = GetPointClicked(cell.row, cell.col, point);
    if (cell.row >= m_fixedRowCount && cell.col >= m_fixedColCount) {
        if (IsValid(m_leftClickDownCell)) {
            if (cell == m_leftClickDownCell && IsInAutoFillCornor(point, cell) &&
                IsCellEditable(cell)) {
                FillDown(cell);
                if (!StillThere(self)) {
                    return;
                }
                Invalidate();
            } else {
                OnEditCell(cell.row, cell.col, relative, VK_LBUTTON);
            }
        }
    } else if (m_listMode && cell.row >= m_fixedRowCount) {
        OnEditCell(cell.row, cell.col, relative, VK_LBUTTON);
    }
    if (!StillThere(self)) {
        return;
    }
    if (CGridCellBase* target = GetCell(cell)) {
        target->OnDblClick(relative, cell.row, cell.col);
    }
    SendMessageToParent(cell.row, cell.col, NM_DBLCLK);
    if (StillThere(self)) {
        CWnd::OnLButtonDblClk(flags, point);
    }
}

// ---- The right button --------------------------------------------------------------------

void CGridCtrl::OnRButtonDown(UINT flags, CPoint point) {
    CWnd::OnRButtonDown(flags, point);
    m_rMouseButtonDown = TRUE;
}

void CGridCtrl::OnRButtonUp(UINT flags, CPoint point) {
    const HWND self = m_hWnd;
    CWnd::OnRButtonUp(flags, point);
    m_rMouseButtonDown = FALSE;
    EndEditing();
    if (!StillThere(self)) {
        return;
    }
    const CCellID cell = GetCellFromPt(point);
    if (!IsValid(cell)) {
        OnRClick(cell.row, cell.col, point);
        SendMessageToParent(-1, -1, NM_RCLICK);
        return;
    }
    SetFocusCell(-1, -1);
    if (m_rowCount > m_fixedRowCount && m_colCount > m_fixedColCount) {
        SetFocusCell(std::max(cell.row, m_fixedRowCount), std::max(cell.col, m_fixedColCount));
    }
    if (CGridCellBase* target = GetCell(cell)) {
        target->OnRClick(GetPointClicked(cell.row, cell.col, point));
    }
    OnRClick(cell.row, cell.col, point);
    if (StillThere(self)) {
        SendMessageToParent(cell.row, cell.col, NM_RCLICK);
    }
}

// ---- Timer, cursor and capture -----------------------------------------------------------

void CGridCtrl::OnTimer(UINT_PTR id) {
    if (id != GRID_AUTOSCROLL_TIMER) {
        CWnd::OnTimer(id);
        return;
    }
    const HWND self = m_hWnd;
    CPoint pointer;
    if (!::GetCursorPos(&pointer)) {
        return;
    }
    ScreenToClient(&pointer);
    CRect client;
    GetClientRect(&client);
    const int fixedHeight = GetFixedRowHeight();
    const int fixedWidth = GetFixedColumnWidth();
    const int clampedX = std::clamp(int(pointer.x), int(client.left), int(client.right));
    const int clampedY = std::clamp(int(pointer.y), int(client.top), int(client.bottom));

    if (pointer.y >= client.bottom) {
        SendMessage(WM_KEYDOWN, VK_DOWN, 0);
        if (!StillThere(self)) {
            return;
        }
        OnSelecting(GetCellFromPt(CPoint(clampedX, client.bottom)));
    } else if (pointer.y < fixedHeight) {
        SendMessage(WM_KEYDOWN, VK_UP, 0);
        if (!StillThere(self)) {
            return;
        }
        OnSelecting(GetCellFromPt(CPoint(clampedX, fixedHeight + 1)));
    }
    if (pointer.x >= client.right) {
        SendMessage(WM_KEYDOWN, VK_RIGHT, 0);
        if (!StillThere(self)) {
            return;
        }
        OnSelecting(GetCellFromPt(CPoint(client.right, clampedY)));
    } else if (pointer.x < fixedWidth) {
        SendMessage(WM_KEYDOWN, VK_LEFT, 0);
        if (!StillThere(self)) {
            return;
        }
        OnSelecting(GetCellFromPt(CPoint(fixedWidth + 1, clampedY)));
    }
}

BOOL CGridCtrl::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message) {
    if (hitTest != UINT(HTCLIENT)) {
        return CWnd::OnSetCursor(wnd, hitTest, message);
    }
    switch (m_mouseMode) {
    case MOUSE_OVER_ROW_DIVIDE:
        ShowCursor(IDC_SIZENS);
        return TRUE;
    case MOUSE_OVER_COL_DIVIDE:
        ShowCursor(IDC_SIZEWE);
        return TRUE;
    case MOUSE_DRAGGING:
        return TRUE;
    default:
        break;
    }
    if (!m_virtualMode) {
        const DWORD position = ::GetMessagePos();
        CPoint point(short(LOWORD(position)), short(HIWORD(position)));
        ScreenToClient(&point);
        if (CGridCellBase* cell = GetCell(GetCellFromPt(point))) {
            return cell->OnSetCursor();
        }
    }
    ShowCursor(IDC_ARROW);
    return TRUE;
}

void CGridCtrl::OnCaptureChanged(CWnd* wnd) {
    if (SafeHwnd(wnd) != m_hWnd) {
        if (m_timerId != 0) {
            KillTimer(m_timerId);
            m_timerId = 0;
        }
        if (m_mouseMode == MOUSE_DRAGGING) {
            m_mouseMode = MOUSE_NOTHING;
        }
    }
    CWnd::OnCaptureChanged(wnd);
}

// ---- The fill outline --------------------------------------------------------------------

// The range that a fill drag to `point` would cover: the selection, grown towards the pointer
// in the one direction in which the pointer has gone further.
CCellRange CGridCtrl::FillOutline(CPoint point) {
    const CCellRange selection = GetSelectedCellRange();
    CCellRange outline = selection;
    if (m_leftClickDownCell.col < outline.minCol) {
        outline.minCol = m_leftClickDownCell.col - 1;
    }
    if (m_leftClickDownCell.row < outline.minRow) {
        outline.minRow = m_leftClickDownCell.row - 1;
    }
    const CCellID cell = GetCellFromPt(point);
    if (IsValid(cell)) {
        outline.maxRow = std::max(outline.maxRow, cell.row);
        outline.maxCol = std::max(outline.maxCol, cell.col);
        outline.minRow = std::min(outline.minRow, cell.row);
        outline.minCol = std::min(outline.minCol, cell.col);
    }
    CRect last;
    if (GetCellRect(selection.maxRow, selection.maxCol, &last)) {
        const int vertical = std::abs(int(point.y) - int(last.bottom));
        const int horizontal = std::abs(int(point.x) - int(last.right));
        if (vertical < horizontal) {
            outline.minRow = outline.maxRow = selection.maxRow;
        } else {
            outline.minCol = outline.maxCol = selection.maxCol;
        }
    }
    return outline;
}

// The outline from the top-left cell's rectangle to the bottom-right one's, the client edge
// standing in for a corner scrolled out of view.
CRect CGridCtrl::OutlineRect(const CCellRange& range) {
    CRect topLeft;
    if (!GetCellRect(range.minRow, range.minCol, &topLeft)) {
        topLeft.SetRectEmpty();
        CRect firstColumn;
        if (GetCellRect(range.minRow, std::max(range.minCol, 0), &firstColumn)) {
            topLeft.top = firstColumn.top;
        }
        CRect firstRow;
        if (GetCellRect(std::max(range.minRow, 0), range.minCol, &firstRow)) {
            topLeft.left = firstRow.left;
        }
    }
    CRect bottomRight;
    if (!GetCellRect(range.maxRow, range.maxCol, &bottomRight)) {
        GetClientRect(&bottomRight);
    }
    return CRect(topLeft.left, topLeft.top, bottomRight.right + 1, bottomRight.bottom + 1);
}

void CGridCtrl::DrawRect(std::unique_ptr<CCellRange> range) {
    if (range != nullptr && m_fillOutline != nullptr && *range == *m_fillOutline) {
        return;
    }
    CDC* dc = GetSafeHwnd() != nullptr ? GetDC() : nullptr;
    if (dc != nullptr && m_fillOutline != nullptr) {
        const CRect erased = OutlineRect(*m_fillOutline);
        dc->DrawFocusRect(&erased);
    }
    m_fillOutline = std::move(range);
    if (dc != nullptr && m_fillOutline != nullptr) {
        const CRect drawn = OutlineRect(*m_fillOutline);
        dc->DrawFocusRect(&drawn);
    }
    if (dc != nullptr) {
        ReleaseDC(dc);
    }
}
