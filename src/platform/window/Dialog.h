#pragma once

// Dialog boxes built from templates kept in code (DialogTemplate.h). Create shows a dialog
// modeless; DoModal runs it in a loop of its own until EndDialog, with its owner disabled,
// waiting for the user on a display. Headless runs never wait on a modal dialog: the installed
// responder works it once it is shown, and a dialog that nobody ends is cancelled.

#include "platform/gdi/Font.h"
#include "platform/window/DataExchange.h"
#include "platform/window/DialogApi.h"
#include "platform/window/DialogTemplate.h"
#include "platform/window/Wnd.h"

#include <functional>
#include <optional>

class CDialog;
// Called with each modal dialog once it is shown; it may work its controls or end it.
using DialogResponder = std::function<void(CDialog& dialog)>;
// Installs a responder (an empty one removes it); answers the previous one.
ORVA_API DialogResponder SetDialogResponder(DialogResponder responder);

class ORVA_API CDialog : public CWnd {
public:
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);

    // Modeless: creates the dialog and its controls; false without a template.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    BOOL CreateIndirect(const DialogTemplate& dialogTemplate, CWnd* parent = nullptr);
    // Makes DoModal use this template instead of the registered one.
    BOOL InitModalIndirect(const DialogTemplate& dialogTemplate, CWnd* parent = nullptr);
    // Modal: answers the result given to EndDialog, or -1 without a template.
    virtual INT_PTR DoModal();
    void EndDialog(int result);

    // Dialog units to pixels through the dialog's font (the default font before it exists).
    void MapDialogRect(LPRECT rect) const;
    // Moves the focus as the keyboard does: to a control, or to the next or previous tab stop.
    void GotoDlgCtrl(CWnd* control);
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    // The default push button, pressed by Enter: DM_SETDEFID and DM_GETDEFID.
    void SetDefID(UINT id);
    DWORD GetDefID() const;

    // Called before the dialog shows; TRUE lets the focus go to the first tab stop. Loads the
    // members into the controls.
    virtual BOOL OnInitDialog();
    // Saves the controls into the members and, when they were valid, ends with IDOK.
    virtual void OnOK();
    virtual void OnCancel();
    // Gives keyboard messages the dialog's meaning (IsDialogMessage).
    BOOL PreTranslateMessage(MSG* msg) override;

    UINT m_nIDHelp = 0;
    LPCSTR m_lpszTemplateName = nullptr;

protected:
    CDialog() = default;

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    // Called once a modal dialog is shown and its first messages are handled; runs the
    // installed responder.
    virtual void OnModalShown();
    // The result of a modal dialog that nobody can answer, on a host without a user.
    virtual int UnattendedResult() const { return IDCANCEL; }
    bool IsEnded() const { return m_ended; }

private:
    const DialogTemplate* ModalTemplate() const;
    BOOL CreateFromTemplate(const DialogTemplate& dialogTemplate, HWND owner);
    void CreateItems(const DialogTemplate& dialogTemplate, SIZE baseUnits);
    void RunModalLoop();

    UINT m_templateId = 0;
    CWnd* m_parent = nullptr;
    std::optional<DialogTemplate> m_indirectTemplate;
    CFont m_font; // the template's font, which the dialog and its controls use
    bool m_modal = false;
    bool m_ended = false;
    int m_result = IDCANCEL;
};
