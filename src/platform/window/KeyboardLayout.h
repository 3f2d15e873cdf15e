#pragma once

// The keyboard layout (United States): which character a key makes, and which key makes a
// character. TranslateMessage and the UI driver's typing use it.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <optional>

struct KeyStroke {
    UINT virtualKey;
    bool shift;
};

// The character of a key with Shift and Control as given; none for keys that make none.
ORVA_API std::optional<char> CharFromKey(UINT virtualKey, bool shift, bool control);
// The key (and Shift) that types a character; none for a character the layout lacks.
ORVA_API std::optional<KeyStroke> KeyFromChar(char ch);
