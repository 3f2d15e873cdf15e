#pragma once

// The chart's options dialog: the titles, each axis's range (automatic, or fixed at one or
// both ends) and grid lines, the colour, symbol and line of each curve, and the legend's place.
// It edits a ChartLook; the caller writes it to the chart after OK.

#include "chart/ChartLook.h"
#include "platform/window/Dialog.h"

class ChartCustomizeDlg : public CDialog {
public:
    ChartCustomizeDlg(const ChartLook& look, CWnd* parent);

    // The look as the user left it; what the chart had until OK.
    const ChartLook& Look() const { return m_look; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnPaint() override;

private:
    void ShowAxis(const ChartAxisLook& axis, int rangeId, int minId, int maxId, int gridId);
    void EnableLimits(int rangeId, int minId, int maxId);
    // False, with the user told and the focus on the field at fault, for a limit that is no
    // number or a fixed range that is empty.
    bool ReadAxis(ChartAxisLook& axis, int rangeId, int minId, int maxId, int gridId);
    void ShowCurve(int curve);
    CRect SwatchRect() const;

    ChartLook m_look;
    int m_shownCurve = -1;
};
