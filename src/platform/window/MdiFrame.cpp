// The frame classes: a frame with its menu bar, the multiple-document frame with its MDI
// client, and the document windows inside it.

#include "platform/window/MdiFrame.h"

#include "platform/window/MdiState.h"

namespace {
constexpr UINT kMdiClientId = 0xE900; // the framework's first pane id

CMDIFrameWnd* AsMdiFrame(CWnd* wnd) {
    return wnd && wnd->IsKindOf(RUNTIME_CLASS(CMDIFrameWnd)) ? static_cast<CMDIFrameWnd*>(wnd)
                                                             : nullptr;
}

CMDIChildWnd* AsMdiChild(CWnd* wnd) {
    return wnd && wnd->IsKindOf(RUNTIME_CLASS(CMDIChildWnd)) ? static_cast<CMDIChildWnd*>(wnd)
                                                             : nullptr;
}
} // namespace

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)
IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)
IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

// ---- CFrameWnd ----

BOOL CFrameWnd::Create(LPCSTR className, LPCSTR title, DWORD style, const RECT& rect, CWnd* parent,
                       LPCSTR menuName, DWORD exStyle) {
    const HMENU menu = menuName ? ::LoadMenu(nullptr, menuName) : nullptr;
    if (menuName && !menu)
        return FALSE;
    const bool byDefault = rect.left == CW_USEDEFAULT;
    const BOOL made =
        CreateEx(exStyle, className, title, style, rect.left, rect.top,
                 byDefault ? CW_USEDEFAULT : rect.right - rect.left,
                 byDefault ? CW_USEDEFAULT : rect.bottom - rect.top, SafeHwnd(parent), menu);
    if (!made && menu)
        ::DestroyMenu(menu);
    return made;
}

CFrameWnd* CFrameWnd::GetActiveFrame() {
    return this;
}

CMenu* CFrameWnd::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CFrameWnd::SetMenu(CMenu* menu) {
    return ::SetMenu(m_hWnd, menu ? menu->GetSafeHmenu() : nullptr);
}

void CFrameWnd::DrawMenuBar() {
    ::DrawMenuBar(m_hWnd);
}

// ---- CMDIFrameWnd ----

int CMDIFrameWnd::OnCreate(LPCREATESTRUCT cs) {
    if (CFrameWnd::OnCreate(cs) == -1)
        return -1;
    return CreateClient(cs) ? 0 : -1;
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT) {
    wm::RegisterMdiClientClass();
    CRect client;
    GetClientRect(&client);
    CLIENTCREATESTRUCT ccs{nullptr, 0xFF00};
    m_hWndMDIClient =
        ::CreateWindowEx(WS_EX_CLIENTEDGE, wm::kMdiClientClass, "",
                         WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, 0,
                         client.Width(), client.Height(), m_hWnd,
                         reinterpret_cast<HMENU>(std::uintptr_t(kMdiClientId)), nullptr, &ccs);
    return m_hWndMDIClient != nullptr;
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefFrameProc(m_hWnd, m_hWndMDIClient, message, wParam, lParam);
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame() {
    CMDIChildWnd* child = MDIGetActive();
    return child ? static_cast<CFrameWnd*>(child) : this;
}

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* maximized) const {
    const HWND active = HWND(::SendMessage(m_hWndMDIClient, WM_MDIGETACTIVE, 0, LPARAM(maximized)));
    return AsMdiChild(CWnd::FromHandlePermanent(active));
}

void CMDIFrameWnd::MDIActivate(CWnd* child) {
    ::SendMessage(m_hWndMDIClient, WM_MDIACTIVATE, WPARAM(SafeHwnd(child)), 0);
}

void CMDIFrameWnd::MDIMaximize(CWnd* child) {
    ::SendMessage(m_hWndMDIClient, WM_MDIMAXIMIZE, WPARAM(SafeHwnd(child)), 0);
}

void CMDIFrameWnd::MDIRestore(CWnd* child) {
    ::SendMessage(m_hWndMDIClient, WM_MDIRESTORE, WPARAM(SafeHwnd(child)), 0);
}

void CMDIFrameWnd::MDINext() {
    ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 0);
}

void CMDIFrameWnd::MDIPrev() {
    ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 1);
}

void CMDIFrameWnd::MDICascade() {
    ::SendMessage(m_hWndMDIClient, WM_MDICASCADE, 0, 0);
}

void CMDIFrameWnd::MDITile() {
    ::SendMessage(m_hWndMDIClient, WM_MDITILE, 0, 0);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* msg) {
    return ::TranslateMDISysAccel(m_hWndMDIClient, msg);
}

// ---- CMDIChildWnd ----

BOOL CMDIChildWnd::Create(LPCSTR className, LPCSTR title, DWORD style, const RECT& rect,
                          CMDIFrameWnd* parent) {
    CMDIFrameWnd* frame = parent ? parent : AsMdiFrame(AfxGetMainWnd());
    if (!frame || !frame->m_hWndMDIClient)
        return FALSE;
    const HWND client = frame->m_hWndMDIClient;
    const CRect placed = wm::PlaceNewChild(client, rect);
    if (!CreateEx(WS_EX_MDICHILD, className, title, style | WS_CHILD | WS_CLIPSIBLINGS, placed,
                  CWnd::FromHandle(client), 0))
        return FALSE;
    wm::AdoptChild(client, m_hWnd);
    return TRUE;
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() const {
    return AsMdiFrame(CWnd::FromHandlePermanent(::GetParent(::GetParent(m_hWnd))));
}

void CMDIChildWnd::MDIActivate() {
    ::SendMessage(::GetParent(m_hWnd), WM_MDIACTIVATE, WPARAM(m_hWnd), 0);
}

void CMDIChildWnd::MDIMaximize() {
    ::SendMessage(::GetParent(m_hWnd), WM_MDIMAXIMIZE, WPARAM(m_hWnd), 0);
}

void CMDIChildWnd::MDIRestore() {
    ::SendMessage(::GetParent(m_hWnd), WM_MDIRESTORE, WPARAM(m_hWnd), 0);
}

void CMDIChildWnd::MDIDestroy() {
    ::SendMessage(::GetParent(m_hWnd), WM_MDIDESTROY, WPARAM(m_hWnd), 0);
}

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProc(m_hWnd, message, wParam, lParam);
}

void CMDIChildWnd::PostNcDestroy() {
    delete this;
}
