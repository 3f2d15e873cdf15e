// Rendering a million-point line chart at 1200 x 800, against one pass over the data that
// finds each pixel column's lowest and highest value.

#include "chart/ChartEngine.h"
#include "platform/gdi/canvas/Canvas.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int kPoints = 1000000;
constexpr int kWidth = 1200;
constexpr int kHeight = 800;

std::vector<double> Xs() {
    std::vector<double> xs(kPoints);
    for (int i = 0; i < kPoints; ++i)
        xs[size_t(i)] = i * 0.01;
    return xs;
}

std::vector<double> Ys() {
    std::vector<double> ys(kPoints);
    for (int i = 0; i < kPoints; ++i)
        ys[size_t(i)] = std::sin(i * 1e-4) * 50 + std::sin(i * 0.37) * 5;
    return ys;
}

void RenderLineChart(benchmark::State& state) {
    ChartEngine engine(kWidth, kHeight);
    engine.Properties().SetInt(2115, 1);
    engine.Properties().SetInt(2120, kPoints);
    engine.Properties().SetString(2105, "A million points");
    const auto xs = Xs(), ys = Ys();
    engine.SetArray(3013, xs.data(), kPoints);
    engine.SetArray(3014, ys.data(), kPoints);
    auto canvas = Canvas::CreateImage(kWidth, kHeight);
    for (auto _ : state)
        engine.RenderTo(*canvas);
    state.SetItemsProcessed(state.iterations() * kPoints);
}

void ColumnMinMaxPass(benchmark::State& state) {
    const auto xs = Xs(), ys = Ys();
    std::vector<double> low(kWidth), high(kWidth);
    for (auto _ : state) {
        std::fill(low.begin(), low.end(), 1e300);
        std::fill(high.begin(), high.end(), -1e300);
        const double scale = (kWidth - 1) / (xs.back() - xs.front());
        for (int i = 0; i < kPoints; ++i) {
            const size_t column = size_t((xs[size_t(i)] - xs.front()) * scale);
            low[column] = std::min(low[column], ys[size_t(i)]);
            high[column] = std::max(high[column], ys[size_t(i)]);
        }
        benchmark::DoNotOptimize(low.data());
        benchmark::DoNotOptimize(high.data());
    }
    state.SetItemsProcessed(state.iterations() * kPoints);
}

} // namespace

BENCHMARK(ColumnMinMaxPass)->Unit(benchmark::kMillisecond);
BENCHMARK(RenderLineChart)->Unit(benchmark::kMillisecond);
