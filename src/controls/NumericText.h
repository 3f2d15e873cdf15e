#pragma once

// The text rules of the numeric edit controls, apart from any window: which characters may be
// typed, pasted or set, whether a text has the shape of a number being written, and how a text
// is read as a value.

#include "platform/base/Export.h"

#include <optional>
#include <string>
#include <string_view>

namespace NumericText {

// Characters refused when typed. The digits, the signs, the point and the exponent letters are
// absent on purpose; "/" stands twice.
inline constexpr std::string_view kRejectChars =
    " `~!@#$%^&*()_=qwrtyuiop[]\\asdfghjkl;'zxcvbnm,/QWRTYUIOP{}|ASDFGHJKL:\"ZXCVBNM<>?/";
// The only characters of a pasted or set text, for a double and for an integer.
inline constexpr std::string_view kFloatAcceptChars = "1234567890-+eE.";
inline constexpr std::string_view kIntAcceptChars = "1234567890+-eE";

// True when every character of `text` stands in `allowed`.
ORVA_API bool OnlyCharsOf(std::string_view text, std::string_view allowed);

// True when `ch` is one of the characters whose place in the text matters: a sign, the point or
// an exponent letter.
ORVA_API bool IsShapeChar(char ch);

// The shape of a number being written: a sign only at the start or right behind the exponent
// letter, at most one point and never behind the exponent, at most one exponent letter. Other
// characters are not looked at, so "", "-", "." and "1e-" pass: no complete number is required.
ORVA_API bool HasNumberShape(std::string_view text);

// `text` with the characters from `selStart` to `selEnd` replaced by `insert`; positions past
// the end are taken as the end.
ORVA_API std::string ReplaceSelection(std::string_view text, int selStart, int selEnd,
                                      std::string_view insert);

// The value at the start of `text` as the C library's "%lf" and "%d" read it (leading blanks
// skipped, the longest number that can be read); empty when none can. An integer beyond 32 bits
// reads as the nearest one that fits.
ORVA_API std::optional<double> ReadDouble(const char* text);
ORVA_API std::optional<int> ReadInt(const char* text);

// The integer part of `value`, or the nearest 32-bit integer beyond that range; 0 for NaN.
ORVA_API int TruncateToInt(double value);

// Not above `max`, then not below `min`.
template <typename T> T Clamp(T value, T min, T max) {
    if (value > max)
        value = max;
    if (value < min)
        value = min;
    return value;
}

} // namespace NumericText
