// The standard controls' shared machinery: class registration, the table of behaviours by
// window, and the notifications, colours and font that a control takes from its parent.

#include "platform/widgets/ControlWindow.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"

#include <unordered_map>

namespace widgets {

// The live behaviours. `busy` counts the handlers of a window that are running, so that a
// window destroyed from inside one of them keeps its behaviour until the outermost returns.
// Shared by the process: the user-interface thread alone touches it.
struct BehaviourTable {
    struct Entry {
        std::unique_ptr<ControlBehaviour> behaviour;
        int busy = 0;
    };
    static std::unordered_map<HWND, Entry>& Entries() {
        static auto& entries = *new std::unordered_map<HWND, Entry>;
        return entries;
    }
    static void MarkDestroyed(ControlBehaviour& b) { b.m_destroyed = true; }
    static LRESULT Answer(ControlBehaviour& b, UINT message, WPARAM wParam, LPARAM lParam);
};

LRESULT BehaviourTable::Answer(ControlBehaviour& b, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT: {
        PAINTSTRUCT ps;
        HDC dc = ::BeginPaint(b.Window(), &ps);
        if (CDC* cdc = CDC::FromHandle(dc))
            b.Paint(*cdc);
        ::EndPaint(b.Window(), &ps);
        return 0;
    }
    default:
        return b.Handle(message, wParam, lParam);
    }
}

LRESULT RunBehaviour(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, BehaviourFactory make) {
    auto& entries = BehaviourTable::Entries();
    auto it = entries.find(hwnd);
    if (it == entries.end()) {
        if (message != WM_NCCREATE)
            return ::DefWindowProc(hwnd, message, wParam, lParam);
        it = entries.emplace(hwnd, BehaviourTable::Entry{make(hwnd), 0}).first;
    }
    // References to map elements outlive rehashing; only erasing this entry ends them.
    BehaviourTable::Entry& entry = it->second;
    ++entry.busy;
    const LRESULT result = BehaviourTable::Answer(*entry.behaviour, message, wParam, lParam);
    if (message == WM_NCDESTROY)
        BehaviourTable::MarkDestroyed(*entry.behaviour);
    if (--entry.busy == 0 && !entry.behaviour->Alive())
        entries.erase(hwnd);
    return result;
}

ControlBehaviour* FindBehaviour(HWND hwnd) {
    auto& entries = BehaviourTable::Entries();
    const auto it = entries.find(hwnd);
    return it == entries.end() || !it->second.behaviour->Alive() ? nullptr
                                                                 : it->second.behaviour.get();
}

bool RegisterControlClassWith(LPCSTR name, WNDPROC procedure, UINT classStyle, LPCSTR cursor) {
    WNDCLASS wc{};
    wc.style = classStyle | CS_GLOBALCLASS;
    wc.lpfnWndProc = procedure;
    wc.hCursor = LoadCursor(nullptr, cursor);
    wc.lpszClassName = name;
    return RegisterClass(&wc) != FALSE;
}

bool ControlBehaviour::NotifyParent(UINT code) {
    const HWND parent = ::GetParent(m_hwnd);
    if (parent && (Style() & WS_CHILD)) {
        const int id = ::GetDlgCtrlID(m_hwnd);
        ::SendMessage(parent, WM_COMMAND, MAKEWPARAM(WORD(id), WORD(code)), LPARAM(m_hwnd));
    }
    return Alive();
}

CFont* ControlFont(HWND hwnd) {
    HFONT font = reinterpret_cast<HFONT>(::SendMessage(hwnd, WM_GETFONT, 0, 0));
    if (!font)
        font = HFONT(GetStockObject(DEFAULT_GUI_FONT));
    return CFont::FromHandle(font);
}

HBRUSH ControlColors(HWND hwnd, CDC& dc, UINT ctlColorMessage, int defaultBackground,
                     int defaultText) {
    const auto applyDefaults = [&] {
        dc.SetTextColor(GetSysColor(defaultText));
        dc.SetBkColor(GetSysColor(defaultBackground));
    };
    applyDefaults();
    const HWND parent = ::GetParent(hwnd);
    HBRUSH brush = nullptr;
    if (parent && (GetWindowLong(hwnd, GWL_STYLE) & WS_CHILD))
        brush = reinterpret_cast<HBRUSH>(
            ::SendMessage(parent, ctlColorMessage, WPARAM(dc.GetSafeHdc()), LPARAM(hwnd)));
    if (brush)
        return brush;
    applyDefaults();
    return GetSysColorBrush(defaultBackground);
}

} // namespace widgets
