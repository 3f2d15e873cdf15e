#pragma once

// EPlotRealtime: one curve of a fixed number of points into which values scroll as they
// arrive, the oldest leaving at the left.

#include "plot/Plot.h"

class ORVA_API EPlotRealtime : public EPlot {
public:
    EPlotRealtime() = default;
    EPlotRealtime(int chartType, const char* title, CRect* rect, unsigned char top);
    EPlotRealtime(int chartType, const char* title, int id, int hostId, HWND parent);

    int SetPlotDefaults() override;

    // Appends a point and redraws; `x` is an automation date when XdataIsDateTime was called.
    void AppendPoint(double x, double y);
    // Every point becomes the missing value.
    void ClearPlot();
    void SetNumberOfPoints(int points);
    void SetXAxisTicksAsIntegers();
    void XdataIsDateTime() { m_xDateTime = 1; }

private:
    unsigned char m_xDateTime = 0;
};
