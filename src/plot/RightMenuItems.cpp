// What each item of a plot's context menu shows and does.

#include "plot/RightMenuItems.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "platform/window/Menu.h"
#include "plot/Plot.h"
#include "plot/PlotCommands.h"

void EMenuPlotData::PerformAction(EPlot* plot) {
    plot->RunDataOptionsDialog();
}

void EMenuDisplayOptions::PerformAction(EPlot* plot) {
    ChartCustomizeDialog(plot->GetHwnd());
}

void EMenuAxisTitles::PerformAction(EPlot* plot) {
    plot->EditAxisTitles();
}

void EMenuSaveDefaults::PerformAction(EPlot* plot) {
    plot->SaveDisplayDefaults();
}

EMenuLegendLocSubMenu::EMenuLegendLocSubMenu() {
    auto* separator = new ERightMenuItem;
    separator->IamSeparator();
    std::vector<ERightMenuItem*> items{new EMenuLegendLocNone, separator,
                                       new EMenuLegendLocTop,  new EMenuLegendLocBtm,
                                       new EMenuLegendLocLeft, new EMenuLegendLocRight};
    IamSubMenu(items);
}

unsigned EMenuLegendLocNone::GetState(EPlot* plot) {
    return plot->Legend().IsShown() ? 0 : MF_CHECKED;
}

void EMenuLegendLocNone::PerformAction(EPlot* plot) {
    plot->Legend().ShowLegend(0, -1);
}

unsigned EMenuLegendLoc::GetState(EPlot* plot) {
    return plot->Legend().IsShown() &&
                   ChartGetInt(plot->GetHwnd(), chartprop::LegendLocation) == m_location
               ? MF_CHECKED
               : 0;
}

void EMenuLegendLoc::PerformAction(EPlot* plot) {
    plot->Legend().ShowLegend(1, m_location);
}

unsigned EMenuFrame::GetState(EPlot* plot) {
    return ChartGetInt(plot->GetHwnd(), chartprop::Zoomed) == 0 ? MF_GRAYED : 0;
}

void EMenuFrame::PerformAction(EPlot* plot) {
    RunFrameCommand(plot->GetHwnd());
    plot->UpdateAnnotations();
    ChartRedraw(plot->GetHwnd());
}

void EMenuMax::PerformAction(EPlot* plot) {
    ChartMaximize(plot->GetHwnd());
}

void EMenuShowValues::PerformAction(EPlot* plot) {
    ShowPlotValues(*plot);
}

void EMenuExport::PerformAction(EPlot* plot) {
    ChartExportDialog(plot->GetHwnd());
}
