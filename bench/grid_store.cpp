// Filling the grid store: memory per cell and time for a 100000 x 20 grid made by SetRowCount,
// against the same number of bare heap objects of a text cell's size, kept in the same rows
// of pointers. Memory is what the allocator holds (mallinfo2), headers and row arrays
// included. Also the cost of one cell lookup in virtual mode, where each call asks the
// application for the cell's data.

#include "grid/GridCtrl.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <memory>
#include <vector>

namespace {

constexpr int kRows = 100000;
constexpr int kCols = 20;
constexpr double kCells = double(kRows) * kCols;

size_t HeapInUse() {
    return mallinfo2().uordblks;
}

void GridSetRowCount(benchmark::State& state) {
    double bytesPerCell = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto grid = std::make_unique<CGridCtrl>();
        grid->SetColumnCount(kCols);
        const size_t before = HeapInUse();
        state.ResumeTiming();

        grid->SetRowCount(kRows);

        state.PauseTiming();
        bytesPerCell = double(HeapInUse() - before) / kCells;
        grid.reset();
        state.ResumeTiming();
    }
    state.counters["bytes_per_cell"] = bytesPerCell;
    state.counters["cell_object_size"] = double(sizeof(CGridCell));
    state.SetItemsProcessed(state.iterations() * int64_t(kCells));
}

struct BareCell {
    alignas(alignof(CGridCell)) unsigned char bytes[sizeof(CGridCell)];
};

void BaselineBareObjects(benchmark::State& state) {
    double bytesPerCell = 0;
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<std::vector<BareCell*>*> rows;
        const size_t before = HeapInUse();
        state.ResumeTiming();

        rows.reserve(kRows);
        for (int row = 0; row < kRows; row++) {
            auto* cells = new std::vector<BareCell*>(kCols, nullptr);
            for (BareCell*& cell : *cells) {
                cell = new BareCell;
            }
            rows.push_back(cells);
        }
        benchmark::DoNotOptimize(rows.data());

        state.PauseTiming();
        bytesPerCell = double(HeapInUse() - before) / kCells;
        for (auto* cells : rows) {
            for (BareCell* cell : *cells) {
                delete cell;
            }
            delete cells;
        }
        state.ResumeTiming();
    }
    state.counters["bytes_per_cell"] = bytesPerCell;
    state.SetItemsProcessed(state.iterations() * int64_t(kCells));
}

BOOL AnswerRowAndColumn(GV_DISPINFO* request, LPARAM) {
    request->item.text.Format("%d/%d", request->item.row, request->item.col);
    return TRUE;
}

void VirtualGetCell(benchmark::State& state) {
    CGridCtrl grid;
    grid.SetVirtualMode(TRUE);
    grid.SetCallbackFunc(AnswerRowAndColumn, 0);
    grid.SetRowCount(kRows);
    grid.SetColumnCount(kCols);
    grid.SetFixedRowCount(1);
    int row = 0;
    for (auto _ : state) {
        CGridCellBase* cell = grid.GetCell(row, row % kCols);
        benchmark::DoNotOptimize(cell);
        row = row + 7919 < kRows ? row + 7919 : row + 7919 - kRows;
    }
    state.SetItemsProcessed(state.iterations());
}

} // namespace

BENCHMARK(GridSetRowCount)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(BaselineBareObjects)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(VirtualGetCell);
