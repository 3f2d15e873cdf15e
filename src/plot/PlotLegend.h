#pragma once

// EPlotLegend: what the legend of a plot lists and where the chart shows it. It lists the
// plot's curves (all of them or a chosen few) or custom entries of its own; a curve list that
// starts with -1 makes the chart show no legend. Each plot holds one and refers to its plot
// without owning it. Nothing reaches the chart before ShowLegend or RefreshLegend, and neither
// redraws.

#include "platform/base/Export.h"
#include "support/MUcolor.h"
#include "support/StdStr.h"

#include <vector>

class EPlot;

// One custom legend entry: its colour, text and symbol as the chart numbers symbols.
class ORVA_API EPlotLegendAnnot {
public:
    MUcolor GetColor() const { return m_color; }
    void SetColor(MUcolor color) { m_color = color; }
    zvk::CStdStr<char> GetText() const { return m_text; }
    void SetText(const zvk::CStdStr<char>& text) { m_text = text; }
    int GetSymbol() const { return m_symbol; }
    void SetSymbol(int symbol) { m_symbol = symbol; }

private:
    MUcolor m_color;
    zvk::CStdStr<char> m_text;
    int m_symbol; // left unset: a caller sets it before use
};

class ORVA_API EPlotLegend {
public:
    void SetPlot(EPlot* plot) { m_plot = plot; }
    EPlot* GetPlot() const { return m_plot; }
    // Lists all curves again at the next showing that has no choice made; the choice itself
    // is kept.
    void Reset() { m_allSubsets = 1; }
    unsigned char IsShown() const { return m_shown; }
    int GetLocation() const { return m_location; }

    // Chooses whether `curve` is listed. The first choice after construction or Reset lists
    // that curve alone.
    void DisplaySubset(int curve, unsigned char show);
    // Lists these entries instead of curves from now on.
    void UseCustomLegends(std::vector<EPlotLegendAnnot>& entries);
    // Shows or hides the legend; a `location` other than -1 (0 top, 1 bottom, 2 left, 3 right)
    // is kept even when the legend is hidden.
    void ShowLegend(unsigned char show, int location);
    // Gives the chart the list again, whether shown or not. Unlike ShowLegend, a legend with no
    // choice of curves lists none here.
    void RefreshLegend();

private:
    int CurveCount() const;
    void ClearCustomEntries();

    unsigned char m_shown = 0;
    unsigned char m_custom = 0;
    unsigned char m_allSubsets = 1;
    EPlot* m_plot = nullptr;
    int m_location = 1;
    std::vector<unsigned char> m_subsetShown; // one flag a curve
    std::vector<EPlotLegendAnnot> m_annots;
};
