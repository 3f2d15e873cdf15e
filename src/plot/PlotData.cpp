#include "plot/PlotData.h"

#include "chart/ChartApi.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr double kMissing = -9999.0;
constexpr double kNoDateTime = -9999999.0;
constexpr int kPointLabels = 2130;

// The chart copies the text out of our buffer, so one buffer serves a whole push.
void SetTextElement(HWND chart, int property, int index, const zvk::CStdStr<char>& text,
                    std::vector<char>& buffer) {
    buffer.assign(text.c_str(), text.c_str() + text.size() + 1);
    ChartSetElement(chart, property, index, buffer.data());
}

using LabelRows = std::vector<std::vector<zvk::CStdStr<char>>>;

// The labels of the first `curves` curves at their flat indices. When every one is empty and the
// chart holds none, the last alone makes the chart's list just as long, and as empty.
void PushLabels(HWND chart, const LabelRows& labels, int curves, int points,
                std::vector<char>& buffer) {
    const zvk::CStdStr<char> noText;
    const auto labelOf = [&](int s, int p) -> const zvk::CStdStr<char>& {
        return size_t(p) < labels[size_t(s)].size() ? labels[size_t(s)][size_t(p)] : noText;
    };
    if (curves <= 0 || points <= 0)
        return;
    bool allEmpty = ChartGetArray(chart, kPointLabels, nullptr) == 0;
    for (int s = 0; s < curves && allEmpty; ++s)
        for (int p = 0; p < points && allEmpty; ++p)
            allEmpty = labelOf(s, p).empty();
    if (allEmpty) {
        SetTextElement(chart, kPointLabels, (curves - 1) * points + points - 1, noText, buffer);
        return;
    }
    for (int s = 0; s < curves; ++s)
        for (int p = 0; p < points; ++p)
            SetTextElement(chart, kPointLabels, s * points + p, labelOf(s, p), buffer);
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
        }
        // The points go curve after curve at flat indices. The coordinate arrays were emptied
        // above, so each goes whole in one call.
        const size_t total = size_t(m_numSets) * size_t(std::max(m_numPoints, 0));
        const auto pushAll = [&](int property, const std::vector<std::vector<double>>& rows) {
            if (rows.empty())
                return;
            std::vector<double> flat;
            flat.reserve(total);
            for (int s = 0; s < m_numSets; ++s)
                for (int p = 0; p < m_numPoints; ++p)
                    flat.push_back(at(rows, s, p, missing));
            if (ChartSetArray(chart, property, flat.data(), int(flat.size())))
                return;
            for (size_t k = 0; k < flat.size(); ++k) // too many for one array: as many as fit
                ChartSetElement(chart, property, int(k), &flat[k]);
        };
        pushAll(3013, m_xValues);
        PushLabels(chart, m_pointLabels, std::min(m_numSets, int(m_pointLabels.size())),
                   m_numPoints, buffer);
        pushAll(3014, m_yValues);
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
