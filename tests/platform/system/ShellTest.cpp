#include "platform/system/Shell.h"

#include "EnvironmentVariable.h"
#include "ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// A desktop of its own: the MIME database knows PDF files, and the user's list names a
// reader that writes its arguments to $READER_OUT.
class ShellAssociations : public ::testing::Test {
protected:
    ShellAssociations()
        : m_dataHome("XDG_DATA_HOME", (m_scratch / "data").c_str()),
          m_dataDirs("XDG_DATA_DIRS", (m_scratch / "system-data").c_str()),
          m_configHome("XDG_CONFIG_HOME", (m_scratch / "config").c_str()),
          m_configDirs("XDG_CONFIG_DIRS", (m_scratch / "system-config").c_str()),
          m_output("READER_OUT", (m_scratch / "reader.out").c_str()) {
        m_scratch.Write("data/mime/globs2", "# weight:type:glob\n50:application/pdf:*.pdf\n");
        m_reader =
            m_scratch.Write("bin/reader", "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"$READER_OUT\"\n");
        fs::permissions(m_reader, fs::perms::owner_all);
        m_scratch.Write("data/applications/reader.desktop",
                        "[Desktop Entry]\nType=Application\nName=Reader\nExec=" + m_reader +
                            " --name %c \"%f\"\n");
        m_scratch.Write(
            "config/mimeapps.list",
            "[Default Applications]\napplication/pdf=missing.desktop;reader.desktop;\n");
        m_document = m_scratch.Write("docs/rd4.pdf", "%PDF-1.4\n");
    }

    static INT_PTR Code(HINSTANCE result) { return reinterpret_cast<INT_PTR>(result); }

    INT_PTR Find(const char* file, const char* directory, std::string& program) {
        char buffer[MAX_PATH] = "untouched";
        const INT_PTR code = Code(FindExecutableA(file, directory, buffer));
        program = buffer;
        return code;
    }

    ScratchFolder m_scratch;
    EnvironmentVariable m_dataHome, m_dataDirs, m_configHome, m_configDirs, m_output;
    std::string m_reader;
    std::string m_document;
};

TEST_F(ShellAssociations, FindsTheFirstInstalledDefault) {
    std::string program;
    EXPECT_GT(Find(m_document.c_str(), nullptr, program), 32);
    EXPECT_EQ(program, m_reader);
    EXPECT_GT(Find("rd4.pdf", (m_scratch / "docs").c_str(), program), 32);
    EXPECT_EQ(program, m_reader);
}

TEST_F(ShellAssociations, FallsBackOnTheCacheAndSkipsHiddenEntries) {
    fs::remove(m_scratch / "config/mimeapps.list");
    m_scratch.Write("system-data/applications/mimeinfo.cache",
                    "[MIME Cache]\napplication/pdf=hidden.desktop;viewer.desktop;\n");
    m_scratch.Write("system-data/applications/hidden.desktop",
                    "[Desktop Entry]\nExec=/bin/false\nHidden=true\n");
    m_scratch.Write("system-data/applications/viewer.desktop",
                    "[Desktop Entry]\nExec=sh -c true %U\n");
    std::string program;
    EXPECT_GT(Find(m_document.c_str(), nullptr, program), 32);
    EXPECT_EQ(fs::path(program).filename(), "sh");
    EXPECT_TRUE(fs::path(program).is_absolute());
}

TEST_F(ShellAssociations, EachCauseOfFailureHasItsCode) {
    std::string program;
    EXPECT_EQ(Find((m_scratch / "docs/absent.pdf").c_str(), nullptr, program), SE_ERR_FNF);
    EXPECT_EQ(program, "");
    EXPECT_EQ(Find((m_scratch / "nowhere/rd4.pdf").c_str(), nullptr, program), SE_ERR_PNF);
    EXPECT_EQ(Find("rd4.pdf", (m_scratch / "nowhere").c_str(), program), SE_ERR_PNF);
    EXPECT_EQ(Find((m_document + "/inside").c_str(), nullptr, program), SE_ERR_PNF);
    EXPECT_EQ(Find("", nullptr, program), SE_ERR_FNF);
    const std::string text = m_scratch.Write("docs/notes.unknown", "x");
    EXPECT_EQ(Find(text.c_str(), nullptr, program), SE_ERR_NOASSOC);
    fs::remove(m_reader); // listed, but its program is gone
    EXPECT_EQ(Find(m_document.c_str(), nullptr, program), SE_ERR_NOASSOC);
    if (geteuid() != 0) {
        fs::permissions(m_document, fs::perms::none);
        EXPECT_EQ(Find(m_document.c_str(), nullptr, program), SE_ERR_ACCESSDENIED);
    }
}

TEST_F(ShellAssociations, OpenStartsTheReaderWithTheFieldCodesFilledIn) {
    m_scratch.MakePipe("reader.out");
    EXPECT_GT(Code(ShellExecuteA(nullptr, "open", m_document.c_str(), nullptr, nullptr, 1)), 32);
    EXPECT_EQ(m_scratch.ReadPipe("reader.out"), "--name\nReader\n" + m_document + "\n");
}

TEST_F(ShellAssociations, OpenRefusesOtherVerbsAndMissingFiles) {
    EXPECT_EQ(Code(ShellExecuteA(nullptr, "print", m_document.c_str(), nullptr, nullptr, 1)),
              SE_ERR_NOASSOC);
    EXPECT_EQ(Code(ShellExecuteA(nullptr, nullptr, (m_scratch / "docs/absent.pdf").c_str(), nullptr,
                                 nullptr, 1)),
              SE_ERR_FNF);
}

} // namespace
