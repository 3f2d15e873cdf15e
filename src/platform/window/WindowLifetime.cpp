// Creation and destruction of windows, with the framework's order of messages: WM_NCCREATE,
// WM_CREATE, then WM_SIZE and WM_MOVE; on destruction WM_DESTROY from the parent down, then
// WM_NCDESTROY from the children up.

#include "platform/window/WindowRecord.h"

#include "platform/host/Host.h"
#include "platform/window/WindowClassTable.h"

#include <algorithm>

namespace {
using namespace wm;

constexpr int defaultTopLevelX = 0;
constexpr int defaultTopLevelY = 0;
constexpr int defaultTopLevelWidth = 640;
constexpr int defaultTopLevelHeight = 480;

CRect InitialRect(const WindowRecord& w, int x, int y, int width, int height) {
    const bool top = IsTopLevel(w);
    if (x == CW_USEDEFAULT) {
        x = top ? defaultTopLevelX : 0;
        if (y == CW_USEDEFAULT || !top)
            y = top ? defaultTopLevelY : 0;
    }
    if (width == CW_USEDEFAULT) {
        width = top ? defaultTopLevelWidth : 0;
        height = top ? defaultTopLevelHeight : 0;
    }
    return CRect(x, y, x + std::max(width, 0), y + std::max(height, 0));
}

void SendSizeAndMove(WindowRecord& w) {
    const HWND hwnd = w.handle;
    RECT client;
    GetClientRect(hwnd, &client);
    w.announcedClient = CSize(client.right, client.bottom);
    Send(&w, WM_SIZE, SIZE_RESTORED, MAKELPARAM(WORD(client.right), WORD(client.bottom)));
    if (WindowRecord* again = Find(hwnd)) {
        POINT origin{0, 0};
        ClientToScreen(hwnd, &origin);
        if (!IsTopLevel(*again))
            ScreenToClient(again->parent, &origin);
        Send(again, WM_MOVE, 0, MAKELPARAM(WORD(origin.x), WORD(origin.y)));
    }
}

// The last message of one window, then its record goes.
void FinishWindow(HWND hwnd) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return;
    KillTimersOf(hwnd);
    RemoveMessagesFor(hwnd);
    Send(w, WM_NCDESTROY, 0, 0);
    if ((w = Find(hwnd)) == nullptr)
        return;
    ReleaseObjects(*w);
    if (WindowRecord* parent = Find(w->parent))
        std::erase(parent->children, hwnd);
    if (IsTopLevel(*w))
        GetHost().DestroyWindowSurface(hwnd);
    DeleteRecord(hwnd);
}

void FinishTree(HWND hwnd) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return;
    const std::vector<HWND> children = w->children;
    for (HWND child : children)
        FinishTree(child);
    FinishWindow(hwnd);
}

void SendDestroyTree(HWND hwnd) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return;
    Send(w, WM_DESTROY, 0, 0);
    if ((w = Find(hwnd)) == nullptr)
        return;
    const std::vector<HWND> children = w->children;
    for (HWND child : children)
        SendDestroyTree(child);
}
} // namespace

HWND CreateWindowEx(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y,
                    int width, int height, HWND parent, HMENU menuOrId, HINSTANCE instance,
                    LPVOID param) {
    const WNDCLASS* cls = FindClass(className);
    if (!cls)
        return nullptr;
    WindowRecord* parentRecord = Find(parent);
    if ((style & WS_CHILD) && !parentRecord)
        return nullptr;

    WindowRecord* w = NewRecord();
    const HWND hwnd = w->handle;
    w->className = cls->lpszClassName;
    w->classStyle = cls->style;
    w->classCursor = cls->hCursor;
    w->classBrush = cls->hbrBackground;
    w->proc = cls->lpfnWndProc;
    w->style = style;
    w->exStyle = exStyle;
    if (style & WS_CHILD) {
        w->parent = parent;
        w->id = LONG_PTR(menuOrId);
        parentRecord->children.push_back(hwnd);
    } else {
        w->owner = parentRecord ? GetAncestor(parent, GA_ROOT) : nullptr;
        if (!(style & WS_POPUP))
            w->style |= WS_CLIPSIBLINGS;
        TopLevelWindows().insert(TopLevelWindows().begin(), hwnd);
    }
    w->rect = InitialRect(*w, x, y, width, height);
    w->text = windowName && !IS_INTRESOURCE(windowName) ? windowName : "";
    if (IsTopLevel(*w))
        GetHost().CreateWindowSurface(
            hwnd, w->rect,
            SurfaceKind{.captioned = (w->style & WS_CAPTION) == WS_CAPTION,
                        .popup = (w->style & WS_POPUP) && (w->style & WS_CAPTION) != WS_CAPTION,
                        .resizable = (w->style & WS_THICKFRAME) != 0});
    HookCreatingWindow(*w);

    CREATESTRUCT cs{param,           instance,    menuOrId,     parent,      w->rect.Height(),
                    w->rect.Width(), w->rect.top, w->rect.left, LONG(style), windowName,
                    className,       exStyle};
    if (!Send(w, WM_NCCREATE, 0, LPARAM(&cs))) {
        FinishWindow(hwnd);
        return nullptr;
    }
    RecalcClient(hwnd);
    if ((w = Find(hwnd)) == nullptr)
        return nullptr;
    w->created = true;
    if (Send(w, WM_CREATE, 0, LPARAM(&cs)) == -1) {
        DestroyWindow(hwnd);
        return nullptr;
    }
    if ((w = Find(hwnd)) == nullptr)
        return nullptr;
    SendSizeAndMove(*w);
    if ((w = Find(hwnd)) == nullptr)
        return nullptr;
    if (IsTopLevel(*w))
        GetHost().SetWindowTitle(hwnd, w->text.c_str());
    if (w->style & WS_VISIBLE) {
        w->style &= ~WS_VISIBLE;
        ShowWindow(hwnd, SW_SHOW);
    }
    return Find(hwnd) ? hwnd : nullptr;
}

BOOL DestroyWindow(HWND hwnd) {
    WindowRecord* w = Find(hwnd);
    if (!w || w->destroying || hwnd == GetDesktopWindow())
        return FALSE;
    for (HWND sub : SubtreeOf(hwnd))
        Find(sub)->destroying = true;

    // Owned windows go first, as the framework does.
    const std::vector<HWND> tops = TopLevelWindows();
    for (HWND top : tops)
        if (const WindowRecord* t = Find(top); t && t->owner == hwnd)
            DestroyWindow(top);

    if ((w = Find(hwnd)) == nullptr)
        return TRUE;
    if (w->style & WS_VISIBLE) {
        if (WindowRecord* parent = IsTopLevel(*w) ? nullptr : Find(w->parent)) {
            const CRect client = ClientInWindow(*parent);
            InvalidateClient(*parent, w->rect & CRect(0, 0, client.Width(), client.Height()), true);
        }
    }
    ForgetWindowState(hwnd);
    SendDestroyTree(hwnd);
    FinishTree(hwnd);
    return TRUE;
}
