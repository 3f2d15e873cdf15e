#pragma once

// Files and directories as the support library needs them: the temporary directory, making a
// directory, listing names by pattern, and removing a tree left behind by a dead process.

#include "platform/base/Export.h"

#include <string>
#include <vector>

// The system's temporary directory, ending in "/": $TMPDIR, else /tmp. False, with `directory`
// unchanged, if that is not an existing directory.
ORVA_API bool GetTempDir(std::string& directory);

// Makes one directory, open to its owner only. 0, or -1 with errno set.
ORVA_API int _mkdir(const char* path);

// The names in `directory` (not "." and "..") that match the shell pattern `pattern`
// ("FlumeBench_*"), of any kind, in the order the directory gives them.
ORVA_API std::vector<std::string> FindFiles(const std::string& directory, const char* pattern);

// Removes `path` and, for a directory, everything in it, depth first. Symbolic links are
// removed themselves, never followed, and only entries that the current user owns are
// touched: in a shared temporary directory, another user's files stay, and so do the
// directories that hold them. True if `path` is gone.
ORVA_API bool DeleteOwnedTree(const std::string& path);
