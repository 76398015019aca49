#pragma once

#include "model/ColorStop.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace tessaly {

class SqliteConnection;
class SqliteStatement;

/// The stops of one preset as the store hands them to the gallery: three parallel arrays.
struct StopArrays {
    std::vector<double> positions;
    std::vector<Color> colors; ///< opaque
    std::vector<double> opacities;

    void append(const ColorStop& stop);
};

/// A stop from five columns of the current row: position, red, green, blue, opacity.
ColorStop storedStop(const SqliteStatement& row, int firstColumn);

/// All stops that belong to a stored preset, read in one pass.
class StoredStops {
  public:
    explicit StoredStops(const SqliteConnection& database);

    /// Every row was read. When not, the ones before the failure are there.
    bool isComplete() const { return complete_; }

    /// The stops of one preset in the order of their rows.
    StopArrays of(std::int64_t mainIndex) const;

  private:
    using Row = std::pair<std::int64_t, ColorStop>;

    std::vector<Row> rows_; ///< ascending by main index
    bool complete_ = false;
};

} // namespace tessaly
