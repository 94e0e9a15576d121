#include "bench/english.h"
#include "engine/check/check_pass.h"

#include <benchmark/benchmark.h>

namespace wordhawk::bench {
namespace {

void KnownWord(benchmark::State& state) {
    DictionaryStore& store = English().dictionaries;
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            store.IsWordInDictionaries(Pairs()[i++ % Pairs().size()].right, Scope::MainAndCustom));
    }
}
BENCHMARK(KnownWord);

void UnknownWord(benchmark::State& state) {
    DictionaryStore& store = English().dictionaries;
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            store.IsWordInDictionaries(Pairs()[i++ % Pairs().size()].wrong, Scope::MainAndCustom));
    }
}
BENCHMARK(UnknownWord);

/// The whole pass over a document in memory.
void CheckMegabyte(benchmark::State& state) {
    Program& program = English();
    const SplitRules rules = SplitRules::From(program.state, program.settings);
    Progress progress;
    for (auto _ : state) {
        benchmark::DoNotOptimize(CheckText(Megabyte(), program.dictionaries, rules, progress));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(Megabyte().size()));
}
BENCHMARK(CheckMegabyte)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace wordhawk::bench
