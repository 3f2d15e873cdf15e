#pragma once

// Text on the clipboard as another program puts it there and reads it back: what a test or a
// scripted run does around a user's paste and copy.

#include "platform/base/Export.h"

#include <string>

// Puts `text` on the clipboard as CF_TEXT; false when another window holds the clipboard open.
ORVA_API bool PutTextOnClipboard(const char* text);
// The clipboard's CF_TEXT up to its first NUL; empty when there is none or it is held open.
ORVA_API std::string TextOnClipboard();
