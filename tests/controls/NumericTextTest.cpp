// The text rules of the numeric edit controls, taken alone.

#include "controls/NumericText.h"

#include <gtest/gtest.h>

#include <climits>

using namespace NumericText;

TEST(NumericText, ShapeAllowsNumbersInTheMakingOnly) {
    for (const char* text : {"", "-", "+", ".", "1e", "1e-", "-1.5E+3", ".5e7", "12", "1é2"})
        EXPECT_TRUE(HasNumberShape(text)) << text;
    for (const char* text : {"1-", "--1", "1.2.3", "1e.5", "1e2e3", "1e5-", "-.-", "1E+-2"})
        EXPECT_FALSE(HasNumberShape(text)) << text;
}

TEST(NumericText, SelectionIsReplacedWithinTheText) {
    EXPECT_EQ(ReplaceSelection("1.5", 1, 2, "."), "1.5");
    EXPECT_EQ(ReplaceSelection("12", 1, 1, "-"), "1-2");
    EXPECT_EQ(ReplaceSelection("12", 2, 0, "e"), "12e"); // a reversed selection inserts
    EXPECT_EQ(ReplaceSelection("12", -4, 40, "7"), "7");
}

TEST(NumericText, ReadingTakesTheLongestNumberAtTheStart) {
    EXPECT_EQ(ReadDouble(" 1e2e3"), 100.0);
    EXPECT_EQ(ReadDouble("-2.5x"), -2.5);
    EXPECT_FALSE(ReadDouble(""));
    EXPECT_FALSE(ReadDouble("-"));
    EXPECT_FALSE(ReadDouble("e5"));
    EXPECT_EQ(ReadInt("1e3"), 1);
    EXPECT_EQ(ReadInt("+42"), 42);
    EXPECT_FALSE(ReadInt("-"));
    EXPECT_EQ(ReadInt("99999999999"), INT_MAX);
    EXPECT_EQ(ReadInt("-99999999999"), INT_MIN);
}

TEST(NumericText, TruncationSaturatesAtTheIntegerRange) {
    EXPECT_EQ(TruncateToInt(-7.9), -7);
    EXPECT_EQ(TruncateToInt(1e300), INT_MAX);
    EXPECT_EQ(TruncateToInt(-1e300), INT_MIN);
    EXPECT_EQ(TruncateToInt(0.0 / 0.0), 0);
}
