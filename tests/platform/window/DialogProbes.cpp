#include "DialogProbes.h"

#include <string>

namespace {

constexpr char kCheckProp[] = "ProbeCheck";
constexpr char kAllSelectedProp[] = "ProbeAllSelected";

UINT TypeOf(HWND hwnd) {
    return UINT(GetWindowLong(hwnd, GWL_STYLE)) & BS_TYPEMASK;
}

bool IsRadio(HWND hwnd) {
    return TypeOf(hwnd) == BS_RADIOBUTTON || TypeOf(hwnd) == BS_AUTORADIOBUTTON;
}

void SetCheck(HWND hwnd, UINT check) {
    SetProp(hwnd, kCheckProp, reinterpret_cast<HANDLE>(std::uintptr_t(check)));
}

UINT GetCheck(HWND hwnd) {
    return UINT(reinterpret_cast<std::uintptr_t>(GetProp(hwnd, kCheckProp)));
}

void Clicked(HWND hwnd) {
    const UINT type = TypeOf(hwnd);
    if (type == BS_AUTOCHECKBOX)
        SetCheck(hwnd, GetCheck(hwnd) == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED);
    if (type == BS_AUTORADIOBUTTON) {
        const HWND dialog = GetParent(hwnd);
        for (HWND h = GetNextDlgGroupItem(dialog, hwnd, FALSE); h && h != hwnd;
             h = GetNextDlgGroupItem(dialog, h, FALSE))
            if (IsRadio(h))
                SetCheck(h, BST_UNCHECKED);
        SetCheck(hwnd, BST_CHECKED);
    }
    SendMessage(GetParent(hwnd), WM_COMMAND, MAKEWPARAM(WORD(GetDlgCtrlID(hwnd)), BN_CLICKED),
                LPARAM(hwnd));
}

LRESULT ButtonProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETDLGCODE:
        switch (TypeOf(hwnd)) {
        case BS_PUSHBUTTON:
            return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
        case BS_DEFPUSHBUTTON:
            return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return DLGC_BUTTON | DLGC_RADIOBUTTON;
        default:
            return DLGC_BUTTON;
        }
    case BM_SETSTYLE:
        SetWindowLong(hwnd, GWL_STYLE,
                      LONG((DWORD(GetWindowLong(hwnd, GWL_STYLE)) & ~BS_TYPEMASK) |
                           (DWORD(wParam) & BS_TYPEMASK)));
        return 0;
    case BM_GETCHECK:
        return GetCheck(hwnd);
    case BM_SETCHECK:
        SetCheck(hwnd, UINT(wParam));
        return 0;
    case BM_CLICK:
    case WM_LBUTTONUP:
        Clicked(hwnd);
        return 0;
    default:
        return DefWindowProc(hwnd, message, wParam, lParam);
    }
}

LRESULT EditProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETDLGCODE: {
        UINT code = DLGC_WANTCHARS | DLGC_HASSETSEL | DLGC_WANTARROWS;
        const auto* msg = reinterpret_cast<const MSG*>(lParam);
        if (msg && msg->message == WM_KEYDOWN && msg->wParam == VK_RETURN &&
            (GetWindowLong(hwnd, GWL_STYLE) & ES_WANTRETURN))
            code |= DLGC_WANTALLKEYS;
        return code;
    }
    case EM_SETSEL:
        SetProp(hwnd, kAllSelectedProp,
                reinterpret_cast<HANDLE>(std::uintptr_t(wParam == 0 && lParam == -1)));
        return 0;
    case WM_CHAR: {
        if (wParam < ' ')
            return 0;
        char text[256] = {};
        if (!RemoveProp(hwnd, kAllSelectedProp))
            GetWindowText(hwnd, text, int(sizeof text) - 1);
        std::string typed = std::string(text) + char(wParam);
        SetWindowText(hwnd, typed.c_str());
        return 0;
    }
    default:
        return DefWindowProc(hwnd, message, wParam, lParam);
    }
}

} // namespace

void RegisterDialogProbes() {
    static const bool registered = [] {
        WNDCLASS button{};
        button.lpfnWndProc = ButtonProc;
        button.lpszClassName = kProbeButton;
        WNDCLASS edit{};
        edit.lpfnWndProc = EditProc;
        edit.lpszClassName = kProbeEdit;
        return RegisterClass(&button) && RegisterClass(&edit);
    }();
    (void)registered;
}
