#pragma once

// The message box, a modal dialog of the standard controls (MessageBoxDialog.h): the call
// returns the id of the button chosen. An installed answerer (MessageBoxAnswerer.h) or dialog
// responder may answer it; on a display the user does; a headless run with nobody to answer
// takes the default button. Every box is recorded.

#include "platform/base/Export.h"
#include "platform/base/Messages.h"

ORVA_API int AfxMessageBox(const char* text, UINT type = MB_OK, UINT helpId = 0);
ORVA_API int MessageBox(HWND owner, const char* text, const char* caption, UINT type);
inline int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type) {
    return MessageBox(owner, text, caption, type);
}
