// Reading a 50 MB table of numbers with the text data reader, against a plain fgets and strtod
// loop over the same file.

#include "platform/system/FileSystem.h"
#include "support/DataReader.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <sys/stat.h>

namespace {

constexpr long kFileSize = 50L * 1024 * 1024;
constexpr int kNumbersPerRow = 8;

// The table is written once and kept in the temporary directory for later runs.
std::string TablePath() {
    std::string directory;
    if (!GetTempDir(directory))
        directory = "/tmp/";
    const std::string path = directory + "orva-bench-numbers.txt";
    struct stat info {};
    if (stat(path.c_str(), &info) == 0 && info.st_size >= kFileSize)
        return path;
    FILE* file = std::fopen(path.c_str(), "w");
    std::mt19937 random(7);
    std::uniform_real_distribution<double> values(-1000.0, 1000.0);
    long written = 0;
    for (long row = 0; written < kFileSize; ++row) {
        written += std::fprintf(file, "%ld", row);
        for (int i = 1; i < kNumbersPerRow; ++i)
            written += std::fprintf(file, ", %.6f", values(random));
        written += std::fprintf(file, "\n");
    }
    std::fclose(file);
    return path;
}

void DataReader(benchmark::State& state) {
    const std::string path = TablePath();
    for (auto _ : state) {
        FILE* file = std::fopen(path.c_str(), "r");
        CString line;
        double sum = 0.0, value = 0.0;
        while (daGetLine(line, file))
            while (daReadData(line, value))
                sum += value;
        std::fclose(file);
        benchmark::DoNotOptimize(sum);
    }
    state.SetBytesProcessed(state.iterations() * kFileSize);
}

// The baseline: whole lines with fgets, numbers with strtod.
void FgetsStrtod(benchmark::State& state) {
    const std::string path = TablePath();
    for (auto _ : state) {
        FILE* file = std::fopen(path.c_str(), "r");
        char line[4096];
        double sum = 0.0;
        while (std::fgets(line, sizeof line, file)) {
            char* cursor = line;
            for (;;) {
                cursor += std::strspn(cursor, " ,\t\r\n");
                char* end = nullptr;
                const double value = std::strtod(cursor, &end);
                if (end == cursor)
                    break;
                sum += value;
                cursor = end;
            }
        }
        std::fclose(file);
        benchmark::DoNotOptimize(sum);
    }
    state.SetBytesProcessed(state.iterations() * kFileSize);
}

} // namespace

BENCHMARK(FgetsStrtod)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(DataReader)->Unit(benchmark::kMillisecond)->Iterations(3);
