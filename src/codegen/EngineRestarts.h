#pragma once

#include <chrono>
#include <optional>

namespace tessaly {

/// When a browser engine whose process ended is started again: later each time, and a few times in a row at
/// most. All times are on one steady clock.
class EngineRestarts {
  public:
    using Time = std::chrono::steady_clock::time_point;
    using Pause = std::chrono::milliseconds;

    static constexpr int mostInARow = 5;

    void started(Time now) { startedAt_ = now; }

    /// The pause before the next start; none when there were too many in a row.
    std::optional<Pause> ended(Time now);

    bool hasGivenUp() const { return inARow_ > mostInARow; }

    /// The pause before a start that is asked for after giving up; zero when the last end is long ago.
    Pause untilWorthATry(Time now) const;

  private:
    Time startedAt_;
    Time endedAt_;
    int inARow_ = 0;
};

} // namespace tessaly
