// The plot menu's description and the routing of its commands to the plot's operations.

#include "plot/PlotMenuResource.h"

#include "plot/Plot.h"

std::vector<MenuTemplateItem> pmPlotMenuTemplate() {
    const MenuTemplateItem separator;
    return {{"Plot",
             {
                 {"&Refresh", ID_PLOT_REFRESH},
                 {"&Display Options...", ID_PLOT_DISPLAY_OPTIONS},
                 {"&Axis Titles...", ID_PLOT_AXIS_TITLES},
                 {"&Set As Display Defaults", ID_PLOT_SET_DEFAULTS},
                 separator,
                 {"&Legend",
                  {
                      {"NONE", ID_PLOT_LEGEND_NONE},
                      separator,
                      {"Top", ID_PLOT_LEGEND_TOP},
                      {"Bottom", ID_PLOT_LEGEND_BOTTOM},
                      {"Left", ID_PLOT_LEGEND_LEFT},
                      {"Right", ID_PLOT_LEGEND_RIGHT},
                  }},
                 separator,
                 {"&Frame Plot", ID_PLOT_FRAME},
                 {"&Maximize Plot", ID_PLOT_MAXIMIZE},
                 separator,
                 {"&View Values...", ID_PLOT_VIEW_VALUES},
                 {"&Export/Print...", ID_PLOT_EXPORT_PRINT},
             }}};
}

bool pmRunPlotMenuCommand(EPlot* plot, UINT command) {
    if (!plot)
        return false;
    switch (command) {
    case ID_PLOT_REFRESH:
        plot->HandlePlotRefresh();
        return true;
    case ID_PLOT_DISPLAY_OPTIONS:
        plot->HandlePlotDisplayOpts();
        return true;
    case ID_PLOT_SET_DEFAULTS:
        plot->HandlePlotSetAsDisplayDefault();
        return true;
    case ID_PLOT_MAXIMIZE:
        plot->HandlePlotMaximize();
        return true;
    case ID_PLOT_EXPORT_PRINT:
        plot->HandlePlotExportPrint();
        return true;
    case ID_PLOT_FRAME:
        plot->HandlePlotFrame();
        return true;
    case ID_PLOT_AXIS_TITLES:
        plot->HandlePlotAxisTitles();
        return true;
    case ID_PLOT_LEGEND_NONE:
        plot->HandlePlotLegendNone();
        return true;
    case ID_PLOT_LEGEND_TOP:
        plot->HandlePlotLegendTop();
        return true;
    case ID_PLOT_LEGEND_BOTTOM:
        plot->HandlePlotLegendBottom();
        return true;
    case ID_PLOT_LEGEND_LEFT:
        plot->HandlePlotLegendLeft();
        return true;
    case ID_PLOT_LEGEND_RIGHT:
        plot->HandlePlotLegendRight();
        return true;
    case ID_PLOT_VIEW_VALUES:
        plot->HandlePlotViewValues();
        return true;
    default:
        return false;
    }
}
