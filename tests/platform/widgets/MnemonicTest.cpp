// Keyboard mnemonics in dialogs of the standard controls: the underlined letter of a label, and
// Alt+letter (or the bare letter where the focus control takes no text) activating its control.

#include "WidgetTestSupport.h"

#include "platform/testing/ModalResponder.h"
#include "platform/window/Dialog.h"
#include "platform/window/MessageBox.h"

#include <algorithm>
#include <climits>

using ::testing::ElementsAre;

namespace {

constexpr int kSpanLabel = 301;
constexpr int kSpan = 302;
constexpr int kWingWalls = 303;
constexpr int kBox = 304;
constexpr int kPipe = 305;
constexpr int kApply = 306;
constexpr int kLiteral = 307;
constexpr int kDisabled = 308;
constexpr int kReport = 309;
constexpr int kReset = 310;

DialogItemTemplate Item(const char* className, int id, DWORD style, RECT rect, const char* text) {
    return {className, text, UINT(id), style | WS_VISIBLE, rect};
}

DialogTemplate CulvertForm() {
    DialogTemplate form{"Culvert", {220, 120}, {}};
    form.style |= WS_VISIBLE;
    form.items = {
        Item("Static", kSpanLabel, SS_LEFT, {7, 9, 40, 17}, "&Span:"),
        Item("Edit", kSpan, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, {42, 7, 100, 19}, ""),
        Item("Button", kWingWalls, BS_AUTOCHECKBOX | WS_TABSTOP, {7, 24, 100, 34}, "&Wing walls"),
        Item("Button", kBox, BS_AUTORADIOBUTTON | WS_TABSTOP | WS_GROUP, {7, 38, 60, 48}, "&Box"),
        Item("Button", kPipe, BS_AUTORADIOBUTTON, {7, 50, 60, 60}, "&Pipe"),
        Item("Static", kLiteral, SS_LEFT | WS_GROUP, {110, 9, 200, 17}, "R&&D"),
        Item("Button", kDisabled, BS_PUSHBUTTON | WS_TABSTOP | WS_DISABLED, {110, 24, 160, 38},
             "&Delete"),
        Item("Button", kApply, BS_PUSHBUTTON | WS_TABSTOP, {110, 42, 160, 56}, "&Apply"),
        Item("Button", kReport, BS_PUSHBUTTON | WS_TABSTOP, {7, 90, 57, 104}, "&Report"),
        Item("Button", kReset, BS_PUSHBUTTON | WS_TABSTOP, {60, 90, 110, 104}, "&Reset"),
    };
    return form;
}

class MnemonicTest : public WidgetTest {
protected:
    void SetUp() override {
        WidgetTest::SetUp();
        ASSERT_TRUE(form.CreateIndirect(CulvertForm(), &parent));
        commands = std::make_unique<NotificationRecorder>(form.m_hWnd);
        ui.Pump();
    }
    void TearDown() override {
        commands.reset();
        form.DestroyWindow();
        WidgetTest::TearDown();
    }

    void AltPress(UINT key) {
        ui.KeyDown(VK_MENU);
        ui.PressKey(key);
        ui.KeyUp(VK_MENU);
    }
    std::vector<int> Clicked() const {
        std::vector<int> ids;
        for (const RecordedMessage& r : commands->Records())
            if (r.message == WM_COMMAND && r.code == BN_CLICKED)
                ids.push_back(int(r.id));
        return ids;
    }
    int Check(int id) const { return int(form.SendDlgItemMessage(id, BM_GETCHECK, 0, 0)); }
    static int FocusId() { return GetDlgCtrlID(GetFocus()); }

    CDialog form{0};
    std::unique_ptr<NotificationRecorder> commands;
};

TEST_F(MnemonicTest, AltLetterActivatesTheControlItsLabelNames) {
    AltPress('A'); // a push button is pressed
    EXPECT_THAT(Clicked(), ElementsAre(kApply));

    AltPress('W'); // a check box takes the focus and toggles
    EXPECT_EQ(Check(kWingWalls), int(BST_CHECKED));
    EXPECT_EQ(FocusId(), kWingWalls);
    AltPress('W');
    EXPECT_EQ(Check(kWingWalls), int(BST_UNCHECKED));

    form.CheckRadioButton(kBox, kPipe, kBox);
    AltPress('P'); // a radio button is chosen and its group follows
    EXPECT_EQ(Check(kPipe), int(BST_CHECKED));
    EXPECT_EQ(Check(kBox), int(BST_UNCHECKED));
    EXPECT_EQ(FocusId(), kPipe);

    AltPress('S'); // a static label hands the focus to the field after it
    EXPECT_EQ(FocusId(), kSpan);
    ui.Type("3.5");
    EXPECT_EQ(TextOf(*form.GetDlgItem(kSpan)), "3.5");
}

TEST_F(MnemonicTest, ABareLetterIsAMnemonicOnlyWhereTheFocusTakesNoText) {
    form.GotoDlgCtrl(form.GetDlgItem(kSpan));
    ui.Type("wa");
    EXPECT_EQ(TextOf(*form.GetDlgItem(kSpan)), "wa");
    EXPECT_EQ(Check(kWingWalls), int(BST_UNCHECKED));
    EXPECT_TRUE(Clicked().empty());

    form.GotoDlgCtrl(form.GetDlgItem(kWingWalls));
    ui.Type("a");
    EXPECT_THAT(Clicked(), ElementsAre(kApply));
    ui.Type("s");
    EXPECT_EQ(FocusId(), kSpan);
}

TEST_F(MnemonicTest, LiteralAmpersandsDisabledControlsAndSharedLettersActivateNothing) {
    form.GotoDlgCtrl(form.GetDlgItem(kWingWalls));
    AltPress('D'); // "R&&D" shows an ampersand; "&Delete" is disabled
    EXPECT_EQ(FocusId(), kWingWalls);
    EXPECT_TRUE(Clicked().empty());

    // Two buttons share R: each press moves the focus to the next, pressing neither.
    AltPress('R');
    EXPECT_EQ(FocusId(), kReport);
    AltPress('R');
    EXPECT_EQ(FocusId(), kReset);
    AltPress('R');
    EXPECT_EQ(FocusId(), kReport);
    EXPECT_TRUE(Clicked().empty());
}

TEST_F(MnemonicTest, TheMnemonicLetterIsUnderlinedInPlaceOfItsMark) {
    // The centred caption: where its ink begins, and how much ink there is.
    CWnd* apply = form.GetDlgItem(kApply);
    struct Ink {
        int left = INT_MAX;
        int amount = 0;
    };
    const auto inkOf = [&](const char* text) {
        apply->SetWindowText(text);
        CRect client;
        apply->GetClientRect(&client);
        Ink ink;
        for (int y = 3; y < client.bottom - 3; ++y)
            for (int x = 3; x < client.right - 3; ++x)
                if (GetGValue(ui.Pixel(apply->m_hWnd, POINT{x, y})) < 96) { // text, not face
                    ink.left = std::min(ink.left, x);
                    ++ink.amount;
                }
        return ink;
    };
    const Ink plain = inkOf("Apply");
    const Ink marked = inkOf("&Apply");
    const Ink literal = inkOf("&&Apply");
    EXPECT_EQ(marked.left, plain.left); // the mark takes no room
    EXPECT_GT(marked.amount, plain.amount);
    EXPECT_LT(literal.left, plain.left); // "&&" shows an ampersand
}

TEST_F(MnemonicTest, AComboReachedByItsLabelKeepsEnterAndEscapeWhileItsListIsOpen) {
    constexpr int kMethodLabel = 320;
    constexpr int kMethod = 321;
    DialogTemplate withCombo = CulvertForm();
    withCombo.items.push_back(
        Item("Static", kMethodLabel, SS_LEFT | WS_GROUP, {110, 62, 150, 70}, "&Method:"));
    withCombo.items.push_back(Item("ComboBox", kMethod, CBS_DROPDOWNLIST | WS_TABSTOP | WS_VSCROLL,
                                   {150, 60, 215, 110}, ""));
    CDialog dialog{0};
    ASSERT_TRUE(dialog.CreateIndirect(withCombo, &parent));
    NotificationRecorder heard(dialog.m_hWnd);
    for (const char* method : {"Standard step", "Direct step", "Manning"})
        dialog.SendDlgItemMessage(kMethod, CB_ADDSTRING, 0, LPARAM(method));
    const auto dropped = [&] { return dialog.SendDlgItemMessage(kMethod, CB_GETDROPPEDSTATE); };

    AltPress('M');
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), kMethod);
    AltPress(VK_DOWN);
    EXPECT_TRUE(dropped());
    ui.Type("m");
    ui.PressKey(VK_RETURN); // closes the list with its choice, and the dialog stays
    EXPECT_FALSE(dropped());
    EXPECT_EQ(dialog.SendDlgItemMessage(kMethod, CB_GETCURSEL), 2);
    ui.PressKey(VK_F4);
    ui.PressKey(VK_ESCAPE);
    EXPECT_FALSE(dropped());
    EXPECT_TRUE(dialog.IsWindow());
    for (const RecordedMessage& r : heard.Records())
        EXPECT_FALSE(r.message == WM_COMMAND && (r.id == IDOK || r.id == IDCANCEL));
    dialog.DestroyWindow();
}

TEST_F(MnemonicTest, AMessageBoxAnswersItsButtonsLetters) {
    ModalResponder responder;
    responder.Next().Run([this](CDialog&, UiDriver& user) {
        user.KeyDown(VK_MENU);
        user.PressKey('N');
        user.KeyUp(VK_MENU);
    });
    responder.Next().Run([](CDialog&, UiDriver& user) { user.Type("r"); });
    EXPECT_EQ(parent.MessageBox("Save the culvert?", "Culvert", MB_YESNOCANCEL), IDNO);
    EXPECT_EQ(parent.MessageBox("The file is locked.", "Culvert", MB_ABORTRETRYIGNORE), IDRETRY);
    EXPECT_THAT(responder.Shown().back().buttons, ElementsAre("Abort", "Retry", "Ignore"));
}

} // namespace
