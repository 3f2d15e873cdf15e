#include "platform/host/SdlKeys.h"

#include "platform/base/Messages.h"

#include <SDL2/SDL_keycode.h>

UINT VirtualKeyFromSdlKeycode(std::int32_t keycode) {
    // Letters and digits: SDL's codes follow the layout, so the key labelled "z" is Z.
    if (keycode >= SDLK_a && keycode <= SDLK_z)
        return UINT('A' + (keycode - SDLK_a));
    if (keycode >= SDLK_0 && keycode <= SDLK_9)
        return UINT('0' + (keycode - SDLK_0));
    if (keycode >= SDLK_F1 && keycode <= SDLK_F12)
        return VK_F1 + UINT(keycode - SDLK_F1);
    switch (keycode) {
    case SDLK_LEFT:
        return VK_LEFT;
    case SDLK_RIGHT:
        return VK_RIGHT;
    case SDLK_UP:
        return VK_UP;
    case SDLK_DOWN:
        return VK_DOWN;
    case SDLK_HOME:
        return VK_HOME;
    case SDLK_END:
        return VK_END;
    case SDLK_PAGEUP:
        return VK_PRIOR;
    case SDLK_PAGEDOWN:
        return VK_NEXT;
    case SDLK_INSERT:
        return VK_INSERT;
    case SDLK_DELETE:
        return VK_DELETE;
    case SDLK_TAB:
        return VK_TAB;
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
        return VK_RETURN;
    case SDLK_ESCAPE:
        return VK_ESCAPE;
    case SDLK_BACKSPACE:
        return VK_BACK;
    case SDLK_SPACE:
        return VK_SPACE;
    case SDLK_LSHIFT:
        return VK_LSHIFT;
    case SDLK_RSHIFT:
        return VK_RSHIFT;
    case SDLK_LCTRL:
        return VK_LCONTROL;
    case SDLK_RCTRL:
        return VK_RCONTROL;
    case SDLK_LALT:
    case SDLK_RALT:
        return VK_MENU;
    default:
        return 0;
    }
}

std::string Latin1FromUtf8(const char* text) {
    std::string latin1;
    if (!text)
        return latin1;
    const auto* p = reinterpret_cast<const unsigned char*>(text);
    while (*p) {
        if (*p < 0x80) {
            latin1 += char(*p++);
            continue;
        }
        // Only two-byte sequences can be Latin-1 (U+0080..U+00FF: lead byte C2 or C3).
        int length = (*p & 0xE0) == 0xC0   ? 2
                     : (*p & 0xF0) == 0xE0 ? 3
                     : (*p & 0xF8) == 0xF0 ? 4
                                           : 1;
        bool whole = true;
        for (int i = 1; i < length && whole; ++i)
            whole = (p[i] & 0xC0) == 0x80;
        if (whole && length == 2 && (*p == 0xC2 || *p == 0xC3))
            latin1 += char(((*p & 0x03) << 6) | (p[1] & 0x3F));
        p += whole ? length : 1;
    }
    return latin1;
}

std::string Utf8FromLatin1(const std::string& text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            utf8 += c;
        } else {
            utf8 += char(0xC0 | (byte >> 6));
            utf8 += char(0x80 | (byte & 0x3F));
        }
    }
    return utf8;
}
