#pragma once

// The hydrograph of an inflow: a table of times and rates that the user types into, and the
// curve drawn beside it as it changes. Opened by the "..." button of an inflow cell.

#include "Reach.h"

#include "controls/DialogORVA.h"
#include "plot/Plot.h"
#include "plot/PlotCanvas.h"
#include "spreadsheet/SpreadSheetORVA.h"

#include <memory>
#include <string>

class HydrographDialog : public CDialogORVA {
public:
    static constexpr UINT kTemplateId = 4200;
    enum : UINT { kTableId = 4201, kCanvasId, kGripId, kNoteId };
    static constexpr int kRows = 12; // points a hydrograph can have here

    HydrographDialog(const Inflow& inflow, const char* section, CWnd* parent);

    // The hydrograph as the dialog closed with OK: its points in order of time.
    const Inflow& Result() const { return m_inflow; }
    CSpreadSheetORVA& Table() { return m_table; }
    EPlot* Plot() const { return m_plot.get(); }

protected:
    void DoDataExchange(CDataExchange* dx) override;
    BOOL OnInitDialog() override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnOK() override;
    void OnDestroy() override;
    void DialogResized(int deltaX, int deltaY) override;

private:
    // The rows that hold both a time and a rate, sorted by time.
    Inflow ReadTable() const;
    void DrawCurve();

    Inflow m_inflow;
    std::string m_section;
    CSpreadSheetORVA m_table; // takes over its placeholder in the template
    PlotCanvas m_canvas;
    std::unique_ptr<EPlot> m_plot; // the canvas's chart; it goes before the canvas
};
