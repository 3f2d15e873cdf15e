// MessageBox and AfxMessageBox: each box is a modal message box dialog; an installed answerer
// may answer it, and every box shown is logged.

#include "platform/window/MessageBox.h"

#include "platform/window/MessageBoxAnswerer.h"
#include "platform/window/MessageBoxDialog.h"
#include "platform/window/Wnd.h"

#include <errno.h>

namespace {
// Shared by the process; message boxes are shown from the user-interface thread only.
MessageBoxAnswerer& Answerer() {
    static MessageBoxAnswerer& answerer = *new MessageBoxAnswerer;
    return answerer;
}

std::vector<MessageBoxRecord>& Log() {
    static std::vector<MessageBoxRecord>& log = *new std::vector<MessageBoxRecord>;
    return log;
}

const char* ApplicationName() {
    return program_invocation_short_name;
}
} // namespace

MessageBoxAnswerer SetMessageBoxAnswerer(MessageBoxAnswerer answerer) {
    MessageBoxAnswerer previous = std::move(Answerer());
    Answerer() = std::move(answerer);
    return previous;
}

const std::vector<MessageBoxRecord>& MessageBoxLog() {
    return Log();
}
void ClearMessageBoxLog() {
    Log().clear();
}

int MessageBox(HWND owner, const char* text, const char* caption, UINT type) {
    MessageBoxRecord box{owner, text ? text : "", caption ? caption : "Error", type, 0};
    // The box is modal: input to the application waits until it is answered.
    if (GetCapture())
        ReleaseCapture();
    CMessageBoxDialog dialog(owner, box.text, box.caption, type);
    if (Answerer())
        dialog.SetAnswerer([&box] { return Answerer()(box); });
    const INT_PTR answer = dialog.DoModal();
    box.answer = answer > 0 ? int(answer) : MessageBoxDefaultButton(type);
    Log().push_back(box);
    return box.answer;
}

int AfxMessageBox(const char* text, UINT type, UINT) {
    CWnd* main = AfxGetMainWnd();
    return MessageBox(SafeHwnd(main), text, ApplicationName(), type);
}
