#include "presets/PresetReader.h"

#include "presets/PresetTable.h"
#include "presets/PrivateCopy.h"
#include "presets/SqliteConnection.h"
#include "presets/SqliteStatement.h"
#include "presets/StoredStop.h"

#include <algorithm>
#include <sqlite3.h>
#include <string>
#include <unordered_map>

namespace tessaly {
namespace {

constexpr std::uintmax_t mostBytes = std::uintmax_t{16} << 20U; // of the file, and of what lies beside it
constexpr std::chrono::seconds patience{5};
constexpr std::size_t mostPresets = 10'000;
constexpr std::size_t mostStops = 10'000;       // of a preset
constexpr std::size_t mostStopsInAll = 250'000; // bounds the memory that a file can ask for

const std::string mainTable = presetTable::main;
const std::string additionalTable = presetTable::additional;

struct Presets {
    std::vector<Gradient> gradients;
    std::unordered_map<std::int64_t, std::size_t> places; // by the key that their stops refer to
};

// None: not even the first could be read.
std::optional<Presets> readMainRows(const SqliteConnection& database) {
    Presets presets;
    SqliteStatement row =
        SqliteStatement::prepare(database, "select mainIndex, orientationType from " + mainTable);
    int result = row.step();
    for (; result == SQLITE_ROW && presets.gradients.size() < mostPresets; result = row.step()) {
        if (presets.places.emplace(row.integer(0), presets.gradients.size()).second) {
            presets.gradients.emplace_back(std::vector<ColorStop>{}, row.integer(1));
        }
    }
    const bool isRead = result == SQLITE_DONE || !presets.gradients.empty();
    return isRead ? std::optional{std::move(presets)} : std::nullopt;
}

// Tessaly stores nothing else, but who knows who stored this.
ColorStop inRange(ColorStop stop) {
    stop.position = std::clamp(stop.position, 0.0, 1.0);
    stop.opacity = std::clamp(stop.opacity, 0.0, 1.0);
    return stop;
}

// The stops of all presets in the order in which they were stored, which is that of each preset's own too.
void readStops(const SqliteConnection& database, Presets& presets) {
    SqliteStatement row =
        SqliteStatement::prepare(database, std::string{"select mainIndex, "} + storedStopColumns + " from " +
                                               additionalTable + " where typeof(mainIndex)='integer'");
    for (std::size_t stops = 0; stops < mostStopsInAll && row.step() == SQLITE_ROW; ++stops) {
        const auto place = presets.places.find(row.integer(0));
        if (place == presets.places.end()) {
            continue;
        }
        Gradient& gradient = presets.gradients[place->second];
        if (gradient.stops().size() < mostStops) {
            gradient.append(inRange(storedStop(row, 1)));
        }
    }
}

} // namespace

std::optional<std::vector<Gradient>> readPresetFile(const std::filesystem::path& file) {
    const std::optional<PrivateCopy> copy = PrivateCopy::of(file, mostBytes);
    if (!copy) {
        return std::nullopt;
    }
    SqliteConnection database = SqliteConnection::open(copy->file());
    database.distrust(patience);
    std::optional<Presets> presets = presetTable::areIn(database) ? readMainRows(database) : std::nullopt;
    if (!presets) {
        return std::nullopt;
    }
    readStops(database, *presets);
    return std::move(presets->gradients);
}

} // namespace tessaly
