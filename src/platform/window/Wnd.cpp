// CWnd: binding objects to windows, creation, and the thin wrappers over the window calls.

#include "platform/window/Wnd.h"

#include "platform/gdi/DC.h"
#include "platform/window/MessageBox.h"
#include "platform/window/WindowRecord.h"
#include "platform/window/WndState.h"

#include <algorithm>

using namespace wm;

struct CWndAccess {
    static void Bind(CWnd* wnd, WindowRecord& w) {
        w.object = wnd;
        wnd->m_hWnd = w.handle;
    }
    static void Hook(CWnd* wnd, WindowRecord& w) {
        Bind(wnd, w);
        wnd->m_pfnSuper = w.proc == AfxWndProc ? nullptr : w.proc;
        w.proc = AfxWndProc;
        wnd->PreSubclassWindow();
    }
    static WNDPROC Super(const CWnd* wnd) { return wnd->m_pfnSuper; }
    static void MakeTemporary(CWnd* wnd, HWND hwnd) {
        wnd->m_temporary = true;
        wnd->m_hWnd = hwnd;
    }
    // After WM_NCDESTROY: the object lets go of the window and may delete itself.
    static void Finish(CWnd* wnd) {
        const HWND hwnd = wnd->m_hWnd;
        if (AfxGetMainWnd() == wnd)
            AfxSetMainWnd(nullptr);
        if (WindowRecord* w = Find(hwnd); w && w->object == wnd) {
            if (wnd->m_pfnSuper && w->proc == AfxWndProc)
                w->proc = wnd->m_pfnSuper;
            w->object = nullptr;
        }
        wnd->m_hWnd = nullptr;
        wnd->m_pfnSuper = nullptr;
        wnd->PostNcDestroy();
    }
};

namespace wm {

WndThreadState& ThreadState() {
    static WndThreadState& state = *new WndThreadState;
    return state;
}

void HookCreatingWindow(WindowRecord& w) {
    CWnd* wnd = ThreadState().creating;
    if (!wnd)
        return;
    ThreadState().creating = nullptr;
    CWndAccess::Hook(wnd, w);
}

void ReleaseObjects(WindowRecord& w) {
    if (w.object) {
        w.object->m_hWnd = nullptr;
        w.object = nullptr;
    }
    if (w.temporary)
        w.temporary->m_hWnd = nullptr;
}

} // namespace wm

LRESULT AfxWndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* wnd = CWnd::FromHandlePermanent(hwnd);
    if (!wnd)
        return DefWindowProc(hwnd, message, wParam, lParam);
    WndThreadState& state = ThreadState();
    const MSG previous = state.current;
    state.current = MSG{hwnd, message, wParam, lParam, DWORD(GetMessageTime()), {}};
    const LRESULT result = wnd->WindowProc(message, wParam, lParam);
    // A handler of WM_NCDESTROY that did not pass it to the base class still ends the binding.
    if (message == WM_NCDESTROY)
        if (WindowRecord* w = Find(hwnd); w && w->object == wnd)
            CWndAccess::Finish(wnd);
    state.current = previous;
    return result;
}

IMPLEMENT_DYNCREATE(CWnd, CObject)

CWnd::CWnd() = default;

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::~CWnd() {
    if (m_temporary)
        return;
    if (WindowRecord* w = Find(m_hWnd); w && w->object == this) {
        if (!w->destroying)
            ::DestroyWindow(m_hWnd);
        if ((w = Find(m_hWnd)) != nullptr && w->object == this)
            w->object = nullptr;
    }
    m_hWnd = nullptr;
}

CWnd* CWnd::FromHandlePermanent(HWND hwnd) {
    const WindowRecord* w = Find(hwnd);
    return w ? w->object : nullptr;
}

CWnd* CWnd::FromHandle(HWND hwnd) {
    WindowRecord* w = Find(hwnd);
    if (!w)
        return nullptr;
    if (w->object)
        return w->object;
    if (!w->temporary) {
        w->temporary = std::make_unique<CWnd>();
        CWndAccess::MakeTemporary(w->temporary.get(), hwnd);
    }
    return w->temporary.get();
}

BOOL CWnd::Attach(HWND hwnd) {
    WindowRecord* w = Find(hwnd);
    if (!w || w->object || m_hWnd)
        return FALSE;
    CWndAccess::Bind(this, *w);
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND hwnd = m_hWnd;
    if (WindowRecord* w = Find(hwnd); w && w->object == this)
        w->object = nullptr;
    m_hWnd = nullptr;
    return hwnd;
}

BOOL CWnd::SubclassWindow(HWND hwnd) {
    WindowRecord* w = Find(hwnd);
    if (!w || w->object || m_hWnd)
        return FALSE;
    CWndAccess::Hook(this, *w);
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
    return parent && SubclassWindow(::GetDlgItem(parent->m_hWnd, int(id)));
}

HWND CWnd::UnsubclassWindow() {
    WindowRecord* w = Find(m_hWnd);
    if (!w || w->object != this)
        return nullptr;
    if (m_pfnSuper)
        w->proc = m_pfnSuper;
    m_pfnSuper = nullptr;
    return Detach();
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW,
                                           LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(std::uintptr_t(5 + 1)));
    return TRUE;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y,
                    int width, int height, HWND parent, HMENU idOrMenu, LPVOID createParam) {
    if (m_hWnd)
        return FALSE;
    CREATESTRUCT cs{createParam, nullptr, idOrMenu,    parent,     height,    width,
                    y,           x,       LONG(style), windowName, className, exStyle};
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    WndThreadState& state = ThreadState();
    CWnd* const outer = state.creating;
    state.creating = this;
    const HWND hwnd =
        ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, DWORD(cs.style), cs.x, cs.y,
                         cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    state.creating = outer;
    return hwnd != nullptr;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style,
                    const RECT& rect, CWnd* parent, UINT id, LPVOID createParam) {
    return CreateEx(exStyle, className, windowName, style, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, SafeHwnd(parent),
                    reinterpret_cast<HMENU>(std::uintptr_t(id)), createParam);
}

BOOL CWnd::Create(LPCSTR className, LPCSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                  UINT id, LPVOID createParam) {
    return CreateEx(0, className, windowName, style | WS_CHILD, rect, parent, id, createParam);
}

BOOL CWnd::DestroyWindow() {
    return m_hWnd && ::DestroyWindow(m_hWnd);
}

void CWnd::PostNcDestroy() {}

void CWnd::PreSubclassWindow() {}

// The tree.
CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(m_hWnd));
}
CWnd* CWnd::SetParent(CWnd* newParent) {
    return FromHandle(::SetParent(m_hWnd, SafeHwnd(newParent)));
}
CWnd* CWnd::GetOwner() const {
    const WindowRecord* w = Find(m_hWnd);
    if (!w)
        return nullptr;
    return FromHandle(w->owner ? w->owner : (IsTopLevel(*w) ? nullptr : w->parent));
}
void CWnd::SetOwner(CWnd* owner) {
    if (WindowRecord* w = Find(m_hWnd))
        w->owner = SafeHwnd(owner);
}
CWnd* CWnd::GetTopLevelParent() const {
    const HWND root = ::GetAncestor(m_hWnd, GA_ROOT);
    return root == m_hWnd ? nullptr : FromHandle(root);
}
CWnd* CWnd::GetWindow(UINT relation) const {
    return FromHandle(::GetWindow(m_hWnd, relation));
}
CWnd* CWnd::GetDlgItem(int id) const {
    return FromHandle(::GetDlgItem(m_hWnd, id));
}
void CWnd::GetDlgItem(int id, HWND* hwnd) const {
    if (hwnd)
        *hwnd = ::GetDlgItem(m_hWnd, id);
}
int CWnd::GetDlgCtrlID() const {
    return ::GetDlgCtrlID(m_hWnd);
}
int CWnd::SetDlgCtrlID(int id) {
    return int(::SetWindowLongPtr(m_hWnd, GWLP_ID, id));
}
BOOL CWnd::IsChild(const CWnd* wnd) const {
    return ::IsChild(m_hWnd, SafeHwnd(wnd));
}
CWnd* CWnd::ChildWindowFromPoint(POINT point) const {
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}
CWnd* CWnd::WindowFromPoint(POINT point) {
    return FromHandle(::WindowFromPoint(point));
}
CWnd* CWnd::GetDesktopWindow() {
    return FromHandle(::GetDesktopWindow());
}

// Styles.
DWORD CWnd::GetStyle() const {
    return DWORD(::GetWindowLong(m_hWnd, GWL_STYLE));
}
DWORD CWnd::GetExStyle() const {
    return DWORD(::GetWindowLong(m_hWnd, GWL_EXSTYLE));
}

namespace {
BOOL ModifyWindowLong(HWND hwnd, int index, DWORD remove, DWORD add, UINT swpFlags) {
    const DWORD style = DWORD(::GetWindowLong(hwnd, index));
    const DWORD changed = (style & ~remove) | add;
    if (changed == style)
        return FALSE;
    ::SetWindowLong(hwnd, index, LONG(changed));
    if (swpFlags)
        ::SetWindowPos(hwnd, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | swpFlags);
    return TRUE;
}
} // namespace

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT swpFlags) {
    return ModifyWindowLong(m_hWnd, GWL_STYLE, remove, add, swpFlags);
}
BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT swpFlags) {
    return ModifyWindowLong(m_hWnd, GWL_EXSTYLE, remove, add, swpFlags);
}

// State.
BOOL CWnd::ShowWindow(int command) {
    return ::ShowWindow(m_hWnd, command);
}
BOOL CWnd::IsWindowVisible() const {
    return ::IsWindowVisible(m_hWnd);
}
BOOL CWnd::EnableWindow(BOOL enable) {
    return ::EnableWindow(m_hWnd, enable);
}
BOOL CWnd::IsWindowEnabled() const {
    return ::IsWindowEnabled(m_hWnd);
}

// Geometry.
void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint) {
    ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}
void CWnd::MoveWindow(LPCRECT rect, BOOL repaint) {
    ::MoveWindow(m_hWnd, rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top,
                 repaint);
}
BOOL CWnd::SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags) {
    return ::SetWindowPos(m_hWnd, SafeHwnd(insertAfter), x, y, width, height, flags);
}
void CWnd::GetWindowRect(LPRECT rect) const {
    ::GetWindowRect(m_hWnd, rect);
}
void CWnd::GetClientRect(LPRECT rect) const {
    ::GetClientRect(m_hWnd, rect);
}
void CWnd::ClientToScreen(LPPOINT point) const {
    ::ClientToScreen(m_hWnd, point);
}
void CWnd::ClientToScreen(LPRECT rect) const {
    ::ClientToScreen(m_hWnd, reinterpret_cast<POINT*>(&rect->left));
    ::ClientToScreen(m_hWnd, reinterpret_cast<POINT*>(&rect->right));
}
void CWnd::ScreenToClient(LPPOINT point) const {
    ::ScreenToClient(m_hWnd, point);
}
void CWnd::ScreenToClient(LPRECT rect) const {
    ::ScreenToClient(m_hWnd, reinterpret_cast<POINT*>(&rect->left));
    ::ScreenToClient(m_hWnd, reinterpret_cast<POINT*>(&rect->right));
}
void CWnd::MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const {
    ::MapWindowPoints(m_hWnd, SafeHwnd(to), points, count);
}
void CWnd::MapWindowPoints(CWnd* to, LPRECT rect) const {
    ::MapWindowPoints(m_hWnd, SafeHwnd(to), reinterpret_cast<POINT*>(rect), 2);
}

// Text and font.
void CWnd::SetWindowText(LPCSTR text) {
    ::SetWindowText(m_hWnd, text);
}
int CWnd::GetWindowText(LPSTR buffer, int maxCount) const {
    return ::GetWindowText(m_hWnd, buffer, maxCount);
}
void CWnd::GetWindowText(CString& text) const {
    const int length = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer();
}
int CWnd::GetWindowTextLength() const {
    return ::GetWindowTextLength(m_hWnd);
}
void CWnd::SetFont(CFont* font, BOOL redraw) {
    SendMessage(WM_SETFONT, WPARAM(font ? font->GetSafeHandle() : nullptr), redraw);
}
CFont* CWnd::GetFont() const {
    const HFONT font = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
    return font ? CFont::FromHandle(font) : nullptr;
}
void CWnd::SetDlgItemText(int id, LPCSTR text) {
    ::SetDlgItemText(m_hWnd, id, text);
}
int CWnd::GetDlgItemText(int id, CString& text) const {
    text.Empty();
    if (CWnd* item = GetDlgItem(id))
        item->GetWindowText(text);
    return text.GetLength();
}

// Messages.
LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}
BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return m_hWnd && ::PostMessage(m_hWnd, message, wParam, lParam);
}
LRESULT CWnd::SendDlgItemMessage(int id, UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendDlgItemMessage(m_hWnd, id, message, wParam, lParam);
}
void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL deep) const {
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child;) {
        const HWND next = ::GetWindow(child, GW_HWNDNEXT);
        ::SendMessage(child, message, wParam, lParam);
        if (deep && ::IsWindow(child))
            FromHandle(child)->SendMessageToDescendants(message, wParam, lParam, TRUE);
        child = next;
    }
}
const MSG* CWnd::GetCurrentMessage() {
    return &ThreadState().current;
}

// Focus, capture, activation.
CWnd* CWnd::SetFocus() {
    return FromHandle(::SetFocus(m_hWnd));
}
CWnd* CWnd::GetFocus() {
    return FromHandle(::GetFocus());
}
CWnd* CWnd::SetCapture() {
    return FromHandle(::SetCapture(m_hWnd));
}
CWnd* CWnd::GetCapture() {
    return FromHandle(::GetCapture());
}
CWnd* CWnd::SetActiveWindow() {
    return FromHandle(::SetActiveWindow(m_hWnd));
}
CWnd* CWnd::GetActiveWindow() {
    return FromHandle(::GetActiveWindow());
}
BOOL CWnd::SetForegroundWindow() {
    return ::SetForegroundWindow(m_hWnd);
}

// Timers.
UINT_PTR CWnd::SetTimer(UINT_PTR id, UINT elapse, TIMERPROC proc) {
    return ::SetTimer(m_hWnd, id, elapse, proc);
}
BOOL CWnd::KillTimer(UINT_PTR id) {
    return ::KillTimer(m_hWnd, id);
}

// Scroll bars.
BOOL CWnd::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw) {
    if (!info)
        return FALSE;
    ::SetScrollInfo(m_hWnd, bar, info, redraw);
    return TRUE;
}
BOOL CWnd::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask) const {
    if (!info)
        return FALSE;
    info->cbSize = sizeof(SCROLLINFO);
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, bar, info);
}
int CWnd::SetScrollPos(int bar, int pos, BOOL redraw) {
    return ::SetScrollPos(m_hWnd, bar, pos, redraw);
}
int CWnd::GetScrollPos(int bar) const {
    return ::GetScrollPos(m_hWnd, bar);
}
void CWnd::SetScrollRange(int bar, int minPos, int maxPos, BOOL redraw) {
    ::SetScrollRange(m_hWnd, bar, minPos, maxPos, redraw);
}
void CWnd::GetScrollRange(int bar, LPINT minPos, LPINT maxPos) const {
    ::GetScrollRange(m_hWnd, bar, minPos, maxPos);
}
int CWnd::GetScrollLimit(int bar) const {
    SCROLLINFO si{};
    if (!GetScrollInfo(bar, &si, SIF_RANGE | SIF_PAGE))
        return 0;
    return std::max(si.nMin, si.nMax - std::max(int(si.nPage) - 1, 0));
}
void CWnd::ShowScrollBar(UINT bar, BOOL show) {
    ::ShowScrollBar(m_hWnd, int(bar), show);
}
void CWnd::EnableScrollBarCtrl(int bar, BOOL enable) {
    if (!enable)
        ::EnableScrollBar(m_hWnd, bar, ESB_DISABLE_BOTH);
    ::ShowScrollBar(m_hWnd, bar, enable);
    if (enable)
        ::EnableScrollBar(m_hWnd, bar, ESB_ENABLE_BOTH);
}
BOOL CWnd::EnableScrollBar(int bar, UINT arrows) {
    return ::EnableScrollBar(m_hWnd, bar, arrows);
}
CScrollBar* CWnd::GetScrollBarCtrl(int) const {
    return nullptr;
}
void CWnd::ScrollWindow(int dx, int dy, LPCRECT scrollRect, LPCRECT clipRect) {
    ::ScrollWindow(m_hWnd, dx, dy, scrollRect, clipRect);
}

// Painting.
void CWnd::Invalidate(BOOL erase) {
    ::InvalidateRect(m_hWnd, nullptr, erase);
}
void CWnd::InvalidateRect(LPCRECT rect, BOOL erase) {
    ::InvalidateRect(m_hWnd, rect, erase);
}
void CWnd::ValidateRect(LPCRECT rect) {
    ::ValidateRect(m_hWnd, rect);
}
BOOL CWnd::GetUpdateRect(LPRECT rect, BOOL erase) {
    return ::GetUpdateRect(m_hWnd, rect, erase);
}
void CWnd::UpdateWindow() {
    ::UpdateWindow(m_hWnd);
}
BOOL CWnd::RedrawWindow(LPCRECT updateRect, HRGN updateRegion, UINT flags) {
    return ::RedrawWindow(m_hWnd, updateRect, updateRegion, flags);
}
void CWnd::SetRedraw(BOOL redraw) {
    SendMessage(WM_SETREDRAW, WPARAM(redraw));
}
CDC* CWnd::BeginPaint(LPPAINTSTRUCT paint) {
    return CDC::FromHandle(::BeginPaint(m_hWnd, paint));
}
void CWnd::EndPaint(LPPAINTSTRUCT paint) {
    ::EndPaint(m_hWnd, paint);
}
CDC* CWnd::GetDC() {
    return CDC::FromHandle(::GetDC(m_hWnd));
}
CDC* CWnd::GetWindowDC() {
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}
int CWnd::ReleaseDC(CDC* dc) {
    return dc ? ::ReleaseDC(m_hWnd, dc->m_hDC) : 0;
}

// Properties and conveniences.
BOOL CWnd::SetProp(LPCSTR name, HANDLE data) {
    return ::SetProp(m_hWnd, name, data);
}
HANDLE CWnd::GetProp(LPCSTR name) const {
    return ::GetProp(m_hWnd, name);
}
HANDLE CWnd::RemoveProp(LPCSTR name) {
    return ::RemoveProp(m_hWnd, name);
}
int CWnd::MessageBox(LPCSTR text, LPCSTR caption, UINT type) {
    return ::MessageBox(m_hWnd, text, caption, type);
}
void CWnd::CenterWindow(CWnd* alternateOwner) {
    CRect area(0, 0, 1920, 1080);
    const HWND owner = alternateOwner ? alternateOwner->m_hWnd : ::GetParent(m_hWnd);
    if (owner)
        ::GetWindowRect(owner, &area);
    CRect rect;
    GetWindowRect(&rect);
    CPoint topLeft(area.left + (area.Width() - rect.Width()) / 2,
                   area.top + (area.Height() - rect.Height()) / 2);
    if (GetStyle() & WS_CHILD)
        ::ScreenToClient(::GetParent(m_hWnd), &topLeft);
    SetWindowPos(nullptr, topLeft.x, topLeft.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
void CWnd::BringWindowToTop() {
    SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}
LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_pfnSuper)
        return ::CallWindowProc(m_pfnSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG& msg = ThreadState().current;
    if (!m_hWnd || msg.hwnd != m_hWnd)
        return 0;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(MSG* msg) {
    // Each handler may destroy windows: the walk goes on from handles, never from objects.
    for (HWND h = msg->hwnd; h; h = ::GetParent(h)) {
        if (CWnd* wnd = FromHandlePermanent(h))
            if (wnd->PreTranslateMessage(msg))
                return TRUE;
        if (!(::GetWindowLong(h, GWL_STYLE) & WS_CHILD))
            break;
    }
    return FALSE;
}

void CWnd::OnNcDestroy() {
    Default();
    CWndAccess::Finish(this);
}

// The application's main window.
CWnd* AfxGetMainWnd() {
    return ThreadState().mainWnd;
}
void AfxSetMainWnd(CWnd* wnd) {
    ThreadState().mainWnd = wnd;
}

BOOL AfxRegisterClass(WNDCLASS* wndClass) {
    if (!wndClass)
        return FALSE;
    WNDCLASS existing;
    if (::GetClassInfo(wndClass->hInstance, wndClass->lpszClassName, &existing))
        return TRUE;
    return ::RegisterClass(wndClass);
}

LPCSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor, HBRUSH background, HICON icon) {
    // One class for each combination, named after it as the framework does.
    static std::map<std::string, std::string>& names = *new std::map<std::string, std::string>;
    char name[96];
    std::snprintf(name, sizeof name, "Afx:%x:%lx:%lx:%lx", classStyle,
                  static_cast<unsigned long>(reinterpret_cast<std::uintptr_t>(cursor)),
                  static_cast<unsigned long>(reinterpret_cast<std::uintptr_t>(background)),
                  static_cast<unsigned long>(reinterpret_cast<std::uintptr_t>(icon)));
    auto [it, inserted] = names.emplace(name, name);
    if (inserted) {
        WNDCLASS wc{classStyle, ::DefWindowProc, 0,          0,       nullptr,
                    icon,       cursor,          background, nullptr, it->second.c_str()};
        ::RegisterClass(&wc);
    }
    return it->second.c_str();
}
