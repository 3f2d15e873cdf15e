// The dialog window class and its default procedure: the default push button, moving the focus
// between controls, Close as Cancel, and the focus control kept while the dialog is inactive.

#include "platform/window/DialogApi.h"

#include "platform/system/SysColors.h"

#include <optional>

namespace {

constexpr char kDialogClass[] = "#32770";
// Window properties of a dialog: the default button's id plus one (0 for none), and the
// control that had the focus when the dialog was last deactivated.
constexpr char kDefaultIdProp[] = "DialogDefaultId";
constexpr char kFocusProp[] = "DialogFocus";

UINT DlgCode(HWND control) {
    return UINT(SendMessage(control, WM_GETDLGCODE, 0, 0));
}

bool IsPushButton(UINT code) {
    return (code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

std::optional<int> DefaultId(HWND dialog) {
    const auto stored = reinterpret_cast<std::uintptr_t>(GetProp(dialog, kDefaultIdProp));
    if (stored == 0)
        return std::nullopt;
    return int(stored - 1);
}

// The default look goes to the push button that has the focus, or else to the dialog's default
// button; every other push button loses it.
void ShowDefaultLook(HWND dialog, HWND focus) {
    HWND wanted = nullptr;
    if (focus && IsChild(dialog, focus) && IsPushButton(DlgCode(focus)))
        wanted = focus;
    else if (const auto id = DefaultId(dialog))
        wanted = GetDlgItem(dialog, *id);
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const UINT code = DlgCode(child);
        if (!IsPushButton(code))
            continue;
        const bool looksDefault = (code & DLGC_DEFPUSHBUTTON) != 0;
        if ((child == wanted) != looksDefault)
            SendMessage(child, BM_SETSTYLE, child == wanted ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON,
                        TRUE);
    }
}

// Gives the focus to a control as the keyboard interface does: an edit selects all its text.
void FocusControl(HWND dialog, HWND control) {
    if (!control)
        return;
    SetFocus(control);
    // The focus handlers may have moved the focus on or destroyed the control.
    if (GetFocus() != control)
        return;
    if (DlgCode(control) & DLGC_HASSETSEL)
        SendMessage(control, EM_SETSEL, 0, -1);
    ShowDefaultLook(dialog, control);
}

// The control the focus returns to when the dialog is activated again.
HWND FocusToRestore(HWND dialog) {
    const HWND saved = reinterpret_cast<HWND>(GetProp(dialog, kFocusProp));
    if (saved && IsChild(dialog, saved) && IsWindowEnabled(saved) && IsWindowVisible(saved))
        return saved;
    return GetNextDlgTabItem(dialog, nullptr, FALSE);
}

} // namespace

LPCSTR DialogClassName() {
    static const bool registered = [] {
        WNDCLASS wc{CS_DBLCLKS | CS_SAVEBITS,
                    DefDlgProc,
                    0,
                    0,
                    nullptr,
                    nullptr,
                    LoadCursor(nullptr, IDC_ARROW),
                    reinterpret_cast<HBRUSH>(std::uintptr_t(COLOR_BTNFACE + 1)),
                    nullptr,
                    kDialogClass};
        return RegisterClass(&wc) != FALSE;
    }();
    return registered ? kDialogClass : nullptr;
}

LRESULT DefDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case DM_GETDEFID: {
        const auto id = DefaultId(dialog);
        return id ? LRESULT(MAKELONG(WORD(*id), WORD(DC_HASDEFID))) : 0;
    }
    case DM_SETDEFID:
        SetProp(dialog, kDefaultIdProp, reinterpret_cast<HANDLE>(std::uintptr_t(wParam) + 1));
        ShowDefaultLook(dialog, GetFocus());
        return TRUE;
    case WM_NEXTDLGCTL: {
        // A handle when the low word of lParam is set; otherwise wParam asks for the previous
        // (non-zero) or the next tab stop after the focus.
        HWND target = reinterpret_cast<HWND>(wParam);
        if (!LOWORD(std::uintptr_t(lParam))) {
            const HWND focus = GetFocus();
            target =
                GetNextDlgTabItem(dialog, IsChild(dialog, focus) ? focus : nullptr, wParam != 0);
        }
        if (target && IsChild(dialog, target))
            FocusControl(dialog, target);
        return 0;
    }
    case WM_CLOSE: {
        const HWND cancel = GetDlgItem(dialog, IDCANCEL);
        if (!cancel || IsWindowEnabled(cancel))
            SendMessage(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), LPARAM(cancel));
        return 0;
    }
    case WM_ACTIVATE:
        if (LOWORD(wParam) == WA_INACTIVE) {
            const HWND focus = GetFocus();
            if (IsChild(dialog, focus))
                SetProp(dialog, kFocusProp, focus);
        } else if (!IsChild(dialog, GetFocus())) {
            FocusControl(dialog, FocusToRestore(dialog));
        }
        return 0;
    case WM_SETFOCUS:
        FocusControl(dialog, FocusToRestore(dialog));
        return 0;
    default:
        return DefWindowProc(dialog, message, wParam, lParam);
    }
}
