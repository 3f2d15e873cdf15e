// The scroll bars: their ranges kept in step with the sizes and the client area, and the
// scroll requests of the bars, the wheel and the grid itself.

#include "grid/GridCtrl.h"

#include "platform/system/SystemMetrics.h"

#include <algorithm>
#include <cstdlib>

void CGridCtrl::ResetScrollBars() {
    m_topLeftCell.col = -1;
    if (!m_allowDraw || GetSafeHwnd() == nullptr) {
        return;
    }
    CRect rect;
    GetClientRect(&rect);
    if (rect.IsRectEmpty()) {
        return;
    }
    // The area as it would be without bars.
    if (IsVisibleVScroll()) {
        rect.right += ::GetSystemMetrics(SM_CXBORDER) + ::GetSystemMetrics(SM_CXVSCROLL);
    }
    if (IsVisibleHScroll()) {
        rect.bottom += ::GetSystemMetrics(SM_CYBORDER) + ::GetSystemMetrics(SM_CYHSCROLL);
    }
    const int fixedWidth = GetFixedColumnWidth();
    const int fixedHeight = GetFixedRowHeight();
    rect.left += fixedWidth;
    rect.top += fixedHeight;
    if (rect.left >= rect.right || rect.top >= rect.bottom) {
        // The state bits stay as they were: nothing can scroll in a window this small.
        ShowScrollBar(SB_BOTH, FALSE);
        return;
    }

    const int scrollHeight = int(GetVirtualHeight()) - fixedHeight;
    const int scrollWidth = int(GetVirtualWidth()) - fixedWidth;
    int visibleHeight = rect.bottom - fixedHeight;
    if (visibleHeight < scrollHeight) {
        rect.right -= ::GetSystemMetrics(SM_CXVSCROLL);
    }
    const int visibleWidth = rect.right - fixedWidth;
    if (visibleWidth < scrollWidth) {
        rect.bottom -= ::GetSystemMetrics(SM_CYHSCROLL);
        visibleHeight = rect.bottom - fixedHeight;
    }

    if (visibleHeight < scrollHeight) {
        EnableScrollBars(SB_VERT, TRUE);
        m_vScrollMax = scrollHeight;
    } else {
        EnableScrollBars(SB_VERT, FALSE);
        m_vScrollMax = 0;
    }
    if (visibleWidth < scrollWidth) {
        EnableScrollBars(SB_HORZ, TRUE);
        m_hScrollMax = scrollWidth;
    } else {
        EnableScrollBars(SB_HORZ, FALSE);
        m_hScrollMax = 0;
    }

    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_PAGE;
    info.nPage = UINT(m_hScrollMax > 0 ? visibleWidth : 0);
    SetScrollInfo(SB_HORZ, &info, FALSE);
    info.nPage = UINT(m_vScrollMax > 0 ? visibleHeight : 0);
    SetScrollInfo(SB_VERT, &info, FALSE);
    SetScrollRange(SB_VERT, 0, m_vScrollMax, TRUE);
    SetScrollRange(SB_HORZ, 0, m_hScrollMax, TRUE);
}

void CGridCtrl::EnableScrollBars(int bar, BOOL enable) {
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    const int bits = bar == SB_HORZ ? 1 : bar == SB_VERT ? 2 : bar == SB_BOTH ? 3 : 0;
    for (const int bit : {1, 2}) {
        if ((bits & bit) == 0 || bool(m_barState & bit) == bool(enable)) {
            continue;
        }
        ShowScrollBar(bit == 1 ? SB_HORZ : SB_VERT, enable);
        m_barState = enable ? m_barState | bit : m_barState & ~bit;
    }
}

int CGridCtrl::GetScrollPos32(int bar, BOOL thumbTrack) {
    if (GetSafeHwnd() == nullptr) {
        return 0;
    }
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    if (!GetScrollInfo(bar, &info, thumbTrack ? SIF_TRACKPOS : SIF_POS)) {
        return 0;
    }
    return thumbTrack ? info.nTrackPos : info.nPos;
}

BOOL CGridCtrl::SetScrollPos32(int bar, int position, BOOL redraw) {
    m_topLeftCell.col = -1;
    if (GetSafeHwnd() == nullptr) {
        return FALSE;
    }
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_POS;
    info.nPos = position;
    return SetScrollInfo(bar, &info, redraw);
}

void CGridCtrl::OnHScroll(UINT code, UINT position, CScrollBar* scrollBar) {
    ScrollBy(SB_HORZ, code);
}

void CGridCtrl::OnVScroll(UINT code, UINT position, CScrollBar* scrollBar) {
    ScrollBy(SB_VERT, code);
}

// Both bars follow one rule, with columns and widths for the horizontal bar and rows and
// heights for the vertical one. Only the scrolling part of the client area changes, so the
// fixed rows or columns along the bar stay; within it the cells still in view are moved, as
// pixels, and only the lines that come into view are drawn.
void CGridCtrl::ScrollBy(int bar, UINT code) {
    EndEditing();
    const bool horizontal = bar == SB_HORZ;
    const int position = GetScrollPos32(bar);
    const int maximum = horizontal ? m_hScrollMax : m_vScrollMax;
    const CCellID topLeft = GetTopleftNonFixedCell();
    const int firstLine = horizontal ? topLeft.col : topLeft.row;
    const int fixedCount = horizontal ? m_fixedColCount : m_fixedRowCount;
    const int lineCount = horizontal ? m_colCount : m_rowCount;
    auto sizeOf = [this, horizontal](int line) {
        return horizontal ? GetColumnWidth(line) : GetRowHeight(line);
    };

    CRect client;
    GetClientRect(&client);
    CRect scrolling = client;
    if (horizontal) {
        scrolling.left = GetFixedColumnWidth();
    } else {
        scrolling.top = GetFixedRowHeight();
    }
    const int page = horizontal ? scrolling.Width() : scrolling.Height();
    const auto showScrolled = [&] {
        const CCellID now = GetTopleftNonFixedCell();
        const int newFirst = horizontal ? now.col : now.row;
        int shift = 0; // the size of the lines scrolled past, up to a page
        for (int line = std::min(firstLine, newFirst);
             line < std::max(firstLine, newFirst) && shift < page; line++) {
            shift += sizeOf(line);
        }
        if (shift == 0 || shift >= page) {
            InvalidateRect(&scrolling);
            return;
        }
        const int by = newFirst > firstLine ? -shift : shift;
        ::ScrollWindowEx(GetSafeHwnd(), horizontal ? by : 0, horizontal ? 0 : by, &scrolling,
                         &scrolling, nullptr, nullptr, SW_INVALIDATE);
    };

    switch (code) {
    case SB_LINEUP:
        if (position > 0 && firstLine > fixedCount) {
            int line = firstLine - 1;
            while (line > fixedCount && sizeOf(line) == 0) {
                line--;
            }
            SetScrollPos32(bar, std::max(0, position - sizeOf(line)));
            showScrolled();
        }
        break;
    case SB_LINEDOWN:
        if (position < maximum) {
            int line = firstLine;
            while (line < lineCount - 1 && sizeOf(line) == 0) {
                line++;
            }
            SetScrollPos32(bar, position + sizeOf(line));
            if (GetScrollPos32(bar) == position) {
                break; // at the end of the range: nothing to repaint
            }
            showScrolled();
        }
        break;
    case SB_PAGEUP:
        if (position > 0) {
            SetScrollPos32(bar, std::max(0, position - page));
            showScrolled();
        }
        break;
    case SB_PAGEDOWN:
        if (position < maximum) {
            SetScrollPos32(bar, std::min(maximum, position + page));
            showScrolled();
        }
        break;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK: {
        SetScrollPos32(bar, GetScrollPos32(bar, TRUE));
        if (GetTopleftNonFixedCell() != topLeft) {
            showScrolled();
        }
        break;
    }
    case SB_TOP:
        if (position > 0) {
            SetScrollPos32(bar, 0);
            Invalidate();
        }
        break;
    case SB_BOTTOM:
        if (position < maximum) {
            SetScrollPos32(bar, maximum);
            Invalidate();
        }
        break;
    default:
        break;
    }
}

BOOL CGridCtrl::OnMouseWheel(UINT flags, short delta, CPoint point) {
    // Posted, not sent: the grid scrolls once this message has been handled.
    if (m_rowsPerWheelNotch == -1) {
        const int pages = delta / WHEEL_DELTA;
        for (int i = 0; i < std::abs(pages); i++) {
            PostMessage(WM_VSCROLL, MAKEWPARAM(pages > 0 ? SB_PAGEUP : SB_PAGEDOWN, 0), 0);
        }
    } else {
        const int lines = delta * m_rowsPerWheelNotch / WHEEL_DELTA;
        for (int i = 0; i < std::abs(lines); i++) {
            PostMessage(WM_VSCROLL, MAKEWPARAM(lines > 0 ? SB_LINEUP : SB_LINEDOWN, 0), 0);
        }
    }
    return CWnd::OnMouseWheel(flags, delta, point);
}

void CGridCtrl::OnSize(UINT type, int cx, int cy) {
    // Changing the bars resizes the client area, which brings the grid back here; the guard
    // is shared by all grids, which live on one thread.
    static bool sizing = false;
    if (sizing || GetSafeHwnd() == nullptr) {
        return;
    }
    sizing = true;
    EndEditing();
    CWnd::OnSize(type, cx, cy);
    ResetScrollBars();
    sizing = false;
}
