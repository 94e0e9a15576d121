#include "bench/english.h"
#include "engine/suggest/cLS.h"

#include <benchmark/benchmark.h>

namespace wordhawk::bench {
namespace {

void Distance(benchmark::State& state, Transposition transposition) {
    cLS measure;
    std::size_t i = 0;
    for (auto _ : state) {
        const Pair& pair = Pairs()[i++ % Pairs().size()];
        benchmark::DoNotOptimize(
            measure.LevenshteinDistance(pair.wrong, pair.right, transposition));
    }
}

void DistanceWithoutSwaps(benchmark::State& state) { Distance(state, Transposition::NotCounted); }
BENCHMARK(DistanceWithoutSwaps);

void DistanceWithSwaps(benchmark::State& state) { Distance(state, Transposition::OneEdit); }
BENCHMARK(DistanceWithSwaps);

}  // namespace
}  // namespace wordhawk::bench
