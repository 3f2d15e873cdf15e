// The double edit control: the filters of typed, pasted and set text, the stored value and its
// limits, the display, and the binding to another control.
//
// Sections: construction and values - display - messages - filters - focus - binding.

#include "controls/EditORVAFloat.h"

#include "controls/NumericText.h"
#include "platform/base/Messages.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/window/WindowApi.h"
#include "support/FormatDouble.h"

#include <algorithm>
#include <cstdlib>
#include <string>

IMPLEMENT_DYNAMIC(CEditORVAFloat, CEditORVA)

namespace {
constexpr int kDisplayWidth = 15; // character positions given to the formatter
} // namespace

// --- construction and values -------------------------------------------------------------

CEditORVAFloat::CEditORVAFloat()
    : m_rejectChars(NumericText::kRejectChars.data()),
      m_acceptChars(NumericText::kFloatAcceptChars.data()) {}

void CEditORVAFloat::SetValue(double value, int prec) {
    m_value = NumericText::Clamp(value, m_min, m_max);
    if (prec >= 0)
        m_prec = prec;
    DisplayValue();
}

void CEditORVAFloat::SetValue(int value) {
    SetValue(double(value), m_prec);
}

void CEditORVAFloat::SetMinAndMax(double min, double max) {
    m_min = std::min(min, max);
    m_max = std::max(min, max);
    if (m_value < m_min || m_value > m_max) {
        m_value = NumericText::Clamp(m_value, m_min, m_max);
        DisplayValue();
    }
}

void CEditORVAFloat::SetMinAndMax(int min, int max) {
    SetMinAndMax(double(min), double(max));
}

double CEditORVAFloat::GetValue() const {
    if (!m_hasFocus)
        return m_value;
    const auto read = NumericText::ReadDouble(CurrentText());
    return read ? NumericText::Clamp(*read, m_min, m_max) : 0.0;
}

void CEditORVAFloat::SetPrec(int prec) {
    m_prec = prec;
    DisplayValue();
}

void CEditORVAFloat::SetMaxPrec(int maxPrec) {
    m_maxPrec = maxPrec;
    DisplayValue();
}

// --- display -------------------------------------------------------------------------------

void CEditORVAFloat::DisplayValue() {
    // An empty text in the multi state says that the values differ; it stays.
    if (m_multi && GetWindowTextLength() == 0)
        return;
    CString text;
    if (m_maxPrec < 0) {
        text = xgFormatDouble(m_value, m_prec, kDisplayWidth, 0);
    } else {
        // The stored value becomes what is shown, so later reads give the rounded number; a
        // limit that the rounding crossed still holds.
        text = xgFormatDouble(m_value, m_maxPrec, kDisplayWidth, FMT_MAX_DECIMALS);
        if (const auto shown = NumericText::ReadDouble(text))
            m_value = NumericText::Clamp(*shown, m_min, m_max);
    }
    SetWindowText(text);
}

// --- messages ------------------------------------------------------------------------------

BOOL CEditORVAFloat::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    LRESULT r = 0;
    switch (message) {
    case WM_SETTEXT:
        r = OnSetText(reinterpret_cast<const char*>(lParam));
        break;
    case WM_PASTE:
        r = OnPaste();
        break;
    case WM_EDIT_SETVALUE:
        r = wParam ? OnSetValue(*reinterpret_cast<const EditValueRec*>(wParam)) : 0;
        break;
    case WM_EDIT_BINDCONTROL:
        OnBindControl(int(wParam));
        break;
    default:
        return CEditORVA::OnWndMsg(message, wParam, lParam, result);
    }
    if (result)
        *result = r;
    return TRUE;
}

BOOL CEditORVAFloat::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE)
        OnChange(); // and the parent sees EN_CHANGE as well
    return CEditORVA::OnChildNotify(message, wParam, lParam, result);
}

// --- filters -------------------------------------------------------------------------------

void CEditORVAFloat::OnChar(UINT ch, UINT repeat, UINT flags) {
    const char c = char(ch);
    // Characters beyond one byte are not in either list, and pass like every other.
    if (ch <= 0xFF && m_rejectChars.Find(c) >= 0)
        return;
    if (ch <= 0xFF && NumericText::IsShapeChar(c) && !ValidInsert(std::string_view(&c, 1)))
        return;
    CEditORVA::OnChar(ch, repeat, flags);
}

bool CEditORVAFloat::ValidInsert(std::string_view insert) const {
    const CString text = CurrentText();
    if (text.IsEmpty())
        return true;
    DWORD start = 0, end = 0;
    SendMessage(EM_GETSEL, WPARAM(&start), LPARAM(&end));
    return NumericText::HasNumberShape(
        NumericText::ReplaceSelection(text.GetString(), int(start), int(end), insert));
}

LRESULT CEditORVAFloat::OnSetText(const char* text) {
    const char* proposed = text ? text : "";
    if (CurrentText() == proposed)
        return 0; // unchanged: no EN_CHANGE follows
    if (!NumericText::OnlyCharsOf(proposed, m_acceptChars.GetString()) ||
        !NumericText::HasNumberShape(proposed))
        return 0;
    return Default();
}

LRESULT CEditORVAFloat::OnPaste() {
    if (!::OpenClipboard(m_hWnd))
        return 0;
    std::string pasted;
    const auto data = static_cast<HGLOBAL>(::GetClipboardData(CF_TEXT));
    if (!data) {
        ::CloseClipboard();
        return 0;
    }
    if (const auto* chars = static_cast<const char*>(::GlobalLock(data))) {
        pasted = chars;
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    if (!NumericText::OnlyCharsOf(pasted, m_acceptChars.GetString()) || !ValidInsert(pasted))
        return 0;
    return Default();
}

// --- focus ---------------------------------------------------------------------------------

void CEditORVAFloat::OnSetFocus(CWnd* oldWnd) {
    CEditORVA::OnSetFocus(oldWnd);
    DisplayValue();
    SelectAllAfterTab(); // the new text lost the selection
    m_oldText = CurrentText();
}

void CEditORVAFloat::OnKillFocus(CWnd* newWnd) {
    const bool escape = KeyIsDown(VK_ESCAPE);
    const CString text = CurrentText();
    if (!escape && text != m_oldText)
        CommitText(text);
    if (escape)
        SetWindowText(m_oldText); // leaving with Escape held cancels the edit
    m_hasFocus = false;
    CEdit::OnKillFocus(newWnd);
    DisplayValue();
}

void CEditORVAFloat::CommitText(const char* text) {
    if (const auto read = NumericText::ReadDouble(text))
        m_value = *read;
    m_value = NumericText::Clamp(m_value, m_min, m_max);
}

// --- binding -------------------------------------------------------------------------------

EditValueRec CEditORVAFloat::CurrentValue() const {
    EditValueRec record{};
    record.type = EDIT_VALUE_DOUBLE;
    record.value.doubleValue = GetValue();
    record.prec = m_prec;
    return record;
}

void CEditORVAFloat::OnChange() {
    PushToBoundControl();
}

void CEditORVAFloat::OnBindControl(int id) {
    m_bindId = id;
    PushToBoundControl();
}

void CEditORVAFloat::PushToBoundControl() {
    CWnd* parent = GetParent();
    if (!parent || m_bindId <= 0)
        return;
    EditValueRec record = CurrentValue();
    HWND bound = nullptr;
    parent->GetDlgItem(m_bindId, &bound);
    if (!bound)
        return;
    if (CWnd* control = CWnd::FromHandlePermanent(bound)) {
        control->SendMessage(WM_EDIT_SETVALUE, WPARAM(&record), 0);
        return;
    }
    // A plain control: its text shows the value.
    CWnd* plain = parent->GetDlgItem(m_bindId);
    if (!plain)
        return;
    if (plain->IsKindOf(RUNTIME_CLASS(CEditORVAFloat))) {
        auto* numeric = static_cast<CEditORVAFloat*>(plain);
        if (record.type == EDIT_VALUE_DOUBLE)
            numeric->SetValue(record.value.doubleValue, record.prec);
        else
            numeric->SetValue(record.value.intValue);
        return;
    }
    CString text;
    if (record.type == EDIT_VALUE_DOUBLE)
        text = xgFormatDouble(record.value.doubleValue, record.prec, kDisplayWidth, 0);
    else
        text.Format("%d", record.value.intValue);
    plain->SetWindowText(text);
}

LRESULT CEditORVAFloat::OnSetValue(const EditValueRec& record) {
    // The value stops here, so two controls bound to each other do not loop.
    const int bindId = m_bindId;
    const HWND self = m_hWnd;
    m_bindId = 0;
    switch (record.type) {
    case EDIT_VALUE_INT:
        SetValue(int(record.value.intValue));
        break;
    case EDIT_VALUE_DOUBLE:
        SetValue(record.value.doubleValue, record.prec);
        break;
    case EDIT_VALUE_TEXT:
        SetValue(record.value.text ? std::atof(record.value.text) : 0.0, -1);
        break;
    default:
        break;
    }
    if (CWnd::FromHandlePermanent(self) == this)
        m_bindId = bindId;
    return 0;
}
