#pragma once

// The message box as a dialog of the standard controls: an icon, the text in a static control
// sized to it, and a row of push buttons (OK; OK and Cancel; Yes and No; ...), the default one
// chosen by MB_DEFBUTTON1..3. Escape and the close box cancel only a box that can be cancelled.

#include "platform/window/Dialog.h"

#include <functional>
#include <string>
#include <vector>

// The static control that holds a message box's text.
constexpr UINT kMessageBoxTextId = 0xFFFF;

struct MessageBoxButton {
    int id; // IDOK, IDCANCEL, IDYES, ...
    const char* text;
};

// The buttons of a box of this type (MB_OK ... MB_RETRYCANCEL), left to right.
ORVA_API std::vector<MessageBoxButton> MessageBoxButtons(UINT type);
// The button that Enter presses, by MB_DEFBUTTON1..3; the first when the type has fewer.
ORVA_API int MessageBoxDefaultButton(UINT type);

class ORVA_API CMessageBoxDialog : public CDialog {
public:
    CMessageBoxDialog(HWND owner, const std::string& text, const std::string& caption, UINT type);

    // Answers the box once it is shown, unless the dialog responder ended it already.
    void SetAnswerer(std::function<int()> answerer) { m_answerer = std::move(answerer); }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnPaint() override;
    void OnModalShown() override;
    int UnattendedResult() const override { return MessageBoxDefaultButton(m_type); }

private:
    bool HasButton(int id) const;

    UINT m_type;
    RECT m_iconArea{}; // dialog units
    std::function<int()> m_answerer;
};
