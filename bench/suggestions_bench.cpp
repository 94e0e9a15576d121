#include "bench/english.h"
#include "engine/suggest/suggestions.h"

#include <benchmark/benchmark.h>

namespace wordhawk::bench {
namespace {

/// Arguments: search mode, and whether swapped neighbours count as one edit.
void Suggest(benchmark::State& state) {
    Program& program = English();
    SuggestionRules rules = SuggestionRules::From(program.settings);
    rules.search_mode = static_cast<std::uint8_t>(state.range(0));
    rules.count_swaps = state.range(1) != 0;
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            FindSuggestions(program.dictionaries, Pairs()[i++ % Pairs().size()].wrong, rules));
    }
}
BENCHMARK(Suggest)->ArgNames({"mode", "swaps"})->ArgsProduct({{0, 1, 2}, {0, 1}});

}  // namespace
}  // namespace wordhawk::bench
