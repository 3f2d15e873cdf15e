#include "platform/system/Process.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using Arguments = std::vector<std::string>;

TEST(SplitCommandLine, BlanksQuotesAndBackslashes) {
    EXPECT_EQ(SplitCommandLine("prog a  b\tc"), (Arguments{"prog", "a", "b", "c"}));
    EXPECT_EQ(SplitCommandLine("  prog \"a b\" c"), (Arguments{"prog", "a b", "c"}));
    EXPECT_EQ(SplitCommandLine("prog a\"b c\"d"), (Arguments{"prog", "ab cd"}));
    EXPECT_EQ(SplitCommandLine("prog \"\""), (Arguments{"prog", ""}));
    EXPECT_EQ(SplitCommandLine("prog \"open"), (Arguments{"prog", "open"}));
    EXPECT_EQ(SplitCommandLine(""), Arguments{});
    EXPECT_EQ(SplitCommandLine(nullptr), Arguments{});
}

TEST(SplitCommandLine, BackslashesCountOnlyBeforeAQuote) {
    EXPECT_EQ(SplitCommandLine(R"(prog a\\b c\d)"), (Arguments{"prog", R"(a\\b)", R"(c\d)"}));
    EXPECT_EQ(SplitCommandLine(R"(prog a\"b)"), (Arguments{"prog", R"(a"b)"}));
    EXPECT_EQ(SplitCommandLine(R"(prog a\\"b c")"), (Arguments{"prog", R"(a\b c)"}));
    EXPECT_EQ(SplitCommandLine(R"(prog a\\\"b)"), (Arguments{"prog", R"(a\"b)"}));
    EXPECT_EQ(SplitCommandLine(R"(prog "C:\dir\\" x)"), (Arguments{"prog", R"(C:\dir\)", "x"}));
    EXPECT_EQ(SplitCommandLine(R"(prog "say ""hi""")"), (Arguments{"prog", R"(say "hi")"}));
}

TEST(SplitCommandLine, TheProgramKnowsNoEscapes) {
    EXPECT_EQ(SplitCommandLine(R"("C:\Program Files\r.exe" /A)"),
              (Arguments{R"(C:\Program Files\r.exe)", "/A"}));
    EXPECT_EQ(SplitCommandLine(R"(C:\dir\r.exe\" x)"), (Arguments{R"(C:\dir\r.exe\")", "x"}));
}

HANDLE Start(const char* commandLine, const char* directory = nullptr) {
    std::string command = commandLine;
    PROCESS_INFORMATION info{};
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, NORMAL_PRIORITY_CLASS,
                        nullptr, directory, nullptr, &info))
        return nullptr;
    EXPECT_EQ(info.hThread, nullptr);
    EXPECT_GT(info.dwProcessId, 0u);
    return info.hProcess;
}

DWORD ExitCodeOf(HANDLE process) {
    DWORD code = 12345;
    EXPECT_TRUE(GetExitCodeProcess(process, &code));
    return code;
}

TEST(Process, ExitCodeAfterTheWait) {
    HANDLE process = Start(R"(/bin/sh -c "exit 3")");
    ASSERT_NE(process, nullptr);
    EXPECT_EQ(WaitForSingleObject(process, INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(ExitCodeOf(process), 3u);
    EXPECT_TRUE(CloseHandle(process));
    EXPECT_FALSE(CloseHandle(process));
    EXPECT_EQ(WaitForSingleObject(process, 0), WAIT_FAILED);
}

TEST(Process, StillActiveUntilKilledThenTheSignalAsTheShellReportsIt) {
    std::string command = "sleep 30";
    PROCESS_INFORMATION info{};
    ASSERT_TRUE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               nullptr, nullptr, &info));
    EXPECT_EQ(WaitForSingleObject(info.hProcess, 20), WAIT_TIMEOUT);
    EXPECT_EQ(ExitCodeOf(info.hProcess), STILL_ACTIVE);
    EXPECT_TRUE(IsProcessAlive(int(info.dwProcessId)));
    kill(pid_t(info.dwProcessId), SIGKILL);
    EXPECT_EQ(WaitForSingleObject(info.hProcess, 5000), WAIT_OBJECT_0);
    EXPECT_EQ(ExitCodeOf(info.hProcess), 128u + SIGKILL);
    CloseHandle(info.hProcess);
    EXPECT_FALSE(IsProcessAlive(int(info.dwProcessId)));
}

TEST(Process, RunsInTheGivenDirectoryWithDriveRootAsSlash) {
    HANDLE process = Start(R"(/bin/sh -c "test \"$PWD\" = / || test \"$(pwd)\" = /")", "C:\\");
    ASSERT_NE(process, nullptr);
    WaitForSingleObject(process, INFINITE);
    EXPECT_EQ(ExitCodeOf(process), 0u);
    CloseHandle(process);
}

TEST(Process, MissingProgramFailsWithTheSystemError) {
    EXPECT_EQ(Start("/no/such/program arg"), nullptr);
    EXPECT_EQ(GetLastError(), 2u);
    EXPECT_EQ(Start("   "), nullptr);
    EXPECT_EQ(Start("/bin/true", "/no/such/directory"), nullptr);
}

TEST(Process, AliveTestCountsOnlyRealProcesses) {
    EXPECT_TRUE(IsProcessAlive(_getpid()));
    EXPECT_TRUE(IsProcessAlive(1)); // another user's process is alive too
    EXPECT_FALSE(IsProcessAlive(0));
    EXPECT_FALSE(IsProcessAlive(-1));
}

} // namespace
