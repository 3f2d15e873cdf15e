#include "support/ProcessLaunch.h"

#include "platform/system/Process.h"

#include "../platform/system/ScratchFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace {

std::string Contents(const std::string& path) {
    std::ifstream file(path);
    std::string text;
    std::getline(file, text);
    return text;
}

TEST(LaunchProcess, WaitsAndGivesTheExitCode) {
    int code = -1;
    EXPECT_EQ(xgLaunchProcess(R"(/bin/sh -c "exit 3")", "", 0, 0, &code), 1);
    EXPECT_EQ(code, 3);
    EXPECT_EQ(xgGetLastProcess(), nullptr);
}

TEST(LaunchProcess, WaitsWithoutACodeAndRunsInTheDirectory) {
    ScratchFolder scratch;
    EXPECT_EQ(
        xgLaunchProcess(R"(/bin/sh -c "pwd > where.txt")", scratch.Path().c_str(), 0, 0, nullptr),
        1);
    // The call came back only after the child had written its file.
    EXPECT_EQ(fs::canonical(Contents(scratch / "where.txt")), fs::canonical(scratch.Path()));
}

TEST(LaunchProcess, FailedStartIsSilentAndKeepsNoHandle) {
    int code = -7;
    EXPECT_EQ(xgLaunchProcess("/no/such/program", "", 0, 0, &code), 1);
    EXPECT_EQ(code, -7);
    EXPECT_EQ(xgLaunchProcess("/no/such/program", "", 0, 1, &code), 1);
    EXPECT_EQ(xgGetLastProcess(), nullptr);
}

TEST(LaunchProcess, TheNextLaunchLetsTheKeptProcessGoButItRunsOn) {
    ScratchFolder scratch;
    scratch.MakePipe("pid");
    const std::string first = R"(/bin/sh -c "echo $$ > pid; exec sleep 30")";
    EXPECT_EQ(xgLaunchProcess(first.c_str(), scratch.Path().c_str(), 0, 1, nullptr), 1);
    HANDLE kept = xgGetLastProcess();
    ASSERT_NE(kept, nullptr);
    const int firstId = std::stoi(scratch.ReadPipe("pid"));
    DWORD code = 0;
    EXPECT_TRUE(GetExitCodeProcess(kept, &code));
    EXPECT_EQ(code, STILL_ACTIVE);

    EXPECT_EQ(xgLaunchProcess("/bin/true", "", 0, 1, nullptr), 1);
    EXPECT_NE(xgGetLastProcess(), nullptr);
    EXPECT_FALSE(GetExitCodeProcess(kept, &code)); // the first handle is closed
    EXPECT_TRUE(IsProcessAlive(firstId));
    kill(firstId, SIGKILL);

    EXPECT_EQ(WaitForSingleObject(xgGetLastProcess(), 5000), WAIT_OBJECT_0);
}

TEST(HelpFileName, ApplicationPathThenTheDocument) {
    xgSetApplicationPath(nullptr);
    EXPECT_EQ(xgGetHelpFileName(), "rd4.pdf");
    xgSetApplicationPath("/opt/rd4/");
    EXPECT_EQ(xgGetHelpFileName(), "/opt/rd4/rd4.pdf");
    xgSetApplicationPath("");
}

} // namespace
