#pragma once

// A session of Channel Designer for the scripted runs: the application started as its main()
// starts it, on a desktop whose PDF reader reports what it was asked to open, with helpers
// that act as the user does (menus from the menu bar, cells by their place) and save the
// screens they see.

#include "MainFrame.h"

#include "platform/testing/MenuResponder.h"
#include "platform/testing/ModalResponder.h"
#include "platform/testing/UiDriver.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class DesignerSession : public ::testing::Test {
public:
    // Where the screens go: $CHANNEL_DESIGNER_SHOTS, or a folder of the test's own.
    static std::filesystem::path ShotFolder();
    // The system's temporary directory, ending in "/".
    static std::string TemporaryDirectory();

protected:
    DesignerSession();
    ~DesignerSession() override;

    // Chooses a command from the menu bar: the pop-up of `barItem` opens and `title` is picked.
    void ChooseFromMenuBar(int barItem, const std::string& title);
    // Opens an example reach through File > Open Reach and its dialog.
    ReachWindow* OpenThroughDialog(const std::string& fileName);

    CPoint CellCentre(int row, int col);
    HWND Sheet(ReachWindow& reach) { return reach.Sheet().GetSafeHwnd(); }
    // Saves a top-level window as <shots>/<name>.png as a display shows it, open menus and all.
    void SaveScreen(HWND window, const std::string& name);
    // What the PDF reader was started with, one argument a line; empty if it did not start.
    std::string ReaderArguments();

    std::filesystem::path m_desktop; // the desktop's data folders and the reader
    std::vector<std::pair<std::string, std::string>> m_savedEnvironment;
    std::unique_ptr<MainFrame> m_frame;
    ReachWindow* m_reach = nullptr;
    UiDriver m_ui;
};
