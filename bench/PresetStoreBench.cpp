// What a user waits for: the presets at start-up, and the save after one more preset, until it is on the
// disk. The log goes to a file, as a desktop session keeps it.

#include "Measure.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <unistd.h>

namespace tessaly {
namespace {

/// Sends standard error, and the log with it, to a file in that folder during its life.
class LogRedirection {
  public:
    explicit LogRedirection(const std::filesystem::path& folder) : standardError_{::dup(STDERR_FILENO)} {
        const int file = ::open((folder / "log").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        ::dup2(file, STDERR_FILENO);
        ::close(file);
    }
    LogRedirection(const LogRedirection&) = delete;
    LogRedirection& operator=(const LogRedirection&) = delete;
    ~LogRedirection() {
        ::dup2(standardError_, STDERR_FILENO);
        ::close(standardError_);
    }

  private:
    int standardError_;
};

void fill(PresetProgram& program, std::int64_t count) {
    Gradient gradient;
    for (int i = 0; i < 5; ++i) {
        const double fraction = 1.0 / (i + 3);
        gradient.append({fraction, Color::calibratedRGB(fraction, 1.0 - fraction, fraction * fraction),
                         1.0 - fraction * 0.5});
    }
    for (std::int64_t i = 0; i < count; ++i) {
        program.gallery.addGradientIntoPreset(gradient);
    }
    program.store.insertData();
}

void addPreset(benchmark::State& state) {
    const TemporaryFolder folder;
    const LogRedirection log{folder.path};
    PresetProgram program{folder.path};
    fill(program, state.range(0));
    const auto deleteLast = [&] {
        program.gallery.deletePreset(static_cast<std::size_t>(state.range(0)));
        if (program.presets().size() != static_cast<std::size_t>(state.range(0))) {
            state.SkipWithError("the list has another length");
        }
    };
    measure(
        state, [&](std::size_t /*number*/) { program.gallery.addGradientIntoPreset(); }, deleteLast);
}

void readPresets(benchmark::State& state) {
    const TemporaryFolder folder;
    const LogRedirection log{folder.path};
    {
        PresetProgram program{folder.path};
        fill(program, state.range(0));
    }
    std::optional<PresetProgram> program;
    const auto check = [&] {
        if (program->presets().size() != static_cast<std::size_t>(state.range(0))) {
            state.SkipWithError("presets are missing");
        }
        program.reset();
    };
    measure(
        state, [&](std::size_t /*number*/) { program.emplace(folder.path); }, check);
}

BENCHMARK(addPreset)->ArgName("presets")->Arg(200)->Arg(1000)->Arg(10'000)->Iterations(21)->UseManualTime();
BENCHMARK(readPresets)->ArgName("presets")->Arg(10'000)->Iterations(11)->UseManualTime();

} // namespace
} // namespace tessaly
