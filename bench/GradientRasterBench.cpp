#include "canvas/GradientRaster.h"
#include "model/Orientation.h"

#include <benchmark/benchmark.h>
#include <vector>

namespace tessaly {
namespace {

// The picture of the canvas at its usual size, without markers.
void gradientPicture(benchmark::State& state) {
    const std::int64_t orientation = state.range(0);
    const auto count = static_cast<int>(state.range(1));
    constexpr int width = 640;
    constexpr int height = 197;
    std::vector<std::uint32_t> pixels(std::size_t{width} * height);
    const PixelBuffer buffer{pixels, width, height, 1.0, height};
    std::vector<GradientStop> stops;
    for (int i = 0; i < count; ++i) {
        const double at = static_cast<double>(i) / (count - 1);
        stops.push_back({at, Color::calibratedRGB(at, 1 - at, i % 2, 0.5 + at / 2)});
    }
    for (auto _ : state) {
        const GradientRamp ramp{stops, {0.9, 0.9, 0.9, 1.0}};
        if (orientation == orientation::radial) {
            fillRadial(buffer, {310, 88.5}, 300, ramp);
        } else {
            fillLinear(buffer, {20, 20, width - 40, height - 40}, gradientDirection(orientation), ramp);
        }
        benchmark::DoNotOptimize(pixels.data());
    }
}

BENCHMARK(gradientPicture)
    ->ArgNames({"orientation", "stops"})
    ->ArgsProduct({{0, 1, 2, 3, 4}, {10}})
    ->Args({orientation::radial, 100})
    ->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace tessaly
