#include "support/ProcessLaunch.h"

#include "platform/system/Process.h"
#include "platform/window/WindowStyles.h"
#include "platform/window/Wnd.h"

#include <string>

namespace {

constexpr const char* kHelpFileName = "rd4.pdf";

// Process-wide state, used on the user-interface thread only: no lock.
std::string& ApplicationPath() {
    static std::string path;
    return path;
}

HANDLE& LastProcess() {
    static HANDLE process = nullptr;
    return process;
}

} // namespace

void xgSetApplicationPath(const char* path) {
    ApplicationPath() = path != nullptr ? path : "";
}

zvk::CStdStr<char> xgGetHelpFileName() {
    return ApplicationPath() + kHelpFileName;
}

HANDLE xgGetLastProcess() {
    return LastProcess();
}

int xgLaunchProcess(const char* commandLine, const char* directory, int minimizeMainWindow,
                    int noWait, int* exitCode) {
    if (LastProcess() != nullptr) {
        CloseHandle(LastProcess());
        LastProcess() = nullptr;
    }
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = WORD(SW_SHOWDEFAULT);
    // The call may write into the command line, as the system's does: give it a copy.
    std::string command = commandLine != nullptr ? commandLine : "";
    PROCESS_INFORMATION process{};
    const bool hasDirectory = directory != nullptr && *directory != '\0';
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, NORMAL_PRIORITY_CLASS,
                        nullptr, hasDirectory ? directory : nullptr, &startup, &process))
        (void)GetLastError(); // a failed start is not reported; no handle follows

    if (minimizeMainWindow != 0) {
        if (CWnd* mainWindow = AfxGetMainWnd())
            mainWindow->ShowWindow(SW_MINIMIZE);
    }
    if (noWait == 0 && process.hProcess != nullptr) {
        WaitForSingleObject(process.hProcess, INFINITE);
        if (exitCode != nullptr) {
            DWORD code = 0;
            GetExitCodeProcess(process.hProcess, &code);
            *exitCode = int(code);
        }
        CloseHandle(process.hProcess);
        return 1;
    }
    LastProcess() = process.hProcess;
    return 1;
}
