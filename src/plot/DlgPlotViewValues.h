#pragma once

// CDlgPlotViewValues: the resizable modal dialog that lists a plot's values in a read-only
// spreadsheet: a column of point numbers, then an X and a Y column for each curve, headed by
// the curve's name and the axis titles. A missing point (X of -9999) shows as an empty pair.

#include "controls/DialogORVA.h"
#include "spreadsheet/SpreadSheetORVA.h"
#include "support/StdStr.h"

#include <vector>

class ORVA_API CDlgPlotViewValues : public CDialogORVA {
public:
    static constexpr UINT IDD = 102;
    static constexpr int IDC_VALUES = 21;
    static constexpr int IDC_SIZE_GRIP = 17300;

    // Copies the values, one vector a curve; names that do not match the curves one for one
    // are made up as "Plot 1", "Plot 2", ... With `negateY` the Y values show negated.
    CDlgPlotViewValues(const std::vector<std::vector<double>>& xValues,
                       const std::vector<std::vector<double>>& yValues,
                       const std::vector<zvk::CStdStr<char>>& curveNames, unsigned char negateY,
                       CWnd* parent = nullptr);

    void SetXTitle(const zvk::CStdStr<char>& title) { m_xTitle = title; }
    void SetYTitle(const zvk::CStdStr<char>& title) { m_yTitle = title; }

private:
    void DoDataExchange(CDataExchange* dx) override;
    BOOL OnInitDialog() override;
    void OnSize(UINT type, int cx, int cy) override;
    void OnGetMinMaxInfo(MINMAXINFO* info) override;
    void EnterSSData();
    void MoveSizeItems(int cx, int cy);

    CSpreadSheetORVA m_sheet;
    int m_curves = 0;
    int m_points = 0; // of the first curve
    std::vector<std::vector<double>> m_xValues;
    std::vector<std::vector<double>> m_yValues;
    std::vector<zvk::CStdStr<char>> m_curveNames;
    zvk::CStdStr<char> m_xTitle;
    zvk::CStdStr<char> m_yTitle;
    int m_lastCx = 0;
    int m_lastCy = 0;
    bool m_firstSize = true;
    int m_minTrackCx = -1;
    int m_minTrackCy = -1;
};
