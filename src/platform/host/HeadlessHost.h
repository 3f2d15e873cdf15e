#pragma once

// The headless host: each top-level window's pixels stay in memory, time is a virtual clock
// that moves only when asked to, and the clipboard lives in the process.

#include "platform/host/Host.h"

#include <map>
#include <memory>

class ORVA_API HeadlessHost : public Host {
public:
    HeadlessHost();
    ~HeadlessHost() override;

    const char* Name() const override { return "headless"; }

    Surface* CreateWindowSurface(HWND window, const RECT& screenRect, const SurfaceKind& kind) override;
    Surface* GetWindowSurface(HWND window) override;
    void MoveWindowSurface(HWND window, const RECT& screenRect) override;
    void DestroyWindowSurface(HWND window) override;
    void ShowWindowSurface(HWND, bool) override {}
    void RaiseWindowSurface(HWND) override {}
    void SetWindowTitle(HWND, const char*) override {}
    void SetWindowSizeLimits(HWND, SIZE, SIZE) override {}
    void SetWindowIcon(HWND, int, const std::uint32_t*) override {}
    void Present(HWND) override {}

    DWORD Now() const override { return m_now; }
    bool AdvanceClock(DWORD milliseconds) override;
    bool HasUser() const override { return false; }
    bool WaitForEvents(std::optional<DWORD> deadline) override;

    void SetClipboardText(const std::string& text) override { m_clipboardText = text; }
    std::optional<std::string> GetClipboardText() override { return m_clipboardText; }

    void SetCursorShape(HCURSOR) override {}

private:
    std::map<HWND, std::unique_ptr<Surface>> m_surfaces;
    DWORD m_now = 0;
    std::optional<std::string> m_clipboardText;
};

// The button a message box of this type answers when nobody presses one: its default button.
ORVA_API int DefaultMessageBoxButton(UINT type);
