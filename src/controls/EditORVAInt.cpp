// The integer edit control: the double control's behaviour over a 32-bit value.

#include "controls/EditORVAInt.h"

#include "controls/NumericText.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CEditORVAInt, CEditORVAFloat)

CEditORVAInt::CEditORVAInt() {
    m_rejectChars += ".";
    m_acceptChars = NumericText::kIntAcceptChars.data();
}

void CEditORVAInt::SetValue(double value, int) {
    SetValue(NumericText::TruncateToInt(value));
}

void CEditORVAInt::SetValue(int value) {
    m_value = NumericText::Clamp(value, m_min, m_max);
    DisplayValue();
}

void CEditORVAInt::SetMinAndMax(double min, double max) {
    SetMinAndMax(NumericText::TruncateToInt(min), NumericText::TruncateToInt(max));
}

void CEditORVAInt::SetMinAndMax(int min, int max) {
    m_min = std::min(min, max);
    m_max = std::max(min, max);
    if (m_value < m_min || m_value > m_max) {
        m_value = NumericText::Clamp(m_value, m_min, m_max);
        DisplayValue();
    }
}

int CEditORVAInt::GetValue() const {
    if (!m_hasFocus)
        return m_value;
    const auto read = NumericText::ReadInt(CurrentText());
    return read ? NumericText::Clamp(*read, m_min, m_max) : 0;
}

void CEditORVAInt::DisplayValue() {
    // Unlike the double control, an empty text in the multi state is filled in.
    CString text;
    text.Format("%d", m_value);
    SetWindowText(text);
}

EditValueRec CEditORVAInt::CurrentValue() const {
    EditValueRec record{};
    record.type = EDIT_VALUE_INT;
    record.value.intValue = GetValue();
    record.prec = 0;
    return record;
}

void CEditORVAInt::CommitText(const char* text) {
    if (const auto read = NumericText::ReadInt(text))
        m_value = *read;
    m_value = NumericText::Clamp(m_value, m_min, m_max);
}

LRESULT CEditORVAInt::OnSetValue(const EditValueRec& record) {
    // A text reads as an integer here: "1e3" gives 1, not 1000.
    if (record.type != EDIT_VALUE_TEXT)
        return CEditORVAFloat::OnSetValue(record);
    EditValueRec asInt{};
    asInt.type = EDIT_VALUE_INT;
    asInt.value.intValue =
        record.value.text ? NumericText::ReadInt(record.value.text).value_or(0) : 0;
    return CEditORVAFloat::OnSetValue(asInt);
}
