// The "ScrollBar" window class as a size box or size grip: the classic ridged corner that
// resizes its top-level window while the mouse drags it.

#include "platform/widgets/ControlWindow.h"
#include "platform/widgets/ScrollBar.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"

#include <algorithm>

namespace widgets {
namespace {

class SizeGripBehaviour : public ControlBehaviour {
public:
    using ControlBehaviour::ControlBehaviour;
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    bool IsGrip() const { return (Style() & (SBS_SIZEGRIP | SBS_SIZEBOX)) != 0; }
    HWND Frame() const { return ::GetAncestor(Window(), GA_ROOT); }
    void Begin(CPoint client);
    void Drag(CPoint client);
    void End();
    void Paint(CDC& dc) override;

    bool m_dragging = false;
    CPoint m_start;     // where the drag began, in screen coordinates
    CRect m_startFrame; // the frame's rectangle then
};

const bool registered = RegisterControlClass<SizeGripBehaviour>("ScrollBar", 0, IDC_SIZENWSE);

CPoint ToScreen(HWND hwnd, CPoint client) {
    ::ClientToScreen(hwnd, &client);
    return client;
}

LRESULT SizeGripBehaviour::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    switch (message) {
    case WM_LBUTTONDOWN:
        if (IsGrip())
            Begin(point);
        return 0;
    case WM_MOUSEMOVE:
        if (m_dragging)
            Drag(point);
        return 0;
    case WM_LBUTTONUP:
        if (m_dragging) {
            Drag(point);
            End();
        }
        return 0;
    case WM_CAPTURECHANGED:
        if (m_dragging && HWND(lParam) != Window())
            End();
        return 0;
    default:
        return Default(message, wParam, lParam);
    }
}

void SizeGripBehaviour::Begin(CPoint client) {
    RECT frame;
    if (!::GetWindowRect(Frame(), &frame))
        return;
    m_dragging = true;
    m_start = ToScreen(Window(), client);
    m_startFrame = frame;
    ::SetCapture(Window());
    ::SendMessage(Frame(), WM_ENTERSIZEMOVE, 0, 0);
}

void SizeGripBehaviour::Drag(CPoint client) {
    const HWND frame = Frame();
    const CPoint delta = ToScreen(Window(), client) - m_start;
    MINMAXINFO limits{};
    limits.ptMaxTrackSize = POINT{GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    ::SendMessage(frame, WM_GETMINMAXINFO, 0, LPARAM(&limits));
    CRect wanted = m_startFrame;
    wanted.right = wanted.left + std::clamp<int>(m_startFrame.Width() + delta.x,
                                                 limits.ptMinTrackSize.x, limits.ptMaxTrackSize.x);
    wanted.bottom = wanted.top + std::clamp<int>(m_startFrame.Height() + delta.y,
                                                 limits.ptMinTrackSize.y, limits.ptMaxTrackSize.y);
    ::SendMessage(frame, WM_SIZING, WMSZ_BOTTOMRIGHT, LPARAM(static_cast<RECT*>(&wanted)));
    ::SetWindowPos(frame, nullptr, 0, 0, wanted.Width(), wanted.Height(),
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void SizeGripBehaviour::End() {
    m_dragging = false;
    if (::GetCapture() == Window())
        ::ReleaseCapture();
    ::SendMessage(Frame(), WM_EXITSIZEMOVE, 0, 0);
}

// Three ridges across the corner, each a light line above two shadow lines.
void SizeGripBehaviour::Paint(CDC& dc) {
    RECT client;
    ::GetClientRect(Window(), &client);
    dc.FillSolidRect(&client, GetSysColor(COLOR_3DFACE));
    if (!(Style() & SBS_SIZEGRIP))
        return;
    const int size = std::min(client.right, client.bottom);
    const int right = client.right, bottom = client.bottom;
    CPen light(PS_SOLID, 1, GetSysColor(COLOR_3DHILIGHT));
    CPen shadow(PS_SOLID, 1, GetSysColor(COLOR_3DSHADOW));
    CPen* old = dc.SelectObject(&light);
    for (int start = 3; start + 1 < size; start += 4) {
        dc.SelectObject(&light);
        dc.MoveTo(right - start - 1, bottom);
        dc.LineTo(right, bottom - start - 2);
        dc.SelectObject(&shadow);
        for (int k = 0; k < 2; ++k) {
            dc.MoveTo(right - start + k, bottom);
            dc.LineTo(right, bottom - start - 1 + k);
        }
    }
    dc.SelectObject(old);
}

} // namespace
} // namespace widgets
