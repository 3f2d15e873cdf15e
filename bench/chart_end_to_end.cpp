// A million-point line chart from nothing to a PNG file through the chart's interface: create
// the chart, push the points, lay it out, render it and write the file. Its aim is absolute
// (20 ms); the parts are measured against their own baselines in the other chart benchmarks.

#include "chart/ChartApi.h"
#include "chart/ChartPropertyIds.h"
#include "platform/system/FileSystem.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int kPoints = 1000000;
constexpr int kWidth = 1200;
constexpr int kHeight = 800;

void ChartToPngFile(benchmark::State& state) {
    std::vector<double> xs(kPoints), ys(kPoints);
    for (int i = 0; i < kPoints; ++i) {
        xs[size_t(i)] = i * 0.01;
        ys[size_t(i)] = std::sin(i * 1e-4) * 50 + std::sin(i * 0.37) * 5;
    }
    std::string directory;
    if (!GetTempDir(directory))
        directory = "/tmp/";
    const std::string path = directory + "orva-bench-chart.png";
    int size[] = {kWidth, kHeight};
    for (auto _ : state) {
        RECT rect{0, 0, kWidth, kHeight};
        HWND chart = ChartCreate(0, 0, &rect, nullptr, 1);
        ChartSetInt(chart, chartprop::CurveCount, 1);
        ChartSetInt(chart, chartprop::PointCount, kPoints);
        ChartSetString(chart, chartprop::MainTitle, "A million points");
        ChartSetArray(chart, chartprop::XData, xs.data(), kPoints);
        ChartSetArray(chart, chartprop::YData, ys.data(), kPoints);
        if (!ChartCopyBitmapToFile(chart, size, path.c_str()))
            state.SkipWithError("the chart was not written");
        ChartDestroy(chart);
    }
    std::remove(path.c_str());
    state.counters["aim ms"] = 20;
}

} // namespace

BENCHMARK(ChartToPngFile)->Unit(benchmark::kMillisecond);
