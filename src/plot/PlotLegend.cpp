// The legend's list of curves or custom entries, written into the chart's legend properties.

#include "plot/PlotLegend.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "plot/Plot.h"

#include <algorithm>
#include <cstdint>
#include <string>

using namespace chartprop;

namespace {

constexpr int kEndOfList = -1;

void SetCustomText(HWND chart, int index, const zvk::CStdStr<char>& text) {
    // The chart copies the text out of a buffer of its own length plus the zero.
    std::string buffer(text.c_str(), text.size() + 1);
    ChartSetElement(chart, LegendTexts, index, buffer.data());
}

} // namespace

int EPlotLegend::CurveCount() const {
    return ChartGetInt(m_plot->GetHwnd(), chartprop::CurveCount);
}

void EPlotLegend::ClearCustomEntries() {
    const HWND chart = m_plot->GetHwnd();
    ChartSetArray(chart, LegendTexts, nullptr, 0);
    ChartSetArray(chart, LegendColours, nullptr, 0);
    ChartSetArray(chart, LegendSymbols, nullptr, 0);
}

void EPlotLegend::DisplaySubset(int curve, unsigned char show) {
    if (curve < 0)
        return;
    if (m_allSubsets) {
        m_subsetShown.assign(size_t(std::max(m_plot ? CurveCount() : 0, 0)), 0);
        m_allSubsets = 0;
    }
    if (size_t(curve) >= m_subsetShown.size())
        m_subsetShown.resize(size_t(curve) + 1, 0);
    m_subsetShown[size_t(curve)] = show;
}

void EPlotLegend::UseCustomLegends(std::vector<EPlotLegendAnnot>& entries) {
    m_subsetShown.clear();
    m_annots = entries;
    m_custom = 1;
}

void EPlotLegend::ShowLegend(unsigned char show, int location) {
    if (location != -1)
        m_location = location;
    if (!m_plot)
        return;
    const HWND chart = m_plot->GetHwnd();
    if (!show) {
        m_shown = 0;
        ClearCustomEntries();
        ChartSetArray(chart, LegendCurves, &kEndOfList, 1);
        return;
    }
    m_shown = 1;
    if (!m_custom) {
        // Entries past the last one written keep their old values.
        int next = 0;
        const int curves = CurveCount();
        for (int s = 0; s < curves; ++s)
            if (m_subsetShown.empty() || (size_t(s) < m_subsetShown.size() && m_subsetShown[s]))
                ChartSetElement(chart, LegendCurves, next++, &s);
    } else {
        for (int i = 0; i < int(m_annots.size()); ++i) {
            const EPlotLegendAnnot& entry = m_annots[size_t(i)];
            const MUcolor colour = entry.GetColor();
            ChartSetElement(chart, LegendColours, i, &colour); // its four bytes as they lie
            const int symbol = entry.GetSymbol();
            ChartSetElement(chart, LegendSymbols, i, &symbol);
            SetCustomText(chart, i, entry.GetText());
        }
        ChartSetArray(chart, LegendCurves, &kEndOfList, 1);
    }
    ChartSetInt(chart, LegendLocation, m_location);
}

void EPlotLegend::RefreshLegend() {
    if (!m_plot)
        return;
    const HWND chart = m_plot->GetHwnd();
    ClearCustomEntries();
    if (!m_custom) {
        int next = 0;
        const int curves = CurveCount();
        for (int s = 0; s < curves; ++s) {
            if (m_subsetShown.empty())
                ChartSetElement(chart, LegendCurves, 0, &kEndOfList);
            else if (size_t(s) < m_subsetShown.size() && m_subsetShown[s])
                ChartSetElement(chart, LegendCurves, next++, &s);
        }
        return;
    }
    for (int i = 0; i < int(m_annots.size()); ++i) {
        const EPlotLegendAnnot& entry = m_annots[size_t(i)];
        const std::int32_t colour = std::int32_t(COLORREF(entry.GetColor()));
        ChartSetElement(chart, LegendColours, i, &colour);
        if (!entry.GetText().empty())
            SetCustomText(chart, i, entry.GetText());
        const int symbol = entry.GetSymbol();
        ChartSetElement(chart, LegendSymbols, i, &symbol);
    }
    ChartSetElement(chart, LegendCurves, 0, &kEndOfList);
}
