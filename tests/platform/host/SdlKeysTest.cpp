#include "platform/host/SdlKeys.h"
#include "platform/base/Messages.h"
#include "platform/host/HeadlessHost.h"
#include "platform/host/SdlHost.h"

#include <SDL2/SDL_keycode.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

TEST(SdlKeys, KeysTheFrameworkNamesMapToItsVirtualKeys) {
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_a), UINT('A'));
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_z), UINT('Z'));
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_0), UINT('0'));
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_9), UINT('9'));
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_F1), VK_F1);
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_F12), VK_F1 + 11);
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_PAGEUP), VK_PRIOR);
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_PAGEDOWN), VK_NEXT);
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_KP_ENTER), VK_RETURN);
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_BACKSPACE), VK_BACK);
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_RSHIFT), VK_RSHIFT);
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_LCTRL), VK_LCONTROL);
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_RALT), VK_MENU);
    // Keys without a name of ours make no key message; their text still arrives as typed.
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_SEMICOLON), 0u);
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_F13), 0u);
    EXPECT_EQ(VirtualKeyFromSdlKeycode(SDLK_UNKNOWN), 0u);
}

TEST(SdlKeys, TypedTextKeepsWhatLatin1Holds) {
    EXPECT_EQ(Latin1FromUtf8("abc"), "abc");
    EXPECT_EQ(Latin1FromUtf8("\xC3\xA9t\xC3\xA9 \xC2\xB0"), "\xE9t\xE9 \xB0");
    // The euro sign (three bytes) and an emoji (four) have no Latin-1 byte.
    EXPECT_EQ(Latin1FromUtf8("1\xE2\x82\xAC 2\xF0\x9F\x98\x80"), "1 2");
    // A lead byte without its continuation is dropped, not taken as a character.
    EXPECT_EQ(Latin1FromUtf8("a\xC3"), "a");
    EXPECT_EQ(Latin1FromUtf8("a\xC3z"), "az");
    EXPECT_EQ(Latin1FromUtf8(nullptr), "");

    const std::string all = [] {
        std::string s;
        for (int c = 1; c < 256; ++c)
            s += char(c);
        return s;
    }();
    EXPECT_EQ(Latin1FromUtf8(Utf8FromLatin1(all).c_str()), all);
}

TEST(SdlHostSelection, WithoutADisplayTheHeadlessHostStays) {
    const auto saved = [](const char* name) -> std::optional<std::string> {
        const char* value = std::getenv(name);
        return value ? std::optional<std::string>(value) : std::nullopt;
    };
    const auto display = saved("DISPLAY");
    const auto wayland = saved("WAYLAND_DISPLAY");
    unsetenv("DISPLAY");
    setenv("WAYLAND_DISPLAY", "", 1);

    EXPECT_FALSE(UseSdlHostIfDisplay());
    EXPECT_STREQ(GetHost().Name(), "headless");

    const auto restore = [](const char* name, const std::optional<std::string>& value) {
        if (value)
            setenv(name, value->c_str(), 1);
        else
            unsetenv(name);
    };
    restore("DISPLAY", display);
    restore("WAYLAND_DISPLAY", wayland);
}
