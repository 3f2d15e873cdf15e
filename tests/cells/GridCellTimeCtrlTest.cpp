// The date cell: its text in the user's regional formats, and the picker laid over it by the
// drop arrow or a double click, edited with digits, arrows and the drop-down calendar.

#include "CellGrid.h"

#include "cells/GridCellTimeCtrl.h"
#include "grid/GridNotify.h"
#include "platform/system/SysColors.h"
#include "platform/system/UserSettings.h"
#include "platform/testing/CalendarDays.h"
#include "platform/widgets/DateTimeCtrl.h"
#include "platform/widgets/MonthCalCtrl.h"
#include "platform/window/WindowApi.h"

#include <vector>

namespace {

constexpr int kTimeColumn = 2;
constexpr int kRow = 2;
constexpr int kOtherRow = 4;
// 7 March 2024, 14:05:09.
constexpr int kYear = 2024, kMonth = 3, kDay = 7, kHour = 14, kMinute = 5, kSecond = 9;
constexpr int kPickedDay = 20;
constexpr int kArrowInset = 3; // a point this far inside the cell's top right corner

class TimeCellTest : public CellGrid {
protected:
    void SetUp() override {
        UseUsSettings();
        UseColumnType(kTimeColumn, RUNTIME_CLASS(CGridCellTimeCtrl));
        const COleDateTime start(kYear, kMonth, kDay, kHour, kMinute, kSecond);
        Cell().SetData(reinterpret_cast<LPARAM>(&start));
        grid.SetModified(FALSE);
        recorder->Clear();
    }
    void TearDown() override { ResetUserSettings(); }

    static void UseUsSettings() {
        WriteUserSetting(kInternationalKey, "sShortDate", "M/d/yyyy");
        WriteUserSetting(kInternationalKey, "sTimeFormat", "h:mm:ss tt");
        WriteUserSetting(kInternationalKey, "sShortTime", "h:mm tt");
    }
    static void UseGermanSettings() {
        WriteUserSetting(kInternationalKey, "sShortDate", "d.M.yy");
        WriteUserSetting(kInternationalKey, "sTimeFormat", "HH:mm:ss");
        WriteUserSetting(kInternationalKey, "sShortTime", "HH:mm");
    }

    CGridCellTimeCtrl& Cell(int row = kRow) {
        return *static_cast<CGridCellTimeCtrl*>(grid.GetCell(row, kTimeColumn));
    }
    const COleDateTime* Value(int row = kRow) {
        return reinterpret_cast<const COleDateTime*>(Cell(row).GetData());
    }
    CString Text(int row = kRow) { return grid.GetItemText(row, kTimeColumn); }
    CDateTimeCtrl* Editor(int row = kRow) {
        return static_cast<CDateTimeCtrl*>(Cell(row).GetEditWnd());
    }
    CPoint ArrowPoint(int row = kRow) {
        const CRect cell = CellRect(row, kTimeColumn);
        return CPoint(cell.right - kArrowInset, cell.top + kArrowInset);
    }
    // Opens the picker with the caret on its first field.
    void DoubleClickLeftEdge(int row = kRow) {
        const CRect cell = CellRect(row, kTimeColumn);
        ui.DoubleClick(Grid(), CPoint(cell.left + kArrowInset, cell.CenterPoint().y));
    }
    // The grid's edit notifications, in the order the application heard them.
    std::vector<UINT> EditCodes() const {
        std::vector<UINT> codes;
        for (const RecordedMessage& record : recorder->Records()) {
            if (record.code == UINT(GV_NOTIFY_BEGINLABELEDIT) ||
                record.code == UINT(GV_NOTIFY_ENDLABELEDIT)) {
                codes.push_back(record.code);
            }
        }
        return codes;
    }
};

TEST_F(TimeCellTest, TheTextFollowsTheRegionalSettingsOfTheMomentWithFourDigitYears) {
    EXPECT_EQ(Text(), "3/7/2024 2:05:09 PM");

    UseGermanSettings();
    const COleDateTime value = *Value();
    Cell().SetData(reinterpret_cast<LPARAM>(&value));
    EXPECT_EQ(Text(), "7.3.2024 14:05:09");
    // Read day first now: the 13th of March.
    grid.SetItemText(kRow, kTimeColumn, "13.3.2024");
    EXPECT_EQ(Value()->GetDay(), 13);
    EXPECT_EQ(Value()->GetMonth(), 3);

    Cell().SetNoSeconds(true);
    Cell().SetData(reinterpret_cast<LPARAM>(Value()));
    EXPECT_EQ(Text(), "13.3.2024 00:00");

    // Under the first settings the same text names no month: it stands, the value stays.
    UseUsSettings();
    grid.SetItemText(kRow, kTimeColumn, "13.4.2024");
    EXPECT_EQ(Text(), "13.4.2024");
    EXPECT_EQ(Value()->GetMonth(), 3);
    EXPECT_EQ(Value()->GetDay(), 13);
}

TEST_F(TimeCellTest, EmptyTextDropsTheValueButNotTheTextAndACaretTakesThePresent) {
    grid.SetItemText(kRow, kTimeColumn, "");
    EXPECT_EQ(Value(), nullptr);
    EXPECT_EQ(Text(), "3/7/2024 2:05:09 PM");

    const COleDateTime before = COleDateTime::GetCurrentTime() - COleDateTimeSpan(0, 0, 0, 1);
    grid.SetItemText(kRow, kTimeColumn, "^ and the rest is ignored");
    const COleDateTime after = COleDateTime::GetCurrentTime() + COleDateTimeSpan(0, 0, 0, 1);
    ASSERT_NE(Value(), nullptr);
    EXPECT_GE(*Value(), before);
    EXPECT_LE(*Value(), after);
    EXPECT_EQ(Text(), FormatDateTime(Value(), kFormatDate | kFormatTime));

    const COleDateTime now = *Value();
    grid.SetItemText(kRow, kTimeColumn, "not a date");
    EXPECT_EQ(Text(), "not a date");
    EXPECT_EQ(*Value(), now);
}

TEST_F(TimeCellTest, ADayPickedInTheDroppedCalendarIsStoredWhenTheEditEnds) {
    ui.Click(Grid(), ArrowPoint());
    CDateTimeCtrl* editor = Editor();
    ASSERT_NE(editor, nullptr);
    const HWND editorWindow = editor->GetSafeHwnd();
    // The same click dropped the calendar, which took the focus without ending the edit.
    CMonthCalCtrl* calendar = editor->GetMonthCalCtrl();
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(::GetFocus(), calendar->GetSafeHwnd());
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 0);

    // Tab belongs to the open calendar; the edit goes on.
    ui.PressKey(VK_TAB);
    ASSERT_TRUE(::IsWindow(editorWindow));
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 0);

    ui.Click(calendar->GetSafeHwnd(), CalendarDayPoint(*calendar, kPickedDay));
    ASSERT_TRUE(::IsWindow(editorWindow));
    EXPECT_EQ(editor->GetMonthCalCtrl(), nullptr);
    EXPECT_EQ(::GetFocus(), editorWindow);
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 0);

    ui.PressKey(VK_RETURN);
    EXPECT_EQ(Text(), "3/20/2024 2:05:09 PM");
    EXPECT_EQ(Value()->GetDay(), kPickedDay);
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 1);
    EXPECT_TRUE(grid.GetModified(kRow, kTimeColumn));
    EXPECT_FALSE(::IsWindow(editorWindow));
    EXPECT_EQ(Cell().GetEditWnd(), nullptr);
    EXPECT_EQ(::GetFocus(), Grid());
}

TEST_F(TimeCellTest, AnApplicationClearingTheValueUnderAnOpenPickerGetsThePickersDateAtTheEnd) {
    ui.Click(Grid(), ArrowPoint());
    CDateTimeCtrl* editor = Editor();
    ASSERT_NE(editor, nullptr);
    CMonthCalCtrl* calendar = editor->GetMonthCalCtrl();
    ASSERT_NE(calendar, nullptr);
    ui.Click(calendar->GetSafeHwnd(), CalendarDayPoint(*calendar, kPickedDay));

    // The picker holds the cell's time until it ends; a clear from the application must not
    // pull it away under the picker.
    grid.SetItemText(kRow, kTimeColumn, "");
    ui.Click(Grid(), CellRect(kOtherRow, kTimeColumn).CenterPoint());

    EXPECT_EQ(Cell().GetEditWnd(), nullptr);
    ASSERT_NE(Value(), nullptr);
    EXPECT_EQ(Value()->GetDay(), kPickedDay);
    EXPECT_EQ(Text(), "3/20/2024 2:05:09 PM");
}

TEST_F(TimeCellTest, ADoubleClickOnTheArrowOrBesideItOpensOnePickerThatTheCellKnows) {
    // The arrow's right edge, and the cell's grid line beside it, which no picker covers.
    const CRect cell = CellRect(kRow, kTimeColumn);
    const CPoint arrowEdge(cell.right - 1, cell.top + kArrowInset);
    const CPoint gridLine(cell.right, cell.top + kArrowInset);
    for (const CPoint point : {ArrowPoint(), arrowEdge, gridLine}) {
        ui.Click(Grid(), CellCentre(kOtherRow, kTimeColumn));
        ui.DoubleClick(Grid(), point);
        std::vector<HWND> pickers;
        for (HWND child = ::GetWindow(Grid(), GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            if (::GetDlgCtrlID(child) == IDC_INPLACE_CONTROL) {
                pickers.push_back(child);
            }
        }
        ASSERT_EQ(pickers.size(), 1u) << point.x;
        EXPECT_TRUE(Cell().IsEditing()) << point.x;
        ASSERT_NE(Editor(), nullptr) << point.x;
        EXPECT_EQ(Editor()->GetSafeHwnd(), pickers.front()) << point.x;
        ui.PressKey(VK_ESCAPE); // closes a dropped calendar, if the first click dropped one
        ui.PressKey(VK_RETURN);
        EXPECT_FALSE(Cell().IsEditing()) << point.x;
        EXPECT_FALSE(::IsWindow(pickers.front())) << point.x;
    }
}

TEST_F(TimeCellTest, ADoubleClickBesideAnOpenPickerKeepsThatPickerAndTheCellEditing) {
    ui.Click(Grid(), ArrowPoint());
    CDateTimeCtrl* editor = Editor();
    ASSERT_NE(editor, nullptr);
    ASSERT_NE(editor->GetMonthCalCtrl(), nullptr);
    const HWND picker = editor->GetSafeHwnd();
    // The first click only closes the dropped calendar; the second reaches the grid on the
    // cell's grid line, beside the picker.
    const CRect cell = CellRect(kRow, kTimeColumn);
    ui.DoubleClick(Grid(), CPoint(cell.right, cell.CenterPoint().y));
    ASSERT_TRUE(::IsWindow(picker));
    EXPECT_EQ(::GetWindow(picker, GW_HWNDNEXT), nullptr); // no second picker beside it
    EXPECT_TRUE(Cell().IsEditing());
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(Editor()->GetSafeHwnd(), picker);

    // The picker still holds the cell's time, which a clear from the application leaves to it.
    grid.SetItemText(kRow, kTimeColumn, "");
    ui.PressKey(VK_RETURN);
    EXPECT_FALSE(::IsWindow(picker));
    EXPECT_FALSE(Cell().IsEditing());
    ASSERT_NE(Value(), nullptr);
    EXPECT_EQ(Value()->GetDay(), kDay);
}

TEST_F(TimeCellTest, DigitsAndArrowsEditTheFieldsInTheOrderOfTheRegionalDate) {
    DoubleClickLeftEdge();
    ASSERT_NE(Editor(), nullptr);
    ui.Type("11");         // month
    ui.PressKey(VK_UP);    // 12
    ui.PressKey(VK_RIGHT); // day
    ui.PressKey(VK_DOWN);  // 6
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(Text(), "12/6/2024 2:05:09 PM");

    UseGermanSettings();
    DoubleClickLeftEdge();
    const HWND editorWindow = Editor()->GetSafeHwnd();
    ui.Type("11");         // day
    ui.PressKey(VK_UP);    // 12
    ui.PressKey(VK_RIGHT); // month
    ui.PressKey(VK_DOWN);  // 11
    // A click on another cell ends the edit as well.
    ui.Click(Grid(), CellCentre(kOtherRow, kTimeColumn));
    EXPECT_EQ(Text(), "12.11.2024 14:05:09");
    EXPECT_EQ(Value()->GetMonth(), 11);
    EXPECT_FALSE(::IsWindow(editorWindow));
    EXPECT_EQ(Cell().GetEditWnd(), nullptr);
}

TEST_F(TimeCellTest, EscapeKeepsTheEditAndControlDownCarriesItToTheCellBelow) {
    DoubleClickLeftEdge();
    const HWND first = Editor()->GetSafeHwnd();
    ui.PressKey(VK_UP); // April
    ui.PressKey(VK_ESCAPE);
    ASSERT_TRUE(::IsWindow(first));
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 0);

    ui.PressKey(VK_DOWN, MK_CONTROL);
    EXPECT_FALSE(::IsWindow(first));
    EXPECT_EQ(Text(), "4/7/2024 2:05:09 PM");
    EXPECT_EQ(grid.GetFocusCell(), CCellID(kRow + 1, kTimeColumn));
    // The cell below had no date: its picker opened on the present.
    ASSERT_NE(Editor(kRow + 1), nullptr);
    EXPECT_EQ(::GetFocus(), Editor(kRow + 1)->GetSafeHwnd());
    EXPECT_NE(Value(kRow + 1), nullptr);
    ui.PressKey(VK_TAB);
    EXPECT_EQ(Editor(kRow + 1), nullptr);
    EXPECT_EQ(Text(kRow + 1), FormatDateTime(Value(kRow + 1), kFormatDate | kFormatTime));
}

TEST_F(TimeCellTest, TheValueChangesBeforeTheApplicationHearsAndARefusalRestoresBoth) {
    int dayWhileAsked = 0;
    CString textWhileAsked;
    parent.onNotify = [&](const NMHDR& header) {
        if (header.code == UINT(GV_NOTIFY_ENDLABELEDIT) && header.hwndFrom == Grid()) {
            dayWhileAsked = Value()->GetDay();
            textWhileAsked = Text();
        }
    };
    DoubleClickLeftEdge();
    ui.PressKey(VK_RIGHT);
    ui.PressKey(VK_UP); // the 8th
    ui.PressKey(VK_RETURN);

    const std::vector<UINT> codes = EditCodes();
    ASSERT_GE(codes.size(), 2u);
    EXPECT_EQ(codes.front(), UINT(GV_NOTIFY_BEGINLABELEDIT));
    EXPECT_EQ(codes.back(), UINT(GV_NOTIFY_ENDLABELEDIT));
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 1);
    EXPECT_EQ(dayWhileAsked, kDay + 1);
    EXPECT_EQ(textWhileAsked, "3/8/2024 2:05:09 PM");

    // A refused edit puts the old text back, and the value is read again from it.
    recorder->Answer(UINT(GV_NOTIFY_ENDLABELEDIT), -1);
    DoubleClickLeftEdge();
    ui.PressKey(VK_RIGHT);
    ui.PressKey(VK_UP); // the 9th
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(Count(GV_NOTIFY_ENDLABELEDIT), 2);
    EXPECT_EQ(Text(), "3/8/2024 2:05:09 PM");
    EXPECT_EQ(Value()->GetDay(), kDay + 1);
    EXPECT_EQ(Cell().GetEditWnd(), nullptr);
}

TEST_F(TimeCellTest, ADateOnlyPickerEndsWithTheDateAndAnEmptyCellOpensOnThePresent) {
    Cell().SetShowTime(false);
    const COleDateTime start = *Value();
    Cell().SetData(reinterpret_cast<LPARAM>(&start));
    EXPECT_EQ(Text(), "3/7/2024 2:05:09 PM");
    DoubleClickLeftEdge();
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(Text(), "3/7/2024");

    // A cell without a date shows no arrow, and its editor starts on the present.
    ui.Click(Grid(), CellCentre(kRow, kTimeColumn - 1)); // neither cell is the focus
    const CPoint arrowOfDated = ArrowPoint(kRow) - CPoint(1, 1);
    const CPoint arrowOfEmpty = ArrowPoint(kOtherRow) - CPoint(1, 1);
    EXPECT_EQ(ui.Pixel(Grid(), arrowOfDated), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(ui.Pixel(Grid(), arrowOfEmpty), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(Value(kOtherRow), nullptr);
    ui.Click(Grid(), ArrowPoint(kOtherRow)); // not an arrow: opens nothing
    EXPECT_EQ(Editor(kOtherRow), nullptr);

    const COleDateTime before = COleDateTime::GetCurrentTime() - COleDateTimeSpan(0, 0, 0, 1);
    DoubleClickLeftEdge(kOtherRow);
    ASSERT_NE(Value(kOtherRow), nullptr);
    EXPECT_GE(*Value(kOtherRow), before);
    ui.PressKey(VK_RETURN);
    EXPECT_EQ(Text(kOtherRow), FormatDateTime(Value(kOtherRow), kFormatDate | kFormatTime));
    EXPECT_EQ(Editor(kOtherRow), nullptr);
}

} // namespace
