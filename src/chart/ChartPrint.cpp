// Printing: the chart goes to a PDF in the temporary directory, which the system's spooler
// prints when there is one.

#include "chart/ChartApi.h"

#include "chart/ChartEngine.h"
#include "chart/ChartOutputs.h"
#include "platform/system/FileSystem.h"
#include "platform/system/Process.h"

#include <string>

namespace {

// The file of the last print. Single-threaded by design: not locked.
std::string g_lastPrintFile;

// Hands the document to "lp", or to "lpr" when lp is missing or refuses it; true once one of
// them has taken it.
bool RunSpooler(const std::string& pdf) {
    for (const char* spooler : {"lp", "lpr"}) {
        std::string commandLine = std::string(spooler) + " \"" + pdf + "\"";
        STARTUPINFOA startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process{};
        if (!CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE,
                            NORMAL_PRIORITY_CLASS, nullptr, nullptr, &startup, &process))
            continue;
        DWORD exitCode = 1;
        const bool ended = WaitForSingleObject(process.hProcess, INFINITE) == WAIT_OBJECT_0;
        const bool taken =
            ended && GetExitCodeProcess(process.hProcess, &exitCode) && exitCode == 0;
        CloseHandle(process.hProcess);
        if (taken)
            return true;
    }
    return false;
}

} // namespace

const char* ChartLastPrintFile() {
    return g_lastPrintFile.c_str();
}

int ChartPrint(HWND chart, int, int) {
    ChartEngine* engine = ChartEngineOf(chart);
    std::string directory;
    if (!engine || !GetTempDir(directory))
        return 0;
    static int printCount = 0;
    if (!directory.empty() && directory.back() != '/')
        directory += '/';
    const std::string path = directory + "chart-print-" + std::to_string(_getpid()) + "-" +
                             std::to_string(++printCount) + ".pdf";
    if (!WriteChartPdf(*engine, engine->Width(), engine->Height(), path.c_str()))
        return 0;
    g_lastPrintFile = path;
    RunSpooler(path);
    return 1;
}
