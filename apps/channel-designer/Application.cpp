// Start-up of the application.

#include "Application.h"

#include "support/ProcessLaunch.h"
#include "support/TempFiles.h"

#include <filesystem>

std::string ProgramFolder() {
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string("./") : program.parent_path().string() + "/";
}

void StartApplication(const std::string& folder) {
    xgSetApplicationPath(folder.c_str());
    xgCleanOldTempDirs();
}
