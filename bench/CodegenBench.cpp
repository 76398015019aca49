#include "codegen/DeclarationText.h"
#include "codegen/WebCode.h"
#include "codegen/WebView.h"
#include "foundation/DiagnosticLog.h"
#include "support/FakeCodeText.h"
#include "support/Gradients.h"

#include <benchmark/benchmark.h>

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

void eightDeclarations(benchmark::State& state) {
    setStops(state.range(0));
    for (auto _ : state) {
        for (const Declaration declaration : allDeclarations) {
            benchmark::DoNotOptimize(declarationText(declaration, GlobalData::sharedData()));
        }
    }
    state.SetComplexityN(state.range(0));
}

BENCHMARK(eightDeclarations)
    ->Arg(2)
    ->RangeMultiplier(10)
    ->Range(100, 100'000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

} // namespace
} // namespace tessaly
