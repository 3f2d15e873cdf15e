#pragma once

// CEditORVAFloat: an edit control for a double between limits. What can be typed, pasted or set
// is filtered so that the text is always on its way to being a number. The text is read into
// the stored value only when the focus leaves, and clamped to the limits then; while the focus
// is inside, GetValue reads the text. A control bound to another one of its dialog
// (WM_EDIT_BINDCONTROL) shows each change of its text there at once.

#include "controls/EditORVA.h"

#include <cfloat>
#include <string_view>

class ORVA_API CEditORVAFloat : public CEditORVA {
    DECLARE_DYNAMIC(CEditORVAFloat)
public:
    CEditORVAFloat();

    // Clamps to the limits and shows the value; a negative `prec` keeps the decimals in force.
    void SetValue(double value, int prec) override;
    void SetValue(int value) override;
    // The smaller becomes the minimum, whatever the order; a value outside moves to the
    // nearer limit.
    virtual void SetMinAndMax(double min, double max);
    virtual void SetMinAndMax(int min, int max);

    // The stored value; while the focus is inside, the text read and clamped (0.0 if it can't
    // be read).
    double GetValue() const;
    void GetMin(double& min) const { min = m_min; }
    void GetMax(double& max) const { max = m_max; }
    int GetPrec() const { return m_prec; }
    // Decimals to show; -1 as many as the value needs.
    void SetPrec(int prec);
    // An upper limit of decimals, to which the stored value is rounded; negative for none.
    void SetMaxPrec(int maxPrec);
    // Kept for the application; the display does not depend on it.
    void UseExp(bool useExp) { m_useExp = useExp; }

protected:
    virtual void DisplayValue();

    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void OnChar(UINT ch, UINT repeat, UINT flags) override;
    void OnSetFocus(CWnd* oldWnd) override;
    void OnKillFocus(CWnd* newWnd) override;

    // The value of the text, as the bound control is to receive it.
    virtual EditValueRec CurrentValue() const;
    // Reads the text into the stored value and clamps it; a text that can't be read leaves the
    // value as it was.
    virtual void CommitText(const char* text);
    virtual LRESULT OnSetValue(const EditValueRec& record);

    // Whether `insert` in place of the selection leaves a text of a number's shape; any
    // insertion into an empty control is allowed.
    bool ValidInsert(std::string_view insert) const;

    CString m_rejectChars;
    CString m_acceptChars;
    int m_prec = -1;
    int m_maxPrec = -1;
    bool m_useExp = false;
    double m_value = 0.0;
    double m_min = -DBL_MAX;
    double m_max = DBL_MAX;
    int m_bindId = 0; // the bound control's identifier; 0 or negative for none

private:
    LRESULT OnSetText(const char* text);
    LRESULT OnPaste();
    void OnChange();
    void OnBindControl(int id);
    // Sends the value of the text to the bound control, if any.
    void PushToBoundControl();
};
