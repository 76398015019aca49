#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <vector>

namespace tessaly {

/// The time that `step` takes, in seconds.
double secondsOf(auto step) {
    const auto start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// There must be one value at least.
inline double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Times each pass of a benchmark with manual time on its own and reports the median and the worst of them,
/// in seconds. `step` is told the number of its pass; `restore` runs behind each pass and is not timed.
void measure(benchmark::State& state, auto step, auto restore) {
    std::vector<double> times;
    for (auto _ : state) {
        times.push_back(secondsOf([&] { step(times.size()); }));
        state.SetIterationTime(times.back());
        restore();
    }
    if (times.empty()) {
        return; // an error was reported
    }
    state.counters["median"] = median(times);
    state.counters["worst"] = *std::max_element(times.begin(), times.end());
}

void measure(benchmark::State& state, auto step) {
    measure(state, step, [] {});
}

} // namespace tessaly
