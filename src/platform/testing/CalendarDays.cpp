// Finding a day in a month calendar by its own hit test, as the user's eye would.

#include "platform/testing/CalendarDays.h"

#include "platform/widgets/MonthCalCtrl.h"

CPoint CalendarDayPoint(CMonthCalCtrl& calendar, int day) {
    // The calendar's layout is its own business: ask it, on a grid finer than any day cell.
    constexpr int kStep = 2;
    CRect client;
    calendar.GetClientRect(&client);
    for (int y = client.top; y < client.bottom; y += kStep) {
        for (int x = client.left; x < client.right; x += kStep) {
            MCHITTESTINFO hit{sizeof(MCHITTESTINFO), {x, y}, 0, {}};
            if (calendar.HitTest(&hit) == MCHT_CALENDARDATE && hit.st.wDay == day) {
                return CPoint(x, y);
            }
        }
    }
    return CPoint(-1, -1);
}
