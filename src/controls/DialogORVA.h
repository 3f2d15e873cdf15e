#pragma once

// The base of the application's dialogs. This part sends the dialog's Help button to the help
// document, at the topic of the dialog's identifier.

#include "platform/window/Dialog.h"

#include <string>

class ORVA_API CDialogORVA : public CDialog {
public:
    CDialogORVA(unsigned int id, CWnd* parent);

    int GetID() const { return m_id; }

    static bool DoHelp();
    static bool DoHelp(const int& topic);
    static bool GetFileAssociation(const std::string& file, std::string& executable);

protected:
    CDialogORVA() = default;

    // The Help button (IDHELP) opens the help document at this dialog's topic; the result of
    // opening it is the handled flag.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    int m_id = -1; // the dialog's resource identifier, the key of the help lookup
};
