// Data exchange between a dialog's controls and its members: text and numbers, check boxes,
// radio groups, combo boxes, and controls bound to member objects.

#include "platform/window/DataExchange.h"

#include "platform/window/DialogApi.h"
#include "platform/window/MessageBox.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace {

// Thrown by Fail, caught by UpdateData: it never leaves the window layer.
struct DataExchangeFailure {};

constexpr char kEnterInteger[] = "Please enter an integer.";
constexpr char kEnterPositiveInteger[] = "Please enter a positive integer.";
constexpr char kEnterNumber[] = "Please enter a number.";
constexpr int kDoubleDigits = std::numeric_limits<double>::digits10;
constexpr int kFloatDigits = std::numeric_limits<float>::digits10;

std::string TextOf(HWND control) {
    std::string text(size_t(GetWindowTextLength(control)) + 1, '\0');
    text.resize(size_t(GetWindowText(control, text.data(), int(text.size()))));
    return text;
}

// The text without the blanks around it and without a leading plus sign, which the number
// parsers do not take.
std::string_view Trimmed(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-')
        text.remove_prefix(1);
    return text;
}

template <typename Number> bool Parse(std::string_view text, Number& value) {
    text = Trimmed(text);
    Number parsed{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (error != std::errc() || end != text.data() + text.size() || text.empty())
        return false;
    if constexpr (std::is_floating_point_v<Number>)
        if (!std::isfinite(parsed))
            return false;
    value = parsed;
    return true;
}

template <typename Number> std::string Format(Number value, int digits) {
    char buffer[64];
    const auto [end, error] =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits);
    return error == std::errc() ? std::string(buffer, end) : std::string();
}

// A number in an edit: shown on load; read on save, where a text that is not such a number
// tells the user `complaint` and fails the exchange.
template <typename Number>
void ExchangeNumber(CDataExchange* dx, int id, Number& value, const char* complaint,
                    const std::string& shown) {
    const HWND control = dx->PrepareEditCtrl(id);
    if (!control)
        return;
    if (!dx->m_bSaveAndValidate) {
        SetWindowText(control, shown.c_str());
        return;
    }
    if (!Parse(TextOf(control), value)) {
        AfxMessageBox(complaint, MB_ICONEXCLAMATION);
        dx->Fail();
    }
}

bool IsRadioButton(HWND control) {
    return (SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

} // namespace

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog) {}

HWND CDataExchange::PrepareCtrl(int id) {
    const HWND control = GetDlgItem(SafeHwnd(m_pDlgWnd), id);
    if (control) {
        m_lastControl = control;
        m_lastIsEdit = false;
    }
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int id) {
    const HWND control = PrepareCtrl(id);
    if (control)
        m_lastIsEdit = true;
    return control;
}

void CDataExchange::Fail() {
    if (m_lastControl && IsWindow(m_lastControl)) {
        SetFocus(m_lastControl);
        if (m_lastIsEdit && GetFocus() == m_lastControl)
            SendMessage(m_lastControl, EM_SETSEL, 0, -1);
    }
    throw DataExchangeFailure{};
}

BOOL CWnd::UpdateData(BOOL saveAndValidate) {
    CDataExchange dx(this, saveAndValidate);
    try {
        DoDataExchange(&dx);
    } catch (const DataExchangeFailure&) {
        return FALSE;
    }
    return TRUE;
}

void CWnd::DoDataExchange(CDataExchange*) {}

void DDX_Text(CDataExchange* dx, int id, CString& value) {
    const HWND control = dx->PrepareEditCtrl(id);
    if (!control)
        return;
    if (dx->m_bSaveAndValidate)
        value = TextOf(control).c_str();
    else
        SetWindowText(control, value.GetString());
}

void DDX_Text(CDataExchange* dx, int id, int& value) {
    ExchangeNumber(dx, id, value, kEnterInteger, std::to_string(value));
}

void DDX_Text(CDataExchange* dx, int id, UINT& value) {
    ExchangeNumber(dx, id, value, kEnterPositiveInteger, std::to_string(value));
}

void DDX_Text(CDataExchange* dx, int id, long& value) {
    ExchangeNumber(dx, id, value, kEnterInteger, std::to_string(value));
}

void DDX_Text(CDataExchange* dx, int id, double& value) {
    ExchangeNumber(dx, id, value, kEnterNumber, Format(value, kDoubleDigits));
}

void DDX_Text(CDataExchange* dx, int id, float& value) {
    ExchangeNumber(dx, id, value, kEnterNumber, Format(value, kFloatDigits));
}

void DDX_Control(CDataExchange* dx, int id, CWnd& control) {
    if (control.m_hWnd)
        return;
    if (const HWND window = dx->PrepareCtrl(id))
        control.SubclassWindow(window);
}

void DDX_Check(CDataExchange* dx, int id, int& value) {
    const HWND control = dx->PrepareCtrl(id);
    if (!control)
        return;
    if (dx->m_bSaveAndValidate) {
        value = int(SendMessage(control, BM_GETCHECK, 0, 0));
        return;
    }
    const bool known =
        value == int(BST_UNCHECKED) || value == int(BST_CHECKED) || value == int(BST_INDETERMINATE);
    SendMessage(control, BM_SETCHECK, known ? WPARAM(value) : BST_UNCHECKED, 0);
}

void DDX_Radio(CDataExchange* dx, int id, int& value) {
    HWND control = dx->PrepareCtrl(id);
    if (!control)
        return;
    if (dx->m_bSaveAndValidate)
        value = -1;
    int index = 0;
    do {
        if (IsRadioButton(control)) {
            if (dx->m_bSaveAndValidate) {
                if (SendMessage(control, BM_GETCHECK, 0, 0) == BST_CHECKED)
                    value = index;
            } else {
                SendMessage(control, BM_SETCHECK, index == value ? BST_CHECKED : BST_UNCHECKED, 0);
            }
            ++index;
        }
        control = GetWindow(control, GW_HWNDNEXT);
    } while (control && !(GetWindowLong(control, GWL_STYLE) & WS_GROUP));
}

void DDX_CBIndex(CDataExchange* dx, int id, int& index) {
    const HWND control = dx->PrepareCtrl(id);
    if (!control)
        return;
    if (dx->m_bSaveAndValidate)
        index = int(SendMessage(control, CB_GETCURSEL, 0, 0));
    else
        SendMessage(control, CB_SETCURSEL, WPARAM(index), 0);
}

void DDX_CBString(CDataExchange* dx, int id, CString& value) {
    const HWND control = dx->PrepareCtrl(id);
    if (!control)
        return;
    if (dx->m_bSaveAndValidate) {
        value = TextOf(control).c_str();
        return;
    }
    // A text that no item starts with stays as the text of a drop-down's edit.
    if (SendMessage(control, CB_SELECTSTRING, WPARAM(-1), LPARAM(value.GetString())) == CB_ERR)
        SetWindowText(control, value.GetString());
}
