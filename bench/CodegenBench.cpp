#include "Measure.h"
#include "codegen/DeclarationText.h"
#include "support/Gradients.h"

#include <benchmark/benchmark.h>
#include <vector>

namespace tessaly {
namespace {

void setStops(std::int64_t count) {
    resetToDefaultGradient();
    GlobalData& data = GlobalData::sharedData();
    data.setColorFormatType(colorFormat::hsla);
    data.setColorMarkerPos({});
    for (std::int64_t i = 0; i < count; ++i) {
        data.colorMarkerPos().push_back(static_cast<double>(i) / static_cast<double>(count - 1));
    }
    data.colorMarkerColor().assign(static_cast<std::size_t>(count), Color::calibratedRGB(0.7, 0.2, 0.4));
    data.colorMarkerOpacity().assign(static_cast<std::size_t>(count), 0.75);
}

void writeEightDeclarations() {
    for (const Declaration declaration : allDeclarations) {
        benchmark::DoNotOptimize(declarationText(declaration, GlobalData::sharedData()));
    }
}

void eightDeclarations(benchmark::State& state) {
    setStops(state.range(0));
    measure(state, [](std::size_t /*number*/) { writeEightDeclarations(); });
}

// One gradient of 100,000 stops against a hundred of 1,000, in turn: 1 when the time grows with the stops
// alone.
void declarationGrowth(benchmark::State& state) {
    std::vector<double> growth;
    while (state.KeepRunning()) {
        setStops(100'000);
        const double one = secondsOf(writeEightDeclarations);
        setStops(1000);
        const double hundred = secondsOf([] {
            for (int i = 0; i < 100; ++i) {
                writeEightDeclarations();
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
