// Dialogs from templates: dialog units, the keyboard interface, the modal loop and its answers.

#include "DialogProbes.h"
#include "WindowTestSupport.h"

#include "platform/testing/ModalResponder.h"
#include "platform/window/Dialog.h"
#include "platform/window/MessageBox.h"

#include <string>

namespace {

constexpr UINT kFormTemplate = 7001;
constexpr UINT kPlainTemplate = 7002;
constexpr UINT kLargeFontTemplate = 7003;
constexpr UINT kCustomTemplate = 7004;

constexpr int kName = 101;
constexpr int kDisabled = 102;
constexpr int kHidden = 103;
constexpr int kRadioA = 111;
constexpr int kRadioB = 112;
constexpr int kRadioC = 113;
constexpr int kLabel = 114;
constexpr int kCheck = 121;
constexpr int kNotes = 131;
constexpr int kGrid = 141;

constexpr char kCustomClass[] = "DialogTestCustomControl";
constexpr DWORD kShown = WS_VISIBLE;

DialogItemTemplate Item(const char* className, int id, DWORD style, RECT rect,
                        const char* text = "") {
    return {className, text, UINT(id), style | kShown, rect};
}

void RegisterTemplates() {
    RegisterDialogProbes();
    DialogTemplate form{"Culvert", {200, 100}, {}};
    form.items = {
        Item(kProbeEdit, kName, WS_TABSTOP | WS_GROUP, {7, 7, 57, 21}, "Box culvert"),
        Item(kProbeEdit, kDisabled, WS_TABSTOP | WS_DISABLED, {60, 7, 100, 21}),
        {kProbeEdit, "", UINT(kHidden), WS_TABSTOP, {100, 7, 140, 21}},
        Item(kProbeButton, kRadioA, BS_AUTORADIOBUTTON | WS_TABSTOP | WS_GROUP, {7, 30, 57, 40}),
        Item(kProbeButton, kRadioB, BS_AUTORADIOBUTTON, {7, 42, 57, 52}),
        Item(kProbeButton, kRadioC, BS_AUTORADIOBUTTON, {7, 54, 57, 64}),
        Item("", kLabel, WS_GROUP, {60, 30, 100, 40}, "Shape"),
        Item(kProbeButton, kCheck, BS_AUTOCHECKBOX | WS_TABSTOP | WS_GROUP, {60, 42, 120, 52}),
        Item(kProbeEdit, kNotes, ES_MULTILINE | ES_WANTRETURN | WS_TABSTOP, {60, 54, 120, 64}),
        Item(kProbeButton, IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP | WS_GROUP, {90, 80, 140, 94}, "OK"),
        Item(kProbeButton, IDCANCEL, BS_PUSHBUTTON | WS_TABSTOP, {145, 80, 195, 94}, "Cancel"),
    };
    RegisterDialogTemplate(kFormTemplate, form);

    RegisterDialogTemplate(
        kPlainTemplate,
        {"Plain", {100, 50}, {Item(kProbeEdit, kName, WS_TABSTOP, {4, 4, 60, 18})}});

    DialogTemplate large{"Large", {100, 50}, {Item(kProbeEdit, kName, WS_TABSTOP, {4, 4, 60, 18})}};
    large.fontFace = "MS Sans Serif";
    large.pointSize = 12;
    RegisterDialogTemplate(kLargeFontTemplate, large);

    WNDCLASS custom{};
    custom.lpfnWndProc = DefWindowProc;
    custom.lpszClassName = kCustomClass;
    RegisterClass(&custom);
    RegisterDialogTemplate(kCustomTemplate,
                           {"Values", {120, 80}, {Item(kCustomClass, kGrid, 0, {7, 7, 113, 60})}});
}

// A dialog that writes down the commands it receives instead of ending.
class CommandDialog : public CDialog {
public:
    explicit CommandDialog(UINT templateId, CWnd* parent = nullptr) : CDialog(templateId, parent) {}
    std::vector<int> commands;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM) override {
        if (HIWORD(wParam) == BN_CLICKED)
            commands.push_back(LOWORD(wParam));
        return TRUE;
    }
};

// A dialog that puts the focus on the check box itself.
class CheckFirstDialog : public CDialog {
public:
    using CDialog::CDialog;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        GotoDlgCtrl(GetDlgItem(kCheck));
        return FALSE;
    }
};

class DialogTest : public WindowTest {
protected:
    void SetUp() override { RegisterTemplates(); }

    static int FocusId() { return GetDlgCtrlID(GetFocus()); }

    UiDriver driver;
};

TEST_F(DialogTest, DialogUnitsFollowTheTemplateFont) {
    // The default dialog font has the base units of its Windows counterpart.
    EXPECT_EQ(GetDialogBaseUnits(), LONG(MAKELONG(6, 13)));

    CDialog form(kFormTemplate);
    ASSERT_TRUE(form.Create(kFormTemplate));
    CRect client;
    form.GetClientRect(&client);
    EXPECT_EQ(client.Size(), CSize(300, 163)); // 200 x 100 units, halves rounded up
    CRect name;
    form.GetDlgItem(kName)->GetWindowRect(&name);
    form.ScreenToClient(&name);
    EXPECT_EQ(name, CRect(11, 11, 86, 34));
    const LRESULT font = form.SendMessage(WM_GETFONT);
    EXPECT_NE(font, 0);
    EXPECT_EQ(form.SendDlgItemMessage(kName, WM_GETFONT), font);

    CDialog large(kLargeFontTemplate);
    ASSERT_TRUE(large.Create(kLargeFontTemplate));
    const SIZE units = DialogBaseUnitsOf(HFONT(large.SendMessage(WM_GETFONT)));
    EXPECT_GT(units.cx, 6);
    EXPECT_GT(units.cy, 13);
    RECT oneCharacter{0, 0, 4, 8};
    large.MapDialogRect(&oneCharacter);
    EXPECT_EQ(oneCharacter.right, units.cx);
    EXPECT_EQ(oneCharacter.bottom, units.cy);
}

TEST_F(DialogTest, TabAndShiftTabVisitTheTabStopsThatCanTakeTheFocus) {
    CommandDialog form(kFormTemplate);
    ASSERT_TRUE(form.Create(kFormTemplate));
    form.ShowWindow(SW_SHOW);
    EXPECT_EQ(FocusId(), kName); // the first tab stop, given by WM_INITDIALOG

    // Disabled and hidden fields are passed over, and so are the rest of the radio group.
    std::vector<int> forward;
    for (int i = 0; i < 6; ++i) {
        driver.PressKey(VK_TAB);
        forward.push_back(FocusId());
    }
    EXPECT_THAT(forward, ::testing::ElementsAre(kRadioA, kCheck, kNotes, IDOK, IDCANCEL, kName));

    driver.PressKey(VK_TAB, MK_SHIFT);
    EXPECT_EQ(FocusId(), IDCANCEL);
    driver.PressKey(VK_TAB, MK_SHIFT);
    EXPECT_EQ(FocusId(), IDOK);
    EXPECT_TRUE(form.commands.empty());
}

TEST_F(DialogTest, TabFromInsideAControlGoesOnFromThatControl) {
    constexpr int kInnerEdit = 1001; // as a drop-down combo box holds its edit
    CommandDialog form(kFormTemplate);
    ASSERT_TRUE(form.Create(kFormTemplate));
    form.ShowWindow(SW_SHOW);
    const HWND inner =
        CreateWindowEx(0, kProbeEdit, "", WS_CHILD | WS_VISIBLE, 0, 0, 20, 10,
                       form.GetDlgItem(kCheck)->GetSafeHwnd(),
                       reinterpret_cast<HMENU>(std::uintptr_t(kInnerEdit)), nullptr, nullptr);
    ::SetFocus(inner);
    driver.PressKey(VK_TAB);
    EXPECT_EQ(FocusId(), kNotes);
    ::SetFocus(inner);
    driver.PressKey(VK_TAB, MK_SHIFT);
    EXPECT_EQ(FocusId(), kRadioA);
}

TEST_F(DialogTest, ArrowKeysMoveWithinAGroupAndChooseRadioButtons) {
    CommandDialog form(kFormTemplate);
    ASSERT_TRUE(form.Create(kFormTemplate));
    form.ShowWindow(SW_SHOW);
    form.GotoDlgCtrl(form.GetDlgItem(kRadioA));

    driver.PressKey(VK_DOWN);
    EXPECT_EQ(FocusId(), kRadioB);
    EXPECT_EQ(form.IsDlgButtonChecked(kRadioB), BST_CHECKED);
    driver.PressKey(VK_DOWN);
    driver.PressKey(VK_DOWN); // the static after the group starts a group of its own
    EXPECT_EQ(FocusId(), kRadioA);
    driver.PressKey(VK_UP);
    EXPECT_EQ(FocusId(), kRadioC);
    EXPECT_EQ(form.IsDlgButtonChecked(kRadioC), BST_CHECKED);
    EXPECT_EQ(form.IsDlgButtonChecked(kRadioB), BST_UNCHECKED);

    // An edit keeps the arrows for its caret.
    form.GotoDlgCtrl(form.GetDlgItem(kName));
    driver.PressKey(VK_DOWN);
    EXPECT_EQ(FocusId(), kName);
}

TEST_F(DialogTest, EnterPressesTheDefaultButtonAndEscapeCancels) {
    CommandDialog form(kFormTemplate);
    ASSERT_TRUE(form.Create(kFormTemplate));
    form.ShowWindow(SW_SHOW);
    EXPECT_EQ(form.GetDefID(), MAKELONG(IDOK, DC_HASDEFID)); // from BS_DEFPUSHBUTTON

    driver.PressKey(VK_RETURN); // in the name field
    driver.PressKey(VK_ESCAPE);
    form.GotoDlgCtrl(form.GetDlgItem(IDCANCEL)); // a push button with the focus is pressed
    driver.PressKey(VK_RETURN);
    form.GotoDlgCtrl(form.GetDlgItem(kNotes)); // a multi-line edit keeps Enter
    driver.PressKey(VK_RETURN);
    EXPECT_THAT(form.commands, ::testing::ElementsAre(IDOK, IDCANCEL, IDCANCEL));

    // The default look follows the default id.
    form.commands.clear();
    form.SetDefID(IDCANCEL);
    form.GotoDlgCtrl(form.GetDlgItem(kName));
    driver.PressKey(VK_RETURN);
    EXPECT_THAT(form.commands, ::testing::ElementsAre(IDCANCEL));
    EXPECT_EQ(form.GetDlgItem(IDOK)->GetStyle() & BS_TYPEMASK, BS_PUSHBUTTON);
    EXPECT_EQ(form.GetDlgItem(IDCANCEL)->GetStyle() & BS_TYPEMASK, BS_DEFPUSHBUTTON);

    // Without a default button Enter means OK.
    CommandDialog plain(kPlainTemplate);
    ASSERT_TRUE(plain.Create(kPlainTemplate));
    plain.ShowWindow(SW_SHOW);
    driver.PressKey(VK_RETURN);
    EXPECT_THAT(plain.commands, ::testing::ElementsAre(IDOK));
}

TEST_F(DialogTest, ModalDialogIsAnsweredByTheUserAndCancelledWhenNobodyAnswers) {
    LoggingWnd owner(log, "owner");
    ASSERT_TRUE(owner.CreateTop());
    ModalResponder responder;
    bool ownerDisabled = false;
    responder.Next()
        .Run([&](CDialog&, UiDriver&) { ownerDisabled = !owner.IsWindowEnabled(); })
        .Type(kName, "Pipe arch")
        .Press(IDOK);
    responder.Next().Run([](CDialog&, UiDriver& user) { user.PressKey(VK_RETURN); });
    responder.Next().Run([](CDialog&, UiDriver& user) { user.PressKey(VK_ESCAPE); });
    responder.Next().Run([](CDialog& dialog, UiDriver&) { dialog.SendMessage(WM_CLOSE); });

    {
        CDialog dialog(kFormTemplate, &owner);
        EXPECT_EQ(dialog.DoModal(), IDOK);
    }
    EXPECT_TRUE(ownerDisabled);
    EXPECT_TRUE(owner.IsWindowEnabled());
    for (int expected : {IDOK, IDCANCEL, IDCANCEL, IDCANCEL}) {
        CDialog dialog(kFormTemplate, &owner);
        EXPECT_EQ(dialog.DoModal(), expected);
        EXPECT_FALSE(dialog.IsWindow());
    }
    EXPECT_EQ(responder.Unused(), 0);
    ASSERT_EQ(responder.Count(), 5);
    EXPECT_EQ(responder.Shown()[0].title, "Culvert");
    EXPECT_EQ(responder.Shown()[0].TextOf(kName), "Box culvert");
    EXPECT_THAT(responder.Shown()[0].buttons, ::testing::ElementsAre("OK", "Cancel"));
    EXPECT_TRUE(responder.Shown()[0].problems.empty());
    EXPECT_FALSE(responder.Shown()[4].answered); // nobody answered: cancelled
    owner.DestroyWindow();
}

TEST_F(DialogTest, TheFirstTabStopTakesTheFocusUnlessInitialisationKeepsIt) {
    ModalResponder responder;
    int focusAtOpen = 0;
    responder.Next().Run([&](CDialog&, UiDriver& user) {
        focusAtOpen = FocusId();
        user.Type("Arch"); // the field's text was selected, so typing replaces it
        user.PressKey(VK_RETURN);
    });
    CString typed;
    class Form : public CDialog {
    public:
        Form(CString& out) : CDialog(kFormTemplate), m_out(out) {}
        void DoDataExchange(CDataExchange* dx) override { DDX_Text(dx, kName, m_out); }
        CString& m_out;
    } form(typed);
    EXPECT_EQ(form.DoModal(), IDOK);
    EXPECT_EQ(focusAtOpen, kName);
    EXPECT_STREQ(typed.GetString(), "Arch");

    responder.Next().Run([&](CDialog&, UiDriver&) { focusAtOpen = FocusId(); });
    CheckFirstDialog keeps(kFormTemplate);
    keeps.DoModal();
    EXPECT_EQ(focusAtOpen, kCheck);
}

TEST_F(DialogTest, AMessageBoxFromADialogTakesTheNextAnswer) {
    ModalResponder responder;
    int boxAnswer = 0;
    responder.Next()
        .Run([&](CDialog& dialog, UiDriver&) {
            boxAnswer = dialog.MessageBox("Replace the culvert?", "Culvert", MB_YESNO);
        })
        .Press(IDCANCEL);
    responder.Next().Press(IDNO);
    CDialog dialog(kFormTemplate);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(boxAnswer, IDNO);
    ASSERT_EQ(responder.Count(), 2);
    EXPECT_EQ(responder.Shown()[1].title, "Culvert");
}

TEST_F(DialogTest, ATemplateCreatesControlsOfAnyRegisteredClass) {
    CDialog dialog(kCustomTemplate);
    ASSERT_TRUE(dialog.Create(kCustomTemplate));
    CWnd* grid = dialog.GetDlgItem(kGrid);
    ASSERT_NE(grid, nullptr);
    char name[64] = {};
    GetClassName(grid->GetSafeHwnd(), name, int(sizeof name));
    EXPECT_STREQ(name, kCustomClass);
    EXPECT_EQ(grid->SendMessage(WM_GETFONT), dialog.SendMessage(WM_GETFONT));

    // Data exchange binds the placeholder to a member object once.
    CWnd member;
    CDataExchange dx(&dialog, TRUE);
    DDX_Control(&dx, kGrid, member);
    DDX_Control(&dx, kGrid, member);
    EXPECT_EQ(member.GetSafeHwnd(), grid->GetSafeHwnd());
    EXPECT_EQ(CWnd::FromHandlePermanent(grid->GetSafeHwnd()), &member);
    dialog.DestroyWindow();
}

} // namespace
