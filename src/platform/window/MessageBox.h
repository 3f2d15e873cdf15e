#pragma once

// The message box. It is modal: the call returns the id of the button chosen. Who answers it
// depends on the host and on an installed answerer (see MessageBoxAnswerer.h); a headless run
// with no answerer takes the default button and records the box.

#include "platform/base/Export.h"
#include "platform/base/Messages.h"

ORVA_API int AfxMessageBox(const char* text, UINT type = MB_OK, UINT helpId = 0);
ORVA_API int MessageBox(HWND owner, const char* text, const char* caption, UINT type);
inline int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type) {
    return MessageBox(owner, text, caption, type);
}
