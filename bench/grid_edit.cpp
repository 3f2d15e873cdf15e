// Editing a large grid: sorting 100000 rows by a text column, against std::sort of the same
// strings; and pasting a 1000 x 20 block of clipboard text, against setting the same texts
// one by one with SetItemText.

#include "TextSort.h"

#include "grid/GridCtrl.h"
#include "platform/host/Clipboard.h"
#include "platform/host/GlobalMemory.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr int kSortRows = 100000;
constexpr int kPasteRows = 1000;
constexpr int kPasteCols = 20;

void GridSortTextColumn(benchmark::State& state) {
    const std::vector<std::string> words = RandomWords(kSortRows);
    CGridCtrl grid(kSortRows + 1, 2, 1, 0);
    TimeTextSort(state, grid, words);
}
BENCHMARK(GridSortTextColumn)->Unit(benchmark::kMillisecond);

void StdSortSameStrings(benchmark::State& state) {
    const std::vector<std::string> words = RandomWords(kSortRows);
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<std::string> sorted = words;
        state.ResumeTiming();
        std::sort(sorted.begin(), sorted.end());
        benchmark::DoNotOptimize(sorted.data());
    }
}
BENCHMARK(StdSortSameStrings)->Unit(benchmark::kMillisecond);

// Empties the block, so that each round writes every cell anew.
void ClearBlock(CGridCtrl& grid) {
    for (int row = 1; row <= kPasteRows; row++) {
        for (int col = 1; col <= kPasteCols; col++) {
            grid.SetItemText(row, col, "");
        }
    }
}

std::string PasteText() {
    std::string text;
    char field[32];
    for (int row = 0; row < kPasteRows; row++) {
        for (int col = 0; col < kPasteCols; col++) {
            std::snprintf(field, sizeof(field), "%d.%d", row, col);
            text += field;
            text += col + 1 < kPasteCols ? "\t" : "";
        }
        text += row + 1 < kPasteRows ? "\r\n" : "";
    }
    return text;
}

void GridPasteBlock(benchmark::State& state) {
    const std::string text = PasteText();
    CGridCtrl grid(kPasteRows + 1, kPasteCols + 1, 1, 1);
    for (auto _ : state) {
        state.PauseTiming();
        ClearBlock(grid);
        state.ResumeTiming();
        HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
        std::memcpy(GlobalLock(block), text.c_str(), text.size() + 1);
        GlobalUnlock(block);
        COleDataSource source;
        source.CacheGlobalData(CF_TEXT, block);
        COleDataObject object;
        object.Attach(&source);
        grid.PasteTextToGrid(CCellID(1, 1), &object);
    }
}
BENCHMARK(GridPasteBlock)->Unit(benchmark::kMillisecond);

void SetItemTextSameBlock(benchmark::State& state) {
    std::vector<std::string> fields;
    char field[32];
    for (int row = 0; row < kPasteRows; row++) {
        for (int col = 0; col < kPasteCols; col++) {
            std::snprintf(field, sizeof(field), "%d.%d", row, col);
            fields.emplace_back(field);
        }
    }
    CGridCtrl grid(kPasteRows + 1, kPasteCols + 1, 1, 1);
    for (auto _ : state) {
        state.PauseTiming();
        ClearBlock(grid);
        state.ResumeTiming();
        size_t next = 0;
        for (int row = 0; row < kPasteRows; row++) {
            for (int col = 0; col < kPasteCols; col++) {
                grid.SetItemText(row + 1, col + 1, fields[next++].c_str());
            }
        }
    }
}
BENCHMARK(SetItemTextSameBlock)->Unit(benchmark::kMillisecond);

} // namespace
