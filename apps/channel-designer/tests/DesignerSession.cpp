// The scripted session's desktop, start-up and user actions.

#include "DesignerSession.h"

#include "Application.h"
#include "OpenReachDialog.h"

#include "platform/window/WindowApi.h"
#include "platform/window/WindowDC.h"

#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr int kReaderWaitMilliseconds = 10000;

void WriteFile(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
}

} // namespace

fs::path DesignerSession::ShotFolder() {
    const char* folder = std::getenv("CHANNEL_DESIGNER_SHOTS");
    const fs::path path =
        folder && *folder ? fs::path(folder) : fs::path(::testing::TempDir()) / "channel-designer";
    fs::create_directories(path);
    return path;
}

std::string DesignerSession::TemporaryDirectory() {
    const char* tmp = std::getenv("TMPDIR");
    return std::string(tmp && *tmp ? tmp : "/tmp") + "/";
}

DesignerSession::DesignerSession() {
    // A desktop of its own whose PDF reader writes its arguments into the pipe "reader.out".
    m_desktop =
        fs::path(TemporaryDirectory()) / ("channel-designer-desktop-" + std::to_string(::getpid()));
    fs::remove_all(m_desktop);
    WriteFile(m_desktop / "data/mime/globs2", "50:application/pdf:*.pdf\n");
    const fs::path reader = m_desktop / "bin/reader";
    WriteFile(reader, "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"$READER_OUT\"\n");
    fs::permissions(reader, fs::perms::owner_all);
    WriteFile(m_desktop / "data/applications/reader.desktop",
              "[Desktop Entry]\nName=Reader\nExec=" + reader.string() + " %f\n");
    WriteFile(m_desktop / "config/mimeapps.list",
              "[Default Applications]\napplication/pdf=reader.desktop\n");
    ::mkfifo((m_desktop / "reader.out").c_str(), 0600);
    const std::pair<const char*, fs::path> environment[] = {
        {"XDG_DATA_HOME", m_desktop / "data"},
        {"XDG_DATA_DIRS", m_desktop / "system-data"},
        {"XDG_CONFIG_HOME", m_desktop / "config"},
        {"XDG_CONFIG_DIRS", m_desktop / "system-config"},
        {"READER_OUT", m_desktop / "reader.out"}};
    for (const auto& [name, value] : environment) {
        const char* old = std::getenv(name);
        m_savedEnvironment.emplace_back(name, old ? old : "");
        ::setenv(name, value.c_str(), 1);
    }

    StartApplication(CHANNEL_DESIGNER_FOLDER);
    m_frame = std::make_unique<MainFrame>(CHANNEL_DESIGNER_FOLDER);
    EXPECT_TRUE(m_frame->CreateFrame(CRect(0, 0, 1200, 820)));
    m_ui.Pump();
}

DesignerSession::~DesignerSession() {
    if (m_frame && ::IsWindow(m_frame->GetSafeHwnd()))
        m_frame->DestroyWindow();
    m_ui.Pump();
    AfxSetMainWnd(nullptr);
    for (const auto& [name, value] : m_savedEnvironment)
        value.empty() ? ::unsetenv(name.c_str()) : ::setenv(name.c_str(), value.c_str(), 1);
    fs::remove_all(m_desktop);
}

void DesignerSession::ChooseFromMenuBar(int barItem, const std::string& title) {
    MenuResponder menus;
    menus.ChooseTitle(title);
    RECT item;
    ASSERT_TRUE(GetMenuItemRect(*m_frame, ::GetMenu(*m_frame), UINT(barItem), &item));
    CPoint centre((item.left + item.right) / 2, (item.top + item.bottom) / 2);
    m_frame->ScreenToClient(&centre);
    m_ui.Click(*m_frame, centre);
    ASSERT_EQ(menus.Count(), 1) << title;
}

ReachWindow* DesignerSession::OpenThroughDialog(const std::string& fileName) {
    const size_t before = m_frame->Reaches().size();
    ModalResponder dialogs;
    dialogs.Next().Choose(OpenReachDialog::kExamplesId, fileName).Press(IDOK);
    ChooseFromMenuBar(0, "Open Reach...");
    EXPECT_EQ(dialogs.Count(), 1);
    const auto reaches = m_frame->Reaches();
    return reaches.size() == before + 1 ? reaches.back() : nullptr;
}

CPoint DesignerSession::CellCentre(int row, int col) {
    CRect cell;
    m_reach->Sheet().GetCellRect(row, col, &cell);
    return cell.CenterPoint();
}

void DesignerSession::SaveScreen(HWND window, const std::string& name) {
    const fs::path path = ShotFolder() / (name + ".png");
    EXPECT_TRUE(m_ui.SaveScreenPng(window, path.c_str())) << path;
}

std::string DesignerSession::ReaderArguments() {
    // The reader runs on its own: wait for it to open the pipe, then read what it wrote.
    const int fd = ::open((m_desktop / "reader.out").c_str(), O_RDONLY | O_NONBLOCK);
    if (fd < 0)
        return "";
    std::string text;
    pollfd waiting{fd, POLLIN, 0};
    while (::poll(&waiting, 1, kReaderWaitMilliseconds) > 0) {
        char buffer[512];
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n <= 0)
            break;
        text.append(buffer, size_t(n));
        if (waiting.revents & POLLHUP)
            break;
    }
    ::close(fd);
    return text;
}
