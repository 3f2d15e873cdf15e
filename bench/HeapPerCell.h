#pragma once

// Memory per cell for the benchmarks that build cells: what the allocator holds (mallinfo2),
// headers and row arrays included, taken around the timed step alone.

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <cstddef>
#include <cstdint>

inline size_t HeapInUse() {
    return mallinfo2().uordblks;
}

// Each iteration makes a subject with `make` (a std::unique_ptr) untimed, times `build(*subject)`
// and, untimed again, counts what the build added to the heap and destroys the subject. Reports
// the last iteration's bytes over `cells` as the counter "bytes_per_cell", and the cells built as
// the items processed.
template <typename Make, typename Build>
void MeasureBytesPerCell(benchmark::State& state, double cells, Make make, Build build) {
    double bytesPerCell = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto subject = make();
        const size_t before = HeapInUse();
        state.ResumeTiming();

        build(*subject);

        state.PauseTiming();
        bytesPerCell = double(HeapInUse() - before) / cells;
        subject.reset();
        state.ResumeTiming();
    }
    state.counters["bytes_per_cell"] = bytesPerCell;
    state.SetItemsProcessed(state.iterations() * int64_t(cells));
}
