#include "platform/system/FileSystem.h"
#include "platform/system/Uuid.h"

#include "EnvironmentVariable.h"
#include "ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <set>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

TEST(TempDir, FromTheEnvironmentWithATrailingSlash) {
    ScratchFolder scratch;
    std::string directory;
    {
        EnvironmentVariable tmpdir("TMPDIR", scratch.Path().c_str());
        ASSERT_TRUE(GetTempDir(directory));
        EXPECT_EQ(directory, scratch.Path() + "/");
    }
    {
        EnvironmentVariable tmpdir("TMPDIR", nullptr);
        ASSERT_TRUE(GetTempDir(directory));
        EXPECT_EQ(directory, "/tmp/");
    }
    {
        EnvironmentVariable tmpdir("TMPDIR", (scratch / "missing").c_str());
        directory = "unchanged";
        EXPECT_FALSE(GetTempDir(directory));
        EXPECT_EQ(directory, "unchanged");
    }
}

TEST(FindFiles, MatchesNamesOfAnyKind) {
    ScratchFolder scratch;
    scratch.Write("FlumeBench_1/inner", "x");
    scratch.Write("FlumeBench_2", "x");
    scratch.Write("Other_3", "x");
    auto names = FindFiles(scratch.Path(), "FlumeBench_*");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"FlumeBench_1", "FlumeBench_2"}));
    EXPECT_TRUE(FindFiles(scratch / "missing", "*").empty());
}

TEST(DeleteOwnedTree, RemovesOwnTreesDepthFirst) {
    ScratchFolder scratch;
    scratch.Write("tree/a/b/c.txt", "x");
    scratch.Write("tree/d.txt", "x");
    fs::create_directories(scratch / "tree/empty");
    EXPECT_TRUE(DeleteOwnedTree(scratch / "tree"));
    EXPECT_FALSE(fs::exists(scratch / "tree"));
    EXPECT_TRUE(DeleteOwnedTree(scratch / "tree")); // already gone
}

TEST(DeleteOwnedTree, LinksGoButWhatTheyPointAtStays) {
    ScratchFolder scratch;
    const std::string precious = scratch.Write("outside/precious.txt", "keep me");
    fs::create_directories(scratch / "tree");
    fs::create_directory_symlink(scratch / "outside", scratch / "tree/folder-link");
    fs::create_symlink(precious, scratch / "tree/file-link");
    fs::create_directory_symlink(scratch / "outside", scratch / "top-link");

    EXPECT_TRUE(DeleteOwnedTree(scratch / "tree"));
    EXPECT_TRUE(DeleteOwnedTree(scratch / "top-link"));
    EXPECT_FALSE(fs::exists(scratch / "tree"));
    EXPECT_FALSE(fs::is_symlink(scratch / "top-link"));
    EXPECT_TRUE(fs::exists(precious));
}

TEST(DeleteOwnedTree, AnotherUsersFilesAndTheirFoldersStay) {
    if (geteuid() != 0)
        GTEST_SKIP() << "making a file of another user needs the superuser";
    ScratchFolder scratch;
    const std::string theirs = scratch.Write("tree/shared/theirs.txt", "not ours");
    const std::string mine = scratch.Write("tree/shared/mine.txt", "ours");
    scratch.Write("tree/alone/mine.txt", "ours");
    const uid_t nobody = 65534;
    ASSERT_EQ(chown(theirs.c_str(), nobody, nobody), 0);
    const std::string theirFolder = scratch.Write("theirs/file", "x");
    ASSERT_EQ(chown((scratch / "theirs").c_str(), nobody, nobody), 0);

    EXPECT_FALSE(DeleteOwnedTree(scratch / "tree"));
    EXPECT_TRUE(fs::exists(theirs));
    EXPECT_FALSE(fs::exists(mine));
    EXPECT_FALSE(fs::exists(scratch / "tree/alone"));
    EXPECT_FALSE(DeleteOwnedTree(scratch / "theirs"));
    EXPECT_TRUE(fs::exists(theirFolder));
}

TEST(Uuid, RandomVersionFourInTheLongForm) {
    const std::regex form("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    std::set<std::string> seen;
    for (int i = 0; i < 100; ++i) {
        const std::string id = CreateUuidString();
        EXPECT_TRUE(std::regex_match(id, form)) << id;
        seen.insert(id);
    }
    EXPECT_EQ(seen.size(), 100u);
}

} // namespace
