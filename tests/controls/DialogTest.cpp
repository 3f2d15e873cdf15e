#include "controls/DialogORVA.h"

#include "platform/base/Messages.h"
#include "platform/testing/MessageBoxResponder.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"
#include "support/HelpDocument.h"
#include "support/ProcessLaunch.h"

#include "../platform/system/EnvironmentVariable.h"
#include "../platform/system/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;

namespace {

constexpr UINT kCulvertDialog = 150; // has the topic "Culvert Crossing Data"
constexpr UINT kPlainDialog = 152;   // has no topic of its own

void RegisterTemplates() {
    for (UINT id : {kCulvertDialog, kPlainDialog})
        RegisterDialogTemplate(id, {"Data",
                                    {120, 80},
                                    {{"Button", "OK", IDOK, WS_VISIBLE, {4, 60, 54, 74}},
                                     {"Button", "Help", IDHELP, WS_VISIBLE, {60, 60, 110, 74}}}});
}

class CountingDialog : public CDialogORVA {
public:
    using CDialogORVA::CDialogORVA;
    BOOL OnInitDialog() override {
        ++initCount;
        okExisted = GetDlgItem(IDOK) != nullptr;
        return CDialogORVA::OnInitDialog();
    }
    int initCount = 0;
    bool okExisted = false;
};

// Restores the previous dialog responder when the test ends.
class ScopedResponder {
public:
    explicit ScopedResponder(DialogResponder r) : m_previous(SetDialogResponder(std::move(r))) {}
    ~ScopedResponder() { SetDialogResponder(std::move(m_previous)); }

private:
    DialogResponder m_previous;
};

} // namespace

TEST(Dialog, CreatesChildrenBeforeInitAndMapsDialogUnits) {
    RegisterTemplates();
    CountingDialog dialog(kCulvertDialog, nullptr);
    ASSERT_TRUE(dialog.Create(kCulvertDialog));
    EXPECT_EQ(dialog.initCount, 1);
    EXPECT_TRUE(dialog.okExisted);
    RECT r{4, 8, 8, 16};
    dialog.MapDialogRect(&r);
    EXPECT_EQ(r.left, 6);
    EXPECT_EQ(r.top, 13);
    EXPECT_EQ(r.right, 12);
    EXPECT_EQ(r.bottom, 26);
    dialog.DestroyWindow();
    CDialog missing(999);
    EXPECT_FALSE(missing.Create(999));
    EXPECT_EQ(missing.DoModal(), -1);
}

TEST(Dialog, ModalEndsByTheResponderOrIsCancelled) {
    RegisterTemplates();
    {
        CountingDialog dialog(kPlainDialog, nullptr);
        EXPECT_EQ(dialog.DoModal(), IDCANCEL); // nobody to end it
        EXPECT_EQ(dialog.initCount, 1);
    }
    CWnd owner;
    ASSERT_TRUE(owner.CreateEx(0, nullptr, "Owner", WS_POPUP, 0, 0, 200, 100, nullptr, nullptr));
    int shown = 0;
    ScopedResponder responder([&](CDialog& d) {
        ++shown;
        EXPECT_TRUE(::IsWindowVisible(d.GetSafeHwnd()));
        EXPECT_FALSE(owner.IsWindowEnabled()); // the owner waits for the dialog
        d.SendMessage(WM_COMMAND, IDOK);
    });
    CountingDialog dialog(kPlainDialog, &owner);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(shown, 1);
    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_TRUE(owner.IsWindowEnabled());
    owner.DestroyWindow();
}

// An application folder with its help document, and a desktop whose PDF reader writes its
// arguments into the pipe "reader.out".
class DialogHelp : public ::testing::Test {
protected:
    DialogHelp()
        : m_dataHome("XDG_DATA_HOME", (m_scratch / "data").c_str()),
          m_dataDirs("XDG_DATA_DIRS", (m_scratch / "system-data").c_str()),
          m_configHome("XDG_CONFIG_HOME", (m_scratch / "config").c_str()),
          m_configDirs("XDG_CONFIG_DIRS", (m_scratch / "system-config").c_str()),
          m_output("READER_OUT", (m_scratch / "reader.out").c_str()) {
        RegisterTemplates();
        m_scratch.Write("data/mime/globs2", "50:application/pdf:*.pdf\n");
        const std::string reader =
            m_scratch.Write("bin/reader", "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"$READER_OUT\"\n");
        fs::permissions(reader, fs::perms::owner_all);
        m_scratch.Write("data/applications/reader.desktop",
                        "[Desktop Entry]\nName=Reader\nExec=" + reader + " %f\n");
        m_scratch.Write("config/mimeapps.list",
                        "[Default Applications]\napplication/pdf=reader.desktop\n");
        m_document = m_scratch.Write("app/rd4.pdf", "%PDF-1.4\n");
        m_scratch.MakePipe("reader.out");
        xgSetApplicationPath((m_scratch / "app/").c_str());
    }
    ~DialogHelp() override { xgSetApplicationPath(""); }

    // Presses the Help button of a dialog made from `id`; answers the command's handled flag.
    LRESULT PressHelp(UINT id) {
        CDialogORVA dialog(id, nullptr);
        EXPECT_TRUE(dialog.Create(id));
        const LRESULT handled = dialog.SendMessage(WM_COMMAND, IDHELP);
        dialog.DestroyWindow();
        return handled;
    }

    ScratchFolder m_scratch;
    EnvironmentVariable m_dataHome, m_dataDirs, m_configHome, m_configDirs, m_output;
    std::string m_document;
    MessageBoxResponder m_boxes;
};

TEST_F(DialogHelp, HelpButtonOpensTheTopicOfTheDialog) {
    EXPECT_NE(PressHelp(kCulvertDialog), 0);
    EXPECT_EQ(m_scratch.ReadPipe("reader.out"),
              "/A\nnameddest=Culvert Crossing Data\n" + m_document + "\n");
    EXPECT_EQ(m_boxes.Count(), 0);
}

TEST_F(DialogHelp, ClickOnTheHelpButtonOpensTheTopic) {
    CDialogORVA dialog(kCulvertDialog, nullptr);
    ASSERT_TRUE(dialog.Create(kCulvertDialog));
    dialog.ShowWindow(SW_SHOW);
    CWnd* help = dialog.GetDlgItem(IDHELP);
    ASSERT_NE(help, nullptr);
    // The dialog holds its Help button as a button object of its own.
    CWnd* object = CWnd::FromHandlePermanent(help->GetSafeHwnd());
    ASSERT_NE(object, nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CButton)));
    UiDriver ui;
    ui.Click(help->GetSafeHwnd(), POINT{4, 4});
    EXPECT_EQ(m_scratch.ReadPipe("reader.out"),
              "/A\nnameddest=Culvert Crossing Data\n" + m_document + "\n");
    dialog.DestroyWindow();
}

TEST_F(DialogHelp, DialogWithoutTopicOpensTheIntroduction) {
    EXPECT_NE(PressHelp(kPlainDialog), 0);
    EXPECT_EQ(m_scratch.ReadPipe("reader.out"),
              "/A\nnameddest=1. Introduction\n" + m_document + "\n");
}

TEST_F(DialogHelp, MissingDocumentLeavesTheCommandUnhandled) {
    fs::remove(m_document);
    EXPECT_EQ(PressHelp(kCulvertDialog), 0);
    EXPECT_EQ(m_boxes.LastText(), "The RD-4 Help PDF File Document was not found.");
}

TEST(RadioGroup, ShowsAndReadsTheCheckedButtonOfAnyWindow) {
    constexpr UINT kFirstRadio = 400;
    constexpr int kRadios = 3;
    constexpr int kThird = 2;
    constexpr int kNone = -1;
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, nullptr, "Options", WS_POPUP | WS_VISIBLE, 0, 0, 200, 120,
                                nullptr, nullptr));
    CButton radios[kRadios];
    for (int i = 0; i < kRadios; ++i)
        radios[i].Create("Choice", WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON | (i ? 0 : WS_GROUP),
                         CRect(4, 4 + 24 * i, 120, 24 + 24 * i), &parent, kFirstRadio + i);
    CButton after;
    after.Create("After", WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON | WS_GROUP,
                 CRect(4, 80, 120, 100), &parent, kFirstRadio + kRadios);

    int value = kNone;
    RadioGroup(&parent, kFirstRadio, &value, TRUE);
    EXPECT_EQ(value, kNone);
    value = kThird;
    RadioGroup(&parent, kFirstRadio, &value, FALSE);
    EXPECT_EQ(radios[kThird].GetCheck(), BST_CHECKED);
    EXPECT_EQ(after.GetCheck(), BST_UNCHECKED);

    UiDriver ui;
    ui.Click(radios[0].GetSafeHwnd(), POINT{6, 6});
    RadioGroup(&parent, kFirstRadio, &value, TRUE);
    EXPECT_EQ(value, 0);
    RadioGroup(nullptr, kFirstRadio, &value, TRUE); // nothing to read
    EXPECT_EQ(value, 0);
    parent.DestroyWindow();
}
