#pragma once

// The plots of a reach, each in a document window of its own: the long profile of bed and
// water level, whose bed points the user drags to new levels, and the rating curves of the
// surveyed sections with their best-fit lines. Both follow every change of the reach.

#include "ReachDocument.h"

#include "platform/base/Rect.h"

// The plot menu's resource, which a right click on a plot shows; the frame registers it and
// hands its commands to the plot whose menu is up.
constexpr UINT kPlotMenuId = 4300;

class ReachPlot : public EPlot {
public:
    ReachPlot(ReachDocument& document, const char* title, CRect place);

    void UpdatePlot(const std::bitset<36>& which, void* data) override;
    zvk::CStdStr<char> GetType() override { return "Reach"; }
    // Draws the plot again from the reach.
    virtual void Refresh() = 0;

protected:
    ReachDocument* m_document; // closes this plot before it goes
};

class LongProfilePlot : public ReachPlot {
public:
    enum Curve { kBed, kWater };
    LongProfilePlot(ReachDocument& document, CRect place);

    void Refresh() override;
    void PlotClick(int curve, int point, Pt2<double> where, unsigned char* drag,
                   unsigned char* rubber) override;
    int CheckDragPoint(int curve, int point, Pt2<double> start, Pt2<double>* current,
                       unsigned char* moveX, unsigned char* moveY) override;
    void EndDrag(int curve, int point, Pt2<double> start, Pt2<double>* end) override;
};

class RatingCurvePlot : public ReachPlot {
public:
    RatingCurvePlot(ReachDocument& document, CRect place);

    void Refresh() override;
    // The sections drawn, in curve order.
    const std::vector<size_t>& Sections() const { return m_sections; }

private:
    std::vector<size_t> m_sections;
};
