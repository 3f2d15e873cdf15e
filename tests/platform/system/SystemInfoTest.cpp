#include "platform/system/LocalePictures.h"
#include "platform/system/SysColors.h"
#include "platform/system/SystemMetrics.h"
#include "platform/system/SystemParameters.h"
#include "platform/system/UserSettings.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

namespace {

TEST(SysColors, ClassicSchemeAndItsAliases) {
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(255, 255, 255));
    EXPECT_EQ(GetSysColor(COLOR_WINDOWTEXT), RGB(0, 0, 0));
    EXPECT_EQ(GetSysColor(COLOR_3DFACE), RGB(212, 208, 200));
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), RGB(10, 36, 106));
    EXPECT_EQ(GetSysColor(COLOR_3DSHADOW), RGB(128, 128, 128));
    EXPECT_EQ(GetSysColor(COLOR_3DHILIGHT), RGB(255, 255, 255));
    EXPECT_EQ(GetSysColor(COLOR_3DDKSHADOW), RGB(64, 64, 64));
    EXPECT_EQ(GetSysColor(-1), 0u);
    EXPECT_EQ(GetSysColor(COLOR_COUNT), 0u);
}

TEST(SysColors, ChangedEntriesComeBackWithTheScheme) {
    const int elements[] = {COLOR_WINDOW, 99, COLOR_HIGHLIGHT};
    const COLORREF values[] = {RGB(1, 2, 3), RGB(4, 5, 6), RGB(7, 8, 9)};
    EXPECT_FALSE(SetSysColors(3, elements, values)); // 99 is skipped, the others are set
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(1, 2, 3));
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), RGB(7, 8, 9));
    RestoreDefaultSysColors();
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(255, 255, 255));
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), RGB(10, 36, 106));
    EXPECT_FALSE(SetSysColors(1, nullptr, values));
}

TEST(SystemParameters, NonClientMetricsInBothRecordSizes) {
    NONCLIENTMETRICS full{};
    full.cbSize = sizeof full;
    ASSERT_TRUE(SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof full, &full, 0));
    EXPECT_EQ(full.lfMessageFont.lfHeight, -11);
    EXPECT_EQ(full.lfMessageFont.lfWeight, 400);
    EXPECT_STREQ(full.lfMessageFont.lfFaceName, "Tahoma");
    EXPECT_EQ(full.iScrollWidth, GetSystemMetrics(SM_CXVSCROLL));

    // The older, shorter record must not have its last field written.
    NONCLIENTMETRICS shorter{};
    shorter.cbSize = NONCLIENTMETRICS_V1_SIZE;
    shorter.iPaddedBorderWidth = 12345;
    ASSERT_TRUE(SystemParametersInfo(SPI_GETNONCLIENTMETRICS, shorter.cbSize, &shorter, 0));
    EXPECT_EQ(shorter.iPaddedBorderWidth, 12345);
    EXPECT_STREQ(shorter.lfMessageFont.lfFaceName, "Tahoma");

    NONCLIENTMETRICS wrong{};
    wrong.cbSize = 12;
    EXPECT_FALSE(SystemParametersInfo(SPI_GETNONCLIENTMETRICS, 12, &wrong, 0));
    EXPECT_FALSE(SystemParametersInfo(SPI_GETNONCLIENTMETRICS, 0, nullptr, 0));
    EXPECT_FALSE(SystemParametersInfo(0x1234, 0, &full, 0));
}

TEST(SystemParameters, WheelLinesFollowTheDesktopSetting) {
    UINT lines = 0;
    ASSERT_TRUE(SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0));
    EXPECT_EQ(lines, 3u);
    WriteUserSetting(kDesktopKey, "WheelScrollLines", "7");
    SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    EXPECT_EQ(lines, 7u);
    WriteUserSetting(kDesktopKey, "WheelScrollLines", "-1");
    SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    EXPECT_EQ(lines, WHEEL_PAGESCROLL);
    WriteUserSetting(kDesktopKey, "WheelScrollLines", "many");
    SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    EXPECT_EQ(lines, 3u);
    ResetUserSettings();
}

TEST(SystemParameters, VersionRecordMustCarryItsSize) {
    OSVERSIONINFO info{};
    EXPECT_FALSE(GetVersionEx(&info));
    info.dwOSVersionInfoSize = sizeof info;
    ASSERT_TRUE(GetVersionEx(&info));
    EXPECT_EQ(info.dwPlatformId, VER_PLATFORM_WIN32_NT);
    EXPECT_GE(info.dwMajorVersion, 6u);
}

std::string QueryInternational(const char* name) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, kInternationalKey, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return "<no key>";
    char buffer[256];
    DWORD size = sizeof buffer;
    DWORD type = 0;
    const LSTATUS status =
        RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size);
    RegCloseKey(key);
    if (status != ERROR_SUCCESS || type != REG_SZ)
        return "<no value>";
    return buffer;
}

TEST(UserSettings, NeutralLocaleGivesTheDefaults) {
    setenv("LC_ALL", "C", 1);
    ResetUserSettings();
    EXPECT_EQ(QueryInternational("sShortDate"), "M/d/yyyy");
    EXPECT_EQ(QueryInternational("sTimeFormat"), "h:mm:ss tt");
    EXPECT_EQ(QueryInternational("sShortTime"), "h:mm tt");
    EXPECT_EQ(QueryInternational("sDecimal"), ".");
    EXPECT_EQ(QueryInternational("sNoSuchValue"), "<no value>");
    unsetenv("LC_ALL");
    ResetUserSettings();
}

TEST(UserSettings, ChangesShowThroughTheRegistryCallsUntilReset) {
    WriteUserSetting(kInternationalKey, "sShortDate", "d.M.yyyy");
    EXPECT_EQ(QueryInternational("sShortDate"), "d.M.yyyy");
    RemoveUserSetting(kInternationalKey, "sShortDate");
    EXPECT_EQ(QueryInternational("sShortDate"), "<no value>");
    ResetUserSettings();
    CString value;
    ASSERT_TRUE(ReadUserSetting(kInternationalKey, "sShortDate", value));
    EXPECT_FALSE(value.IsEmpty());
}

TEST(UserSettings, RegistryCallsReportSizesAndMissingKeys) {
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, "Software\\Nowhere", 0, KEY_READ, &key),
              ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(key, nullptr);
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, kDesktopKey, 0, KEY_READ, &key), ERROR_SUCCESS);
    WriteUserSetting(kDesktopKey, "WheelScrollLines", "12");
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExA(key, "WheelScrollLines", nullptr, nullptr, nullptr, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(size, 3u);
    char small[2] = {'x', 'x'};
    size = sizeof small;
    EXPECT_EQ(RegQueryValueExA(key, "WheelScrollLines", nullptr, nullptr,
                               reinterpret_cast<BYTE*>(small), &size),
              ERROR_MORE_DATA);
    EXPECT_EQ(size, 3u);
    EXPECT_EQ(small[0], 'x');
    RegCloseKey(key);
    ResetUserSettings();
}

TEST(LocalePictures, StrftimePicturesBecomeSystemPictures) {
    EXPECT_EQ(PictureFromStrftime("%m/%d/%Y"), "MM/dd/yyyy");
    EXPECT_EQ(PictureFromStrftime("%d.%m.%y"), "dd.MM.yy");
    EXPECT_EQ(PictureFromStrftime("%e %B %Ey"), "d MMMM yy");
    EXPECT_EQ(PictureFromStrftime("%F"), "yyyy-MM-dd");
    EXPECT_EQ(PictureFromStrftime("%r"), "hh:mm:ss tt");
    EXPECT_EQ(PictureFromStrftime("%H h %M"), "HH 'h' mm");
    EXPECT_EQ(PictureFromStrftime("%H'%M:%S %Z%%"), "HH''mm:ss %");
    EXPECT_EQ(PictureFromStrftime("%"), "");
}

TEST(LocalePictures, ShortTimeDropsTheSecondsAndTheirSeparator) {
    EXPECT_EQ(ShortTimePicture("HH:mm:ss"), "HH:mm");
    EXPECT_EQ(ShortTimePicture("h:mm:ss tt"), "h:mm tt");
    EXPECT_EQ(ShortTimePicture("HH.mm"), "HH.mm");
}

} // namespace
