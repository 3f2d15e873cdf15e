#include "platform/system/Process.h"

#include "platform/system/Spawn.h"

#include <cctype>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <set>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace orva::system {
namespace {

// Children that were let go without a wait; reaped whenever the process calls come by.
// Single-threaded by design: the statics here are not locked.
std::set<pid_t>& ForgottenChildren() {
    static std::set<pid_t> children;
    return children;
}

void ReapForgottenChildren() {
    auto& children = ForgottenChildren();
    for (auto it = children.begin(); it != children.end();) {
        const pid_t result = waitpid(*it, nullptr, WNOHANG);
        if (result == *it || (result < 0 && errno == ECHILD))
            it = children.erase(it);
        else
            ++it;
    }
}

} // namespace

pid_t SpawnProgram(const std::vector<std::string>& arguments, const std::string& directory) {
    ReapForgottenChildren();
    if (arguments.empty() || arguments.front().empty()) {
        errno = ENOENT;
        return -1;
    }
    std::vector<char*> argv;
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (!directory.empty())
        posix_spawn_file_actions_addchdir_np(&actions, directory.c_str());
    pid_t child = -1;
    const int error = posix_spawnp(&child, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        errno = error;
        return -1;
    }
    return child;
}

void ForgetChild(pid_t child) {
    ForgottenChildren().insert(child);
    ReapForgottenChildren();
}

std::string NativeDirectory(const char* directory) {
    std::string path = directory != nullptr ? directory : "";
    if (path.size() >= 2 && path[1] == ':' && std::isalpha(static_cast<unsigned char>(path[0])))
        path.erase(0, 2);
    for (char& ch : path)
        if (ch == '\\')
            ch = '/';
    return path;
}

} // namespace orva::system

namespace {

using orva::system::ForgetChild;

struct ProcessObject {
    pid_t id;
    bool ended;
    DWORD exitCode;
};

std::set<ProcessObject*>& OpenProcesses() {
    static std::set<ProcessObject*> processes;
    return processes;
}

DWORD& LastError() {
    static DWORD error = 0;
    return error;
}

ProcessObject* ProcessFromHandle(HANDLE handle) {
    auto* process = static_cast<ProcessObject*>(handle);
    return OpenProcesses().count(process) != 0 ? process : nullptr;
}

DWORD ExitCodeFromStatus(int status) {
    if (WIFEXITED(status))
        return DWORD(WEXITSTATUS(status));
    if (WIFSIGNALED(status))
        return DWORD(128 + WTERMSIG(status));
    return 0;
}

// Collects the child's status if it has ended; never blocks.
bool PollEnded(ProcessObject& process) {
    if (process.ended)
        return true;
    int status = 0;
    const pid_t result = waitpid(process.id, &status, WNOHANG);
    if (result == process.id) {
        process.ended = true;
        process.exitCode = ExitCodeFromStatus(status);
    } else if (result < 0 && errno == ECHILD) {
        process.ended = true; // reaped elsewhere: the code is lost
        process.exitCode = 0;
    }
    return process.ended;
}

bool BlockUntilEnded(ProcessObject& process) {
    int status = 0;
    pid_t result;
    do {
        result = waitpid(process.id, &status, 0);
    } while (result < 0 && errno == EINTR);
    if (result == process.id) {
        process.ended = true;
        process.exitCode = ExitCodeFromStatus(status);
        return true;
    }
    return PollEnded(process);
}

long long MonotonicMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000LL + now.tv_nsec / 1000000;
}

// Waits on a process descriptor where the kernel has them, else polls the child.
bool WaitUntilEnded(ProcessObject& process, DWORD milliseconds) {
    const long long deadline = MonotonicMilliseconds() + milliseconds;
    const int descriptor = int(syscall(SYS_pidfd_open, process.id, 0));
    while (!PollEnded(process)) {
        const long long left = deadline - MonotonicMilliseconds();
        if (left <= 0)
            break;
        if (descriptor >= 0) {
            pollfd watch{descriptor, POLLIN, 0};
            poll(&watch, 1, int(left));
        } else {
            const timespec pause{0, 1000000};
            nanosleep(&pause, nullptr);
        }
    }
    if (descriptor >= 0)
        close(descriptor);
    return process.ended;
}

bool IsBlankOrTab(char ch) {
    return ch == ' ' || ch == '\t';
}

} // namespace

BOOL CreateProcessA(const char*, char* commandLine, void*, void*, BOOL, DWORD, void*,
                    const char* directory, STARTUPINFOA*, PROCESS_INFORMATION* information) {
    if (commandLine == nullptr || information == nullptr) {
        LastError() = EINVAL;
        return FALSE;
    }
    const pid_t child = orva::system::SpawnProgram(SplitCommandLine(commandLine),
                                                   orva::system::NativeDirectory(directory));
    if (child < 0) {
        LastError() = DWORD(errno);
        return FALSE;
    }
    auto* process = new ProcessObject{child, false, STILL_ACTIVE};
    OpenProcesses().insert(process);
    information->hProcess = process;
    information->hThread = nullptr;
    information->dwProcessId = DWORD(child);
    information->dwThreadId = 0;
    return TRUE;
}

DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds) {
    ProcessObject* process = ProcessFromHandle(handle);
    if (process == nullptr)
        return WAIT_FAILED;
    const bool ended = milliseconds == INFINITE ? BlockUntilEnded(*process)
                                                : WaitUntilEnded(*process, milliseconds);
    return ended ? WAIT_OBJECT_0 : WAIT_TIMEOUT;
}

BOOL GetExitCodeProcess(HANDLE handle, DWORD* exitCode) {
    ProcessObject* process = ProcessFromHandle(handle);
    if (process == nullptr || exitCode == nullptr)
        return FALSE;
    *exitCode = PollEnded(*process) ? process->exitCode : STILL_ACTIVE;
    return TRUE;
}

BOOL CloseHandle(HANDLE handle) {
    ProcessObject* process = ProcessFromHandle(handle);
    if (process == nullptr)
        return FALSE;
    if (!PollEnded(*process))
        ForgetChild(process->id);
    OpenProcesses().erase(process);
    delete process;
    return TRUE;
}

DWORD GetLastError() {
    return LastError();
}
void SetLastError(DWORD error) {
    LastError() = error;
}

int _getpid() {
    return int(getpid());
}

bool IsProcessAlive(int processId) {
    // 0 and negative ids name process groups, not a process.
    if (processId <= 0)
        return false;
    return kill(pid_t(processId), 0) == 0 || errno == EPERM;
}

std::vector<std::string> SplitCommandLine(const char* commandLine) {
    std::vector<std::string> arguments;
    if (commandLine == nullptr)
        return arguments;
    const char* p = commandLine;
    while (IsBlankOrTab(*p))
        ++p;
    if (*p == '\0')
        return arguments;

    std::string program;
    if (*p == '"') {
        for (++p; *p != '\0' && *p != '"'; ++p)
            program += *p;
        if (*p == '"')
            ++p;
    }
    for (; *p != '\0' && !IsBlankOrTab(*p); ++p)
        program += *p;
    arguments.push_back(program);

    while (true) {
        while (IsBlankOrTab(*p))
            ++p;
        if (*p == '\0')
            break;
        std::string argument;
        bool quoted = false;
        for (; *p != '\0' && (quoted || !IsBlankOrTab(*p)); ++p) {
            if (*p == '\\') {
                size_t backslashes = 0;
                while (p[backslashes] == '\\')
                    ++backslashes;
                if (p[backslashes] == '"') {
                    argument.append(backslashes / 2, '\\');
                    if (backslashes % 2 == 1) {
                        argument += '"';
                        p += backslashes;
                    } else {
                        p += backslashes - 1;
                    }
                } else {
                    argument.append(backslashes, '\\');
                    p += backslashes - 1;
                }
            } else if (*p == '"') {
                if (quoted && p[1] == '"') {
                    argument += '"';
                    ++p;
                } else {
                    quoted = !quoted;
                }
            } else {
                argument += *p;
            }
        }
        arguments.push_back(argument);
    }
    return arguments;
}
