#pragma once

// CButton: push buttons, check boxes, radio buttons and group boxes ("Button" window class),
// with the framework's BM_ messages; the member functions are thin wrappers over them. A click
// reaches the parent as BN_CLICKED in WM_COMMAND, and is offered to the button first through
// OnChildNotify.

#include "platform/window/Wnd.h"

class ORVA_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    CButton() = default;

    BOOL Create(LPCSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    int GetCheck() const;
    void SetCheck(int check);
    // The check state with BST_PUSHED and BST_FOCUS.
    UINT GetState() const;
    // Shows the button pressed (TRUE) or released, without a click.
    void SetState(BOOL pushed);
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT style, BOOL redraw = TRUE);
    // As if the user clicked the button.
    void Click();
};
