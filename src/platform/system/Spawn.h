#pragma once

// Shared by the process calls and the shell: starting a child without a shell.
// Internal to the platform library.

#include <string>
#include <sys/types.h>
#include <vector>

namespace orva::system {

// Starts `arguments` (the program first, searched in PATH) in `directory` (empty for the
// current one). The process id, or -1 with errno set.
pid_t SpawnProgram(const std::vector<std::string>& arguments, const std::string& directory);

// For a child that nobody will wait for: it is reaped when it ends, so that it does not
// stay a zombie.
void ForgetChild(pid_t child);

// A Windows directory name as a path of this system: "C:\" is the root, "\" is "/".
std::string NativeDirectory(const char* directory);

} // namespace orva::system
