// The "ComboLBox" window class: the pop-up list of a combo box. It shows the combo's items,
// highlights the one under the mouse or chosen by the arrow keys, scrolls with its scroll bar
// and the wheel, and holds the capture while open so that a click anywhere else closes it.

#include "platform/widgets/ComboBoxControl.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"

#include <algorithm>

namespace widgets {
namespace {
const bool registered =
    RegisterControlClass<ComboListBehaviour>("ComboLBox", CS_SAVEBITS | CS_DBLCLKS, IDC_ARROW);

constexpr int kTextIndent = 2;
constexpr int kWheelRows = 3;
} // namespace

ComboBehaviour* ComboListBehaviour::Combo() const {
    return static_cast<ComboBehaviour*>(FindBehaviour(m_combo));
}

LRESULT ComboListBehaviour::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    switch (message) {
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_ACTIVATE:
        // A display may give the pop-up the input focus of its own; the list never takes the
        // focus from its combo, and the combo's window stays the active one.
        if (LOWORD(wParam) != WA_INACTIVE)
            if (const HWND owner = ::GetWindow(Window(), GW_OWNER))
                ::SetActiveWindow(owner);
        return 0;
    case WM_MOUSEMOVE:
        if (const int row = RowAt(point); row >= 0)
            SetHot(row);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        OnButtonDown(point);
        return 0;
    case WM_LBUTTONUP:
        OnButtonUp(point);
        return 0;
    case WM_MOUSEWHEEL:
        SetTopIndex(m_top - GET_WHEEL_DELTA_WPARAM(wParam) / WHEEL_DELTA * kWheelRows);
        return 0;
    case WM_VSCROLL: {
        const int rows = VisibleRows();
        switch (LOWORD(wParam)) {
        case SB_LINEUP:
            SetTopIndex(m_top - 1);
            break;
        case SB_LINEDOWN:
            SetTopIndex(m_top + 1);
            break;
        case SB_PAGEUP:
            SetTopIndex(m_top - rows);
            break;
        case SB_PAGEDOWN:
            SetTopIndex(m_top + rows);
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            SetTopIndex(HIWORD(wParam));
            break;
        default:
            break;
        }
        return 0;
    }
    case WM_CAPTURECHANGED:
        // Another window took the mouse: the list closes as if dismissed.
        if (m_combo && ::IsWindowVisible(Window()) && HWND(lParam) != Window())
            if (ComboBehaviour* combo = Combo())
                combo->ListLostCapture();
        return 0;
    default:
        return Default(message, wParam, lParam);
    }
}

void ComboListBehaviour::Open(HWND combo, const CRect& screenRect, int hot, bool pressHeld) {
    m_combo = combo;
    m_pressHeld = pressHeld;
    const ComboBehaviour* owner = Combo();
    if (!owner)
        return;
    ::SendMessage(Window(), WM_SETFONT, ::SendMessage(combo, WM_GETFONT, 0, 0), 0);
    const int count = int(owner->Items().size());
    const int rows = std::max(1, (screenRect.Height() - 2) / owner->ItemHeight());
    const DWORD style = DWORD(::GetWindowLong(Window(), GWL_STYLE));
    const DWORD wanted = count > rows ? (style | WS_VSCROLL) : (style & ~WS_VSCROLL);
    ::SetWindowLong(Window(), GWL_STYLE, LONG(wanted));
    ::SetWindowPos(Window(), HWND_TOPMOST, screenRect.left, screenRect.top, screenRect.Width(),
                   screenRect.Height(), SWP_NOACTIVATE | SWP_FRAMECHANGED);
    m_top = 0;
    m_hot = -1;
    SetHot(hot);
    UpdateScrollBar();
    ::ShowWindow(Window(), SW_SHOWNA);
    ::SetCapture(Window());
}

void ComboListBehaviour::Close() {
    // Hidden first, so that losing the capture reads as part of closing.
    ::ShowWindow(Window(), SW_HIDE);
    if (::GetCapture() == Window())
        ::ReleaseCapture();
    m_pressHeld = false;
}

int ComboListBehaviour::VisibleRows() const {
    RECT client;
    ::GetClientRect(Window(), &client);
    const ComboBehaviour* combo = Combo();
    return combo ? std::max(1, int(client.bottom) / combo->ItemHeight()) : 1;
}

int ComboListBehaviour::RowAt(CPoint client) const {
    RECT r;
    ::GetClientRect(Window(), &r);
    const ComboBehaviour* combo = Combo();
    if (!combo || !CRect(r).PtInRect(client))
        return -1;
    const int row = m_top + client.y / combo->ItemHeight();
    return row < int(combo->Items().size()) ? row : -1;
}

void ComboListBehaviour::SetHot(int index) {
    if (index == m_hot)
        return;
    m_hot = index;
    if (index >= 0)
        EnsureVisible(index);
    ::InvalidateRect(Window(), nullptr, FALSE);
}

void ComboListBehaviour::SetTopIndex(int index) {
    const ComboBehaviour* combo = Combo();
    const int count = combo ? int(combo->Items().size()) : 0;
    index = std::clamp(index, 0, std::max(0, count - VisibleRows()));
    if (index == m_top)
        return;
    m_top = index;
    UpdateScrollBar();
    ::InvalidateRect(Window(), nullptr, FALSE);
}

void ComboListBehaviour::EnsureVisible(int index) {
    if (index < m_top)
        SetTopIndex(index);
    else if (index >= m_top + VisibleRows())
        SetTopIndex(index - VisibleRows() + 1);
}

void ComboListBehaviour::UpdateScrollBar() {
    const ComboBehaviour* combo = Combo();
    SCROLLINFO info{sizeof info,         SIF_ALL, 0, combo ? int(combo->Items().size()) - 1 : 0,
                    UINT(VisibleRows()), m_top,   0};
    ::SetScrollInfo(Window(), SB_VERT, &info, TRUE);
}

void ComboListBehaviour::OnButtonDown(CPoint client) {
    RECT r;
    ::GetClientRect(Window(), &r);
    if (CRect(r).PtInRect(client)) {
        m_pressHeld = true;
        if (const int row = RowAt(client); row >= 0)
            SetHot(row);
        return;
    }
    // The list's own scroll bar works as usual; anywhere else the press closes the list.
    CPoint screen = client;
    ::ClientToScreen(Window(), &screen);
    const LPARAM packed = MAKELPARAM(WORD(screen.x), WORD(screen.y));
    const LRESULT hit = ::SendMessage(Window(), WM_NCHITTEST, 0, packed);
    if (hit == HTVSCROLL) {
        ::DefWindowProc(Window(), WM_NCLBUTTONDOWN, WPARAM(hit), packed);
        return;
    }
    if (ComboBehaviour* combo = Combo())
        combo->CloseFromList(-1, false);
}

void ComboListBehaviour::OnButtonUp(CPoint client) {
    // The release of the press that opened the list, away from the items, leaves it open.
    if (!m_pressHeld)
        return;
    m_pressHeld = false;
    const int row = RowAt(client);
    if (row >= 0)
        if (ComboBehaviour* combo = Combo())
            combo->CloseFromList(row, true);
}

void ComboListBehaviour::Paint(CDC& dc) {
    RECT clientRect;
    ::GetClientRect(Window(), &clientRect);
    const ComboBehaviour* combo = Combo();
    if (!combo)
        return;
    // The combo's parent colours the list, told of it by the combo's handle.
    const HBRUSH brush =
        ControlColors(m_combo, dc, WM_CTLCOLORLISTBOX, COLOR_WINDOW, COLOR_WINDOWTEXT);
    ::FillRect(dc.GetSafeHdc(), &clientRect, brush);
    const COLORREF text = dc.GetTextColor();
    CFont* old = dc.SelectObject(ControlFont(Window()));
    dc.SetBkMode(TRANSPARENT);
    const int height = combo->ItemHeight();
    const auto& items = combo->Items();
    for (int row = m_top; row < int(items.size()); ++row) {
        CRect r(0, (row - m_top) * height, clientRect.right, (row - m_top + 1) * height);
        if (r.top >= clientRect.bottom)
            break;
        const bool hot = row == m_hot;
        if (hot)
            dc.FillSolidRect(&r, GetSysColor(COLOR_HIGHLIGHT));
        dc.SetTextColor(hot ? GetSysColor(COLOR_HIGHLIGHTTEXT) : text);
        CRect text = r;
        text.left += kTextIndent;
        dc.DrawText(items[size_t(row)].text.c_str(), -1, &text,
                    DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
        if (hot)
            dc.DrawFocusRect(&r);
    }
    dc.SelectObject(old);
}

} // namespace widgets
