// The open dialog: a path field and the reach files of the example folder.

#include "OpenReachDialog.h"

#include "platform/base/Messages.h"
#include "platform/window/DialogTemplate.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"

#include <algorithm>
#include <filesystem>

namespace {

void RegisterTemplate() {
    if (FindDialogTemplate(OpenReachDialog::kTemplateId))
        return;
    DialogTemplate dialog{"Open Reach", {260, 86}, {}};
    dialog.items = {
        {"Static", "Example reaches:", 0, WS_VISIBLE, {8, 8, 120, 18}},
        {"ComboBox",
         "",
         OpenReachDialog::kExamplesId,
         WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST,
         {8, 20, 252, 90}},
        {"Static", "Reach file:", 0, WS_VISIBLE, {8, 40, 120, 50}},
        {"Edit",
         "",
         OpenReachDialog::kPathId,
         WS_VISIBLE | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL,
         {8, 52, 252, 64}},
        {"Button", "Open", IDOK, WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, {146, 68, 196, 82}},
        {"Button", "Cancel", IDCANCEL, WS_VISIBLE | WS_TABSTOP, {202, 68, 252, 82}},
    };
    RegisterDialogTemplate(OpenReachDialog::kTemplateId, std::move(dialog));
}

} // namespace

OpenReachDialog::OpenReachDialog(std::string folder, CWnd* parent)
    : CDialog((RegisterTemplate(), kTemplateId), parent), m_folder(std::move(folder)) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder, error))
        if (entry.path().extension() == ".reach")
            m_examples.push_back(entry.path().string());
    std::sort(m_examples.begin(), m_examples.end());
}

BOOL OpenReachDialog::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    const HWND list = ::GetDlgItem(m_hWnd, kExamplesId);
    for (const std::string& path : m_examples)
        ::SendMessage(list, CB_ADDSTRING, 0,
                      LPARAM(std::filesystem::path(path).filename().string().c_str()));
    if (!m_examples.empty()) {
        ::SendMessage(list, CB_SETCURSEL, 0, 0);
        SetDlgItemText(kPathId, m_examples.front().c_str());
    }
    return result;
}

BOOL OpenReachDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) == kExamplesId && HIWORD(wParam) == CBN_SELCHANGE) {
        const LRESULT chosen = ::SendMessage(HWND(lParam), CB_GETCURSEL, 0, 0);
        if (chosen >= 0 && size_t(chosen) < m_examples.size())
            SetDlgItemText(kPathId, m_examples[size_t(chosen)].c_str());
        return TRUE;
    }
    return CDialog::OnCommand(wParam, lParam);
}

void OpenReachDialog::OnOK() {
    CString path;
    GetDlgItemText(kPathId, path);
    m_path = path.GetString();
    CDialog::OnOK();
}
