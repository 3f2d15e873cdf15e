#include "platform/window/KeyboardLayout.h"

#include "platform/base/Messages.h"

#include <cstring>

namespace {
struct OemKey {
    UINT vk;
    char plain;
    char shifted;
};

constexpr OemKey oemKeys[] = {
    {0xBA, ';', ':'},  {0xBB, '=', '+'}, {0xBC, ',', '<'},  {0xBD, '-', '_'},
    {0xBE, '.', '>'},  {0xBF, '/', '?'}, {0xC0, '`', '~'},  {0xDB, '[', '{'},
    {0xDC, '\\', '|'}, {0xDD, ']', '}'}, {0xDE, '\'', '"'},
};

constexpr const char* shiftedDigits = ")!@#$%^&*(";

constexpr UINT VK_NUMPAD0 = 0x60;
constexpr UINT VK_MULTIPLY = 0x6A;
constexpr UINT VK_ADD = 0x6B;
constexpr UINT VK_SUBTRACT = 0x6D;
constexpr UINT VK_DECIMAL = 0x6E;
constexpr UINT VK_DIVIDE = 0x6F;
} // namespace

std::optional<char> CharFromKey(UINT vk, bool shift, bool control) {
    if (vk >= 'A' && vk <= 'Z') {
        if (control)
            return char(vk - 'A' + 1);
        return char(shift ? vk : vk - 'A' + 'a');
    }
    if (control)
        return std::nullopt;
    if (vk >= '0' && vk <= '9')
        return shift ? shiftedDigits[vk - '0'] : char(vk);
    if (vk >= VK_NUMPAD0 && vk <= VK_NUMPAD0 + 9)
        return char('0' + (vk - VK_NUMPAD0));
    switch (vk) {
    case VK_SPACE:
        return ' ';
    case VK_RETURN:
        return '\r';
    case VK_TAB:
        return '\t';
    case VK_BACK:
        return '\b';
    case VK_ESCAPE:
        return char(27);
    case VK_MULTIPLY:
        return '*';
    case VK_ADD:
        return '+';
    case VK_SUBTRACT:
        return '-';
    case VK_DECIMAL:
        return '.';
    case VK_DIVIDE:
        return '/';
    default:
        break;
    }
    for (const OemKey& key : oemKeys)
        if (key.vk == vk)
            return shift ? key.shifted : key.plain;
    return std::nullopt;
}

std::optional<KeyStroke> KeyFromChar(char ch) {
    if (ch >= 'a' && ch <= 'z')
        return KeyStroke{UINT(ch - 'a' + 'A'), false};
    if (ch >= 'A' && ch <= 'Z')
        return KeyStroke{UINT(ch), true};
    if (ch >= '0' && ch <= '9')
        return KeyStroke{UINT(ch), false};
    if (ch && std::strchr(shiftedDigits, ch))
        return KeyStroke{UINT('0' + (std::strchr(shiftedDigits, ch) - shiftedDigits)), true};
    switch (ch) {
    case ' ':
        return KeyStroke{VK_SPACE, false};
    case '\r':
    case '\n':
        return KeyStroke{VK_RETURN, false};
    case '\t':
        return KeyStroke{VK_TAB, false};
    case '\b':
        return KeyStroke{VK_BACK, false};
    case 27:
        return KeyStroke{VK_ESCAPE, false};
    default:
        break;
    }
    for (const OemKey& key : oemKeys) {
        if (key.plain == ch)
            return KeyStroke{key.vk, false};
        if (key.shifted == ch)
            return KeyStroke{key.vk, true};
    }
    return std::nullopt;
}
