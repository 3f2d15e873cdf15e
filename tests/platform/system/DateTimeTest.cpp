#include "EnvironmentVariable.h"

#include "platform/system/DateTime.h"
#include "platform/system/UserSettings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

// Well-known automation dates.
constexpr DATE kEpoch = 0.0;                  // 1899-12-30 00:00
constexpr DATE kNoonFirstOf2000 = 36526.5;    // 2000-01-01 12:00
constexpr DATE kFirstMarch1900 = 61.0;        // 1900-03-01
constexpr DATE kSixOClockBeforeEpoch = -1.25; // 1899-12-29 06:00
constexpr DATE kLeapDay2024 = 45351.0;        // 2024-02-29, a Thursday
constexpr WORD kThursday = 4;
constexpr double kOneSecond = 1.0 / 86400.0;

SYSTEMTIME Fields(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return {WORD(year), WORD(month), 0, WORD(day), WORD(hour), WORD(minute), WORD(second), 0};
}

std::string DateText(const SYSTEMTIME& st, const char* picture, DWORD flags = 0) {
    char buffer[128];
    return GetDateFormat(LOCALE_USER_DEFAULT, flags, &st, picture, buffer, sizeof buffer) > 0
               ? buffer
               : "<failed>";
}

std::string TimeText(const SYSTEMTIME& st, const char* picture, DWORD flags = 0) {
    char buffer[128];
    return GetTimeFormat(LOCALE_USER_DEFAULT, flags, &st, picture, buffer, sizeof buffer) > 0
               ? buffer
               : "<failed>";
}

// Regional settings as a user would have them: the neutral locale's defaults unless a test
// writes others into the store.
class DateTimeTest : public ::testing::Test {
protected:
    void SetUp() override { ResetUserSettings(); }
    void TearDown() override { ResetUserSettings(); }
    void UseGermanFormats() {
        WriteUserSetting(kInternationalKey, "sShortDate", "dd.MM.yyyy");
        WriteUserSetting(kInternationalKey, "sTimeFormat", "HH:mm:ss");
        WriteUserSetting(kInternationalKey, "sShortTime", "HH:mm");
    }
    EnvironmentVariable neutralLocale{"LC_ALL", "C"};
};

TEST_F(DateTimeTest, AutomationDatesAndSystemTimesRoundTrip) {
    struct Case {
        DATE date;
        SYSTEMTIME fields;
    };
    const Case cases[] = {
        {kEpoch, Fields(1899, 12, 30)},
        {kNoonFirstOf2000, Fields(2000, 1, 1, 12)},
        {kFirstMarch1900, Fields(1900, 3, 1)},
        {kSixOClockBeforeEpoch, Fields(1899, 12, 29, 6)},
        {kMinAutomationDate, Fields(100, 1, 1)},
        {std::floor(kMaxAutomationDate), Fields(9999, 12, 31)},
    };
    for (const Case& c : cases) {
        SYSTEMTIME st{};
        ASSERT_TRUE(VariantTimeToSystemTime(c.date, &st)) << c.date;
        EXPECT_EQ(st.wYear, c.fields.wYear) << c.date;
        EXPECT_EQ(st.wMonth, c.fields.wMonth) << c.date;
        EXPECT_EQ(st.wDay, c.fields.wDay) << c.date;
        EXPECT_EQ(st.wHour, c.fields.wHour) << c.date;
        DATE back = 0;
        ASSERT_TRUE(SystemTimeToVariantTime(&c.fields, &back));
        EXPECT_DOUBLE_EQ(back, c.date);
    }
    SYSTEMTIME st{};
    ASSERT_TRUE(VariantTimeToSystemTime(kLeapDay2024, &st));
    EXPECT_EQ(st.wDayOfWeek, kThursday);
    // A hair before midnight rounds to the next day; dates outside the years 100 to 9999 fail.
    ASSERT_TRUE(VariantTimeToSystemTime(kLeapDay2024 + 1.0 - kOneSecond / 10, &st));
    EXPECT_EQ(st.wMonth, 3);
    EXPECT_EQ(st.wDay, 1);
    EXPECT_EQ(st.wHour, 0);
    EXPECT_FALSE(VariantTimeToSystemTime(kMinAutomationDate - 1.0, &st));
    EXPECT_FALSE(VariantTimeToSystemTime(kMaxAutomationDate + 1.0, &st));
}

TEST_F(DateTimeTest, FieldsThatNameNoDateAreRefused) {
    DATE date = 0;
    for (const SYSTEMTIME& bad : {Fields(2023, 2, 29), Fields(2024, 2, 31), Fields(2024, 13, 1),
                                  Fields(2024, 0, 1), Fields(2024, 1, 0), Fields(2024, 1, 1, 24),
                                  Fields(2024, 1, 1, 0, 60), Fields(99, 12, 31)})
        EXPECT_FALSE(SystemTimeToVariantTime(&bad, &date));

    COleDateTime value(kNoonFirstOf2000);
    EXPECT_EQ(value.SetDate(2023, 2, 29), 1);
    EXPECT_EQ(value.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(value.GetYear(), -1);
    EXPECT_EQ(value.GetDayOfWeek(), -1);
    EXPECT_EQ(value.SetDateTime(2024, 2, 29, 23, 59, 59), 0);
    EXPECT_EQ(value.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(value.SetTime(12, 61, 0), 1);
    EXPECT_EQ(value.GetStatus(), COleDateTime::invalid);
}

TEST_F(DateTimeTest, OleDateTimeFieldsAndArithmeticAcrossTheEpoch) {
    const COleDateTime leapDay(2024, 2, 29, 13, 45, 30);
    EXPECT_EQ(leapDay.GetYear(), 2024);
    EXPECT_EQ(leapDay.GetMonth(), 2);
    EXPECT_EQ(leapDay.GetDay(), 29);
    EXPECT_EQ(leapDay.GetHour(), 13);
    EXPECT_EQ(leapDay.GetMinute(), 45);
    EXPECT_EQ(leapDay.GetSecond(), 30);
    EXPECT_EQ(leapDay.GetDayOfWeek(), kThursday + 1); // 1 is Sunday
    EXPECT_EQ(leapDay.GetDayOfYear(), 31 + 29);
    EXPECT_EQ(COleDateTime(2024, 12, 31, 0, 0, 0).GetDayOfYear(), 366);

    UDATE udate{};
    ASSERT_EQ(VarUdateFromDate(COleDateTime(2023, 12, 31, 0, 0, 0), 0, &udate), S_OK);
    EXPECT_EQ(udate.wDayOfYear, 365);
    EXPECT_EQ(VarUdateFromDate(kMaxAutomationDate + 2.0, 0, &udate), E_INVALIDARG);

    // Three in the morning less six hours is nine in the evening of the day before the epoch,
    // which automation dates write as -1 and three quarters.
    const COleDateTime early(1899, 12, 30, 3, 0, 0);
    const COleDateTime before = early - COleDateTimeSpan(0, 6, 0, 0);
    EXPECT_DOUBLE_EQ(before.m_dt, -1.875);
    EXPECT_EQ(before.GetDay(), 29);
    EXPECT_EQ(before.GetHour(), 21);
    EXPECT_TRUE(before < early);
    EXPECT_DOUBLE_EQ((early - before).GetTotalHours(), 6.0);
    const COleDateTimeSpan span = leapDay - COleDateTime(2024, 2, 28, 12, 0, 0);
    EXPECT_EQ(span.GetDays(), 1);
    EXPECT_EQ(span.GetHours(), 1);
    EXPECT_EQ(span.GetMinutes(), 45);
    EXPECT_EQ(span.GetSeconds(), 30);
}

TEST_F(DateTimeTest, PicturesWriteEveryFieldWidthAndQuotedLiterals) {
    const SYSTEMTIME afternoon = Fields(2024, 2, 9, 14, 5, 7);
    EXPECT_EQ(DateText(afternoon, "d/M/y"), "9/2/24");
    EXPECT_EQ(DateText(afternoon, "dd.MM.yy"), "09.02.24");
    EXPECT_EQ(DateText(afternoon, "ddd d MMM yyyy"), "Fri 9 Feb 2024");
    EXPECT_EQ(DateText(afternoon, "dddd, MMMM d, yyyy gg"), "Friday, February 9, 2024 A.D.");
    EXPECT_EQ(DateText(Fields(2005, 1, 1), "y yy"), "5 05");
    // Quoted letters are text, '' is a quote, a quote left open runs to the end.
    EXPECT_EQ(DateText(afternoon, "'Day' d 'of' MMMM"), "Day 9 of February");
    EXPECT_EQ(DateText(afternoon, "d''MM"), "9'02");
    EXPECT_EQ(DateText(afternoon, "'It''s' yyyy"), "It's 2024");
    EXPECT_EQ(DateText(afternoon, "yyyy' (dd"), "2024 (dd");

    EXPECT_EQ(TimeText(afternoon, "h:mm:ss tt"), "2:05:07 PM");
    EXPECT_EQ(TimeText(afternoon, "HH'h'mm t"), "14h05 P");
    EXPECT_EQ(TimeText(Fields(2024, 2, 9), "hh:mm tt"), "12:00 AM");
    EXPECT_EQ(TimeText(afternoon, "h:mm:ss tt", TIME_NOSECONDS), "2:05 PM");
    EXPECT_EQ(TimeText(afternoon, "h:mm:ss tt", TIME_NOMINUTESORSECONDS), "2 PM");
    EXPECT_EQ(TimeText(afternoon, "h:mm:ss tt", TIME_FORCE24HOURFORMAT | TIME_NOTIMEMARKER),
              "14:05:07");
    // Each call formats its own kind of field and leaves the other's letters as text.
    EXPECT_EQ(DateText(afternoon, "d h"), "9 h");
    EXPECT_EQ(std::string(FormatDateTimePicture(afternoon, "d'/'M'/'yyyy h':'mm' 'tt")),
              "9/2/2024 2:05 PM");
}

TEST_F(DateTimeTest, FormatCallsFollowTheBufferRulesAndRefuseBadInput) {
    const SYSTEMTIME st = Fields(2024, 2, 9);
    const int needed = GetDateFormat(LOCALE_USER_DEFAULT, 0, &st, "yyyy-MM-dd", nullptr, 0);
    EXPECT_EQ(needed, int(sizeof "2024-02-09"));
    char small[4] = "xyz";
    EXPECT_EQ(GetDateFormat(LOCALE_USER_DEFAULT, 0, &st, "yyyy-MM-dd", small, sizeof small), 0);
    EXPECT_EQ(DateText(st, "yyyy", DATE_SHORTDATE), "<failed>"); // a picture and a flag
    EXPECT_EQ(DateText(Fields(2024, 2, 30), "d"), "<failed>");
    EXPECT_EQ(TimeText(Fields(2024, 2, 9, 25), "H"), "<failed>");
}

TEST_F(DateTimeTest, RegionalFormatsComeFromTheSettingsStoreEachTime) {
    const SYSTEMTIME st = Fields(2024, 2, 13, 14, 30, 5);
    EXPECT_EQ(DateText(st, nullptr), "2/13/2024");
    EXPECT_EQ(DateText(st, nullptr, DATE_LONGDATE), "Tuesday, February 13, 2024");
    EXPECT_EQ(TimeText(st, nullptr), "2:30:05 PM");
    EXPECT_EQ(TimeText(st, nullptr, TIME_NOSECONDS), "2:30 PM");
    EXPECT_EQ(std::string(COleDateTime(st).Format()), "2/13/2024 2:30:05 PM");

    UseGermanFormats();
    EXPECT_EQ(DateText(st, nullptr), "13.02.2024");
    EXPECT_EQ(TimeText(st, nullptr), "14:30:05");
    EXPECT_EQ(TimeText(st, nullptr, TIME_NOSECONDS), "14:30");
    EXPECT_EQ(std::string(COleDateTime(2024, 2, 13, 0, 0, 0).Format()), "13.02.2024");
    EXPECT_EQ(std::string(COleDateTime(st).Format(VAR_TIMEVALUEONLY)), "14:30:05");
    EXPECT_EQ(std::string(COleDateTime(st).Format("%Y-%m-%d %H:%M:%S")), "2024-02-13 14:30:05");
}

TEST_F(DateTimeTest, ParsingReadsTheRegionalOrderOfDayAndMonth) {
    const DATE thirteenthOfFebruary = COleDateTime(2024, 2, 13, 0, 0, 0);
    const DATE halfPastTwo = COleDateTime(2024, 2, 13, 14, 30, 0);
    DATE date = 0;
    ASSERT_EQ(VarDateFromStr("2/13/2024", LOCALE_USER_DEFAULT, 0, &date), S_OK);
    EXPECT_DOUBLE_EQ(date, thirteenthOfFebruary);
    ASSERT_EQ(VarDateFromStr("2/13/2024 2:30 PM", LOCALE_USER_DEFAULT, 0, &date), S_OK);
    EXPECT_DOUBLE_EQ(date, halfPastTwo);
    EXPECT_EQ(VarDateFromStr("13.2.2024", LOCALE_USER_DEFAULT, 0, &date), DISP_E_TYPEMISMATCH);

    UseGermanFormats();
    ASSERT_EQ(VarDateFromStr("13.2.2024 14:30", LOCALE_USER_DEFAULT, LOCALE_NOUSEROVERRIDE, &date),
              S_OK);
    EXPECT_DOUBLE_EQ(date, halfPastTwo);
    EXPECT_EQ(VarDateFromStr("2/13/2024", LOCALE_USER_DEFAULT, 0, &date), DISP_E_TYPEMISMATCH);
    // What the formats write, the parser reads back.
    const COleDateTime written(2031, 7, 4, 9, 8, 7);
    COleDateTime read;
    ASSERT_TRUE(read.ParseDateTime(written.Format()));
    EXPECT_EQ(read, written);
}

TEST_F(DateTimeTest, ParsingNamesYearsPartsAndFailures) {
    DATE date = 0;
    auto parsed = [&](const char* text, DWORD flags = 0) {
        return VarDateFromStr(text, LOCALE_USER_DEFAULT, flags, &date) == S_OK
                   ? COleDateTime(date)
                   : COleDateTime(kMaxAutomationDate + 10);
    };
    EXPECT_EQ(parsed("March 12, 2024"), COleDateTime(2024, 3, 12, 0, 0, 0));
    EXPECT_EQ(parsed("12 mar 2024"), COleDateTime(2024, 3, 12, 0, 0, 0));
    EXPECT_EQ(parsed("Tuesday, February 13, 2024"), COleDateTime(2024, 2, 13, 0, 0, 0));
    EXPECT_EQ(parsed("2024-02-13 08:15:30"), COleDateTime(2024, 2, 13, 8, 15, 30));
    EXPECT_EQ(parsed("1/2/29"), COleDateTime(2029, 1, 2, 0, 0, 0));
    EXPECT_EQ(parsed("1/2/30"), COleDateTime(1930, 1, 2, 0, 0, 0));
    EXPECT_EQ(parsed("12:00 AM"), COleDateTime(1899, 12, 30, 0, 0, 0));
    EXPECT_EQ(parsed("3 PM"), COleDateTime(1899, 12, 30, 15, 0, 0));
    EXPECT_EQ(parsed("2/13/2024 14:30", VAR_DATEVALUEONLY), COleDateTime(2024, 2, 13, 0, 0, 0));
    EXPECT_EQ(parsed("2/13/2024 14:30", VAR_TIMEVALUEONLY), COleDateTime(1899, 12, 30, 14, 30, 0));

    for (const char* bad : {"", "   ", "not a date", "2/31/2024", "13/1/2024", "25:00", "1:60",
                            "1/2/3/4", "1/2/2024 13:00 PM", "2/13/2024 10:", "5", "1/2/99999",
                            "2024-02-13T08:15", "\xff\xfe", "12:30:15:10"}) {
        EXPECT_EQ(VarDateFromStr(bad, LOCALE_USER_DEFAULT, 0, &date), DISP_E_TYPEMISMATCH) << bad;
    }
    EXPECT_EQ(VarDateFromStr(nullptr, LOCALE_USER_DEFAULT, 0, &date), E_INVALIDARG);
    COleDateTime value(kNoonFirstOf2000);
    EXPECT_FALSE(value.ParseDateTime("soon"));
    EXPECT_EQ(value.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(std::string(value.Format()), "");
}

TEST_F(DateTimeTest, WhatTheRegionalFormatsWriteTheParserReadsBackOverTheWholeRange) {
    // Days spread over the years 100 to 9999, each at a different time of day.
    constexpr long long kStep = 997;
    constexpr int kSecondsStep = 7919;
    for (bool german : {false, true}) {
        if (german)
            UseGermanFormats();
        int secondOfDay = 0;
        for (auto day = static_cast<long long>(kMinAutomationDate);
             day <= static_cast<long long>(kMaxAutomationDate); day += kStep) {
            secondOfDay = (secondOfDay + kSecondsStep) % 86400;
            SYSTEMTIME st{};
            ASSERT_TRUE(VariantTimeToSystemTime(double(day), &st));
            const COleDateTime written(st.wYear, st.wMonth, st.wDay, secondOfDay / 3600,
                                       secondOfDay / 60 % 60, secondOfDay % 60);
            const CString text = written.Format();
            COleDateTime read;
            ASSERT_TRUE(read.ParseDateTime(text)) << text.GetString();
            EXPECT_EQ(read, written) << text.GetString();
        }
    }
}

} // namespace
