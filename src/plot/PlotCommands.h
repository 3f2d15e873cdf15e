#pragma once

// What the menu items and the plot's menu commands share: the chart's frame command and the
// values dialog.

#include "platform/base/WinTypes.h"

class EPlot;

// Shows all the chart's data again after a zoom. The chart answers its frame command only with
// the frame setting at 3, so that setting is forced for the command and then put back.
void RunFrameCommand(HWND chart);
// Lists the plot's values in the modal values dialog, with its curve names and axis titles.
void ShowPlotValues(EPlot& plot);
