#pragma once

// Private to the plot windows: the two lists of host windows, newest first, and the path every
// host takes as it goes. The lists refer to windows that own themselves.

#include "platform/base/WinTypes.h"

class CPlotWindow;
class CPlotWindowTop;

namespace plot_hosts {

CPlotWindow*& DocumentHead();
CPlotWindowTop*& TopHead();

// The chart of a host filed under `id`, or null.
HWND ChartOfId(int id);
// Callback first, with the chart still alive, then the application's main window is told.
void TellClosed(int id, HWND chart);
void Unlink(CPlotWindow* window);
void Unlink(CPlotWindowTop* window);
// Creation happens on the thread that loaded the library only.
bool OnMainThread();

} // namespace plot_hosts
