// Pushing a million points to a chart through the plot data, against copying the same values
// into vectors.

#include "chart/ChartApi.h"
#include "plot/PlotData.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr int kCurves = 4;
constexpr int kPoints = 250000; // a million points in all

EPlotData MakeData() {
    EPlotData data;
    data.Initialize(kCurves, kPoints, 0);
    for (int s = 0; s < kCurves; ++s)
        for (int p = 0; p < kPoints; ++p)
            data.SetDataForPoint(s, p, p * 0.5, s + p * 1e-3);
    return data;
}

void PushThroughPlotData(benchmark::State& state) {
    EPlotData data = MakeData();
    RECT rect{0, 0, 600, 400};
    HWND chart = ChartCreate(0, 0, &rect, nullptr, 1);
    for (auto _ : state) {
        data.UpdatePlotFromData(chart);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kCurves * kPoints);
    ChartDestroy(chart);
}

// The baseline: the same values copied into flat X and Y vectors, element by element.
void CopyIntoVectors(benchmark::State& state) {
    EPlotData data = MakeData();
    for (auto _ : state) {
        std::vector<double> xs, ys;
        for (int s = 0; s < kCurves; ++s)
            for (int p = 0; p < kPoints; ++p) {
                xs.push_back(data.m_xValues[size_t(s)][size_t(p)]);
                ys.push_back(data.m_yValues[size_t(s)][size_t(p)]);
            }
        benchmark::DoNotOptimize(xs.data());
        benchmark::DoNotOptimize(ys.data());
    }
    state.SetItemsProcessed(state.iterations() * kCurves * kPoints);
}

} // namespace

BENCHMARK(CopyIntoVectors)->Unit(benchmark::kMillisecond);
BENCHMARK(PushThroughPlotData)->Unit(benchmark::kMillisecond);
