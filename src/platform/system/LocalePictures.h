#pragma once

// The locale gives its date and time formats as strftime pictures; the regional settings hold
// them as the system's pictures ("%m/%d/%Y" is "MM/dd/yyyy", "%I:%M:%S %p" is "hh:mm:ss tt").

#include "platform/base/Export.h"

#include <string>

// Letters that stand for themselves are quoted; conversions without a counterpart are dropped.
ORVA_API std::string PictureFromStrftime(const char* picture);

// The short time: the time picture without its seconds and what leads up to them.
ORVA_API std::string ShortTimePicture(std::string picture);
