// Filling the reach's plots from its profile, and a bed point dragged to a new level.

#include "ReachPlots.h"

#include "chart/ChartApi.h"
#include "plot/PlotApi.h"
#include "plot/PlotData.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kLineChart = 0;
constexpr unsigned char kDocumentWindow = 0;
constexpr double kMissing = -9999.0; // a gap in a curve
constexpr int kPlottingMethod = 3090;
constexpr int kBestFitLine = 8;
constexpr int kYData = 3014; // the curves' Y values, point by point
constexpr int kFilledSquare = 3;
constexpr int kCircle = 2;
constexpr int kNoSymbol = 0;
constexpr int kRatingSteps = 12;
const MUcolor kBedColour(0x8C, 0x56, 0x4B);
const MUcolor kWaterColour(0x1F, 0x5A, 0xC8);

MUcolor FromColorref(unsigned long colour) {
    return MUcolor(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

} // namespace

ReachPlot::ReachPlot(ReachDocument& document, const char* title, CRect place)
    : EPlot(kLineChart, title, &place, kDocumentWindow, 0), m_document(&document) {
    Menu().SetMenuID(kPlotMenuId);
}

void ReachPlot::UpdatePlot(const std::bitset<36>& which, void* data) {
    if (which.test(kReachChangedBit) && (data == m_document || !data) && GetHwnd())
        Refresh();
}

LongProfilePlot::LongProfilePlot(ReachDocument& document, CRect place)
    : ReachPlot(document, ("Long profile - " + document.reach.name).c_str(), place) {
    SetMainTitle("Long profile");
    SetXAxisTitle("Chainage (m)");
    SetYAxisTitle("Level (m)");
}

void LongProfilePlot::Refresh() {
    const std::vector<ProfilePoint> profile = m_document->reach.Profile();
    EPlotData data;
    data.Initialize(2, int(profile.size()), 0);
    for (size_t i = 0; i < profile.size(); ++i) {
        data.SetDataForPoint(kBed, int(i), profile[i].chainage, profile[i].invert);
        data.SetDataForPoint(kWater, int(i), profile[i].chainage,
                             profile[i].level.value_or(kMissing));
    }
    data.SetCurveName(kBed, "Bed");
    data.SetCurveName(kWater, "Water surface (normal depth)");
    data.SetSubsetColor(kBed, kBedColour);
    data.SetSubsetColor(kWater, kWaterColour);
    data.UpdatePlotFromData(GetHwnd());
    // Fixed ranges around the reach: they hold still while a point is dragged, and the chart
    // keeps a dragged point within reach of them.
    double low = profile.empty() ? 0 : profile.front().invert, high = low;
    for (const ProfilePoint& p : profile) {
        low = std::min(low, p.invert);
        high = std::max(high, p.level.value_or(p.invert));
    }
    const double margin = std::max(0.2, (high - low) * 0.15);
    SetYRange(std::floor((low - margin) * 10) / 10, std::ceil((high + margin) * 10) / 10,
              RangeBothGiven);
    if (!profile.empty())
        SetXRange(profile.front().chainage, profile.back().chainage, RangeBothGiven);
    std::vector<int> symbols{kFilledSquare, kNoSymbol};
    SetSymbolTypes(symbols);
    char subtitle[160];
    std::snprintf(subtitle, sizeof subtitle, "%s, Q = %.2f m3/s at the head",
                  m_document->reach.name.c_str(), m_document->reach.discharge);
    SetSubTitle(subtitle);
    RedrawPlot();
}

void LongProfilePlot::PlotClick(int curve, int point, Pt2<double>, unsigned char* drag,
                                unsigned char*) {
    // Only bed points move: the water surface follows from them.
    if (curve == kBed && point >= 0 && size_t(point) < m_document->reach.sections.size())
        *drag = 1;
}

int LongProfilePlot::CheckDragPoint(int curve, int point, Pt2<double>, Pt2<double>* current,
                                    unsigned char* moveX, unsigned char* moveY) {
    *moveX = 0; // a section keeps its chainage
    *moveY = 1;
    if (curve != kBed || point < 0 || size_t(point) >= m_document->reach.sections.size())
        return 0;
    // The water surface follows the point as it moves; the reach changes only when it is let go.
    Reach moved = m_document->reach;
    moved.sections[size_t(point)].invert = current->y;
    const std::vector<ProfilePoint> profile = moved.Profile();
    ChartSetCell(GetHwnd(), kYData, kBed, point, &current->y);
    for (size_t i = 0; i < profile.size(); ++i) {
        const double level = profile[i].level.value_or(kMissing);
        ChartSetCell(GetHwnd(), kYData, kWater, int(i), &level);
    }
    RedrawPlot(); // the chart draws again on request only
    return 1;
}

void LongProfilePlot::EndDrag(int curve, int point, Pt2<double>, Pt2<double>* end) {
    if (curve != kBed || point < 0 || !std::isfinite(end->y))
        return;
    // Levels are surveyed to the millimetre.
    m_document->SetInvert(size_t(point), std::round(end->y * 1000.0) / 1000.0);
}

RatingCurvePlot::RatingCurvePlot(ReachDocument& document, CRect place)
    : ReachPlot(document, ("Rating curves - " + document.reach.name).c_str(), place) {
    SetMainTitle("Rating curves of the surveyed sections");
    SetXAxisTitle("Discharge (m3/s)");
    SetYAxisTitle("Depth (m)");
}

void RatingCurvePlot::Refresh() {
    const Reach& reach = m_document->reach;
    m_sections.clear();
    // A section whose bed does not fall has no uniform flow, and so no rating curve.
    for (size_t i = 0; i < reach.sections.size(); ++i)
        if (reach.sections[i].surveyed && reach.BedSlope(i) > 0)
            m_sections.push_back(i);
    // Depths up to half as much again as the deepest flow of the reach.
    double deepest = 0.5;
    for (const ProfilePoint& p : reach.Profile())
        deepest = std::max(deepest, p.depth.value_or(0));
    const double maxDepth = std::ceil(deepest * 1.5 * 10) / 10;

    EPlotData data;
    data.Initialize(std::max<int>(1, int(m_sections.size())), kRatingSteps, 0);
    for (size_t c = 0; c < m_sections.size(); ++c) {
        const CrossSection& s = reach.sections[m_sections[c]];
        const double slope = reach.BedSlope(m_sections[c]);
        for (int i = 0; i < kRatingSteps; ++i) {
            const double depth = maxDepth * (i + 1) / kRatingSteps;
            data.SetDataForPoint(int(c), i, s.Discharge(depth, slope), depth);
        }
        char name[64];
        std::snprintf(name, sizeof name, "Section %zu (%.0f m)", m_sections[c] + 1, s.chainage);
        data.SetCurveName(int(c), name);
        data.SetSubsetColor(int(c), FromColorref(s.colour));
    }
    if (m_sections.empty()) {
        for (int i = 0; i < kRatingSteps; ++i)
            data.SetDataForPoint(0, i, kMissing, kMissing);
        data.SetCurveName(0, "No surveyed section");
    }
    data.UpdatePlotFromData(GetHwnd());
    // The fitted lines run across the whole plot: the ranges keep to the points.
    double largest = 0;
    for (size_t c = 0; c < m_sections.size(); ++c)
        for (int i = 0; i < kRatingSteps; ++i)
            largest = std::max(largest, data.m_xValues[c][size_t(i)]);
    SetXRange(0, largest > 0 ? largest * 1.05 : 1, RangeBothGiven);
    SetYRange(0, maxDepth * 1.05, RangeBothGiven);
    SetProperty(kPlottingMethod, kBestFitLine);
    std::vector<int> symbols(m_sections.size(), kCircle);
    if (!symbols.empty())
        SetSymbolTypes(symbols);
    // The chart fits its lines as it draws: the formula is there once it has drawn.
    RedrawPlot();
    zvk::CStdStr<char> formula;
    if (!m_sections.empty() && pmGetBestFitFormula(GetHwnd(), 0, formula))
        SetSubTitle(("Best fit of section " + std::to_string(m_sections[0] + 1) + ": " +
                     formula.c_str() + " (x: Q, y: depth)")
                        .c_str());
    else
        SetSubTitle("Tick \"Surveyed\" to add a section whose bed falls");
    RedrawPlot();
}
