#pragma once

// The sort of a grid's text column that the editing and scaling benchmarks time, and the
// random words it sorts.

#include "grid/GridCtrl.h"

#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

// Random words of eight letters, the same at every run.
inline std::vector<std::string> RandomWords(int count) {
    std::mt19937 random(42);
    std::uniform_int_distribution<int> letter('a', 'z');
    std::vector<std::string> words(size_t(count), std::string(8, ' '));
    for (std::string& word : words) {
        for (char& ch : word) {
            ch = char(letter(random));
        }
    }
    return words;
}

// Each round puts the words back into column 0 under the grid's header row, in the order they
// were made, untimed, and times the sort of that column.
inline void TimeTextSort(benchmark::State& state, CGridCtrl& grid,
                         const std::vector<std::string>& words) {
    for (auto _ : state) {
        state.PauseTiming();
        for (size_t row = 0; row < words.size(); row++) {
            grid.SetItemText(int(row) + 1, 0, words[row].c_str());
        }
        state.ResumeTiming();
        grid.SortTextItems(0, TRUE);
    }
}
