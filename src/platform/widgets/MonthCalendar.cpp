// The month calendar's behaviour behind its window class: the layout of one month, painting in
// the classic look, and the mouse and keys.
//
// Sections: layout; the calendar's state and behaviour; painting; the messages and the window
// class.

#include "platform/widgets/MonthCalCtrl.h"

#include "platform/gdi/Brush.h"
#include "platform/gdi/DC.h"
#include "platform/gdi/Font.h"
#include "platform/gdi/Pen.h"
#include "platform/system/DateTimePicture.h"
#include "platform/system/SysColors.h"
#include "platform/widgets/ControlWindow.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int kMargin = 4;
constexpr int kRows = 6;
constexpr int kColumns = 7;
constexpr COLORREF kTodayColour = RGB(255, 0, 0);

// Layout.

// Where each part of the calendar lies, from the font's metrics.
struct CalendarLayout {
    int cellWidth = 0;
    int cellHeight = 0;
    CRect title, previous, next, dayNames, days, today;

    CRect DayCell(int index) const {
        const int x = days.left + index % kColumns * cellWidth;
        const int y = days.top + index / kColumns * cellHeight;
        return CRect(x, y, x + cellWidth, y + cellHeight);
    }
    CSize Size() const { return CSize(today.right + kMargin, today.bottom + kMargin); }
};

CalendarLayout LayoutFor(HFONT font) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CFont* old = dc.SelectObject(CFont::FromHandle(font));
    TEXTMETRIC tm{};
    dc.GetTextMetrics(&tm);
    const int widest = std::max(dc.GetTextExtent("Wed", 3).cx, dc.GetTextExtent("00", 2).cx);
    dc.SelectObject(old);

    CalendarLayout l;
    l.cellWidth = widest + 10;
    l.cellHeight = tm.tmHeight + 3;
    const int width = kColumns * l.cellWidth;
    l.title = CRect(kMargin, kMargin, kMargin + width, kMargin + l.cellHeight + 10);
    const int button = l.title.Height() - 6;
    l.previous =
        CRect(l.title.left + 3, l.title.top + 3, l.title.left + 3 + button + 4, l.title.bottom - 3);
    l.next = CRect(l.title.right - 3 - button - 4, l.title.top + 3, l.title.right - 3,
                   l.title.bottom - 3);
    l.dayNames =
        CRect(kMargin, l.title.bottom + 2, kMargin + width, l.title.bottom + 2 + l.cellHeight);
    l.days = CRect(kMargin, l.dayNames.bottom + 3, kMargin + width,
                   l.dayNames.bottom + 3 + kRows * l.cellHeight);
    l.today = CRect(kMargin, l.days.bottom + 2, kMargin + width, l.days.bottom + 4 + l.cellHeight);
    return l;
}

// The calendar's state and behaviour.

SYSTEMTIME DayOf(int year, int month, int day) {
    SYSTEMTIME st{WORD(year), WORD(month), 0, WORD(day), 0, 0, 0, 0};
    DATE date = 0;
    SystemTimeToVariantTime(&st, &date);
    VariantTimeToSystemTime(date, &st);
    return st;
}

bool SameDay(const SYSTEMTIME& a, const SYSTEMTIME& b) {
    return a.wYear == b.wYear && a.wMonth == b.wMonth && a.wDay == b.wDay;
}

class MonthCalendar : public widgets::ControlBehaviour {
public:
    explicit MonthCalendar(HWND hwnd) : ControlBehaviour(hwnd) {
        SYSTEMTIME now{};
        GetLocalTime(&now);
        m_selection = DayOf(now.wYear, now.wMonth, now.wDay);
    }

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    CalendarLayout Layout() const { return LayoutFor(*widgets::ControlFont(Window())); }
    SYSTEMTIME Today() const {
        if (m_today)
            return *m_today;
        SYSTEMTIME now{};
        GetLocalTime(&now);
        return DayOf(now.wYear, now.wMonth, now.wDay);
    }
    // The day shown in the first cell: the Sunday on or before the first of the month.
    long long FirstShownDay() const {
        const long long first = DayNumberFromDate(m_selection.wYear, m_selection.wMonth, 1);
        const int weekday = int(((first + 6) % 7 + 7) % 7);
        return first - weekday;
    }
    SYSTEMTIME DayAtCell(int index) const {
        int year, month, day;
        DateFromDayNumber(FirstShownDay() + index, year, month, day);
        return DayOf(year, month, day);
    }

    void Paint(CDC& dc) override;
    UINT HitTest(CPoint point, SYSTEMTIME& day) const;
    void OnButtonDown(CPoint point);
    void OnKey(UINT key);
    // Moves the selection, keeping it within the years the dates allow; false at the edge.
    bool MoveSelection(long long days);
    bool MoveMonths(int months);
    void Select(const SYSTEMTIME& day);
    // Each of these may end in the calendar's destruction: callers return at once after them.
    void Notify(UINT code);
    void AskToClose();

    HWND m_notify = nullptr; // the window it was made for
    bool m_popup = false;
    SYSTEMTIME m_selection{};
    std::optional<SYSTEMTIME> m_today;
};

bool MonthCalendar::MoveSelection(long long days) {
    const long long target =
        DayNumberFromDate(m_selection.wYear, m_selection.wMonth, m_selection.wDay) + days;
    int year, month, day;
    DateFromDayNumber(target, year, month, day);
    if (year < 100 || year > 9999)
        return false;
    Select(DayOf(year, month, day));
    return true;
}

bool MonthCalendar::MoveMonths(int months) {
    const int index = m_selection.wYear * 12 + (m_selection.wMonth - 1) + months;
    const int year = index / 12, month = index % 12 + 1;
    if (year < 100 || year > 9999)
        return false;
    Select(DayOf(year, month, std::min<int>(m_selection.wDay, DaysInMonth(year, month))));
    return true;
}

void MonthCalendar::Select(const SYSTEMTIME& day) {
    m_selection = day;
    InvalidateRect(Window(), nullptr, TRUE);
}

void MonthCalendar::Notify(UINT code) {
    NMSELCHANGE change{
        {Window(), UINT_PTR(GetDlgCtrlID(Window())), code}, m_selection, m_selection};
    SendMessage(m_notify, WM_NOTIFY, change.nmhdr.idFrom, LPARAM(&change));
}

void MonthCalendar::AskToClose() {
    if (m_popup)
        SendMessage(m_notify, DTM_CLOSEMONTHCAL, 0, 0);
}

UINT MonthCalendar::HitTest(CPoint point, SYSTEMTIME& day) const {
    CRect client;
    GetClientRect(Window(), &client);
    if (!client.PtInRect(point))
        return MCHT_NOWHERE;
    const CalendarLayout layout = Layout();
    if (layout.previous.PtInRect(point))
        return MCHT_TITLEBTNPREV;
    if (layout.next.PtInRect(point))
        return MCHT_TITLEBTNNEXT;
    if (layout.title.PtInRect(point))
        return MCHT_TITLEBK;
    if (layout.dayNames.PtInRect(point))
        return MCHT_CALENDARDAY;
    if (layout.today.PtInRect(point)) {
        day = Today();
        return MCHT_TODAYLINK;
    }
    if (!layout.days.PtInRect(point))
        return MCHT_CALENDARBK;
    const int column = (point.x - layout.days.left) / layout.cellWidth;
    const int row = (point.y - layout.days.top) / layout.cellHeight;
    day = DayAtCell(row * kColumns + column);
    if (day.wYear < 100)
        return MCHT_CALENDARBK;
    const int shown = m_selection.wYear * 12 + m_selection.wMonth;
    const int month = day.wYear * 12 + day.wMonth;
    return MCHT_CALENDARDATE | (month < shown ? MCHT_PREV : month > shown ? MCHT_NEXT : 0);
}

void MonthCalendar::OnButtonDown(CPoint point) {
    SYSTEMTIME chosen{};
    const UINT hit = HitTest(point, chosen);
    if (hit == MCHT_NOWHERE) {
        CRect client;
        GetClientRect(Window(), &client);
        if (!client.PtInRect(point))
            AskToClose();
        return;
    }
    if (hit == MCHT_TITLEBTNPREV || hit == MCHT_TITLEBTNNEXT) {
        if (MoveMonths(hit == MCHT_TITLEBTNPREV ? -1 : 1))
            Notify(MCN_SELCHANGE);
        return;
    }
    if ((hit & MCHT_CALENDARDATE) != MCHT_CALENDARDATE && hit != MCHT_TODAYLINK)
        return;
    Select(chosen);
    Notify(MCN_SELCHANGE);
    if (Alive()) // the owner may have closed the calendar
        Notify(MCN_SELECT);
}

void MonthCalendar::OnKey(UINT key) {
    bool moved = false;
    switch (key) {
    case VK_LEFT:
        moved = MoveSelection(-1);
        break;
    case VK_RIGHT:
        moved = MoveSelection(1);
        break;
    case VK_UP:
        moved = MoveSelection(-kColumns);
        break;
    case VK_DOWN:
        moved = MoveSelection(kColumns);
        break;
    case VK_PRIOR:
        moved = MoveMonths(-1);
        break;
    case VK_NEXT:
        moved = MoveMonths(1);
        break;
    case VK_RETURN:
        Notify(MCN_SELECT);
        return;
    case VK_ESCAPE:
        AskToClose();
        return;
    default:
        return;
    }
    if (moved)
        Notify(MCN_SELCHANGE);
}

// Painting.

void MonthCalendar::Paint(CDC& dc) {
    const CalendarLayout layout = Layout();
    const CalendarNames names = CurrentCalendarNames();
    CRect client;
    GetClientRect(Window(), &client);
    dc.FillSolidRect(client, GetSysColor(COLOR_WINDOW));
    CFont* oldFont = dc.SelectObject(widgets::ControlFont(Window()));
    dc.SetBkMode(TRANSPARENT);

    // The title: month and year between the arrows.
    dc.FillSolidRect(layout.title, GetSysColor(COLOR_ACTIVECAPTION));
    CRect previous = layout.previous, next = layout.next;
    dc.DrawFrameControl(&previous, DFC_SCROLL, DFCS_SCROLLLEFT);
    dc.DrawFrameControl(&next, DFC_SCROLL, DFCS_SCROLLRIGHT);
    const std::string heading =
        names.months[m_selection.wMonth - 1] + " " + std::to_string(m_selection.wYear);
    CRect titleText = layout.title;
    dc.SetTextColor(GetSysColor(COLOR_CAPTIONTEXT));
    dc.DrawText(heading.c_str(), -1, &titleText, DT_CENTER | DT_VCENTER | DT_SINGLELINE);

    // Day names over a line.
    dc.SetTextColor(GetSysColor(COLOR_ACTIVECAPTION));
    for (int column = 0; column < kColumns; ++column) {
        CRect cell(layout.dayNames.left + column * layout.cellWidth, layout.dayNames.top,
                   layout.dayNames.left + (column + 1) * layout.cellWidth, layout.dayNames.bottom);
        const std::string name = names.shortDays[column].substr(0, 3);
        dc.DrawText(name.c_str(), -1, &cell, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    }
    dc.FillSolidRect(layout.dayNames.left + 2, layout.dayNames.bottom + 1,
                     layout.dayNames.Width() - 4, 1, GetSysColor(COLOR_3DSHADOW));

    // The days, those of the neighbouring months in grey.
    const SYSTEMTIME today = Today();
    CPen todayPen(PS_SOLID, 1, kTodayColour);
    for (int index = 0; index < kRows * kColumns; ++index) {
        const SYSTEMTIME day = DayAtCell(index);
        if (day.wYear < 100)
            continue;
        CRect cell = layout.DayCell(index);
        COLORREF text = day.wMonth == m_selection.wMonth ? GetSysColor(COLOR_WINDOWTEXT)
                                                         : GetSysColor(COLOR_GRAYTEXT);
        if (SameDay(day, m_selection)) {
            CRect mark = cell;
            mark.DeflateRect(2, 0);
            dc.FillSolidRect(mark, GetSysColor(COLOR_HIGHLIGHT));
            text = GetSysColor(COLOR_HIGHLIGHTTEXT);
        }
        if (SameDay(day, today)) {
            CPen* oldPen = dc.SelectObject(&todayPen);
            dc.SelectStockObject(NULL_BRUSH);
            const int half = std::min(cell.Width() - 2, cell.Height() + 8) / 2;
            const int middle = cell.CenterPoint().x;
            dc.Ellipse(middle - half, cell.top, middle + half, cell.bottom);
            dc.SelectObject(oldPen);
        }
        dc.SetTextColor(text);
        const std::string number = std::to_string(day.wDay);
        dc.DrawText(number.c_str(), -1, &cell, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    }

    // Today, below the month.
    CRect mark(layout.today.left + 6, layout.today.top + 3, layout.today.left + 20,
               layout.today.bottom - 3);
    CPen* oldPen = dc.SelectObject(&todayPen);
    dc.SelectStockObject(NULL_BRUSH);
    dc.Rectangle(mark);
    dc.SelectObject(oldPen);
    char date[64] = "";
    GetDateFormat(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &today, nullptr, date, sizeof date);
    CRect todayText = layout.today;
    todayText.left = mark.right + 6;
    dc.SetTextColor(GetSysColor(COLOR_WINDOWTEXT));
    dc.DrawText((std::string("Today: ") + date).c_str(), -1, &todayText,
                DT_LEFT | DT_VCENTER | DT_SINGLELINE);

    dc.SelectObject(oldFont);
}

// The messages and the window class.

LRESULT MonthCalendar::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE: {
        const auto* cs = reinterpret_cast<const CREATESTRUCT*>(lParam);
        m_notify = cs->hwndParent;
        m_popup = cs->style & WS_POPUP;
        return Default(message, wParam, lParam);
    }
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (!m_popup)
            SetFocus(Window());
        OnButtonDown(CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        return 0;
    case WM_KEYDOWN:
        OnKey(UINT(wParam));
        return 0;
    case WM_KILLFOCUS:
        if (HWND(wParam) != m_notify)
            AskToClose();
        return 0;
    case MCM_GETCURSEL:
        if (lParam == 0)
            return FALSE;
        *reinterpret_cast<SYSTEMTIME*>(lParam) = m_selection;
        return TRUE;
    case MCM_SETCURSEL: {
        const auto* day = reinterpret_cast<const SYSTEMTIME*>(lParam);
        DATE date = 0;
        if (day == nullptr || !SystemTimeToVariantTime(day, &date))
            return FALSE;
        Select(DayOf(day->wYear, day->wMonth, day->wDay));
        return TRUE;
    }
    case MCM_GETTODAY:
        if (lParam == 0)
            return FALSE;
        *reinterpret_cast<SYSTEMTIME*>(lParam) = Today();
        return TRUE;
    case MCM_SETTODAY: {
        const auto* day = reinterpret_cast<const SYSTEMTIME*>(lParam);
        DATE date = 0;
        if (day == nullptr)
            m_today.reset();
        else if (SystemTimeToVariantTime(day, &date))
            m_today = DayOf(day->wYear, day->wMonth, day->wDay);
        InvalidateRect(Window(), nullptr, TRUE);
        return 0;
    }
    case MCM_HITTEST: {
        auto* info = reinterpret_cast<MCHITTESTINFO*>(lParam);
        if (info == nullptr)
            return MCHT_NOWHERE;
        info->uHit = HitTest(info->pt, info->st);
        return info->uHit;
    }
    case MCM_GETMINREQRECT: {
        if (lParam == 0)
            return FALSE;
        const CSize size = Layout().Size();
        *reinterpret_cast<RECT*>(lParam) = CRect(0, 0, size.cx, size.cy);
        return TRUE;
    }
    default:
        return Default(message, wParam, lParam);
    }
}

const bool registered =
    widgets::RegisterControlClass<MonthCalendar>(MONTHCAL_CLASS, CS_DBLCLKS, IDC_ARROW);

} // namespace
