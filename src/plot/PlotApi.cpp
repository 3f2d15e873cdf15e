// The pm functions: the flat interface that finds plots in g_plotList and forwards to them.

#include "plot/PlotApi.h"

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "plot/Plot.h"
#include "plot/PlotList.h"
#include "plot/PlotWindows.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <stdexcept>

using namespace chartprop;

namespace {

constexpr int kEverythingBit = 35;
constexpr int kEverythingLastBit = 25; // bit 35 stands for bits 0 to 25 as well
constexpr int kFirstPairCode = 37;
constexpr int kLastPairCode = 41;
constexpr int kFitTerms = 5;
constexpr int kFitSlots = 10;

// The curve colours by index, 1 to 14, as 32-bit colours (red in the low byte).
constexpr unsigned long kPlotColours[] = {
    0x008000, 0x800000, 0x000080, 0x800080, 0x008080, 0x808080, 0x00FF00,
    0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFF00, 0xFF0000, 0x00FFFF, 0xC0C0C0,
};

std::bitset<36> UpdateSetOf(int which) {
    std::bitset<36> set;
    if (which >= kFirstPairCode && which <= kLastPairCode) {
        const size_t first = size_t(which - kFirstPairCode) * 2;
        set.set(first);
        set.set(first + 1);
        return set;
    }
    if (which < 0 || size_t(which) >= set.size())
        throw std::out_of_range("invalid bitset<N> position");
    set.set(size_t(which));
    if (which == kEverythingBit)
        for (size_t bit = 0; bit <= kEverythingLastBit; ++bit)
            set.set(bit);
    return set;
}

void AppendTerm(zvk::CStdStr<char>& text, double c, int index, int power) {
    zvk::CStdStr<char> term;
    if (index == 0)
        term.Format("%.4lf", c);
    else
        term.Format("%s%.4lf", c >= 0.0 ? " + " : " - ", std::fabs(c));
    text += term;
    if (power > 0)
        text += "x";
    if (power > 1) {
        zvk::CStdStr<char> exponent;
        exponent.Format("^%d", power);
        text += exponent;
    }
}

} // namespace

void pmPlotData() {
    if (EPlot* plot = g_plotList.PlotFromHwnd(ActivePlotHandle(nullptr)))
        plot->RunDataOptionsDialog();
}

unsigned char pmPlotDataExists() {
    return g_plotList.NumPlots() > 0;
}

void pmPlotDefaults(unsigned char flag) {
    if (flag == 0)
        SetPlotClosedCallback(pmPlotWindowNotify);
}

void pmPlotWindowNotify(int, HWND chart) {
    if (!chart)
        chart = ActivePlotHandle(nullptr);
    if (!chart)
        return;
    // Deleting the plot unregisters it. A plot already on its way out is not deleted again.
    delete g_plotList.RegisteredPlotFromHwnd(chart);
}

int pmHandlePlotEvent(unsigned short code, HWND chart, int) {
    if (!chart)
        chart = ActivePlotHandle(nullptr);
    EPlot* plot = g_plotList.PlotFromHwnd(chart);
    return plot ? plot->HandlePlotEvent(code) : 0;
}

void pmUpdatePlots(int which, void* data) {
    g_plotList.UpdatePlots(UpdateSetOf(which), data);
}

void pmUpdatePlots(std::bitset<36>& which, void* data) {
    if (which.test(kEverythingBit))
        for (size_t bit = 0; bit <= kEverythingLastBit; ++bit)
            which.set(bit);
    g_plotList.UpdatePlots(which, data);
    which.reset();
}

void pmGetPlotIds(int* count, int** ids, zvk::CStdStr<char> type) {
    // The caller's text is never the library's own constant, so "Plots All" selects nothing.
    g_plotList.GetPlotIds(count, ids, type.c_str());
}

void pmDeletePlots(zvk::CStdStr<char> type) {
    g_plotList.DeletePlots(type);
    g_plotList.ResetIds();
}

void pmChangeSelectedPoint(int point) {
    g_plotList.ChangeSelectedPoint(point);
}

unsigned char pmExportPlotFile(const char*) {
    return false;
}

unsigned char pmImportPlotFile(const char*) {
    return false;
}

unsigned char pmImportPlotsZVDF(int) {
    return false;
}

unsigned char pmGetBestFitFormula(HWND chart, int curve, zvk::CStdStr<char>& text) {
    text.clear();
    if (!chart)
        chart = ActivePlotHandle(nullptr);
    if (!chart || !g_plotList.PlotFromHwnd(chart))
        return false;
    const int method = ChartGetInt(chart, PlottingMethod);
    if (method != MethodBestFitLine && method != MethodBestFitCurve)
        return false;
    text = "y = ";
    double c[kFitTerms] = {};
    int n = 0;
    for (int i = 0; i < kFitTerms; ++i) {
        ChartGetElement(chart, FitCoefficients, curve * kFitSlots + i, &c[i]);
        if (c[i] != 0.0)
            ++n;
    }
    // The chart gives the lowest order first; the formula starts with the highest.
    std::reverse(c, c + n);
    for (int i = 0; i < n; ++i)
        if (static_cast<long long>(c[i] * 10000) != 0)
            AppendTerm(text, c[i], i, n - i - 1);
    return n > 0;
}

int pmGetLegendLocation(HWND chart) {
    EPlot* plot = chart ? g_plotList.PlotFromHwnd(chart) : nullptr;
    if (!plot || !plot->Legend().IsShown())
        return -1;
    return ChartGetInt(chart, LegendLocation);
}

unsigned long pmGetPlotColor(int index) {
    if (index < 1 || index > int(std::size(kPlotColours)))
        return 0;
    return kPlotColours[index - 1];
}

void pmGetPlotDCBitmap(int id, HDC*, HBITMAP*) {
    // The outputs are not filled: applications call EPlot::GetDCBitmap themselves.
    if (EPlot* plot = g_plotList.PlotFromId(id))
        plot->GetDCBitmap(nullptr, nullptr);
}

unsigned char pmSetExtremeYValues(int id) {
    EPlot* plot = g_plotList.PlotFromId(id);
    return plot && plot->SetExtremeYValues() != 0;
}

void pmActivePlotDisplayOptions() {
    if (HWND chart = ActivePlotHandle(nullptr))
        ChartCustomizeDialog(chart);
}
