// Filling the grid store: memory per cell and time for a 100000 x 20 grid made by SetRowCount,
// against the same number of bare heap objects of a text cell's size, kept in the same rows
// of pointers. Memory is what the allocator holds (mallinfo2), headers and row arrays
// included. Also the cost of one cell lookup in virtual mode, where each call asks the
// application for the cell's data.

#include "HeapPerCell.h"

#include "grid/GridCtrl.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

constexpr int kRows = 100000;
constexpr int kCols = 20;
constexpr double kCells = double(kRows) * kCols;

void GridSetRowCount(benchmark::State& state) {
    MeasureBytesPerCell(
        state, kCells,
        [] {
            auto grid = std::make_unique<CGridCtrl>();
            grid->SetColumnCount(kCols);
            return grid;
        },
        [](CGridCtrl& grid) { grid.SetRowCount(kRows); });
    state.counters["cell_object_size"] = double(sizeof(CGridCell));
}

struct BareCell {
    alignas(alignof(CGridCell)) unsigned char bytes[sizeof(CGridCell)];
};

// Rows of pointers to bare cells, laid out as the grid keeps its rows.
struct BareRows {
    std::vector<std::vector<BareCell*>*> rows;

    ~BareRows() {
        for (auto* cells : rows) {
            for (BareCell* cell : *cells) {
                delete cell;
            }
            delete cells;
        }
    }
};

void BaselineBareObjects(benchmark::State& state) {
    MeasureBytesPerCell(
        state, kCells, [] { return std::make_unique<BareRows>(); },
        [](BareRows& bare) {
            bare.rows.reserve(kRows);
            for (int row = 0; row < kRows; row++) {
                auto* cells = new std::vector<BareCell*>(kCols, nullptr);
                for (BareCell*& cell : *cells) {
                    cell = new BareCell;
                }
                bare.rows.push_back(cells);
            }
            benchmark::DoNotOptimize(bare.rows.data());
        });
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
