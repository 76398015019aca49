#pragma once

#include "exchange/CssColor.h"
#include "exchange/StopMixing.h"
#include "model/ColorStop.h"

#include <span>
#include <string>
#include <vector>

namespace tessaly {

/// A stop as a text writes it.
struct WrittenStop {
    std::optional<ReadColor> color;   ///< none: a hint, which says where half of the way to the next stop is
    std::optional<double> position{}; ///< of the gradient's length, may lie outside 0 ... 1; none: left out
};

/// Where the positions 0 and 1 of a text come to lie in the gradient; the start lies before the end.
struct StopTrack {
    double start = 0.0;
    double end = 1.0;

    bool operator==(const StopTrack&) const = default;
};

/// Where the stops of a gradient are, as a browser finds it: positions that are left out are spread, one
/// below an earlier one is drawn at that one. Stands in for what a gradient here cannot say.
class StopPlacement {
  public:
    /// At least one stop; the first and the last are no hints, and no two hints follow each other.
    StopPlacement(std::span<const WrittenStop> written, StopTrack track, StopMixing mixing);

    /// Whether the stops reach from one end to the other.
    bool coversAll() const;

    /// The stops at 0 ... 1, in their order; turned round, from the other end.
    std::vector<ColorStop> stops(bool turned) const;

    /// What stands in for something else, a phrase each.
    std::vector<std::string> notes() const;

  private:
    struct Stop {
        double written;
        double drawn; ///< never less than that of the stop before
        std::optional<ReadColor> color;
    };

    void place(std::span<const WrittenStop> written, StopTrack track);
    void spread(std::size_t begin, std::size_t end);
    void replaceHints();
    void cut(StopMixing mixing);

    std::vector<Stop> stops_;
    bool isCut_ = false;
    bool standsForHints_ = false;
};

} // namespace tessaly
