// The number formatter with automatic decimals, against printf's "%.15g" on the same values.

#include "support/FormatDouble.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

namespace {

// Values of the kinds that reach the screen: measured ones, round ones, tiny and huge ones.
std::vector<double> Values() {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-8, 14);
    std::vector<double> values;
    for (int i = 0; i < 4096; ++i) {
        const double v = mantissa(random) * std::pow(10.0, exponent(random));
        values.push_back(i % 4 == 0 ? std::round(v) : v);
    }
    return values;
}

void XgFormatDouble(benchmark::State& state) {
    const std::vector<double> values = Values();
    for (auto _ : state)
        for (double v : values) {
            CString text = xgFormatDouble(v, -1, 15, 0);
            benchmark::DoNotOptimize(text);
        }
    state.SetItemsProcessed(state.iterations() * long(values.size()));
}

void SnprintfG(benchmark::State& state) {
    const std::vector<double> values = Values();
    char buffer[64];
    for (auto _ : state)
        for (double v : values) {
            std::snprintf(buffer, sizeof buffer, "%.15g", v);
            benchmark::DoNotOptimize(buffer);
        }
    state.SetItemsProcessed(state.iterations() * long(values.size()));
}

} // namespace

BENCHMARK(SnprintfG);
BENCHMARK(XgFormatDouble);
