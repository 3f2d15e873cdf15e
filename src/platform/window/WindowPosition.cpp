// Moving, sizing and restacking windows. The window hears of a change through
// WM_WINDOWPOSCHANGED, whose default handling sends WM_MOVE and WM_SIZE.

#include "platform/window/WindowRecord.h"

#include "platform/host/Host.h"

#include <algorithm>

namespace {
using namespace wm;

// True when `owner` owns `window`, directly or through the windows between them.
bool IsOwnedBy(HWND window, HWND owner) {
    const WindowRecord* w = Find(window);
    // An owner is older than what it owns, so the chain is no longer than the windows there are.
    for (size_t steps = TopLevelWindows().size(); w && w->owner && steps > 0; --steps) {
        if (w->owner == owner)
            return true;
        w = Find(w->owner);
    }
    return false;
}

void Restack(WindowRecord& w, HWND insertAfter) {
    if (IsTopLevel(w) && insertAfter != HWND_BOTTOM &&
        (insertAfter == HWND_TOP || insertAfter == HWND_TOPMOST || insertAfter == HWND_NOTOPMOST ||
         !Find(insertAfter))) {
        BringTopLevelToTop(w.handle);
        return;
    }
    std::vector<HWND>& siblings = IsTopLevel(w) ? TopLevelWindows() : Find(w.parent)->children;
    std::erase(siblings, w.handle);
    if (insertAfter == HWND_BOTTOM) {
        siblings.push_back(w.handle);
        return;
    }
    const auto after = std::find(siblings.begin(), siblings.end(), insertAfter);
    if (insertAfter == HWND_TOP || after == siblings.end())
        siblings.insert(siblings.begin(), w.handle);
    else
        siblings.insert(after + 1, w.handle);
}

void InvalidateInParent(WindowRecord& w, const CRect& rect) {
    if (WindowRecord* parent = IsTopLevel(w) ? nullptr : Find(w.parent))
        InvalidateClient(*parent, rect, true);
}
} // namespace

namespace wm {

// As on the framework's system, an owned window never goes below its owner: they come up
// together, keeping their order among themselves. The display raises them from the bottom up,
// so that it shows them as the window layer stacks them and the mouse goes where it looks.
void BringTopLevelToTop(HWND hwnd) {
    std::vector<HWND>& tops = TopLevelWindows();
    std::vector<HWND> owned;
    for (HWND top : tops)
        if (IsOwnedBy(top, hwnd))
            owned.push_back(top);
    std::erase_if(tops, [&](HWND top) {
        return top == hwnd || std::find(owned.begin(), owned.end(), top) != owned.end();
    });
    tops.insert(tops.begin(), hwnd);
    tops.insert(tops.begin(), owned.begin(), owned.end());
    GetHost().RaiseWindowSurface(hwnd);
    for (auto above = owned.rbegin(); above != owned.rend(); ++above)
        GetHost().RaiseWindowSurface(*above);
}

} // namespace wm

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
