#pragma once

// What the application does at start, before its first window: it tells the library where it
// lives (the help document is found there) and clears the temporary directories that earlier
// runs left behind when they ended without tidying up.

#include <string>

// The folder of the running program, ending in "/".
std::string ProgramFolder();
void StartApplication(const std::string& folder);
