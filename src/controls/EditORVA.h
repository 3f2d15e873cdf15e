#pragma once

// CEditORVA: the single-line edit control of the application's forms. It keeps the text that
// the control had when it gained the focus, so that Escape goes back to it; Enter commits by
// taking the focus away; keys go straight to the control, past the dialog's and the
// application's keyboard handling. The numeric controls (EditORVAFloat.h, EditORVAInt.h) build
// on it. The messages by which the application and bound controls talk to them are here.

#include "platform/gdi/Font.h"
#include "platform/widgets/Edit.h"

#include <cstdint>

// Binds a numeric control to another control of its dialog; wParam is the other control's
// identifier, 0 to unbind. Sent by the application.
constexpr UINT WM_EDIT_BINDCONTROL = 0x52D;
// A bound control's new value; wParam points to an EditValueRec, lParam is 0.
constexpr UINT WM_EDIT_SETVALUE = 0x52E;
// WM_COMMAND code sent to the parent, synchronously, for each mouse move over the control.
constexpr UINT EN_EDIT_MOUSEMOVE = 0x420;

// The kinds of value that an EditValueRec carries.
constexpr std::int32_t EDIT_VALUE_INT = 0;
constexpr std::int32_t EDIT_VALUE_DOUBLE = 1;
constexpr std::int32_t EDIT_VALUE_TEXT = 2;

struct EditValueRec {
    std::int32_t type; // EDIT_VALUE_INT, EDIT_VALUE_DOUBLE or EDIT_VALUE_TEXT
    union {
        std::int32_t intValue;
        double doubleValue;
        const char* text; // zero-terminated; not owned
    } value;
    std::int32_t prec; // decimals to show, for a double
};

class ORVA_API CEditORVA : public CEdit {
    DECLARE_DYNAMIC(CEditORVA)
public:
    CEditORVA();
    ~CEditORVA() override;

    virtual void MapItem(bool show);
    // Shows the value as it stands, whatever limits a derived control has.
    virtual void SetValue(double value, int prec);
    virtual void SetValue(int value);

    // The control stands for several objects: empty text then says that their values differ.
    void SetMulti(bool multi);
    // A small fixed-pitch font instead of the dialog's, and back.
    void UseFixedFont(bool on);

    BOOL PreTranslateMessage(MSG* msg) override;

protected:
    void OnKeyDown(UINT ch, UINT repeat, UINT flags) override;
    void OnSetFocus(CWnd* oldWnd) override;
    void OnKillFocus(CWnd* newWnd) override;
    void OnMouseMove(UINT flags, CPoint point) override;

    static bool KeyIsDown(int virtualKey);
    // Selects the whole text when the focus came by the Tab key.
    void SelectAllAfterTab();
    CString CurrentText() const;

    CString m_oldText;       // the text when the control gained the focus; Escape's target
    bool m_hasFocus = false; // the text, not the stored value, is current
    bool m_multi = false;
    bool m_fixedFont = false;
    HFONT m_savedFont = nullptr; // the font to go back to; not owned

private:
    CFont m_fixedFontObject; // the font set while the fixed font is on
};
