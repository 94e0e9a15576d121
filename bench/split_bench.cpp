#include "bench/english.h"
#include "engine/check/word_scanner.h"

#include <benchmark/benchmark.h>

namespace wordhawk::bench {
namespace {

void Scan(benchmark::State& state, bool ignore_webs) {
    Program& program = English();
    SplitRules rules = SplitRules::From(program.state, program.settings);
    rules.ignore_webs = ignore_webs;
    for (auto _ : state) {
        WordScanner scanner(rules, *program.state.CodePage);
        std::size_t words = 0;
        scanner.Scan(Megabyte(), [&words](const ScannedWord&) { ++words; });
        benchmark::DoNotOptimize(words);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(Megabyte().size()));
}

void ScanWords(benchmark::State& state) { Scan(state, false); }
BENCHMARK(ScanWords)->Unit(benchmark::kMillisecond);

void BlankAddressesAndScanWords(benchmark::State& state) { Scan(state, true); }
BENCHMARK(BlankAddressesAndScanWords)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace wordhawk::bench
