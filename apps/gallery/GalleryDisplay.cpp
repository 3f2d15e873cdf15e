#include "GalleryDisplay.h"

#include "platform/host/Host.h"
#include "platform/host/SdlHost.h"
#include "platform/window/Input.h"
#include "platform/window/WindowApi.h"

#include <cstdio>
#include <filesystem>
#include <vector>

namespace {

std::vector<HWND> VisibleTopLevelWindows() {
    std::vector<HWND> windows;
    for (HWND top = GetTopWindow(nullptr); top; top = GetWindow(top, GW_HWNDNEXT))
        if (IsWindowVisible(top))
            windows.push_back(top);
    return windows;
}

// Pages place their windows near the same corner; a cascade shows each one's caption.
void Cascade(const std::vector<HWND>& windows) {
    int step = 0;
    for (auto it = windows.rbegin(); it != windows.rend(); ++it, ++step)
        SetWindowPos(*it, nullptr, 20 + 60 * step, 20 + 40 * step, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void SaveShots(const std::string& folder) {
    auto* host = dynamic_cast<SdlHost*>(&GetHost());
    if (!host)
        return;
    int n = 0;
    for (HWND window : VisibleTopLevelWindows()) {
        const std::string path =
            (std::filesystem::path(folder) / ("shown-" + std::to_string(++n) + ".png")).string();
        if (host->SavePresentedPng(window, path.c_str()))
            std::printf("%s\n", path.c_str());
        else
            std::fprintf(stderr, "gallery: could not read back window %d\n", n);
    }
}

} // namespace

bool OpenGalleryDisplay() {
    return UseSdlHostIfDisplay();
}

int RunGalleryOnDisplay(const DisplayRun& run) {
    Cascade(VisibleTopLevelWindows());
    Host& host = GetHost();
    std::optional<DWORD> shotTime;
    if (run.shotsAfterSeconds)
        shotTime = host.Now() + DWORD(*run.shotsAfterSeconds * 1000.0);
    for (;;) {
        if (PumpMessages())
            return 0;
        if (VisibleTopLevelWindows().empty())
            return 0; // the user closed the last window
        if (shotTime && DWORD(host.Now() - *shotTime) < 0x80000000u) {
            if (auto* sdl = dynamic_cast<SdlHost*>(&host))
                sdl->PresentPending();
            SaveShots(run.shotFolder);
            return 0;
        }
        std::optional<DWORD> deadline = NextTimerDueTime();
        if (shotTime && (!deadline || DWORD(*shotTime - *deadline) >= 0x80000000u))
            deadline = shotTime;
        if (!host.WaitForEvents(deadline))
            return 0;
    }
}
