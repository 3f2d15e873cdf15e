#pragma once

// EPlotScatter: the settings of a scatter of points. It makes no chart itself: an application
// gives it one through a copy.

#include "plot/Plot.h"

class ORVA_API EPlotScatter : public EPlot {
public:
    EPlotScatter() = default;
    EPlotScatter(const EPlotScatter& other) = default;

    int SetPlotDefaults() override;
};
