#include "Measure.h"
#include "exchange/CssReader.h"

#include <benchmark/benchmark.h>
#include <string>

namespace tessaly {
namespace {

constexpr std::size_t megabyte = 1U << 20U;
constexpr std::size_t gradients = 10'000;

// A stylesheet of that size with as many gradients as are read at most, between other rules.
std::string stylesheetOf(std::size_t megabytes, std::size_t count = gradients) {
    const std::size_t size = megabytes * megabyte;
    std::string text;
    text.reserve(size + megabyte);
    for (std::size_t i = 0; i < count; ++i) {
        text += ".c" + std::to_string(i) + " { background: linear-gradient(to right, #12ab" +
                std::to_string(10 + i % 90) + " 0%, rgba(10,20,30,.5) 100%); }\n";
        while (text.size() < size * (i + 1) / count) {
            text += ".other > a:hover { color: #333; margin: 0 auto 12px; }\n";
        }
    }
    return text;
}

void cssRead(benchmark::State& state) {
    const std::string text = stylesheetOf(static_cast<std::size_t>(state.range(0)));
    measure(state, [&](std::size_t /*number*/) { benchmark::DoNotOptimize(readCssGradients(text)); });
}

// One text of 16 MB against sixteen of 1 MB with a sixteenth of the gradients each: 1 when the time grows
// with the text alone.
void cssReadGrowth(benchmark::State& state) {
    constexpr std::size_t parts = 16;
    const std::string large = stylesheetOf(parts - 1); // what the last rules are longer still fits
    const std::string small = stylesheetOf(1, gradients / parts);
    std::vector<double> growth;
    while (state.KeepRunning()) {
        const double one = secondsOf([&] { benchmark::DoNotOptimize(readCssGradients(large)); });
        const double all = secondsOf([&] {
            for (std::size_t part = 0; part < parts; ++part) {
                benchmark::DoNotOptimize(readCssGradients(small));
            }
        });
        growth.push_back(one / all);
        state.SetIterationTime(one + all);
    }
    state.counters["median"] = median(growth);
}

BENCHMARK(cssRead)->ArgName("megabytes")->Arg(1)->Arg(16)->Iterations(21)->UseManualTime();
BENCHMARK(cssReadGrowth)->Iterations(11)->UseManualTime();

} // namespace
} // namespace tessaly
