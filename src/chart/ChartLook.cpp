// Reading a chart's look from its properties and writing the changes back.

#include "chart/ChartLook.h"

#include "chart/ChartApi.h"
#include "chart/ChartEngine.h"
#include "chart/ChartPropertyIds.h"

using namespace chartprop;

namespace {

ChartAxisLook ReadAxis(const ChartProperties& p, int modeId, int gridId, double shownLow,
                       double shownHigh, int minId, int maxId) {
    ChartAxisLook axis;
    axis.rangeMode = p.Int(modeId, RangeAuto);
    axis.minimum = axis.UsesMinimum() && p.Has(minId) ? p.Double(minId, shownLow) : shownLow;
    axis.maximum = axis.UsesMaximum() && p.Has(maxId) ? p.Double(maxId, shownHigh) : shownHigh;
    axis.grid = p.Int(gridId, 1) != 0;
    return axis;
}

void WriteAxis(HWND chart, const ChartAxisLook& now, const ChartAxisLook& before, int modeId,
               int minId, int maxId, int gridId) {
    const bool changed = now.rangeMode != before.rangeMode || now.minimum != before.minimum ||
                         now.maximum != before.maximum;
    if (now.rangeMode != before.rangeMode)
        ChartSetInt(chart, modeId, now.rangeMode);
    if (changed && now.UsesMinimum())
        ChartSetArray(chart, minId, &now.minimum, 1);
    if (changed && now.UsesMaximum())
        ChartSetArray(chart, maxId, &now.maximum, 1);
    if (now.grid != before.grid)
        ChartSetInt(chart, gridId, now.grid ? 1 : 0);
}

void WriteText(HWND chart, int property, const std::string& now, const std::string& before) {
    if (now != before)
        ChartSetString(chart, property, now.c_str());
}

// Writes one attribute of every curve as a whole array when any curve's differs: an element
// written alone past the array's end would give the curves before it zeros.
template <typename Attribute>
void WriteCurves(HWND chart, int property, const std::vector<ChartCurveLook>& now,
                 const std::vector<ChartCurveLook>& before, Attribute attribute) {
    std::vector<int> values;
    bool changed = now.size() != before.size();
    for (size_t i = 0; i < now.size(); ++i) {
        values.push_back(attribute(now[i]));
        changed = changed || i >= before.size() || attribute(now[i]) != attribute(before[i]);
    }
    if (changed)
        ChartSetArray(chart, property, values.data(), int(values.size()));
}

} // namespace

bool ChartAxisLook::UsesMinimum() const {
    return rangeMode == RangeMinimum || rangeMode == RangeBoth;
}

bool ChartAxisLook::UsesMaximum() const {
    return rangeMode == RangeMaximum || rangeMode == RangeBoth;
}

ChartLook ChartLook::Read(HWND chart) {
    ChartLook look;
    ChartEngine* engine = ChartEngineOf(chart);
    if (!engine)
        return look;
    const ChartProperties& p = engine->Properties();
    const ChartFrame& shown = engine->Frame();
    look.mainTitle = p.Text(MainTitle);
    look.xTitle = p.Text(XAxisTitle);
    look.yTitle = p.Text(YAxisTitle);
    look.x = ReadAxis(p, XRangeMode, XGrid, shown.xMin, shown.xMax, XMinimum, XMaximum);
    look.y = ReadAxis(p, YRangeMode, YGrid, shown.yMin, shown.yMax, YMinimum, YMaximum);
    const auto& names = p.Strings(CurveNames);
    for (int s = 0; s < p.Int(CurveCount, 0); ++s) {
        ChartCurveLook curve;
        curve.name = size_t(s) < names.size() && !names[size_t(s)].empty()
                         ? names[size_t(s)]
                         : "Curve " + std::to_string(s + 1);
        curve.colour = CurveColour(p, s);
        curve.symbol = p.IntElement(CurveSymbols, size_t(s), -1);
        curve.lineType = p.IntElement(CurveLineTypes, size_t(s), 0);
        look.curves.push_back(curve);
    }
    look.legendLocation = p.Int(LegendLocation, 1);
    return look;
}

void ChartLook::WriteChanges(HWND chart, const ChartLook& before) const {
    WriteText(chart, MainTitle, mainTitle, before.mainTitle);
    WriteText(chart, XAxisTitle, xTitle, before.xTitle);
    WriteText(chart, YAxisTitle, yTitle, before.yTitle);
    WriteAxis(chart, x, before.x, XRangeMode, XMinimum, XMaximum, XGrid);
    WriteAxis(chart, y, before.y, YRangeMode, YMinimum, YMaximum, YGrid);
    WriteCurves(chart, CurveColours, curves, before.curves,
                [](const ChartCurveLook& c) { return c.colour; });
    WriteCurves(chart, CurveSymbols, curves, before.curves,
                [](const ChartCurveLook& c) { return c.symbol; });
    WriteCurves(chart, CurveLineTypes, curves, before.curves,
                [](const ChartCurveLook& c) { return c.lineType; });
    if (legendLocation != before.legendLocation)
        ChartSetInt(chart, LegendLocation, legendLocation);
}
