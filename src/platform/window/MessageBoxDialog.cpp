// The message box dialog: its buttons by type, its layout around the measured text, and what
// its keys and buttons answer.

#include "platform/window/MessageBoxDialog.h"

#include "platform/window/MessageBoxIcon.h"
#include "platform/window/WindowDC.h"

#include <algorithm>

namespace {

// Layout, in dialog units unless named otherwise.
constexpr int kMargin = 7;
constexpr int kGap = 7; // between the icon and the text, and above the buttons
constexpr int kButtonWidth = 50;
constexpr int kButtonHeight = 14;
constexpr int kButtonSpacing = 4;
constexpr int kMaxTextWidthPixels = 420; // longer lines wrap
constexpr int kMinTextWidth = 60;

const std::vector<MessageBoxButton>& ButtonsOf(UINT kind) {
    static const std::vector<MessageBoxButton> table[] = {
        {{IDOK, "OK"}},
        {{IDOK, "OK"}, {IDCANCEL, "Cancel"}},
        {{IDABORT, "&Abort"}, {IDRETRY, "&Retry"}, {IDIGNORE, "&Ignore"}},
        {{IDYES, "&Yes"}, {IDNO, "&No"}, {IDCANCEL, "Cancel"}},
        {{IDYES, "&Yes"}, {IDNO, "&No"}},
        {{IDRETRY, "&Retry"}, {IDCANCEL, "Cancel"}},
    };
    return table[kind < std::size(table) ? kind : 0];
}

// Pixels to dialog units, rounding up so that what was measured fits.
SIZE PixelsToUnits(SIZE pixels, SIZE baseUnits) {
    return SIZE{(pixels.cx * 4 + baseUnits.cx - 1) / baseUnits.cx,
                (pixels.cy * 8 + baseUnits.cy - 1) / baseUnits.cy};
}

// The size of the text in the dialog font, wrapped at the widest line a box allows.
SIZE MeasureText(const std::string& text, HFONT font) {
    HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ old = SelectObject(dc, font);
    RECT r{0, 0, kMaxTextWidthPixels, 0};
    DrawText(dc, text.c_str(), int(text.size()), &r,
             DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS);
    SelectObject(dc, old);
    DeleteDC(dc);
    return SIZE{r.right - r.left, r.bottom - r.top};
}

DialogTemplate LayOut(const std::string& text, const std::string& caption, UINT type,
                      RECT* iconArea) {
    DialogTemplate box;
    box.caption = caption;
    box.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
    const HFONT font = CreateDialogFont(box);
    const SIZE baseUnits = DialogBaseUnitsOf(font);
    const SIZE textSize = PixelsToUnits(MeasureText(text, font), baseUnits);
    DeleteObject(font);

    const bool hasIcon = (type & MB_ICONMASK) != 0;
    const SIZE iconSize =
        hasIcon ? PixelsToUnits(SIZE{kMessageBoxIconSize, kMessageBoxIconSize}, baseUnits)
                : SIZE{0, 0};
    *iconArea = RECT{kMargin, kMargin, kMargin + iconSize.cx, kMargin + iconSize.cy};
    const int textLeft = hasIcon ? iconArea->right + kGap : kMargin;
    const int textWidth = std::max<int>(textSize.cx, kMinTextWidth);
    const int contentHeight = std::max<int>(textSize.cy, iconSize.cy);
    // A short text stands level with the middle of the icon.
    const int textTop = kMargin + (contentHeight - textSize.cy) / 2;

    const std::vector<MessageBoxButton>& buttons = ButtonsOf(type & MB_TYPEMASK);
    const int count = int(buttons.size());
    const int rowWidth = count * kButtonWidth + (count - 1) * kButtonSpacing;
    const int width = std::max(textLeft + textWidth + kMargin, rowWidth + 2 * kMargin);
    const int buttonTop = kMargin + contentHeight + kGap;
    box.size = SIZE{width, buttonTop + kButtonHeight + kMargin};

    box.items.push_back({"Static", text, kMessageBoxTextId, WS_VISIBLE | SS_LEFT | SS_NOPREFIX,
                         RECT{textLeft, textTop, textLeft + textWidth, textTop + textSize.cy}});
    const int defaultId = MessageBoxDefaultButton(type);
    int left = (width - rowWidth) / 2;
    for (const MessageBoxButton& button : buttons) {
        DWORD style = WS_VISIBLE | WS_TABSTOP;
        style |= button.id == defaultId ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        if (&button == &buttons.front())
            style |= WS_GROUP;
        box.items.push_back(
            {"Button", button.text, UINT(button.id), style,
             RECT{left, buttonTop, left + kButtonWidth, buttonTop + kButtonHeight}});
        left += kButtonWidth + kButtonSpacing;
    }
    return box;
}

} // namespace

std::vector<MessageBoxButton> MessageBoxButtons(UINT type) {
    return ButtonsOf(type & MB_TYPEMASK);
}

int MessageBoxDefaultButton(UINT type) {
    const std::vector<MessageBoxButton>& buttons = ButtonsOf(type & MB_TYPEMASK);
    const size_t index = (type & MB_DEFMASK) >> 8;
    return buttons[index < buttons.size() ? index : 0].id;
}

CMessageBoxDialog::CMessageBoxDialog(HWND owner, const std::string& text,
                                     const std::string& caption, UINT type)
    : m_type(type) {
    InitModalIndirect(LayOut(text, caption, type, &m_iconArea), CWnd::FromHandle(owner));
}

bool CMessageBoxDialog::HasButton(int id) const {
    const std::vector<MessageBoxButton>& buttons = ButtonsOf(m_type & MB_TYPEMASK);
    return std::any_of(buttons.begin(), buttons.end(),
                       [id](const MessageBoxButton& b) { return b.id == id; });
}

BOOL CMessageBoxDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    const int defaultId = MessageBoxDefaultButton(m_type);
    SetDefID(UINT(defaultId));
    if (CWnd* button = GetDlgItem(defaultId))
        GotoDlgCtrl(button);
    return FALSE; // the focus is on the default button already
}

void CMessageBoxDialog::OnOK() {
    if (HasButton(IDOK))
        EndDialog(IDOK);
}

void CMessageBoxDialog::OnCancel() {
    // A box without Cancel can't be dismissed without an answer, except the one with OK only.
    if (HasButton(IDCANCEL))
        EndDialog(IDCANCEL);
    else if ((m_type & MB_TYPEMASK) == MB_OK)
        EndDialog(IDOK);
}

BOOL CMessageBoxDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    const int id = LOWORD(wParam);
    if (id != IDOK && id != IDCANCEL && HasButton(id)) {
        EndDialog(id);
        return TRUE;
    }
    return CDialog::OnCommand(wParam, lParam);
}

void CMessageBoxDialog::OnPaint() {
    CPaintDC dc(this);
    if (!(m_type & MB_ICONMASK))
        return;
    RECT area = m_iconArea;
    MapDialogRect(&area);
    DrawMessageBoxIcon(dc, POINT{area.left, area.top}, m_type);
}

void CMessageBoxDialog::OnModalShown() {
    CDialog::OnModalShown();
    if (!IsEnded() && m_answerer && IsWindow())
        EndDialog(m_answerer());
}
