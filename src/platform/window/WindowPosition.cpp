// Moving, sizing and restacking windows. The window hears of a change through
// WM_WINDOWPOSCHANGED, whose default handling sends WM_MOVE and WM_SIZE.

#include "platform/window/WindowRecord.h"

#include "platform/host/Host.h"

#include <algorithm>

namespace {
using namespace wm;

void Restack(WindowRecord& w, HWND insertAfter) {
    std::vector<HWND>& siblings = IsTopLevel(w) ? TopLevelWindows() : Find(w.parent)->children;
    std::erase(siblings, w.handle);
    if (insertAfter == HWND_BOTTOM) {
        siblings.push_back(w.handle);
        return;
    }
    const auto after = std::find(siblings.begin(), siblings.end(), insertAfter);
    if (insertAfter == HWND_TOP || insertAfter == HWND_TOPMOST || insertAfter == HWND_NOTOPMOST ||
        after == siblings.end()) {
        siblings.insert(siblings.begin(), w.handle);
        if (IsTopLevel(w))
            GetHost().RaiseWindowSurface(w.handle);
    } else
        siblings.insert(after + 1, w.handle);
}

void InvalidateInParent(WindowRecord& w, const CRect& rect) {
    if (WindowRecord* parent = IsTopLevel(w) ? nullptr : Find(w.parent))
        InvalidateClient(*parent, rect, true);
}
} // namespace

BOOL SetWindowPos(HWND hwnd, HWND insertAfter, int x, int y, int width, int height, UINT flags) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    const CRect oldRect = w->rect;
    const CSize oldClient = w->announcedClient;
    CRect newRect = oldRect;
    if (!(flags & SWP_NOMOVE))
        newRect.MoveToXY(x, y);
    if (!(flags & SWP_NOSIZE)) {
        newRect.right = newRect.left + std::max(width, 0);
        newRect.bottom = newRect.top + std::max(height, 0);
    }
    if (!(flags & SWP_NOZORDER))
        Restack(*w, insertAfter);

    const bool moved = newRect.TopLeft() != oldRect.TopLeft();
    const bool sized = newRect.Size() != oldRect.Size();
    const bool redraw = !(flags & SWP_NOREDRAW);
    if ((moved || sized) && (w->style & WS_VISIBLE) && redraw)
        InvalidateInParent(*w, oldRect);
    w->rect = newRect;
    if (sized || (flags & SWP_FRAMECHANGED)) {
        RecalcClient(hwnd);
        // The window's WM_NCCALCSIZE may have destroyed it.
        if ((w = Find(hwnd)) == nullptr)
            return TRUE;
    }
    if (IsTopLevel(*w) && (moved || sized))
        GetHost().MoveWindowSurface(hwnd, newRect);
    const CSize newClient = ClientInWindow(*w).Size();
    if (sized || moved || (flags & SWP_FRAMECHANGED))
        InvalidateFrame(*w);
    if (redraw && (sized || (moved && !IsTopLevel(*w)) || (flags & SWP_FRAMECHANGED)))
        InvalidateClient(*w, CRect(CPoint(0, 0), newClient), true);
    if ((moved || sized) && (w->style & WS_VISIBLE) && redraw)
        InvalidateInParent(*w, newRect);

    if (moved || sized || newClient != oldClient) {
        WINDOWPOS pos{hwnd,
                      insertAfter,
                      newRect.left,
                      newRect.top,
                      newRect.Width(),
                      newRect.Height(),
                      flags & ~(SWP_NOMOVE | SWP_NOSIZE)};
        if (!moved)
            pos.flags |= SWP_NOMOVE;
        if (!sized && newClient == oldClient)
            pos.flags |= SWP_NOSIZE;
        Send(w, WM_WINDOWPOSCHANGED, 0, LPARAM(&pos));
    }
    if (flags & SWP_SHOWWINDOW)
        ShowWindow(hwnd, SW_SHOWNA);
    else if (flags & SWP_HIDEWINDOW)
        ShowWindow(hwnd, SW_HIDE);
    return TRUE;
}

BOOL MoveWindow(HWND hwnd, int x, int y, int width, int height, BOOL repaint) {
    return SetWindowPos(hwnd, nullptr, x, y, width, height,
                        SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0 : SWP_NOREDRAW));
}
