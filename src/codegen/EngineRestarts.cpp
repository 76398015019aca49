#include "codegen/EngineRestarts.h"

#include <algorithm>

namespace tessaly {
namespace {

using namespace std::chrono_literals;

constexpr EngineRestarts::Pause firstPause = 200ms;
constexpr EngineRestarts::Pause lastPause = firstPause * (1 << (EngineRestarts::mostInARow - 1));
constexpr EngineRestarts::Pause soundLife = 10s; // an end after it has nothing to do with those before

} // namespace

std::optional<EngineRestarts::Pause> EngineRestarts::ended(Time now) {
    if (now - startedAt_ >= soundLife) {
        inARow_ = 0;
    }
    endedAt_ = now;
    inARow_ = std::min(inARow_, mostInARow) + 1;
    if (hasGivenUp()) {
        return std::nullopt;
    }
    return firstPause * (1 << (inARow_ - 1));
}

EngineRestarts::Pause EngineRestarts::untilWorthATry(Time now) const {
    return std::max(Pause{}, lastPause - std::chrono::duration_cast<Pause>(now - endedAt_));
}

} // namespace tessaly
