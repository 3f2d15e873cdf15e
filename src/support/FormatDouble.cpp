// The number formatter. Digits come from std::to_chars, which rounds exactly as printf does, into
// buffers on the stack: one conversion to find the decimals a value needs and one to show it.

#include "support/FormatDouble.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstring>
#include <memory>
#include <string_view>

namespace {

constexpr double kEpsilon = 2.220446049250313e-16;
constexpr int kNoDecimalsSet = 800;
constexpr int kPrintfDefaultPrecision = 6;
// Everything of a printed double but its decimals: sign, 309 integer digits, point, exponent.
constexpr int kRoomBesidesDecimals = 330;

bool IsNear(double a, double b) {
    return std::fabs(a - b) <= std::fabs((a + b) * kEpsilon);
}
bool IsClearlyAbove(double a, double b) {
    return a - b > std::fabs((a + b) * kEpsilon);
}

// Room for one printed value: on the stack unless a caller asks for hundreds of decimals.
class TextBuffer {
public:
    char* Reserve(int size) {
        if (size <= int(sizeof m_small))
            return m_small;
        m_large = std::make_unique<char[]>(size_t(size));
        return m_large.get();
    }

private:
    char m_small[512];
    std::unique_ptr<char[]> m_large;
};

// `value` as printf's "%.*f" or "%.*e" prints it, with room left behind for `extra` characters.
// A negative precision counts as none given, as printf takes it from an argument.
char* Print(TextBuffer& buffer, double value, std::chars_format format, int precision, int extra,
            int& length) {
    if (precision < 0)
        precision = kPrintfDefaultPrecision;
    const int size = precision + kRoomBesidesDecimals + extra;
    char* first = buffer.Reserve(size);
    length = int(std::to_chars(first, first + size, value, format, precision).ptr - first);
    return first;
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

// Removes the first `ch` of text[0, length).
void EraseFirst(char* text, int& length, char ch) {
    if (char* found = static_cast<char*>(std::memchr(text, ch, size_t(length)))) {
        std::memmove(found, found + 1, size_t(text + length - found - 1));
        --length;
    }
}

// The user sees three exponent digits, as the system's own runtime prints them.
void WidenExponent(char* text, int& length) {
    const char* e = static_cast<const char*>(std::memchr(text, 'e', size_t(length)));
    if (e == nullptr || e + 4 != text + length)
        return;
    char* digits = text + (e - text) + 2;
    std::memmove(digits + 1, digits, 2);
    *digits = '0';
    ++length;
}

void TrimZeros(char* text, int& length) {
    const std::string_view view(text, size_t(length));
    if (view.find('.') == std::string_view::npos)
        return;
    if (const auto e = view.find_first_of("eE"); e != std::string_view::npos) {
        size_t keep = e; // zeros run back from the exponent while a digit stays after the point
        while (keep - 1 > 0 && text[keep - 1] == '0' && text[keep - 2] != '.')
            --keep;
        std::memmove(text + keep, text + e, size_t(length) - e);
        length -= int(e - keep);
        return;
    }
    length = int(view.find_last_not_of('0')) + 1;
    if (text[length - 1] == '.')
        text[length++] = '0';
}

} // namespace

int xgAutoDecimals(double value, int& flags, int width) {
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

    // The significant digits (with the sign) in a row, and how many characters the integer
    // part takes.
    TextBuffer buffer;
    char* digits = nullptr;
    int digitCount = 0;
    int integerLength = 0;
    int integerPart = 0;
    if (exponent) {
        digits = Print(buffer, value, std::chars_format::scientific, 15, 0, digitCount);
        integerLength =
            int(static_cast<const char*>(std::memchr(digits, '.', size_t(digitCount))) - digits);
        digitCount =
            int(static_cast<const char*>(std::memchr(digits, 'e', size_t(digitCount))) - digits);
    } else {
        integerPart = IntegerPart(value);
        char integerText[16];
        integerLength =
            int(std::to_chars(integerText, integerText + sizeof integerText, integerPart).ptr -
                integerText);
        const int budget = single ? 7 : 14;
        int printed = 0;
        // The integer text is the field width: a shorter number is padded with blanks, as the
        // runtime pads it.
        digits = Print(buffer, value, std::chars_format::fixed, std::max(budget - integerLength, 0),
                       integerLength, printed);
        const int padding = std::max(integerLength - printed, 0);
        std::memmove(digits + padding, digits, size_t(printed));
        std::memset(digits, ' ', size_t(padding));
        digitCount = printed + padding;
    }
    EraseFirst(digits, digitCount, '.');

    const int integerDigits = integerLength - (value < 0 ? 1 : 0);
    int count = (single ? 6 : 13) - integerDigits;
    if (integerDigits == 1 && integerPart == 0)
        ++count;
    if (count >= digitCount)
        count = digitCount - 1;
    while (count >= 0 && digits[count] == '0')
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
        while (count > 0 && digits[count - 1] == '0')
            --count;
        return count;
    }
    return count < 1 ? 1 : count;
}

CString xgFormatDouble(double value, int decimals, int width, int flags) {
    if (decimals >= kNoDecimalsSet)
        decimals = -1;
    const bool automatic = decimals == -1 || (flags & FMT_MAX_DECIMALS) != 0;
    int count = decimals;
    if (automatic) {
        count = xgAutoDecimals(value, flags, width);
        if ((flags & FMT_MAX_DECIMALS) != 0 && count > decimals)
            count = decimals;
    }
    // Room after the number for the third exponent digit, the zero after a bare point and the
    // blanks of the padding.
    const int extra = 2 + std::max(width, 0);
    TextBuffer buffer;
    int length = 0;
    char* text = nullptr;
    if ((flags & FMT_EXPONENT) != 0) {
        // The magnitude of INT_MIN is out of range: the runtime's absolute value leaves it
        // negative, which printf takes as no precision.
        const int precision = count == INT_MIN ? -1 : std::abs(count);
        text = Print(buffer, value, std::chars_format::scientific, precision, extra, length);
        WidenExponent(text, length);
    } else {
        text = Print(buffer, value, std::chars_format::fixed, count, extra, length);
    }
    if (automatic)
        TrimZeros(text, length);
    if ((flags & FMT_PAD_LEFT) != 0 && length < width) {
        const int padding = width - length;
        std::memmove(text + padding, text, size_t(length));
        std::memset(text, ' ', size_t(padding));
        length = width;
    }
    return CString(text, length);
}
