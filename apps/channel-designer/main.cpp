// Channel Designer: open channels and culvert approaches, designed by Manning's equation, on
// ORVAUtil. With a display it opens its main window and runs until the user closes it;
// headless it opens the reaches it is given (an example when none, unless --empty) and, with
// --out, saves a picture of its main window.

#include "Application.h"
#include "MainFrame.h"

#include "platform/host/Host.h"
#include "platform/host/SdlHost.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/Input.h"
#include "platform/window/WindowApi.h"

#include <cstdio>
#include <string>
#include <vector>

namespace {

struct Options {
    std::vector<std::string> reaches;
    std::string picture; // headless: where the main window's PNG goes
    bool headless = false;
    bool empty = false; // no example reach at start
};

bool ParseOptions(int argc, char** argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--out" && i + 1 < argc)
            options.picture = argv[++i];
        else if (arg == "--headless")
            options.headless = true;
        else if (arg == "--empty")
            options.empty = true;
        else if (!arg.empty() && arg[0] != '-')
            options.reaches.push_back(arg);
        else {
            std::fprintf(stderr,
                         "usage: channel-designer [--headless] [--empty] [--out picture.png] "
                         "[reach files...]\n");
            return false;
        }
    }
    return true;
}

// The message loop of a real display: until the main window goes or the user quits.
int RunOnDisplay(HWND frame) {
    Host& host = GetHost();
    for (;;) {
        if (PumpMessages() || !::IsWindow(frame))
            return 0;
        if (!host.WaitForEvents(NextTimerDueTime()))
            return 0;
    }
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    if (!ParseOptions(argc, argv, options))
        return 2;
    const bool display = !options.headless && UseSdlHostIfDisplay();
    const std::string folder = ProgramFolder();
    StartApplication(folder);

    // The frame lives until the end of main; its windows are all gone by then.
    MainFrame frame(folder);
    if (!frame.CreateFrame(CRect(0, 0, 1200, 820)))
        return 1;
    if (options.reaches.empty() && !options.empty)
        options.reaches.push_back(frame.ExamplePath(1));
    for (const std::string& reach : options.reaches)
        frame.OpenReach(reach);
    PumpMessages();

    int exitCode = 0;
    if (display)
        exitCode = RunOnDisplay(frame.GetSafeHwnd());
    else if (!options.picture.empty())
        exitCode = UiDriver().SavePng(frame.GetSafeHwnd(), options.picture.c_str()) ? 0 : 1;
    if (::IsWindow(frame.GetSafeHwnd()))
        frame.DestroyWindow();
    PumpMessages();
    return exitCode;
}
