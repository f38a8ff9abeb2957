// Taking out one of many remembered values, which moves all later ones down by one key.
#include <benchmark/benchmark.h>

#include "settings/value_history.h"

namespace {

using namespace lx;

const Path filePath = "bench-settings.dat";

void removeAValue(benchmark::State& state) {
    Bytes bytes = "[H]\nnr=" + std::to_string(state.range(0)) + "\n";
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        bytes += std::to_string(i) + "=" + std::to_string(1000 + i) + "\n";
    }
    Profile profile(systemFiles(), filePath);
    ValueHistory values(profile, "H");
    for (auto _ : state) {
        state.PauseTiming();
        systemFiles().replace(filePath, bytes);
        state.ResumeTiming();
        if (!values.remove("1000")) state.SkipWithError("the file could not be written");
    }
    systemFiles().remove(filePath);
}

BENCHMARK(removeAValue)
    ->Name("forget/module")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000);

}  // namespace
