// The exception's own report box: the framework shows an exception's message through the
// message box, so its definition lives with the window layer.

#include "platform/base/Exceptions.h"
#include "platform/window/MessageBox.h"

int CException::ReportError(UINT type, UINT) const {
    char text[512];
    if (!GetErrorMessage(text, sizeof text))
        return AfxMessageBox("No error message is available.", type);
    return AfxMessageBox(text, type);
}
