#pragma once

// CEditORVAInt: an edit control for a 32-bit integer between limits. It filters, stores, shows
// and binds as the double control does, with "%d" for "%lf": the point is refused, though an
// exponent may still be typed and is not read ("1e3" commits as 1).

#include "controls/EditORVAFloat.h"

#include <climits>

class ORVA_API CEditORVAInt : public CEditORVAFloat {
    DECLARE_DYNAMIC(CEditORVAInt)
public:
    CEditORVAInt();

    // The integer part of `value`; the decimals are dropped.
    void SetValue(double value, int prec) override;
    // Clamps to the limits and shows the value.
    void SetValue(int value) override;
    void SetMinAndMax(double min, double max) override;
    void SetMinAndMax(int min, int max) override;

    // The stored value; while the focus is inside, the text read and clamped (0 if it can't be
    // read).
    int GetValue() const;

protected:
    void DisplayValue() override;
    EditValueRec CurrentValue() const override;
    void CommitText(const char* text) override;
    LRESULT OnSetValue(const EditValueRec& record) override;

    // These stand in for the double fields, which an integer control leaves unused.
    int m_value = 0;
    int m_min = INT_MIN;
    int m_max = INT_MAX;
};
