#include "support/TempFiles.h"

#include "platform/system/FileSystem.h"
#include "platform/system/Process.h"
#include "platform/system/Uuid.h"

#include <cerrno>
#include <cstdio>

namespace {

constexpr const char* kDirectoryPrefix = "FlumeBench_";
constexpr const char* kProbeName = "FlumeBench.flb";

enum class MakeDirectoryResult { Made = 0, Exists = 1, AccessDenied = 2, NoSpace = 3 };

int MakeDirectory(const char* path) {
    if (_mkdir(path) == 0)
        return int(MakeDirectoryResult::Made);
    switch (errno) {
    case EEXIST:
        return int(MakeDirectoryResult::Exists);
    case EACCES:
        return int(MakeDirectoryResult::AccessDenied);
    case ENOSPC:
        return int(MakeDirectoryResult::NoSpace);
    default:
        return errno;
    }
}

// This process's own directory, made when a probe file cannot be written in it. Whether the
// making worked shows when the caller opens a file there.
bool FindProcessDirectory(zvk::CStdStr<char>& directory) {
    std::string temporary;
    if (!GetTempDir(temporary))
        return false;
    directory.Format("%s%s%d/", temporary.c_str(), kDirectoryPrefix, _getpid());
    zvk::CStdStr<char> probe;
    probe.Format("%s%s", directory.c_str(), kProbeName);
    if (FILE* file = std::fopen(probe.c_str(), "w")) {
        std::fclose(file);
        std::remove(probe.c_str());
    } else {
        MakeDirectory(directory.c_str());
    }
    return true;
}

} // namespace

bool ouGetTempFilename(const char* extension, zvk::CStdStr<char>& name, const char* directory) {
    zvk::CStdStr<char> folder;
    if (directory == nullptr) {
        if (!FindProcessDirectory(folder))
            return false;
    } else {
        folder = directory;
    }
    const std::string identifier = CreateUuidString();
    if (extension == nullptr) {
        name.Format("%s%s", folder.c_str(), identifier.c_str());
    } else {
        if (*extension == '.')
            ++extension;
        name.Format("%s%s.%s", folder.c_str(), identifier.c_str(), extension);
    }
    return true;
}

void xgCleanOldTempDirs() {
    std::string temporary;
    if (!GetTempDir(temporary))
        return;
    // As the original search does, a name without a number keeps the id of the previous one.
    int processId = 0;
    for (const std::string& found : FindFiles(temporary, "FlumeBench_*")) {
        const std::string path = temporary + found;
        const auto underscore = path.rfind('_');
        std::sscanf(path.c_str() + (underscore == std::string::npos ? 0 : underscore + 1), "%d",
                    &processId);
        if (!IsProcessAlive(processId))
            DeleteOwnedTree(path);
    }
}
