#pragma once

#include <cstdio>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <utility>

/// Ends a run whose input broke a rule; the engine keeps the input.
inline void require(bool holds, const char* rule) {
    if (!holds) {
        std::fprintf(stderr, "broken rule: %s\n", rule);
        std::abort();
    }
}

/// Any place in a text of that length and any count of units from there on.
inline std::pair<std::size_t, std::size_t> anyRange(FuzzedDataProvider& input, std::size_t length) {
    const auto place = input.ConsumeIntegralInRange<std::size_t>(0, length);
    return {place, input.ConsumeIntegralInRange<std::size_t>(0, length - place)};
}
