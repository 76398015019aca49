#pragma once

#include "model/Gradient.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace tessaly {

/// The stops of the gradient being edited, as the editor changes them, and which of them is selected.
class ColorMarkers {
  public:
    /// The gradient must outlive the object.
    explicit ColorMarkers(Gradient& gradient) : gradient_{gradient} {}

    const Gradient& gradient() const { return gradient_; }

    /// Add a stop and select it: at the end, or before the first stop whose position is greater.
    void append(const ColorStop& stop);
    void insertSorted(const ColorStop& stop);

    /// Removes the selected stop and selects the one before it.
    void deleteColorMarker();

    /// Gives the selected stop another position and its sorted place; it stays selected.
    void moveSelected(double position);

    /// The selection may point past the stops (after a deletion, or when a preset with fewer stops was
    /// applied).
    std::int64_t selectedColorMarkerIndex() const { return selectedColorMarkerIndex_; }
    void select(std::int64_t index) { selectedColorMarkerIndex_ = index; }
    std::optional<ColorStop> selectedStop() const;

    /// Changes the selected stop in place, without sorting; nothing happens when there is no such stop.
    void changeSelected(const std::function<void(ColorStop&)>& change);

  private:
    void selectSorted(std::int64_t index);

    Gradient& gradient_;
    std::int64_t selectedColorMarkerIndex_ = 0;
};

} // namespace tessaly
