#include "support/HelpDocument.h"

#include "platform/testing/MessageBoxResponder.h"
#include "support/ProcessLaunch.h"

#include "../platform/system/EnvironmentVariable.h"
#include "../platform/system/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

TEST(HelpTopics, TitlesAndDialogs) {
    EXPECT_STREQ(HelpDocument::TopicTitle(0), "1. Introduction");
    EXPECT_STREQ(HelpDocument::TopicTitle(1), "");
    EXPECT_STREQ(HelpDocument::TopicTitle(7), "Culvert Crossing Data");
    EXPECT_STREQ(HelpDocument::TopicTitle(53), "USBR Type VI Impact Basin");
    EXPECT_STREQ(HelpDocument::TopicTitle(54), "");
    EXPECT_STREQ(HelpDocument::TopicTitle(-1), "");
    EXPECT_EQ(HelpDocument::TopicForDialog(150), 7);
    EXPECT_EQ(HelpDocument::TopicForDialog(151), 8);
    EXPECT_EQ(HelpDocument::TopicForDialog(191), 14);
    EXPECT_EQ(HelpDocument::TopicForDialog(211), 9);
    EXPECT_EQ(HelpDocument::TopicForDialog(244), 24);
    EXPECT_EQ(HelpDocument::TopicForDialog(152), 0);
}

TEST(HelpTopics, CommandLineNamesTheDestination) {
    xgSetApplicationPath("/opt/rd4/");
    EXPECT_EQ(HelpDocument::CommandLine("/usr/bin/reader", 24),
              "/usr/bin/reader /A \"nameddest=6. Energy Dissipation\" /opt/rd4/rd4.pdf");
    EXPECT_EQ(HelpDocument::CommandLine("reader", 1), "reader /A \"nameddest=\" /opt/rd4/rd4.pdf");
    EXPECT_EQ(HelpDocument::CommandLine("reader", HelpDocument::TopicForDialog(999)),
              "reader /A \"nameddest=1. Introduction\" /opt/rd4/rd4.pdf");
    xgSetApplicationPath("");
}

// An application folder with its help document, and a desktop whose PDF reader writes its
// arguments into the pipe "reader.out". Message boxes are answered and logged.
class Help : public ::testing::Test {
protected:
    Help()
        : m_dataHome("XDG_DATA_HOME", (m_scratch / "data").c_str()),
          m_dataDirs("XDG_DATA_DIRS", (m_scratch / "system-data").c_str()),
          m_configHome("XDG_CONFIG_HOME", (m_scratch / "config").c_str()),
          m_configDirs("XDG_CONFIG_DIRS", (m_scratch / "system-config").c_str()),
          m_output("READER_OUT", (m_scratch / "reader.out").c_str()) {
        m_scratch.Write("data/mime/globs2", "50:application/pdf:*.pdf\n");
        m_reader =
            m_scratch.Write("bin/reader", "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"$READER_OUT\"\n");
        fs::permissions(m_reader, fs::perms::owner_all);
        m_scratch.Write("data/applications/reader.desktop",
                        "[Desktop Entry]\nName=Reader\nExec=" + m_reader + " %f\n");
        m_scratch.Write("config/mimeapps.list",
                        "[Default Applications]\napplication/pdf=reader.desktop\n");
        m_document = m_scratch.Write("app/rd4.pdf", "%PDF-1.4\n");
        m_scratch.MakePipe("reader.out");
        xgSetApplicationPath((m_scratch / "app/").c_str());
    }
    ~Help() override { xgSetApplicationPath(""); }

    std::string LastMessage() const { return m_boxes.LastText(); }

    ScratchFolder m_scratch;
    EnvironmentVariable m_dataHome, m_dataDirs, m_configHome, m_configDirs, m_output;
    std::string m_reader;
    std::string m_document;
    MessageBoxResponder m_boxes;
};

TEST_F(Help, TopicOpensTheReaderAtItsDestination) {
    EXPECT_TRUE(HelpDocument::OpenAtTopic(7));
    EXPECT_EQ(m_scratch.ReadPipe("reader.out"),
              "/A\nnameddest=Culvert Crossing Data\n" + m_document + "\n");
    EXPECT_EQ(m_boxes.Count(), 0);
}

TEST_F(Help, MinusOneOpensTheDocumentThroughTheShell) {
    EXPECT_TRUE(HelpDocument::OpenAtTopic(-1));
    EXPECT_EQ(m_scratch.ReadPipe("reader.out"), m_document + "\n");
}

TEST_F(Help, MissingDocumentIsToldByEveryRoad) {
    fs::remove(m_document);
    EXPECT_FALSE(HelpDocument::Open());
    EXPECT_EQ(LastMessage(), "Unable to launch " + m_document +
                                 ".  Make sure this document exists on your computer and that "
                                 "you have installed Adobe Acrobat.");
    EXPECT_TRUE(HelpDocument::OpenAtTopic(-1)); // true all the same, after the message
    EXPECT_EQ(m_boxes.Count(), 2);
    EXPECT_FALSE(HelpDocument::OpenAtTopic(3));
    EXPECT_EQ(LastMessage(), "The RD-4 Help PDF File Document was not found.");
}

TEST_F(Help, EachAssociationFailureHasItsMessage) {
    std::string executable = "unchanged";
    EXPECT_FALSE(HelpDocument::GetFileAssociation(m_scratch / "gone/rd4.pdf", executable));
    EXPECT_EQ(LastMessage(), "The path to the RD-4 Help PDF File Document is invalid.");
    EXPECT_FALSE(HelpDocument::GetFileAssociation("C:\\no\\such\\rd4.pdf", executable));
    EXPECT_EQ(LastMessage(), "The path to the RD-4 Help PDF File Document is invalid.");
    if (geteuid() != 0) {
        fs::permissions(m_document, fs::perms::none);
        EXPECT_FALSE(HelpDocument::GetFileAssociation(m_document, executable));
        EXPECT_EQ(LastMessage(), "Access was denied to the RD-4 Help PDF File Document.");
        fs::permissions(m_document, fs::perms::owner_read);
    }
    fs::remove(m_scratch / "config/mimeapps.list");
    EXPECT_FALSE(HelpDocument::GetFileAssociation(m_document, executable));
    EXPECT_EQ(LastMessage(), "There is no association for PDF files with an executable file.  "
                             "Make sure that you have installed Adobe Acrobat.");
    EXPECT_FALSE(HelpDocument::OpenAtTopic(0));
    EXPECT_EQ(executable, "unchanged");
}

TEST_F(Help, AssociationOfAFolderAndNameSplitAtTheBackslash) {
    std::string executable;
    const std::string windowsStyle = "C:" + m_scratch.Path() + "/app\\rd4.pdf";
    EXPECT_TRUE(HelpDocument::GetFileAssociation(windowsStyle, executable));
    EXPECT_EQ(executable, m_reader);
}

} // namespace
