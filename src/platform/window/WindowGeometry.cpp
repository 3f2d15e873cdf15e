// Where a window and its client area lie: the frame that borders, edges, the caption and the
// scroll bars take, coordinates between windows and the screen, and hit tests.

#include "platform/window/WindowRecord.h"

#include "platform/host/Host.h"
#include "platform/system/SystemMetrics.h"

#include <algorithm>

namespace wm {

FrameMetrics GetFrameMetrics(const WindowRecord& w) {
    FrameMetrics m;
    int border = 0;
    if (w.style & WS_THICKFRAME)
        border = GetSystemMetrics(SM_CXFRAME);
    else if ((w.style & WS_DLGFRAME) || (w.exStyle & WS_EX_DLGMODALFRAME))
        border = GetSystemMetrics(SM_CXDLGFRAME);
    else if (w.style & WS_BORDER)
        border = GetSystemMetrics(SM_CXBORDER);
    m.border = border;
    if (w.exStyle & WS_EX_CLIENTEDGE)
        border += GetSystemMetrics(SM_CXEDGE);
    if (w.exStyle & WS_EX_STATICEDGE)
        border += GetSystemMetrics(SM_CXBORDER);
    m.left = m.top = m.right = m.bottom = border;
    if ((w.style & WS_CAPTION) == WS_CAPTION) {
        m.caption = GetSystemMetrics(SM_CYCAPTION);
        m.top += m.caption;
    }
    if (w.menu && !(w.style & WS_CHILD)) {
        m.menuBar = GetSystemMetrics(SM_CYMENU);
        m.top += m.menuBar;
    }
    m.vscroll = (w.style & WS_VSCROLL) != 0;
    m.hscroll = (w.style & WS_HSCROLL) != 0;
    if (m.vscroll)
        m.right += GetSystemMetrics(SM_CXVSCROLL);
    if (m.hscroll)
        m.bottom += GetSystemMetrics(SM_CYHSCROLL);
    return m;
}

CRect DefaultClientInWindow(const WindowRecord& w) {
    const FrameMetrics m = GetFrameMetrics(w);
    CRect client(m.left, m.top, w.rect.Width() - m.right, w.rect.Height() - m.bottom);
    client.right = std::max(client.right, client.left);
    client.bottom = std::max(client.bottom, client.top);
    return client;
}

CRect ClientInWindow(const WindowRecord& w) {
    // The adjustment is kept rather than the rectangle, so that scroll bars shown or hidden
    // between two calculations still count.
    CRect client = DefaultClientInWindow(w);
    client.left = std::clamp<LONG>(client.left + w.clientAdjust.left, 0, w.rect.Width());
    client.top = std::clamp<LONG>(client.top + w.clientAdjust.top, 0, w.rect.Height());
    client.right = std::clamp<LONG>(client.right - w.clientAdjust.right, client.left,
                                    std::max<LONG>(client.left, w.rect.Width()));
    client.bottom = std::clamp<LONG>(client.bottom - w.clientAdjust.bottom, client.top,
                                     std::max<LONG>(client.top, w.rect.Height()));
    return client;
}

void RecalcClient(HWND hwnd) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return;
    NCCALCSIZE_PARAMS params{};
    params.rgrc[0] = params.rgrc[1] = w->rect;
    Send(w, WM_NCCALCSIZE, TRUE, LPARAM(&params));
    // The procedure may have destroyed the window.
    if ((w = Find(hwnd)) == nullptr)
        return;
    const CRect asked = CRect(params.rgrc[0]) - w->rect.TopLeft();
    const CRect standard = DefaultClientInWindow(*w);
    w->clientAdjust = CRect(asked.left - standard.left, asked.top - standard.top,
                            standard.right - asked.right, standard.bottom - asked.bottom);
}

CPoint WindowOrigin(const WindowRecord& w) {
    if (IsTopLevel(w) || !w.parent)
        return w.rect.TopLeft();
    const WindowRecord* parent = Find(w.parent);
    return parent ? ClientOrigin(*parent) + w.rect.TopLeft() : w.rect.TopLeft();
}

CPoint ClientOrigin(const WindowRecord& w) {
    return WindowOrigin(w) + ClientInWindow(w).TopLeft();
}

WindowRecord* TopLevelOf(WindowRecord* w) {
    while (w && !IsTopLevel(*w))
        w = Find(w->parent);
    return w;
}

bool IsShowing(const WindowRecord& w) {
    for (const WindowRecord* p = &w; p; p = IsTopLevel(*p) ? nullptr : Find(p->parent))
        if (!(p->style & WS_VISIBLE))
            return false;
    return true;
}

CPoint SurfaceOrigin(const WindowRecord& w, bool client) {
    WindowRecord* top = TopLevelOf(const_cast<WindowRecord*>(&w));
    const CPoint origin = client ? ClientOrigin(w) : WindowOrigin(w);
    return top ? origin - top->rect.TopLeft() : origin;
}

namespace {
// The part of `area` (surface coordinates) that every ancestor's client area lets through.
CRect ClipToAncestors(const WindowRecord& w, CRect area) {
    for (const WindowRecord* p = IsTopLevel(w) ? nullptr : Find(w.parent); p;
         p = IsTopLevel(*p) ? nullptr : Find(p->parent)) {
        area &= ClientInWindow(*p) + SurfaceOrigin(*p, false);
    }
    return area;
}
} // namespace

CRect VisibleClientInSurface(const WindowRecord& w) {
    const CRect client = ClientInWindow(w) + SurfaceOrigin(w, false);
    return ClipToAncestors(
        w, client & (CRect(0, 0, w.rect.Width(), w.rect.Height()) + SurfaceOrigin(w, false)));
}

CRect VisibleWindowInSurface(const WindowRecord& w) {
    return ClipToAncestors(w,
                           CRect(0, 0, w.rect.Width(), w.rect.Height()) + SurfaceOrigin(w, false));
}

} // namespace wm

using namespace wm;

BOOL GetWindowRect(HWND hwnd, RECT* rect) {
    const WindowRecord* w = Find(hwnd);
    if (!w || !rect)
        return FALSE;
    *rect = CRect(WindowOrigin(*w), w->rect.Size());
    return TRUE;
}

BOOL GetClientRect(HWND hwnd, RECT* rect) {
    const WindowRecord* w = Find(hwnd);
    if (!w || !rect)
        return FALSE;
    const CRect client = ClientInWindow(*w);
    *rect = CRect(0, 0, client.Width(), client.Height());
    return TRUE;
}

BOOL ClientToScreen(HWND hwnd, POINT* point) {
    const WindowRecord* w = Find(hwnd);
    if (!w || !point)
        return FALSE;
    *point = CPoint(*point) + ClientOrigin(*w);
    return TRUE;
}

BOOL ScreenToClient(HWND hwnd, POINT* point) {
    const WindowRecord* w = Find(hwnd);
    if (!w || !point)
        return FALSE;
    const CPoint origin = ClientOrigin(*w);
    point->x -= origin.x;
    point->y -= origin.y;
    return TRUE;
}

int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count) {
    const WindowRecord* a = Find(from);
    const WindowRecord* b = Find(to);
    const CPoint fromOrigin = a ? ClientOrigin(*a) : CPoint();
    const CPoint toOrigin = b ? ClientOrigin(*b) : CPoint();
    const CSize delta = fromOrigin - toOrigin;
    for (UINT i = 0; points && i < count; ++i)
        points[i] = CPoint(points[i]) + CPoint(delta);
    return int(MAKELONG(WORD(delta.cx), WORD(delta.cy)));
}

namespace {
// A child that answers HTTRANSPARENT to the hit test (a group box, a static text) lets the
// mouse through to the windows beneath it, as the framework's hit testing does.
bool LetsMouseThrough(HWND child, CPoint screen) {
    // As an int: a CWnd answers its hit test through a UINT handler.
    return int(SendMessage(child, WM_NCHITTEST, 0, MAKELPARAM(WORD(screen.x), WORD(screen.y)))) ==
           HTTRANSPARENT;
}

// The deepest visible window under a screen point, searching from `w` down.
HWND DeepestAt(const WindowRecord& w, CPoint screen) {
    const CRect client(ClientOrigin(w), ClientInWindow(w).Size());
    if (!client.PtInRect(screen))
        return w.handle;
    const HWND self = w.handle;
    // A copy: the hit test is a message, and its handler may change the children.
    const std::vector<HWND> children = w.children;
    for (HWND child : children) {
        const WindowRecord* c = Find(child);
        if (c && (c->style & WS_VISIBLE) &&
            CRect(WindowOrigin(*c), c->rect.Size()).PtInRect(screen) &&
            !LetsMouseThrough(child, screen))
            if (const WindowRecord* again = Find(child))
                return DeepestAt(*again, screen);
    }
    return Find(self) ? self : nullptr;
}
} // namespace

HWND WindowFromPoint(POINT screenPoint) {
    for (HWND top : TopLevelWindows()) {
        const WindowRecord* w = Find(top);
        if (w && (w->style & WS_VISIBLE) && CRect(w->rect).PtInRect(screenPoint))
            return DeepestAt(*w, screenPoint);
    }
    return nullptr;
}

HWND ChildWindowFromPointEx(HWND parent, POINT clientPoint, UINT flags) {
    const WindowRecord* w = Find(parent);
    if (!w)
        return nullptr;
    const CRect client = ClientInWindow(*w);
    if (!CRect(0, 0, client.Width(), client.Height()).PtInRect(clientPoint))
        return nullptr;
    for (HWND child : w->children) {
        const WindowRecord* c = Find(child);
        if (!c || !c->rect.PtInRect(clientPoint))
            continue;
        if ((flags & CWP_SKIPINVISIBLE) && !(c->style & WS_VISIBLE))
            continue;
        if ((flags & CWP_SKIPDISABLED) && (c->style & WS_DISABLED))
            continue;
        if ((flags & CWP_SKIPTRANSPARENT) && (c->exStyle & WS_EX_TRANSPARENT))
            continue;
        return child;
    }
    return parent;
}

HWND ChildWindowFromPoint(HWND parent, POINT clientPoint) {
    return ChildWindowFromPointEx(parent, clientPoint, CWP_ALL);
}
