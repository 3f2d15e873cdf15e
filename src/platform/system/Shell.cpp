#include "platform/system/Shell.h"

#include "platform/system/DesktopAssociations.h"
#include "platform/system/Spawn.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace orva::system;

constexpr int kSuccess = 42;

HINSTANCE AsResult(int code) {
    return reinterpret_cast<HINSTANCE>(std::intptr_t(code));
}

bool IsDirectory(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

int CodeForError(int error, const std::string& path) {
    switch (error) {
    case ENOENT: {
        const auto slash = path.find_last_of('/');
        const bool folderExists =
            slash == std::string::npos || IsDirectory(slash == 0 ? "/" : path.substr(0, slash));
        return folderExists ? SE_ERR_FNF : SE_ERR_PNF;
    }
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
        return SE_ERR_PNF;
    case EACCES:
    case EPERM:
        return SE_ERR_ACCESSDENIED;
    case ENOMEM:
    case EAGAIN:
        return SE_ERR_OOM;
    default:
        return SE_ERR_NOASSOC;
    }
}

// The document's path, or the failure code, before any association is looked at.
int LocateDocument(const char* file, const char* directory, std::string& path) {
    if (file == nullptr || *file == '\0')
        return SE_ERR_FNF;
    const std::string folder = NativeDirectory(directory);
    if (!folder.empty() && !IsDirectory(folder))
        return SE_ERR_PNF;
    path = NativeDirectory(file);
    if (!folder.empty() && !path.empty() && path.front() != '/')
        path = folder + (folder.back() == '/' ? "" : "/") + path;
    struct stat info {};
    if (stat(path.c_str(), &info) != 0)
        return CodeForError(errno, path);
    if (access(path.c_str(), R_OK) != 0)
        return SE_ERR_ACCESSDENIED;
    return kSuccess;
}

std::string FindInPath(const std::string& program) {
    if (program.find('/') != std::string::npos)
        return access(program.c_str(), X_OK) == 0 ? program : std::string();
    const char* variable = std::getenv("PATH");
    std::stringstream directories(variable != nullptr ? variable : "/usr/bin:/bin");
    std::string directory;
    while (std::getline(directories, directory, ':')) {
        const std::string candidate = (directory.empty() ? "." : directory) + "/" + program;
        struct stat info {};
        if (stat(candidate.c_str(), &info) == 0 && S_ISREG(info.st_mode) &&
            access(candidate.c_str(), X_OK) == 0)
            return candidate;
    }
    return {};
}

// Finds the document and the command line of the application that opens it.
int CommandToOpen(const char* file, const char* directory, std::string& path,
                  std::vector<std::string>& command) {
    if (const int code = LocateDocument(file, directory, path); code != kSuccess)
        return code;
    const auto entry = DefaultApplicationFor(MimeTypeOfName(path));
    if (!entry)
        return SE_ERR_NOASSOC;
    command = CommandForFile(*entry, path);
    return command.empty() ? SE_ERR_NOASSOC : kSuccess;
}

} // namespace

HINSTANCE ShellExecuteA(HWND, const char* verb, const char* file, const char*,
                        const char* directory, int) {
    try {
        if (verb != nullptr && std::strcmp(verb, "open") != 0)
            return AsResult(SE_ERR_NOASSOC);
        std::string path;
        std::vector<std::string> command;
        if (const int code = CommandToOpen(file, directory, path, command); code != kSuccess)
            return AsResult(code);
        const pid_t child = SpawnProgram(command, NativeDirectory(directory));
        if (child < 0)
            return AsResult(errno == ENOENT ? SE_ERR_NOASSOC : CodeForError(errno, path));
        ForgetChild(child);
        return AsResult(kSuccess);
    } catch (const std::bad_alloc&) {
        return AsResult(SE_ERR_OOM);
    }
}

HINSTANCE FindExecutableA(const char* file, const char* directory, char* result) {
    try {
        if (result == nullptr)
            return AsResult(SE_ERR_OOM);
        *result = '\0';
        std::string path;
        std::vector<std::string> command;
        if (const int code = CommandToOpen(file, directory, path, command); code != kSuccess)
            return AsResult(code);
        const std::string program = FindInPath(command.front());
        if (program.empty())
            return AsResult(SE_ERR_NOASSOC);
        const size_t length = std::min(program.size(), size_t(MAX_PATH - 1));
        std::memcpy(result, program.data(), length);
        result[length] = '\0';
        return AsResult(kSuccess);
    } catch (const std::bad_alloc&) {
        return AsResult(SE_ERR_OOM);
    }
}
