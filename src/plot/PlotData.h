#pragma once

// EPlotData: what a plot shows, staged in memory and pushed to a chart in one go. A value type;
// nothing in it draws or reads back from the chart.

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"
#include "support/MUcolor.h"
#include "support/StdStr.h"

#include <vector>

class ORVA_API EPlotData {
public:
    EPlotData();

    void Initialize(int numSets, int numPoints, int kindOfData);
    void SetDataForPoint(int set, int point, double x, double y);
    void SetDataForBar(int set, int point, double value);
    void SetCurveName(int set, const char* name);
    void SetPointLabel(int set, int point, const char* label);
    void SetBarPointLabel(int point, const char* label);
    void SetSubsetColor(int set, MUcolor color);
    void UseDateTime(double base);
    int GetNumSets();
    void UpdatePlotFromData(HWND chart);

    double m_dateTimeBase;
    int m_numPoints;
    int m_numSets;
    int m_kindOfData; // 0 point data (X and Y), 1 bar data (Y only)
    std::vector<std::vector<double>> m_xValues;
    std::vector<std::vector<double>> m_yValues;
    std::vector<zvk::CStdStr<char>> m_curveNames;
    std::vector<std::vector<zvk::CStdStr<char>>> m_pointLabels;
    std::vector<MUcolor> m_subsetColors;
};
