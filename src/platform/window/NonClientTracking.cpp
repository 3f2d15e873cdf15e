// Moving a window by its caption and sizing it by its border with the mouse, and sizes that
// come from the host (a display window resized by the user): both keep within the limits that
// the window gives through WM_GETMINMAXINFO.

#include "platform/window/NonClient.h"
#include "platform/window/WindowRecord.h"

#include "platform/host/Host.h"
#include "platform/system/SystemMetrics.h"

#include <algorithm>

namespace wm {
namespace {

// The drag under way, if any: one at a time, on the user-interface thread.
struct SizeMoveDrag {
    HWND window = nullptr;
    int hit = HTNOWHERE; // HTCAPTION moves; HTLEFT ... HTBOTTOMRIGHT size
    CPoint start;        // where the press was, on the screen
    CRect startRect;     // the window's rectangle then, in its parent's client coordinates
};

SizeMoveDrag& Drag() {
    static SizeMoveDrag drag;
    return drag;
}

bool Moves(int side, int edge) {
    switch (edge) {
    case WMSZ_LEFT:
        return side == WMSZ_LEFT || side == WMSZ_TOPLEFT || side == WMSZ_BOTTOMLEFT;
    case WMSZ_RIGHT:
        return side == WMSZ_RIGHT || side == WMSZ_TOPRIGHT || side == WMSZ_BOTTOMRIGHT;
    case WMSZ_TOP:
        return side == WMSZ_TOP || side == WMSZ_TOPLEFT || side == WMSZ_TOPRIGHT;
    default:
        return side == WMSZ_BOTTOM || side == WMSZ_BOTTOMLEFT || side == WMSZ_BOTTOMRIGHT;
    }
}

// Keeps a rectangle within the limits, moving the edges being dragged (the others stay).
CRect Clamp(CRect rect, const MINMAXINFO& limits, int side) {
    const int width = std::clamp<int>(rect.Width(), limits.ptMinTrackSize.x,
                                      std::max(limits.ptMinTrackSize.x, limits.ptMaxTrackSize.x));
    const int height = std::clamp<int>(rect.Height(), limits.ptMinTrackSize.y,
                                       std::max(limits.ptMinTrackSize.y, limits.ptMaxTrackSize.y));
    if (Moves(side, WMSZ_LEFT))
        rect.left = rect.right - width;
    else
        rect.right = rect.left + width;
    if (Moves(side, WMSZ_TOP))
        rect.top = rect.bottom - height;
    else
        rect.bottom = rect.top + height;
    return rect;
}

void Place(HWND hwnd, const CRect& rect) {
    SetWindowPos(hwnd, nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

MINMAXINFO GetMinMaxInfo(HWND hwnd) {
    MINMAXINFO info{};
    const WindowRecord* w = Find(hwnd);
    const bool framed = w && (w->style & WS_CAPTION) == WS_CAPTION;
    info.ptMaxSize = POINT{GetSystemMetrics(SM_CXMAXIMIZED), GetSystemMetrics(SM_CYMAXIMIZED)};
    info.ptMaxTrackSize = POINT{GetSystemMetrics(SM_CXMAXTRACK), GetSystemMetrics(SM_CYMAXTRACK)};
    info.ptMinTrackSize =
        framed ? POINT{GetSystemMetrics(SM_CXMINTRACK), GetSystemMetrics(SM_CYMINTRACK)}
               : POINT{0, 0};
    SendMessage(hwnd, WM_GETMINMAXINFO, 0, LPARAM(&info));
    return info;
}

void BeginSizeMove(HWND hwnd, int hit, CPoint screen) {
    const WindowRecord* w = Find(hwnd);
    if (!w || Drag().window)
        return;
    Drag() = SizeMoveDrag{hwnd, hit, screen, w->rect};
    SetCapture(hwnd);
    SendMessage(hwnd, WM_ENTERSIZEMOVE, 0, 0);
}

bool TrackSizeMoveMouse(UINT message, CPoint screen) {
    SizeMoveDrag& drag = Drag();
    if (!drag.window)
        return false;
    const HWND hwnd = drag.window;
    if (!IsWindow(hwnd) || GetCapture() != hwnd) {
        drag = SizeMoveDrag{};
        return false;
    }
    if (message == WM_LBUTTONUP) {
        drag = SizeMoveDrag{};
        ReleaseCapture();
        SendMessage(hwnd, WM_EXITSIZEMOVE, 0, 0);
        return true;
    }
    if (message != WM_MOUSEMOVE)
        return true;
    const CSize delta = screen - drag.start;
    CRect rect = drag.startRect;
    if (drag.hit == HTCAPTION) {
        rect.OffsetRect(delta);
        SendMessage(hwnd, WM_MOVING, 0, LPARAM(&rect));
    } else {
        const int side = drag.hit - HTLEFT + WMSZ_LEFT;
        if (Moves(side, WMSZ_LEFT))
            rect.left += delta.cx;
        if (Moves(side, WMSZ_RIGHT))
            rect.right += delta.cx;
        if (Moves(side, WMSZ_TOP))
            rect.top += delta.cy;
        if (Moves(side, WMSZ_BOTTOM))
            rect.bottom += delta.cy;
        rect = Clamp(rect, GetMinMaxInfo(hwnd), side);
        SendMessage(hwnd, WM_SIZING, WPARAM(side), LPARAM(&rect));
    }
    if (IsWindow(hwnd))
        Place(hwnd, rect);
    return true;
}

void ApplyHostSize(HWND hwnd, CSize size) {
    const WindowRecord* w = Find(hwnd);
    if (!w)
        return;
    CRect rect(w->rect.TopLeft(), size);
    rect = Clamp(rect, GetMinMaxInfo(hwnd), WMSZ_BOTTOMRIGHT);
    if (!IsWindow(hwnd))
        return;
    if (rect.Size() != Find(hwnd)->rect.Size())
        SendMessage(hwnd, WM_SIZING, WMSZ_BOTTOMRIGHT, LPARAM(&rect));
    // A size the limits refused goes back to the host through the placement, which it shows.
    if (IsWindow(hwnd)) {
        Place(hwnd, rect);
        if (const WindowRecord* now = Find(hwnd); now && now->rect.Size() != size)
            GetHost().MoveWindowSurface(hwnd, now->rect);
    }
}

void ShareSizeLimits(HWND hwnd) {
    const WindowRecord* w = Find(hwnd);
    if (!w || !IsTopLevel(*w) || !(w->style & WS_THICKFRAME))
        return;
    const MINMAXINFO info = GetMinMaxInfo(hwnd);
    GetHost().SetWindowSizeLimits(hwnd, CSize(info.ptMinTrackSize.x, info.ptMinTrackSize.y),
                                  CSize(info.ptMaxTrackSize.x, info.ptMaxTrackSize.y));
}

} // namespace wm
