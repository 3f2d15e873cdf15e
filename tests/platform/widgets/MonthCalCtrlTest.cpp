// The month calendar as a child control: what a click and the keys choose, what the parent
// hears, and today and the chosen day on screen.

#include "platform/widgets/MonthCalCtrl.h"
#include "platform/system/SysColors.h"
#include "platform/system/UserSettings.h"
#include "platform/testing/UiDriver.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace {

constexpr UINT kCalendarId = 201;
constexpr SYSTEMTIME kChosen{2024, 2, 4, 29, 0, 0, 0, 0}; // the leap day, a Thursday
constexpr SYSTEMTIME kToday{2024, 2, 2, 13, 0, 0, 0, 0};
constexpr COLORREF kTodayRed = RGB(255, 0, 0);

struct Heard {
    UINT code;
    SYSTEMTIME day;
};

class ParentWnd : public CWnd {
public:
    std::vector<Heard> heard;

protected:
    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
        const auto* change = reinterpret_cast<const NMSELCHANGE*>(lParam);
        heard.push_back({change->nmhdr.code, change->stSelStart});
        *result = 0;
        return TRUE;
    }
};

class MonthCalCtrlTest : public ::testing::Test {
protected:
    void SetUp() override {
        setenv("LC_ALL", "C", 1);
        ResetUserSettings();
        ASSERT_TRUE(parent.CreateEx(0, nullptr, "parent", WS_OVERLAPPED | WS_VISIBLE, 0, 0, 400,
                                    300, nullptr, nullptr));
        ASSERT_TRUE(
            calendar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &parent, kCalendarId));
        CRect size;
        ASSERT_TRUE(calendar.GetMinReqRect(&size));
        calendar.MoveWindow(10, 10, size.Width(), size.Height());
        calendar.SetToday(&kToday);
        ASSERT_TRUE(calendar.SetCurSel(&kChosen));
        PumpMessages();
    }
    void TearDown() override {
        calendar.DestroyWindow();
        parent.DestroyWindow();
        PumpMessages();
        unsetenv("LC_ALL");
        ResetUserSettings();
    }

    // Finds where a day (or a part) is drawn, as a user looks for it.
    CPoint Find(UINT part, int day = 0) {
        CRect client;
        calendar.GetClientRect(&client);
        for (int y = 0; y < client.bottom; y += 2)
            for (int x = 0; x < client.right; x += 2) {
                MCHITTESTINFO info{sizeof(MCHITTESTINFO), {x, y}, 0, {}};
                if (calendar.HitTest(&info) == part && (day == 0 || info.st.wDay == day))
                    return CPoint(x + 3, y + 3);
            }
        ADD_FAILURE() << "part " << part << " day " << day << " not shown";
        return CPoint(-1, -1);
    }
    SYSTEMTIME Selection() {
        SYSTEMTIME st{};
        EXPECT_TRUE(calendar.GetCurSel(&st));
        return st;
    }
    bool AnyPixelOf(CPoint centre, int radius, COLORREF colour) {
        for (int dy = -radius; dy <= radius; ++dy)
            for (int dx = -radius; dx <= radius; ++dx)
                if (ui.Pixel(calendar.m_hWnd, CPoint(centre.x + dx, centre.y + dy)) == colour)
                    return true;
        return false;
    }

    ParentWnd parent;
    CMonthCalCtrl calendar;
    UiDriver ui;
};

TEST_F(MonthCalCtrlTest, ADayClickedIsChosenAndTheParentHearsIt) {
    // The days of the neighbouring months show too, and a click on one moves there.
    const CPoint first = Find(MCHT_CALENDARDATE, 1);
    MCHITTESTINFO info{sizeof(MCHITTESTINFO), first, 0, {}};
    calendar.HitTest(&info);
    EXPECT_EQ(info.st.wMonth, 2);
    ui.Click(calendar.m_hWnd, Find(MCHT_CALENDARDATENEXT, 2));
    EXPECT_EQ(Selection().wMonth, 3);
    EXPECT_EQ(Selection().wDay, 2);
    EXPECT_EQ(Selection().wDayOfWeek, 6);
    ASSERT_EQ(parent.heard.size(), 2u);
    EXPECT_EQ(parent.heard[0].code, MCN_SELCHANGE);
    EXPECT_EQ(parent.heard[1].code, MCN_SELECT);
    EXPECT_EQ(parent.heard[1].day.wDay, 2);

    // The today line chooses today.
    ui.Click(calendar.m_hWnd, Find(MCHT_TODAYLINK));
    EXPECT_EQ(Selection().wDay, kToday.wDay);
    EXPECT_EQ(Selection().wMonth, kToday.wMonth);
}

TEST_F(MonthCalCtrlTest, ArrowsAndKeysMoveTheChosenDayAcrossMonthsAndYears) {
    ui.Click(calendar.m_hWnd, Find(MCHT_TITLEBTNNEXT));
    EXPECT_EQ(Selection().wMonth, 3);
    EXPECT_EQ(Selection().wDay, 29);
    calendar.SetFocus();
    ui.PressKey(VK_PRIOR);
    ui.PressKey(VK_PRIOR); // 29 January
    ui.PressKey(VK_PRIOR); // December has 31 days, the 29th stays
    EXPECT_EQ(Selection().wYear, 2023);
    EXPECT_EQ(Selection().wMonth, 12);
    ui.PressKey(VK_DOWN);
    EXPECT_EQ(Selection().wYear, 2024);
    EXPECT_EQ(Selection().wDay, 5);
    ui.PressKey(VK_LEFT);
    ui.PressKey(VK_UP);
    EXPECT_EQ(Selection().wMonth, 12);
    EXPECT_EQ(Selection().wDay, 28);
    parent.heard.clear();
    ui.PressKey(VK_RETURN);
    ui.PressKey(VK_ESCAPE); // a child calendar has nothing to close
    ASSERT_EQ(parent.heard.size(), 1u);
    EXPECT_EQ(parent.heard[0].code, MCN_SELECT);
    EXPECT_TRUE(calendar.IsWindowVisible());

    SYSTEMTIME bad = kChosen;
    bad.wYear = 2023;
    EXPECT_FALSE(calendar.SetCurSel(&bad));
    EXPECT_EQ(Selection().wDay, 28);
}

TEST_F(MonthCalCtrlTest, TodayIsCircledAndTheChosenDayHighlighted) {
    const CPoint chosen = Find(MCHT_CALENDARDATE, kChosen.wDay);
    EXPECT_TRUE(AnyPixelOf(chosen, 2, GetSysColor(COLOR_HIGHLIGHT)));
    const CPoint today = Find(MCHT_CALENDARDATE, kToday.wDay);
    EXPECT_FALSE(AnyPixelOf(today, 2, GetSysColor(COLOR_HIGHLIGHT)));
    // The circle runs round the number: look along the middle row of the cell.
    bool circled = false;
    for (int dx = -16; dx <= 16 && !circled; ++dx)
        circled = ui.Pixel(calendar.m_hWnd, CPoint(today.x + dx, today.y)) == kTodayRed;
    EXPECT_TRUE(circled);
    // Another month does not show today.
    ui.Click(calendar.m_hWnd, Find(MCHT_TITLEBTNNEXT));
    const CPoint sameCell = Find(MCHT_CALENDARDATE, kToday.wDay);
    bool red = false;
    for (int dx = -16; dx <= 16 && !red; ++dx)
        red = ui.Pixel(calendar.m_hWnd, CPoint(sameCell.x + dx, sameCell.y)) == kTodayRed;
    EXPECT_FALSE(red);
}

} // namespace
