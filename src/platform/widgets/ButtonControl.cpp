// The "Button" window class: the states of a button and how the mouse and keyboard change them.

#include "platform/widgets/ButtonControl.h"

#include "platform/gdi/DC.h"

#include <algorithm>
#include <vector>

namespace widgets {
namespace {
const bool registered = RegisterControlClass<ButtonBehaviour>("Button", CS_DBLCLKS, IDC_ARROW);

CPoint PointOf(LPARAM lParam) {
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}
} // namespace

bool ButtonBehaviour::IsPush() const {
    return Type() == BS_PUSHBUTTON || Type() == BS_DEFPUSHBUTTON || Type() == BS_USERBUTTON ||
           Type() == BS_OWNERDRAW;
}
bool ButtonBehaviour::IsCheckBox() const {
    return Type() == BS_CHECKBOX || Type() == BS_AUTOCHECKBOX || Type() == BS_3STATE ||
           Type() == BS_AUTO3STATE;
}
bool ButtonBehaviour::IsRadio() const {
    return Type() == BS_RADIOBUTTON || Type() == BS_AUTORADIOBUTTON;
}

UINT ButtonBehaviour::DialogCode() const {
    if (IsGroupBox())
        return DLGC_STATIC;
    if (IsRadio())
        return DLGC_BUTTON | DLGC_RADIOBUTTON;
    if (Type() == BS_DEFPUSHBUTTON)
        return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
    if (IsPush())
        return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    return DLGC_BUTTON;
}

LRESULT ButtonBehaviour::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETDLGCODE:
        return DialogCode();
    case WM_NCHITTEST:
        // A group box is a frame around other controls: clicks go through it.
        if (IsGroupBox())
            return HTTRANSPARENT;
        return Default(message, wParam, lParam);
    case BM_GETCHECK:
        return IsPush() ? BST_UNCHECKED : m_check;
    case BM_SETCHECK:
        SetCheck(UINT(wParam));
        return 0;
    case BM_GETSTATE:
        return (IsPush() ? 0 : m_check) | (m_pushed ? BST_PUSHED : 0) | (m_focused ? BST_FOCUS : 0);
    case BM_SETSTATE:
        SetPushed(wParam != 0);
        return 0;
    case BM_SETSTYLE:
        ::SetWindowLong(Window(), GWL_STYLE, LONG((Style() & ~0xFFFFu) | (wParam & 0xFFFF)));
        if (lParam)
            Redraw();
        return 0;
    case BM_CLICK:
        // As if the user clicked: a press and a release inside the button.
        ::SendMessage(Window(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
        if (Alive())
            ::SendMessage(Window(), WM_LBUTTONUP, 0, 0);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        Press(PointOf(lParam));
        return 0;
    case WM_MOUSEMOVE:
        Track(PointOf(lParam));
        return 0;
    case WM_LBUTTONUP:
        Release(PointOf(lParam));
        return 0;
    case WM_CAPTURECHANGED:
        if (m_mouseHeld && reinterpret_cast<HWND>(lParam) != Window()) {
            m_mouseHeld = false;
            SetPushed(false);
        }
        return 0;
    case WM_KEYDOWN:
        if (wParam == VK_SPACE && !m_mouseHeld) {
            if (!(std::uintptr_t(lParam) & (1u << 30))) { // not a repeat
                m_spaceHeld = true;
                SetPushed(true);
            }
        } else if (wParam == VK_RETURN && IsPush()) {
            Click();
        }
        return 0;
    case WM_KEYUP:
        if (wParam == VK_SPACE && m_spaceHeld) {
            m_spaceHeld = false;
            const bool wasPushed = m_pushed;
            SetPushed(false);
            if (wasPushed)
                Click();
        }
        return 0;
    case WM_SETFOCUS:
        m_focused = true;
        Redraw();
        return 0;
    case WM_KILLFOCUS:
        m_focused = false;
        m_spaceHeld = false;
        if (m_mouseHeld && ::GetCapture() == Window())
            ::ReleaseCapture();
        m_mouseHeld = false;
        SetPushed(false);
        Redraw(); // the focus rectangle goes
        return 0;
    case WM_ENABLE:
        Redraw();
        return 0;
    case WM_SETTEXT: {
        const LRESULT result = Default(message, wParam, lParam);
        Redraw();
        return result;
    }
    default:
        return Default(message, wParam, lParam);
    }
}

void ButtonBehaviour::Press(CPoint) {
    if (IsGroupBox())
        return;
    const HWND hwnd = Window();
    if (::GetFocus() != hwnd) {
        ::SetFocus(hwnd);
        if (!Alive()) // a focus handler may have closed the button
            return;
    }
    m_mouseHeld = true;
    ::SetCapture(hwnd);
    SetPushed(true);
}

void ButtonBehaviour::Track(CPoint point) {
    if (!m_mouseHeld)
        return;
    RECT client;
    ::GetClientRect(Window(), &client);
    SetPushed(CRect(client).PtInRect(point) != FALSE);
}

void ButtonBehaviour::Release(CPoint point) {
    if (!m_mouseHeld)
        return;
    RECT client;
    ::GetClientRect(Window(), &client);
    const bool inside = CRect(client).PtInRect(point) != FALSE;
    m_mouseHeld = false;
    if (::GetCapture() == Window())
        ::ReleaseCapture();
    SetPushed(false);
    if (inside)
        Click();
}

void ButtonBehaviour::SetPushed(bool pushed) {
    if (m_pushed == pushed)
        return;
    m_pushed = pushed;
    Redraw();
}

void ButtonBehaviour::SetCheck(UINT check) {
    if (IsPush() || IsGroupBox())
        return;
    // Only three-state boxes show the third state; the others take it as checked.
    const bool threeState = Type() == BS_3STATE || Type() == BS_AUTO3STATE;
    if (check == BST_INDETERMINATE && !threeState)
        check = BST_CHECKED;
    check = check > BST_INDETERMINATE ? BST_CHECKED : check;
    if (m_check != check) {
        m_check = check;
        Redraw();
    }
}

void ButtonBehaviour::Click() {
    switch (Type()) {
    case BS_AUTOCHECKBOX:
        SetCheck(m_check == BST_UNCHECKED ? BST_CHECKED : BST_UNCHECKED);
        break;
    case BS_AUTO3STATE:
        SetCheck((m_check + 1) % 3);
        break;
    case BS_AUTORADIOBUTTON:
        SetCheck(BST_CHECKED);
        UncheckGroupSiblings();
        if (!Alive())
            return;
        break;
    default:
        break;
    }
    NotifyParent(BN_CLICKED);
}

// The group of a radio button runs from the sibling with WS_GROUP at or before it up to the next
// sibling with WS_GROUP, in the order the siblings were made.
void ButtonBehaviour::UncheckGroupSiblings() {
    const HWND self = Window();
    const HWND parent = ::GetParent(self);
    if (!parent || !(Style() & WS_CHILD))
        return;
    std::vector<HWND> siblings;
    for (HWND h = ::GetWindow(parent, GW_CHILD); h; h = ::GetWindow(h, GW_HWNDNEXT))
        siblings.push_back(h);
    const auto me = std::find(siblings.begin(), siblings.end(), self);
    if (me == siblings.end())
        return;
    const auto hasGroup = [](HWND h) { return (::GetWindowLong(h, GWL_STYLE) & WS_GROUP) != 0; };
    auto first = me;
    while (first != siblings.begin() && !hasGroup(*first))
        --first;
    auto last = me + 1;
    while (last != siblings.end() && !hasGroup(*last))
        ++last;
    for (auto it = first; it != last; ++it) {
        if (*it == self || !::IsWindow(*it))
            continue;
        if (::SendMessage(*it, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON)
            ::SendMessage(*it, BM_SETCHECK, BST_UNCHECKED, 0);
    }
}

} // namespace widgets
