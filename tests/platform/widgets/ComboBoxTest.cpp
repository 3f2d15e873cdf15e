#include "WidgetTestSupport.h"

#include "platform/system/SysColors.h"
#include "platform/testing/MenuResponder.h"
#include "platform/widgets/ComboBox.h"
#include "platform/widgets/Edit.h"
#include "platform/window/Menu.h"

using ::testing::ElementsAre;

namespace {
constexpr UINT kComboId = 300;
constexpr int kEditChildId = 1001;
const CRect kComboRect(10, 10, 160, 200); // the field and the open list together
const char* const kFruits[] = {"apple", "Banana", "cherry", "blueberry", "date"};

class ComboBoxTest : public WidgetTest {
protected:
    void Make(DWORD style) {
        ASSERT_TRUE(combo.Create(style | WS_VISIBLE | WS_VSCROLL, kComboRect, &parent, kComboId));
        for (const char* fruit : kFruits)
            combo.AddString(fruit);
        PumpMessages();
        recorder->Clear();
    }
    HWND List() const {
        // The open list is the top-level window under the field's lower edge.
        RECT r;
        combo.GetWindowRect(&r);
        return WindowFromPoint(CPoint(r.left + 5, r.bottom + 5));
    }
    CPoint ListRow(int row) const {
        const int height = combo.GetItemHeight(0);
        return CPoint(10, row * height + height / 2);
    }
    CPoint Arrow() const {
        CRect client;
        combo.GetClientRect(&client);
        return CPoint(client.right - 5, client.Height() / 2);
    }
    CComboBox combo;
};

TEST_F(ComboBoxTest, ItemsAreFoundByPrefixOrWholeTextWithoutRegardToCase) {
    Make(CBS_DROPDOWNLIST);
    EXPECT_EQ(combo.GetCount(), 5);
    EXPECT_EQ(combo.FindString(-1, "B"), 1);
    EXPECT_EQ(combo.FindString(1, "b"), 3); // after the start, then round again
    EXPECT_EQ(combo.FindString(3, "ba"), 1);
    EXPECT_EQ(combo.FindStringExact(-1, "BANANA"), 1);
    EXPECT_EQ(combo.FindStringExact(-1, "Ban"), CB_ERR);
    EXPECT_EQ(combo.SelectString(-1, "ch"), 2);
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(TextOf(combo), "cherry");
    EXPECT_EQ(combo.SelectString(-1, "zz"), CB_ERR);
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_TRUE(recorder->Records().empty()); // the program's changes are not announced

    combo.SetItemData(4, DWORD_PTR(&combo));
    EXPECT_EQ(combo.GetItemData(4), DWORD_PTR(&combo));
    EXPECT_EQ(combo.SetItemData(9, 1), CB_ERR);
    EXPECT_EQ(combo.InsertString(0, "fig"), 0);
    EXPECT_EQ(combo.GetCurSel(), 3); // the selection moves with its item
    EXPECT_EQ(combo.DeleteString(3), 5);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.SetCurSel(17), CB_ERR);
    CString text;
    combo.GetLBText(0, text);
    EXPECT_STREQ(text, "fig");
    EXPECT_EQ(combo.GetLBTextLen(8), CB_ERR);
}

TEST_F(ComboBoxTest, TheWindowKeepsTheFieldHeightAndTheListTakesTheRest) {
    Make(CBS_DROPDOWNLIST);
    CRect window;
    combo.GetWindowRect(&window);
    EXPECT_LT(window.Height(), kComboRect.Height());
    EXPECT_EQ(combo.SetItemHeight(-1, 20), CB_OKAY);
    combo.GetWindowRect(&window);
    EXPECT_EQ(window.Height(), 20 + 6);
    combo.SetDroppedWidth(300);
    EXPECT_EQ(combo.GetDroppedWidth(), 300);
    combo.ShowDropDown();
    CRect list;
    combo.GetDroppedControlRect(&list);
    EXPECT_EQ(list.Width(), 300);
    EXPECT_EQ(list.top, window.bottom);
    EXPECT_LE(list.bottom, window.top + kComboRect.Height());
}

TEST_F(ComboBoxTest, KeysAndTypedLettersChangeTheSelectionOfADropDownList) {
    Make(CBS_DROPDOWNLIST);
    combo.SetFocus();
    recorder->Clear();
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_DOWN);
    EXPECT_EQ(combo.GetCurSel(), 1);
    ui.Type("b");
    EXPECT_EQ(combo.GetCurSel(), 3); // the next item that begins with the letter
    ui.Type("b");
    EXPECT_EQ(combo.GetCurSel(), 1);
    ui.PressKey(VK_END);
    EXPECT_EQ(combo.GetCurSel(), 4);
    ui.PressKey(VK_DOWN); // the last stays the last
    EXPECT_EQ(CommandsFrom(kComboId), std::vector<UINT>(5, CBN_SELCHANGE));
}

TEST_F(ComboBoxTest, ThePopUpListFollowsTheMouseAndAClickPicks) {
    Make(CBS_DROPDOWNLIST);
    ui.Click(combo.m_hWnd, Arrow());
    EXPECT_TRUE(combo.GetDroppedState());
    const HWND list = List();
    ASSERT_NE(list, combo.m_hWnd);
    EXPECT_EQ(GetCapture(), list);
    EXPECT_FALSE(GetWindowLong(list, GWL_STYLE) & WS_CHILD);
    ui.MouseMove(list, ListRow(2));
    ui.Click(list, ListRow(2));
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_THAT(CommandsFrom(kComboId),
                ElementsAre(CBN_SETFOCUS, CBN_DROPDOWN, CBN_SELENDOK, CBN_CLOSEUP, CBN_SELCHANGE));
}

TEST_F(ComboBoxTest, AClickOutsideTheOpenListClosesItAsCancelled) {
    Make(CBS_DROPDOWNLIST);
    combo.SetCurSel(0);
    combo.SetFocus();
    combo.ShowDropDown();
    recorder->Clear();
    ui.Click(parent.m_hWnd, CPoint(350, 250));
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_THAT(CommandsFrom(kComboId), ElementsAre(CBN_SELENDCANCEL, CBN_CLOSEUP));
    EXPECT_FALSE(IsWindowVisible(List()) && List() != parent.m_hWnd);
}

TEST_F(ComboBoxTest, ArrowsWalkTheOpenListAndEnterOrEscapeCloseIt) {
    Make(CBS_DROPDOWNLIST);
    combo.SetFocus();
    ui.PressKey(VK_F4);
    EXPECT_TRUE(combo.GetDroppedState());
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_RETURN);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(combo.GetCurSel(), 1);
    ui.KeyDown(VK_MENU);
    ui.PressKey(VK_DOWN);
    ui.KeyUp(VK_MENU);
    EXPECT_TRUE(combo.GetDroppedState());
    ui.PressKey(VK_ESCAPE);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_THAT(CommandsFrom(kComboId),
                ElementsAre(CBN_SETFOCUS, CBN_DROPDOWN, CBN_SELCHANGE, CBN_SELCHANGE, CBN_SELENDOK,
                            CBN_CLOSEUP, CBN_DROPDOWN, CBN_SELENDCANCEL, CBN_CLOSEUP));
}

TEST_F(ComboBoxTest, AltArrowsAndF4OpenAndCloseTheListFromTheEditFieldTakingTheChoice) {
    Make(CBS_DROPDOWN);
    combo.SetFocus();
    const auto altKey = [this](UINT key) {
        ui.KeyDown(VK_MENU);
        ui.PressKey(key);
        ui.KeyUp(VK_MENU);
    };
    altKey(VK_DOWN);
    EXPECT_TRUE(combo.GetDroppedState());
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_DOWN);
    altKey(VK_UP);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(TextOf(combo), "Banana");
    ui.PressKey(VK_F4);
    EXPECT_TRUE(combo.GetDroppedState());
    ui.PressKey(VK_F4);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(GetFocus(), combo.GetDlgItem(kEditChildId)->m_hWnd);
    EXPECT_THAT(CommandsFrom(kComboId),
                ElementsAre(CBN_SETFOCUS, CBN_DROPDOWN, CBN_SELCHANGE, CBN_SELCHANGE, CBN_SELENDOK,
                            CBN_CLOSEUP, CBN_DROPDOWN, CBN_SELENDOK, CBN_CLOSEUP));
}

TEST_F(ComboBoxTest, ACharacterSentToADropDownIsTypedInItsField) {
    Make(CBS_DROPDOWN);
    combo.SetFocus();
    combo.SendMessage(WM_CHAR, 'd');
    combo.SendMessage(WM_CHAR, 'a');
    EXPECT_EQ(TextOf(combo), "da");
    EXPECT_EQ(combo.GetCurSel(), CB_ERR); // typing is not choosing
}

TEST_F(ComboBoxTest, AltAloneStillOpensTheFramesMenuBarButNotAfterAltDown) {
    CMenu bar;
    ASSERT_TRUE(bar.CreateMenu());
    CMenu file;
    ASSERT_TRUE(file.CreatePopupMenu());
    file.AppendMenu(MF_STRING, 1, "&Open");
    bar.AppendMenu(MF_POPUP, UINT_PTR(file.Detach()), "&File");
    ASSERT_TRUE(SetMenu(parent.m_hWnd, bar.Detach()));
    Make(CBS_DROPDOWNLIST);
    combo.SetFocus();
    MenuResponder menus;
    ui.KeyDown(VK_MENU);
    ui.PressKey(VK_DOWN);
    ui.KeyUp(VK_MENU);
    EXPECT_TRUE(combo.GetDroppedState());
    EXPECT_EQ(menus.Count(), 0);
    ui.PressKey(VK_ESCAPE);
    ui.PressKey(VK_MENU);
    EXPECT_EQ(menus.Count(), 1);
    EXPECT_TRUE(menus.Last().menuBar);
}

TEST_F(ComboBoxTest, ADropDownTypesInItsEditChildAndTheListClosesWhenFocusLeaves) {
    Make(CBS_DROPDOWN | CBS_AUTOHSCROLL);
    CWnd* edit = combo.GetDlgItem(kEditChildId);
    ASSERT_NE(edit, nullptr);
    CEdit subclassed; // as the grid's combo cell does with its edit field
    ASSERT_TRUE(subclassed.SubclassWindow(edit->m_hWnd));
    combo.SetFocus();
    EXPECT_EQ(GetFocus(), subclassed.m_hWnd);
    ui.Type("bl");
    EXPECT_EQ(TextOf(combo), "bl");
    ui.PressKey(VK_DOWN, 0); // an arrow in the field walks the list
    EXPECT_EQ(TextOf(combo), "apple");
    combo.ShowDropDown();
    parent.SetFocus();
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_THAT(CommandsFrom(kComboId),
                ElementsAre(CBN_SETFOCUS, CBN_EDITUPDATE, CBN_EDITCHANGE, CBN_EDITUPDATE,
                            CBN_EDITCHANGE, CBN_SELCHANGE, CBN_DROPDOWN, CBN_SELENDCANCEL,
                            CBN_CLOSEUP, CBN_KILLFOCUS));
    combo.LimitText(3);
    combo.SetEditSel(1, 3);
    EXPECT_EQ(combo.GetEditSel(), DWORD(MAKELONG(1, 3)));
    subclassed.UnsubclassWindow();
}

TEST_F(ComboBoxTest, AParentThatDestroysTheComboWhileItClosesIsSafe) {
    class Closer : public CWnd {
    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
            if (HIWORD(wParam) == CBN_CLOSEUP)
                ::DestroyWindow(reinterpret_cast<HWND>(lParam));
            return TRUE;
        }
    } closer;
    ASSERT_TRUE(closer.CreateEx(0, nullptr, "closer", WS_OVERLAPPED | WS_VISIBLE, 0, 0, 300, 300,
                                nullptr, nullptr));
    const HWND hwnd = CreateWindowEx(0, "ComboBox", "", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, 0,
                                     0, 100, 100, closer.m_hWnd, HMENU(1), nullptr, nullptr);
    SendMessage(hwnd, CB_ADDSTRING, 0, LPARAM("one"));
    SendMessage(hwnd, CB_SHOWDROPDOWN, TRUE, 0);
    SetFocus(hwnd);
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_RETURN);
    EXPECT_FALSE(IsWindow(hwnd));
    EXPECT_EQ(GetCapture(), nullptr);
}
} // namespace

namespace {
// A combo as the grid's in-place list derives it: it hears the keys that end an edit, even
// while its edit field has the focus.
class KeyHearingCombo : public CComboBox {
public:
    std::vector<UINT> keys;

protected:
    void OnKeyDown(UINT key, UINT repeat, UINT flags) override {
        keys.push_back(key);
        CComboBox::OnKeyDown(key, repeat, flags);
    }
};

TEST_F(ComboBoxTest, KeysThatWorkTheListReachADerivedComboFromItsEditField) {
    KeyHearingCombo hearing;
    ASSERT_TRUE(hearing.Create(CBS_DROPDOWN | WS_VISIBLE, kComboRect, &parent, kComboId));
    hearing.AddString("one");
    hearing.AddString("two");
    hearing.ShowDropDown();
    hearing.SetFocus();
    ui.Type("t");
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_TAB);
    ui.PressKey(VK_RETURN);
    ui.PressKey(VK_ESCAPE);
    EXPECT_THAT(hearing.keys, ElementsAre(VK_DOWN, VK_TAB, VK_RETURN, VK_ESCAPE));
    // Typing showed "two" in the list; Down stays on it, the last, and chooses it.
    EXPECT_EQ(TextOf(hearing), "two");
    EXPECT_FALSE(hearing.GetDroppedState());
}

TEST_F(ComboBoxTest, ALongListScrollsAndHighlightsTheItemUnderTheMouse) {
    Make(CBS_DROPDOWNLIST);
    for (int i = 0; i < 30; ++i)
        combo.AddString(("item " + std::to_string(i)).c_str());
    combo.ShowDropDown();
    const HWND list = List();
    EXPECT_EQ(combo.GetTopIndex(), 0);
    ui.Wheel(list, ListRow(1), -WHEEL_DELTA);
    EXPECT_EQ(combo.GetTopIndex(), 3);
    EXPECT_TRUE(GetWindowLong(list, GWL_STYLE) & WS_VSCROLL);
    ui.MouseMove(list, ListRow(2));
    EXPECT_EQ(ui.Pixel(list, ListRow(2) + CPoint(60, 0)), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_NE(ui.Pixel(list, ListRow(1) + CPoint(60, 0)), GetSysColor(COLOR_HIGHLIGHT));
    ui.Click(list, ListRow(2));
    EXPECT_EQ(combo.GetCurSel(), 5); // the third row shown, three rows down the list
    combo.ShowDropDown();            // it opens again on the chosen item
    EXPECT_LE(combo.GetTopIndex(), 5);
}
} // namespace
