#pragma once

// A form for the numeric edit tests: a dialog with two double controls, an integer control, a
// multi-line double control and a plain window, all typed into through the UI driver.

#include "controls/DialogORVA.h"
#include "controls/EditORVAFloat.h"
#include "controls/EditORVAInt.h"

#include "platform/base/Messages.h"
#include "platform/testing/NotificationRecorder.h"
#include "platform/testing/UiDriver.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace forms_test {

constexpr UINT kFormDialog = 320;
constexpr UINT kFloatId = 201;
constexpr UINT kOtherFloatId = 202;
constexpr UINT kIntId = 203;
constexpr UINT kMultiLineId = 204;
constexpr UINT kPlainId = 205;
constexpr POINT kInside{4, 4}; // a client point inside every field

// The dialog notes each key that reaches its own keyboard handling.
class FormDialog : public CDialogORVA {
public:
    FormDialog();
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* msg) override;
    // A modeless form stays open: Enter and Escape are only counted.
    void OnOK() override { ++okCount; }
    void OnCancel() override { ++cancelCount; }

    CEditORVAFloat number;
    CEditORVAFloat other;
    CEditORVAInt count;
    CEditORVAFloat multiLine;
    HWND plain = nullptr; // a window with no control object
    std::vector<WPARAM> keysSeen;
    int okCount = 0;
    int cancelCount = 0;
};

class NumericEdit : public ::testing::Test {
protected:
    NumericEdit();
    ~NumericEdit() override;

    // Clicks into `edit`, gives it `text` and selects [start, end), ready for typing.
    void Prepare(CEdit& edit, const char* text, int start, int end);
    void Focus(CEdit& edit) { m_ui.Click(edit.GetSafeHwnd(), kInside); }
    // Moves the focus away from the numeric controls, into the plain window.
    void Leave() { ::SetFocus(m_form.plain); }
    static CString Text(const CWnd& wnd);
    static std::pair<int, int> Selection(const CEdit& edit);

    UiDriver m_ui;
    FormDialog m_form;
    std::unique_ptr<NotificationRecorder> m_recorder;
};

} // namespace forms_test
