// Conveniences over a dialog's controls, by id: check boxes and radio buttons, numbers as
// text, dialog units; and CWnd's wrappers of them.

#include "platform/window/DialogApi.h"

#include "platform/gdi/GdiObject.h"
#include "platform/window/DialogTemplate.h"
#include "platform/window/Wnd.h"

#include <cctype>
#include <climits>
#include <string>

namespace {
// The default dialog font, which templates use unless they name another.
const DialogTemplate kDefaultFontTemplate{};
} // namespace

BOOL MapDialogRect(HWND dialog, RECT* rect) {
    if (!rect || !IsWindow(dialog))
        return FALSE;
    const auto font = reinterpret_cast<HFONT>(SendMessage(dialog, WM_GETFONT, 0, 0));
    if (font) {
        DialogUnitsToPixels(DialogBaseUnitsOf(font), rect);
    } else {
        const LONG units = GetDialogBaseUnits();
        DialogUnitsToPixels(SIZE{LOWORD(units), HIWORD(units)}, rect);
    }
    return TRUE;
}

LONG GetDialogBaseUnits() {
    // Measured once: the font and the display's resolution do not change while we run.
    static const SIZE units = [] {
        const HFONT font = CreateDialogFont(kDefaultFontTemplate);
        const SIZE measured = DialogBaseUnitsOf(font);
        DeleteObject(font);
        return measured;
    }();
    return LONG(MAKELONG(WORD(units.cx), WORD(units.cy)));
}

BOOL CheckDlgButton(HWND dialog, int id, UINT check) {
    const HWND button = GetDlgItem(dialog, id);
    if (!button)
        return FALSE;
    SendMessage(button, BM_SETCHECK, check, 0);
    return TRUE;
}

UINT IsDlgButtonChecked(HWND dialog, int id) {
    const HWND button = GetDlgItem(dialog, id);
    return button ? UINT(SendMessage(button, BM_GETCHECK, 0, 0)) : BST_UNCHECKED;
}

BOOL CheckRadioButton(HWND dialog, int firstId, int lastId, int checkId) {
    for (int id = firstId; id <= lastId; ++id)
        if (const HWND button = GetDlgItem(dialog, id))
            SendMessage(button, BM_SETCHECK, id == checkId ? BST_CHECKED : BST_UNCHECKED, 0);
    return TRUE;
}

UINT GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned) {
    if (translated)
        *translated = FALSE;
    const HWND control = GetDlgItem(dialog, id);
    if (!control)
        return 0;
    std::string text(size_t(GetWindowTextLength(control)) + 1, '\0');
    text.resize(size_t(GetWindowText(control, text.data(), int(text.size()))));
    size_t i = 0;
    while (i < text.size() && std::isspace(static_cast<unsigned char>(text[i])))
        ++i;
    const bool negative = isSigned && i < text.size() && text[i] == '-';
    if (negative)
        ++i;
    const size_t digitsStart = i;
    unsigned long long value = 0;
    for (; i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])); ++i) {
        value = value * 10 + unsigned(text[i] - '0');
        if (value > 0x100000000ull)
            return 0; // far out of range: stop before the number overflows
    }
    const bool hasDigits = i > digitsStart;
    while (i < text.size() && std::isspace(static_cast<unsigned char>(text[i])))
        ++i;
    const unsigned long long limit =
        isSigned ? (negative ? 0x80000000ull : 0x7FFFFFFFull) : 0xFFFFFFFFull;
    if (!hasDigits || i != text.size() || value > limit)
        return 0;
    if (translated)
        *translated = TRUE;
    return negative ? UINT(-static_cast<long long>(value)) : UINT(value);
}

BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned) {
    const std::string text = isSigned ? std::to_string(int(value)) : std::to_string(value);
    return SetDlgItemText(dialog, id, text.c_str());
}

void CWnd::CheckDlgButton(int id, UINT check) {
    ::CheckDlgButton(m_hWnd, id, check);
}

UINT CWnd::IsDlgButtonChecked(int id) const {
    return ::IsDlgButtonChecked(m_hWnd, id);
}

void CWnd::CheckRadioButton(int firstId, int lastId, int checkId) {
    ::CheckRadioButton(m_hWnd, firstId, lastId, checkId);
}

UINT CWnd::GetDlgItemInt(int id, BOOL* translated, BOOL isSigned) const {
    return ::GetDlgItemInt(m_hWnd, id, translated, isSigned);
}

void CWnd::SetDlgItemInt(int id, UINT value, BOOL isSigned) {
    ::SetDlgItemInt(m_hWnd, id, value, isSigned);
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* control, BOOL previous) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, SafeHwnd(control), previous));
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* control, BOOL previous) const {
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, SafeHwnd(control), previous));
}
