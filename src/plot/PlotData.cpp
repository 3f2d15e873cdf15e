#include "plot/PlotData.h"

#include "chart/ChartApi.h"

#include <cstring>

namespace {

constexpr double kMissing = -9999.0;
constexpr double kNoDateTime = -9999999.0;

// The chart copies the text out of our buffer, so one buffer serves a whole push.
void SetTextElement(HWND chart, int property, int index, const zvk::CStdStr<char>& text,
                    std::vector<char>& buffer) {
    buffer.assign(text.c_str(), text.c_str() + text.size() + 1);
    ChartSetElement(chart, property, index, buffer.data());
}

} // namespace

EPlotData::EPlotData()
    : m_dateTimeBase(kNoDateTime), m_numPoints(0), m_numSets(0), m_kindOfData(0) {}

void EPlotData::Initialize(int numSets, int numPoints, int kindOfData) {
    m_numSets = numSets;
    m_numPoints = numPoints;
    m_kindOfData = kindOfData;
    m_curveNames.assign(size_t(numSets), zvk::CStdStr<char>(" "));
    m_subsetColors.assign(size_t(numSets), MUcolor(0, 255, 0, 0));
    const std::vector<double> row(size_t(numPoints), kMissing);
    m_yValues.assign(size_t(numSets), row);
    const std::vector<zvk::CStdStr<char>> labels(static_cast<size_t>(numPoints));
    if (kindOfData == 0) {
        m_xValues.assign(size_t(numSets), row);
        m_pointLabels.assign(size_t(numSets), labels);
    } else if (kindOfData == 1) {
        m_pointLabels.assign(1, labels);
    }
}

void EPlotData::SetDataForPoint(int set, int point, double x, double y) {
    if (size_t(set) < m_xValues.size() && size_t(point) < m_xValues[size_t(set)].size()) {
        m_xValues[size_t(set)][size_t(point)] = x;
        m_yValues[size_t(set)][size_t(point)] = y;
    }
}

void EPlotData::SetDataForBar(int set, int point, double value) {
    if (size_t(set) < m_yValues.size() && size_t(point) < m_yValues[size_t(set)].size())
        m_yValues[size_t(set)][size_t(point)] = value;
}

void EPlotData::SetCurveName(int set, const char* name) {
    if (size_t(set) < m_curveNames.size())
        m_curveNames[size_t(set)] = name ? name : "";
}

void EPlotData::SetPointLabel(int set, int point, const char* label) {
    if (size_t(set) < m_pointLabels.size() && size_t(point) < m_pointLabels[size_t(set)].size())
        m_pointLabels[size_t(set)][size_t(point)] = label ? label : "";
}

void EPlotData::SetBarPointLabel(int point, const char* label) {
    if (size_t(point) < m_pointLabels[0].size())
        m_pointLabels[0][size_t(point)] = label ? label : "";
}

void EPlotData::SetSubsetColor(int set, MUcolor color) {
    if (size_t(set) < m_subsetColors.size())
        m_subsetColors[size_t(set)] = color;
}

void EPlotData::UseDateTime(double base) {
    m_dateTimeBase = base;
}

int EPlotData::GetNumSets() {
    return m_numSets;
}

void EPlotData::UpdatePlotFromData(HWND chart) {
    if (!chart)
        return;
    if (m_numSets == 0) {
        if (ChartGetInt(chart, 2115) != 0 && ChartGetInt(chart, 2120) != 0) {
            const int endOfList = -1;
            ChartSetElement(chart, 2624, 0, &endOfList);
            ChartSetInt(chart, 2120, 0);
            ChartSetInt(chart, 2115, 0);
            ChartSetArray(chart, 3013, nullptr, 0);
            ChartSetArray(chart, 3014, nullptr, 0);
        }
    } else if (m_numSets > 0 && (!m_xValues.empty() || !m_pointLabels.empty()) &&
               !m_yValues.empty()) {
        ChartSetInt(chart, 2120, 0);
        ChartSetInt(chart, 2115, 0);
        ChartSetArray(chart, 3013, nullptr, 0);
        ChartSetArray(chart, 3014, nullptr, 0);
        ChartSetInt(chart, 2115, m_numSets);
        ChartSetInt(chart, 2120, m_numPoints);
        // The fields are public: rows shorter than the counts push the missing value rather
        // than read past their end.
        const auto at = [](const auto& rows, int s, int p, const auto& fallback) -> const auto& {
            return size_t(s) < rows.size() && size_t(p) < rows[size_t(s)].size()
                       ? rows[size_t(s)][size_t(p)]
                       : fallback;
        };
        const double missing = kMissing;
        const zvk::CStdStr<char> noText;
        // The count is the curve's index: s missing values each time.
        const std::vector<double> missingRow(size_t(m_numSets), kMissing);
        std::vector<char> buffer;
        int k = 0;
        for (int s = 0; s < m_numSets; ++s) {
            ChartSetArray(chart, 3656, missingRow.data(), s);
            ChartSetArray(chart, 3268, missingRow.data(), s);
            if (!m_subsetColors.empty()) {
                const COLORREF colour =
                    size_t(s) < m_subsetColors.size() ? COLORREF(m_subsetColors[size_t(s)]) : 0;
                ChartSetElement(chart, 2190, s, &colour);
            }
            SetTextElement(chart, 2125, s,
                           size_t(s) < m_curveNames.size() ? m_curveNames[size_t(s)] : noText,
                           buffer);
            for (int p = 0; p < m_numPoints; ++p) {
                if (!m_xValues.empty())
                    ChartSetElement(chart, 3013, k, &at(m_xValues, s, p, missing));
                if (size_t(s) < m_pointLabels.size())
                    SetTextElement(chart, 2130, k, at(m_pointLabels, s, p, noText), buffer);
                if (!m_yValues.empty())
                    ChartSetElement(chart, 3014, k, &at(m_yValues, s, p, missing));
                ++k;
            }
        }
    }
    if (m_dateTimeBase == kNoDateTime) {
        ChartSetInt(chart, 3018, 0);
        return;
    }
    ChartSetInt(chart, 3018, 1);
    ChartSetInt(chart, 3096, 180);
    ChartSetInt(chart, 3097, 8);
    ChartSetArray(chart, 3098, &m_dateTimeBase, 0);
    ChartSetInt(chart, 3423, 0);
    ChartSetInt(chart, 3016, 1);
}
