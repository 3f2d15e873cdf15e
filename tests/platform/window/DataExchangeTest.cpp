// Data exchange between a dialog's controls and its members, both ways, and its failures.

#include "DialogProbes.h"
#include "WindowTestSupport.h"

#include "platform/testing/MessageBoxResponder.h"
#include "platform/testing/ModalResponder.h"
#include "platform/window/DataExchange.h"
#include "platform/window/Dialog.h"

namespace {

constexpr UINT kCulvertTemplate = 7101;
constexpr int kName = 201;
constexpr int kBarrels = 202;
constexpr int kCells = 203;
constexpr int kSpan = 204;
constexpr int kSkew = 205;
constexpr int kBox = 211; // the shape radio group: box, pipe, arch
constexpr int kPipe = 212;
constexpr int kArch = 213;
constexpr int kHeadwall = 221;
constexpr int kBoxShape = 0;
constexpr int kArchShape = 2;
constexpr int kNoShape = -1;

void RegisterCulvertTemplate() {
    RegisterDialogProbes();
    const DWORD field = WS_VISIBLE | WS_TABSTOP;
    RegisterDialogTemplate(
        kCulvertTemplate,
        {"Culvert Crossing Data",
         {200, 120},
         {{kProbeEdit, "", kName, field | WS_GROUP, {60, 5, 150, 17}},
          {kProbeEdit, "", kBarrels, field, {60, 20, 150, 32}},
          {kProbeEdit, "", kCells, field, {60, 35, 150, 47}},
          {kProbeEdit, "", kSpan, field, {60, 50, 150, 62}},
          {kProbeEdit, "", kSkew, field, {60, 65, 150, 77}},
          {kProbeButton, "Box", kBox, field | WS_GROUP | BS_AUTORADIOBUTTON, {5, 80, 45, 90}},
          {kProbeButton, "Pipe", kPipe, WS_VISIBLE | BS_AUTORADIOBUTTON, {50, 80, 90, 90}},
          {kProbeButton, "Arch", kArch, WS_VISIBLE | BS_AUTORADIOBUTTON, {95, 80, 135, 90}},
          {kProbeButton,
           "Headwall",
           kHeadwall,
           field | WS_GROUP | BS_AUTOCHECKBOX,
           {5, 92, 80, 102}},
          {kProbeButton, "OK", IDOK, field | WS_GROUP | BS_DEFPUSHBUTTON, {90, 104, 140, 118}},
          {kProbeButton, "Cancel", IDCANCEL, field | BS_PUSHBUTTON, {145, 104, 195, 118}}}});
}

class CulvertDialog : public CDialog {
public:
    CulvertDialog() : CDialog(kCulvertTemplate) {}

    CString name = "Box culvert";
    int barrels = 3;
    UINT cells = 2;
    double span = 0.1;
    float skew = 2.5f;
    int shape = kArchShape;
    int headwall = BST_CHECKED;

protected:
    void DoDataExchange(CDataExchange* dx) override {
        DDX_Text(dx, kName, name);
        DDX_Text(dx, kBarrels, barrels);
        DDX_Text(dx, kCells, cells);
        DDX_Text(dx, kSpan, span);
        DDX_Text(dx, kSkew, skew);
        DDX_Radio(dx, kBox, shape);
        DDX_Check(dx, kHeadwall, headwall);
    }
};

class DataExchangeTest : public WindowTest {
protected:
    void SetUp() override {
        RegisterCulvertTemplate();
        ASSERT_TRUE(dialog.Create(kCulvertTemplate)); // OnInitDialog shows the members
    }
    void TearDown() override {
        dialog.DestroyWindow();
        WindowTest::TearDown();
    }
    std::string Text(int id) {
        CString text;
        dialog.GetDlgItemText(id, text);
        return text.GetString();
    }

    CulvertDialog dialog;
    MessageBoxResponder boxes;
};

TEST_F(DataExchangeTest, MembersShowInTheControlsAndComeBackFromThem) {
    EXPECT_EQ(Text(kName), "Box culvert");
    EXPECT_EQ(Text(kBarrels), "3");
    EXPECT_EQ(Text(kSpan), "0.1"); // as many digits as a double keeps, no more
    EXPECT_EQ(Text(kSkew), "2.5");
    EXPECT_EQ(dialog.IsDlgButtonChecked(kArch), BST_CHECKED);
    EXPECT_EQ(dialog.IsDlgButtonChecked(kBox), BST_UNCHECKED);
    EXPECT_EQ(dialog.IsDlgButtonChecked(kHeadwall), BST_CHECKED);

    dialog.SetDlgItemText(kName, "Pipe arch");
    dialog.SetDlgItemText(kBarrels, " -4 "); // blanks around a number are allowed
    dialog.SetDlgItemText(kCells, "+7");
    dialog.SetDlgItemText(kSpan, "1.25e3");
    dialog.SetDlgItemText(kSkew, "-0.5");
    dialog.CheckRadioButton(kBox, kArch, kBox);
    dialog.CheckDlgButton(kHeadwall, BST_UNCHECKED);
    ASSERT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_STREQ(dialog.name.GetString(), "Pipe arch");
    EXPECT_EQ(dialog.barrels, -4);
    EXPECT_EQ(dialog.cells, 7u);
    EXPECT_DOUBLE_EQ(dialog.span, 1250.0);
    EXPECT_FLOAT_EQ(dialog.skew, -0.5f);
    EXPECT_EQ(dialog.shape, kBoxShape);
    EXPECT_EQ(dialog.headwall, int(BST_UNCHECKED));

    // No radio button checked reads as -1; an unknown check state shows unchecked.
    dialog.CheckRadioButton(kBox, kArch, 0);
    ASSERT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(dialog.shape, kNoShape);
    dialog.headwall = 7;
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.IsDlgButtonChecked(kHeadwall), BST_UNCHECKED);
    EXPECT_EQ(boxes.Count(), 0);
}

TEST_F(DataExchangeTest, ATextThatIsNotTheNumberFailsTheSaveAtItsControl) {
    struct Case {
        int id;
        const char* text;
        const char* complaint;
    };
    const Case cases[] = {
        {kBarrels, "3 barrels", "Please enter an integer."},
        {kBarrels, "", "Please enter an integer."},
        {kBarrels, "99999999999", "Please enter an integer."},
        {kCells, "-1", "Please enter a positive integer."},
        {kSpan, "1,5", "Please enter a number."},
        {kSkew, "inf", "Please enter a number."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        dialog.UpdateData(FALSE);
        dialog.SetDlgItemText(kName, "Renamed");
        dialog.SetDlgItemText(c.id, c.text);
        dialog.CheckRadioButton(kBox, kArch, kPipe);
        EXPECT_FALSE(dialog.UpdateData(TRUE));
        EXPECT_EQ(boxes.LastText(), c.complaint);
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), c.id);
        // Controls before the bad one were saved; those after it were not.
        EXPECT_STREQ(dialog.name.GetString(), "Renamed");
        EXPECT_EQ(dialog.shape, kArchShape);
        dialog.name = "Box culvert";
    }
    EXPECT_EQ(boxes.Count(), int(std::size(cases)));
}

TEST_F(DataExchangeTest, OkWithABadNumberKeepsTheDialogOpenUntilItIsCorrected) {
    ModalResponder responder;
    responder.Next().Type(kBarrels, "many").Press(IDOK).Type(kBarrels, "4").Press(IDOK);
    CulvertDialog modal;
    EXPECT_EQ(modal.DoModal(), IDOK);
    EXPECT_EQ(modal.barrels, 4);
    EXPECT_EQ(boxes.Count(), 1);
    EXPECT_EQ(boxes.LastText(), "Please enter an integer.");
}

TEST_F(DataExchangeTest, NumbersInControlsById) {
    BOOL translated = TRUE;
    struct Case {
        const char* text;
        BOOL isSigned;
        BOOL translated;
        UINT value;
    };
    const Case cases[] = {
        {" 42 ", TRUE, TRUE, 42},
        {"-17", TRUE, TRUE, UINT(-17)},
        {"-17", FALSE, FALSE, 0},
        {"4294967295", FALSE, TRUE, 4294967295u},
        {"4294967296", FALSE, FALSE, 0},
        {"2147483648", TRUE, FALSE, 0},
        {"-2147483648", TRUE, TRUE, 0x80000000u},
        {"12a", TRUE, FALSE, 0},
        {"", TRUE, FALSE, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        dialog.SetDlgItemText(kBarrels, c.text);
        EXPECT_EQ(dialog.GetDlgItemInt(kBarrels, &translated, c.isSigned), c.value);
        EXPECT_EQ(translated, c.translated);
    }
    dialog.SetDlgItemInt(kBarrels, UINT(-5));
    EXPECT_EQ(Text(kBarrels), "-5");
    dialog.SetDlgItemInt(kBarrels, UINT(-5), FALSE);
    EXPECT_EQ(Text(kBarrels), "4294967291");
    EXPECT_EQ(dialog.GetDlgItemInt(999, &translated), 0u);
    EXPECT_FALSE(translated);
}

} // namespace
