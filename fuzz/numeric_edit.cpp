// Plays random keystrokes, pastes, set texts and values to a double control, an integer control
// and a rounding double control of one form. After every step each text must hold no character
// that the control refuses, a sign, point or exponent that the user got in must leave the shape
// of a number, and every committed value must lie within its control's limits.

#include "controls/EditORVAFloat.h"
#include "controls/EditORVAInt.h"
#include "controls/NumericText.h"

#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/testing/UiDriver.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace {

constexpr DWORD kFieldStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP;
constexpr UINT kKeys[] = {VK_LEFT,   VK_RIGHT,  VK_HOME,   VK_END,    VK_BACK,
                          VK_DELETE, VK_ESCAPE, VK_RETURN, VK_INSERT, VK_TAB};
constexpr size_t kMaxPiece = 12; // longest text taken from the input at once

// Reads the input a piece at a time; past its end everything reads as 0.
class Input {
public:
    Input(const uint8_t* data, size_t size) : m_data(data), m_size(size) {}
    bool AtEnd() const { return m_pos >= m_size; }
    uint8_t Byte() { return m_pos < m_size ? m_data[m_pos++] : 0; }
    std::string Text() {
        std::string text;
        for (size_t n = Byte() % kMaxPiece; n > 0 && !AtEnd(); --n)
            if (const char c = char(Byte()))
                text += c;
        return text;
    }
    // A value of any magnitude from subnormal to infinite.
    double Value() {
        const int mantissa = int8_t(Byte());
        const int exponent = int(Byte() % 64) * 10 - 320;
        return mantissa * std::pow(10.0, exponent);
    }

private:
    const uint8_t* m_data;
    size_t m_size;
    size_t m_pos = 0;
};

struct Field {
    CEditORVAFloat* control;
    bool integer;
    double min = -1.7976931348623157e308; // the limits set, as the control keeps them
    double max = 1.7976931348623157e308;
};

void Fail(const char* what) {
    std::fprintf(stderr, "numeric_edit: %s\n", what);
    std::abort();
}

CString TextOf(const CWnd& wnd) {
    CString text;
    wnd.GetWindowText(text);
    return text;
}

double CommittedValue(const Field& field) {
    if (field.integer)
        return static_cast<CEditORVAInt*>(field.control)->GetValue();
    return field.control->GetValue();
}

void CheckField(const Field& field) {
    const CString text = TextOf(*field.control);
    const std::string_view refused = field.integer ? "." : "";
    for (const char c : text.View())
        if (NumericText::kRejectChars.find(c) != std::string_view::npos ||
            refused.find(c) != std::string_view::npos)
            Fail("a refused character got into the text");
    const double value = CommittedValue(field);
    const bool focused = ::GetFocus() == field.control->GetSafeHwnd();
    // While focused the text is read, and a text that can't be read gives 0.
    if ((value < field.min || value > field.max) && !(focused && value == 0.0)) {
        std::fprintf(stderr, "value %.17g, limits %.17g to %.17g, text \"%s\"\n", value, field.min,
                     field.max, text.GetString());
        Fail("a value outside the limits");
    }
}

void Paste(UiDriver& ui, const std::string& text) {
    if (!::OpenClipboard(nullptr))
        return;
    ::EmptyClipboard();
    HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    std::memcpy(::GlobalLock(block), text.c_str(), text.size() + 1);
    ::GlobalUnlock(block);
    ::SetClipboardData(CF_TEXT, block);
    ::CloseClipboard();
    ui.PressKey('V', MK_CONTROL);
}

void SetLimits(Field& field, double a, double b) {
    if (field.integer) {
        const int low = NumericText::TruncateToInt(a), high = NumericText::TruncateToInt(b);
        field.control->SetMinAndMax(low, high);
        field.min = std::min(low, high);
        field.max = std::max(low, high);
    } else {
        field.control->SetMinAndMax(a, b);
        field.min = std::min(a, b);
        field.max = std::max(a, b);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Input input(data, size);
    UiDriver ui;
    CWnd form;
    form.CreateEx(0, nullptr, "Form", WS_POPUP | WS_VISIBLE, 0, 0, 200, 120, nullptr, nullptr);
    auto number = std::make_unique<CEditORVAFloat>();
    auto count = std::make_unique<CEditORVAInt>();
    auto rounded = std::make_unique<CEditORVAFloat>();
    number->Create(kFieldStyle, RECT{4, 4, 150, 24}, &form, 1);
    count->Create(kFieldStyle, RECT{4, 30, 150, 50}, &form, 2);
    rounded->Create(kFieldStyle, RECT{4, 56, 150, 76}, &form, 3);
    rounded->SetMaxPrec(2);
    number->SendMessage(WM_EDIT_BINDCONTROL, 3);
    count->SendMessage(WM_EDIT_BINDCONTROL, 1);
    Field fields[] = {{number.get(), false}, {count.get(), true}, {rounded.get(), false}};

    while (!input.AtEnd()) {
        const uint8_t op = input.Byte();
        Field& field = fields[(op >> 4) % 3];
        CEditORVAFloat& edit = *field.control;
        const CString before = TextOf(edit);
        bool shapeMatters = false; // a change that the filters must have checked
        switch (op % 8) {
        case 0: { // type one character
            const char typed[2] = {char(input.Byte()), 0};
            if (!typed[0])
                break;
            if (::GetFocus() != edit.GetSafeHwnd())
                ::SetFocus(edit.GetSafeHwnd());
            const CString focused = TextOf(edit);
            ui.Type(typed);
            shapeMatters = NumericText::IsShapeChar(typed[0]) && !focused.IsEmpty() &&
                           ::GetFocus() == edit.GetSafeHwnd();
            if (shapeMatters && TextOf(edit) != focused &&
                !NumericText::HasNumberShape(TextOf(edit).GetString()))
                Fail("a typed character broke the shape of the number");
            break;
        }
        case 1: { // a key, with Shift and Control by the input
            const uint8_t b = input.Byte();
            ui.PressKey(kKeys[b % std::size(kKeys)],
                        ((b & 0x40) ? MK_SHIFT : 0) | ((b & 0x80) ? MK_CONTROL : 0));
            break;
        }
        case 2: { // paste
            if (::GetFocus() != edit.GetSafeHwnd())
                ::SetFocus(edit.GetSafeHwnd());
            const CString focused = TextOf(edit);
            Paste(ui, input.Text());
            if (!focused.IsEmpty() && TextOf(edit) != focused &&
                ::GetFocus() == edit.GetSafeHwnd() &&
                !NumericText::HasNumberShape(TextOf(edit).GetString()))
                Fail("a paste broke the shape of the number");
            break;
        }
        case 3: // a selection
            edit.SetSel(int(input.Byte() % 16) - 1, int(input.Byte() % 16) - 1);
            break;
        case 4: // the focus elsewhere, or nowhere
            ::SetFocus(input.Byte() % 4 == 0 ? nullptr : edit.GetSafeHwnd());
            break;
        case 5: { // the application sets a text
            const std::string text = input.Text();
            edit.SetWindowText(text.c_str());
            const CString after = TextOf(edit);
            if (after != before && !NumericText::HasNumberShape(after.GetString()))
                Fail("a set text broke the shape of the number");
            break;
        }
        case 6: // the application sets a value, or limits
            if (input.Byte() & 1)
                edit.SetValue(input.Value(), int(input.Byte() % 20) - 1);
            else
                SetLimits(field, input.Value(), input.Value());
            break;
        case 7: { // a value as text from a bound control
            const std::string text = input.Text();
            EditValueRec record{};
            record.type = EDIT_VALUE_TEXT;
            record.value.text = text.c_str();
            edit.SendMessage(WM_EDIT_SETVALUE, WPARAM(&record));
            break;
        }
        }
        for (const Field& f : fields)
            CheckField(f);
    }
    ::SetFocus(nullptr);
    for (const Field& f : fields)
        CheckField(f);
    form.DestroyWindow();
    return 0;
}
