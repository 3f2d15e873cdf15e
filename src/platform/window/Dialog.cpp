#include "platform/window/Dialog.h"

#include "platform/base/Messages.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"

#include <map>
#include <utility>

namespace {

// The base units of "MS Shell Dlg" 8 pt at 96 DPI.
constexpr int kBaseUnitX = 6;
constexpr int kBaseUnitY = 13;

std::map<UINT, DialogTemplate>& Templates() {
    static std::map<UINT, DialogTemplate> templates; // single-threaded
    return templates;
}

DialogResponder& Responder() {
    static DialogResponder responder; // single-threaded
    return responder;
}

} // namespace

void RegisterDialogTemplate(UINT templateId, DialogTemplate dialogTemplate) {
    Templates()[templateId] = std::move(dialogTemplate);
}

const DialogTemplate* FindDialogTemplate(UINT templateId) {
    auto it = Templates().find(templateId);
    return it == Templates().end() ? nullptr : &it->second;
}

DialogResponder SetDialogResponder(DialogResponder responder) {
    return std::exchange(Responder(), std::move(responder));
}

CDialog::CDialog(UINT templateId, CWnd* parent)
    : m_nIDHelp(templateId), m_templateId(templateId), m_parent(parent) {}

void CDialog::MapDialogRect(LPRECT rect) const {
    rect->left = rect->left * kBaseUnitX / 4;
    rect->right = rect->right * kBaseUnitX / 4;
    rect->top = rect->top * kBaseUnitY / 8;
    rect->bottom = rect->bottom * kBaseUnitY / 8;
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) {
    const DialogTemplate* dialogTemplate = FindDialogTemplate(templateId);
    if (!dialogTemplate)
        return FALSE;
    m_templateId = templateId;
    m_parent = parent;
    RECT frame{0, 0, dialogTemplate->size.cx, dialogTemplate->size.cy};
    MapDialogRect(&frame);
    if (!CreateEx(0, nullptr, dialogTemplate->caption.c_str(), WS_POPUP | WS_CAPTION, 0, 0,
                  frame.right, frame.bottom, parent ? parent->GetSafeHwnd() : nullptr, nullptr))
        return FALSE;
    for (const DialogItemTemplate& item : dialogTemplate->items) {
        RECT r = item.rect;
        MapDialogRect(&r);
        const LPCSTR className =
            item.className.empty() ? AfxRegisterWndClass(0) : item.className.c_str();
        ::CreateWindowEx(0, className, item.text.c_str(), item.style | WS_CHILD, r.left, r.top,
                         r.right - r.left, r.bottom - r.top, m_hWnd,
                         reinterpret_cast<HMENU>(std::uintptr_t(item.id)), nullptr, nullptr);
    }
    SendMessage(WM_INITDIALOG);
    return TRUE;
}

INT_PTR CDialog::DoModal() {
    m_modal = true;
    m_ended = false;
    if (!Create(m_templateId, m_parent)) {
        m_modal = false;
        return -1;
    }
    HWND owner = m_parent ? m_parent->GetSafeHwnd() : nullptr;
    const bool ownerWasEnabled = owner && ::IsWindowEnabled(owner);
    if (ownerWasEnabled)
        ::EnableWindow(owner, FALSE);
    ::ShowWindow(m_hWnd, SW_SHOW);
    if (Responder())
        Responder()(*this);
    // Work off what the responder queued; a dialog left open with nothing more to do is
    // cancelled, since nobody else could end it.
    MSG msg;
    while (!m_ended && ::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&msg);
        ::DispatchMessage(&msg);
    }
    if (!m_ended)
        EndDialog(IDCANCEL);
    if (ownerWasEnabled)
        ::EnableWindow(owner, TRUE);
    DestroyWindow();
    m_modal = false;
    return m_result;
}

void CDialog::EndDialog(int result) {
    m_result = result;
    m_ended = true;
    if (!m_modal)
        DestroyWindow();
}

BOOL CDialog::OnInitDialog() {
    return TRUE;
}

void CDialog::OnOK() {
    EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
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
