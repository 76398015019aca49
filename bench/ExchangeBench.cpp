#include "Measure.h"
#include "exchange/CssReader.h"
#include "exchange/PngWriter.h"
#include "raster/GradientPicture.h"
#include "support/TemporaryFolder.h"

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

// Ten stops of colours and opacities that repeat late.
Gradient colorful(std::int64_t orientation) {
    constexpr int stops = 10;
    Gradient gradient{{}, orientation};
    for (int i = 0; i < stops; ++i) {
        const Color color = Color::calibratedRGB(i % 4 / 3.0, i % 3 / 2.0, i % 2);
        gradient.append({i / (stops - 1.0), color, 1.0 - i % 5 / 10.0});
    }
    return gradient;
}

// A picture of 3840 x 2160 into a file; what of it is the raster, and what the encoder.
void pngWrite(benchmark::State& state) {
    constexpr int rowsAtOnce = 16;
    const GradientPicture picture{colorful(state.range(0)), GradientRamp::Opacity::Drawn, 3840, 2160};
    std::vector<std::uint32_t> rows(static_cast<std::size_t>(rowsAtOnce * picture.width()));
    const TemporaryFolder folder;
    std::vector<double> rasters;
    std::vector<double> encoders;
    const auto require = [&state](const std::error_code& error) {
        if (error) {
            state.SkipWithError(error.message().c_str());
        }
    };
    measure(
        state, [&](std::size_t /*number*/) { require(writePngFile(picture, folder.path / "gradient.png")); },
        [&] {
            rasters.push_back(secondsOf([&] {
                for (int first = 0; first < picture.height(); first += rowsAtOnce) {
                    picture.fillRows(first, rows);
                }
            }));
            const auto drop = [](std::string_view /*bytes*/) { return std::error_code{}; };
            encoders.push_back(secondsOf([&] { require(writePng(picture, drop)); }) - rasters.back());
        });
    state.counters["raster"] = median(rasters);
    state.counters["encoder"] = median(encoders);
}

BENCHMARK(pngWrite)->ArgName("orientation")->Arg(1)->Arg(2)->Arg(4)->Iterations(11)->UseManualTime();
BENCHMARK(cssRead)->ArgName("megabytes")->Arg(1)->Arg(16)->Iterations(21)->UseManualTime();
BENCHMARK(cssReadGrowth)->Iterations(11)->UseManualTime();

} // namespace
} // namespace tessaly
