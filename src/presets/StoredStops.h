#pragma once

#include "model/ColorStop.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace tessaly {

class SqliteConnection;
class SqliteStatement;

/// A stop from five columns of the current row: position, red, green, blue, opacity.
ColorStop storedStop(const SqliteStatement& row, int firstColumn);

/// All stops that belong to a stored preset, read in one pass.
class StoredStops {
  public:
    explicit StoredStops(const SqliteConnection& database);

    /// Every row was read. When not, the ones before the failure are there.
    bool isComplete() const { return complete_; }

    /// The stops of one preset in the order of their rows.
    std::vector<ColorStop> of(std::int64_t mainIndex) const;

  private:
    using Row = std::pair<std::int64_t, ColorStop>;

    std::vector<Row> rows_; ///< ascending by main index
    bool complete_ = false;
};

} // namespace tessaly
