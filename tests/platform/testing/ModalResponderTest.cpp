// The modal responder works the real standard controls of a dialog as a user would: typing,
// choosing from a combo box, setting a date, ticking a check box, and pressing a button.

#include "platform/testing/ModalResponder.h"
#include "platform/widgets/DateTimeCtrl.h"
#include "platform/window/Dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using ::testing::ElementsAre;

namespace {

constexpr UINT kSurveyTemplate = 7201;
constexpr int kSpan = 301;
constexpr int kMethod = 302;
constexpr int kDate = 303;
constexpr int kHeadwall = 304;
constexpr SYSTEMTIME kSurveyDay{2026, 3, 0, 14, 0, 0, 0, 0};

void RegisterSurveyTemplate() {
    constexpr DWORD field = WS_VISIBLE | WS_TABSTOP;
    RegisterDialogTemplate(
        kSurveyTemplate,
        {"Survey",
         {200, 110},
         {{"Edit", "", kSpan, field | WS_BORDER | ES_AUTOHSCROLL, {60, 5, 150, 19}},
          {"ComboBox", "", kMethod, field | CBS_DROPDOWNLIST | WS_VSCROLL, {60, 24, 150, 90}},
          {DATETIMEPICK_CLASS, "", kDate, field, {60, 43, 150, 57}},
          {"Button", "Headwall", kHeadwall, field | BS_AUTOCHECKBOX, {60, 62, 150, 72}},
          {"Button", "OK", IDOK, field | WS_GROUP | BS_DEFPUSHBUTTON, {90, 90, 140, 104}},
          {"Button", "Cancel", IDCANCEL, field | BS_PUSHBUTTON, {145, 90, 195, 104}}}});
}

// Keeps what the user entered, and the notifications its controls sent.
class SurveyDialog : public CDialog {
public:
    SurveyDialog() : CDialog(kSurveyTemplate) {}

    double span = 0.0;
    CString method;
    int methodIndex = -1;
    int headwall = BST_UNCHECKED;
    SYSTEMTIME date{};
    std::vector<std::string> heard;

protected:
    BOOL OnInitDialog() override {
        for (const char* name : {"Chezy", "Manning", "Darcy-Weisbach"})
            SendDlgItemMessage(kMethod, CB_ADDSTRING, 0, LPARAM(name));
        return CDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* dx) override {
        DDX_Text(dx, kSpan, span);
        DDX_CBString(dx, kMethod, method);
        DDX_CBIndex(dx, kMethod, methodIndex);
        DDX_Check(dx, kHeadwall, headwall);
        if (dx->m_bSaveAndValidate)
            SendDlgItemMessage(kDate, DTM_GETSYSTEMTIME, 0, LPARAM(&date));
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const UINT code = HIWORD(wParam);
        if (LOWORD(wParam) == kMethod && (code == CBN_SELENDOK || code == CBN_SELCHANGE))
            heard.push_back(code == CBN_SELENDOK ? "selendok" : "selchange");
        if (LOWORD(wParam) == kHeadwall && code == BN_CLICKED)
            heard.push_back("headwall clicked");
        return CDialog::OnCommand(wParam, lParam);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto* change = reinterpret_cast<const NMDATETIMECHANGE*>(lParam);
        if (change->nmhdr.code == DTN_DATETIMECHANGE)
            heard.push_back("date " + std::to_string(change->st.wDay));
        return CDialog::OnNotify(wParam, lParam, result);
    }
};

class ModalResponderTest : public ::testing::Test {
protected:
    void SetUp() override { RegisterSurveyTemplate(); }
    ModalResponder responder;
};

TEST_F(ModalResponderTest, WorksEachKindOfControlAsTheUserWould) {
    responder.Next()
        .Type(kSpan, "12.5")
        .Choose(kMethod, "Man")
        .SetDate(kDate, kSurveyDay)
        .Check(kHeadwall)
        .Check(kHeadwall) // already ticked: no second click
        .Press("OK");
    SurveyDialog survey;
    EXPECT_EQ(survey.DoModal(), IDOK);
    EXPECT_DOUBLE_EQ(survey.span, 12.5);
    EXPECT_STREQ(survey.method.GetString(), "Manning");
    EXPECT_EQ(survey.methodIndex, 1);
    EXPECT_EQ(survey.headwall, int(BST_CHECKED));
    EXPECT_EQ(survey.date.wYear, kSurveyDay.wYear);
    EXPECT_EQ(survey.date.wMonth, kSurveyDay.wMonth);
    EXPECT_EQ(survey.date.wDay, kSurveyDay.wDay);
    EXPECT_THAT(survey.heard, ElementsAre("selendok", "selchange", "date 14", "headwall clicked"));
    ASSERT_EQ(responder.Count(), 1);
    EXPECT_TRUE(responder.Shown()[0].problems.empty());
    EXPECT_THAT(responder.Shown()[0].buttons, ElementsAre("OK", "Cancel"));
}

TEST_F(ModalResponderTest, StepsThatFindNothingToWorkAreReportedAndTheRestGoOn) {
    responder.Next()
        .Choose(kMethod, "Kutter")
        .Type(999, "1")
        .Check(998)
        .Press("Apply")
        .Press(IDCANCEL);
    SurveyDialog survey;
    EXPECT_EQ(survey.DoModal(), IDCANCEL);
    EXPECT_TRUE(survey.heard.empty());
    ASSERT_EQ(responder.Count(), 1);
    EXPECT_EQ(responder.Shown()[0].problems.size(), 4u);
    EXPECT_EQ(responder.Unused(), 0);
}

} // namespace
