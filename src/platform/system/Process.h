#pragma once

// Starting and watching other programs, with the system calls' names and meanings. A process
// handle stands for a child of this process until CloseHandle; closing it does not end the
// child. Programs start without a shell, from a command line split by the system's rules.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

#include <string>
#include <vector>

constexpr DWORD INFINITE = 0xFFFFFFFF;
constexpr DWORD WAIT_OBJECT_0 = 0;
constexpr DWORD WAIT_TIMEOUT = 258;
constexpr DWORD WAIT_FAILED = 0xFFFFFFFF;
constexpr DWORD STILL_ACTIVE = 259;
constexpr DWORD NORMAL_PRIORITY_CLASS = 0x20;
constexpr DWORD STARTF_USESHOWWINDOW = 0x1;
constexpr DWORD PROCESS_QUERY_INFORMATION = 0x400;
constexpr DWORD PROCESS_VM_READ = 0x10;

struct STARTUPINFOA {
    DWORD cb;
    char* lpReserved;
    char* lpDesktop;
    char* lpTitle;
    DWORD dwX;
    DWORD dwY;
    DWORD dwXSize;
    DWORD dwYSize;
    DWORD dwXCountChars;
    DWORD dwYCountChars;
    DWORD dwFillAttribute;
    DWORD dwFlags;
    WORD wShowWindow;
    WORD cbReserved2;
    BYTE* lpReserved2;
    HANDLE hStdInput;
    HANDLE hStdOutput;
    HANDLE hStdError;
};

struct PROCESS_INFORMATION {
    HANDLE hProcess;
    HANDLE hThread; // there is no separate thread object: always null
    DWORD dwProcessId;
    DWORD dwThreadId;
};

// Starts the program named by the first argument of `commandLine` (searched in PATH when it
// holds no "/"); `applicationName`, security attributes, inheritance, creation flags,
// environment and start-up record are accepted for their signature, and the child inherits
// this process's environment. `directory` is the working directory, with "C:\" standing for
// the root and "\" for "/"; null means the current one. FALSE with GetLastError on failure.
ORVA_API BOOL CreateProcessA(const char* applicationName, char* commandLine,
                             void* processAttributes, void* threadAttributes, BOOL inheritHandles,
                             DWORD creationFlags, void* environment, const char* directory,
                             STARTUPINFOA* startupInfo, PROCESS_INFORMATION* processInformation);

// WAIT_OBJECT_0 once the process has ended, WAIT_TIMEOUT if it still runs after
// `milliseconds` (INFINITE waits for good), WAIT_FAILED for a handle that is not a process.
ORVA_API DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds);

// The exit code, or STILL_ACTIVE while the process runs; a process ended by a signal gives
// 128 plus the signal number, as a shell reports it.
ORVA_API BOOL GetExitCodeProcess(HANDLE process, DWORD* exitCode);

// Gives up a process handle; FALSE for null or for a handle that is not open.
ORVA_API BOOL CloseHandle(HANDLE handle);

// The error of the last failed call of this layer, as an errno value (ENOENT is 2, as
// ERROR_FILE_NOT_FOUND).
ORVA_API DWORD GetLastError();

ORVA_API int _getpid();

// True while a process of that id exists, also one of another user (which the system does
// not let us signal).
ORVA_API bool IsProcessAlive(int processId);

// Splits a command line into arguments by the system's rules: blanks and tabs separate;
// double quotes group and are dropped; 2n backslashes before a quote give n backslashes and
// the quote groups, 2n+1 give n backslashes and a literal quote; "" inside quotes is a
// literal quote; other backslashes are literal. The first argument, the program, ends at
// the next blank or, when it begins with a quote, at the next quote, and knows no escapes.
ORVA_API std::vector<std::string> SplitCommandLine(const char* commandLine);
