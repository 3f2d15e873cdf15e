// The text rules of the numeric edit controls.

#include "controls/NumericText.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>

namespace NumericText {

bool OnlyCharsOf(std::string_view text, std::string_view allowed) {
    return std::all_of(text.begin(), text.end(),
                       [&](char c) { return allowed.find(c) != std::string_view::npos; });
}

bool IsShapeChar(char ch) {
    return ch == '+' || ch == '-' || ch == '.' || ch == 'e' || ch == 'E';
}

bool HasNumberShape(std::string_view text) {
    bool point = false;
    std::ptrdiff_t exponentAt = -1;
    for (std::ptrdiff_t i = 0; i < std::ptrdiff_t(text.size()); ++i) {
        switch (text[size_t(i)]) {
        case '+':
        case '-':
            if (i != 0 && i != exponentAt + 1)
                return false;
            break;
        case '.':
            if (point || exponentAt != -1)
                return false;
            point = true;
            break;
        case 'e':
        case 'E':
            if (exponentAt != -1)
                return false;
            exponentAt = i;
            break;
        default:
            break;
        }
    }
    return true;
}

std::string ReplaceSelection(std::string_view text, int selStart, int selEnd,
                             std::string_view insert) {
    const auto clip = [&](int pos) {
        return std::clamp<size_t>(size_t(std::max(pos, 0)), 0, text.size());
    };
    const size_t start = clip(selStart);
    const size_t end = std::max(start, clip(selEnd));
    std::string result(text.substr(0, start));
    result += insert;
    result += text.substr(end);
    return result;
}

std::optional<double> ReadDouble(const char* text) {
    double value = 0.0;
    if (!text || std::sscanf(text, "%lf", &value) != 1)
        return std::nullopt;
    return value;
}

std::optional<int> ReadInt(const char* text) {
    // "%d" is undefined for a number beyond the range of int; strtoll reads the same digits and
    // says where it stopped and whether it overflowed.
    if (!text)
        return std::nullopt;
    char* end = nullptr;
    const long long value = std::strtoll(text, &end, 10);
    if (end == text)
        return std::nullopt;
    return int(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

int TruncateToInt(double value) {
    if (value != value)
        return 0;
    return int(std::clamp(value, double(INT_MIN), double(INT_MAX)));
}

} // namespace NumericText
