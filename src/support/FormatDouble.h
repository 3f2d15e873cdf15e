#pragma once

// The one conversion of a double to the text that the user sees, shared by numeric edit
// controls, numeric grid cells and the plot dialogs.

#include "platform/base/Export.h"
#include "platform/base/String.h"

constexpr int FMT_SINGLE = 1;       // single precision: 7 significant digits, not 14
constexpr int FMT_EXPONENT = 2;     // exponent notation
constexpr int FMT_MAX_DECIMALS = 4; // `decimals` is a maximum; trailing zeros go
constexpr int FMT_PAD_LEFT = 8;     // blanks on the left up to `width`

// `decimals` -1 (or 800 and above) shows as many digits as the value needs; `width` is the
// number of character positions available. Exponents always have at least three digits.
ORVA_API CString xgFormatDouble(double value, int decimals, int width, int flags);

// The count of decimals that `value` needs within `width`; may add FMT_EXPONENT to `flags`.
ORVA_API int xgAutoDecimals(double value, int& flags, int width);
