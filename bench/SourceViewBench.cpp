#include "sourceview/LineIndices.h"

#include <benchmark/benchmark.h>
#include <string>

namespace tessaly {
namespace {

std::u16string textOf(std::size_t units, std::u16string_view line) {
    std::u16string text;
    text.reserve(units + line.size());
    while (text.size() < units) {
        text += line;
    }
    return text;
}

// Of a text of 10 MB, counted as the file that the code would be: a byte a unit.
void lineStarts(benchmark::State& state, std::u16string_view line) {
    const std::u16string text = textOf(10'000'000, line);
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(LineIndices{text});
    }
}

BENCHMARK_CAPTURE(lineStarts, ofCode, u"\tbackground: linear-gradient(to right, #000000 0%);\n")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(lineStarts, ofShortLines, u"}\r\n")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(lineStarts, ofOneLine, u"x")->Unit(benchmark::kMillisecond);

void lookUp(benchmark::State& state) {
    const LineIndices lines{textOf(10'000'000, u"line of text\n")};
    std::size_t index = 0;
    while (state.KeepRunning()) {
        index = (index + 7'654'321) % 10'000'000;
        benchmark::DoNotOptimize(lines.lineNumberForCharacterIndex(index));
    }
}

BENCHMARK(lookUp);

} // namespace
} // namespace tessaly
