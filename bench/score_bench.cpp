#include "bench/english.h"
#include "dict/phonetic_key.h"
#include "engine/suggest/modSimPercent.h"

#include <benchmark/benchmark.h>

namespace wordhawk::bench {
namespace {

void Score(benchmark::State& state) {
    const AnsiCodePage& page = AnsiCodePage::Get(1252);
    std::size_t i = 0;
    for (auto _ : state) {
        const Pair& pair = Pairs()[i++ % Pairs().size()];
        benchmark::DoNotOptimize(
            modSimPercent::SimilarityPercent(pair.wrong, pair.right, 0, 0, 0, page));
    }
}
BENCHMARK(Score);

void PhoneticKey(benchmark::State& state) {
    const AnsiCodePage& page = AnsiCodePage::Get(1252);
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(GetPhoneticKey(Pairs()[i++ % Pairs().size()].right, page));
    }
}
BENCHMARK(PhoneticKey);

}  // namespace
}  // namespace wordhawk::bench
