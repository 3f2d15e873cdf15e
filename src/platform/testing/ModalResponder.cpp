// The answers to modal dialogs: what was shown is read off the dialog's controls, and each step
// acts through the UI driver or the control's own messages, as the user's action would.

#include "platform/testing/ModalResponder.h"

#include "platform/widgets/DateTimeCtrl.h"

#include <algorithm>

namespace {

std::string TextOfWindow(HWND hwnd) {
    std::string text(size_t(GetWindowTextLength(hwnd)) + 1, '\0');
    text.resize(size_t(GetWindowText(hwnd, text.data(), int(text.size()))));
    return text;
}

std::string ClassOf(HWND hwnd) {
    char name[64] = {};
    GetClassName(hwnd, name, int(sizeof name));
    return name;
}

bool IsPushButton(HWND hwnd) {
    return (SendMessage(hwnd, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) !=
           0;
}

// A button's text as the user reads it: without the mnemonic marks.
std::string WithoutMnemonics(const std::string& text) {
    std::string plain;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && i + 1 < text.size())
            ++i;
        plain += text[i];
    }
    return plain;
}

ShownDialog Read(const CDialog& dialog) {
    ShownDialog shown;
    shown.title = TextOfWindow(dialog.GetSafeHwnd());
    for (HWND child = GetWindow(dialog.GetSafeHwnd(), GW_CHILD); child;
         child = GetWindow(child, GW_HWNDNEXT)) {
        const ShownControl control{UINT(GetDlgCtrlID(child)), ClassOf(child), TextOfWindow(child),
                                   DWORD(GetWindowLong(child, GWL_STYLE))};
        shown.controls.push_back(control);
        if (IsPushButton(child))
            shown.buttons.push_back(WithoutMnemonics(control.text));
    }
    return shown;
}

void Click(UiDriver& driver, HWND control) {
    RECT client;
    GetClientRect(control, &client);
    driver.Click(control, POINT{client.right / 2, client.bottom / 2});
}

void NotifyCommand(HWND control, UINT code) {
    SendMessage(GetParent(control), WM_COMMAND, MAKEWPARAM(WORD(GetDlgCtrlID(control)), WORD(code)),
                LPARAM(control));
}

} // namespace

std::string ShownDialog::TextOf(UINT id) const {
    const auto it = std::find_if(controls.begin(), controls.end(),
                                 [id](const ShownControl& c) { return c.id == id; });
    return it == controls.end() ? std::string() : it->text;
}

ModalAnswer& ModalAnswer::Press(int id) {
    m_steps.push_back([id](CDialog& dialog, UiDriver& driver, ShownDialog&) {
        if (const HWND button = GetDlgItem(dialog.GetSafeHwnd(), id))
            Click(driver, button);
        else
            dialog.SendMessage(WM_COMMAND, MAKEWPARAM(WORD(id), BN_CLICKED), 0);
    });
    return *this;
}

ModalAnswer& ModalAnswer::Press(const std::string& buttonText) {
    m_steps.push_back([buttonText](CDialog& dialog, UiDriver& driver, ShownDialog& shown) {
        for (HWND child = GetWindow(dialog.GetSafeHwnd(), GW_CHILD); child;
             child = GetWindow(child, GW_HWNDNEXT)) {
            if (IsPushButton(child) && WithoutMnemonics(TextOfWindow(child)) == buttonText) {
                Click(driver, child);
                return;
            }
        }
        shown.problems.push_back("no button \"" + buttonText + "\"");
    });
    return *this;
}

ModalAnswer& ModalAnswer::Type(int id, const std::string& text) {
    m_steps.push_back([id, text](CDialog& dialog, UiDriver& driver, ShownDialog& shown) {
        CWnd* field = dialog.GetDlgItem(id);
        if (!field) {
            shown.problems.push_back("no field " + std::to_string(id));
            return;
        }
        dialog.GotoDlgCtrl(field);
        driver.Type(text.c_str());
    });
    return *this;
}

ModalAnswer& ModalAnswer::Choose(int comboId, const std::string& item) {
    m_steps.push_back([comboId, item](CDialog& dialog, UiDriver& driver, ShownDialog& shown) {
        const HWND combo = GetDlgItem(dialog.GetSafeHwnd(), comboId);
        if (!combo ||
            SendMessage(combo, CB_SELECTSTRING, WPARAM(-1), LPARAM(item.c_str())) == CB_ERR) {
            shown.problems.push_back("no item \"" + item + "\" in " + std::to_string(comboId));
            return;
        }
        // The order the list sends them in when the user picks an item.
        NotifyCommand(combo, CBN_SELENDOK);
        if (IsWindow(combo))
            NotifyCommand(combo, CBN_SELCHANGE);
        driver.Pump();
    });
    return *this;
}

ModalAnswer& ModalAnswer::SetDate(int pickerId, const SYSTEMTIME& date) {
    m_steps.push_back([pickerId, date](CDialog& dialog, UiDriver& driver, ShownDialog& shown) {
        const HWND picker = GetDlgItem(dialog.GetSafeHwnd(), pickerId);
        SYSTEMTIME time = date;
        if (!picker || !SendMessage(picker, DTM_SETSYSTEMTIME, GDT_VALID, LPARAM(&time))) {
            shown.problems.push_back("no date picker " + std::to_string(pickerId));
            return;
        }
        NMDATETIMECHANGE change{{picker, UINT_PTR(pickerId), DTN_DATETIMECHANGE}, GDT_VALID, date};
        SendMessage(GetParent(picker), WM_NOTIFY, WPARAM(pickerId), LPARAM(&change));
        driver.Pump();
    });
    return *this;
}

ModalAnswer& ModalAnswer::Check(int id, bool checked) {
    m_steps.push_back([id, checked](CDialog& dialog, UiDriver& driver, ShownDialog& shown) {
        const HWND box = GetDlgItem(dialog.GetSafeHwnd(), id);
        if (!box) {
            shown.problems.push_back("no check box " + std::to_string(id));
            return;
        }
        if ((SendMessage(box, BM_GETCHECK, 0, 0) == BST_CHECKED) != checked)
            Click(driver, box);
    });
    return *this;
}

ModalAnswer& ModalAnswer::Run(std::function<void(CDialog&, UiDriver&)> step) {
    m_steps.push_back([step = std::move(step)](CDialog& dialog, UiDriver& driver, ShownDialog&) {
        step(dialog, driver);
    });
    return *this;
}

ModalResponder::ModalResponder()
    : m_previous(SetDialogResponder([this](CDialog& dialog) { Respond(dialog); })) {}

ModalResponder::~ModalResponder() {
    SetDialogResponder(std::move(m_previous));
}

void ModalResponder::Respond(CDialog& dialog) {
    m_shown.push_back(Read(dialog));
    if (m_answers.empty())
        return;
    // Steps may open further dialogs, which take the answers queued after this one.
    const ModalAnswer answer = std::move(m_answers.front());
    m_answers.pop_front();
    const size_t index = m_shown.size() - 1;
    m_shown[index].answered = true;
    const HWND self = dialog.GetSafeHwnd();
    for (const ModalAnswer::Step& step : answer.m_steps) {
        // A step may end the dialog; what is left has nothing to act on.
        if (!IsWindow(self) || !IsWindowVisible(self))
            break;
        step(dialog, m_driver, m_shown[index]);
    }
}
