// A frame's menu bar: which menu a window shows, where the bar lies in the frame, and the start
// of its tracking by the mouse or the keyboard.

#include "platform/window/MdiState.h"
#include "platform/window/MenuTracker.h"
#include "platform/window/WindowRecord.h"

namespace wm {

CRect MenuBarInWindow(const WindowRecord& w) {
    const FrameMetrics m = GetFrameMetrics(w);
    if (!m.menuBar)
        return CRect();
    const int top = m.border + m.caption;
    return CRect(m.border, top, std::max(m.border, w.rect.Width() - m.border), top + m.menuBar);
}

CRect MenuBarItemsInWindow(const WindowRecord& w) {
    CRect bar = MenuBarInWindow(w);
    if (const MdiBarControls controls = GetMdiBarControls(w); controls.child) {
        bar.left = controls.icon.right + 2;
        bar.right = std::max(bar.left, controls.minimize.left);
    }
    return bar;
}

int MenuBarItemAt(HWND frame, CPoint screen) {
    const WindowRecord* w = Find(frame);
    const MenuRecord* bar = w ? FindMenu(w->menu) : nullptr;
    if (!bar)
        return -1;
    const std::vector<CRect> items = LayoutMenuBar(*bar, MenuBarItemsInWindow(*w));
    const CPoint p = screen - WindowOrigin(*w);
    for (size_t i = 0; i < items.size(); ++i)
        if (items[i].PtInRect(p) && !bar->items[i].IsSeparator())
            return int(i);
    return -1;
}

void TrackMenuBar(HWND frame, int barItem, bool fromKeyboard) {
    if (CurrentMenuTracker() || !FindMenu(GetMenu(frame)))
        return;
    UINT command = 0;
    {
        MenuTracker tracker(frame, 0);
        command = tracker.TrackBar(frame, barItem, fromKeyboard);
    }
    // The frame may have gone while its menu was open.
    if (command && IsWindow(frame))
        PostMessage(frame, WM_COMMAND, MAKEWPARAM(WORD(command), 0), 0);
}

} // namespace wm

using namespace wm;

BOOL SetMenu(HWND window, HMENU menu) {
    WindowRecord* w = Find(window);
    if (!w || (w->style & WS_CHILD) || (menu && !FindMenu(menu)))
        return FALSE;
    w->menu = menu;
    // The client area shrinks or grows by the bar.
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    return TRUE;
}

HMENU GetMenu(HWND window) {
    const WindowRecord* w = Find(window);
    return w && !(w->style & WS_CHILD) ? w->menu : nullptr;
}

BOOL DrawMenuBar(HWND window) {
    WindowRecord* w = Find(window);
    if (!w || !w->menu)
        return FALSE;
    InvalidateFrame(*w);
    return TRUE;
}
