#include "Measure.h"
#include "codegen/DeclarationText.h"
#include "model/ColorFormat.h"
#include "model/Gradient.h"

#include <benchmark/benchmark.h>
#include <utility>
#include <vector>

namespace tessaly {
namespace {

Gradient gradientOf(std::int64_t count) {
    std::vector<ColorStop> stops(static_cast<std::size_t>(count),
                                 {0.0, Color::calibratedRGB(0.7, 0.2, 0.4), 0.75});
    for (std::size_t i = 0; i < stops.size(); ++i) {
        stops[i].position = static_cast<double>(i) / static_cast<double>(count - 1);
    }
    return Gradient{std::move(stops)};
}

void writeEightDeclarations(const Gradient& gradient) {
    for (const Declaration declaration : allDeclarations) {
        benchmark::DoNotOptimize(declarationText(declaration, gradient, colorFormat::hsla));
    }
}

void eightDeclarations(benchmark::State& state) {
    const Gradient gradient = gradientOf(state.range(0));
    measure(state, [&](std::size_t /*number*/) { writeEightDeclarations(gradient); });
}

// One gradient of 100,000 stops against a hundred of 1,000, in turn: 1 when the time grows with the stops
// alone.
void declarationGrowth(benchmark::State& state) {
    const Gradient large = gradientOf(100'000);
    const Gradient small = gradientOf(1000);
    std::vector<double> growth;
    while (state.KeepRunning()) {
        const double one = secondsOf([&] { writeEightDeclarations(large); });
        const double hundred = secondsOf([&] {
            for (int i = 0; i < 100; ++i) {
                writeEightDeclarations(small);
            }
        });
        growth.push_back(one / hundred);
        state.SetIterationTime(one + hundred);
    }
    state.counters["median"] = median(growth);
}

BENCHMARK(eightDeclarations)->ArgName("stops")->Arg(2)->UseManualTime();
BENCHMARK(declarationGrowth)->Iterations(11)->UseManualTime();

} // namespace
} // namespace tessaly
