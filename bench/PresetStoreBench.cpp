// What a user waits for: the presets at start-up, and the save after one more preset, with its safety copy
// and its checkpoint. Each with a log that drops everything and with standard error going to a file.

#include "foundation/DiagnosticLog.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace tessaly {
namespace {

enum LogTarget : std::int64_t { Dropped, File };

/// Sends the log to one of the targets during its life.
class LogRedirection {
  public:
    LogRedirection(std::int64_t target, const std::filesystem::path& folder)
        : standardError_{::dup(STDERR_FILENO)} {
        const int file = ::open((folder / "log").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        ::dup2(file, STDERR_FILENO);
        ::close(file);
        if (target == Dropped) {
            before_ = DiagnosticLog::exchangeSink([](auto) {});
        }
    }
    LogRedirection(const LogRedirection&) = delete;
    LogRedirection& operator=(const LogRedirection&) = delete;
    ~LogRedirection() {
        ::dup2(standardError_, STDERR_FILENO);
        ::close(standardError_);
        if (before_) {
            DiagnosticLog::exchangeSink(std::move(before_));
        }
    }

  private:
    DiagnosticLog::Sink before_;
    int standardError_;
};

void fill(PresetProgram& program, std::int64_t count) {
    editGradient(1, 5);
    for (std::int64_t i = 0; i < count; ++i) {
        program.gallery.addGradientIntoPreset(nullptr);
    }
    program.store.insertData();
}

void addPreset(benchmark::State& state) {
    const TemporaryFolder folder;
    const LogRedirection log{state.range(1), folder.path};
    PresetProgram program{folder.path};
    fill(program, state.range(0));
    for (auto _ : state) {
        program.gallery.addGradientIntoPreset(&program);
    }
}

void readPresets(benchmark::State& state) {
    const TemporaryFolder folder;
    const LogRedirection log{state.range(1), folder.path};
    {
        PresetProgram program{folder.path};
        fill(program, state.range(0));
    }
    for (auto _ : state) {
        const PresetProgram program{folder.path};
        if (program.presets().size() != static_cast<std::size_t>(state.range(0))) {
            state.SkipWithError("presets are missing");
        }
    }
}

// One iteration each, so that the list has the same length every time.
BENCHMARK(addPreset)
    ->ArgNames({"presets", "log"})
    ->ArgsProduct({{200, 1000}, {Dropped, File}})
    ->Iterations(1)
    ->Repetitions(21)
    ->ReportAggregatesOnly()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readPresets)
    ->ArgNames({"presets", "log"})
    ->ArgsProduct({{10'000}, {Dropped, File}})
    ->Iterations(1)
    ->Repetitions(5)
    ->ReportAggregatesOnly()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tessaly
