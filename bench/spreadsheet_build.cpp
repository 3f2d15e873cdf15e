// Building a typed spreadsheet: time and memory per cell for a 10,000 x 12 spreadsheet whose
// columns are of every kind, made by SetRowCount, against the plain text grid of the same size
// in the same run. Memory is what the allocator holds (mallinfo2) after the rows are made, cells,
// their texts and values, and the row arrays included.

#include "HeapPerCell.h"

#include "spreadsheet/SpreadSheetORVA.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int kRows = 10000;
constexpr int kCols = 12;
constexpr double kCells = double(kRows) * kCols;

// One column of each kind that makes a cell of its own, the application's kinds, and text.
void SetEveryType(CSpreadSheetORVA& sheet) {
    CStringArray materials{"Concrete", "Steel", "HDPE", "Masonry"};
    int col = 0;
    sheet.SetColumnType(new EColTypeBTN(col++, "Details"));
    sheet.SetColumnType(new EColTypeTOG(col++, "surveyed", true));
    sheet.SetColumnType(new EColTypeCBX(col++, &materials));
    sheet.SetColumnType(new EColTypeTIM(col++));
    sheet.SetColumnType(new EColTypeINT(col++));
    sheet.SetColumnType(new EColTypeFLT(col++, 3));
    sheet.SetColumnType(new EColTypeCOLR(col++));
    sheet.SetColumnType(new EColTypeCOL(col++, 0xFF));
    sheet.SetColumnType(new EColTypeSYM(col++, 0xFF, 2, 3));
    sheet.SetColumnType(new EColTypeLIN(col++, 0xFF, 1, 2));
    CStringArray flowChoices{"<constant>", "<hydrograph>", "<gauge data>"};
    sheet.SetColumnType(new EColTypeFXY(col++, &flowChoices, "0"));
}

template <typename Grid, typename Prepare>
void MeasureBuild(benchmark::State& state, Prepare prepare) {
    MeasureBytesPerCell(
        state, kCells,
        [&prepare] {
            auto grid = std::make_unique<Grid>();
            grid->SetColumnCount(kCols);
            grid->SetFixedRowCount(1);
            prepare(*grid);
            return grid;
        },
        [](Grid& grid) { grid.SetRowCount(kRows); });
}

void SpreadsheetBuild(benchmark::State& state) {
    MeasureBuild<CSpreadSheetORVA>(state, SetEveryType);
}

void PlainGridBuild(benchmark::State& state) {
    MeasureBuild<CGridCtrl>(state, [](CGridCtrl&) {});
}

} // namespace

BENCHMARK(SpreadsheetBuild)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(PlainGridBuild)->Unit(benchmark::kMillisecond)->Iterations(5);
