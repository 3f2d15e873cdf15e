#include "support/DataReader.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int kRandomNumbers = 2000;

// A stream over a copy of `content`, closed at the end of the test.
class MemoryFile {
public:
    explicit MemoryFile(std::string content) : m_content(std::move(content)) {
        m_file = fmemopen(m_content.data(), m_content.size(), "r");
    }
    ~MemoryFile() { std::fclose(m_file); }
    operator FILE*() const { return m_file; }

private:
    std::string m_content;
    FILE* m_file;
};

std::string Text(const CString& text) {
    return std::string(text.View());
}

TEST(DaGetLine, LineEndsCarriageReturnsAndTheLastLine) {
    MemoryFile file("a\r\n\r\nb c\r\r\n   \nlast");
    CString line;
    ASSERT_TRUE(daGetLine(line, file));
    EXPECT_EQ(Text(line), "a");
    ASSERT_TRUE(daGetLine(line, file));
    EXPECT_EQ(Text(line), "");
    ASSERT_TRUE(daGetLine(line, file));
    EXPECT_EQ(Text(line), "b c");
    ASSERT_TRUE(daGetLine(line, file));
    EXPECT_EQ(Text(line), "   ");
    ASSERT_TRUE(daGetLine(line, file));
    EXPECT_EQ(Text(line), "last");
    EXPECT_FALSE(daGetLine(line, file));
    EXPECT_EQ(Text(line), "");
    EXPECT_FALSE(daGetLine(line, file));
}

TEST(DaGetLine, HighAndZeroBytesAreDroppedAndLongLinesArriveWhole) {
    const std::string longLine(1000, 'x');
    MemoryFile file(std::string("caf\xc3\xa9 \x00ok\x80\n", 11) + longLine + "\n" +
                    std::string(49, 'y') + "\n");
    CString line;
    ASSERT_TRUE(daGetLine(line, file));
    EXPECT_EQ(Text(line), "caf ok");
    ASSERT_TRUE(daGetLine(line, file));
    EXPECT_EQ(Text(line), longLine);
    ASSERT_TRUE(daGetLine(line, file));
    EXPECT_EQ(Text(line), std::string(49, 'y'));
}

TEST(DaGetLine, EndOfFileMarkAloneOnTheLastLineFailsButStaysInTheLine) {
    MemoryFile file("1 2\n\x1a");
    daSetLineCount(file, 0);
    CString line;
    ASSERT_TRUE(daGetLine(line, file));
    EXPECT_EQ(daGetLineCount(file), 1);
    EXPECT_FALSE(daGetLine(line, file));
    EXPECT_EQ(Text(line), "\x1a");
    EXPECT_EQ(daGetLineCount(file), 1);

    MemoryFile inText("a\x1a"
                      "b\n");
    ASSERT_TRUE(daGetLine(line, inText));
    EXPECT_EQ(Text(line), "a\x1a"
                          "b");
}

TEST(DaGetLine, CounterStartsAtMinusOneUnlessSet) {
    MemoryFile file("one\ntwo\n");
    // Counts outlive their streams, so an address that never was a stream stands for a
    // file that was never counted.
    int neverAStream = 0;
    EXPECT_EQ(daGetLineCount(reinterpret_cast<FILE*>(&neverAStream)), -1);
    daSetLineCount(file, -1);
    CString line;
    daGetLine(line, file);
    EXPECT_EQ(daGetLineCount(file), 0);
    daGetLine(line, file);
    EXPECT_EQ(daGetLineCount(file), 1);
    EXPECT_FALSE(daGetLine(line, file));
    EXPECT_EQ(daGetLineCount(file), 1);
    daSetLineCount(file, 40);
    EXPECT_EQ(daGetLineCount(file), 40);
    EXPECT_FALSE(daGetLine(line, nullptr));
}

struct TokenCase {
    const char* line;
    int result;
    const char* text;
    const char* rest;
};

TEST(DaGetText, TokensSeparatorsAndQuotes) {
    const TokenCase cases[] = {
        {"  , \t", 0, "", ""},           {"", 0, "", ""},
        {"abc,def", 1, "abc", "def"},    {" ,abc ,\t def ghi", 1, "abc", "def ghi"},
        {"\"a b\" c", 1, "a b", "c"},    {"\"\" c", 1, "", "c"},
        {"\"a,b\"c d", 1, "a,b", "c d"}, {"\"abc", 0, "", "abc"},
        {"last", 1, "last", ""},
    };
    for (const TokenCase& c : cases) {
        CString line = c.line;
        CString text = "previous";
        EXPECT_EQ(daGetText(line, text), c.result) << c.line;
        EXPECT_EQ(Text(text), c.text) << c.line;
        EXPECT_EQ(Text(line), c.rest) << c.line;
    }
}

TEST(DaReadData, NumbersAreTakenAndFailedTokensStay) {
    CString line = "1.5,2.5 12abc x 1";
    double value = 0.0;
    EXPECT_EQ(daReadData(line, value), 1);
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(Text(line), "2.5 12abc x 1");
    EXPECT_EQ(daReadData(line, &value), 1);
    EXPECT_EQ(value, 2.5);
    EXPECT_EQ(daReadData(line, value), 1);
    EXPECT_EQ(value, 12.0);
    EXPECT_EQ(daReadData(line, value), 0);
    EXPECT_EQ(value, 12.0);
    EXPECT_EQ(Text(line), "x 1");

    CString quoted = "\"3.25\" \"open";
    EXPECT_EQ(daReadData(quoted, value), 1);
    EXPECT_EQ(value, 3.25);
    EXPECT_EQ(daReadData(quoted, value), 0);
    EXPECT_EQ(Text(quoted), "\"open");
    CString empty;
    EXPECT_EQ(daReadData(empty, value), 0);
    EXPECT_EQ(daReadData(empty, static_cast<double*>(nullptr)), 0);
}

TEST(DaReadData, ConversionsOfTheOtherTypes) {
    CString line = "2.75 -2.75 -1 300 0.5 -0.5 1e10 q";
    float single = 0;
    int integer = 0;
    unsigned int whole = 0;
    unsigned char byte = 0;
    bool flag = true;
    EXPECT_EQ(daReadData(line, single), 1);
    EXPECT_EQ(single, 2.75f);
    EXPECT_EQ(daReadData(line, integer), 1);
    EXPECT_EQ(integer, -2);
    EXPECT_EQ(daReadData(line, whole), 1);
    EXPECT_EQ(whole, 4294967295u);
    EXPECT_EQ(daReadData(line, &byte), 1);
    EXPECT_EQ(byte, 44); // 300 cut to its low eight bits
    EXPECT_EQ(daReadData(line, flag), 1);
    EXPECT_FALSE(flag);
    EXPECT_EQ(daReadData(line, &flag), 1);
    EXPECT_FALSE(flag);
    EXPECT_EQ(daReadData(line, integer), 1);
    EXPECT_EQ(integer, INT32_MIN); // out of range, as the processor truncates
    EXPECT_EQ(daReadData(line, integer), 0);
    EXPECT_EQ(integer, INT32_MIN);
    EXPECT_EQ(Text(line), "q");
    CString text;
    EXPECT_EQ(daReadData(line, text), 1);
    EXPECT_EQ(Text(text), "q");
}

// Every spelling of a number that the C library reads, and random values in every form that
// printf writes, come out as strtod reads them, bit for bit.
TEST(DaReadData, NumbersReadAsTheCLibraryReadsThem) {
    std::vector<std::string> tokens = {"0",
                                       "-0",
                                       "+2.5",
                                       ".5",
                                       "-.5",
                                       "5.",
                                       "1e3",
                                       "1E-3",
                                       "-1.5e+2",
                                       "0x1A",
                                       "0x1p-3",
                                       "inf",
                                       "-INF",
                                       "infinity",
                                       "nan",
                                       "1e400",
                                       "-1e400",
                                       "1e-400",
                                       "4.9e-324",
                                       "2.2250738585072011e-308",
                                       "1.7976931348623157e308",
                                       "0.1000000000000000055511151231257827",
                                       "9007199254740993",
                                       "00012.50",
                                       "123456789012345678901234567890"};
    std::mt19937_64 random(5);
    for (int i = 0; i < kRandomNumbers; ++i) {
        const double value = std::bit_cast<double>(random());
        char text[64];
        for (const char* format : {"%.17g", "%.6f", "%.3e", "%a"}) {
            std::snprintf(text, sizeof text, format, value);
            tokens.emplace_back(text);
        }
    }
    for (const std::string& token : tokens) {
        char* end = nullptr;
        const double expected = std::strtod(token.c_str(), &end);
        CString line(token.c_str());
        double value = 0.0;
        ASSERT_EQ(daReadData(line, value), 1) << token;
        if (std::isnan(expected))
            EXPECT_TRUE(std::isnan(value)) << token;
        else
            EXPECT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expected))
                << token;
    }
}

TEST(DataReader, ReadsAnEngineeringTable) {
    MemoryFile file("Culvert data\n"
                    "\"Pipe A\", 1.20, 0.013, 3\n"
                    "\"Box B\"\t2.5\t0.012\t1\r\n"
                    "\x1a");
    daSetLineCount(file, 0);
    CString line;
    ASSERT_TRUE(daGetLine(line, file));
    int rows = 0;
    double total = 0.0;
    while (daGetLine(line, file)) {
        CString name;
        double size = 0, roughness = 0;
        int barrels = 0;
        ASSERT_EQ(daReadData(line, name) + daReadData(line, size) + daReadData(line, roughness) +
                      daReadData(line, barrels),
                  4)
            << "line " << daGetLineCount(file);
        total += size * barrels;
        ++rows;
    }
    EXPECT_EQ(rows, 2);
    EXPECT_DOUBLE_EQ(total, 1.2 * 3 + 2.5);
    EXPECT_EQ(daGetLineCount(file), 3);
}

} // namespace
