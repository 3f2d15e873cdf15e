// The message box as a dialog of the standard controls: its buttons, default button, keys,
// size and icon, answered through the modal responder.

#include "WindowTestSupport.h"

#include "platform/testing/ModalResponder.h"
#include "platform/window/MessageBox.h"
#include "platform/window/MessageBoxDialog.h"

#include <string>

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

namespace {

constexpr COLORREF kGlyphBlue = RGB(0, 0, 255);

class MessageBoxDialogTest : public WindowTest {
protected:
    // Shows a box whose answer is the keys pressed in it; answers its result.
    int AnswerWithKey(UINT type, UINT key) {
        responder.Next().Run([key](CDialog&, UiDriver& user) { user.PressKey(key); });
        return MessageBox(nullptr, "Continue?", "Culvert", type);
    }
    ModalResponder responder;
};

TEST_F(MessageBoxDialogTest, EachKindShowsItsButtonsAndEnterTakesTheDefault) {
    struct Case {
        UINT type;
        std::vector<std::string> buttons;
        int enter;
    };
    const Case cases[] = {
        {MB_OK, {"OK"}, IDOK},
        {MB_OKCANCEL | MB_DEFBUTTON2, {"OK", "Cancel"}, IDCANCEL},
        {MB_YESNO, {"Yes", "No"}, IDYES},
        {MB_YESNOCANCEL | MB_DEFBUTTON3, {"Yes", "No", "Cancel"}, IDCANCEL},
        {MB_RETRYCANCEL, {"Retry", "Cancel"}, IDRETRY},
        {MB_ABORTRETRYIGNORE | MB_DEFBUTTON2, {"Abort", "Retry", "Ignore"}, IDRETRY},
        {MB_YESNO | MB_DEFBUTTON3, {"Yes", "No"}, IDYES}, // no third button: the first
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.type);
        int focusAtOpen = 0;
        responder.Next().Run([&](CDialog&, UiDriver& user) {
            focusAtOpen = GetDlgCtrlID(GetFocus());
            user.PressKey(VK_RETURN);
        });
        EXPECT_EQ(MessageBox(nullptr, "Replace the culvert?", "Culvert", c.type), c.enter);
        EXPECT_EQ(focusAtOpen, c.enter);
        EXPECT_THAT(responder.Shown().back().buttons, ElementsAreArray(c.buttons));
        EXPECT_EQ(responder.Shown().back().title, "Culvert");
        EXPECT_EQ(responder.Shown().back().TextOf(kMessageBoxTextId), "Replace the culvert?");
        EXPECT_EQ(MessageBoxDefaultButton(c.type), c.enter);
    }
}

TEST_F(MessageBoxDialogTest, OnlyABoxThatCanBeCancelledIsClosedWithoutAnAnswer) {
    EXPECT_EQ(AnswerWithKey(MB_OK, VK_ESCAPE), IDOK);
    EXPECT_EQ(AnswerWithKey(MB_OKCANCEL, VK_ESCAPE), IDCANCEL);
    EXPECT_EQ(AnswerWithKey(MB_YESNOCANCEL, VK_ESCAPE), IDCANCEL);
    // Escape leaves Yes/No open; nobody else answers it, so it takes its default button.
    EXPECT_EQ(AnswerWithKey(MB_YESNO | MB_DEFBUTTON2, VK_ESCAPE), IDNO);
    responder.Next().Run([](CDialog& box, UiDriver&) { box.SendMessage(WM_CLOSE); });
    EXPECT_EQ(MessageBox(nullptr, "Stop?", "Culvert", MB_ABORTRETRYIGNORE | MB_DEFBUTTON3),
              IDIGNORE);
    responder.Next().Run([](CDialog& box, UiDriver&) { box.SendMessage(WM_CLOSE); });
    EXPECT_EQ(MessageBox(nullptr, "Stop?", "Culvert", MB_RETRYCANCEL), IDCANCEL);
}

TEST_F(MessageBoxDialogTest, ClickingAButtonAnswersWithItsId) {
    LoggingWnd owner(log, "owner");
    ASSERT_TRUE(owner.CreateTop());
    bool ownerDisabled = false;
    responder.Next()
        .Run([&](CDialog&, UiDriver&) { ownerDisabled = !owner.IsWindowEnabled(); })
        .Press("Retry");
    responder.Next().Press(IDNO);
    EXPECT_EQ(owner.MessageBox("Not saved.", "Plot", MB_ABORTRETRYIGNORE), IDRETRY);
    EXPECT_EQ(owner.MessageBox("Save?", "Plot", MB_YESNOCANCEL), IDNO);
    EXPECT_TRUE(ownerDisabled);
    EXPECT_TRUE(owner.IsWindowEnabled());
    for (const ShownDialog& shown : responder.Shown())
        EXPECT_TRUE(shown.problems.empty());
    owner.DestroyWindow();
}

TEST_F(MessageBoxDialogTest, TheBoxFitsItsTextAndDrawsItsIcon) {
    CSize shortBox, longBox, tallBox;
    bool blueGlyph = false;
    const auto measure = [&](CSize& size) {
        responder.Next().Run([&size, &blueGlyph](CDialog& box, UiDriver& user) {
            CRect client;
            box.GetClientRect(&client);
            size = client.Size();
            // The text never runs under the buttons or out of the box.
            CRect text, ok;
            box.GetDlgItem(kMessageBoxTextId)->GetWindowRect(&text);
            box.GetDlgItem(IDOK)->GetWindowRect(&ok);
            box.ScreenToClient(&text);
            box.ScreenToClient(&ok);
            EXPECT_LT(text.bottom, ok.top);
            EXPECT_LE(text.right, client.right);
            for (int x = 0; x < 60 && !blueGlyph; ++x)
                for (int y = 0; y < 60 && !blueGlyph; ++y)
                    blueGlyph = user.Pixel(box.m_hWnd, POINT{x, y}) == kGlyphBlue;
        });
    };
    measure(shortBox);
    MessageBox(nullptr, "Saved.", "Plot", MB_OK);
    EXPECT_FALSE(blueGlyph); // no icon asked for
    measure(longBox);
    const std::string longText(40, 'W');
    MessageBox(nullptr, (longText + " " + longText).c_str(), "Plot", MB_OK | MB_ICONINFORMATION);
    EXPECT_TRUE(blueGlyph);
    measure(tallBox);
    MessageBox(nullptr, "One\nTwo\nThree\nFour\nFive\nSix", "Plot", MB_OK);
    EXPECT_GT(longBox.cx, shortBox.cx);
    EXPECT_GT(tallBox.cy, shortBox.cy);
}

} // namespace
