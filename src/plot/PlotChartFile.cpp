// A plot's chart in the chart's own file.

#include "plot/Plot.h"

#include "chart/ChartApi.h"
#include "plot/PlotWindows.h"

unsigned char EPlot::WritePEPlot(const char* path) {
    return ChartStore(m_hwnd, path) != 0;
}

unsigned char EPlot::LoadPEPlot(const char* path) {
    return ChartLoad(m_hwnd, path) != 0;
}

unsigned char EPlot::ReadPEPlot(const char* path, const char* title, RECT* rect) {
    CRect place;
    if (rect)
        place = *rect;
    m_hwnd = OpenPlotFileWindow(path, title, rect ? &place : nullptr, m_id, 0);
    return 1;
}
