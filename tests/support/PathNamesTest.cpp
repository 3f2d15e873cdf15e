#include "support/PathNames.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <unistd.h>

namespace {

using namespace zvk_filesystem;

TEST(PathNames, FilenameOnEitherSeparator) {
    EXPECT_EQ(Filename("a/b\\c.txt"), "c.txt");
    EXPECT_EQ(Filename("c.txt"), "c.txt");
    EXPECT_EQ(Filename("dir\\"), "");
    EXPECT_EQ(Filename("/usr/share/x"), "x");
    EXPECT_EQ(Filename(""), "");
}

TEST(PathNames, PathInEveryMode) {
    EXPECT_EQ(Path("a/b\\c", 0), "a/b\\");
    EXPECT_EQ(Path("a\\b/c", 0), "a\\b/");
    EXPECT_EQ(Path("a/b\\c", 1), "a\\b\\");
    EXPECT_EQ(Path("a/b\\c", 2), "a/b/");
    EXPECT_EQ(Path("a/b\\c", 3), "");
    EXPECT_EQ(Path("a/b\\c", -1), "");
    for (int mode = 0; mode < 4; ++mode)
        EXPECT_EQ(Path("c", mode), "") << mode;
}

TEST(PathNames, DotsInFoldersCountOnlyForPathAndBase) {
    EXPECT_EQ(Basename("C:\\d.e\\f"), "f");
    EXPECT_EQ(PathAndBase("C:\\d.e\\f"), "C:\\d");
    EXPECT_EQ(PathAndBase("/data/run.1.txt"), "/data/run.1");
    EXPECT_EQ(PathAndBase("plain"), "plain");
    EXPECT_EQ(Basename("/data/run.1.txt"), "run.1");
    EXPECT_EQ(Extension("a.tar.gz"), "gz");
    EXPECT_EQ(Extension("C:\\d.e\\f"), "");
    EXPECT_EQ(Extension("name."), "");
}

TEST(PathNames, ReplaceInPlace) {
    std::string text = "a\\b\\c";
    EXPECT_EQ(&replace(text, '\\', '/'), &text);
    EXPECT_EQ(text, "a/b/c");
    EXPECT_EQ(replace(text, '/', '/'), "a/b/c");
}

TEST(PathNames, FileExistsOnlyForReadableFiles) {
    char name[] = "/tmp/orva-exists-XXXXXX";
    const int descriptor = mkstemp(name);
    ASSERT_GE(descriptor, 0);
    close(descriptor);
    EXPECT_TRUE(FileExists(name));
    EXPECT_FALSE(FileExists("/tmp"));
    std::remove(name);
    EXPECT_FALSE(FileExists(name));
}

} // namespace
