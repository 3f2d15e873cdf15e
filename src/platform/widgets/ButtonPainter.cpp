// Buttons drawn in the classic look: raised push buttons with the default button's dark frame,
// check boxes and radio buttons with their label, group boxes with an etched frame, grey text
// when disabled, and the dotted focus rectangle.

#include "platform/widgets/ButtonControl.h"

#include "platform/gdi/DC.h"
#include "platform/system/SysColors.h"

#include <algorithm>
#include <string>

namespace widgets {
namespace {
constexpr int kBoxSize = 13;    // check box and radio button
constexpr int kLabelGap = 4;    // between the box and its label
constexpr int kGroupIndent = 8; // of a group box's title

std::string TextOf(HWND hwnd) {
    std::string text(size_t(::GetWindowTextLength(hwnd)), '\0');
    ::GetWindowText(hwnd, text.data(), int(text.size()) + 1);
    return text;
}
} // namespace

void ButtonBehaviour::Paint(CDC& dc) {
    const bool enabled = ::IsWindowEnabled(Window());
    const HBRUSH brush = ControlColors(Window(), dc, IsPush() ? WM_CTLCOLORBTN : WM_CTLCOLORSTATIC,
                                       COLOR_3DFACE, COLOR_BTNTEXT);
    RECT client;
    ::GetClientRect(Window(), &client);
    // A group box lies under the controls it frames: it leaves its inside to its parent.
    if (!IsGroupBox())
        ::FillRect(dc.GetSafeHdc(), &client, brush);
    CFont* old = dc.SelectObject(ControlFont(Window()));
    dc.SetBkMode(TRANSPARENT);
    if (IsGroupBox())
        PaintGroupBox(dc, client, enabled);
    else if (IsPush())
        PaintPush(dc, client, enabled);
    else
        PaintCheck(dc, client, enabled);
    dc.SelectObject(old);
}

void ButtonBehaviour::PaintPush(CDC& dc, const CRect& client, bool enabled) {
    CRect r = client;
    if (Type() == BS_DEFPUSHBUTTON) {
        const COLORREF frame = GetSysColor(COLOR_WINDOWFRAME);
        dc.Draw3dRect(&r, frame, frame);
        r.DeflateRect(1, 1);
    }
    UINT state = DFCS_BUTTONPUSH;
    if (m_pushed)
        state |= DFCS_PUSHED;
    else if ((Style() & BS_PUSHLIKE) && m_check == BST_CHECKED)
        state |= DFCS_CHECKED;
    CRect face = r;
    dc.DrawFrameControl(&face, DFC_BUTTON, state);
    CRect text = r;
    if (m_pushed)
        text.OffsetRect(1, 1);
    PaintText(dc, text, DT_CENTER | DT_VCENTER | DT_SINGLELINE, enabled);
    if (m_focused) {
        CRect focus = r;
        focus.DeflateRect(3, 3);
        dc.DrawFocusRect(&focus);
    }
}

void ButtonBehaviour::PaintCheck(CDC& dc, const CRect& client, bool enabled) {
    const bool boxRight = (Style() & BS_LEFTTEXT) != 0;
    const int top = client.top + (client.Height() - kBoxSize) / 2;
    CRect box(boxRight ? client.right - kBoxSize : client.left, top,
              boxRight ? client.right : client.left + kBoxSize, top + kBoxSize);
    UINT state = IsRadio() ? DFCS_BUTTONRADIO : DFCS_BUTTONCHECK;
    if (m_check == BST_CHECKED)
        state |= DFCS_CHECKED;
    // The third state: a grey check on a grey box.
    if (m_check == BST_INDETERMINATE)
        state |= DFCS_CHECKED | DFCS_INACTIVE;
    if (m_pushed)
        state |= DFCS_PUSHED;
    if (!enabled)
        state |= DFCS_INACTIVE;
    dc.DrawFrameControl(&box, DFC_BUTTON, state);

    CRect label = client;
    if (boxRight)
        label.right = box.left - kLabelGap;
    else
        label.left = box.right + kLabelGap;
    const UINT align = boxRight ? DT_RIGHT : DT_LEFT;
    PaintText(dc, label, align | DT_VCENTER | DT_SINGLELINE, enabled);
    if (m_focused) {
        const std::string text = TextOf(Window());
        if (text.empty())
            return;
        CRect extent = label;
        dc.DrawText(text.c_str(), -1, &extent, DT_CALCRECT | DT_SINGLELINE);
        const int width = std::min(extent.Width(), label.Width());
        const int height = extent.Height();
        CRect focus(boxRight ? label.right - width : label.left,
                    label.top + (label.Height() - height) / 2, 0, 0);
        focus.right = focus.left + width;
        focus.bottom = focus.top + height;
        focus.InflateRect(1, 1);
        dc.DrawFocusRect(&focus);
    }
}

void ButtonBehaviour::PaintGroupBox(CDC& dc, const CRect& client, bool enabled) {
    const std::string text = TextOf(Window());
    TEXTMETRIC tm{};
    dc.GetTextMetrics(&tm);
    CRect frame = client;
    frame.top += tm.tmHeight / 2;
    dc.DrawEdge(&frame, EDGE_ETCHED, BF_RECT);
    if (text.empty())
        return;
    CRect title(client.left + kGroupIndent, client.top, client.right - kGroupIndent,
                client.top + tm.tmHeight);
    CRect extent = title;
    dc.DrawText(text.c_str(), -1, &extent, DT_CALCRECT | DT_SINGLELINE);
    title.right = std::min(title.right, extent.right + 2);
    // The title stands on the control's background, interrupting the frame.
    dc.FillSolidRect(&title, dc.GetBkColor());
    title.left += 1;
    PaintText(dc, title, DT_LEFT | DT_TOP | DT_SINGLELINE, enabled);
}

void ButtonBehaviour::PaintText(CDC& dc, CRect rect, UINT format, bool enabled) {
    const std::string text = TextOf(Window());
    if (text.empty())
        return;
    if (!enabled) {
        // The classic engraved look: a light copy down and right under the grey text.
        CRect light = rect;
        light.OffsetRect(1, 1);
        dc.SetTextColor(GetSysColor(COLOR_3DHILIGHT));
        dc.DrawText(text.c_str(), -1, &light, format);
        dc.SetTextColor(GetSysColor(COLOR_GRAYTEXT));
    }
    dc.DrawText(text.c_str(), -1, &rect, format);
}

} // namespace widgets
