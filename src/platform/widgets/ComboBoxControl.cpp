// The "ComboBox" window class: items, the selection and its field, the keys and mouse of the
// closed combo, opening and closing the pop-up list, and the CBN_ notifications.
//
// Contents: registration and the edit child's key forwarding; the message switch; creation and
// layout; items and selection; the list; keys, mouse and focus; painting.

#include "platform/widgets/ComboBoxControl.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"

#include <algorithm>
#include <cstring>
#include <strings.h>

namespace widgets {
namespace {
const bool registered = RegisterControlClass<ComboBehaviour>("ComboBox", CS_DBLCLKS, IDC_ARROW);

constexpr int kTextIndent = 2;

bool KeyDown(int key) {
    return (GetKeyState(key) & 0x8000) != 0;
}

// The edit child hands the keys that work the list to the combo, as the framework's combo edit
// does; a class that subclasses the edit later sees them first.
// The "Edit" class procedure, the same for every combo's edit; the user-interface thread alone
// touches it.
WNDPROC editProcedure = nullptr;
LRESULT ComboEditProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND combo = ::GetParent(hwnd);
    switch (message) {
    case WM_KEYDOWN:
        switch (wParam) {
        case VK_UP:
        case VK_DOWN:
        case VK_PRIOR:
        case VK_NEXT:
        case VK_F4:
        case VK_RETURN:
        case VK_ESCAPE:
        case VK_TAB:
            return ::SendMessage(combo, message, wParam, lParam);
        default:
            break;
        }
        break;
    case WM_SYSKEYDOWN:
        if (wParam == VK_DOWN || wParam == VK_UP)
            return ::SendMessage(combo, message, wParam, lParam);
        break;
    case WM_CHAR:
        // Enter and Escape closed the list; they make no character in the field.
        if (wParam == '\r' || wParam == 27 || wParam == '\t')
            return 0;
        break;
    case WM_GETDLGCODE: {
        LRESULT code = ::CallWindowProc(editProcedure, hwnd, message, wParam, lParam);
        if (::SendMessage(combo, CB_GETDROPPEDSTATE, 0, 0))
            code |= DLGC_WANTALLKEYS;
        return code;
    }
    default:
        break;
    }
    return ::CallWindowProc(editProcedure, hwnd, message, wParam, lParam);
}

ComboListBehaviour* ListOf(HWND list) {
    return static_cast<ComboListBehaviour*>(FindBehaviour(list));
}

int TextHeight(HWND hwnd) {
    HDC screen = ::GetDC(hwnd);
    CDC* dc = CDC::FromHandle(screen);
    int height = 13;
    if (dc) {
        CFont* old = dc->SelectObject(ControlFont(hwnd));
        TEXTMETRIC tm{};
        if (dc->GetTextMetrics(&tm))
            height = tm.tmHeight;
        dc->SelectObject(old);
    }
    ::ReleaseDC(hwnd, screen);
    return height;
}

// Set while the combo itself writes its field, which is no typing to announce.
bool quietEdit = false;
} // namespace

LRESULT ComboBehaviour::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto count = int(m_items.size());
    const auto text = reinterpret_cast<const char*>(lParam);
    switch (message) {
    case WM_NCCREATE:
        // The scroll bar styles of a combo are its list's; the field has none.
        ::SetWindowLong(Window(), GWL_STYLE, LONG(Style() & ~(WS_VSCROLL | WS_HSCROLL)));
        return Default(message, wParam, lParam);
    case WM_CREATE:
        return OnCreate(reinterpret_cast<const CREATESTRUCT*>(lParam));
    case WM_DESTROY:
        if (m_list)
            ::DestroyWindow(m_list);
        m_list = nullptr;
        return 0;
    case WM_SIZE:
        KeepFieldHeight();
        return 0;
    case WM_SETFONT:
        Default(message, wParam, lParam);
        if (HWND edit = Edit())
            ::SendMessage(edit, WM_SETFONT, wParam, lParam);
        if (m_list)
            ::SendMessage(m_list, WM_SETFONT, wParam, 0);
        KeepFieldHeight();
        ::InvalidateRect(Window(), nullptr, TRUE);
        return 0;
    case WM_ENABLE:
        if (HWND edit = Edit())
            ::EnableWindow(edit, BOOL(wParam));
        ::InvalidateRect(Window(), nullptr, TRUE);
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTCHARS | DLGC_WANTARROWS | (m_dropped ? DLGC_WANTALLKEYS : 0);
    case WM_SETTEXT:
        if (HasEdit()) {
            quietEdit = true;
            ::SetWindowText(Edit(), text ? text : "");
            quietEdit = false;
            return TRUE;
        } else {
            const int found = Find(-1, text ? text : "", true);
            if (found < 0)
                return CB_ERR;
            SetCurSel(found);
            return TRUE;
        }
    case WM_GETTEXT: {
        if (!text || wParam == 0)
            return 0;
        const std::string t = Text();
        const size_t n = std::min<size_t>(t.size(), wParam - 1);
        std::memcpy(reinterpret_cast<char*>(lParam), t.data(), n);
        reinterpret_cast<char*>(lParam)[n] = '\0';
        return LRESULT(n);
    }
    case WM_GETTEXTLENGTH:
        return LRESULT(Text().size());
    case WM_COMMAND:
        if (HWND(lParam) == Edit() && Edit())
            OnEditCommand(HIWORD(wParam));
        return 0;
    case WM_KEYDOWN:
        OnKeyDown(UINT(wParam));
        return 0;
    case WM_SYSKEYDOWN:
        if (wParam == VK_DOWN || wParam == VK_UP)
            ToggleList();
        // The frame hears every system key, so that Alt released after Alt+Down does not open
        // the menu bar, and Alt alone still does.
        return Alive() ? Default(message, wParam, lParam) : 0;
    case WM_CHAR:
        // A character sent to a drop-down is typed into its field.
        if (HasEdit())
            return ::SendMessage(Edit(), message, wParam, lParam);
        OnChar(UINT(wParam));
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        OnButtonDown(CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        return 0;
    case WM_SETFOCUS:
        if (HasEdit())
            ::SetFocus(Edit());
        else
            OnFocusArrived(HWND(wParam));
        return 0;
    case WM_KILLFOCUS:
        if (!HasEdit() || HWND(wParam) != Edit())
            OnFocusLeft(HWND(wParam));
        return 0;
    case CB_ADDSTRING:
        return Insert(-1, text);
    case CB_INSERTSTRING:
        return Insert(int(wParam), text);
    case CB_DELETESTRING: {
        const int index = int(wParam);
        if (index < 0 || index >= count)
            return CB_ERR;
        m_items.erase(m_items.begin() + index);
        if (m_curSel == index)
            SetCurSel(-1);
        else if (m_curSel > index)
            --m_curSel;
        return LRESULT(m_items.size());
    }
    case CB_RESETCONTENT:
        m_items.clear();
        SetCurSel(-1);
        return CB_OKAY;
    case CB_GETCOUNT:
        return count;
    case CB_GETCURSEL:
        return m_curSel;
    case CB_SETCURSEL: {
        const int index = int(wParam);
        SetCurSel(index >= 0 && index < count ? index : -1);
        return index >= 0 && index < count ? index : CB_ERR;
    }
    case CB_GETLBTEXT:
        return CopyItemText(int(wParam), reinterpret_cast<char*>(lParam));
    case CB_GETLBTEXTLEN:
        return int(wParam) >= 0 && int(wParam) < count ? LRESULT(m_items[wParam].text.size())
                                                       : CB_ERR;
    case CB_FINDSTRING:
    case CB_FINDSTRINGEXACT:
        return Find(int(wParam), text ? text : "", message == CB_FINDSTRINGEXACT);
    case CB_SELECTSTRING: {
        const int found = Find(int(wParam), text ? text : "", false);
        if (found >= 0)
            SetCurSel(found);
        return found;
    }
    case CB_GETITEMDATA:
        return int(wParam) >= 0 && int(wParam) < count ? LRESULT(m_items[wParam].data) : CB_ERR;
    case CB_SETITEMDATA:
        if (int(wParam) < 0 || int(wParam) >= count)
            return CB_ERR;
        m_items[wParam].data = DWORD_PTR(lParam);
        return CB_OKAY;
    case CB_SETITEMHEIGHT: {
        const int height = int(lParam);
        if (height <= 0 || height > 255)
            return CB_ERR;
        if (int(wParam) == -1) {
            m_fieldItemHeight = height;
            KeepFieldHeight();
        } else {
            m_listItemHeight = height;
        }
        ::InvalidateRect(Window(), nullptr, TRUE);
        return CB_OKAY;
    }
    case CB_GETITEMHEIGHT:
        return int(wParam) == -1 ? FieldHeight() - 6 : ItemHeight();
    case CB_SHOWDROPDOWN:
        if (wParam)
            DropDown();
        else
            CloseUp(false);
        return TRUE;
    case CB_GETDROPPEDSTATE:
        return m_dropped;
    case CB_GETDROPPEDCONTROLRECT:
        if (lParam && m_list)
            ::GetWindowRect(m_list, reinterpret_cast<RECT*>(lParam));
        return TRUE;
    case CB_SETDROPPEDWIDTH:
        m_droppedWidth = std::max(0, int(wParam));
        return m_droppedWidth;
    case CB_GETDROPPEDWIDTH: {
        RECT r;
        ::GetWindowRect(Window(), &r);
        return std::max<LRESULT>(m_droppedWidth, r.right - r.left);
    }
    case CB_SETHORIZONTALEXTENT:
        m_horizontalExtent = int(wParam);
        return 0;
    case CB_GETHORIZONTALEXTENT:
        return m_horizontalExtent;
    case CB_GETTOPINDEX:
        return m_list && ListOf(m_list) ? ListOf(m_list)->TopIndex() : 0;
    case CB_SETTOPINDEX:
        if (int(wParam) < 0 || int(wParam) >= count)
            return CB_ERR;
        if (m_list && ListOf(m_list))
            ListOf(m_list)->SetTopIndex(int(wParam));
        return CB_OKAY;
    case CB_LIMITTEXT:
        if (!HasEdit())
            return CB_ERR;
        ::SendMessage(Edit(), EM_LIMITTEXT, wParam, 0);
        return TRUE;
    case CB_GETEDITSEL:
        if (!HasEdit())
            return CB_ERR;
        return ::SendMessage(Edit(), EM_GETSEL, wParam, lParam);
    case CB_SETEDITSEL:
        if (!HasEdit())
            return CB_ERR;
        ::SendMessage(Edit(), EM_SETSEL, WPARAM(short(LOWORD(std::uintptr_t(lParam)))),
                      LPARAM(short(HIWORD(std::uintptr_t(lParam)))));
        return TRUE;
    default:
        return Default(message, wParam, lParam);
    }
}

// Creation and layout.

LRESULT ComboBehaviour::OnCreate(const CREATESTRUCT* cs) {
    m_droppedHeight = cs->cy;
    if (HasEdit()) {
        DWORD editStyle = WS_CHILD | WS_VISIBLE | ES_LEFT;
        if (Style() & CBS_AUTOHSCROLL)
            editStyle |= ES_AUTOHSCROLL;
        if (Style() & CBS_UPPERCASE)
            editStyle |= ES_UPPERCASE;
        if (Style() & CBS_LOWERCASE)
            editStyle |= ES_LOWERCASE;
        const HWND edit = ::CreateWindowEx(0, "Edit", cs->lpszName, editStyle, 0, 0, 0, 0, Window(),
                                           HMENU(std::uintptr_t(kComboEditId)), nullptr, nullptr);
        if (!edit)
            return -1;
        editProcedure = reinterpret_cast<WNDPROC>(::GetWindowLongPtr(edit, GWLP_WNDPROC));
        ::SetWindowLongPtr(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ComboEditProcedure));
    }
    m_list =
        ::CreateWindowEx(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, "ComboLBox", "", WS_POPUP | WS_BORDER, 0,
                         0, 0, 0, Window(), nullptr, nullptr, nullptr);
    return m_list ? 0 : -1;
}

int ComboBehaviour::ItemHeight() const {
    return m_listItemHeight > 0 ? m_listItemHeight : TextHeight(Window()) + 2;
}

int ComboBehaviour::FieldHeight() const {
    // The field's item, a pixel of space above and below it, and the sunken edge.
    const int item = m_fieldItemHeight > 0 ? m_fieldItemHeight : TextHeight(Window()) + 2;
    return item + 2 + 2 * GetSystemMetrics(SM_CYEDGE);
}

CRect ComboBehaviour::ButtonRect() const {
    RECT client;
    ::GetClientRect(Window(), &client);
    CRect inner(client);
    inner.DeflateRect(GetSystemMetrics(SM_CXEDGE), GetSystemMetrics(SM_CYEDGE));
    return CRect(std::max(inner.left, inner.right - GetSystemMetrics(SM_CXVSCROLL)), inner.top,
                 inner.right, inner.bottom);
}

CRect ComboBehaviour::FieldRect() const {
    RECT client;
    ::GetClientRect(Window(), &client);
    CRect field(client);
    field.DeflateRect(GetSystemMetrics(SM_CXEDGE), GetSystemMetrics(SM_CYEDGE));
    field.right = ButtonRect().left;
    return field;
}

void ComboBehaviour::Layout() {
    if (HWND edit = Edit()) {
        CRect field = FieldRect();
        field.DeflateRect(1, 1);
        ::MoveWindow(edit, field.left, field.top, field.Width(), field.Height(), TRUE);
    }
    ::InvalidateRect(Window(), nullptr, TRUE);
}

// The window keeps the field's height; the height the application gives it is the height of
// the field and the open list together, as in the framework.
void ComboBehaviour::KeepFieldHeight() {
    if (m_sizing)
        return;
    RECT r;
    ::GetWindowRect(Window(), &r);
    const int height = r.bottom - r.top;
    if (height != FieldHeight()) {
        if (height > FieldHeight())
            m_droppedHeight = height;
        m_sizing = true;
        ::SetWindowPos(Window(), nullptr, 0, 0, r.right - r.left, FieldHeight(),
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        m_sizing = false;
    }
    Layout();
}

// Items and selection.

int ComboBehaviour::Insert(int index, const char* text) {
    if (!text)
        text = "";
    int at = index < 0 ? int(m_items.size()) : index;
    if (at > int(m_items.size()))
        return CB_ERR;
    if (index < 0 && (Style() & CBS_SORT))
        at = int(std::upper_bound(m_items.begin(), m_items.end(), std::string(text),
                                  [](const std::string& t, const Item& item) {
                                      return strcasecmp(t.c_str(), item.text.c_str()) < 0;
                                  }) -
                 m_items.begin());
    m_items.insert(m_items.begin() + at, Item{text, 0});
    if (m_curSel >= at)
        ++m_curSel;
    return at;
}

// Searches after `after` (from the start for -1) to the end and round again, without regard to
// case: for a prefix, or the whole text when `exact`.
int ComboBehaviour::Find(int after, const char* text, bool exact) const {
    const int count = int(m_items.size());
    if (count == 0)
        return CB_ERR;
    const size_t length = std::strlen(text);
    const int first = after < 0 || after >= count ? 0 : after + 1;
    for (int i = 0; i < count; ++i) {
        const Item& item = m_items[size_t((first + i) % count)];
        const bool match = exact ? strcasecmp(item.text.c_str(), text) == 0
                                 : strncasecmp(item.text.c_str(), text, length) == 0;
        if (match)
            return (first + i) % count;
    }
    return CB_ERR;
}

void ComboBehaviour::SetCurSel(int index) {
    m_curSel = index;
    ShowSelectionText();
    if (m_list)
        if (ComboListBehaviour* list = ListOf(m_list); list && m_dropped)
            list->SetHot(index);
    ::InvalidateRect(Window(), nullptr, TRUE);
}

void ComboBehaviour::ShowSelectionText() {
    const HWND edit = Edit();
    if (!edit)
        return;
    quietEdit = true;
    ::SetWindowText(edit, m_curSel >= 0 ? m_items[size_t(m_curSel)].text.c_str() : "");
    quietEdit = false;
    ::SendMessage(edit, EM_SETSEL, 0, -1);
}

std::string ComboBehaviour::Text() const {
    if (HWND edit = Edit()) {
        std::string text(size_t(::GetWindowTextLength(edit)), '\0');
        ::GetWindowText(edit, text.data(), int(text.size()) + 1);
        return text;
    }
    return m_curSel >= 0 ? m_items[size_t(m_curSel)].text : std::string();
}

int ComboBehaviour::CopyItemText(int index, char* buffer) const {
    if (index < 0 || index >= int(m_items.size()) || !buffer)
        return CB_ERR;
    const std::string& text = m_items[size_t(index)].text;
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    return int(text.size());
}

// The list.

void ComboBehaviour::DropDown() {
    if (m_dropped || !m_list || !::IsWindowEnabled(Window()))
        return;
    if (!NotifyParent(CBN_DROPDOWN))
        return;
    ComboListBehaviour* list = ListOf(m_list);
    if (!list)
        return;
    RECT combo;
    ::GetWindowRect(Window(), &combo);
    const int rowsRoom = std::max(1, (m_droppedHeight - FieldHeight() - 2) / ItemHeight());
    const int rows = std::clamp(int(m_items.size()), 1, rowsRoom);
    const int width = std::max<int>(m_droppedWidth, combo.right - combo.left);
    const int height = rows * ItemHeight() + 2;
    CRect place(combo.left, combo.bottom, combo.left + width, combo.bottom + height);
    // A list that would leave the screen at the bottom opens above the combo.
    if (place.bottom > GetSystemMetrics(SM_CYSCREEN) && combo.top - height >= 0)
        place.OffsetRect(0, combo.top - height - place.top);
    m_dropped = true;
    list->Open(Window(), place, m_curSel, KeyDown(VK_LBUTTON));
    ::InvalidateRect(Window(), nullptr, TRUE);
}

void ComboBehaviour::CloseUp(bool accept) {
    if (!m_dropped)
        return;
    ComboListBehaviour* list = m_list ? ListOf(m_list) : nullptr;
    CloseFromList(accept && list ? list->Hot() : -1, accept);
}

void ComboBehaviour::CloseFromList(int index, bool accept) {
    if (!m_dropped)
        return;
    m_dropped = false;
    if (ComboListBehaviour* list = m_list ? ListOf(m_list) : nullptr)
        list->Close();
    ::InvalidateRect(Window(), nullptr, TRUE);
    const bool changed = accept && index >= 0 && index != m_curSel;
    if (changed)
        SetCurSel(index);
    // The parent may end the combo in any of these; each is sent only if it is still there.
    if (!NotifyParent(accept ? CBN_SELENDOK : CBN_SELENDCANCEL))
        return;
    if (!NotifyParent(CBN_CLOSEUP))
        return;
    if (changed)
        NotifyParent(CBN_SELCHANGE);
}

void ComboBehaviour::ListLostCapture() {
    CloseFromList(-1, false);
}

void ComboBehaviour::MoveSelection(int index) {
    const int count = int(m_items.size());
    if (count == 0)
        return;
    index = std::clamp(index, 0, count - 1);
    if (index == m_curSel)
        return;
    SetCurSel(index);
    NotifyParent(CBN_SELCHANGE);
}

// Keys, mouse and focus.

void ComboBehaviour::ToggleList() {
    if (m_dropped)
        CloseUp(true);
    else
        DropDown();
}

void ComboBehaviour::OnKeyDown(UINT key) {
    switch (key) {
    case VK_F4:
        ToggleList();
        return;
    case VK_RETURN:
        CloseUp(true);
        return;
    case VK_ESCAPE:
        CloseUp(false);
        return;
    default:
        break;
    }
    ComboListBehaviour* list = m_dropped && m_list ? ListOf(m_list) : nullptr;
    const int from = list && list->Hot() >= 0 ? list->Hot() : m_curSel;
    const int page = list ? std::max(1, list->VisibleRows() - 1) : 1;
    switch (key) {
    case VK_UP:
        MoveSelection(from < 0 ? 0 : from - 1);
        break;
    case VK_DOWN:
        MoveSelection(from + 1);
        break;
    case VK_PRIOR:
        MoveSelection(from - page);
        break;
    case VK_NEXT:
        MoveSelection(from + page);
        break;
    case VK_HOME:
        if (!HasEdit())
            MoveSelection(0);
        break;
    case VK_END:
        if (!HasEdit())
            MoveSelection(int(m_items.size()) - 1);
        break;
    default:
        break;
    }
}

// In a drop-down list a typed letter selects the next item that begins with it.
void ComboBehaviour::OnChar(UINT ch) {
    if (HasEdit() || ch < 0x20 || ch > 0xFF)
        return;
    const char prefix[2] = {char(ch), '\0'};
    const int found = Find(m_curSel, prefix, false);
    if (found >= 0)
        MoveSelection(found);
}

void ComboBehaviour::OnButtonDown(CPoint point) {
    const HWND hwnd = Window();
    const HWND target = HasEdit() ? Edit() : hwnd;
    if (::GetFocus() != target) {
        ::SetFocus(target);
        if (!Alive())
            return;
    }
    if (!HasEdit() || ButtonRect().PtInRect(point))
        DropDown();
}

void ComboBehaviour::OnEditCommand(UINT code) {
    switch (code) {
    case EN_SETFOCUS:
        OnFocusArrived(nullptr);
        return;
    case EN_KILLFOCUS:
        if (::GetFocus() != Window())
            OnFocusLeft(::GetFocus());
        return;
    case EN_UPDATE:
        if (!quietEdit)
            NotifyParent(CBN_EDITUPDATE);
        return;
    case EN_CHANGE:
        if (quietEdit)
            return;
        if (!NotifyParent(CBN_EDITCHANGE))
            return;
        // Typing in the field shows the first item it begins in the open list.
        if (m_dropped && m_list)
            if (ComboListBehaviour* list = ListOf(m_list)) {
                const std::string typed = Text();
                list->SetHot(typed.empty() ? -1 : Find(-1, typed.c_str(), false));
            }
        return;
    default:
        return;
    }
}

void ComboBehaviour::OnFocusArrived(HWND) {
    if (HasEdit())
        ::SendMessage(Edit(), EM_SETSEL, 0, -1);
    if (m_focused)
        return;
    m_focused = true;
    ::InvalidateRect(Window(), nullptr, TRUE);
    NotifyParent(CBN_SETFOCUS);
}

void ComboBehaviour::OnFocusLeft(HWND to) {
    if (!m_focused || (to && (to == Window() || to == Edit())))
        return;
    CloseUp(false);
    if (!Alive())
        return;
    m_focused = false;
    ::InvalidateRect(Window(), nullptr, TRUE);
    NotifyParent(CBN_KILLFOCUS);
}

// Painting.

void ComboBehaviour::Paint(CDC& dc) {
    const bool enabled = ::IsWindowEnabled(Window());
    const HBRUSH brush = ControlColors(Window(), dc, WM_CTLCOLOREDIT,
                                       enabled ? COLOR_WINDOW : COLOR_3DFACE, COLOR_WINDOWTEXT);
    RECT clientRect;
    ::GetClientRect(Window(), &clientRect);
    CRect client(clientRect);
    dc.DrawEdge(&client, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    ::FillRect(dc.GetSafeHdc(), &client, brush);
    CRect button = ButtonRect();
    dc.DrawFrameControl(&button, DFC_SCROLL, DFCS_SCROLLCOMBOBOX | (enabled ? 0 : DFCS_INACTIVE));
    if (HasEdit())
        return;
    CRect field = FieldRect();
    field.DeflateRect(1, 1);
    const bool highlight = m_focused && !m_dropped;
    if (highlight)
        dc.FillSolidRect(&field, GetSysColor(COLOR_HIGHLIGHT));
    if (m_curSel >= 0) {
        CFont* old = dc.SelectObject(ControlFont(Window()));
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(GetSysColor(!enabled    ? COLOR_GRAYTEXT
                                    : highlight ? COLOR_HIGHLIGHTTEXT
                                                : COLOR_WINDOWTEXT));
        CRect text = field;
        text.left += kTextIndent;
        dc.DrawText(m_items[size_t(m_curSel)].text.c_str(), -1, &text,
                    DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
        dc.SelectObject(old);
    }
    if (m_focused)
        dc.DrawFocusRect(&field);
}

} // namespace widgets
