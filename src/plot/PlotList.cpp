// The registry of living plots.

#include "plot/PlotList.h"

#include "plot/Plot.h"
#include "plot/PlotWindows.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

const char g_plotsAll[] = "Plots All";

// Built at library start; touched from the user-interface thread only.
EPlotList g_plotList;

HWND ActivePlotHandle(int*) {
    return nullptr;
}

bool EPlotList::Contains(const EPlot* plot) const {
    return std::find(m_plots.begin(), m_plots.end(), plot) != m_plots.end();
}

template <class Call> void EPlotList::ForEachPlot(Call call) {
    const std::vector<EPlot*> plots(m_plots.begin(), m_plots.end());
    const unsigned long long removals = m_removals;
    for (EPlot* plot : plots)
        if (m_removals == removals || Contains(plot))
            call(plot);
}

bool EPlotList::Leaving(const EPlot* plot) const {
    return std::find(m_leaving.begin(), m_leaving.end(), plot) != m_leaving.end();
}

EPlot* EPlotList::PlotFromHwnd(HWND chart) {
    if (!chart)
        chart = ActivePlotHandle(nullptr);
    if (!chart)
        return nullptr;
    for (EPlot* plot : m_plots)
        if (plot->GetHwnd() == chart)
            return plot;
    return nullptr;
}

EPlot* EPlotList::RegisteredPlotFromHwnd(HWND chart) {
    for (EPlot* plot : m_plots)
        if (plot->GetHwnd() == chart && !Leaving(plot))
            return plot;
    return nullptr;
}

EPlot* EPlotList::PlotFromId(int id) {
    if (id == -1 && !ActivePlotHandle(&id))
        return nullptr;
    for (EPlot* plot : m_plots)
        if (plot->GetId() == id)
            return plot;
    return nullptr;
}

EPlot* EPlotList::GetActivePlot() {
    HWND chart = ActivePlotHandle(nullptr);
    return chart ? PlotFromHwnd(chart) : nullptr;
}

void EPlotList::DeletePlot(HWND chart) {
    if (EPlot* plot = PlotFromHwnd(chart))
        ClosePlotWindow(plot->GetId(), plot->GetHwnd());
}

void EPlotList::DeletePlots(zvk::CStdStr<char> type) {
    ForEachPlot([&](EPlot* plot) {
        if (type == g_plotsAll || plot->GetType() == type)
            ClosePlotWindow(plot->GetId(), plot->GetHwnd());
    });
}

void EPlotList::RemovePlotFromList(HWND chart) {
    std::vector<EPlot*> going;
    for (EPlot* plot : m_plots)
        if (plot->GetHwnd() == chart)
            going.push_back(plot);
    m_leaving.insert(m_leaving.end(), going.begin(), going.end());
    for (EPlot* plot : going) {
        // Closing runs the closed callback, which must not delete these plots again.
        if (Contains(plot))
            ClosePlotWindow(plot->GetId(), chart);
        m_plots.remove(plot);
        ++m_removals;
    }
    for (EPlot* plot : going)
        m_leaving.erase(std::find(m_leaving.begin(), m_leaving.end(), plot));
}

void EPlotList::UpdatePlots(const std::bitset<36>& which, void* data) {
    ForEachPlot([&](EPlot* plot) { plot->UpdatePlot(which, data); });
}

void EPlotList::ChangeSelectedPoint(int point) {
    ForEachPlot([&](EPlot* plot) { plot->ChangeSelectedPoint(point); });
}

void EPlotList::GetPlotIds(int* count, int** ids, const char* type) {
    if (!count || !ids)
        return;
    *count = 0;
    *ids = nullptr;
    for (EPlot* plot : m_plots) {
        if (type != g_plotsAll && (!type || plot->GetType() != type))
            continue;
        int* grown = static_cast<int*>(std::realloc(*ids, sizeof(int) * size_t(*count + 1)));
        if (!grown)
            return;
        *ids = grown;
        (*ids)[(*count)++] = plot->GetId();
    }
}

bool EPlotList::ExportFile(const char*) {
    return false;
}

bool EPlotList::ImportFile(const char*) {
    return false;
}
