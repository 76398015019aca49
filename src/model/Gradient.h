#pragma once

#include "model/ColorStop.h"
#include "model/Orientation.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace tessaly {

/// A gradient: its stops, in the order of the editor, which is ascending unless a position was typed, and its
/// orientation. There may be no stops.
///
/// A stop that is removed deliberately leaves its opacity behind: every later stop takes that of the stop
/// before it, and a stop added at the end takes the one that is left over. Gradients that people have edited
/// this way keep their look. Nobody else needs to know.
class Gradient {
  public:
    Gradient() = default;
    explicit Gradient(std::vector<ColorStop> stops, std::int64_t orientation = orientation::leftToRight)
        : stops_{std::move(stops)}, orientation_{orientation} {}

    const std::vector<ColorStop>& stops() const { return stops_; }

    /// Of removed stops, in the order in which they are taken.
    const std::vector<double>& leftOpacities() const { return leftOpacities_; }

    /// Stop `index`, or none when there is no such stop.
    std::optional<ColorStop> stopAt(std::int64_t index) const;

    /// One of the codes of Orientation.h, or any other value for none.
    std::int64_t orientation() const { return orientation_; }
    void setOrientation(std::int64_t code) { orientation_ = code; }

    void append(const ColorStop& stop);

    /// Puts the stop before the first one whose position is greater, else at the end; its place.
    std::int64_t insertSorted(const ColorStop& stop);

    // Of a stop that is there.
    void remove(std::int64_t index);
    void replace(std::int64_t index, const ColorStop& stop) {
        stops_[static_cast<std::size_t>(index)] = stop;
    }

    /// Gives the stop another position and its sorted place, which is answered.
    std::int64_t move(std::int64_t index, double position);

    bool operator==(const Gradient&) const = default;

  private:
    std::vector<ColorStop> stops_;
    std::int64_t orientation_ = orientation::leftToRight;
    std::vector<double> leftOpacities_;
};

} // namespace tessaly
