#include "support/TempFiles.h"

#include "platform/system/Process.h"

#include "../platform/system/EnvironmentVariable.h"
#include "../platform/system/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

const char* kIdentifier = "[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}";

TEST(TempFilename, GivenDirectoryIdentifierAndOneDot) {
    zvk::CStdStr<char> dotted, plain, bare;
    ASSERT_TRUE(ouGetTempFilename(".txt", dotted, "C:\\t\\"));
    ASSERT_TRUE(ouGetTempFilename("txt", plain, "C:\\t\\"));
    ASSERT_TRUE(ouGetTempFilename(nullptr, bare, "C:\\t\\"));
    const std::regex withExtension(std::string(R"(C:\\t\\)") + kIdentifier + R"(\.txt)");
    EXPECT_TRUE(std::regex_match(dotted, withExtension)) << dotted;
    EXPECT_TRUE(std::regex_match(plain, withExtension)) << plain;
    EXPECT_TRUE(std::regex_match(bare, std::regex(std::string(R"(C:\\t\\)") + kIdentifier)));
    EXPECT_NE(dotted, plain);
}

TEST(TempFilename, OwnDirectoryIsMadeForTheProcessAndKeptPrivate) {
    ScratchFolder scratch;
    EnvironmentVariable tmpdir("TMPDIR", scratch.Path().c_str());
    zvk::CStdStr<char> first, second;
    ASSERT_TRUE(ouGetTempFilename("dat", first, nullptr));
    ASSERT_TRUE(ouGetTempFilename("dat", second, nullptr));
    const std::string folder = scratch / ("FlumeBench_" + std::to_string(getpid()) + "/");
    EXPECT_TRUE(std::regex_match(first, std::regex(folder + kIdentifier + R"(\.dat)"))) << first;
    EXPECT_NE(first, second);
    struct stat info {};
    ASSERT_EQ(stat(folder.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700u);
    // The probe of the second call leaves nothing behind, and the file itself is not made.
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST(TempFilename, NoTemporaryDirectoryLeavesTheNameAlone) {
    EnvironmentVariable tmpdir("TMPDIR", "/no/such/folder");
    zvk::CStdStr<char> name = "kept";
    EXPECT_FALSE(ouGetTempFilename("txt", name, nullptr));
    EXPECT_EQ(name, "kept");
}

// The id of a process that has ended.
int DeadProcessId() {
    std::string command = "/bin/true";
    PROCESS_INFORMATION info{};
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        nullptr, &info))
        return -1;
    WaitForSingleObject(info.hProcess, INFINITE);
    CloseHandle(info.hProcess);
    return int(info.dwProcessId);
}

TEST(CleanOldTempDirs, DeadProcessesLoseTheirDirectoriesLiveOnesKeepThem) {
    ScratchFolder scratch;
    EnvironmentVariable tmpdir("TMPDIR", scratch.Path().c_str());
    const std::string mine = "FlumeBench_" + std::to_string(getpid());
    const std::string dead = "FlumeBench_" + std::to_string(DeadProcessId());
    const std::string deadFile = "FlumeBench_" + std::to_string(DeadProcessId());
    scratch.Write(mine + "/work.dat", "live");
    scratch.Write("FlumeBench_1/init.dat", "pid 1 always runs");
    scratch.Write(dead + "/deep/er/left.dat", "orphan");
    scratch.Write(deadFile, "a plain file counts too");
    scratch.Write("Unrelated_999999/x", "not ours to judge");

    xgCleanOldTempDirs();
    EXPECT_TRUE(fs::exists(scratch / (mine + "/work.dat")));
    EXPECT_TRUE(fs::exists(scratch / "FlumeBench_1/init.dat"));
    EXPECT_FALSE(fs::exists(scratch / dead));
    EXPECT_FALSE(fs::exists(scratch / deadFile));
    EXPECT_TRUE(fs::exists(scratch / "Unrelated_999999/x"));
}

TEST(CleanOldTempDirs, LinksArePulledWithoutTouchingTheirTargets) {
    ScratchFolder scratch;
    EnvironmentVariable tmpdir("TMPDIR", (scratch / "tmp").c_str());
    const std::string precious = scratch.Write("home/precious.txt", "keep");
    const std::string dead = "tmp/FlumeBench_" + std::to_string(DeadProcessId());
    scratch.Write(dead + "/own.dat", "x");
    fs::create_directory_symlink(scratch / "home", scratch / (dead + "/home-link"));
    const std::string planted = "tmp/FlumeBench_" + std::to_string(DeadProcessId());
    fs::create_directory_symlink(scratch / "home", scratch / planted);

    xgCleanOldTempDirs();
    EXPECT_FALSE(fs::exists(scratch / dead));
    EXPECT_FALSE(fs::is_symlink(scratch / planted));
    EXPECT_TRUE(fs::exists(precious));
}

TEST(CleanOldTempDirs, AnotherUsersDirectorySurvives) {
    if (geteuid() != 0)
        GTEST_SKIP() << "making a file of another user needs the superuser";
    ScratchFolder scratch;
    EnvironmentVariable tmpdir("TMPDIR", scratch.Path().c_str());
    const std::string theirs = "FlumeBench_" + std::to_string(DeadProcessId());
    const std::string file = scratch.Write(theirs + "/their.dat", "x");
    const uid_t nobody = 65534;
    ASSERT_EQ(chown((scratch / theirs).c_str(), nobody, nobody), 0);
    ASSERT_EQ(chown(file.c_str(), nobody, nobody), 0);
    xgCleanOldTempDirs();
    EXPECT_TRUE(fs::exists(file));
}

} // namespace
