#pragma once

// Starting other programs, and where the application and its help document live.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"
#include "support/StdStr.h"

// The application's folder, ending in a separator (nothing adds one). Empty until set.
ORVA_API void xgSetApplicationPath(const char* path);

// The application path followed by "rd4.pdf".
ORVA_API zvk::CStdStr<char> xgGetHelpFileName();

// Starts `commandLine` in `directory` (none if empty). With `noWait` 0 it waits for the end
// and stores the exit code in `exitCode` unless that is null; otherwise the process runs on
// and its handle is kept until the next launch, which lets it go. `minimizeMainWindow`
// minimises the application's main window. A failed start is silent: the result is 1.
ORVA_API int xgLaunchProcess(const char* commandLine, const char* directory, int minimizeMainWindow,
                             int noWait, int* exitCode);

// The handle that the last launch without a wait kept, or null.
ORVA_API HANDLE xgGetLastProcess();
