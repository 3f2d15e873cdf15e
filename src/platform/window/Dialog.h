#pragma once

// Dialog boxes built from templates kept in code. A template names the caption, the size in
// dialog units and the controls; Create shows the dialog modeless, DoModal runs it until
// EndDialog. Headless runs never wait on a modal dialog: the installed responder works it once
// it is shown, and a dialog that nobody ends is cancelled.

#include "platform/window/Wnd.h"

#include <functional>
#include <string>
#include <vector>

struct DialogItemTemplate {
    std::string className; // a registered window class; empty for a plain window
    std::string text;
    UINT id = 0;
    DWORD style = 0; // WS_CHILD is always added
    RECT rect{};     // dialog units
};

struct DialogTemplate {
    std::string caption;
    SIZE size{}; // dialog units
    std::vector<DialogItemTemplate> items;
};

// Templates are looked up by the dialog's identifier. Single-threaded: the table is shared
// without locks.
ORVA_API void RegisterDialogTemplate(UINT templateId, DialogTemplate dialogTemplate);
ORVA_API const DialogTemplate* FindDialogTemplate(UINT templateId);

class CDialog;
// Called with each modal dialog once it is shown; it may press buttons or end the dialog.
using DialogResponder = std::function<void(CDialog& dialog)>;
// Installs a responder (an empty one removes it); answers the previous one.
ORVA_API DialogResponder SetDialogResponder(DialogResponder responder);

class ORVA_API CDialog : public CWnd {
public:
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);

    // Modeless: creates the dialog and its controls; false without a template.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    // Modal: answers the result given to EndDialog, or -1 without a template.
    virtual INT_PTR DoModal();
    void EndDialog(int result);

    // Dialog units to pixels, from the base units of the dialog font (6 x 13 px).
    void MapDialogRect(LPRECT rect) const;

    virtual BOOL OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();

    UINT m_nIDHelp = 0;
    LPCSTR m_lpszTemplateName = nullptr;

protected:
    CDialog() = default;

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    UINT m_templateId = 0;
    CWnd* m_parent = nullptr;
    bool m_modal = false;
    bool m_ended = false;
    int m_result = 0;
};
