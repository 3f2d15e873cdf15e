#include "platform/system/FileSystem.h"

#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <fnmatch.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool IsOwnedByMe(const struct stat& info) {
    return info.st_uid == geteuid();
}

// Empties the directory open at `descriptor`, then closes it. Every step goes through
// descriptors relative to the directory, so that a name swapped for a link between the look
// and the removal cannot lead the removal elsewhere.
bool EmptyOwnedDirectory(int descriptor) {
    DIR* directory = fdopendir(descriptor);
    if (directory == nullptr) {
        close(descriptor);
        return false;
    }
    bool emptied = true;
    while (dirent* entry = readdir(directory)) {
        const char* name = entry->d_name;
        if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')))
            continue;
        struct stat info {};
        if (fstatat(descriptor, name, &info, AT_SYMLINK_NOFOLLOW) != 0 || !IsOwnedByMe(info)) {
            emptied = false;
            continue;
        }
        if (S_ISDIR(info.st_mode)) {
            const int child = openat(descriptor, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
            const bool childEmptied = child >= 0 && EmptyOwnedDirectory(child);
            if (!childEmptied || unlinkat(descriptor, name, AT_REMOVEDIR) != 0)
                emptied = false;
        } else if (unlinkat(descriptor, name, 0) != 0) {
            emptied = false;
        }
    }
    closedir(directory);
    return emptied;
}

} // namespace

bool GetTempDir(std::string& directory) {
    const char* variable = std::getenv("TMPDIR");
    std::string found = variable != nullptr && *variable != '\0' ? variable : "/tmp";
    struct stat info {};
    if (stat(found.c_str(), &info) != 0 || !S_ISDIR(info.st_mode))
        return false;
    if (found.back() != '/')
        found += '/';
    directory = found;
    return true;
}

int _mkdir(const char* path) {
    return mkdir(path, 0700);
}

std::vector<std::string> FindFiles(const std::string& directory, const char* pattern) {
    std::vector<std::string> names;
    DIR* listing = opendir(directory.empty() ? "." : directory.c_str());
    if (listing == nullptr)
        return names;
    while (dirent* entry = readdir(listing)) {
        const std::string name = entry->d_name;
        if (name != "." && name != ".." && fnmatch(pattern, name.c_str(), FNM_PERIOD) == 0)
            names.push_back(name);
    }
    closedir(listing);
    return names;
}

bool DeleteOwnedTree(const std::string& path) {
    struct stat info {};
    if (lstat(path.c_str(), &info) != 0)
        return errno == ENOENT;
    if (!IsOwnedByMe(info))
        return false;
    if (!S_ISDIR(info.st_mode))
        return unlink(path.c_str()) == 0;
    const int descriptor = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    if (descriptor < 0)
        return false;
    // The directory may have been swapped since the look above: check that it is still ours.
    struct stat opened {};
    if (fstat(descriptor, &opened) != 0 || opened.st_ino != info.st_ino ||
        opened.st_dev != info.st_dev) {
        close(descriptor);
        return false;
    }
    return EmptyOwnedDirectory(descriptor) && rmdir(path.c_str()) == 0;
}
