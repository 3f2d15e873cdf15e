// The in-process drag and drop loop: follows the mouse and asks the drop targets under it.

#include "platform/window/DragDrop.h"

#include "platform/host/Host.h"
#include "platform/window/OleDropTarget.h"
#include "platform/window/Wnd.h"

namespace {

DragResponder& Responder() {
    static DragResponder& responder = *new DragResponder;
    return responder;
}

// The target under the mouse during one drag.
class DragSession {
public:
    DragSession(const COleDataSource& data, DWORD allowed) : m_allowed(allowed) {
        m_data.Attach(&data);
    }

    // Follows the mouse to `screen`: leaves the old target, enters or drags over the new one.
    void Follow(POINT screen) {
        HWND window = nullptr;
        COleDropTarget* target = COleDropTarget::FindAt(::WindowFromPoint(screen), &window);
        const DWORD keys = DragKeyState();
        if (target != m_target || window != m_window) {
            Leave();
            m_target = target;
            m_window = window;
            m_effect = target != nullptr
                           ? Allowed(target->OnDragEnter(Wnd(), &m_data, keys, Client(screen)))
                           : DROPEFFECT_NONE;
            return;
        }
        if (m_target != nullptr) {
            m_target->OnDragScroll(Wnd(), keys, Client(screen));
            m_effect = Allowed(m_target->OnDragOver(Wnd(), &m_data, keys, Client(screen)));
        }
    }

    DROPEFFECT Drop(POINT screen) {
        Follow(screen);
        if (m_target == nullptr || m_effect == DROPEFFECT_NONE) {
            Leave();
            return DROPEFFECT_NONE;
        }
        COleDropTarget* target = m_target;
        m_target = nullptr;
        return target->OnDrop(Wnd(), &m_data, m_effect, Client(screen)) ? m_effect
                                                                        : DROPEFFECT_NONE;
    }

    void Leave() {
        // A target whose window went during the drag is not called again.
        if (m_target != nullptr && ::IsWindow(m_window)) {
            m_target->OnDragLeave(Wnd());
        }
        m_target = nullptr;
        m_window = nullptr;
        m_effect = DROPEFFECT_NONE;
    }

private:
    CWnd* Wnd() const { return CWnd::FromHandle(m_window); }
    CPoint Client(POINT screen) const {
        CPoint client = screen;
        ::ScreenToClient(m_window, &client);
        return client;
    }
    // The effect the target asked for, as far as the source allows it.
    DROPEFFECT Allowed(DROPEFFECT asked) const {
        asked &= ~DROPEFFECT_SCROLL;
        if (asked & m_allowed & DROPEFFECT_MOVE) {
            return DROPEFFECT_MOVE;
        }
        return asked & m_allowed & (DROPEFFECT_COPY | DROPEFFECT_LINK);
    }

    COleDataObject m_data;
    DWORD m_allowed;
    COleDropTarget* m_target = nullptr;
    HWND m_window = nullptr;
    DROPEFFECT m_effect = DROPEFFECT_NONE;
};

bool IsMouseMessage(UINT message) {
    return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
}

bool IsKeyMessage(UINT message) {
    return message >= WM_KEYDOWN && message <= WM_SYSCHAR;
}

} // namespace

DragResponder SetDragResponder(DragResponder responder) {
    DragResponder previous = std::move(Responder());
    Responder() = std::move(responder);
    return previous;
}

DROPEFFECT RunDragLoop(const COleDataSource& data, DWORD allowedEffects) {
    DragSession session(data, allowedEffects);
    POINT screen{};
    ::GetCursorPos(&screen);
    session.Follow(screen);
    if (Responder()) {
        Responder()();
    }
    DROPEFFECT result = DROPEFFECT_NONE;
    for (bool running = true; running;) {
        MSG msg;
        if (!::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
            // Input arrives only by waiting; a headless run without a deadline has none coming.
            if (!GetHost().WaitForEvents(std::nullopt)) {
                session.Leave();
                break;
            }
            continue;
        }
        if (msg.message == WM_QUIT) {
            ::PostQuitMessage(int(msg.wParam));
            session.Leave();
            break;
        }
        if (IsMouseMessage(msg.message)) {
            ::GetCursorPos(&screen);
            if (msg.message == WM_LBUTTONUP) {
                result = session.Drop(screen);
                running = false;
            } else if (msg.message == WM_MOUSEMOVE) {
                session.Follow(screen);
            }
            continue;
        }
        if (IsKeyMessage(msg.message)) {
            if (msg.message == WM_KEYDOWN && msg.wParam == VK_ESCAPE) {
                session.Leave();
                running = false;
            } else if (msg.message == WM_KEYDOWN || msg.message == WM_KEYUP) {
                session.Follow(screen); // Control changes the effect
            }
            continue;
        }
        ::TranslateMessage(&msg);
        ::DispatchMessage(&msg);
    }
    // The drag held the mouse; whoever had it before learns that it is gone.
    ::ReleaseCapture();
    return result;
}

DROPEFFECT COleDataSource::DoDragDrop(DWORD allowedEffects) {
    return RunDragLoop(*this, allowedEffects);
}
