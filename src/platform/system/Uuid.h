#pragma once

// New identifiers for names that must not collide.

#include "platform/base/Export.h"

#include <string>

// A random (version 4) identifier in its 36-character form with hyphens, lower case:
// "xxxxxxxx-xxxx-4xxx-yxxx-xxxxxxxxxxxx".
ORVA_API std::string CreateUuidString();
