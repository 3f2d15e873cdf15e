#pragma once

// EPlotLegend: what the legend of a plot lists and where the chart shows it. Each plot holds
// one; it refers to its plot without owning it.

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
    void Reset() { m_allSubsets = 1; }
    unsigned char IsShown() const { return m_shown; }
    int GetLocation() const { return m_location; }

private:
    unsigned char m_shown = 0;
    unsigned char m_custom = 0;
    unsigned char m_allSubsets = 1;
    EPlot* m_plot = nullptr;
    int m_location = 1; // 0 top, 1 bottom, 2 left, 3 right
    std::vector<unsigned char> m_subsetShown;
    std::vector<EPlotLegendAnnot> m_annots;
};
