#pragma once

// What the SDL host makes of the display's keyboard: SDL key codes as the framework's virtual
// keys, and typed text as the framework's single-byte (Latin-1) characters.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <cstdint>
#include <string>

// The virtual key of an SDL key code, or 0 for a key the framework has no name for.
ORVA_API UINT VirtualKeyFromSdlKeycode(std::int32_t keycode);
// The characters of UTF-8 text that Latin-1 can hold, one byte each; the others are dropped,
// and so are broken sequences.
ORVA_API std::string Latin1FromUtf8(const char* text);
// Latin-1 text as UTF-8, for the system clipboard.
ORVA_API std::string Utf8FromLatin1(const std::string& text);
