// CDialog: creating a dialog and its controls from a template, the modal loop, the default
// handling of OK and Cancel, and the dialog's keyboard interface.

#include "platform/window/Dialog.h"

#include "platform/base/Messages.h"
#include "platform/host/Host.h"
#include "platform/window/Input.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"

#include <utility>

namespace {

DialogResponder& Responder() {
    static DialogResponder& responder = *new DialogResponder; // single-threaded
    return responder;
}

// Waits for the user's input or the next timer. On a host with a virtual clock no user can
// ever answer, and waiting would only run the timers for ever: answers false there.
bool WaitForUser() {
    Host& host = GetHost();
    if (host.AdvanceClock(0))
        return false;
    return host.WaitForEvents(NextTimerDueTime());
}

} // namespace

DialogResponder SetDialogResponder(DialogResponder responder) {
    return std::exchange(Responder(), std::move(responder));
}

CDialog::CDialog(UINT templateId, CWnd* parent)
    : m_nIDHelp(templateId), m_templateId(templateId), m_parent(parent) {}

BOOL CDialog::Create(UINT templateId, CWnd* parent) {
    const DialogTemplate* dialogTemplate = FindDialogTemplate(templateId);
    if (!dialogTemplate)
        return FALSE;
    m_templateId = templateId;
    return CreateIndirect(*dialogTemplate, parent);
}

BOOL CDialog::CreateIndirect(const DialogTemplate& dialogTemplate, CWnd* parent) {
    m_parent = parent;
    m_modal = false;
    m_ended = false;
    if (!CreateFromTemplate(dialogTemplate, SafeHwnd(parent)))
        return FALSE;
    if ((dialogTemplate.style & WS_VISIBLE) && IsWindow())
        ShowWindow(SW_SHOW);
    return IsWindow();
}

BOOL CDialog::InitModalIndirect(const DialogTemplate& dialogTemplate, CWnd* parent) {
    m_indirectTemplate = dialogTemplate;
    m_parent = parent;
    return TRUE;
}

const DialogTemplate* CDialog::ModalTemplate() const {
    return m_indirectTemplate ? &*m_indirectTemplate : FindDialogTemplate(m_templateId);
}

BOOL CDialog::CreateFromTemplate(const DialogTemplate& dialogTemplate, HWND owner) {
    if (m_hWnd)
        return FALSE;
    m_font.DeleteObject();
    m_font.Attach(CreateDialogFont(dialogTemplate));
    const SIZE baseUnits = DialogBaseUnitsOf(HFONT(m_font.GetSafeHandle()));
    RECT client{0, 0, dialogTemplate.size.cx, dialogTemplate.size.cy};
    DialogUnitsToPixels(baseUnits, &client);
    const DWORD exStyle = (dialogTemplate.style & DS_MODALFRAME) ? WS_EX_DLGMODALFRAME : 0;
    if (!CreateEx(exStyle, DialogClassName(), dialogTemplate.caption.c_str(),
                  dialogTemplate.style & ~WS_VISIBLE, 0, 0, client.right, client.bottom, owner,
                  nullptr))
        return FALSE;
    // The template gives the client size; the frame comes on top of it.
    CRect window, inside;
    GetWindowRect(&window);
    GetClientRect(&inside);
    SetWindowPos(nullptr, 0, 0, client.right + window.Width() - inside.Width(),
                 client.bottom + window.Height() - inside.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessage(WM_SETFONT, WPARAM(m_font.GetSafeHandle()), FALSE);
    CreateItems(dialogTemplate, baseUnits);
    if (!(dialogTemplate.style & WS_CHILD))
        CenterWindow(owner ? FromHandle(owner) : nullptr);

    const HWND self = m_hWnd;
    const HWND first = ::GetNextDlgTabItem(self, nullptr, FALSE);
    const LRESULT setFocus = SendMessage(WM_INITDIALOG, WPARAM(first), 0);
    // OnInitDialog may have ended (and so destroyed) a modeless dialog.
    if (!::IsWindow(self))
        return FALSE;
    if (setFocus && first && ::IsWindow(first))
        ::SendMessage(self, WM_NEXTDLGCTL, WPARAM(first), TRUE);
    return TRUE;
}

void CDialog::CreateItems(const DialogTemplate& dialogTemplate, SIZE baseUnits) {
    const HFONT font = HFONT(m_font.GetSafeHandle());
    bool defaultFound = false;
    for (const DialogItemTemplate& item : dialogTemplate.items) {
        RECT r = item.rect;
        DialogUnitsToPixels(baseUnits, &r);
        const LPCSTR className =
            item.className.empty() ? AfxRegisterWndClass(0) : item.className.c_str();
        const HWND control =
            ::CreateWindowEx(item.exStyle, className, item.text.c_str(), item.style | WS_CHILD,
                             r.left, r.top, r.right - r.left, r.bottom - r.top, m_hWnd,
                             reinterpret_cast<HMENU>(std::uintptr_t(item.id)), nullptr, nullptr);
        if (!control)
            continue;
        ::SendMessage(control, WM_SETFONT, WPARAM(font), FALSE);
        // The first button that shows itself as the default is the dialog's default.
        if (!defaultFound && (::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON)) {
            defaultFound = true;
            SetDefID(item.id);
        }
    }
}

INT_PTR CDialog::DoModal() {
    const DialogTemplate* dialogTemplate = ModalTemplate();
    if (!dialogTemplate)
        return -1;
    // The owner is the top-level window above the parent, or the main window; it takes no
    // input until the dialog ends.
    CWnd* parent = m_parent ? m_parent : AfxGetMainWnd();
    const HWND owner = parent ? ::GetAncestor(parent->GetSafeHwnd(), GA_ROOT) : nullptr;
    const bool disableOwner = owner && ::IsWindowEnabled(owner);
    if (disableOwner)
        ::EnableWindow(owner, FALSE);
    m_modal = true;
    m_ended = false;
    m_result = IDCANCEL;
    if (!CreateFromTemplate(*dialogTemplate, owner)) {
        if (!m_ended)
            m_result = -1;
    } else if (!m_ended) {
        ShowWindow(SW_SHOW);
        RunModalLoop();
    }
    // The owner comes back before the dialog goes, so that it is the window activated next.
    if (disableOwner && ::IsWindow(owner))
        ::EnableWindow(owner, TRUE);
    if (IsWindow())
        DestroyWindow();
    if (owner && ::IsWindow(owner))
        ::SetActiveWindow(owner);
    m_modal = false;
    return m_result;
}

void CDialog::RunModalLoop() {
    // Handlers may destroy the dialog: the loop holds its handle and checks it each time.
    const HWND self = m_hWnd;
    bool shownToResponder = false;
    MSG msg;
    while (!m_ended && ::IsWindow(self)) {
        if (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
            if (msg.message == WM_QUIT) {
                // The application is quitting: the dialog ends and the quit goes on outward.
                ::PostQuitMessage(int(msg.wParam));
                EndDialog(IDCANCEL);
                break;
            }
            if (!WalkPreTranslateTree(&msg)) {
                ::TranslateMessage(&msg);
                ::DispatchMessage(&msg);
            }
            continue;
        }
        if (!shownToResponder) {
            shownToResponder = true;
            OnModalShown();
            continue;
        }
        if (!WaitForUser())
            EndDialog(UnattendedResult());
    }
}

void CDialog::OnModalShown() {
    if (Responder())
        Responder()(*this);
}

void CDialog::EndDialog(int result) {
    m_result = result;
    m_ended = true;
    // A modal dialog goes away at once; its loop destroys it once it has returned.
    if (!m_modal)
        DestroyWindow();
    else if (IsWindow())
        ShowWindow(SW_HIDE);
}

void CDialog::MapDialogRect(LPRECT rect) const {
    if (IsWindow()) {
        ::MapDialogRect(m_hWnd, rect);
        return;
    }
    const LONG units = GetDialogBaseUnits();
    DialogUnitsToPixels(SIZE{LOWORD(units), HIWORD(units)}, rect);
}

void CDialog::GotoDlgCtrl(CWnd* control) {
    if (control)
        SendMessage(WM_NEXTDLGCTL, WPARAM(control->GetSafeHwnd()), TRUE);
}

void CDialog::NextDlgCtrl() const {
    SendMessage(WM_NEXTDLGCTL, 0, 0);
}

void CDialog::PrevDlgCtrl() const {
    SendMessage(WM_NEXTDLGCTL, 1, 0);
}

void CDialog::SetDefID(UINT id) {
    SendMessage(DM_SETDEFID, id);
}

DWORD CDialog::GetDefID() const {
    return DWORD(SendMessage(DM_GETDEFID));
}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* msg) {
    if (msg->message < WM_KEYFIRST || msg->message > WM_KEYLAST)
        return FALSE;
    return ::IsDialogMessage(m_hWnd, msg);
}

BOOL CDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    switch (LOWORD(wParam)) {
    case IDOK:
        OnOK();
        return TRUE;
    case IDCANCEL:
        OnCancel();
        return TRUE;
    default:
        return CWnd::OnCommand(wParam, lParam);
    }
}

BOOL CDialog::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_INITDIALOG) {
        *result = OnInitDialog();
        return TRUE;
    }
    return CWnd::OnWndMsg(message, wParam, lParam, result);
}
