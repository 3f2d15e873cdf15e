#pragma once

// The plot menu that an application may register as its fixed menu resource, and the routing
// of its commands to the plot whose menu is up. A plot shows the menu by DoMenu once its
// ERightMenu has the resource's id; the command chosen goes to the application's main window,
// which learnt the plot from WM_PLOT_SETMENUPLOT and hands the command on here.

#include "platform/base/Export.h"
#include "platform/window/MenuResources.h"

#include <vector>

class EPlot;

// The menu's commands.
constexpr UINT ID_PLOT_REFRESH = 33001;
constexpr UINT ID_PLOT_DISPLAY_OPTIONS = 33002;
constexpr UINT ID_PLOT_SET_DEFAULTS = 33003;
constexpr UINT ID_PLOT_MAXIMIZE = 33004;
constexpr UINT ID_PLOT_EXPORT_PRINT = 33005;
constexpr UINT ID_PLOT_FRAME = 33006;
constexpr UINT ID_PLOT_AXIS_TITLES = 33007;
constexpr UINT ID_PLOT_LEGEND_NONE = 33008;
constexpr UINT ID_PLOT_LEGEND_TOP = 33009;
constexpr UINT ID_PLOT_LEGEND_BOTTOM = 33010;
constexpr UINT ID_PLOT_LEGEND_LEFT = 33011;
constexpr UINT ID_PLOT_LEGEND_RIGHT = 33012;
constexpr UINT ID_PLOT_VIEW_VALUES = 33013;

// The menu as a resource description: one pop-up whose items are the commands above, titled as
// the context menu's items are.
ORVA_API std::vector<MenuTemplateItem> pmPlotMenuTemplate();
// Runs one of the commands above on `plot`: true if `command` is one of them.
ORVA_API bool pmRunPlotMenuCommand(EPlot* plot, UINT command);
