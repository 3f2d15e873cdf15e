// Strings write over a buffer of their own rather than allocate: assignments and formats from
// the string itself, from copies that share its buffer, and past the short-text room.

#include "platform/base/String.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int kLongerThanTheStackRoom = 300;

TEST(StringBuffer, AssigningAndFormattingFromItselfOrASharedCopy) {
    CString text = "0123456789";
    text = text.GetString() + 4; // from inside its own buffer
    EXPECT_EQ(text, "456789");
    text.Format("%s|%s", text.GetString(), text.GetString());
    EXPECT_EQ(text, "456789|456789");

    CString copy = text; // shares the buffer until one of them changes
    text = "short";
    EXPECT_EQ(copy, "456789|456789");
    copy.Format("%d", 42);
    EXPECT_EQ(copy, "42");
    EXPECT_EQ(text, "short");

    const std::string longText(kLongerThanTheStackRoom, 'x');
    text.Format("%s!", longText.c_str());
    EXPECT_EQ(std::string(text.View()), longText + "!");
    text.Format("%s", "");
    EXPECT_TRUE(text.IsEmpty());
    text = "again";
    EXPECT_EQ(text, "again");
}

} // namespace
