#pragma once

// Asks for the path of a reach file, offering the example folder's files in a list.

#include "platform/window/Dialog.h"

#include <string>
#include <vector>

class OpenReachDialog : public CDialog {
public:
    static constexpr UINT kTemplateId = 4100;
    static constexpr UINT kPathId = 4101;
    static constexpr UINT kExamplesId = 4102;

    OpenReachDialog(std::string folder, CWnd* parent);
    const std::string& Path() const { return m_path; }

protected:
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override;

private:
    std::string m_folder;
    std::vector<std::string> m_examples;
    std::string m_path;
};
