#include "platform/host/HeadlessHost.h"

#include "platform/base/Messages.h"
#include "platform/base/Rect.h"
#include "platform/gdi/Surface.h"

#include <algorithm>

HeadlessHost::HeadlessHost() = default;
HeadlessHost::~HeadlessHost() = default;

Surface* HeadlessHost::CreateWindowSurface(HWND window, const RECT& screenRect, const SurfaceKind&) {
    const CRect r(screenRect);
    auto& slot = m_surfaces[window];
    slot = std::make_unique<Surface>(std::max(r.Width(), 1), std::max(r.Height(), 1));
    return slot.get();
}

Surface* HeadlessHost::GetWindowSurface(HWND window) {
    const auto it = m_surfaces.find(window);
    return it == m_surfaces.end() ? nullptr : it->second.get();
}

void HeadlessHost::MoveWindowSurface(HWND window, const RECT& screenRect) {
    const CRect r(screenRect);
    if (Surface* surface = GetWindowSurface(window))
        if (surface->Width() != std::max(r.Width(), 1) ||
            surface->Height() != std::max(r.Height(), 1))
            surface->Resize(std::max(r.Width(), 1), std::max(r.Height(), 1));
}

void HeadlessHost::DestroyWindowSurface(HWND window) {
    m_surfaces.erase(window);
}

bool HeadlessHost::AdvanceClock(DWORD milliseconds) {
    m_now += milliseconds;
    return true;
}

bool HeadlessHost::WaitForEvents(std::optional<DWORD> deadline) {
    // No input ever arrives by itself: waiting means letting the clock reach the deadline.
    if (!deadline)
        return false;
    if (*deadline > m_now)
        m_now = *deadline;
    return true;
}

int DefaultMessageBoxButton(UINT type) {
    static constexpr int buttons[][3] = {
        {IDOK, IDOK, IDOK},            // MB_OK
        {IDOK, IDCANCEL, IDCANCEL},    // MB_OKCANCEL
        {IDABORT, IDRETRY, IDIGNORE},  // MB_ABORTRETRYIGNORE
        {IDYES, IDNO, IDCANCEL},       // MB_YESNOCANCEL
        {IDYES, IDNO, IDNO},           // MB_YESNO
        {IDRETRY, IDCANCEL, IDCANCEL}, // MB_RETRYCANCEL
    };
    const UINT kind = type & MB_TYPEMASK;
    if (kind >= std::size(buttons))
        return IDOK;
    const UINT defaultIndex = std::min<UINT>((type >> 8) & 0x3, 2);
    return buttons[kind][defaultIndex];
}
