// The keyboard interface of dialogs: which control Tab, Shift+Tab and the arrow keys lead to,
// what Enter and Escape press, and which control a mnemonic ("&" in a label) activates.

#include "platform/window/DialogApi.h"
#include "platform/window/MenuRecord.h"

#include <cctype>
#include <string>
#include <vector>

namespace {

bool CanTakeFocus(HWND control) {
    const DWORD style = DWORD(GetWindowLong(control, GWL_STYLE));
    return (style & WS_VISIBLE) && !(style & WS_DISABLED);
}

DWORD StyleOf(HWND control) {
    return DWORD(GetWindowLong(control, GWL_STYLE));
}

// The dialog's own control that holds `control`, as a combo box holds its edit; null for a
// window outside the dialog.
HWND OwnControl(HWND dialog, HWND control) {
    while (control && (StyleOf(control) & WS_CHILD) && GetParent(control) != dialog)
        control = GetParent(control);
    return control && GetParent(control) == dialog && (StyleOf(control) & WS_CHILD) ? control
                                                                                    : nullptr;
}

std::vector<HWND> ChildrenOf(HWND dialog) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

// The first window from `start` on (or back from it), wrapping around and stopping before
// `start` comes round again, that `accept` takes; null when none does.
template <typename Accept>
HWND FindAround(const std::vector<HWND>& windows, size_t start, bool previous, Accept accept) {
    const size_t n = windows.size();
    for (size_t step = 1; step <= n; ++step) {
        const size_t i = previous ? (start + n * 2 - step) % n : (start + step) % n;
        if (accept(windows[i]))
            return windows[i];
    }
    return nullptr;
}

UINT DlgCode(HWND control, const MSG* msg) {
    return UINT(SendMessage(control, WM_GETDLGCODE, msg ? msg->wParam : 0, LPARAM(msg)));
}

// Enter: the focus push button, or else the dialog's default button, or else IDOK.
void PressDefault(HWND dialog, HWND focus, UINT focusCode) {
    int id = IDOK;
    if (focusCode & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) {
        id = GetDlgCtrlID(focus);
    } else {
        const auto defId = DWORD(SendMessage(dialog, DM_GETDEFID, 0, 0));
        if (HIWORD(defId) == DC_HASDEFID)
            id = LOWORD(defId);
    }
    const HWND button = GetDlgItem(dialog, id);
    if (button && !IsWindowEnabled(button))
        return;
    SendMessage(dialog, WM_COMMAND, MAKEWPARAM(WORD(id), BN_CLICKED), LPARAM(button));
}

// The dialog's meaning of a key, or false when the key is the control's.
bool HandleKeyDown(HWND dialog, const MSG& msg) {
    const HWND focus = msg.hwnd;
    const UINT code = DlgCode(focus, &msg);
    if (code & DLGC_WANTALLKEYS)
        return false;
    switch (msg.wParam) {
    case VK_TAB:
        if (code & DLGC_WANTTAB)
            return false;
        SendMessage(dialog, WM_NEXTDLGCTL, GetKeyState(VK_SHIFT) < 0 ? 1 : 0, 0);
        return true;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN: {
        if (code & DLGC_WANTARROWS)
            return false;
        const bool previous = msg.wParam == VK_LEFT || msg.wParam == VK_UP;
        const HWND next = GetNextDlgGroupItem(dialog, focus, previous);
        if (!next || next == focus)
            return true;
        SendMessage(dialog, WM_NEXTDLGCTL, WPARAM(next), TRUE);
        // Moving onto a radio button chooses it, as clicking it would.
        if (GetFocus() == next && (DlgCode(next, nullptr) & DLGC_RADIOBUTTON))
            SendMessage(next, BM_CLICK, 0, 0);
        return true;
    }
    case VK_RETURN:
        PressDefault(dialog, focus, code);
        return true;
    case VK_ESCAPE:
        SendMessage(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                    LPARAM(GetDlgItem(dialog, IDCANCEL)));
        return true;
    default:
        return false;
    }
}

// The characters of the keys the dialog took must not reach the control as text.
bool SwallowChar(const MSG& msg) {
    const UINT code = DlgCode(msg.hwnd, &msg);
    if (code & DLGC_WANTALLKEYS)
        return false;
    switch (msg.wParam) {
    case '\t':
        return !(code & DLGC_WANTTAB);
    case '\r':
    case 0x1B:
        return true;
    default:
        return false;
    }
}

// Labels show their mnemonic unless a static asks for its "&" as it stands.
bool HasMnemonics(HWND control, UINT code) {
    if (code & DLGC_BUTTON)
        return true;
    return (code & DLGC_STATIC) && !(StyleOf(control) & SS_NOPREFIX);
}

char MnemonicOf(HWND control) {
    std::string text(size_t(GetWindowTextLength(control)) + 1, '\0');
    text.resize(size_t(GetWindowText(control, text.data(), int(text.size()))));
    return wm::MenuMnemonic(text);
}

// What choosing a control by its mnemonic does: a label hands the focus to the control after it,
// a push button is pressed, a check box or radio button takes the focus and is clicked.
void ActivateByMnemonic(HWND dialog, HWND control, UINT code) {
    if (code & DLGC_STATIC) {
        const HWND next = GetNextDlgTabItem(dialog, control, FALSE);
        if (next)
            SendMessage(dialog, WM_NEXTDLGCTL, WPARAM(next), TRUE);
        return;
    }
    if (!(code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)))
        SendMessage(dialog, WM_NEXTDLGCTL, WPARAM(control), TRUE);
    // The focus handlers may have closed the dialog or the control.
    if (IsWindow(control))
        SendMessage(control, BM_CLICK, 0, 0);
}

// Looks for the labels that mark `ch`, from the one after the focus on. One is activated; of
// several, the next takes the focus only, so that pressing the key again reaches the others.
bool HandleMnemonic(HWND dialog, HWND focus, UINT ch) {
    const char key = char(std::tolower(int(ch & 0xFF)));
    if (ch < ' ' || key == 0)
        return false;
    const std::vector<HWND> children = ChildrenOf(dialog);
    const size_t n = children.size();
    const HWND own = OwnControl(dialog, focus);
    size_t start = n - 1; // without a focus control the search begins with the first
    for (size_t i = 0; i < n; ++i)
        if (children[i] == own)
            start = i;
    HWND first = nullptr;
    int matches = 0;
    for (size_t step = 1; step <= n; ++step) {
        const HWND h = children[(start + step) % n];
        if (CanTakeFocus(h) && HasMnemonics(h, DlgCode(h, nullptr)) && MnemonicOf(h) == key) {
            first = first ? first : h;
            ++matches;
        }
    }
    if (!first)
        return false;
    const UINT code = DlgCode(first, nullptr);
    if (matches == 1 || (code & DLGC_STATIC))
        ActivateByMnemonic(dialog, first, code);
    else
        SendMessage(dialog, WM_NEXTDLGCTL, WPARAM(first), TRUE);
    return true;
}

} // namespace

HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous) {
    control = OwnControl(dialog, control);
    const std::vector<HWND> children = ChildrenOf(dialog);
    if (children.empty())
        return nullptr;
    const auto isStop = [](HWND h) { return (StyleOf(h) & WS_TABSTOP) && CanTakeFocus(h); };
    size_t start = previous ? 0 : children.size() - 1; // so that the search begins at an end
    for (size_t i = 0; i < children.size(); ++i)
        if (children[i] == control)
            start = i;
    return FindAround(children, start, previous != FALSE, isStop);
}

HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous) {
    control = OwnControl(dialog, control);
    const std::vector<HWND> children = ChildrenOf(dialog);
    size_t at = children.size();
    for (size_t i = 0; i < children.size(); ++i)
        if (children[i] == control)
            at = i;
    if (at == children.size())
        return nullptr;
    // The group: back to its WS_GROUP control, forward up to the next one.
    size_t first = at;
    while (first > 0 && !(StyleOf(children[first]) & WS_GROUP))
        --first;
    size_t end = at + 1;
    while (end < children.size() && !(StyleOf(children[end]) & WS_GROUP))
        ++end;
    const std::vector<HWND> group(children.begin() + std::ptrdiff_t(first),
                                  children.begin() + std::ptrdiff_t(end));
    const HWND found = FindAround(group, at - first, previous != FALSE, CanTakeFocus);
    return found ? found : control;
}

BOOL IsDialogMessage(HWND dialog, MSG* msg) {
    if (!dialog || !msg || (msg->hwnd != dialog && !IsChild(dialog, msg->hwnd)))
        return FALSE;
    if (msg->message == WM_KEYDOWN && HandleKeyDown(dialog, *msg))
        return TRUE;
    if (msg->message == WM_CHAR && SwallowChar(*msg))
        return TRUE;
    // Alt+letter always looks for a mnemonic; the bare letter only where the focus control
    // does not take it as text.
    if (msg->message == WM_SYSCHAR && HandleMnemonic(dialog, msg->hwnd, UINT(msg->wParam)))
        return TRUE;
    if (msg->message == WM_CHAR &&
        !(DlgCode(msg->hwnd, msg) & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) &&
        HandleMnemonic(dialog, msg->hwnd, UINT(msg->wParam)))
        return TRUE;
    TranslateMessage(msg);
    DispatchMessage(msg);
    return TRUE;
}
