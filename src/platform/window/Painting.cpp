// Invalidation and painting. A window's update region is kept as its bounding rectangle in
// client coordinates. Drawing goes to the top-level window's surface, clipped to what of the
// window can be seen; since one clip rectangle cannot leave a child's area out of its
// parent's, invalidating a parent also invalidates the children it covers, and the pump paints
// parents before their children so that children end up on top.

#include "platform/window/WindowRecord.h"

#include "platform/gdi/DC.h"
#include "platform/gdi/GdiTypes.h"
#include "platform/gdi/Rgn.h"
#include "platform/gdi/SurfaceDC.h"
#include "platform/host/Host.h"

#include <cstdlib>

namespace wm {
namespace {

bool HasFrame(const WindowRecord& w) {
    const FrameMetrics m = GetFrameMetrics(w);
    return m.left || m.top || m.right || m.bottom;
}

bool NeedsPaint(const WindowRecord& w) {
    return w.redraw && !w.inPaint && IsShowing(w) &&
           (!w.update.IsRectEmpty() || (w.frameDirty && HasFrame(w)));
}

HWND FirstToPaint(const WindowRecord& w) {
    if (NeedsPaint(w))
        return w.handle;
    for (auto it = w.children.rbegin(); it != w.children.rend(); ++it)
        if (const WindowRecord* c = Find(*it))
            if (HWND found = FirstToPaint(*c))
                return found;
    return nullptr;
}

CRect ClientBounds(const WindowRecord& w) {
    return CRect(CPoint(0, 0), ClientInWindow(w).Size());
}

HDC SurfaceDC(const WindowRecord& w, bool client, const CRect& clip) {
    WindowRecord* top = TopLevelOf(const_cast<WindowRecord*>(&w));
    Surface* surface = top ? GetHost().GetWindowSurface(top->handle) : nullptr;
    if (!surface)
        return CreateCompatibleDC(nullptr);
    return CreateSurfaceDC(surface, SurfaceOrigin(w, client), clip);
}

// Removes `rect` from the bounding rectangle where it covers a whole side of it.
CRect Subtract(const CRect& update, const CRect& rect) {
    CRect result = update;
    if (rect.left <= result.left && rect.right >= result.right) {
        if (rect.top <= result.top && rect.bottom > result.top)
            result.top = std::min(rect.bottom, result.bottom);
        if (rect.bottom >= result.bottom && rect.top < result.bottom)
            result.bottom = std::max(rect.top, result.top);
    }
    if (rect.top <= result.top && rect.bottom >= result.bottom) {
        if (rect.left <= result.left && rect.right > result.left)
            result.left = std::min(rect.right, result.right);
        if (rect.right >= result.right && rect.left < result.right)
            result.right = std::max(rect.left, result.left);
    }
    if (result.IsRectEmpty())
        result.SetRectEmpty();
    return result;
}

// Whether the pixels now shown in `area` (client coordinates) are the window's own: the window
// draws, the area is in view and no child covers it.
bool OwnsPixelsOf(const WindowRecord& w, const CRect& area) {
    if (!w.redraw || !IsShowing(w))
        return false;
    const CRect inSurface = area + SurfaceOrigin(w, true);
    if ((inSurface & VisibleClientInSurface(w)) != inSurface)
        return false;
    const CPoint client = ClientInWindow(w).TopLeft();
    for (HWND child : w.children) {
        const WindowRecord* c = Find(child);
        if (c && (c->style & WS_VISIBLE) && !(area & (c->rect - client)).IsRectEmpty())
            return false;
    }
    return true;
}

// Copies the pixels of `from` to `to` (same size, client coordinates) on the window's surface.
void MovePixels(const WindowRecord& w, const CRect& from, const CRect& to) {
    HDC dc = SurfaceDC(w, true, VisibleClientInSurface(w));
    ::BitBlt(dc, to.left, to.top, to.Width(), to.Height(), dc, from.left, from.top, SRCCOPY);
    DeleteDC(dc);
}

void PaintNow(HWND hwnd) {
    WindowRecord* w = Find(hwnd);
    if (!w || !NeedsPaint(*w))
        return;
    const MSG msg{hwnd, WM_PAINT, 0, 0, GetHost().Now(), {}};
    DispatchMessage(&msg);
}
} // namespace

HWND NextWindowToPaint() {
    for (HWND top : TopLevelWindows())
        if (const WindowRecord* w = Find(top))
            if (HWND found = FirstToPaint(*w))
                return found;
    return nullptr;
}

void InvalidateFrame(WindowRecord& w) {
    w.frameDirty = true;
}

void InvalidateClient(WindowRecord& w, const CRect& clientRect, bool erase) {
    if (!w.redraw)
        return;
    const CRect area = clientRect & ClientBounds(w);
    if (area.IsRectEmpty())
        return;
    w.update |= area;
    w.eraseOnPaint = w.eraseOnPaint || erase;
    // The window paints the bounds of all that is invalid, over its children: each repaints
    // what of it it covers, not only what of this area.
    const CRect painted = w.update;
    for (HWND child : w.children) {
        WindowRecord* c = Find(child);
        if (!c || !(c->style & WS_VISIBLE))
            continue;
        const CRect overlap = painted & c->rect;
        if (overlap.IsRectEmpty())
            continue;
        if (HasFrame(*c))
            InvalidateFrame(*c);
        InvalidateClient(*c, overlap - c->rect.TopLeft() - ClientInWindow(*c).TopLeft(), erase);
    }
}

} // namespace wm

using namespace wm;

BOOL InvalidateRect(HWND hwnd, const RECT* rect, BOOL erase) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    InvalidateClient(*w, rect ? CRect(*rect) : ClientBounds(*w), erase != FALSE);
    return TRUE;
}

int ScrollWindowEx(HWND hwnd, int dx, int dy, const RECT* scrollRect, const RECT* clipRect,
                   HRGN updateRegion, RECT* updateRect, UINT flags) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return ERROR;
    CRect area = ClientBounds(*w);
    if (scrollRect)
        area &= CRect(*scrollRect);
    if (clipRect)
        area &= CRect(*clipRect);
    if (flags & SW_SCROLLCHILDREN) {
        const CPoint client = ClientInWindow(*w).TopLeft();
        for (HWND child : w->children)
            if (WindowRecord* c = Find(child);
                c && (!scrollRect || !(CRect(*scrollRect) & (c->rect - client)).IsRectEmpty()))
                c->rect.OffsetRect(dx, dy);
    }

    // A move along one axis keeps in view what it does not push out, and brings in one band;
    // anything else brings in the whole area.
    const CRect kept = (area + CPoint(dx, dy)) & area;
    CRect exposed = area;
    if (dx == 0 && dy == 0) {
        exposed.SetRectEmpty();
    } else if ((dx == 0 || dy == 0) && !kept.IsRectEmpty() && !(flags & SW_SCROLLCHILDREN) &&
               OwnsPixelsOf(*w, area)) {
        MovePixels(*w, kept - CPoint(dx, dy), kept);
        // A part waiting to be painted moves with the pixels around it.
        const CRect waiting = w->update & area;
        if (!waiting.IsRectEmpty())
            w->update |= (waiting + CPoint(dx, dy)) & area;
        if (dy > 0)
            exposed.bottom = kept.top;
        else if (dy < 0)
            exposed.top = kept.bottom;
        else if (dx > 0)
            exposed.right = kept.left;
        else
            exposed.left = kept.right;
    }
    if ((flags & SW_INVALIDATE) && !exposed.IsRectEmpty())
        InvalidateClient(*w, exposed, (flags & SW_ERASE) != 0);
    if (updateRect)
        *updateRect = exposed;
    if (CRgn* region = updateRegion ? CRgn::FromHandle(updateRegion) : nullptr)
        region->SetRectRgn(exposed.left, exposed.top, exposed.right, exposed.bottom);
    return exposed.IsRectEmpty() ? NULLREGION : SIMPLEREGION;
}

BOOL ValidateRect(HWND hwnd, const RECT* rect) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    w->update = rect ? Subtract(w->update, CRect(*rect)) : CRect();
    if (w->update.IsRectEmpty())
        w->eraseOnPaint = false;
    return TRUE;
}

BOOL GetUpdateRect(HWND hwnd, RECT* rect, BOOL) {
    const WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    if (rect)
        *rect = w->update;
    return !w->update.IsRectEmpty();
}

BOOL UpdateWindow(HWND hwnd) {
    if (!Find(hwnd))
        return FALSE;
    for (HWND h : SubtreeOf(hwnd))
        PaintNow(h);
    return TRUE;
}

BOOL RedrawWindow(HWND hwnd, const RECT* updateRect, HRGN, UINT flags) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    if (flags & RDW_INVALIDATE) {
        InvalidateClient(*w, updateRect ? CRect(*updateRect) : ClientBounds(*w),
                         (flags & RDW_ERASE) != 0);
        if (flags & RDW_FRAME)
            InvalidateFrame(*w);
    }
    if (flags & RDW_VALIDATE) {
        ValidateRect(hwnd, updateRect);
        if (flags & RDW_NOFRAME)
            w->frameDirty = false;
    }
    if (flags & RDW_UPDATENOW)
        UpdateWindow(hwnd);
    return TRUE;
}

HDC BeginPaint(HWND hwnd, PAINTSTRUCT* paint) {
    WindowRecord* w = Find(hwnd);
    if (!w || !paint)
        return nullptr;
    *paint = PAINTSTRUCT{};
    if (w->frameDirty) {
        w->frameDirty = false;
        Send(w, WM_NCPAINT, 1, 0);
        if ((w = Find(hwnd)) == nullptr)
            return nullptr;
    }
    const CRect update = w->update & ClientBounds(*w);
    const bool erase = w->eraseOnPaint;
    w->update.SetRectEmpty();
    w->eraseOnPaint = false;
    w->inPaint = true;
    paint->rcPaint = update;
    const CRect clip = (update + SurfaceOrigin(*w, true)) & VisibleClientInSurface(*w);
    paint->hdc = SurfaceDC(*w, true, clip);
    if (erase && !update.IsRectEmpty())
        paint->fErase = Send(w, WM_ERASEBKGND, WPARAM(paint->hdc), 0) == 0;
    return paint->hdc;
}

BOOL EndPaint(HWND hwnd, const PAINTSTRUCT* paint) {
    if (paint && paint->hdc)
        DeleteDC(paint->hdc);
    WindowRecord* w = Find(hwnd);
    if (!w)
        return FALSE;
    w->inPaint = false;
    if (WindowRecord* top = TopLevelOf(w))
        GetHost().Present(top->handle);
    return TRUE;
}

HDC GetDC(HWND hwnd) {
    if (!hwnd)
        return CreateCompatibleDC(nullptr);
    const WindowRecord* w = Find(hwnd);
    if (!w)
        return nullptr;
    return SurfaceDC(*w, true, IsShowing(*w) ? VisibleClientInSurface(*w) : CRect());
}

HDC GetWindowDC(HWND hwnd) {
    const WindowRecord* w = Find(hwnd);
    if (!w)
        return hwnd ? nullptr : CreateCompatibleDC(nullptr);
    return SurfaceDC(*w, false, IsShowing(*w) ? VisibleWindowInSurface(*w) : CRect());
}

int ReleaseDC(HWND hwnd, HDC dc) {
    if (!dc)
        return 0;
    DeleteDC(dc);
    if (WindowRecord* top = TopLevelOf(Find(hwnd)))
        GetHost().Present(top->handle);
    return 1;
}
