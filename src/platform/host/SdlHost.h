#pragma once

// The display host: each visible top-level window is a real SDL window showing the window's
// surface, time is the system's, input comes from the display and the clipboard is the
// system's. The window manager stays the one authority on geometry: what the user does to a
// window (moving, resizing, closing) goes to it as events through Input.h, and it decides.

#include "platform/host/Host.h"

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

struct SDL_Window;
struct SDL_Renderer;
struct SDL_Texture;
struct SDL_Cursor;
union SDL_Event;

class ORVA_API SdlHost : public Host {
public:
    SdlHost(); // SDL's video must be initialised; UseSdlHostIfDisplay does that
    ~SdlHost() override;

    const char* Name() const override { return "sdl"; }

    Surface* CreateWindowSurface(HWND window, const RECT& screenRect,
                                 const SurfaceKind& kind) override;
    Surface* GetWindowSurface(HWND window) override;
    void MoveWindowSurface(HWND window, const RECT& screenRect) override;
    void DestroyWindowSurface(HWND window) override;
    void ShowWindowSurface(HWND window, bool show) override;
    void RaiseWindowSurface(HWND window) override;
    void SetWindowTitle(HWND window, const char* title) override;
    void SetWindowSizeLimits(HWND window, SIZE minimum, SIZE maximum) override;
    void SetWindowIcon(HWND window, int size, const std::uint32_t* argb) override;
    // Marks the window for showing; the pixels go to the display before the host next waits,
    // so that a burst of paints costs one upload.
    void Present(HWND window) override;

    DWORD Now() const override;
    bool AdvanceClock(DWORD) override { return false; }
    bool HasUser() const override { return true; }
    bool WaitForEvents(std::optional<DWORD> deadline) override;

    void SetClipboardText(const std::string& text) override;
    std::optional<std::string> GetClipboardText() override;

    void SetCursorShape(HCURSOR cursor) override;

    // Shows every window marked by Present now.
    void PresentPending();
    // What the display shows of a window, as 32-bit ARGB pixels row by row; empty when the
    // window has no SDL window. Width and height are the surface's.
    std::vector<std::uint32_t> ReadPresentedPixels(HWND window);
    bool SavePresentedPng(HWND window, const char* path);
    // The SDL window id of a top-level window (0 if it has none), for tests that push events.
    std::uint32_t SdlWindowId(HWND window) const;

private:
    struct Window;

    Window* Find(HWND window);
    HWND FromSdlId(std::uint32_t id) const;
    // The screen point of a point in an SDL window, ours or one kept after its window went.
    std::optional<POINT> ScreenPointIn(std::uint32_t id, int x, int y) const;
    void Render(Window& w);
    void Deliver(const SDL_Event& event);
    void DeliverWindowEvent(HWND hwnd, const SDL_Event& event);
    POINT ToScreen(HWND hwnd, int x, int y) const;

    std::map<HWND, std::unique_ptr<Window>> m_windows;
    // The display windows of windows that went while a mouse button was held, kept hidden until
    // no button is: the display may have sent the release to one already, and SDL drops the
    // events of a window it no longer knows, and would then take the next press for no change.
    std::vector<std::unique_ptr<Window>> m_retired;
    std::map<UINT_PTR, SDL_Cursor*> m_cursors;
    std::uint64_t m_start;
    bool m_focusLost = false; // one of the windows lost the focus in the events being delivered
};

// Installs the SDL host when a display is there ($DISPLAY or $WAYLAND_DISPLAY set and SDL's
// video starts); otherwise the headless host stays. Call before the first window is created.
ORVA_API bool UseSdlHostIfDisplay();
