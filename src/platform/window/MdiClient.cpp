// The "MDIClient" window: it holds a frame's document windows, knows the active one and whether
// they are maximised, places new ones in a cascade, and arranges them. While one is maximised
// the frame's caption names it; minimised ones line up as title bars along the client's
// bottom. The default procedures of the frame and of the document windows lead here.
//
// Sections: the client's state; placing; minimised windows; activation, maximising, minimising
// and restoring; the frame's caption; the client's procedure; DefMDIChildProc and DefFrameProc.

#include "platform/window/MdiFrame.h"
#include "platform/window/MdiState.h"
#include "platform/window/WindowRecord.h"

#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>

namespace wm {
namespace {

// ---- The client's state ----

struct ClientState {
    HWND active = nullptr;
    bool maximized = false;
    int nextCascade = 0;
    std::map<HWND, CRect> restoreRects; // where each maximised or minimised child goes back to
    std::vector<HWND> icons;            // the minimised children, in their places' order
    // The frame's own title while its caption also names the maximised document.
    std::optional<std::string> frameTitle;
};

// The MDI clients of the one user-interface thread.
std::map<HWND, ClientState>& Clients() {
    static auto& clients = *new std::map<HWND, ClientState>;
    return clients;
}

ClientState* StateOf(HWND client) {
    auto& clients = Clients();
    const auto it = clients.find(client);
    return it == clients.end() ? nullptr : &it->second;
}

int CascadeStep() {
    return GetSystemMetrics(SM_CYCAPTION) + GetSystemMetrics(SM_CYFRAME);
}

CSize ClientSize(HWND client) {
    RECT r{};
    GetClientRect(client, &r);
    return CSize(r.right, r.bottom);
}

// The document windows, topmost first, leaving out those on their way out.
std::vector<HWND> Children(HWND client) {
    std::vector<HWND> children;
    if (const WindowRecord* w = Find(client))
        for (HWND child : w->children)
            if (const WindowRecord* c = Find(child); c && !c->destroying)
                children.push_back(child);
    return children;
}

// ---- Placing ----

CSize DefaultChildSize(HWND client) {
    const CSize area = ClientSize(client);
    return CSize(std::max<LONG>(area.cx * 3 / 4, 160), std::max<LONG>(area.cy * 3 / 4, 120));
}

// The rectangle that makes a child's client area fill the MDI client: its frame and caption
// lie outside, where the client clips them.
CRect MaximizedRect(HWND client, const WindowRecord& child) {
    const FrameMetrics m = GetFrameMetrics(child);
    // The scroll bars stay inside, as part of what the document shows.
    const int right = m.right - (m.vscroll ? GetSystemMetrics(SM_CXVSCROLL) : 0);
    const int bottom = m.bottom - (m.hscroll ? GetSystemMetrics(SM_CYHSCROLL) : 0);
    const CSize area = ClientSize(client);
    return CRect(-m.left, -m.top, area.cx + right, area.cy + bottom);
}

// ---- Minimised windows ----

constexpr int kMinimizedWidth = 160; // a minimised document's title bar, as the framework's

bool IsMinimized(HWND child) {
    const WindowRecord* w = Find(child);
    return w && (w->style & WS_MINIMIZE);
}

// The minimised children stand side by side along the client's bottom edge, in the order they
// were minimised, in rows upwards when one row is full.
void ArrangeIcons(HWND client, const ClientState& state) {
    const CSize area = ClientSize(client);
    int slot = 0;
    for (HWND child : std::vector<HWND>(state.icons)) {
        const WindowRecord* w = Find(child);
        if (!w)
            continue;
        const FrameMetrics m = GetFrameMetrics(*w);
        const CSize size(kMinimizedWidth, 2 * m.border + m.caption);
        const int perRow = std::max<int>(1, area.cx / size.cx);
        const CPoint at(slot % perRow * size.cx, area.cy - (slot / perRow + 1) * size.cy);
        SetWindowPos(child, nullptr, at.x, at.y, size.cx, size.cy,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        ++slot;
    }
}

// A child leaving its minimised state gives up its place; the others close up.
void LeaveIcons(HWND client, HWND child) {
    if (ClientState* state = StateOf(client); state && std::erase(state->icons, child))
        ArrangeIcons(client, *state);
}

// ---- Activation, maximising, minimising and restoring ----

void Redraw(HWND hwnd) {
    if (WindowRecord* w = Find(hwnd))
        InvalidateFrame(*w);
}

void Maximize(HWND client, ClientState& state, HWND child) {
    WindowRecord* w = Find(child);
    if (!w)
        return;
    if (!(w->style & (WS_MAXIMIZE | WS_MINIMIZE)))
        state.restoreRects[child] = w->rect;
    w->style = (w->style & ~WS_MINIMIZE) | WS_MAXIMIZE;
    state.maximized = true;
    const CRect rect = MaximizedRect(client, *w);
    LeaveIcons(client, child);
    SetWindowPos(child, nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void Restore(HWND client, ClientState& state, HWND child) {
    WindowRecord* w = Find(child);
    if (!w || !(w->style & (WS_MAXIMIZE | WS_MINIMIZE)))
        return;
    w->style &= ~(WS_MAXIMIZE | WS_MINIMIZE);
    const auto it = state.restoreRects.find(child);
    const CRect rect = it != state.restoreRects.end() ? it->second : w->rect;
    state.restoreRects.erase(child);
    LeaveIcons(client, child);
    SetWindowPos(child, nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void Activate(HWND client, HWND child) {
    ClientState* state = StateOf(client);
    if (!state || (child && GetParent(child) != client))
        return;
    const HWND old = state->active;
    if (old == child)
        return;
    // A maximised set stays maximised: the new window takes the old one's place.
    const bool maximized = state->maximized;
    state->active = child;
    if (child)
        SetWindowPos(child, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    if (maximized && old)
        Restore(client, *state, old);
    if ((state = StateOf(client)) && maximized && child)
        Maximize(client, *state, child);
    Redraw(old);
    Redraw(child);
    if (IsWindow(old))
        SendMessage(old, WM_MDIACTIVATE, WPARAM(old), LPARAM(child));
    if (IsWindow(child)) {
        SendMessage(child, WM_MDIACTIVATE, WPARAM(old), LPARAM(child));
        // The keyboard follows the active document when its frame has it.
        const HWND frame = GetAncestor(client, GA_ROOT);
        const HWND focus = GetFocus();
        if (IsWindow(child) && GetActiveWindow() == frame && focus != child &&
            !IsChild(child, focus))
            SetFocus(child);
    }
}

// A minimised child ends the maximised state if it held it; the next document that is not
// minimised takes the activation and the keyboard.
void Minimize(HWND client, ClientState& state, HWND child) {
    WindowRecord* w = Find(child);
    if (!w || (w->style & WS_MINIMIZE))
        return;
    if (w->style & WS_MAXIMIZE)
        state.maximized = false;
    else
        state.restoreRects[child] = w->rect;
    w->style = (w->style & ~WS_MAXIMIZE) | WS_MINIMIZE;
    state.icons.push_back(child);
    ArrangeIcons(client, state);
    // The moves may have ended the client.
    const ClientState* now = StateOf(client);
    if (!now || now->active != child)
        return;
    for (HWND next : Children(client))
        if (next != child && !IsMinimized(next)) {
            Activate(client, next);
            return;
        }
}

// The next document window after (or before) `from` in the z-order, wrapping.
HWND Neighbour(HWND client, HWND from, bool previous) {
    const std::vector<HWND> children = Children(client);
    if (children.empty())
        return nullptr;
    const auto it = std::find(children.begin(), children.end(), from);
    if (it == children.end())
        return children.front();
    if (previous)
        return children.back();
    return std::next(it) == children.end() ? children.front() : *std::next(it);
}

// The documents that are not minimised, topmost first: those that cascading and tiling arrange.
std::vector<HWND> OpenChildren(HWND client) {
    std::vector<HWND> children = Children(client);
    std::erase_if(children, IsMinimized);
    return children;
}

void Cascade(HWND client) {
    std::vector<HWND> children = OpenChildren(client);
    std::reverse(children.begin(), children.end());
    if (ClientState* state = StateOf(client); state && state->maximized && state->active)
        Restore(client, *state, state->active), state->maximized = false;
    const CSize size = DefaultChildSize(client);
    int i = 0;
    for (HWND child : children) {
        SetWindowPos(child, nullptr, i * CascadeStep(), i * CascadeStep(), size.cx, size.cy,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        ++i;
    }
    if (ClientState* state = StateOf(client))
        state->nextCascade = i;
}

void Tile(HWND client) {
    const std::vector<HWND> children = OpenChildren(client);
    if (children.empty())
        return;
    if (ClientState* state = StateOf(client); state && state->maximized && state->active)
        Restore(client, *state, state->active), state->maximized = false;
    const int n = int(children.size());
    const int columns = int(std::ceil(std::sqrt(double(n))));
    const int rows = (n + columns - 1) / columns;
    const CSize area = ClientSize(client);
    for (int i = 0; i < n; ++i) {
        const int col = i % columns, row = i / columns;
        const CRect cell(area.cx * col / columns, area.cy * row / rows,
                         area.cx * (col + 1) / columns, area.cy * (row + 1) / rows);
        SetWindowPos(children[size_t(i)], nullptr, cell.left, cell.top, cell.Width(), cell.Height(),
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

// ---- The frame's caption ----

HWND MaximizedChild(const ClientState& state) {
    const WindowRecord* active = state.maximized ? Find(state.active) : nullptr;
    return active && (active->style & WS_MAXIMIZE) ? state.active : nullptr;
}

// Sets the frame's text without passing through its procedure, which would take it for a new
// title of its own.
void SetFrameText(HWND frame, const std::string& text) {
    DefWindowProc(frame, WM_SETTEXT, 0, LPARAM(text.c_str()));
}

// The frame reads "Frame - [Document]" while a document is maximised, and its own title again
// when none is. The bar's controls come and go with it.
void FollowMaximizedChild(HWND client) {
    ClientState* state = StateOf(client);
    const HWND frame = GetParent(client);
    WindowRecord* frameRecord = Find(frame);
    if (!state || !frameRecord)
        return;
    const HWND child = MaximizedChild(*state);
    if (child) {
        if (!state->frameTitle)
            state->frameTitle = frameRecord->text;
        const WindowRecord* childRecord = Find(child);
        SetFrameText(frame, *state->frameTitle + " - [" + childRecord->text + "]");
    } else if (state->frameTitle) {
        const std::string title = std::move(*state->frameTitle);
        state->frameTitle.reset();
        SetFrameText(frame, title);
    }
    if ((frameRecord = Find(frame)))
        InvalidateFrame(*frameRecord);
}

// ---- The client's procedure ----

LRESULT HandleClientMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        Clients()[hwnd] = ClientState{};
        return DefWindowProc(hwnd, message, wParam, lParam);
    case WM_NCDESTROY:
        Clients().erase(hwnd);
        return DefWindowProc(hwnd, message, wParam, lParam);
    case WM_MDICREATE: {
        const auto* mdi = reinterpret_cast<const MDICREATESTRUCT*>(lParam);
        if (!mdi)
            return 0;
        const CRect rect =
            PlaceNewChild(hwnd, CRect(mdi->x, mdi->y, mdi->x + mdi->cx, mdi->y + mdi->cy));
        const HWND child = CreateWindowEx(WS_EX_MDICHILD, mdi->szClass, mdi->szTitle,
                                          mdi->style | WS_CHILD | WS_CLIPSIBLINGS, rect.left,
                                          rect.top, rect.Width(), rect.Height(), hwnd, nullptr,
                                          nullptr, reinterpret_cast<LPVOID>(mdi->lParam));
        AdoptChild(hwnd, child);
        return LRESULT(child);
    }
    case WM_MDIDESTROY:
        DestroyWindow(HWND(wParam));
        return 0;
    case WM_MDIACTIVATE:
        Activate(hwnd, HWND(wParam));
        return 0;
    case WM_MDIGETACTIVE: {
        const ClientState* state = StateOf(hwnd);
        if (auto* maximized = reinterpret_cast<BOOL*>(lParam))
            *maximized = state && state->active && state->maximized;
        return state ? LRESULT(state->active) : 0;
    }
    case WM_MDIMAXIMIZE:
        if (ClientState* state = StateOf(hwnd); state && GetParent(HWND(wParam)) == hwnd) {
            Activate(hwnd, HWND(wParam));
            if ((state = StateOf(hwnd)))
                Maximize(hwnd, *state, HWND(wParam));
        }
        return 0;
    case WM_MDIRESTORE:
        if (ClientState* state = StateOf(hwnd); state && GetParent(HWND(wParam)) == hwnd) {
            const HWND child = HWND(wParam);
            const bool minimized = IsMinimized(child);
            Restore(hwnd, *state, child);
            if (child == state->active)
                state->maximized = false;
            // A document brought back from its title bar becomes the active one.
            if (minimized)
                Activate(hwnd, child);
        }
        return 0;
    case WM_MDINEXT:
        if (ClientState* state = StateOf(hwnd)) {
            const HWND from = wParam ? HWND(wParam) : state->active;
            const HWND next = Neighbour(hwnd, from, lParam != 0);
            Activate(hwnd, next);
            // Going forward sends the old window to the back, as the framework does.
            if (!lParam && from && from != next)
                SetWindowPos(from, HWND_BOTTOM, 0, 0, 0, 0,
                             SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        }
        return 0;
    case WM_MDICASCADE:
        Cascade(hwnd);
        return TRUE;
    case WM_MDITILE:
        Tile(hwnd);
        return TRUE;
    case WM_SIZE:
        if (ClientState* state = StateOf(hwnd)) {
            ArrangeIcons(hwnd, *state); // they keep to the bottom edge
            if (state->maximized && state->active)
                if (const WindowRecord* child = Find(state->active)) {
                    const CRect rect = MaximizedRect(hwnd, *child);
                    SetWindowPos(state->active, nullptr, rect.left, rect.top, rect.Width(),
                                 rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
                }
        }
        return 0;
    default:
        return DefWindowProc(hwnd, message, wParam, lParam);
    }
}

LRESULT MdiClientProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = HandleClientMessage(hwnd, message, wParam, lParam);
    // Each MDI message may have changed which document is maximised; the client may be gone.
    if (message >= WM_MDICREATE && message <= WM_MDICASCADE && IsWindow(hwnd))
        FollowMaximizedChild(hwnd);
    return result;
}

} // namespace

const char* const kMdiClientClass = "MDIClient";

void RegisterMdiClientClass() {
    WNDCLASS cls{};
    if (GetClassInfo(nullptr, kMdiClientClass, &cls))
        return;
    cls.lpfnWndProc = MdiClientProc;
    cls.hCursor = LoadCursor(nullptr, IDC_ARROW);
    cls.hbrBackground = reinterpret_cast<HBRUSH>(std::uintptr_t(COLOR_APPWORKSPACE + 1));
    cls.lpszClassName = kMdiClientClass;
    RegisterClass(&cls);
}

CRect PlaceNewChild(HWND client, CRect requested) {
    ClientState* state = StateOf(client);
    if (!state)
        return requested;
    if (requested.left == CW_USEDEFAULT) {
        const CSize area = ClientSize(client);
        const CSize size = DefaultChildSize(client);
        int step = state->nextCascade * CascadeStep();
        // Start the cascade again when the next window would run off the client.
        if (step + size.cx > area.cx || step + size.cy > area.cy) {
            state->nextCascade = 0;
            step = 0;
        }
        ++state->nextCascade;
        return CRect(CPoint(step, step), size);
    }
    return requested;
}

void AdoptChild(HWND client, HWND child) {
    WindowRecord* w = Find(child);
    if (!w || GetParent(child) != client)
        return;
    // A window created with WS_MAXIMIZE opens maximised, its created rectangle kept for
    // restoring.
    const bool maximize = (w->style & WS_MAXIMIZE) != 0;
    w->style &= ~WS_MAXIMIZE;
    Activate(client, child);
    if (ClientState* state = StateOf(client); state && maximize && IsWindow(child))
        Maximize(client, *state, child);
    FollowMaximizedChild(client);
}

void ChildGoing(HWND client, HWND child) {
    ClientState* state = StateOf(client);
    if (!state)
        return;
    state->restoreRects.erase(child);
    LeaveIcons(client, child);
    if ((state = StateOf(client)) == nullptr || state->active != child)
        return;
    const bool maximized = state->maximized;
    state->active = nullptr;
    std::vector<HWND> rest = Children(client);
    std::erase(rest, child);
    if (!rest.empty()) {
        Activate(client, rest.front());
        if ((state = StateOf(client)) && maximized && state->active)
            Maximize(client, *state, state->active);
    } else {
        state->maximized = false;
    }
    FollowMaximizedChild(client);
}

HWND MaximizedMdiChild(HWND frame) {
    const WindowRecord* w = Find(frame);
    if (!w)
        return nullptr;
    for (HWND child : w->children)
        if (const ClientState* state = StateOf(child))
            return MaximizedChild(*state);
    return nullptr;
}

HWND ActiveMdiChild(HWND client) {
    const ClientState* state = StateOf(client);
    return state ? state->active : nullptr;
}

} // namespace wm

// ---- DefMDIChildProc and DefFrameProc ----

using namespace wm;

LRESULT DefMDIChildProc(HWND child, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND client = GetParent(child);
    switch (message) {
    case WM_MOUSEACTIVATE:
        // A click anywhere in a document window makes it the active one.
        if (ActiveMdiChild(client) != child) {
            Activate(client, child);
            FollowMaximizedChild(client);
        }
        break;
    case WM_CHILDACTIVATE:
        Activate(client, child);
        FollowMaximizedChild(client);
        return 0;
    case WM_NCHITTEST: {
        // A minimised document is moved by any part of its frame, never sized.
        const LRESULT hit = DefWindowProc(child, message, wParam, lParam);
        if (IsMinimized(child) && hit >= HTLEFT && hit <= HTBOTTOMRIGHT)
            return HTCAPTION;
        return hit;
    }
    case WM_SETTEXT: {
        // The frame's caption shows the maximised document's new title.
        const LRESULT result = DefWindowProc(child, message, wParam, lParam);
        if (IsWindow(client))
            FollowMaximizedChild(client);
        return result;
    }
    case WM_DESTROY:
        ChildGoing(client, child);
        break;
    case WM_SYSCOMMAND:
        switch (wParam & 0xFFF0) {
        case SC_MAXIMIZE:
            SendMessage(client, WM_MDIMAXIMIZE, WPARAM(child), 0);
            return 0;
        case SC_RESTORE:
            SendMessage(client, WM_MDIRESTORE, WPARAM(child), 0);
            return 0;
        case SC_MINIMIZE:
            // A minimised document's first caption button is its restore button.
            if (IsMinimized(child)) {
                SendMessage(client, WM_MDIRESTORE, WPARAM(child), 0);
            } else if (ClientState* state = StateOf(client)) {
                Minimize(client, *state, child);
                FollowMaximizedChild(client);
            }
            return 0;
        case SC_NEXTWINDOW:
            SendMessage(client, WM_MDINEXT, WPARAM(child), 0);
            return 0;
        default:
            break;
        }
        break;
    default:
        break;
    }
    return DefWindowProc(child, message, wParam, lParam);
}

BOOL TranslateMDISysAccel(HWND mdiClient, MSG* msg) {
    if (!msg || (msg->message != WM_KEYDOWN && msg->message != WM_SYSKEYDOWN) ||
        GetKeyState(VK_CONTROL) >= 0 || (msg->wParam != VK_F4 && msg->wParam != VK_F6))
        return FALSE;
    const HWND active = ActiveMdiChild(mdiClient);
    if (!active)
        return FALSE;
    if (msg->wParam == VK_F4)
        SendMessage(active, WM_SYSCOMMAND, SC_CLOSE, 0);
    else
        SendMessage(mdiClient, WM_MDINEXT, WPARAM(active), GetKeyState(VK_SHIFT) < 0 ? 1 : 0);
    return TRUE;
}

LRESULT DefFrameProc(HWND frame, HWND mdiClient, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
        // The client fills the frame's client area.
        if (IsWindow(mdiClient))
            MoveWindow(mdiClient, 0, 0, LOWORD(std::uintptr_t(lParam)),
                       HIWORD(std::uintptr_t(lParam)), TRUE);
        return 0;
    case WM_ACTIVATE:
        // The active document's caption follows the frame's.
        Redraw(ActiveMdiChild(mdiClient));
        if (LOWORD(wParam) != WA_INACTIVE)
            if (const HWND active = ActiveMdiChild(mdiClient)) {
                SetFocus(active);
                return 0;
            }
        break;
    case WM_SETFOCUS:
        if (const HWND active = ActiveMdiChild(mdiClient)) {
            SetFocus(active);
            return 0;
        }
        break;
    case WM_SETTEXT:
        // While a document is maximised the application's title is the part before its name.
        if (ClientState* state = StateOf(mdiClient); state && state->frameTitle) {
            const auto* text = reinterpret_cast<const char*>(lParam);
            state->frameTitle = text ? text : "";
            FollowMaximizedChild(mdiClient);
            return TRUE;
        }
        break;
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
        if (wParam == HTMENU &&
            PressMdiBarControl(frame, CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam))))
            return 0;
        break;
    default:
        break;
    }
    return DefWindowProc(frame, message, wParam, lParam);
}
