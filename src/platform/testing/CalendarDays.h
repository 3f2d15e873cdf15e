#pragma once

// Where a user finds a day in an open month calendar, for tests and scripted runs that click it.

#include "platform/base/Export.h"
#include "platform/base/Rect.h"

class CMonthCalCtrl;

// The client point of `day` of the month the calendar shows; (-1, -1) when the day is not shown.
ORVA_API CPoint CalendarDayPoint(CMonthCalCtrl& calendar, int day);
