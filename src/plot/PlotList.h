#pragma once

// EPlotList: every living plot, in order of registration, and the identifiers they are given.
// The list refers to plots without owning them: a plot's destructor takes it out. There is one
// list, g_plotList, shared by the process's user-interface thread without locks.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"
#include "support/StdStr.h"

#include <bitset>
#include <list>
#include <vector>

class EPlot;

// The type that selects every plot: by text in DeletePlots and pmDeletePlots, by this very
// pointer in GetPlotIds and pmGetPlotIds.
ORVA_API extern const char g_plotsAll[];

class ORVA_API EPlotList {
public:
    int NewId() { return ++m_nextId; }
    void ResetIds() { m_nextId = 0; }
    int NumPlots() const { return int(m_plots.size()); }
    void AddToList(EPlot* plot) { m_plots.push_back(plot); }

    // Null asks for the active plot; null if there is none with that handle or identifier.
    EPlot* PlotFromHwnd(HWND chart);
    EPlot* PlotFromId(int id); // -1 asks for the active plot
    EPlot* GetActivePlot();
    // The first plot on this chart that is not already being taken out.
    EPlot* RegisteredPlotFromHwnd(HWND chart);

    void DeletePlot(HWND chart);
    void DeletePlots(zvk::CStdStr<char> type);
    // Closes the window of every plot on this chart, then forgets those plots.
    void RemovePlotFromList(HWND chart);

    void UpdatePlots(const std::bitset<36>& which, void* data);
    void ChangeSelectedPoint(int point);
    // Identifiers of the plots of `type` (or all, for g_plotsAll itself), in a block the
    // caller frees with free().
    void GetPlotIds(int* count, int** ids, const char* type);
    bool ExportFile(const char* path);
    bool ImportFile(const char* path);

private:
    // Calls `call` on each plot in list order. A hook may end other plots: the walk goes over a
    // copy and, once anything has left the list, skips the plots no longer in it.
    template <class Call> void ForEachPlot(Call call);
    bool Contains(const EPlot* plot) const;
    bool Leaving(const EPlot* plot) const;

    int m_nextId = 0;
    std::list<EPlot*> m_plots;
    unsigned long long m_removals = 0; // plots taken out so far
    // Plots whose windows are being closed on their way out: the closed callback must not
    // delete them a second time.
    std::vector<const EPlot*> m_leaving;
};

ORVA_API extern EPlotList g_plotList;

// The chart of the plot the user is in. The library has no such notion: it names none and
// leaves `id` alone, so everything reached through it does nothing.
ORVA_API HWND ActivePlotHandle(int* id);
