// Sending, posting and the pump. The pump takes, in this order: posted messages, then input
// (the mouse's finds its window only when its turn comes), then WM_QUIT, then WM_PAINT for
// windows that need painting, then WM_TIMER for due timers, so that a posted message always
// overtakes the paint it causes, and typed characters made by TranslateMessage overtake the
// next key.

#include "platform/window/WindowRecord.h"

#include "platform/host/Host.h"
#include "platform/window/Input.h"
#include "platform/window/Wnd.h"

#include <deque>
#include <optional>

namespace wm {
namespace {

struct Timer {
    HWND hwnd;
    UINT_PTR id;
    UINT interval;
    DWORD due;
    TIMERPROC proc;
};

// The queues of the one user-interface thread.
struct Queues {
    std::deque<MSG> posted;
    std::deque<MSG> input;
    std::optional<int> quitCode;
    std::vector<Timer> timers;
    UINT_PTR nextThreadTimerId = 0x7FF0;
    MSG last{}; // the message most recently taken from a queue
};

Queues& Q() {
    static Queues& queues = *new Queues;
    return queues;
}

MSG Make(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG msg{hwnd, message, wParam, lParam, GetHost().Now(), {}};
    GetCursorPos(&msg.pt);
    return msg;
}

bool Matches(const MSG& m, HWND hwnd, UINT lo, UINT hi) {
    if (hwnd && m.hwnd != hwnd && !IsChild(hwnd, m.hwnd))
        return false;
    return (lo == 0 && hi == 0) || (m.message >= lo && m.message <= hi);
}

bool TakeFrom(std::deque<MSG>& queue, MSG* msg, HWND hwnd, UINT lo, UINT hi, bool remove) {
    for (auto it = queue.begin(); it != queue.end(); ++it) {
        if (!Matches(*it, hwnd, lo, hi))
            continue;
        *msg = *it;
        if (remove)
            queue.erase(it);
        return true;
    }
    return false;
}

// Takes the first input that matches, routing the mouse's input on the way as its turn comes,
// so that a press is handled before the release behind it finds its window.
bool TakeInput(MSG* msg, HWND hwnd, UINT lo, UINT hi, bool remove) {
    std::deque<MSG>& input = Q().input;
    for (size_t i = 0; i < input.size();) {
        if (input[i].hwnd == nullptr) {
            // What routing posts takes the place of the unrouted input, before what follows.
            const MSG raw = input[i];
            std::deque<MSG> later(input.begin() + std::ptrdiff_t(i) + 1, input.end());
            input.erase(input.begin() + std::ptrdiff_t(i), input.end());
            RouteQueuedMouse(raw);
            input.insert(input.end(), later.begin(), later.end());
            continue;
        }
        if (Matches(input[i], hwnd, lo, hi)) {
            *msg = input[i];
            if (remove)
                input.erase(input.begin() + std::ptrdiff_t(i));
            return true;
        }
        ++i;
    }
    return false;
}

// The due timer that fires first (earliest due time, then the one set first).
Timer* DueTimer(HWND hwnd) {
    const DWORD now = GetHost().Now();
    Timer* best = nullptr;
    for (Timer& t : Q().timers) {
        if (hwnd && t.hwnd != hwnd)
            continue;
        if (DWORD(now - t.due) < 0x80000000u && (!best || DWORD(t.due - best->due) >= 0x80000000u))
            best = &t;
    }
    return best;
}

} // namespace

LRESULT Send(WindowRecord* w, UINT message, WPARAM wParam, LPARAM lParam) {
    return w && w->proc ? w->proc(w->handle, message, wParam, lParam) : 0;
}

void PostInput(const MSG& msg) {
    Q().input.push_back(msg);
}

void RemoveMessagesFor(HWND hwnd) {
    std::erase_if(Q().posted, [hwnd](const MSG& m) { return m.hwnd == hwnd; });
    std::erase_if(Q().input, [hwnd](const MSG& m) { return m.hwnd == hwnd; });
}

void KillTimersOf(HWND hwnd) {
    std::erase_if(Q().timers, [hwnd](const Timer& t) { return t.hwnd == hwnd; });
}

// The next time a timer comes due, for waiting on the host.
std::optional<DWORD> NextTimerDue() {
    std::optional<DWORD> next;
    for (const Timer& t : Q().timers)
        if (!next || DWORD(t.due - *next) >= 0x80000000u)
            next = t.due;
    return next;
}

} // namespace wm

using namespace wm;

LRESULT SendMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    return Send(Find(hwnd), message, wParam, lParam);
}

BOOL PostMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (hwnd && !Find(hwnd))
        return FALSE;
    Q().posted.push_back(Make(hwnd, message, wParam, lParam));
    return TRUE;
}

LRESULT SendDlgItemMessage(HWND parent, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    return SendMessage(GetDlgItem(parent, id), message, wParam, lParam);
}

void PostQuitMessage(int exitCode) {
    Q().quitCode = exitCode;
}

BOOL PeekMessage(MSG* msg, HWND hwnd, UINT lo, UINT hi, UINT removeFlags) {
    if (!msg)
        return FALSE;
    const bool remove = (removeFlags & PM_REMOVE) != 0;
    Queues& q = Q();
    // Routing the mouse sends messages (a scroll bar's, a hit test) whose handlers may post:
    // what they post is taken before the queue counts as empty.
    bool got = TakeFrom(q.posted, msg, hwnd, lo, hi, remove) ||
               TakeInput(msg, hwnd, lo, hi, remove) ||
               TakeFrom(q.posted, msg, hwnd, lo, hi, remove);
    if (!got && q.quitCode && !hwnd) {
        *msg = Make(nullptr, WM_QUIT, WPARAM(*q.quitCode), 0);
        if (remove)
            q.quitCode.reset();
        got = true;
    }
    if (!got && ((lo == 0 && hi == 0) || (WM_PAINT >= lo && WM_PAINT <= hi))) {
        HWND paint = NextWindowToPaint();
        if (paint && (!hwnd || paint == hwnd || IsChild(hwnd, paint))) {
            *msg = Make(paint, WM_PAINT, 0, 0);
            got = true;
        }
    }
    if (!got && ((lo == 0 && hi == 0) || (WM_TIMER >= lo && WM_TIMER <= hi))) {
        if (Timer* t = DueTimer(hwnd)) {
            *msg = Make(t->hwnd, WM_TIMER, t->id, LPARAM(t->proc));
            if (remove)
                t->due = GetHost().Now() + t->interval;
            got = true;
        }
    }
    if (got && remove)
        q.last = *msg;
    return got;
}

BOOL GetMessage(MSG* msg, HWND hwnd, UINT lo, UINT hi) {
    for (;;) {
        if (PeekMessage(msg, hwnd, lo, hi, PM_REMOVE))
            return msg->message != WM_QUIT;
        if (!GetHost().WaitForEvents(NextTimerDue())) {
            *msg = Make(nullptr, WM_QUIT, 0, 0);
            return FALSE;
        }
    }
}

LRESULT DispatchMessage(const MSG* msg) {
    if (!msg)
        return 0;
    if (msg->message == WM_TIMER && msg->lParam) {
        reinterpret_cast<TIMERPROC>(msg->lParam)(msg->hwnd, WM_TIMER, msg->wParam,
                                                 DWORD(GetHost().Now()));
        return 0;
    }
    WindowRecord* w = Find(msg->hwnd);
    if (!w)
        return 0;
    if (msg->message != WM_PAINT)
        return Send(w, msg->message, msg->wParam, msg->lParam);
    // The frame first, so that it is drawn even for windows that paint without BeginPaint.
    if (w->frameDirty) {
        w->frameDirty = false;
        Send(w, WM_NCPAINT, 1, 0);
        if ((w = Find(msg->hwnd)) == nullptr || w->update.IsRectEmpty())
            return 0;
    }
    // A paint handler that neither paints nor validates would be asked again for ever.
    const CRect before = w->update;
    const LRESULT result = Send(w, WM_PAINT, 0, 0);
    if ((w = Find(msg->hwnd)) != nullptr && w->update == before)
        w->update.SetRectEmpty();
    return result;
}

LRESULT CallWindowProc(WNDPROC proc, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    return proc ? proc(hwnd, message, wParam, lParam) : 0;
}

DWORD GetMessagePos() {
    const MSG& last = Q().last;
    return MAKELONG(WORD(last.pt.x), WORD(last.pt.y));
}

LONG GetMessageTime() {
    return LONG(Q().last.time);
}

DWORD GetTickCount() {
    return GetHost().Now();
}

UINT RegisterWindowMessage(LPCSTR name) {
    // Registered messages share one range, one number for each name, for the process's life.
    static std::map<std::string, UINT>& registered = *new std::map<std::string, UINT>;
    if (!name || !*name)
        return 0;
    const auto [it, inserted] = registered.emplace(name, UINT(0xC000 + registered.size()));
    return it->second;
}

bool PumpMessages() {
    MSG msg;
    while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (msg.message == WM_QUIT)
            return true;
        if (CWnd::WalkPreTranslateTree(&msg))
            continue;
        TranslateMessage(&msg);
        DispatchMessage(&msg);
    }
    return false;
}

UINT_PTR SetTimer(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc) {
    if (hwnd && !Find(hwnd))
        return 0;
    constexpr UINT minimum = 10; // the framework never fires a timer sooner than this
    elapse = std::max(elapse, minimum);
    if (!hwnd)
        id = ++Q().nextThreadTimerId;
    const DWORD due = GetHost().Now() + elapse;
    for (Timer& t : Q().timers) {
        if (t.hwnd == hwnd && t.id == id) {
            t = Timer{hwnd, id, elapse, due, proc};
            return hwnd ? (id ? id : 1) : id;
        }
    }
    Q().timers.push_back(Timer{hwnd, id, elapse, due, proc});
    return hwnd ? (id ? id : 1) : id;
}

BOOL KillTimer(HWND hwnd, UINT_PTR id) {
    return std::erase_if(Q().timers, [&](const Timer& t) { return t.hwnd == hwnd && t.id == id; }) >
           0;
}

std::optional<DWORD> NextTimerDueTime() {
    return NextTimerDue();
}
