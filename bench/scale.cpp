// How costs grow with size, fitted by Google Benchmark: a repaint of a virtual grid does not
// depend on its row count (up to 100,000,000 rows), SetRowCount grows linearly with the rows,
// a sort of a text column as n log n, and a line chart's render with its points (up to
// 10,000,000).

#include "FullHdGrid.h"
#include "TextSort.h"

#include "chart/ChartEngine.h"
#include "chart/ChartPropertyIds.h"
#include "platform/gdi/canvas/Canvas.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int kStoreCols = 20;
constexpr int kTextRows = 10000;
constexpr int kChartWidth = 1200;
constexpr int kChartHeight = 800;

// Texts of one length at any row count, so that only the count changes.
BOOL AnswerVirtualCell(GV_DISPINFO* request, LPARAM) {
    request->item.text.Format("%d.%02d", request->item.row % kTextRows, request->item.col);
    return TRUE;
}

// A full-HD virtual grid of `rows` rows scrolled to the middle, painted again and again.
void VirtualRepaintByRows(benchmark::State& state) {
    const int rows = int(state.range(0));
    FullHdGrid window;
    window.MakeVirtual(rows, AnswerVirtualCell);
    window.ScrollToMiddle();
    window.Repaint();
    for (auto _ : state) {
        window.Repaint();
    }
    state.SetComplexityN(rows);
}
BENCHMARK(VirtualRepaintByRows)
    ->RangeMultiplier(100)
    ->Range(1000, 100000000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::o1);

void SetRowCountByRows(benchmark::State& state) {
    const int rows = int(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto grid = std::make_unique<CGridCtrl>();
        grid->SetColumnCount(kStoreCols);
        state.ResumeTiming();
        grid->SetRowCount(rows);
        state.PauseTiming();
        grid.reset();
        state.ResumeTiming();
    }
    state.SetComplexityN(rows);
}
BENCHMARK(SetRowCountByRows)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

// Each round sorts the words in the order they were made, under a fixed header row.
void SortTextByRows(benchmark::State& state) {
    const int rows = int(state.range(0));
    const std::vector<std::string> words = RandomWords(rows);
    CGridCtrl grid(rows + 1, 1, 1, 0);
    TimeTextSort(state, grid, words);
    state.SetComplexityN(rows);
}
BENCHMARK(SortTextByRows)
    ->RangeMultiplier(4)
    ->Range(1 << 10, 1 << 16)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oNLogN);

void RenderLineByPoints(benchmark::State& state) {
    const int points = int(state.range(0));
    std::vector<double> xs(size_t(points), 0.0), ys(size_t(points), 0.0);
    for (int i = 0; i < points; ++i) {
        xs[size_t(i)] = i * 0.01;
        ys[size_t(i)] = std::sin(i * 1e-4) * 50 + std::sin(i * 0.37) * 5;
    }
    ChartEngine engine(kChartWidth, kChartHeight);
    engine.Properties().SetInt(chartprop::CurveCount, 1);
    engine.Properties().SetInt(chartprop::PointCount, points);
    engine.SetArray(chartprop::XData, xs.data(), points);
    engine.SetArray(chartprop::YData, ys.data(), points);
    auto canvas = Canvas::CreateImage(kChartWidth, kChartHeight);
    for (auto _ : state) {
        engine.RenderTo(*canvas);
    }
    state.SetComplexityN(points);
}
BENCHMARK(RenderLineByPoints)
    ->RangeMultiplier(10)
    ->Range(10000, 10000000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace
