#pragma once

// The shell's file associations: which program opens a document, and opening it. They follow
// the desktop's shared MIME database and its .desktop files ($XDG_DATA_HOME, $XDG_DATA_DIRS,
// $XDG_CONFIG_HOME, $XDG_CONFIG_DIRS), as a file manager does.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

// Results at or below 32 are failures.
constexpr int SE_ERR_FNF = 2;          // the file was not found
constexpr int SE_ERR_PNF = 3;          // the path is invalid
constexpr int SE_ERR_ACCESSDENIED = 5; // the file may not be read
constexpr int SE_ERR_OOM = 8;          // out of memory or resources
constexpr int SE_ERR_NOASSOC = 31;     // no program is associated with the file's type
// Opens `file` (relative to `directory` unless absolute) with its associated program, which
// runs on without being waited for. `verb` is "open" or null; `parameters` are ignored, as the
// program's own command line decides them. A result above 32, as a handle, is success.
ORVA_API HINSTANCE ShellExecuteA(HWND owner, const char* verb, const char* file,
                                 const char* parameters, const char* directory, int showCommand);

// Writes the program that opens `file` (its path, found through PATH) into `result`, which
// holds MAX_PATH bytes; a longer name is cut. A result above 32 is success.
ORVA_API HINSTANCE FindExecutableA(const char* file, const char* directory, char* result);

constexpr int MAX_PATH = 260;
