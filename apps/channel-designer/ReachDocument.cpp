// What follows a change of a reach.

#include "ReachDocument.h"

#include "ReachFile.h"
#include "SectionSheet.h"

#include "plot/PlotApi.h"
#include "plot/PlotList.h"
#include "plot/PlotWindows.h"
#include "support/TempFiles.h"

#include <cstdio>

ReachDocument::~ReachDocument() {
    if (!recoveryPath.empty())
        std::remove(recoveryPath.c_str());
}

void ReachDocument::Changed() {
    if (sheet)
        sheet->ShowProfile(reach);
    if (recoveryPath.empty()) {
        zvk::CStdStr<char> name;
        if (ouGetTempFilename("reach", name, nullptr))
            recoveryPath = name.c_str();
    }
    if (!recoveryPath.empty())
        WriteReachFile(recoveryPath, reach);
    pmUpdatePlots(kReachChangedBit, this);
}

void ReachDocument::SetInvert(size_t section, double invert) {
    if (section >= reach.sections.size())
        return;
    reach.sections[section].invert = invert;
    if (sheet)
        sheet->Show(reach);
    Changed();
}

EPlot* ReachDocument::ProfilePlot() const {
    return profilePlotId ? g_plotList.PlotFromId(profilePlotId) : nullptr;
}

EPlot* ReachDocument::RatingPlot() const {
    return ratingPlotId ? g_plotList.PlotFromId(ratingPlotId) : nullptr;
}

void ReachDocument::ClosePlots() {
    for (EPlot* plot : {ProfilePlot(), RatingPlot()})
        if (plot)
            ClosePlotWindow(plot->GetId(), plot->GetHwnd());
    profilePlotId = ratingPlotId = 0;
}
