#include "controls/DialogORVA.h"

#include "platform/base/Messages.h"
#include "support/HelpDocument.h"

CDialogORVA::CDialogORVA(unsigned int id, CWnd* parent) : CDialog(id, parent), m_id(int(id)) {}

bool CDialogORVA::DoHelp() {
    return HelpDocument::Open();
}

bool CDialogORVA::DoHelp(const int& topic) {
    return HelpDocument::OpenAtTopic(topic);
}

bool CDialogORVA::GetFileAssociation(const std::string& file, std::string& executable) {
    return HelpDocument::GetFileAssociation(file, executable);
}

BOOL CDialogORVA::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) == IDHELP)
        return DoHelp(HelpDocument::TopicForDialog(UINT(m_id))) ? TRUE : FALSE;
    return CDialog::OnCommand(wParam, lParam);
}
