// The SDL host on a real (virtual) X display: a private Xvfb is started when the machine has
// one, and the tests are skipped otherwise. Events are pushed into SDL's queue as the display
// would deliver them, so they take the host's whole path to the windows.

#include "platform/gdi/Surface.h"
#include "platform/host/HeadlessHost.h"
#include "platform/host/SdlHost.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowDC.h"
#include "platform/window/Wnd.h"

#include <SDL2/SDL.h>
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr const char* xvfb = "/usr/bin/Xvfb";

// The X and GL libraries keep allocations for the process's life, which the leak checker of a
// sanitizer run would report as ours.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool sanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif
#else
constexpr bool sanitized = false;
#endif

// A child window that paints two colours and remembers the input it gets.
class ProbeWnd : public CWnd {
public:
    std::vector<CPoint> clicks;
    std::vector<UINT> chars;
    std::vector<short> wheel;

protected:
    void OnPaint() override {
        CPaintDC dc(this);
        CRect client;
        GetClientRect(&client);
        dc.FillSolidRect(&client, RGB(30, 90, 200));
        dc.FillSolidRect(CRect(0, 0, client.Width() / 2, client.Height() / 2), RGB(250, 180, 20));
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_LBUTTONDOWN)
            clicks.emplace_back(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        else if (message == WM_CHAR)
            chars.push_back(UINT(wParam));
        else if (message == WM_MOUSEWHEEL)
            wheel.push_back(short(HIWORD(wParam)));
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class SdlDisplay : public testing::Test {
protected:
    static void SetUpTestSuite() {
        if (sanitized || access(xvfb, X_OK) != 0)
            return;
        int ready[2];
        if (pipe(ready) != 0)
            return;
        // -displayfd: Xvfb picks a free display and writes its number once it accepts clients.
        s_server = fork();
        if (s_server == 0) {
            close(ready[0]);
            const std::string fd = std::to_string(ready[1]);
            execl(xvfb, "Xvfb", "-displayfd", fd.c_str(), "-screen", "0", "800x600x24", "-nolisten",
                  "tcp", static_cast<char*>(nullptr));
            _exit(127);
        }
        close(ready[1]);
        pollfd waiting{ready[0], POLLIN, 0};
        char number[16] = {};
        if (s_server > 0 && poll(&waiting, 1, 10000) == 1 && read(ready[0], number, 15) > 0) {
            s_saved = std::getenv("DISPLAY") ? std::getenv("DISPLAY") : "";
            setenv("DISPLAY", (":" + std::to_string(std::atoi(number))).c_str(), 1);
            s_running = UseSdlHostIfDisplay();
        }
        close(ready[0]);
    }

    static void TearDownTestSuite() {
        if (s_running)
            SetHost(std::make_unique<HeadlessHost>());
        if (s_server > 0) {
            kill(s_server, SIGTERM);
            waitpid(s_server, nullptr, 0);
        }
        if (!s_saved.empty())
            setenv("DISPLAY", s_saved.c_str(), 1);
        else
            unsetenv("DISPLAY");
    }

    void SetUp() override {
        if (!s_running)
            GTEST_SKIP() << (sanitized ? "display libraries are outside the sanitizer run"
                                       : "no Xvfb to show windows on");
        host = dynamic_cast<SdlHost*>(&GetHost());
        ASSERT_NE(host, nullptr);
        // Called through the symbol table: the host's library is the one that links SDL.
        push = reinterpret_cast<int (*)(SDL_Event*)>(dlsym(RTLD_DEFAULT, "SDL_PushEvent"));
        ASSERT_NE(push, nullptr);
        ASSERT_TRUE(frame.CreateEx(0, nullptr, "Probe", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 30,
                                   320, 240, nullptr, nullptr));
        ASSERT_TRUE(probe.CreateEx(0, nullptr, "", WS_CHILD | WS_VISIBLE, CRect(10, 10, 210, 130),
                                   &frame, 1));
        probe.SetFocus();
        PumpMessages();
        host->PresentPending();
    }

    void TearDown() override {
        if (IsWindow(frame.GetSafeHwnd()))
            frame.DestroyWindow();
        PumpMessages();
    }

    // Hands what was pushed to the windows, as a message loop would.
    void Deliver() {
        host->WaitForEvents(host->Now());
        PumpMessages();
    }

    // A point of the probe's client area in the SDL window's own coordinates.
    CPoint InSdlWindow(CPoint client) {
        probe.ClientToScreen(&client);
        CRect frameRect;
        frame.GetWindowRect(&frameRect);
        return client - frameRect.TopLeft();
    }

    void PushButton(CPoint at, bool down) {
        SDL_Event event{};
        event.type = down ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP;
        event.button.windowID = host->SdlWindowId(frame.GetSafeHwnd());
        event.button.button = SDL_BUTTON_LEFT;
        event.button.state = down ? SDL_PRESSED : SDL_RELEASED;
        event.button.clicks = 1;
        event.button.x = at.x;
        event.button.y = at.y;
        push(&event);
    }

    void PushKeyAndText(SDL_Keycode key, const char* text) {
        SDL_Event event{};
        event.type = SDL_KEYDOWN;
        event.key.windowID = host->SdlWindowId(frame.GetSafeHwnd());
        event.key.state = SDL_PRESSED;
        event.key.keysym.sym = key;
        if (key != SDLK_UNKNOWN)
            push(&event);
        SDL_Event typed{};
        typed.type = SDL_TEXTINPUT;
        typed.text.windowID = event.key.windowID;
        std::snprintf(typed.text.text, sizeof(typed.text.text), "%s", text);
        push(&typed);
        event.type = SDL_KEYUP;
        event.key.state = SDL_RELEASED;
        if (key != SDLK_UNKNOWN)
            push(&event);
    }

    static inline pid_t s_server = -1;
    static inline bool s_running = false;
    static inline std::string s_saved;

    SdlHost* host = nullptr;
    int (*push)(SDL_Event*) = nullptr;
    CWnd frame;
    ProbeWnd probe;
};

TEST_F(SdlDisplay, ShowsExactlyTheWindowsSurface) {
    const Surface* surface = host->GetWindowSurface(frame.GetSafeHwnd());
    ASSERT_NE(surface, nullptr);
    const std::vector<std::uint32_t> shown = host->ReadPresentedPixels(frame.GetSafeHwnd());
    ASSERT_EQ(shown.size(), size_t(surface->Width()) * size_t(surface->Height()));
    int differing = 0;
    for (int y = 0; y < surface->Height(); ++y) {
        const auto* row =
            reinterpret_cast<const std::uint32_t*>(surface->Data() + y * surface->Stride());
        for (int x = 0; x < surface->Width(); ++x)
            differing +=
                (row[x] & 0xFFFFFF) != (shown[size_t(y * surface->Width() + x)] & 0xFFFFFF);
    }
    EXPECT_EQ(differing, 0);
    // And the picture is the painted one, not a blank window: the probe's two colours.
    const CPoint orange = InSdlWindow(CPoint(5, 5));
    const CPoint blue = InSdlWindow(CPoint(150, 100));
    EXPECT_EQ(shown[size_t(orange.y * surface->Width() + orange.x)] & 0xFFFFFF, 0xFAB414u);
    EXPECT_EQ(shown[size_t(blue.y * surface->Width() + blue.x)] & 0xFFFFFF, 0x1E5AC8u);
}

TEST_F(SdlDisplay, DisplayInputReachesTheWindowAtItsClientPoint) {
    PushButton(InSdlWindow(CPoint(37, 21)), true);
    PushButton(InSdlWindow(CPoint(37, 21)), false);
    SDL_Event wheel{};
    wheel.type = SDL_MOUSEWHEEL;
    wheel.wheel.windowID = host->SdlWindowId(frame.GetSafeHwnd());
    wheel.wheel.y = -1;
    wheel.wheel.preciseY = -1.0f;
    const CPoint at = InSdlWindow(CPoint(50, 50));
    wheel.wheel.mouseX = at.x;
    wheel.wheel.mouseY = at.y;
    push(&wheel);
    Deliver();

    ASSERT_EQ(probe.clicks.size(), 1u);
    EXPECT_EQ(probe.clicks[0], CPoint(37, 21));
    ASSERT_EQ(probe.wheel.size(), 1u);
    EXPECT_EQ(probe.wheel[0], -WHEEL_DELTA);
}

TEST_F(SdlDisplay, TypedCharactersArriveOnce) {
    // A letter comes both as a key (which the framework translates) and as text; an accented
    // letter and a semicolon come only as text.
    PushKeyAndText(SDLK_a, "a");
    PushKeyAndText(SDLK_UNKNOWN, "\xC3\xA9");
    PushKeyAndText(SDLK_SEMICOLON, ";");
    Deliver();
    EXPECT_EQ(probe.chars, (std::vector<UINT>{'a', 0xE9, ';'}));
}

TEST_F(SdlDisplay, TheUsersMovesAndClosingGoToTheWindowManager) {
    const HWND hwnd = frame.GetSafeHwnd();
    SDL_Event event{};
    event.type = SDL_WINDOWEVENT;
    event.window.windowID = host->SdlWindowId(hwnd);
    event.window.event = SDL_WINDOWEVENT_MOVED;
    event.window.data1 = 120;
    event.window.data2 = 80;
    push(&event);
    event.window.event = SDL_WINDOWEVENT_SIZE_CHANGED;
    event.window.data1 = 300;
    event.window.data2 = 200;
    push(&event);
    Deliver();
    CRect rect;
    frame.GetWindowRect(&rect);
    EXPECT_EQ(rect, CRect(120, 80, 420, 280));
    EXPECT_EQ(host->GetWindowSurface(hwnd)->Width(), 300);

    event.window.event = SDL_WINDOWEVENT_CLOSE;
    push(&event);
    Deliver();
    EXPECT_FALSE(IsWindow(hwnd));
}

} // namespace
