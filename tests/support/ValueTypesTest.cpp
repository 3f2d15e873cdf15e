#include "support/MUcolor.h"
#include "support/StdStr.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

TEST(MUcolor, EqualityAndOrderIgnoreAlpha) {
    const MUcolor a(1, 2, 3, 4), b(1, 2, 3, 9);
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a < b);
    EXPECT_FALSE(b < a);
    EXPECT_TRUE(MUcolor(1, 2, 3) < MUcolor(1, 2, 4));
    EXPECT_TRUE(MUcolor(1, 9, 9) < MUcolor(2, 0, 0));
    EXPECT_FALSE(MUcolor(2, 0, 0) < MUcolor(1, 9, 9));
    EXPECT_TRUE(MUcolor(0, 0, 0) != MUcolor(0, 0, 1));

    // As a map key, colours that differ in alpha alone are one colour.
    std::map<MUcolor, int> uses;
    ++uses[a];
    ++uses[b];
    EXPECT_EQ(uses.size(), 1u);
}

TEST(MUcolor, AssignmentKeepsAlphaAndConversionDropsIt) {
    MUcolor copy;
    copy = MUcolor(10, 20, 30, 40);
    EXPECT_EQ(copy.alpha, 40);
    EXPECT_EQ(COLORREF(copy), RGB(10, 20, 30));
    EXPECT_EQ(COLORREF(MUcolor(255, 255, 255, 255)), 0x00FFFFFFu);
    EXPECT_EQ(MUcolor().red + MUcolor().alpha, 0);
}

TEST(CStdStr, FormatReplacesTheWholeContent) {
    zvk::CStdStr<char> text = "old text";
    text.Format("%s=%d", "n", 42);
    EXPECT_EQ(text, "n=42");
    text.Format("%s", "");
    EXPECT_TRUE(text.empty());
}

TEST(CStdStr, FormatGrowsItsBufferAndCutsBeyondTheLast) {
    zvk::CStdStr<char> text;
    for (size_t length : {2048u, 2049u, 6145u, 30000u, 43008u}) {
        text.Format("%s", std::string(length, 'a').c_str());
        EXPECT_EQ(text.size(), length);
    }
    text.Format("%s!", std::string(50000, 'b').c_str());
    EXPECT_EQ(text.size(), 43008u);
    EXPECT_EQ(text.back(), 'b');
}

} // namespace
