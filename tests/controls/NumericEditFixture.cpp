#include "NumericEditFixture.h"

#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"
#include "platform/window/WindowApi.h"
#include "platform/window/WindowStyles.h"

#include <cstring>

namespace forms_test {

namespace {
constexpr DWORD kFieldStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP;

RECT FieldRect(int row) {
    return RECT{10, 10 + 30 * row, 160, 32 + 30 * row};
}
} // namespace

FormDialog::FormDialog() : CDialogORVA(kFormDialog, nullptr) {
    RegisterDialogTemplate(kFormDialog, {"Form", {200, 140}, {}});
}

BOOL FormDialog::OnInitDialog() {
    const BOOL result = CDialogORVA::OnInitDialog();
    number.Create(kFieldStyle, FieldRect(0), this, kFloatId);
    other.Create(kFieldStyle, FieldRect(1), this, kOtherFloatId);
    count.Create(kFieldStyle, FieldRect(2), this, kIntId);
    multiLine.Create(kFieldStyle | ES_MULTILINE, FieldRect(3), this, kMultiLineId);
    const RECT r = FieldRect(4);
    plain = ::CreateWindowEx(0, "Edit", "", kFieldStyle, r.left, r.top, r.right - r.left,
                             r.bottom - r.top, m_hWnd,
                             reinterpret_cast<HMENU>(std::uintptr_t(kPlainId)), nullptr, nullptr);
    return result;
}

BOOL FormDialog::PreTranslateMessage(MSG* msg) {
    if (msg->message == WM_KEYDOWN)
        keysSeen.push_back(msg->wParam);
    return CDialogORVA::PreTranslateMessage(msg);
}

NumericEdit::NumericEdit() {
    EXPECT_TRUE(m_form.Create(kFormDialog));
    m_form.ShowWindow(SW_SHOW);
    // The dialog gives its first field the focus; the tests start with none of theirs focused.
    Leave();
    m_recorder = std::make_unique<NotificationRecorder>(m_form.GetSafeHwnd());
}

NumericEdit::~NumericEdit() {
    m_recorder.reset();
    m_form.DestroyWindow();
}

void NumericEdit::Prepare(CEdit& edit, const char* text, int start, int end) {
    Focus(edit); // shows the stored value
    edit.SetWindowText(text);
    edit.SetSel(start, end);
}

CString NumericEdit::Text(const CWnd& wnd) {
    CString text;
    wnd.GetWindowText(text);
    return text;
}

std::pair<int, int> NumericEdit::Selection(const CEdit& edit) {
    int start = 0, end = 0;
    edit.GetSel(start, end);
    return {start, end};
}

} // namespace forms_test
