#include "WidgetTestSupport.h"

#include "platform/widgets/Button.h"

using ::testing::ElementsAre;

namespace {
constexpr UINT kButtonId = 200;
const CRect kButtonRect(10, 10, 110, 34);
const CPoint kInside(50, 12);
const CPoint kOutside(150, 12); // in the button's client coordinates, right of it

class ButtonTest : public WidgetTest {
protected:
    void Make(CButton& button, DWORD style, UINT id = kButtonId, const CRect& rect = kButtonRect) {
        ASSERT_TRUE(button.Create("Button", style | WS_VISIBLE, rect, &parent, id));
    }
    CButton button;
};

TEST_F(ButtonTest, ACheckBoxTogglesOnlyWhenReleasedInside) {
    Make(button, BS_AUTOCHECKBOX);
    ui.MouseDown(button.m_hWnd, kInside);
    EXPECT_EQ(button.GetState() & BST_PUSHED, BST_PUSHED);
    ui.MouseMove(button.m_hWnd, kOutside, MK_LBUTTON);
    EXPECT_EQ(button.GetState() & BST_PUSHED, 0u); // the pressed look follows the mouse
    ui.MouseUp(button.m_hWnd, kOutside);
    EXPECT_EQ(button.GetCheck(), int(BST_UNCHECKED));
    EXPECT_TRUE(CommandsFrom(kButtonId).empty());

    ui.Click(button.m_hWnd, kInside);
    EXPECT_EQ(button.GetCheck(), int(BST_CHECKED));
    ui.Click(button.m_hWnd, kInside);
    EXPECT_EQ(button.GetCheck(), int(BST_UNCHECKED));
    EXPECT_THAT(CommandsFrom(kButtonId), ElementsAre(BN_CLICKED, BN_CLICKED));
    EXPECT_EQ(GetFocus(), button.m_hWnd);
}

TEST_F(ButtonTest, PlainAndThreeStateBoxesFollowTheirKind) {
    CButton manual, three;
    Make(manual, BS_CHECKBOX, kButtonId);
    Make(three, BS_AUTO3STATE, kButtonId + 1, CRect(10, 40, 110, 64));
    ui.Click(manual.m_hWnd, kInside);
    EXPECT_EQ(manual.GetCheck(), int(BST_UNCHECKED)); // the application checks a plain box
    EXPECT_THAT(CommandsFrom(kButtonId), ElementsAre(BN_CLICKED));
    manual.SetCheck(BST_INDETERMINATE); // no third state here: it reads as checked
    EXPECT_EQ(manual.GetCheck(), int(BST_CHECKED));

    std::vector<int> states;
    for (int i = 0; i < 3; ++i) {
        ui.Click(three.m_hWnd, kInside);
        states.push_back(three.GetCheck());
    }
    EXPECT_THAT(states, ElementsAre(BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED));
}

TEST_F(ButtonTest, AnAutoRadioUnchecksTheOthersOfItsGroupOnly) {
    CButton a, b, c, d;
    Make(a, BS_AUTORADIOBUTTON | WS_GROUP, 1, CRect(10, 10, 110, 30));
    Make(b, BS_AUTORADIOBUTTON, 2, CRect(10, 30, 110, 50));
    Make(c, BS_AUTORADIOBUTTON, 3, CRect(10, 50, 110, 70));
    Make(d, BS_AUTORADIOBUTTON | WS_GROUP, 4, CRect(10, 70, 110, 90));
    d.SetCheck(BST_CHECKED);
    ui.Click(a.m_hWnd, CPoint(5, 10));
    ui.Click(c.m_hWnd, CPoint(5, 10));
    EXPECT_EQ(a.GetCheck(), int(BST_UNCHECKED));
    EXPECT_EQ(b.GetCheck(), int(BST_UNCHECKED));
    EXPECT_EQ(c.GetCheck(), int(BST_CHECKED));
    EXPECT_EQ(d.GetCheck(), int(BST_CHECKED)); // another group
    EXPECT_EQ(a.SendMessage(WM_GETDLGCODE), LRESULT(DLGC_BUTTON | DLGC_RADIOBUTTON));
}

TEST_F(ButtonTest, AGroupBoxLetsTheControlsItFramesTakeTheMouse) {
    CButton group, box;
    Make(group, BS_GROUPBOX, 1, CRect(5, 5, 200, 100));
    Make(box, BS_AUTOCHECKBOX, kButtonId, CRect(20, 30, 150, 50));
    CPoint inBox(40, 40);
    parent.ClientToScreen(&inBox);
    EXPECT_EQ(WindowFromPoint(inBox), box.m_hWnd);
    ui.Click(box.m_hWnd, CPoint(5, 10));
    EXPECT_EQ(box.GetCheck(), int(BST_CHECKED));
}

TEST_F(ButtonTest, SpacePressesOnDownAndClicksOnUpAndEnterClicksAPushButton) {
    Make(button, BS_DEFPUSHBUTTON);
    button.SetFocus();
    ui.KeyDown(VK_SPACE);
    EXPECT_EQ(button.GetState(), BST_PUSHED | BST_FOCUS);
    EXPECT_TRUE(CommandsFrom(kButtonId).empty());
    ui.KeyUp(VK_SPACE);
    EXPECT_EQ(button.GetState(), BST_FOCUS);
    ui.PressKey(VK_RETURN);
    EXPECT_THAT(CommandsFrom(kButtonId), ElementsAre(BN_CLICKED, BN_CLICKED));
    EXPECT_EQ(button.SendMessage(WM_GETDLGCODE), LRESULT(DLGC_BUTTON | DLGC_DEFPUSHBUTTON));

    ui.KeyDown(VK_SPACE); // losing the focus while Space is down is no click
    parent.SetFocus();
    ui.KeyUp(VK_SPACE);
    EXPECT_EQ(CommandsFrom(kButtonId).size(), 2u);
    EXPECT_EQ(button.GetState(), 0u);
}

// A transient button as the grid's check cells make it: shown pressed by the program, handed
// the press, and told of its click by reflection with its check already changed.
class ReflectingButton : public CButton {
public:
    std::vector<int> checksSeen;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM, LRESULT*) override {
        if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED)
            checksSeen.push_back(GetCheck());
        return FALSE;
    }
};

TEST_F(ButtonTest, AProgramPressThenAUserReleaseClicksAndReflects) {
    ReflectingButton cell;
    ASSERT_TRUE(cell.Create(nullptr, BS_AUTOCHECKBOX, CRect(10, 10, 24, 24), &parent, kButtonId));
    cell.SetState(TRUE);
    cell.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    cell.ShowWindow(SW_SHOW);
    ui.MouseUp(cell.m_hWnd, CPoint(5, 5));
    EXPECT_THAT(cell.checksSeen, ElementsAre(BST_CHECKED));
    EXPECT_THAT(CommandsFrom(kButtonId), ElementsAre(BN_CLICKED));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ButtonTest, ClickMessagesAndDisabledButtons) {
    Make(button, BS_AUTOCHECKBOX);
    button.Click();
    EXPECT_EQ(button.GetCheck(), int(BST_CHECKED));
    button.EnableWindow(FALSE);
    ui.Click(button.m_hWnd, kInside);
    EXPECT_EQ(button.GetCheck(), int(BST_CHECKED));
    EXPECT_THAT(CommandsFrom(kButtonId), ElementsAre(BN_CLICKED));
}
} // namespace
