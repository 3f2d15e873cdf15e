// Reach files: the shipped examples, a round trip, and errors that name their line.

#include "ReachFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class ReachFileTest : public ::testing::Test {
protected:
    ~ReachFileTest() override { fs::remove(m_path); }

    // Reads `text` as a reach file; false with the error kept.
    bool Read(const std::string& text) {
        std::ofstream(m_path, std::ios::binary) << text;
        return ReadReachFile(m_path, m_reach, m_error);
    }

    std::string m_path =
        (fs::path(::testing::TempDir()) / ("reach-" + std::to_string(::getpid()) + ".reach"))
            .string();
    Reach m_reach;
    std::string m_error;
};

constexpr const char* kHeader = "reach \"Test\"\ndischarge 2\n";
constexpr const char* kSection = "section 0 10 2 1 1 \"Grass\" 2020-01-02 1 #FF8000 const 0\n";

TEST_F(ReachFileTest, TheExamplesRead) {
    for (const char* name : {"mill-creek.reach", "east-drain.reach"}) {
        Reach reach;
        ASSERT_TRUE(
            ReadReachFile(std::string(CHANNEL_DESIGNER_FOLDER) + "data/" + name, reach, m_error))
            << m_error;
        EXPECT_GE(reach.sections.size(), 5u) << name;
        for (size_t i = 0; i + 1 < reach.sections.size(); ++i)
            EXPECT_GT(reach.BedSlope(i), 0) << name << " section " << i + 1;
    }
}

TEST_F(ReachFileTest, WhatIsWrittenReadsBackTheSame) {
    Reach reach;
    reach.name = "Round trip, with a comma";
    reach.discharge = 3.25;
    CrossSection upstream;
    upstream.chainage = 0;
    upstream.invert = 12.345;
    upstream.bedWidth = 2.5;
    upstream.sideSlope = 0.75;
    upstream.barrels = 3;
    upstream.lining = 5;
    upstream.lined = {2019, 12, 31};
    upstream.surveyed = true;
    upstream.colour = 0x00B4771F; // #1F77B4
    upstream.inflow = {true, 0, {{0, 0}, {2.5, 1.75}, {8, 0.1}}};
    CrossSection downstream = upstream;
    downstream.chainage = 75.5;
    downstream.invert = 12.1;
    downstream.surveyed = false;
    downstream.inflow = {false, 0.4, {}};
    reach.sections = {upstream, downstream};

    ASSERT_TRUE(WriteReachFile(m_path, reach));
    ASSERT_TRUE(ReadReachFile(m_path, m_reach, m_error)) << m_error;
    EXPECT_EQ(m_reach.name, reach.name);
    EXPECT_EQ(m_reach.discharge, reach.discharge);
    EXPECT_EQ(m_reach.sections, reach.sections);
    EXPECT_DOUBLE_EQ(m_reach.sections[0].inflow.PeakRate(), 1.75);
    std::ifstream written(m_path);
    std::string text((std::istreambuf_iterator<char>(written)), {});
    EXPECT_NE(text.find("#1F77B4"), std::string::npos)
        << "colours are written as people write them";
}

TEST_F(ReachFileTest, AnErrorNamesItsLineAndLeavesTheReachAlone) {
    m_reach.name = "before";
    const struct {
        std::string text;
        std::string error;
    } cases[] = {
        {std::string(kHeader) + kSection +
             "\n# a comment\nsection 5 9 2 1 1 \"Marble\" 2020-01-02 "
             "1 #FF8000 const 0\n",
         "line 6: a section needs"},
        {std::string(kHeader) + kSection +
             "section 5 9 2 1 1 \"Grass\" 2020-13-02 1 #FF8000 const 0\n",
         "line 4: a section needs"},
        {std::string(kHeader) + kSection +
             "section 5 9 2 1 1 \"Grass\" 2020-01-02 1 #FF80 const 0\n",
         "line 4: a section needs"},
        {std::string(kHeader) + kSection +
             "section 5 9 2 1 1 \"Grass\" 2020-01-02 1 #FF8000 curve 3 0 0 1 1\n",
         "line 4: a section needs"},
        {std::string(kHeader) + kSection +
             "section 5 9 2 1 0 \"Grass\" 2020-01-02 1 #FF8000 const 0\n",
         "line 4: a section needs"},
        {std::string(kHeader) + kSection + kSection, "line 4: sections must follow"},
        {std::string(kHeader) + "weir 3\n", "line 3: unknown record"},
        {"reach \"Test\"\ndischarge -1\n", "line 2: the discharge"},
        {std::string(kHeader) + kSection, "a reach needs a discharge and at least two sections"},
        {"", "a reach needs a discharge"},
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(Read(c.text)) << c.text;
        EXPECT_NE(m_error.find(c.error), std::string::npos) << m_error;
        EXPECT_EQ(m_reach.name, "before");
    }
    EXPECT_FALSE(ReadReachFile(m_path + ".missing", m_reach, m_error));
    EXPECT_NE(m_error.find("cannot open"), std::string::npos);
}

TEST_F(ReachFileTest, LiningsMatchWithoutRegardToCase) {
    ASSERT_TRUE(Read(std::string(kHeader) + kSection +
                     "section 50 9.9 2 1 1 \"concrete, ROUGH\" 2020-01-02 0 #000000 const 0\n"))
        << m_error;
    EXPECT_EQ(Linings()[size_t(m_reach.sections[1].lining)].name, std::string("Concrete, rough"));
    EXPECT_EQ(m_reach.sections[0].colour, 0x0080FFu); // #FF8000: red in the low byte
}

} // namespace
