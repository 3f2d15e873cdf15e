#include "support/FormatDouble.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

std::string Shown(double value, int decimals = -1, int width = 15, int flags = 0) {
    return std::string(xgFormatDouble(value, decimals, width, flags).View());
}

TEST(FormatDouble, AutomaticDecimalsShowWhatTheValueNeeds) {
    EXPECT_EQ(Shown(0.0), "0.0");
    EXPECT_EQ(Shown(1.5), "1.5");
    EXPECT_EQ(Shown(-1.5), "-1.5");
    EXPECT_EQ(Shown(123.456), "123.456");
    EXPECT_EQ(Shown(2.0), "2.0");
    EXPECT_EQ(Shown(0.1), "0.1");
    EXPECT_EQ(Shown(1.0 / 3.0), "0.3333333333333");
    EXPECT_EQ(Shown(-1234.5), "-1234.5");
}

TEST(FormatDouble, ExponentNotationStartsAtTheWidthAndBelowTheSmallLimit) {
    EXPECT_EQ(Shown(1e12), "1.0e+012");
    EXPECT_EQ(Shown(1.5e12), "1.5e+012");
    EXPECT_EQ(Shown(-2.5e15), "-2.5e+015");
    EXPECT_EQ(Shown(999999999999.0), "999999999999.0");
    EXPECT_EQ(Shown(0.00001), "0.00001");
    EXPECT_EQ(Shown(0.000009), "9.0e-006");
    EXPECT_EQ(Shown(1.25e-300), "1.25e-300");
    // A narrow field never switches to exponents.
    EXPECT_EQ(Shown(1e12, -1, 7), "1000000000000.0");
}

TEST(FormatDouble, ExactDecimalsAreNeitherTrimmedNorSwitched) {
    EXPECT_EQ(Shown(3.14159, 2), "3.14");
    EXPECT_EQ(Shown(3.0, 2), "3.00");
    EXPECT_EQ(Shown(3.1, 2), "3.10");
    EXPECT_EQ(Shown(1e13, 1), "10000000000000.0");
    EXPECT_EQ(Shown(1234.5, 2, 15, FMT_EXPONENT), "1.23e+003");
}

TEST(FormatDouble, MaximumDecimalsCapAndTrim) {
    EXPECT_EQ(Shown(3.0, 2, 15, FMT_MAX_DECIMALS), "3.0");
    EXPECT_EQ(Shown(3.14159, 2, 15, FMT_MAX_DECIMALS), "3.14");
    EXPECT_EQ(Shown(3.14159, 8, 15, FMT_MAX_DECIMALS), "3.14159");
    EXPECT_EQ(Shown(2.5, 0, 15, FMT_MAX_DECIMALS), "2");
}

TEST(FormatDouble, DecimalsFromEightHundredUpMeanNoneSet) {
    EXPECT_EQ(Shown(123.456, 800), Shown(123.456, -1));
    EXPECT_EQ(Shown(1e-7, 1000), Shown(1e-7, -1));
}

TEST(FormatDouble, SinglePrecisionBudgetsSevenDigits) {
    EXPECT_EQ(Shown(1.0 / 3.0, -1, 15, FMT_SINGLE), "0.3333333");
    EXPECT_EQ(Shown(12.25f, -1, 15, FMT_SINGLE), "12.25");
}

TEST(FormatDouble, PaddingFillsTheWidthFromTheLeft) {
    EXPECT_EQ(Shown(1.5, -1, 8, FMT_PAD_LEFT), "     1.5");
    EXPECT_EQ(Shown(1.5, 2, 3, FMT_PAD_LEFT), "1.50");
}

TEST(FormatDouble, LargeIntegerPartsKeepTheirDigits) {
    // The integer part does not fit 32 bits; the count still leaves the whole number.
    EXPECT_EQ(Shown(3e9, -1, 15), "3000000000.0");
    EXPECT_EQ(Shown(-3e9, -1, 15), "-3000000000.0");
}

TEST(FormatDouble, ValuesThatAreNotFiniteGetNoDecimals) {
    int flags = 0;
    EXPECT_EQ(xgAutoDecimals(std::numeric_limits<double>::infinity(), flags, 15), 0);
    EXPECT_EQ(flags, 0);
    EXPECT_EQ(Shown(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(Shown(-std::numeric_limits<double>::quiet_NaN()).find("nan") != std::string::npos,
              true);
}

TEST(AutoDecimals, SetsTheExponentFlagOnlyWhenNeeded) {
    int flags = 0;
    xgAutoDecimals(1e12, flags, 15);
    EXPECT_EQ(flags, FMT_EXPONENT);
    flags = FMT_SINGLE;
    xgAutoDecimals(12.0, flags, 15);
    EXPECT_EQ(flags, FMT_SINGLE);
    flags = 0;
    xgAutoDecimals(1e300, flags, 7);
    EXPECT_EQ(flags, 0);
}

} // namespace
