#pragma once

// Host: where the windows live. The window manager keeps all window state itself and asks the
// host only for what differs between running headless and running on a display: the pixels
// of each top-level window, the clock, waiting for input, the system clipboard's text and the
// cursor shape. A host delivers the user's input and what the display did to its windows
// through platform/window/Input.h, and never calls the window layer to decide what an event
// means. The headless host is installed unless the application installs another one (the SDL
// host) at start-up, before it creates a window.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class Surface;

// How a display shows a top-level window.
struct SurfaceKind {
    bool captioned = false; // gets the display's decorations, and with them moving and closing
    bool popup = false;     // a menu or a list: above its owner, bare, without a task-bar entry
    bool resizable = false;
};

class ORVA_API Host {
public:
    virtual ~Host() = default;
    virtual const char* Name() const = 0;

    // Top-level windows: the host owns one surface for each, sized to the whole window. The
    // kind tells a display host how to show it; the window layer decides it from the style.
    virtual Surface* CreateWindowSurface(HWND window, const RECT& screenRect,
                                         const SurfaceKind& kind) = 0;
    virtual Surface* GetWindowSurface(HWND window) = 0;
    virtual void MoveWindowSurface(HWND window, const RECT& screenRect) = 0;
    virtual void DestroyWindowSurface(HWND window) = 0;
    virtual void ShowWindowSurface(HWND window, bool show) = 0;
    // The window went to the top of the z-order: a display shows it above the others, so that
    // what the user sees and where the window layer sends the mouse agree.
    virtual void RaiseWindowSurface(HWND window) = 0;
    virtual void SetWindowTitle(HWND window, const char* title) = 0;
    // The window's icon on a display: `size` * `size` ARGB pixels, row by row.
    virtual void SetWindowIcon(HWND window, int size, const std::uint32_t* argb) = 0;
    // The smallest and largest sizes a user may give the window on a display.
    virtual void SetWindowSizeLimits(HWND window, SIZE minimum, SIZE maximum) = 0;
    // Painting of the window has finished for now: a display host shows the surface.
    virtual void Present(HWND window) = 0;

    // Milliseconds since the host started.
    virtual DWORD Now() const = 0;
    // Moves a virtual clock on; a host on real time answers false and does nothing.
    virtual bool AdvanceClock(DWORD milliseconds) = 0;
    // True when a person can give input: modal loops wait for it only then.
    virtual bool HasUser() const = 0;
    // Waits until input arrives or the clock reaches `deadline`, delivering the input. Answers
    // false when nothing can arrive any more (a headless host with no deadline).
    virtual bool WaitForEvents(std::optional<DWORD> deadline) = 0;

    // The text of the system clipboard, for hosts that share one with other programs.
    virtual void SetClipboardText(const std::string& text) = 0;
    virtual std::optional<std::string> GetClipboardText() = 0;

    virtual void SetCursorShape(HCURSOR cursor) = 0;
};

// The installed host; the headless host until another is installed.
ORVA_API Host& GetHost();
// Installs a host, replacing the current one; call before the first window is created.
ORVA_API void SetHost(std::unique_ptr<Host> host);
