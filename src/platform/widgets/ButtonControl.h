#pragma once

// The behaviour of a "Button" window: push buttons, check boxes, radio buttons and group boxes,
// with the pressed look while the mouse or Space holds them and the click counted on release
// (ButtonControl.cpp), drawn in the classic look (ButtonPainter.cpp). Internal to the platform;
// applications use CButton or the BM_ messages.

#include "platform/base/Rect.h"
#include "platform/widgets/ControlWindow.h"

class CDC;

namespace widgets {

class ButtonBehaviour : public ControlBehaviour {
public:
    explicit ButtonBehaviour(HWND hwnd) : ControlBehaviour(hwnd) {}
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    DWORD Type() const { return Style() & BS_TYPEMASK; }
    bool IsPush() const;
    bool IsCheckBox() const;
    bool IsRadio() const;
    bool IsGroupBox() const { return Type() == BS_GROUPBOX; }
    UINT DialogCode() const;

    void Press(CPoint point);
    void Track(CPoint point);
    void Release(CPoint point);
    void SetPushed(bool pushed);
    void SetCheck(UINT check);
    // What a click does: auto buttons change their check, then the parent hears BN_CLICKED.
    void Click();
    void UncheckGroupSiblings();
    void Redraw() { ::InvalidateRect(Window(), nullptr, FALSE); }

    // Painting (ButtonPainter.cpp).
    void Paint(CDC& dc) override;
    void PaintPush(CDC& dc, const CRect& client, bool enabled);
    void PaintCheck(CDC& dc, const CRect& client, bool enabled);
    void PaintGroupBox(CDC& dc, const CRect& client, bool enabled);
    void PaintText(CDC& dc, CRect rect, UINT format, bool enabled);

    UINT m_check = BST_UNCHECKED;
    bool m_pushed = false;
    bool m_focused = false;
    bool m_mouseHeld = false; // the mouse pressed the button and has the capture
    bool m_spaceHeld = false;
};

} // namespace widgets
