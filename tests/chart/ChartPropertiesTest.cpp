#include "chart/ChartProperties.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

// The plot layer's reader of text arrays: 16-bit characters, low bytes kept, items ended by
// tabs, trailing blanks cut, text after the last tab dropped.
std::vector<std::string> ReadStrings(const ChartProperties& store, int number) {
    std::vector<std::string> items;
    const int n = store.GetArray(number, nullptr);
    std::vector<unsigned char> buffer(size_t(2 * n) + 2, 0xAB);
    if (store.GetArray(number, buffer.data()) == -1)
        return items;
    std::string text;
    for (int i = 0; i < n; ++i)
        text += char(buffer[size_t(2 * i)]);
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    while (!text.empty()) {
        const auto tab = text.find('\t');
        if (tab == std::string::npos)
            break;
        items.push_back(text.substr(0, tab));
        text = text.substr(tab + 1);
        text.erase(0, text.find_first_not_of(" \t"));
    }
    EXPECT_EQ(buffer[size_t(2 * n)], 0xAB) << "wrote past the size it reported";
    return items;
}

TEST(ChartProperties, ArraySizesAreInBytesAndTextInCharacters) {
    ChartProperties store;
    const double xs[] = {1, 2, 3};
    const std::int32_t symbols[] = {1, 2};
    ASSERT_TRUE(store.SetArray(3013, xs, 3));
    ASSERT_TRUE(store.SetArray(3270, symbols, 2));
    EXPECT_EQ(store.GetArray(3013, nullptr), 24);
    EXPECT_EQ(store.GetArray(3270, nullptr), 8);
    EXPECT_EQ(store.GetArray(3014, nullptr), 0);
    ASSERT_TRUE(store.SetElement(2125, 0, "Flow"));
    ASSERT_TRUE(store.SetElement(2125, 1, "Depth"));
    EXPECT_EQ(store.GetArray(2125, nullptr), 11); // "Flow\tDepth\t"

    double back[3] = {};
    EXPECT_EQ(store.GetArray(3013, back), 24);
    EXPECT_EQ(back[2], 3);
    EXPECT_TRUE(store.SetArray(3013, nullptr, 0));
    EXPECT_EQ(store.GetArray(3013, nullptr), 0);
}

TEST(ChartProperties, SetElementGrowsAndKeepsWhatWasThere) {
    ChartProperties store;
    const double value = 7.5;
    ASSERT_TRUE(store.SetElement(3014, 4, &value));
    EXPECT_EQ(store.GetArray(3014, nullptr), 5 * 8);
    for (int i = 0; i < 100000; ++i) {
        const double v = i;
        ASSERT_TRUE(store.SetElement(3013, i, &v));
    }
    EXPECT_EQ(store.Doubles(3013).size(), 100000u);
    EXPECT_EQ(store.Doubles(3013)[99999], 99999.0);
    double out = 0;
    EXPECT_TRUE(store.GetElement(3014, 4, &out));
    EXPECT_EQ(out, 7.5);
    EXPECT_FALSE(store.GetElement(3014, 5, &out));
    EXPECT_FALSE(store.SetElement(3014, -1, &value));
}

TEST(ChartProperties, StringArraysRoundTripThroughTheReader) {
    ChartProperties store;
    const char joined[] = "first\tsecond item\t\tlast\t";
    ASSERT_TRUE(store.SetArray(2626, joined, 4));
    // The reader trims the start of what follows a tab, so an empty item vanishes there.
    EXPECT_EQ(ReadStrings(store, 2626), (std::vector<std::string>{"first", "second item", "last"}));
    EXPECT_EQ(store.Strings(2626).size(), 4u);

    char element[64] = {};
    ASSERT_TRUE(store.GetElement(2626, 1, element));
    EXPECT_STREQ(element, "second item");
}

TEST(ChartProperties, StringArraysAreReadNoFurtherThanTheirEnd) {
    ChartProperties store;
    // Two items asked for: the third is never read.
    ASSERT_TRUE(store.SetArray(2125, "a\tb\tc\t", 2));
    EXPECT_EQ(store.Strings(2125), (std::vector<std::string>{"a", "b"}));
    // A count beyond the text stops at its zero byte.
    const char shortText[] = {'x', '\t', 'y', '\0', 'z', '\t', '\0'};
    ASSERT_TRUE(store.SetArray(2125, shortText, 50));
    EXPECT_EQ(store.Strings(2125), (std::vector<std::string>{"x", "y"}));
}

TEST(ChartProperties, KindsRefuseTheWrongOperation) {
    ChartProperties store;
    EXPECT_FALSE(store.SetInt(3013, 4));
    EXPECT_FALSE(store.SetString(2115, "text"));
    EXPECT_FALSE(store.SetArray(2610, "", 0)); // the hot spot is the chart's to write
    char buffer[1024];
    std::string longTitle(3000, 'T');
    ASSERT_TRUE(store.SetString(2105, longTitle.c_str()));
    EXPECT_EQ(store.GetString(2105, buffer), 1023);
    EXPECT_EQ(buffer[1023], '\0');
}

TEST(ChartProperties, FloatPropertiesHoldOneValueWhateverTheCount) {
    ChartProperties store;
    const double base = 45000.25;
    ASSERT_TRUE(store.SetArray(3098, &base, 0));
    EXPECT_EQ(store.Double(3098, 0), base);
    EXPECT_EQ(store.GetArray(3098, nullptr), 8);
}

} // namespace
