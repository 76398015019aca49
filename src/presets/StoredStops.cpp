#include "presets/StoredStops.h"

#include "presets/PresetTable.h"
#include "presets/SqliteStatement.h"

#include <algorithm>
#include <sqlite3.h>

namespace tessaly {

ColorStop storedStop(const SqliteStatement& row, int firstColumn) {
    return {
        row.real(firstColumn),
        Color::calibratedRGB(row.real(firstColumn + 1), row.real(firstColumn + 2), row.real(firstColumn + 3)),
        row.real(firstColumn + 4)};
}

StoredStops::StoredStops(const SqliteConnection& database) {
    // Only rows that a main row would find: the comparison is SQLite's own, a NULL or a text equals no index.
    SqliteStatement statement = SqliteStatement::prepareFirstGeneration(
        database, std::string{"select mainIndex, position, red, green, blue, opacity from "} +
                      presetTable::additional + " where mainIndex in (select mainIndex from " +
                      presetTable::main + ")");
    int result = statement.step();
    for (; result == SQLITE_ROW; result = statement.step()) {
        rows_.emplace_back(statement.integer(0), storedStop(statement, 1));
    }
    complete_ = result == SQLITE_DONE;
    const auto byIndex = [](const Row& a, const Row& b) { return a.first < b.first; };
    std::stable_sort(rows_.begin(), rows_.end(), byIndex);
}

std::vector<ColorStop> StoredStops::of(std::int64_t mainIndex) const {
    std::vector<ColorStop> stops;
    const auto before = [](const Row& row, std::int64_t index) { return row.first < index; };
    for (auto row = std::lower_bound(rows_.begin(), rows_.end(), mainIndex, before);
         row != rows_.end() && row->first == mainIndex; ++row) {
        stops.push_back(row->second);
    }
    return stops;
}

} // namespace tessaly
