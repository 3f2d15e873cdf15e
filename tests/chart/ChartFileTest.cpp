#include "chart/ChartFile.h"

#include "chart/ChartDate.h"
#include "chart/ChartTicks.h"

#include <gtest/gtest.h>

#include <string>

namespace {

ChartProperties SampleChart() {
    ChartProperties p;
    p.SetString(2105, "Discharge");
    p.SetInt(2115, 2);
    p.SetInt(2120, 2);
    const double xs[] = {1, 2, 1, 2};
    p.SetArray(3013, xs, 4);
    const std::int32_t colours[] = {0x0000FF, 0x00FF00};
    p.SetArray(2190, colours, 2);
    p.SetArray(2125, "Inflow\tOutflow\t", 2);
    p.SetInt(40000, -12); // a number the engine does not know keeps its value too
    return p;
}

bool Parse(const std::string& bytes, std::map<int, PropertyValue>& out) {
    return ParseChart(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), out);
}

TEST(ChartFile, RoundTripsEveryProperty) {
    const ChartProperties original = SampleChart();
    std::map<int, PropertyValue> loaded;
    ASSERT_TRUE(Parse(SerializeChart(original), loaded));
    ChartProperties copy;
    copy.Replace(loaded);
    EXPECT_EQ(copy.Text(2105), "Discharge");
    EXPECT_EQ(copy.Int(2115, 0), 2);
    EXPECT_EQ(copy.Doubles(3013), original.Doubles(3013));
    EXPECT_EQ(copy.Ints(2190), original.Ints(2190));
    EXPECT_EQ(copy.Strings(2125), (std::vector<std::string>{"Inflow", "Outflow"}));
    EXPECT_EQ(copy.Int(40000, 0), -12);
    EXPECT_EQ(SerializeChart(copy), SerializeChart(original));
}

TEST(ChartFile, RefusesTruncatedForeignAndCorruptDataWithoutTouchingTheTarget) {
    const std::string good = SerializeChart(SampleChart());
    std::map<int, PropertyValue> target;
    target[2115].integer = 99;
    for (size_t length = 0; length < good.size(); ++length)
        EXPECT_FALSE(Parse(good.substr(0, length), target)) << "truncated to " << length;
    for (size_t i = 0; i < good.size(); ++i) {
        std::string bad = good;
        bad[i] = char(bad[i] ^ 0x10);
        EXPECT_FALSE(Parse(bad, target)) << "byte " << i << " flipped";
    }
    EXPECT_FALSE(Parse(good + "x", target));
    EXPECT_FALSE(Parse("\x89PNG\r\n\x1a\n" + good.substr(8), target));
    ASSERT_EQ(target.size(), 1u);
    EXPECT_EQ(target[2115].integer, 99);
}

TEST(ChartDate, SerialsAreDaysSince30December1899) {
    double serial = 0;
    ASSERT_TRUE(EncodeChartDate({2000, 1, 1, 12, 0, 0}, &serial));
    EXPECT_DOUBLE_EQ(serial, 36526.5);
    ASSERT_TRUE(EncodeChartDate({1900, 3, 1, 0, 0, 0}, &serial));
    EXPECT_DOUBLE_EQ(serial, 61);
    EXPECT_FALSE(EncodeChartDate({2023, 2, 29, 0, 0, 0}, &serial));
    EXPECT_FALSE(EncodeChartDate({2024, 13, 1, 0, 0, 0}, &serial));
    const ChartDateFields back = DecodeChartDate(45351.999999999);
    EXPECT_EQ(back.year, 2024);
    EXPECT_EQ(back.month, 3);
    EXPECT_EQ(back.day, 1); // rounded to the second: midnight of the next day
    EXPECT_EQ(back.hour, 0);
}

TEST(ChartTicks, StepsAreOneTwoOrFiveTimesAPowerOfTen) {
    EXPECT_DOUBLE_EQ(NiceStep(100, 5), 20);
    EXPECT_DOUBLE_EQ(NiceStep(0.9, 10), 0.1);
    EXPECT_DOUBLE_EQ(NiceStep(7, 10, 1.0), 1);
    const auto ticks = NumericTicks(-0.3, 0.3, 0.1);
    ASSERT_EQ(ticks.size(), 7u);
    EXPECT_EQ(ticks[3].label, "0.0");
    EXPECT_EQ(ticks[0].label, "-0.3");
    // A week of hours at 1000 pixels: whole days, starting at midnight.
    const auto days = DateTicks(45000.3, 45007.3, 1000 / 7.0, 100, 0);
    ASSERT_FALSE(days.empty());
    EXPECT_DOUBLE_EQ(days.front().value, 45001);
    EXPECT_EQ(days.front().label, "16 Mar 2023");
}

} // namespace

namespace {

// A file written by the first version of the format must stay readable as it was written.
TEST(ChartFile, ReadsTheVersionOneFixture) {
    std::map<int, PropertyValue> loaded;
    ASSERT_TRUE(LoadChartFile(ORVA_TEST_DATA_DIR "/chart/rating-v1.chart", loaded));
    ChartProperties p;
    p.Replace(loaded);
    EXPECT_EQ(p.Text(2105), "Rating curve");
    EXPECT_EQ(p.Strings(2125), std::vector<std::string>{"Gauge A"});
    EXPECT_EQ(p.Doubles(3014), (std::vector<double>{2.0, -9999.0, 6.5}));
    EXPECT_EQ(p.Int(3090, 0), 13);
}

} // namespace
