// The date-and-time picker in a user's hands: fields chosen by the mouse and the arrows, edited
// by digits and Up and Down, the drop-down calendar, and what the parent hears.

#include "platform/widgets/DateTimeCtrl.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/Font.h"
#include "platform/system/UserSettings.h"
#include "platform/testing/UiDriver.h"
#include "platform/widgets/MonthCalCtrl.h"
#include "platform/window/Dialog.h"
#include "platform/window/Input.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

using ::testing::ElementsAre;

namespace {

constexpr UINT kPickerId = 101;
constexpr UINT kDialogId = 7301;
const CRect kPickerRect(10, 10, 250, 34);
constexpr int kTextLeft = 4; // the sunken edge and the indent before the first field
constexpr int kFieldRow = 12;
// The leap day of 2024, a Thursday, in the morning.
constexpr SYSTEMTIME kLeapDayMorning{2024, 2, 4, 29, 10, 30, 15, 0};
constexpr const char* kUsDate = "M'/'d'/'yyyy"; // the short date with its literals quoted

int TextWidth(const char* text) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CFont* old = dc.SelectObject(CFont::FromHandle(HFONT(GetStockObject(DEFAULT_GUI_FONT))));
    const int width = dc.GetTextExtent(text, int(std::strlen(text))).cx;
    dc.SelectObject(old);
    return width;
}

// The middle of a field as it stands on screen: `before` is the text shown to its left.
CPoint FieldPoint(const char* before, const char* field) {
    return CPoint(kTextLeft + TextWidth(before) + TextWidth(field) / 2, kFieldRow);
}

struct Heard {
    UINT code;
    SYSTEMTIME st; // the time a DTN_DATETIMECHANGE carried
};

// The picker's parent: writes down each notification, and may act on one as an application
// would.
class ParentWnd : public CWnd {
public:
    std::vector<Heard> heard;
    std::function<void(UINT code)> onNotify;

    std::vector<UINT> Codes() const {
        std::vector<UINT> codes;
        for (const Heard& h : heard)
            codes.push_back(h.code);
        return codes;
    }

protected:
    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        Heard h{header->code, {}};
        if (header->code == DTN_DATETIMECHANGE)
            h.st = reinterpret_cast<const NMDATETIMECHANGE*>(lParam)->st;
        heard.push_back(h);
        if (onNotify)
            onNotify(header->code);
        *result = 0;
        return TRUE;
    }
};

class DateTimeCtrlTest : public ::testing::Test {
protected:
    void SetUp() override {
        setenv("LC_ALL", "C", 1);
        ResetUserSettings();
        ASSERT_TRUE(parent.CreateEx(0, nullptr, "parent", WS_OVERLAPPED | WS_VISIBLE, 100, 100, 400,
                                    300, nullptr, nullptr));
        ASSERT_TRUE(
            picker.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, kPickerRect, &parent, kPickerId));
        ASSERT_TRUE(other.CreateEx(0, nullptr, "other", WS_CHILD | WS_VISIBLE,
                                   CRect(10, 100, 100, 130), &parent, 102));
        ASSERT_TRUE(picker.SetTime(&kLeapDayMorning));
        picker.SetFormat(kUsDate);
        PumpMessages();
    }
    void TearDown() override {
        ReleaseCapture();
        SetFocus(nullptr);
        SetKeyHeld(VK_MENU, false);
        picker.DestroyWindow();
        parent.DestroyWindow();
        PumpMessages();
        unsetenv("LC_ALL");
        ResetUserSettings();
    }

    SYSTEMTIME Time() const {
        SYSTEMTIME st{};
        EXPECT_EQ(picker.GetTime(&st), GDT_VALID);
        return st;
    }
    std::string Date() const {
        const SYSTEMTIME st = Time();
        return std::to_string(st.wMonth) + "/" + std::to_string(st.wDay) + "/" +
               std::to_string(st.wYear);
    }
    std::string Clock() const {
        const SYSTEMTIME st = Time();
        return std::to_string(st.wHour) + ":" + std::to_string(st.wMinute) + ":" +
               std::to_string(st.wSecond);
    }
    HWND Calendar() const { return HWND(picker.SendMessage(DTM_GETMONTHCAL)); }
    void ClickButton() {
        CRect client;
        picker.GetClientRect(&client);
        ui.Click(picker.m_hWnd, CPoint(client.right - 6, client.Height() / 2));
    }
    // Where the open calendar shows a day of the month it shows, found as a user finds it.
    CPoint DayPoint(int day) const {
        CRect client;
        GetClientRect(Calendar(), &client);
        for (int y = 0; y < client.bottom; y += 2)
            for (int x = 0; x < client.right; x += 2) {
                MCHITTESTINFO info{sizeof(MCHITTESTINFO), {x, y}, 0, {}};
                if (SendMessage(Calendar(), MCM_HITTEST, 0, LPARAM(&info)) == MCHT_CALENDARDATE &&
                    info.st.wDay == day)
                    return CPoint(x + 3, y + 3);
            }
        ADD_FAILURE() << "day " << day << " not shown";
        return CPoint(-1, -1);
    }
    CPoint PartPoint(UINT part) const {
        CRect client;
        GetClientRect(Calendar(), &client);
        for (int y = 0; y < client.bottom; ++y)
            for (int x = 0; x < client.right; ++x) {
                MCHITTESTINFO info{sizeof(MCHITTESTINFO), {x, y}, 0, {}};
                if (SendMessage(Calendar(), MCM_HITTEST, 0, LPARAM(&info)) == part)
                    return CPoint(x + 2, y + 2);
            }
        ADD_FAILURE() << "part " << part << " not shown";
        return CPoint(-1, -1);
    }
    SYSTEMTIME CalendarSelection() const {
        SYSTEMTIME st{};
        SendMessage(Calendar(), MCM_GETCURSEL, 0, LPARAM(&st));
        return st;
    }

    ParentWnd parent;
    CDateTimeCtrl picker;
    CWnd other;
    UiDriver ui;
};

TEST_F(DateTimeCtrlTest, AClickChoosesTheFieldAndUpDownWrapWithinIt) {
    ui.Click(picker.m_hWnd, FieldPoint("2/", "29"));
    EXPECT_EQ(GetFocus(), picker.m_hWnd);
    ui.PressKey(VK_UP); // the last day of February wraps to the first, in February
    EXPECT_EQ(Date(), "2/1/2024");
    ui.PressKey(VK_DOWN);
    EXPECT_EQ(Date(), "2/29/2024");
    ui.PressKey(VK_RIGHT);
    ui.PressKey(VK_UP); // 2025 has no leap day
    EXPECT_EQ(Date(), "2/28/2025");
    ui.PressKey(VK_RIGHT); // from the last field round to the first: the month
    ui.PressKey(VK_DOWN);
    ui.PressKey(VK_DOWN);
    EXPECT_EQ(Date(), "12/28/2025");
    ui.PressKey(VK_LEFT); // and back round to the year
    ui.PressKey(VK_DOWN);
    EXPECT_EQ(Date(), "12/28/2024");
    EXPECT_EQ(Clock(), "10:30:15"); // the time of day stays as it was

    // Each change told the parent, with the time it made.
    ASSERT_EQ(parent.heard.size(), 6u);
    for (const Heard& h : parent.heard)
        EXPECT_EQ(h.code, DTN_DATETIMECHANGE);
    EXPECT_EQ(parent.heard[0].st.wDay, 1);
    EXPECT_EQ(parent.heard[2].st.wYear, 2025);
    EXPECT_EQ(parent.heard.back().st.wYear, 2024);
}

TEST_F(DateTimeCtrlTest, DigitsBuildAFieldUpWhileItFitsAndSeparatorsMoveOn) {
    ui.Click(picker.m_hWnd, FieldPoint("", "2"));
    ui.Type("1");
    EXPECT_EQ(Date(), "1/29/2024");
    ui.Type("1");
    EXPECT_EQ(Date(), "11/29/2024");
    ui.Type("3"); // no thirteenth month: the digit starts the field again
    EXPECT_EQ(Date(), "3/29/2024");
    ui.Type("/"); // on to the day
    ui.Type("31");
    EXPECT_EQ(Date(), "3/31/2024");
    ui.Type("/");
    ui.Type("99");
    EXPECT_EQ(Date(), "3/31/1999");
    // Leaving the field and coming back starts the number again.
    ui.PressKey(VK_LEFT);
    ui.PressKey(VK_RIGHT);
    ui.Type("05");
    EXPECT_EQ(Date(), "3/31/2005");
    ui.PressKey(VK_LEFT);
    ui.PressKey(VK_RIGHT);
    ui.Type("2010");
    EXPECT_EQ(Date(), "3/31/2010");

    // A month with fewer days pulls the day in.
    ui.PressKey(VK_HOME);
    ui.Type("4");
    EXPECT_EQ(Date(), "4/30/2010");
}

TEST_F(DateTimeCtrlTest, TimeFieldsWrapAndTheMarkerFollowsTheKeys) {
    picker.SetFormat("h':'mm':'ss' 'tt");
    ui.Click(picker.m_hWnd, FieldPoint("10:", "30"));
    picker.SetTime(COleDateTime(2024, 2, 29, 11, 59, 15));
    ui.PressKey(VK_UP); // minutes wrap without carrying into the hour
    EXPECT_EQ(Clock(), "11:0:15");
    ui.PressKey(VK_LEFT);
    ui.PressKey(VK_UP); // the hour wraps within the morning
    EXPECT_EQ(Clock(), "0:0:15");
    ui.PressKey(VK_END);
    ui.Type("p");
    EXPECT_EQ(Clock(), "12:0:15");
    ui.PressKey(VK_UP);
    EXPECT_EQ(Clock(), "0:0:15");
    ui.PressKey(VK_LEFT);
    ui.Type("75"); // 75 seconds cannot be: the 5 starts again
    EXPECT_EQ(Clock(), "0:0:5");
    EXPECT_EQ(Date(), "2/29/2024");
}

TEST_F(DateTimeCtrlTest, QuotedLiteralsAreTextAndNotFields) {
    picker.SetFormat("'Day' d 'of' MMMM yyyy");
    // A click on the literal before every field chooses the first field.
    ui.Click(picker.m_hWnd, FieldPoint("", "Day"));
    ui.PressKey(VK_UP);
    EXPECT_EQ(Date(), "2/1/2024");
    ui.Click(picker.m_hWnd, FieldPoint("Day 1 of ", "February"));
    ui.PressKey(VK_UP);
    EXPECT_EQ(Date(), "3/1/2024");
    ui.Type("9"); // the month's name takes its number too
    EXPECT_EQ(Date(), "9/1/2024");
}

TEST_F(DateTimeCtrlTest, TheRegionalFormatIsReadWhenTheStyleAsksForIt) {
    WriteUserSetting(kInternationalKey, "sShortDate", "dd.MM.yyyy");
    picker.SetFormat(nullptr);
    ui.Click(picker.m_hWnd, FieldPoint("", "29"));
    ui.PressKey(VK_UP);
    EXPECT_EQ(Date(), "2/1/2024"); // the first field is now the day
    ui.Type(".3");
    EXPECT_EQ(Date(), "3/1/2024");

    // The style's bits choose among the regional formats: the century date (here with the
    // up-down control) starts with the day as the short date does, the time with the hour.
    picker.ModifyStyle(0, DTS_SHORTDATECENTURYFORMAT | DTS_UPDOWN);
    ui.PressKey(VK_HOME);
    ui.PressKey(VK_UP);
    EXPECT_EQ(Date(), "3/2/2024");
    picker.ModifyStyle(DTS_SHORTDATECENTURYFORMAT, DTS_TIMEFORMAT);
    ui.PressKey(VK_HOME);
    ui.PressKey(VK_UP);
    EXPECT_EQ(Date(), "3/2/2024");
    EXPECT_EQ(Clock(), "11:30:15");
}

TEST_F(DateTimeCtrlTest, TheButtonOpensTheCalendarAndAClickOnADayPicksIt) {
    EXPECT_EQ(picker.GetMonthCalCtrl(), nullptr);
    ClickButton();
    ASSERT_NE(Calendar(), nullptr);
    EXPECT_EQ(picker.GetMonthCalCtrl()->m_hWnd, Calendar());
    EXPECT_EQ(GetFocus(), Calendar());
    EXPECT_EQ(GetCapture(), Calendar());
    EXPECT_EQ(CalendarSelection().wDay, 29);
    CRect pickerRect, calendarRect;
    picker.GetWindowRect(&pickerRect);
    GetWindowRect(Calendar(), &calendarRect);
    EXPECT_EQ(calendarRect.TopLeft(), CPoint(pickerRect.left, pickerRect.bottom));

    ui.Click(Calendar(), DayPoint(14));
    EXPECT_EQ(Calendar(), nullptr);
    EXPECT_EQ(picker.GetMonthCalCtrl(), nullptr);
    EXPECT_EQ(GetFocus(), picker.m_hWnd);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(Date(), "2/14/2024");
    EXPECT_EQ(Clock(), "10:30:15");
    EXPECT_THAT(parent.Codes(), ElementsAre(DTN_DROPDOWN, DTN_DATETIMECHANGE, DTN_CLOSEUP));
    EXPECT_EQ(parent.heard[1].st.wDay, 14);
}

TEST_F(DateTimeCtrlTest, APickersFontIsKeptAndGoesToItsCalendar) {
    CFont large;
    ASSERT_TRUE(large.CreatePointFont(160, "Sans"));
    picker.SetFont(&large);
    EXPECT_EQ(HFONT(*picker.GetFont()), HFONT(large));
    ClickButton();
    ASSERT_NE(Calendar(), nullptr);
    EXPECT_EQ(HFONT(SendMessage(Calendar(), WM_GETFONT, 0, 0)), HFONT(large));
}

TEST_F(DateTimeCtrlTest, TheCalendarMovesByMonthsAndDaysFromTheKeysAndArrows) {
    picker.SetFocus();
    ui.PressKey(VK_F4);
    ASSERT_NE(Calendar(), nullptr);
    ui.PressKey(VK_NEXT); // March has a 29th
    EXPECT_EQ(CalendarSelection().wMonth, 3);
    ui.PressKey(VK_RIGHT);
    ui.PressKey(VK_DOWN);
    EXPECT_EQ(CalendarSelection().wDay, 30 + 7 - 31); // a week after 30 March
    EXPECT_EQ(CalendarSelection().wMonth, 4);
    ui.Click(Calendar(), PartPoint(MCHT_TITLEBTNPREV));
    ui.Click(Calendar(), PartPoint(MCHT_TITLEBTNPREV));
    EXPECT_EQ(CalendarSelection().wMonth, 2);
    EXPECT_EQ(CalendarSelection().wDay, 6);
    EXPECT_EQ(Date(), "2/29/2024"); // nothing is chosen until the user picks
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(Calendar(), nullptr);
    EXPECT_EQ(Date(), "2/6/2024");

    // Alt+Down opens it too; Escape closes it and changes nothing.
    parent.heard.clear();
    SetKeyHeld(VK_MENU, true);
    ui.PressKey(VK_DOWN);
    SetKeyHeld(VK_MENU, false);
    ASSERT_NE(Calendar(), nullptr);
    ui.PressKey(VK_PRIOR);
    ui.PressKey(VK_ESCAPE);
    EXPECT_EQ(Calendar(), nullptr);
    EXPECT_EQ(Date(), "2/6/2024");
    EXPECT_THAT(parent.Codes(), ElementsAre(DTN_DROPDOWN, DTN_CLOSEUP));
}

TEST_F(DateTimeCtrlTest, TheCalendarClosesOnAClickOutsideOrWhenTheFocusLeaves) {
    ClickButton();
    ASSERT_NE(Calendar(), nullptr);
    ui.Click(parent.m_hWnd, CPoint(300, 200));
    EXPECT_EQ(Calendar(), nullptr);
    EXPECT_EQ(GetFocus(), picker.m_hWnd);
    ClickButton(); // the button toggles: a second click closes
    ASSERT_NE(Calendar(), nullptr);
    ClickButton();
    EXPECT_EQ(Calendar(), nullptr);

    ClickButton();
    ASSERT_NE(Calendar(), nullptr);
    other.SetFocus();
    EXPECT_EQ(Calendar(), nullptr);
    EXPECT_EQ(GetFocus(), other.m_hWnd); // closing does not take the focus back
    EXPECT_EQ(Date(), "2/29/2024");
    EXPECT_THAT(parent.Codes(), ElementsAre(DTN_DROPDOWN, DTN_CLOSEUP, DTN_DROPDOWN, DTN_CLOSEUP,
                                            DTN_DROPDOWN, DTN_CLOSEUP));
}

TEST_F(DateTimeCtrlTest, AParentThatEndsThePickerWhileItDropsDownLeavesNoCalendar) {
    parent.onNotify = [this](UINT code) {
        if (code == DTN_DROPDOWN)
            picker.DestroyWindow();
    };
    ClickButton();
    EXPECT_FALSE(picker.IsWindow());
    EXPECT_EQ(GetTopWindow(nullptr), parent.m_hWnd);
    EXPECT_EQ(GetWindow(parent.m_hWnd, GW_HWNDNEXT), nullptr);
    EXPECT_EQ(GetCapture(), nullptr);
}

// An editor over the picker, as a grid lays one over a cell: it tells the focus moving to its
// own calendar from the focus leaving it.
class EditorPicker : public CDateTimeCtrl {
public:
    std::vector<bool> toOwnCalendar;

protected:
    void OnKillFocus(CWnd* next) override {
        toOwnCalendar.push_back(next != nullptr && next == GetMonthCalCtrl());
        CDateTimeCtrl::OnKillFocus(next);
    }
};

TEST_F(DateTimeCtrlTest, ADerivedEditorSeesTheFocusGoToItsOwnCalendar) {
    EditorPicker editor;
    ASSERT_TRUE(editor.Create(WS_CHILD | WS_VISIBLE, CRect(10, 50, 250, 74), &parent, 103));
    editor.SetTime(&kLeapDayMorning);
    CRect client;
    editor.GetClientRect(&client);
    // The click that opens an editor is passed on to it, and drops the calendar down.
    editor.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON,
                       MAKELPARAM(WORD(client.right - 6), WORD(client.Height() / 2)));
    ASSERT_NE(editor.GetMonthCalCtrl(), nullptr);
    ui.Click(editor.GetMonthCalCtrl()->m_hWnd, CPoint(-20, -20)); // outside: closes
    EXPECT_EQ(editor.GetMonthCalCtrl(), nullptr);
    other.SetFocus();
    EXPECT_EQ(editor.toOwnCalendar, (std::vector<bool>{true, false}));
}

TEST_F(DateTimeCtrlTest, SetAndGetTimeRefuseWhatIsNoDateAndKeepToTheRange) {
    SYSTEMTIME bad = kLeapDayMorning;
    bad.wYear = 2023;
    EXPECT_FALSE(picker.SetTime(&bad));
    bad = kLeapDayMorning;
    bad.wMonth = 13;
    EXPECT_FALSE(picker.SetTime(&bad));
    EXPECT_EQ(Date(), "2/29/2024");
    EXPECT_EQ(picker.SendMessage(DTM_GETSYSTEMTIME), LRESULT(GDT_ERROR));
    EXPECT_FALSE(picker.SetTime(static_cast<const SYSTEMTIME*>(nullptr))); // needs DTS_SHOWNONE

    COleDateTime value;
    ASSERT_TRUE(picker.GetTime(value));
    EXPECT_EQ(value, COleDateTime(2024, 2, 29, 10, 30, 15));
    ASSERT_TRUE(picker.SetTime(COleDateTime(1850, 7, 4, 18, 0, 0)));
    EXPECT_EQ(Date(), "7/4/1850");
    EXPECT_EQ(Time().wDayOfWeek, 4); // a Thursday

    const COleDateTime first(2024, 1, 1, 0, 0, 0), last(2024, 12, 31, 23, 59, 59);
    ASSERT_TRUE(picker.SetRange(&first, &last));
    EXPECT_EQ(Date(), "1/1/2024");
    COleDateTime low, high;
    EXPECT_EQ(picker.GetRange(&low, &high), GDTR_MIN | GDTR_MAX);
    EXPECT_EQ(high, last);
    ui.Click(picker.m_hWnd, FieldPoint("1/1/", "2024"));
    ui.PressKey(VK_UP);
    EXPECT_EQ(Date(), "12/31/2024");
    EXPECT_TRUE(parent.heard.size() == 1 && parent.heard[0].st.wYear == 2024);
}

TEST_F(DateTimeCtrlTest, ShowNoneClearsAndSetsTheValueByItsCheckBox) {
    picker.ModifyStyle(0, DTS_SHOWNONE);
    ASSERT_TRUE(picker.SetTime(static_cast<const SYSTEMTIME*>(nullptr)));
    SYSTEMTIME st{};
    EXPECT_EQ(picker.GetTime(&st), GDT_NONE);
    COleDateTime value;
    EXPECT_FALSE(picker.GetTime(value));
    EXPECT_EQ(value.GetStatus(), COleDateTime::null);
    ui.Click(picker.m_hWnd, CPoint(kTextLeft + 6, kFieldRow));
    EXPECT_EQ(picker.GetTime(&st), GDT_VALID);
    ASSERT_EQ(parent.heard.size(), 1u);
    EXPECT_EQ(parent.heard[0].code, DTN_DATETIMECHANGE);
}

TEST_F(DateTimeCtrlTest, UpDownStyleStepsTheFieldInsteadOfDroppingDown) {
    picker.ModifyStyle(0, DTS_UPDOWN);
    ui.Click(picker.m_hWnd, FieldPoint("2/", "29"));
    CRect client;
    picker.GetClientRect(&client);
    ui.Click(picker.m_hWnd, CPoint(client.right - 6, client.top + 5));
    EXPECT_EQ(Date(), "2/1/2024");
    ui.Click(picker.m_hWnd, CPoint(client.right - 6, client.bottom - 5));
    EXPECT_EQ(Date(), "2/29/2024");
    ui.PressKey(VK_F4);
    EXPECT_EQ(Calendar(), nullptr);
}

TEST_F(DateTimeCtrlTest, AStormOfClicksAndKeysLeavesAValidDateAndNoStrayCalendar) {
    constexpr int kEvents = 3000;
    constexpr UINT kKeys[] = {VK_LEFT, VK_RIGHT, VK_UP,   VK_DOWN,   VK_HOME,   VK_END,
                              VK_F4,   VK_PRIOR, VK_NEXT, VK_RETURN, VK_ESCAPE, VK_SPACE};
    constexpr char kTyped[] = "0123456789/:ap ";
    picker.SetFormat("d'.'MMM'.'yy h':'mm':'ss tt");
    picker.ModifyStyle(0, DTS_SHOWNONE);
    std::mt19937 random(20240229);
    CRect client;
    picker.GetClientRect(&client);
    for (int i = 0; i < kEvents; ++i) {
        switch (random() % 4) {
        case 0: {
            const CPoint at(int(random() % 300) - 20, int(random() % 60) - 20);
            if (HWND calendar = Calendar())
                ui.Click(calendar, at + CPoint(0, 20));
            else
                ui.Click(picker.m_hWnd, at);
            break;
        }
        case 1:
            ui.PressKey(kKeys[random() % std::size(kKeys)]);
            break;
        case 2: {
            const char typed[2] = {kTyped[random() % (std::size(kTyped) - 1)], '\0'};
            ui.Type(typed);
            break;
        }
        default:
            ui.PressKey(VK_UP);
            break;
        }
        SYSTEMTIME st{};
        const DWORD state = picker.GetTime(&st);
        ASSERT_TRUE(state == GDT_VALID || state == GDT_NONE);
        DATE date = 0;
        ASSERT_TRUE(SystemTimeToVariantTime(&st, &date)) << "event " << i;
        // The calendar is open exactly while it holds the capture.
        ASSERT_EQ(GetCapture(), Calendar()) << "event " << i;
    }
    picker.DestroyWindow();
    EXPECT_EQ(GetWindow(parent.m_hWnd, GW_HWNDNEXT), nullptr); // no calendar left behind
}

TEST(DateTimeCtrlTemplate, ADialogTemplateNamesThePickerByItsClass) {
    DialogTemplate dialog{
        "Dates", {160, 60}, {{DATETIMEPICK_CLASS, "", kPickerId, WS_VISIBLE, {10, 10, 110, 24}}}};
    RegisterDialogTemplate(kDialogId, dialog);
    CDialog box(kDialogId);
    ASSERT_TRUE(box.Create(kDialogId));
    CDateTimeCtrl attached;
    ASSERT_TRUE(attached.SubclassDlgItem(kPickerId, &box));
    ASSERT_TRUE(attached.SetTime(&kLeapDayMorning));
    COleDateTime value;
    ASSERT_TRUE(attached.GetTime(value));
    EXPECT_EQ(value.GetDay(), 29);
    attached.UnsubclassWindow();
    box.DestroyWindow();
    PumpMessages();
}

} // namespace
