#pragma once

// Temporary files. Every running copy of the application has a directory of its own under the
// system's temporary directory, "FlumeBench_<process id>/"; the id is the only record of who
// owns it, and a directory whose process is gone is left for xgCleanOldTempDirs.

#include "platform/base/Export.h"
#include "support/StdStr.h"

// A new unique name: `directory` (which must end in a separator; null for this process's
// own directory, made on the way), a new identifier, and the extension with one "." before
// it (a "." already there is not doubled). The file is not made. False, with `name` as it
// was, only if there is no temporary directory.
ORVA_API bool ouGetTempFilename(const char* extension, zvk::CStdStr<char>& name,
                                const char* directory);

// Removes the temporary directories (and files) of copies that no longer run. Only what the
// current user owns is removed, and links are not followed.
ORVA_API void xgCleanOldTempDirs();
