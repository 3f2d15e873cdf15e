// The plot layer's own costs. A hundred plots alive and pmUpdatePlots reaching all of them,
// against touching the same hundred charts directly; and a real-time plot appending 10,000
// points one by one, painted every 100, against the chart engine's own append with a redraw
// every 100 points.

#include "chart/ChartApi.h"
#include "platform/window/WindowApi.h"
#include "platform/window/Wnd.h"
#include "plot/Plot.h"
#include "plot/PlotApi.h"
#include "plot/PlotList.h"
#include "plot/PlotRealtime.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>
#include <vector>

namespace {

constexpr int kPlots = 100;
constexpr int kTouchedProperty = 9001; // a number the chart keeps for its callers
constexpr int kAppends = 10000;
constexpr int kPaintEvery = 100;
constexpr int kWindowPoints = 100;

// A plot that does a chart's worth of work when told of a change.
class UpdatedPlot : public EPlot {
public:
    using EPlot::EPlot;
    void UpdatePlot(const std::bitset<36>& which, void*) override {
        ChartSetInt(m_hwnd, kTouchedProperty, int(which.count()));
    }
};

CRect PlotRect() {
    return CRect(0, 0, 400, 300);
}

struct HundredPlots {
    HundredPlots() {
        CRect rect = PlotRect();
        for (int i = 0; i < kPlots; ++i)
            plots.push_back(std::make_unique<UpdatedPlot>(0, "", &rect, 1, 0));
    }
    ~HundredPlots() {
        plots.clear();
        PumpMessages();
    }
    std::vector<std::unique_ptr<UpdatedPlot>> plots;
};

void UpdateHundredPlots(benchmark::State& state) {
    HundredPlots alive;
    for (auto _ : state)
        pmUpdatePlots(PM_UPDATE_ALL, nullptr);
    state.SetItemsProcessed(state.iterations() * kPlots);
}

// The baseline: the same write to each chart, without the registry.
void TouchHundredChartsDirectly(benchmark::State& state) {
    HundredPlots alive;
    std::vector<HWND> charts;
    for (auto& plot : alive.plots)
        charts.push_back(plot->GetHwnd());
    const std::bitset<36> all = std::bitset<36>().set();
    for (auto _ : state)
        for (HWND chart : charts)
            ChartSetInt(chart, kTouchedProperty, int(all.count()));
    state.SetItemsProcessed(state.iterations() * kPlots);
}

double Sample(int i) {
    return 50.0 + 20.0 * std::sin(i * 0.05);
}

void RealtimePlotAppends(benchmark::State& state) {
    CRect rect = PlotRect();
    EPlotRealtime plot(0, "", &rect, 1);
    plot.SetNumberOfPoints(kWindowPoints);
    for (auto _ : state) {
        for (int i = 0; i < kAppends; ++i) {
            plot.AppendPoint(i, Sample(i)); // every append redraws the chart's image
            if (i % kPaintEvery == kPaintEvery - 1)
                PumpMessages();
        }
    }
    state.SetItemsProcessed(state.iterations() * kAppends);
}

// The baseline: the chart's own append, redrawn and painted every 100 points.
void ChartEngineAppends(benchmark::State& state) {
    CRect rect = PlotRect();
    EPlotRealtime plot(0, "", &rect, 1);
    plot.SetNumberOfPoints(kWindowPoints);
    HWND chart = plot.GetHwnd();
    for (auto _ : state) {
        for (int i = 0; i < kAppends; ++i) {
            const double x = i, y = Sample(i);
            ChartSetArray(chart, 3659, &x, 1);
            ChartSetArray(chart, 3024, &y, 1);
            if (i % kPaintEvery == kPaintEvery - 1) {
                ChartRedraw(chart);
                PumpMessages();
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * kAppends);
}

} // namespace

BENCHMARK(TouchHundredChartsDirectly);
BENCHMARK(UpdateHundredPlots);
BENCHMARK(ChartEngineAppends)->Unit(benchmark::kMillisecond);
BENCHMARK(RealtimePlotAppends)->Unit(benchmark::kMillisecond);
