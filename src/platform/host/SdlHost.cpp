#include "platform/host/SdlHost.h"

#include "platform/base/Messages.h"
#include "platform/base/Rect.h"
#include "platform/gdi/Surface.h"
#include "platform/host/SdlKeys.h"
#include "platform/window/Input.h"

#include <SDL2/SDL.h>
#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

struct SdlHost::Window {
    std::unique_ptr<Surface> surface;
    CRect screenRect; // where the window layer last placed the window
    SDL_Window* window = nullptr;
    SDL_Renderer* renderer = nullptr;
    SDL_Texture* texture = nullptr;
    int textureWidth = 0;
    int textureHeight = 0;
    bool shown = false;
    bool pending = false;

    ~Window() {
        if (texture)
            SDL_DestroyTexture(texture);
        if (renderer)
            SDL_DestroyRenderer(renderer);
        if (window)
            SDL_DestroyWindow(window);
    }
};

namespace {

// The framework draws its own frame, so only windows with a caption get the display's
// decorations too (and with them moving and closing by the user); pop-ups stay bare, above
// their owner at their own screen position, and out of the task bar.
Uint32 SdlWindowFlags(const SurfaceKind& kind) {
    Uint32 flags = SDL_WINDOW_HIDDEN;
    if (!kind.captioned)
        flags |= SDL_WINDOW_BORDERLESS;
    if (kind.popup)
        flags |= SDL_WINDOW_SKIP_TASKBAR | SDL_WINDOW_POPUP_MENU | SDL_WINDOW_ALWAYS_ON_TOP;
    if (kind.resizable)
        flags |= SDL_WINDOW_RESIZABLE;
    return flags;
}

SDL_Renderer* CreateRenderer(SDL_Window* window) {
    // An accelerated renderer where there is one; displays without (a virtual frame buffer)
    // still have the software one.
    if (SDL_Renderer* renderer = SDL_CreateRenderer(window, -1, SDL_RENDERER_ACCELERATED))
        return renderer;
    return SDL_CreateRenderer(window, -1, SDL_RENDERER_SOFTWARE);
}

std::optional<SDL_SystemCursor> SystemCursorOf(HCURSOR cursor) {
    switch (reinterpret_cast<UINT_PTR>(cursor)) {
    case 32512: // IDC_ARROW
    case 32516: // IDC_UPARROW
        return SDL_SYSTEM_CURSOR_ARROW;
    case 32513: // IDC_IBEAM
        return SDL_SYSTEM_CURSOR_IBEAM;
    case 32514: // IDC_WAIT
        return SDL_SYSTEM_CURSOR_WAIT;
    case 32515: // IDC_CROSS
        return SDL_SYSTEM_CURSOR_CROSSHAIR;
    case 32642: // IDC_SIZENWSE
        return SDL_SYSTEM_CURSOR_SIZENWSE;
    case 32643: // IDC_SIZENESW
        return SDL_SYSTEM_CURSOR_SIZENESW;
    case 32644: // IDC_SIZEWE
        return SDL_SYSTEM_CURSOR_SIZEWE;
    case 32645: // IDC_SIZENS
        return SDL_SYSTEM_CURSOR_SIZENS;
    case 32646: // IDC_SIZEALL
        return SDL_SYSTEM_CURSOR_SIZEALL;
    case 32648: // IDC_NO
        return SDL_SYSTEM_CURSOR_NO;
    case 32649: // IDC_HAND
        return SDL_SYSTEM_CURSOR_HAND;
    case 32650: // IDC_APPSTARTING
        return SDL_SYSTEM_CURSOR_WAITARROW;
    default:
        return std::nullopt;
    }
}

UINT ButtonKey(Uint8 button) {
    switch (button) {
    case SDL_BUTTON_LEFT:
        return VK_LBUTTON;
    case SDL_BUTTON_RIGHT:
        return VK_RBUTTON;
    case SDL_BUTTON_MIDDLE:
        return VK_MBUTTON;
    default:
        return 0;
    }
}

} // namespace

SdlHost::SdlHost() : m_start(SDL_GetTicks64()) {}

SdlHost::~SdlHost() {
    m_windows.clear();
    m_retired.clear();
    for (auto& [id, cursor] : m_cursors)
        SDL_FreeCursor(cursor);
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

SdlHost::Window* SdlHost::Find(HWND window) {
    const auto it = m_windows.find(window);
    return it == m_windows.end() ? nullptr : it->second.get();
}

HWND SdlHost::FromSdlId(std::uint32_t id) const {
    for (const auto& [hwnd, w] : m_windows)
        if (w->window && SDL_GetWindowID(w->window) == id)
            return hwnd;
    return nullptr;
}

std::uint32_t SdlHost::SdlWindowId(HWND window) const {
    const auto it = m_windows.find(window);
    return it != m_windows.end() && it->second->window ? SDL_GetWindowID(it->second->window) : 0;
}

Surface* SdlHost::CreateWindowSurface(HWND window, const RECT& screenRect,
                                      const SurfaceKind& kind) {
    const CRect r(screenRect);
    const int width = std::max(r.Width(), 1);
    const int height = std::max(r.Height(), 1);
    auto w = std::make_unique<Window>();
    w->surface = std::make_unique<Surface>(width, height);
    w->screenRect = r;
    // Without an SDL window the surface still works; the window just never shows.
    w->window = SDL_CreateWindow("", r.left, r.top, width, height, SdlWindowFlags(kind));
    if (w->window)
        w->renderer = CreateRenderer(w->window);
    Surface* surface = w->surface.get();
    m_windows[window] = std::move(w);
    return surface;
}

Surface* SdlHost::GetWindowSurface(HWND window) {
    Window* w = Find(window);
    return w ? w->surface.get() : nullptr;
}

void SdlHost::MoveWindowSurface(HWND window, const RECT& screenRect) {
    Window* w = Find(window);
    if (!w)
        return;
    const CRect r(screenRect);
    const int width = std::max(r.Width(), 1);
    const int height = std::max(r.Height(), 1);
    w->screenRect = r;
    if (w->surface->Width() != width || w->surface->Height() != height)
        w->surface->Resize(width, height);
    if (!w->window)
        return;
    // A move the user made comes back here through the window manager: SDL already has it.
    int x = 0, y = 0, cx = 0, cy = 0;
    SDL_GetWindowPosition(w->window, &x, &y);
    SDL_GetWindowSize(w->window, &cx, &cy);
    if (x != r.left || y != r.top)
        SDL_SetWindowPosition(w->window, r.left, r.top);
    if (cx != width || cy != height)
        SDL_SetWindowSize(w->window, width, height);
    w->pending = true;
}

void SdlHost::DestroyWindowSurface(HWND window) {
    const auto it = m_windows.find(window);
    if (it == m_windows.end())
        return;
    if (it->second->window && SDL_GetMouseState(nullptr, nullptr) != 0) {
        SDL_HideWindow(it->second->window);
        m_retired.push_back(std::move(it->second));
    }
    m_windows.erase(it);
}

void SdlHost::ShowWindowSurface(HWND window, bool show) {
    Window* w = Find(window);
    if (!w || !w->window)
        return;
    w->shown = show;
    w->pending = show;
    if (show)
        SDL_ShowWindow(w->window);
    else
        SDL_HideWindow(w->window);
}

void SdlHost::RaiseWindowSurface(HWND window) {
    if (Window* w = Find(window); w && w->window && w->shown)
        SDL_RaiseWindow(w->window);
}

void SdlHost::SetWindowTitle(HWND window, const char* title) {
    if (Window* w = Find(window); w && w->window)
        SDL_SetWindowTitle(w->window, Utf8FromLatin1(title ? title : "").c_str());
}

void SdlHost::SetWindowSizeLimits(HWND window, SIZE minimum, SIZE maximum) {
    if (Window* w = Find(window); w && w->window) {
        SDL_SetWindowMinimumSize(w->window, std::max<int>(minimum.cx, 1),
                                 std::max<int>(minimum.cy, 1));
        SDL_SetWindowMaximumSize(w->window, std::max<int>(maximum.cx, 1),
                                 std::max<int>(maximum.cy, 1));
    }
}

void SdlHost::SetWindowIcon(HWND window, int size, const std::uint32_t* argb) {
    Window* w = Find(window);
    if (!w || !w->window || !argb || size <= 0)
        return;
    // SDL copies the pixels; the surface only borrows them for the call.
    SDL_Surface* icon = SDL_CreateRGBSurfaceWithFormatFrom(
        const_cast<std::uint32_t*>(argb), size, size, 32, size * 4, SDL_PIXELFORMAT_ARGB8888);
    if (icon) {
        SDL_SetWindowIcon(w->window, icon);
        SDL_FreeSurface(icon);
    }
}

void SdlHost::Present(HWND window) {
    if (Window* w = Find(window))
        w->pending = true;
}

void SdlHost::Render(Window& w) {
    w.pending = false;
    if (!w.renderer)
        return;
    const Surface& s = *w.surface;
    if (!w.texture || w.textureWidth != s.Width() || w.textureHeight != s.Height()) {
        if (w.texture)
            SDL_DestroyTexture(w.texture);
        // Cairo's ARGB32 is a native-endian 32-bit word, which is SDL's ARGB8888.
        w.texture = SDL_CreateTexture(w.renderer, SDL_PIXELFORMAT_ARGB8888,
                                      SDL_TEXTUREACCESS_STREAMING, s.Width(), s.Height());
        w.textureWidth = s.Width();
        w.textureHeight = s.Height();
        if (!w.texture)
            return;
        SDL_SetTextureBlendMode(w.texture, SDL_BLENDMODE_NONE);
    }
    SDL_UpdateTexture(w.texture, nullptr, s.Data(), s.Stride());
    const SDL_Rect whole{0, 0, s.Width(), s.Height()};
    SDL_SetRenderDrawColor(w.renderer, 255, 255, 255, 255);
    SDL_RenderClear(w.renderer);
    SDL_RenderCopy(w.renderer, w.texture, nullptr, &whole);
    SDL_RenderPresent(w.renderer);
}

void SdlHost::PresentPending() {
    for (auto& [hwnd, w] : m_windows)
        if (w->pending && w->shown)
            Render(*w);
}

std::vector<std::uint32_t> SdlHost::ReadPresentedPixels(HWND window) {
    Window* w = Find(window);
    if (!w || !w->renderer)
        return {};
    PresentPending();
    // Reading the frame buffer after it was shown is undefined, so draw the frame once more
    // and read it before it goes to the screen.
    const int width = w->surface->Width();
    const int height = w->surface->Height();
    std::vector<std::uint32_t> pixels(size_t(width) * size_t(height));
    const SDL_Rect whole{0, 0, width, height};
    SDL_RenderClear(w->renderer);
    if (w->texture)
        SDL_RenderCopy(w->renderer, w->texture, nullptr, &whole);
    const int read = SDL_RenderReadPixels(w->renderer, &whole, SDL_PIXELFORMAT_ARGB8888,
                                          pixels.data(), width * 4);
    SDL_RenderPresent(w->renderer);
    return read == 0 ? pixels : std::vector<std::uint32_t>();
}

bool SdlHost::SavePresentedPng(HWND window, const char* path) {
    std::vector<std::uint32_t> pixels = ReadPresentedPixels(window);
    const Surface* surface = GetWindowSurface(window);
    if (pixels.empty() || !surface || !path)
        return false;
    cairo_surface_t* image = cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(pixels.data()), CAIRO_FORMAT_ARGB32, surface->Width(),
        surface->Height(), surface->Width() * 4);
    const bool saved = cairo_surface_write_to_png(image, path) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(image);
    return saved;
}

DWORD SdlHost::Now() const {
    return DWORD(SDL_GetTicks64() - m_start);
}

bool SdlHost::WaitForEvents(std::optional<DWORD> deadline) {
    PresentPending();
    const bool anyShown = std::any_of(m_windows.begin(), m_windows.end(),
                                      [](const auto& entry) { return entry.second->shown; });
    // With no window on the display and no timer, nothing can ever arrive.
    if (!deadline && !anyShown)
        return false;
    SDL_Event event;
    bool got = false;
    if (!deadline) {
        got = SDL_WaitEvent(&event) != 0;
    } else {
        const auto remaining = std::int32_t(*deadline - Now());
        got = remaining > 0 ? SDL_WaitEventTimeout(&event, remaining) != 0
                            : SDL_PollEvent(&event) != 0;
    }
    if (got) {
        Deliver(event);
        while (SDL_PollEvent(&event))
            Deliver(event);
    }
    if (!m_retired.empty() && SDL_GetMouseState(nullptr, nullptr) == 0)
        m_retired.clear();
    // The focus going from one of our windows to another is no loss for the application.
    if (m_focusLost && !SDL_GetKeyboardFocus())
        InjectActivation(nullptr, false);
    m_focusLost = false;
    return true;
}

std::optional<POINT> SdlHost::ScreenPointIn(std::uint32_t id, int x, int y) const {
    if (const HWND hwnd = FromSdlId(id))
        return ToScreen(hwnd, x, y);
    for (const auto& w : m_retired)
        if (w->window && SDL_GetWindowID(w->window) == id)
            return POINT{w->screenRect.left + x, w->screenRect.top + y};
    return std::nullopt;
}

POINT SdlHost::ToScreen(HWND hwnd, int x, int y) const {
    const auto it = m_windows.find(hwnd);
    const CPoint origin = it == m_windows.end() ? CPoint() : it->second->screenRect.TopLeft();
    return POINT{origin.x + x, origin.y + y};
}

void SdlHost::Deliver(const SDL_Event& event) {
    switch (event.type) {
    case SDL_MOUSEMOTION:
        if (const auto screen =
                ScreenPointIn(event.motion.windowID, event.motion.x, event.motion.y))
            InjectMouseMove(*screen);
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP: {
        // A release can come from a window that went while the button was held (a pop-up that
        // the press closed): it still ends the press.
        const auto screen = ScreenPointIn(event.button.windowID, event.button.x, event.button.y);
        const UINT button = ButtonKey(event.button.button);
        if (!screen || !button)
            break;
        const bool down = event.type == SDL_MOUSEBUTTONDOWN;
        InjectMouseButton(button, down, *screen, down ? std::max<int>(event.button.clicks, 1) : 1);
        break;
    }
    case SDL_MOUSEWHEEL: {
        const HWND hwnd = FromSdlId(event.wheel.windowID);
        if (!hwnd)
            break;
        float notches = event.wheel.preciseY;
        if (event.wheel.direction == SDL_MOUSEWHEEL_FLIPPED)
            notches = -notches;
        if (const int delta = int(std::lround(notches * WHEEL_DELTA)))
            InjectMouseWheel(ToScreen(hwnd, event.wheel.mouseX, event.wheel.mouseY), delta);
        break;
    }
    case SDL_KEYDOWN:
    case SDL_KEYUP: {
        const UINT vk = VirtualKeyFromSdlKeycode(event.key.keysym.sym);
        if (!vk)
            break;
        InjectKey(vk, event.type == SDL_KEYDOWN);
        break;
    }
    case SDL_TEXTINPUT:
        InjectText(Latin1FromUtf8(event.text.text).c_str());
        break;
    case SDL_WINDOWEVENT:
        if (HWND hwnd = FromSdlId(event.window.windowID))
            DeliverWindowEvent(hwnd, event);
        break;
    case SDL_DROPTEXT: {
        // No motion arrives while another program drags over us: the display's own mouse
        // state says where the text came down.
        int x = 0;
        int y = 0;
        SDL_GetMouseState(&x, &y);
        if (const HWND hwnd = FromSdlId(event.drop.windowID); hwnd && event.drop.file)
            InjectDroppedText(ToScreen(hwnd, x, y), Latin1FromUtf8(event.drop.file).c_str());
        SDL_free(event.drop.file);
        break;
    }
    default:
        break;
    }
}

void SdlHost::DeliverWindowEvent(HWND hwnd, const SDL_Event& event) {
    switch (event.window.event) {
    case SDL_WINDOWEVENT_CLOSE:
        InjectCloseRequest(hwnd);
        break;
    case SDL_WINDOWEVENT_EXPOSED:
        // The surface holds the whole window, so showing it again is all an exposure needs.
        if (Window* w = Find(hwnd))
            w->pending = true;
        break;
    case SDL_WINDOWEVENT_MOVED:
        InjectWindowMoved(hwnd, POINT{event.window.data1, event.window.data2});
        break;
    case SDL_WINDOWEVENT_SIZE_CHANGED:
        InjectWindowResized(hwnd, SIZE{event.window.data1, event.window.data2});
        break;
    case SDL_WINDOWEVENT_FOCUS_GAINED:
        InjectActivation(hwnd, true);
        break;
    case SDL_WINDOWEVENT_FOCUS_LOST:
        m_focusLost = true;
        break;
    default:
        break;
    }
}

void SdlHost::SetClipboardText(const std::string& text) {
    SDL_SetClipboardText(Utf8FromLatin1(text).c_str());
}

std::optional<std::string> SdlHost::GetClipboardText() {
    if (!SDL_HasClipboardText())
        return std::nullopt;
    char* utf8 = SDL_GetClipboardText();
    std::string text = Latin1FromUtf8(utf8);
    SDL_free(utf8);
    return text;
}

void SdlHost::SetCursorShape(HCURSOR cursor) {
    const auto shape = SystemCursorOf(cursor);
    if (!cursor || !shape) {
        // A null cursor hides it, as in the framework; unknown ones show the arrow.
        SDL_ShowCursor(cursor ? SDL_ENABLE : SDL_DISABLE);
        if (!cursor)
            return;
    }
    const SDL_SystemCursor id = shape.value_or(SDL_SYSTEM_CURSOR_ARROW);
    SDL_Cursor*& made = m_cursors[UINT_PTR(id)];
    if (!made)
        made = SDL_CreateSystemCursor(id);
    if (made) {
        SDL_SetCursor(made);
        SDL_ShowCursor(SDL_ENABLE);
    }
}

bool UseSdlHostIfDisplay() {
    const char* x11 = std::getenv("DISPLAY");
    const char* wayland = std::getenv("WAYLAND_DISPLAY");
    if ((!x11 || !*x11) && (!wayland || !*wayland))
        return false;
    // The application decides what closing windows and Ctrl+C mean, not SDL.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0)
        return false;
    SetHost(std::make_unique<SdlHost>());
    return true;
}
