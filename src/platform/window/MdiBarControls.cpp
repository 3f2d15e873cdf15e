// The maximised document window's controls on its frame's menu bar: where they lie, and what a
// press on them does (the icon opens the document's system menu, the buttons send it their
// system command). NonClientPainter.cpp draws them.

#include "platform/window/MdiState.h"
#include "platform/window/Menu.h"
#include "platform/window/MenuTracker.h"
#include "platform/window/WindowRecord.h"

#include "platform/system/SystemMetrics.h"

namespace wm {
namespace {

// The document's system menu; a command chosen, or 0.
UINT ChooseFromSystemMenu(HWND frame, HWND child, CPoint screenBottomLeft) {
    const HMENU menu = CreatePopupMenu();
    AppendMenu(menu, MF_STRING, SC_RESTORE, "&Restore");
    AppendMenu(menu, MF_STRING | MF_GRAYED, SC_MAXIMIZE, "Ma&ximize");
    AppendMenu(menu, MF_SEPARATOR, 0, nullptr);
    AppendMenu(menu, MF_STRING, SC_CLOSE, "&Close\tCtrl+F4");
    AppendMenu(menu, MF_STRING, SC_NEXTWINDOW, "Nex&t\tCtrl+F6");
    const UINT command =
        UINT(TrackPopupMenu(menu, TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RETURNCMD | TPM_NONOTIFY,
                            screenBottomLeft.x, screenBottomLeft.y, 0, frame, nullptr));
    DestroyMenu(menu);
    // The menu's loop may have closed the document.
    return IsWindow(child) ? command : 0;
}

} // namespace

MdiBarControls GetMdiBarControls(const WindowRecord& frame) {
    MdiBarControls controls;
    const CRect bar = MenuBarInWindow(frame);
    const HWND child = bar.IsRectEmpty() ? nullptr : MaximizedMdiChild(frame.handle);
    if (!child)
        return controls;
    controls.child = child;
    const int icon = std::min(GetSystemMetrics(SM_CXSMICON), bar.Height() - 2);
    const int iconTop = bar.top + (bar.Height() - icon) / 2;
    controls.icon = CRect(bar.left + 2, iconTop, bar.left + 2 + icon, iconTop + icon);
    // The buttons are those of a caption, a little smaller to fit the bar.
    const int height = bar.Height() - 4;
    const int width = height + 2;
    const int top = bar.top + 2;
    int right = bar.right - 2;
    controls.close = CRect(right - width, top, right, top + height);
    right = controls.close.left - 2;
    controls.restore = CRect(right - width, top, right, top + height);
    controls.minimize = CRect(right - 2 * width, top, right - width, top + height);
    return controls;
}

bool PressMdiBarControl(HWND frame, CPoint screen) {
    const WindowRecord* w = Find(frame);
    if (!w)
        return false;
    const MdiBarControls controls = GetMdiBarControls(*w);
    if (!controls.child)
        return false;
    const CPoint p = screen - WindowOrigin(*w);
    UINT command = 0;
    if (controls.close.PtInRect(p))
        command = SC_CLOSE;
    else if (controls.restore.PtInRect(p))
        command = SC_RESTORE;
    else if (controls.minimize.PtInRect(p))
        command = SC_MINIMIZE;
    else if (controls.icon.PtInRect(p))
        command = ChooseFromSystemMenu(frame, controls.child,
                                       CPoint(controls.icon.left, controls.icon.bottom + 1) +
                                           WindowOrigin(*w));
    else
        return false;
    if (command)
        SendMessage(controls.child, WM_SYSCOMMAND, command, 0);
    return true;
}

} // namespace wm
