// The standard scroll bars of a window: their state with the framework's clamping, their room
// in the non-client area, and the mouse on them, which sends WM_HSCROLL and WM_VSCROLL.

#include "platform/window/ScrollBarTracking.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"
#include "platform/window/InputState.h"

#include <algorithm>

namespace wm {
namespace {

constexpr UINT SBM_SETSCROLLINFO = 0x00E9;
constexpr UINT SBM_GETSCROLLINFO = 0x00EA;
constexpr int minimumThumb = 8;

ScrollBarState* StateOf(WindowRecord* w, int bar) {
    if (!w)
        return nullptr;
    if (bar == SB_HORZ)
        return &w->hscroll;
    if (bar == SB_VERT)
        return &w->vscroll;
    return nullptr;
}

DWORD StyleBit(int bar) {
    return bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL;
}

// The largest position the thumb can take: the page's last line stays within the range.
int MaxPosition(const SCROLLINFO& si) {
    return std::max(si.nMin, si.nMax - std::max(int(si.nPage) - 1, 0));
}

bool Unneeded(const SCROLLINFO& si) {
    return si.nMax <= si.nMin || (si.nPage > 0 && si.nPage > UINT(si.nMax - si.nMin));
}

// Changes the bars that a window shows, telling the window of its new client size.
void SetBarsShown(WindowRecord& w, DWORD bits, bool show) {
    const DWORD style = show ? (w.style | bits) : (w.style & ~bits);
    if (style == w.style)
        return;
    const CSize before = ClientInWindow(w).Size();
    w.style = style;
    InvalidateFrame(w);
    const CSize after = ClientInWindow(w).Size();
    if (after != before) {
        InvalidateClient(w, CRect(CPoint(0, 0), after), true);
        w.announcedClient = after;
        Send(&w, WM_SIZE, SIZE_RESTORED, MAKELPARAM(WORD(after.cx), WORD(after.cy)));
    }
}

struct BarLayout {
    CRect rect; // window coordinates
    bool vertical;
    int length;     // along the bar
    int arrow;      // each arrow's length
    int thumbStart; // from the bar's start; thumbLength 0 when there is no thumb
    int thumbLength;
};

BarLayout Layout(const WindowRecord& w, int bar, bool useTrackPos) {
    BarLayout l{};
    l.rect = ScrollBarRect(w, bar);
    l.vertical = bar == SB_VERT;
    l.length = l.vertical ? l.rect.Height() : l.rect.Width();
    const int thickness = l.vertical ? l.rect.Width() : l.rect.Height();
    l.arrow = std::min(thickness, l.length / 2);
    const ScrollBarState& state = bar == SB_HORZ ? w.hscroll : w.vscroll;
    const SCROLLINFO& si = state.info;
    const int track = l.length - 2 * l.arrow;
    if (state.disabled || Unneeded(si) || track <= 0)
        return l;
    const long long count = (long long)si.nMax - si.nMin + 1;
    long long thumb = si.nPage ? track * (long long)si.nPage / count : thickness;
    thumb = std::max<long long>(thumb, std::min(minimumThumb, track));
    if (thumb > track)
        return l;
    const long long span = (long long)MaxPosition(si) - si.nMin;
    const int pos = useTrackPos && state.tracking ? si.nTrackPos : si.nPos;
    const long long offset = span > 0 ? ((long long)pos - si.nMin) * (track - thumb) / span : 0;
    l.thumbLength = int(thumb);
    l.thumbStart = l.arrow + int(std::clamp<long long>(offset, 0, track - thumb));
    return l;
}

int Along(const BarLayout& l, CPoint windowPoint) {
    return l.vertical ? windowPoint.y - l.rect.top : windowPoint.x - l.rect.left;
}

void SendScroll(HWND hwnd, int bar, UINT code, int pos) {
    SendMessage(hwnd, bar == SB_HORZ ? WM_HSCROLL : WM_VSCROLL, MAKEWPARAM(WORD(code), WORD(pos)),
                0);
}
} // namespace

CRect ScrollBarRect(const WindowRecord& w, int bar) {
    const CRect client = ClientInWindow(w);
    if (bar == SB_VERT && (w.style & WS_VSCROLL))
        return CRect(client.right, client.top, client.right + GetSystemMetrics(SM_CXVSCROLL),
                     client.bottom);
    if (bar == SB_HORZ && (w.style & WS_HSCROLL))
        return CRect(client.left, client.bottom, client.right,
                     client.bottom + GetSystemMetrics(SM_CYHSCROLL));
    return CRect();
}

int ScrollBarAt(const WindowRecord& w, CPoint windowPoint) {
    if (ScrollBarRect(w, SB_VERT).PtInRect(windowPoint))
        return SB_VERT;
    if (ScrollBarRect(w, SB_HORZ).PtInRect(windowPoint))
        return SB_HORZ;
    return -1;
}

void BeginScrollBarTracking(HWND hwnd, int bar, CPoint screen) {
    WindowRecord* w = Find(hwnd);
    ScrollBarState* state = StateOf(w, bar);
    if (!state || state->disabled || Unneeded(state->info))
        return;
    const BarLayout l = Layout(*w, bar, false);
    const int at = Along(l, screen - WindowOrigin(*w));
    InputState& in = Input();
    in.trackingWindow = hwnd;
    in.trackingBar = bar;
    if (at < l.arrow)
        in.trackingPart = SB_LINEUP;
    else if (at >= l.length - l.arrow)
        in.trackingPart = SB_LINEDOWN;
    else if (l.thumbLength && at >= l.thumbStart && at < l.thumbStart + l.thumbLength)
        in.trackingPart = SB_THUMBTRACK;
    else
        in.trackingPart = l.thumbLength && at < l.thumbStart ? SB_PAGEUP : SB_PAGEDOWN;
    if (in.trackingPart == SB_THUMBTRACK) {
        in.trackingGrabOffset = at - l.thumbStart;
        state->tracking = true;
        state->info.nTrackPos = state->info.nPos;
    } else {
        SendScroll(hwnd, bar, UINT(in.trackingPart), 0);
    }
}

bool TrackScrollBarMouse(UINT message, CPoint screen) {
    InputState& in = Input();
    const HWND hwnd = in.trackingWindow;
    WindowRecord* w = Find(hwnd);
    if (!w) {
        in.trackingWindow = nullptr;
        return false;
    }
    ScrollBarState* state = StateOf(w, in.trackingBar);
    const int bar = in.trackingBar;
    if (message == WM_MOUSEMOVE && in.trackingPart == SB_THUMBTRACK) {
        const BarLayout l = Layout(*w, bar, false);
        const int track = l.length - 2 * l.arrow - l.thumbLength;
        const int start = std::clamp(Along(l, screen - WindowOrigin(*w)) - in.trackingGrabOffset,
                                     l.arrow, l.arrow + std::max(track, 0));
        const SCROLLINFO& si = state->info;
        const long long span = (long long)MaxPosition(si) - si.nMin;
        const int pos =
            track > 0 ? int(si.nMin + ((start - l.arrow) * span + track / 2) / track) : si.nMin;
        if (pos != si.nTrackPos) {
            state->info.nTrackPos = pos;
            InvalidateFrame(*w);
            SendScroll(hwnd, bar, SB_THUMBTRACK, pos);
        }
    } else if (message == WM_LBUTTONUP) {
        in.trackingWindow = nullptr;
        if (in.trackingPart == SB_THUMBTRACK) {
            const int pos = state->info.nTrackPos;
            SendScroll(hwnd, bar, SB_THUMBPOSITION, pos);
            if ((w = Find(hwnd)) != nullptr) {
                StateOf(w, bar)->tracking = false;
                InvalidateFrame(*w);
            }
        }
        SendScroll(hwnd, bar, SB_ENDSCROLL, 0);
    }
    return true;
}

} // namespace wm

using namespace wm;

int SetScrollInfo(HWND hwnd, int bar, const SCROLLINFO* info, BOOL redraw) {
    if (!info)
        return 0;
    if (bar == SB_CTL)
        return int(SendMessage(hwnd, SBM_SETSCROLLINFO, WPARAM(redraw), LPARAM(info)));
    WindowRecord* w = Find(hwnd);
    ScrollBarState* state = StateOf(w, bar);
    if (!state)
        return 0;
    SCROLLINFO& si = state->info;
    if (info->fMask & SIF_RANGE) {
        si.nMin = info->nMin;
        si.nMax = std::max(info->nMin, info->nMax);
    }
    if (info->fMask & SIF_PAGE)
        si.nPage = info->nPage;
    if (info->fMask & SIF_POS)
        si.nPos = info->nPos;
    si.nPage = UINT(std::min<long long>(si.nPage, (long long)si.nMax - si.nMin + 1));
    si.nPos = std::clamp(si.nPos, si.nMin, MaxPosition(si));
    if (info->fMask & (SIF_RANGE | SIF_PAGE)) {
        const bool unneeded = Unneeded(si);
        if (info->fMask & SIF_DISABLENOSCROLL) {
            state->disabled = unneeded;
            SetBarsShown(*w, StyleBit(bar), true);
        } else {
            state->disabled = false;
            SetBarsShown(*w, StyleBit(bar), !unneeded);
        }
    }
    if (redraw && (w = Find(hwnd)) != nullptr)
        InvalidateFrame(*w);
    return si.nPos;
}

BOOL GetScrollInfo(HWND hwnd, int bar, SCROLLINFO* info) {
    if (!info)
        return FALSE;
    if (bar == SB_CTL)
        return SendMessage(hwnd, SBM_GETSCROLLINFO, 0, LPARAM(info)) != 0;
    WindowRecord* w = Find(hwnd);
    const ScrollBarState* state = StateOf(w, bar);
    if (!state)
        return FALSE;
    const SCROLLINFO& si = state->info;
    if (info->fMask & SIF_RANGE) {
        info->nMin = si.nMin;
        info->nMax = si.nMax;
    }
    if (info->fMask & SIF_PAGE)
        info->nPage = si.nPage;
    if (info->fMask & SIF_POS)
        info->nPos = si.nPos;
    if (info->fMask & SIF_TRACKPOS)
        info->nTrackPos = state->tracking ? si.nTrackPos : si.nPos;
    return (info->fMask & SIF_ALL) != 0;
}

int SetScrollPos(HWND hwnd, int bar, int pos, BOOL redraw) {
    SCROLLINFO si{sizeof(SCROLLINFO), SIF_POS, 0, 0, 0, 0, 0};
    if (!GetScrollInfo(hwnd, bar, &si))
        return 0;
    const int old = si.nPos;
    si.nPos = pos;
    SetScrollInfo(hwnd, bar, &si, redraw);
    return old;
}

int GetScrollPos(HWND hwnd, int bar) {
    SCROLLINFO si{sizeof(SCROLLINFO), SIF_POS, 0, 0, 0, 0, 0};
    return GetScrollInfo(hwnd, bar, &si) ? si.nPos : 0;
}

BOOL SetScrollRange(HWND hwnd, int bar, int minPos, int maxPos, BOOL redraw) {
    if (!Find(hwnd) || (bar != SB_HORZ && bar != SB_VERT && bar != SB_CTL))
        return FALSE;
    SCROLLINFO si{sizeof(SCROLLINFO), SIF_RANGE, minPos, maxPos, 0, 0, 0};
    SetScrollInfo(hwnd, bar, &si, redraw);
    return TRUE;
}

BOOL GetScrollRange(HWND hwnd, int bar, int* minPos, int* maxPos) {
    SCROLLINFO si{sizeof(SCROLLINFO), SIF_RANGE, 0, 0, 0, 0, 0};
    if (!GetScrollInfo(hwnd, bar, &si))
        return FALSE;
    if (minPos)
        *minPos = si.nMin;
    if (maxPos)
        *maxPos = si.nMax;
    return TRUE;
}

BOOL ShowScrollBar(HWND hwnd, int bar, BOOL show) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    DWORD bits = 0;
    if (bar == SB_HORZ || bar == SB_BOTH)
        bits |= WS_HSCROLL;
    if (bar == SB_VERT || bar == SB_BOTH)
        bits |= WS_VSCROLL;
    if (!bits)
        return FALSE;
    SetBarsShown(*w, bits, show != FALSE);
    return TRUE;
}

BOOL EnableScrollBar(HWND hwnd, int bar, UINT arrows) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    for (int b : {SB_HORZ, SB_VERT})
        if (bar == b || bar == SB_BOTH)
            StateOf(w, b)->disabled = arrows == ESB_DISABLE_BOTH;
    InvalidateFrame(*w);
    return TRUE;
}

BOOL ScrollWindow(HWND hwnd, int dx, int dy, const RECT* scrollRect, const RECT*) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    if (!scrollRect)
        for (HWND child : w->children)
            if (WindowRecord* c = Find(child))
                c->rect.OffsetRect(dx, dy);
    const CRect client = ClientInWindow(*w);
    InvalidateClient(*w, scrollRect ? CRect(*scrollRect) : CRect(CPoint(0, 0), client.Size()),
                     true);
    return TRUE;
}

namespace wm {

void DrawScrollBars(const WindowRecord& w, HDC windowDC) {
    CDC* dc = CDC::FromHandle(windowDC);
    if (!dc)
        return;
    const COLORREF face = GetSysColor(COLOR_3DFACE);
    const COLORREF light = GetSysColor(COLOR_3DHILIGHT);
    // The classic track is a checkerboard of face and highlight; its average reads the same.
    const COLORREF track = RGB(BYTE((GetRValue(face) + GetRValue(light)) / 2),
                               BYTE((GetGValue(face) + GetGValue(light)) / 2),
                               BYTE((GetBValue(face) + GetBValue(light)) / 2));
    for (int bar : {SB_HORZ, SB_VERT}) {
        const BarLayout l = Layout(w, bar, true);
        if (l.rect.IsRectEmpty())
            continue;
        const ScrollBarState& state = bar == SB_HORZ ? w.hscroll : w.vscroll;
        const UINT inactive = (state.disabled || Unneeded(state.info)) ? DFCS_INACTIVE : 0;
        dc->FillSolidRect(&l.rect, track);
        CRect first = l.rect, last = l.rect;
        if (l.vertical) {
            first.bottom = first.top + l.arrow;
            last.top = last.bottom - l.arrow;
        } else {
            first.right = first.left + l.arrow;
            last.left = last.right - l.arrow;
        }
        dc->DrawFrameControl(&first, DFC_SCROLL,
                             (l.vertical ? DFCS_SCROLLUP : DFCS_SCROLLLEFT) | inactive);
        dc->DrawFrameControl(&last, DFC_SCROLL,
                             (l.vertical ? DFCS_SCROLLDOWN : DFCS_SCROLLRIGHT) | inactive);
        if (l.thumbLength) {
            CRect thumb = l.rect;
            if (l.vertical) {
                thumb.top = l.rect.top + l.thumbStart;
                thumb.bottom = thumb.top + l.thumbLength;
            } else {
                thumb.left = l.rect.left + l.thumbStart;
                thumb.right = thumb.left + l.thumbLength;
            }
            dc->DrawEdge(&thumb, EDGE_RAISED, BF_RECT | BF_MIDDLE);
        }
    }
    if ((w.style & WS_VSCROLL) && (w.style & WS_HSCROLL)) {
        const CRect v = ScrollBarRect(w, SB_VERT);
        const CRect h = ScrollBarRect(w, SB_HORZ);
        dc->FillSolidRect(CRect(v.left, h.top, v.right, h.bottom), face);
    }
}

} // namespace wm
