#pragma once

// What every standard control shares: its window class, registered under the framework's name
// when the platform library loads, a per-window behaviour object behind the class procedure,
// and the conversation with the parent (notifications, control colours, the font).
//
// A control file registers its class with one line at namespace scope:
//
//     static const bool registered = RegisterControlClass<EditBehaviour>("Edit", CS_DBLCLKS,
//                                                                       IDC_IBEAM);
//
// The platform is a shared library, so such a static runs before the application's first
// window, and a dialog template or CreateWindowEx can name the class from the start. A window of
// the class gets a new Behaviour (constructed from its handle) at WM_NCCREATE and loses it after
// WM_NCDESTROY; a CWnd that subclasses the window reaches the behaviour through Default().

#include "platform/window/WindowApi.h"

#include <memory>

class CDC;
class CFont;

namespace widgets {

// The behaviour of one control window. Handle answers every message the window gets but the
// painting ones; it passes what it does not handle to DefWindowProc. A control draws its whole
// client area in Paint, so the machinery answers WM_PAINT by calling it between BeginPaint and
// EndPaint, and WM_ERASEBKGND by erasing nothing.
class ControlBehaviour {
public:
    explicit ControlBehaviour(HWND hwnd) : m_hwnd(hwnd) {}
    virtual ~ControlBehaviour() = default;
    ControlBehaviour(const ControlBehaviour&) = delete;
    ControlBehaviour& operator=(const ControlBehaviour&) = delete;

    virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    HWND Window() const { return m_hwnd; }
    // False once the window has been destroyed. A handler that sent a message (a notification
    // to the parent) asks this before it touches its own state again: the parent may have
    // destroyed the control, and the behaviour then lives only until its handler returns.
    bool Alive() const { return !m_destroyed; }

protected:
    virtual void Paint(CDC& dc) = 0;

    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::DefWindowProc(m_hwnd, message, wParam, lParam);
    }
    DWORD Style() const { return DWORD(::GetWindowLong(m_hwnd, GWL_STYLE)); }
    // Sends WM_COMMAND with `code` to the parent; answers Alive() afterwards.
    bool NotifyParent(UINT code);

private:
    friend struct BehaviourTable;
    HWND m_hwnd;
    bool m_destroyed = false;
};

using BehaviourFactory = std::unique_ptr<ControlBehaviour> (*)(HWND hwnd);

// The procedure behind every control class: finds the window's behaviour (making it at
// WM_NCCREATE) and keeps it alive while any of its handlers runs.
LRESULT RunBehaviour(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, BehaviourFactory make);
// The behaviour behind a standard control's window, or null for any other window.
ControlBehaviour* FindBehaviour(HWND hwnd);

template <class Behaviour>
LRESULT ControlProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    return RunBehaviour(
        hwnd, message, wParam, lParam,
        [](HWND h) -> std::unique_ptr<ControlBehaviour> { return std::make_unique<Behaviour>(h); });
}

bool RegisterControlClassWith(LPCSTR name, WNDPROC procedure, UINT classStyle, LPCSTR cursor);

template <class Behaviour> bool RegisterControlClass(LPCSTR name, UINT classStyle, LPCSTR cursor) {
    return RegisterControlClassWith(name, ControlProcedure<Behaviour>, classStyle, cursor);
}

// The font a control draws with: the one set by WM_SETFONT, else the system's GUI font.
CFont* ControlFont(HWND hwnd);
// Asks the parent for the control's colours with WM_CTLCOLOR...; the parent may set the text
// and background colours in `dc` and answer a brush. Without an answer the control's own colours
// go into `dc` and the answer is the brush of `defaultBackground` (a system colour index).
HBRUSH ControlColors(HWND hwnd, CDC& dc, UINT ctlColorMessage, int defaultBackground,
                     int defaultText);

} // namespace widgets
