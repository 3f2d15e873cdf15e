// The formatter against a plain printf-based one that prints the same digits the slow way:
// many values, every kind of decimals, width and flags, the two must agree character for
// character.

#include "support/FormatDouble.h"

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr double kEpsilon = 2.220446049250313e-16;
constexpr int kNoDecimalsSet = 800;

bool IsNear(double a, double b) {
    return std::fabs(a - b) <= std::fabs((a + b) * kEpsilon);
}
bool IsClearlyAbove(double a, double b) {
    return a - b > std::fabs((a + b) * kEpsilon);
}

std::string Print(const char* format, int first, int second, double value) {
    char small[64];
    const int length = std::snprintf(small, sizeof small, format, first, second, value);
    if (length < int(sizeof small))
        return std::string(small, size_t(std::max(length, 0)));
    std::string text(size_t(length) + 1, '\0');
    std::snprintf(text.data(), text.size(), format, first, second, value);
    text.resize(size_t(length));
    return text;
}

// A negative precision counts as none given, as printf takes it from an argument.
std::string PrintFixed(double value, int decimals) {
    return Print("%*.*f", 0, decimals < 0 ? 6 : decimals, value);
}

// The user sees three exponent digits, as the system's own runtime prints them.
std::string PrintExponent(double value, int decimals) {
    std::string text = Print("%*.*e", 0, decimals, value);
    const auto e = text.find('e');
    if (e != std::string::npos && e + 4 == text.size())
        text.insert(e + 2, 1, '0');
    return text;
}

// The integer part as the conversion to a 32-bit integer leaves it: out of range gives the
// smallest integer, as the system's conversion does.
int IntegerPart(double value) {
    double integral = 0.0;
    std::modf(value, &integral);
    if (integral >= 2147483648.0 || integral < -2147483648.0)
        return INT_MIN;
    return int(integral);
}

void TrimZeros(std::string& text) {
    if (text.find('.') == std::string::npos)
        return;
    const auto e = text.find_first_of("eE");
    if (e != std::string::npos) {
        for (size_t position = e - 1;
             position > 0 && text[position] == '0' && text[position - 1] != '.'; --position)
            text.erase(position, 1);
        return;
    }
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text += '0';
}

int ReferenceAutoDecimals(double value, int& flags, int width) {
    if (!std::isfinite(value))
        return 0;
    const double magnitude = std::fabs(value);
    if (width >= 8) {
        const double limit = std::pow(10.0, width - 3);
        if (IsClearlyAbove(magnitude, limit) || IsNear(magnitude, limit) ||
            (IsClearlyAbove(magnitude, 0.0) && IsClearlyAbove(1e-05, magnitude)))
            flags |= FMT_EXPONENT;
    }
    const bool single = (flags & FMT_SINGLE) != 0;
    const bool exponent = (flags & FMT_EXPONENT) != 0;

    std::string integerText;
    std::string digits;
    int integerPart = 0;
    if (exponent) {
        digits = Print("%*.*e", 1, 15, value);
        integerText = digits.substr(0, digits.find('.'));
        digits.erase(digits.find('e'));
        digits.erase(digits.find('.'), 1);
    } else {
        integerPart = IntegerPart(value);
        integerText = std::to_string(integerPart);
        const int length = int(integerText.size());
        const int budget = single ? 7 : 14;
        digits = Print("%*.*f", length, std::max(budget - length, 0), value);
        if (const auto point = digits.find('.'); point != std::string::npos)
            digits.erase(point, 1);
    }

    const int integerDigits = int(integerText.size()) - (value < 0 ? 1 : 0);
    const int digitCount = int(digits.size());
    int count = (single ? 6 : 13) - integerDigits;
    if (integerDigits == 1 && integerPart == 0)
        ++count;
    if (count >= digitCount)
        count = digitCount - 1;
    while (count >= 0 && digits[size_t(count)] == '0')
        --count;
    ++count;

    int room;
    if (exponent) {
        room = width - 8;
    } else {
        room = width - 3;
        for (double power = 10.0; !IsClearlyAbove(power, magnitude) && std::isfinite(power);
             power *= 10.0)
            --room;
    }
    if (value >= 0)
        ++room;

    if (count > room) {
        count = room;
        if (room < 0)
            return room;
        while (count > 0 && digits[size_t(count - 1)] == '0')
            --count;
        return count;
    }
    return count < 1 ? 1 : count;
}

std::string ReferenceFormat(double value, int decimals, int width, int flags) {
    if (decimals >= kNoDecimalsSet)
        decimals = -1;
    const bool automatic = decimals == -1 || (flags & FMT_MAX_DECIMALS) != 0;
    int count = decimals;
    if (automatic) {
        count = ReferenceAutoDecimals(value, flags, width);
        if ((flags & FMT_MAX_DECIMALS) != 0 && count > decimals)
            count = decimals;
    }
    std::string text = (flags & FMT_EXPONENT) != 0 ? PrintExponent(value, std::abs(count))
                                                   : PrintFixed(value, count);
    if (automatic)
        TrimZeros(text);
    if ((flags & FMT_PAD_LEFT) != 0 && int(text.size()) < width)
        text.insert(0, size_t(width) - text.size(), ' ');
    return text;
}

constexpr int kRandomValues = 120;
constexpr int kDecimals[] = {-3, -1, 0, 1, 2, 3, 5, 7, 10, 13, 14, 15, 17, 20, 40, 799, 800, 5000};
constexpr int kWidths[] = {-1, 0, 1, 3, 5, 7, 8, 9, 10, 11, 12, 15, 17, 20, 30};
constexpr int kAllFlags = FMT_SINGLE | FMT_EXPONENT | FMT_MAX_DECIMALS | FMT_PAD_LEFT;

std::vector<double> Values() {
    std::vector<double> values = {0.0,
                                  -0.0,
                                  0.5,
                                  -0.5,
                                  1.0,
                                  -1.0,
                                  0.1,
                                  1.0 / 3.0,
                                  2.0 / 3.0,
                                  9.5,
                                  0.05,
                                  0.15,
                                  0.125,
                                  999999.5,
                                  9999999.0,
                                  99999999999999.0,
                                  999999999999999.9,
                                  1e-5,
                                  9.99999e-6,
                                  1e12,
                                  1e15,
                                  2147483647.5,
                                  2147483648.0,
                                  -2147483648.0,
                                  -2147483649.0,
                                  3e9,
                                  -3e9,
                                  1e300,
                                  -1e300,
                                  1e-300,
                                  std::numeric_limits<double>::max(),
                                  std::numeric_limits<double>::lowest(),
                                  std::numeric_limits<double>::min(),
                                  std::numeric_limits<double>::denorm_min(),
                                  std::numeric_limits<double>::infinity(),
                                  -std::numeric_limits<double>::infinity(),
                                  std::numeric_limits<double>::quiet_NaN(),
                                  -std::numeric_limits<double>::quiet_NaN()};
    std::mt19937_64 random(2024);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-20, 20);
    for (int i = 0; i < kRandomValues; ++i) {
        const double scaled = mantissa(random) * std::pow(10.0, exponent(random));
        values.push_back(i % 3 == 0 ? std::round(scaled * 1000) / 1000 : scaled);
        double anyBits = std::bit_cast<double>(random());
        values.push_back(anyBits);
    }
    return values;
}

TEST(FormatDoubleAgreement, EveryDecimalsWidthAndFlagsGiveThePrintfText) {
    int mismatches = 0;
    for (const double value : Values())
        for (const int decimals : kDecimals)
            for (const int width : kWidths)
                for (int flags = 0; flags <= kAllFlags; ++flags) {
                    const std::string expected = ReferenceFormat(value, decimals, width, flags);
                    const CString shown = xgFormatDouble(value, decimals, width, flags);
                    if (std::string(shown.View()) != expected && ++mismatches <= 10)
                        ADD_FAILURE() << "value " << value << " decimals " << decimals << " width "
                                      << width << " flags " << flags << ": " << shown.View()
                                      << " instead of " << expected;
                    if (decimals != -1)
                        continue;
                    int autoFlags = flags, referenceFlags = flags;
                    const int count = xgAutoDecimals(value, autoFlags, width);
                    if ((count != ReferenceAutoDecimals(value, referenceFlags, width) ||
                         autoFlags != referenceFlags) &&
                        ++mismatches <= 10)
                        ADD_FAILURE()
                            << "decimals of " << value << " width " << width << " flags " << flags;
                }
    EXPECT_EQ(mismatches, 0);
}

} // namespace
