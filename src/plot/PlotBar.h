#pragma once

// EPlotBar: a plot of bars, one group a point.

#include "plot/Plot.h"

class ORVA_API EPlotBar : public EPlot {
public:
    EPlotBar() = default;
    EPlotBar(int chartType, const char* title, CRect* rect, unsigned char top);
    EPlotBar(int chartType, const char* title, int id, int hostId, HWND parent);

    int SetPlotDefaults() override;
    void SetUpPreviewPlot() override;
};
