// The default procedure: what a window does with a message that its own procedure passes on.

#include "platform/window/MenuTracker.h"
#include "platform/window/NonClient.h"
#include "platform/window/ScrollBarTracking.h"
#include "platform/window/WindowIcons.h"
#include "platform/window/WindowRecord.h"

#include "platform/gdi/DC.h"
#include "platform/host/Host.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {
using namespace wm;

// The sizing border of a resizable window under a window point, or 0; the corners reach
// along the edges as far as a caption is high.
int SizingEdge(const WindowRecord& w, const FrameMetrics& m, CPoint p) {
    if (!(w.style & WS_THICKFRAME) || (w.style & WS_MAXIMIZE) || m.border <= 0)
        return 0;
    const CSize size = w.rect.Size();
    const int corner = m.border + GetSystemMetrics(SM_CYCAPTION);
    const bool left = p.x < m.border, right = p.x >= size.cx - m.border;
    const bool top = p.y < m.border, bottom = p.y >= size.cy - m.border;
    const bool nearLeft = p.x < corner, nearRight = p.x >= size.cx - corner;
    const bool nearTop = p.y < corner, nearBottom = p.y >= size.cy - corner;
    if ((top && nearLeft) || (left && nearTop))
        return HTTOPLEFT;
    if ((top && nearRight) || (right && nearTop))
        return HTTOPRIGHT;
    if ((bottom && nearLeft) || (left && nearBottom))
        return HTBOTTOMLEFT;
    if ((bottom && nearRight) || (right && nearBottom))
        return HTBOTTOMRIGHT;
    if (left)
        return HTLEFT;
    if (right)
        return HTRIGHT;
    if (top)
        return HTTOP;
    if (bottom)
        return HTBOTTOM;
    return 0;
}

LPCSTR SizingCursor(int hit) {
    switch (hit) {
    case HTLEFT:
    case HTRIGHT:
        return IDC_SIZEWE;
    case HTTOP:
    case HTBOTTOM:
        return IDC_SIZENS;
    case HTTOPLEFT:
    case HTBOTTOMRIGHT:
        return IDC_SIZENWSE;
    case HTTOPRIGHT:
    case HTBOTTOMLEFT:
        return IDC_SIZENESW;
    default:
        return IDC_ARROW;
    }
}

LRESULT HitTest(const WindowRecord& w, CPoint screen) {
    const CPoint p = screen - WindowOrigin(w);
    if (!CRect(CPoint(0, 0), w.rect.Size()).PtInRect(p))
        return HTNOWHERE;
    if (ClientInWindow(w).PtInRect(p))
        return HTCLIENT;
    const int bar = ScrollBarAt(w, p);
    if (bar == SB_VERT)
        return HTVSCROLL;
    if (bar == SB_HORZ)
        return HTHSCROLL;
    const FrameMetrics m = GetFrameMetrics(w);
    if (const int edge = SizingEdge(w, m, p))
        return edge;
    if (MenuBarInWindow(w).PtInRect(p))
        return HTMENU;
    const CaptionButtons buttons = GetCaptionButtons(w);
    if (buttons.close.PtInRect(p))
        return HTCLOSE;
    if (buttons.maximize.PtInRect(p))
        return HTMAXBUTTON;
    if (buttons.minimize.PtInRect(p))
        return HTMINBUTTON;
    if (m.caption && p.y >= m.border && p.y < m.border + m.caption && p.x >= m.border &&
        p.x < w.rect.Width() - m.border)
        return HTCAPTION;
    return HTBORDER;
}

// Fills with a class background: a brush, or a system colour index plus one.
void FillBackground(HDC dc, const RECT& rect, HBRUSH brush) {
    const auto value = reinterpret_cast<std::uintptr_t>(brush);
    if (value > 0 && value <= std::uintptr_t(COLOR_COUNT))
        FillRect(dc, &rect, GetSysColorBrush(int(value - 1)));
    else
        FillRect(dc, &rect, brush);
}

LRESULT SetText(WindowRecord& w, const char* text) {
    w.text = text ? text : "";
    if (IsTopLevel(w))
        GetHost().SetWindowTitle(w.handle, w.text.c_str());
    if ((w.style & WS_CAPTION) == WS_CAPTION)
        InvalidateFrame(w);
    return TRUE;
}

// The top-level window whose menu bar the keyboard opens, or null.
HWND MenuBarOwner(HWND hwnd) {
    const HWND root = GetAncestor(hwnd, GA_ROOT);
    return GetMenu(root) ? root : nullptr;
}

// Alt pressed and released with no key between opens the menu bar, as F10 does.
UINT& LastSystemKeyDown() {
    static UINT vk = 0;
    return vk;
}

LRESULT GetText(const WindowRecord& w, WPARAM maxCount, char* buffer) {
    if (!buffer || maxCount == 0)
        return 0;
    const size_t n = std::min<size_t>(w.text.size(), maxCount - 1);
    std::memcpy(buffer, w.text.data(), n);
    buffer[n] = '\0';
    return LRESULT(n);
}
// The menu bar from the keyboard (with the character of Alt+letter in `lParam`), closing and
// the frame's other system commands.
LRESULT SystemCommand(HWND hwnd, WPARAM wParam, LPARAM lParam) {
    switch (wParam & 0xFFF0) {
    case SC_KEYMENU: {
        const HWND frame = MenuBarOwner(hwnd);
        if (!frame)
            return 0;
        int item = -1;
        if (const char ch = char(std::tolower(int(lParam & 0xFF)))) {
            const MenuRecord* bar = FindMenu(GetMenu(frame));
            for (size_t i = 0; bar && i < bar->items.size() && item < 0; ++i)
                if (MenuMnemonic(bar->items[i].text) == ch)
                    item = int(i);
            if (item < 0)
                return 0;
        }
        TrackMenuBar(frame, item, true);
        return 0;
    }
    case SC_CLOSE:
        SendMessage(hwnd, WM_CLOSE);
        return 0;
    default:
        return 0;
    }
}
} // namespace

LRESULT DefWindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return 0;
    const HWND parent = IsTopLevel(*w) ? nullptr : w->parent;
    switch (message) {
    case WM_NCCREATE:
        if (const auto* cs = reinterpret_cast<const CREATESTRUCT*>(lParam);
            cs && !(w->style & WS_CHILD) && cs->hMenu && IsMenu(cs->hMenu))
            w->menu = cs->hMenu;
        return TRUE;
    case WM_NCDESTROY:
        // A frame's menu bar goes with it.
        if (w->menu && !(w->style & WS_CHILD)) {
            const HMENU menu = w->menu;
            w->menu = nullptr;
            DestroyMenu(menu);
        }
        return 0;
    case WM_CLOSE:
        DestroyWindow(hwnd);
        return 0;
    case WM_SETTEXT:
        return SetText(*w, reinterpret_cast<const char*>(lParam));
    case WM_GETTEXT:
        return GetText(*w, wParam, reinterpret_cast<char*>(lParam));
    case WM_GETTEXTLENGTH:
        return LRESULT(w->text.size());
    case WM_SETFONT:
        w->font = reinterpret_cast<HFONT>(wParam);
        if (LOWORD(std::uintptr_t(lParam)))
            InvalidateRect(hwnd, nullptr, TRUE);
        return 0;
    case WM_SETICON: {
        HICON& slot = wParam == ICON_BIG ? w->bigIcon : w->smallIcon;
        const HICON previous = slot;
        slot = reinterpret_cast<HICON>(lParam);
        if (IsTopLevel(*w) && (wParam == ICON_BIG || !w->bigIcon))
            if (const IconPixels* pixels = GetIconPixels(slot))
                GetHost().SetWindowIcon(hwnd, pixels->size, pixels->argb);
        if ((w->style & WS_CAPTION) == WS_CAPTION)
            InvalidateFrame(*w);
        return reinterpret_cast<LRESULT>(previous);
    }
    case WM_GETICON:
        return reinterpret_cast<LRESULT>(wParam == ICON_BIG ? w->bigIcon : w->smallIcon);
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(w->font);
    case WM_ERASEBKGND: {
        if (!w->classBrush)
            return 0;
        RECT client;
        GetClientRect(hwnd, &client);
        FillBackground(HDC(wParam), client, w->classBrush);
        return 1;
    }
    case WM_PAINT: {
        PAINTSTRUCT ps;
        BeginPaint(hwnd, &ps);
        EndPaint(hwnd, &ps);
        return 0;
    }
    case WM_NCPAINT: {
        HDC dc = GetWindowDC(hwnd);
        DrawFrame(*w, dc);
        ReleaseDC(hwnd, dc);
        return 0;
    }
    case WM_NCCALCSIZE:
        // The frame, caption, menu bar, edges and scroll bars come off the window's rectangle.
        if (auto* rect = reinterpret_cast<RECT*>(lParam)) {
            const CRect client = DefaultClientInWindow(*w) + CRect(*rect).TopLeft();
            *rect = client;
        }
        return 0;
    case WM_NCHITTEST:
        return HitTest(*w, CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
        if (wParam == HTCLOSE || wParam == HTMAXBUTTON || wParam == HTMINBUTTON) {
            const UINT command = wParam == HTCLOSE          ? SC_CLOSE
                                 : wParam == HTMINBUTTON    ? SC_MINIMIZE
                                 : (w->style & WS_MAXIMIZE) ? SC_RESTORE
                                                            : SC_MAXIMIZE;
            SendMessage(hwnd, WM_SYSCOMMAND, command, lParam);
            return 0;
        }
        if (wParam == HTMENU) {
            TrackMenuBar(hwnd,
                         MenuBarItemAt(hwnd, CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam))),
                         false);
            return 0;
        }
        if ((wParam >= WPARAM(HTLEFT) && wParam <= WPARAM(HTBOTTOMRIGHT)) ||
            (wParam == HTCAPTION && !(w->style & WS_MAXIMIZE))) {
            BeginSizeMove(hwnd, int(wParam), CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
            return 0;
        }
        if (wParam == HTVSCROLL || wParam == HTHSCROLL)
            BeginScrollBarTracking(hwnd, wParam == HTVSCROLL ? SB_VERT : SB_HORZ,
                                   CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        return 0;
    case WM_SETCURSOR:
        if (parent && SendMessage(parent, WM_SETCURSOR, wParam, lParam))
            return TRUE;
        if (LOWORD(std::uintptr_t(lParam)) == HTCLIENT) {
            // The cursor of the window under the mouse, whichever ancestor sets it.
            const WindowRecord* under = Find(reinterpret_cast<HWND>(wParam));
            const HCURSOR cursor = under ? under->classCursor : w->classCursor;
            if (!cursor)
                return FALSE;
            SetCursor(cursor);
            return TRUE;
        }
        SetCursor(LoadCursor(nullptr, SizingCursor(short(LOWORD(std::uintptr_t(lParam))))));
        return FALSE;
    case WM_RBUTTONUP: {
        // Releasing the right button asks for the context menu, at the cursor's screen point.
        POINT screen{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        ClientToScreen(hwnd, &screen);
        SendMessage(hwnd, WM_CONTEXTMENU, WPARAM(hwnd), MAKELPARAM(WORD(screen.x), WORD(screen.y)));
        return 0;
    }
    case WM_MOUSEWHEEL:
    case WM_CONTEXTMENU:
        return parent ? SendMessage(parent, message, wParam, lParam) : 0;
    case WM_MOUSEACTIVATE:
        if (parent)
            if (LRESULT answer = SendMessage(parent, message, wParam, lParam))
                return answer;
        return MA_ACTIVATE;
    case WM_WINDOWPOSCHANGED: {
        const auto* pos = reinterpret_cast<const WINDOWPOS*>(lParam);
        if (pos && !(pos->flags & SWP_NOMOVE)) {
            POINT origin{0, 0};
            ClientToScreen(hwnd, &origin);
            if (parent)
                ScreenToClient(parent, &origin);
            SendMessage(hwnd, WM_MOVE, 0, MAKELPARAM(WORD(origin.x), WORD(origin.y)));
        }
        if (pos && !(pos->flags & SWP_NOSIZE)) {
            RECT client;
            GetClientRect(hwnd, &client);
            w->announcedClient = CSize(client.right, client.bottom);
            SendMessage(hwnd, WM_SIZE, (w->style & WS_MAXIMIZE) ? SIZE_MAXIMIZED : SIZE_RESTORED,
                        MAKELPARAM(WORD(client.right), WORD(client.bottom)));
        }
        return 0;
    }
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE) {
            const HWND focus = GetFocus();
            if (focus != hwnd && !IsChild(hwnd, focus))
                SetFocus(hwnd);
        }
        return 0;
    case WM_SYSKEYDOWN:
        if (parent)
            return SendMessage(parent, message, wParam, lParam);
        LastSystemKeyDown() = UINT(wParam);
        return 0;
    case WM_SYSKEYUP:
        if (parent)
            return SendMessage(parent, message, wParam, lParam);
        if ((wParam == VK_MENU || wParam == VK_F10) && LastSystemKeyDown() == wParam)
            SendMessage(hwnd, WM_SYSCOMMAND, SC_KEYMENU, 0);
        LastSystemKeyDown() = 0;
        return 0;
    case WM_SYSCHAR:
        if (parent)
            return SendMessage(parent, message, wParam, lParam);
        LastSystemKeyDown() = 0;
        SendMessage(hwnd, WM_SYSCOMMAND, SC_KEYMENU, LPARAM(wParam & 0xFF));
        return 0;
    case WM_SYSCOMMAND:
        return SystemCommand(hwnd, wParam, lParam);
    case WM_SETREDRAW:
        w->redraw = wParam != 0;
        return 0;
    case WM_GETMINMAXINFO:
        // The record comes filled with the defaults of the window's kind.
        return 0;
    case WM_SHOWWINDOW:
        if (wParam)
            ShareSizeLimits(hwnd);
        return 0;
    default:
        return 0;
    }
}
