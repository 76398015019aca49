#include "presets/SafetyCopy.h"

#include "foundation/DiagnosticLog.h"
#include "presets/PresetTable.h"
#include "presets/PrivateFile.h"
#include "presets/SetAside.h"
#include "presets/SqliteConnection.h"

namespace tessaly {
namespace {

// -1 for what is no sound database of presets.
std::int64_t rowsIn(SqliteConnection database) {
    database.limitToSize();
    const std::optional<std::string> rows =
        database.value(std::string{"select (select count(*) from "} + presetTable::main +
                       ") + (select count(*) from " + presetTable::additional + ")");
    return rows && database.value("pragma quick_check(1)") == "ok" ? std::stoll(*rows) : -1;
}

} // namespace

void takeOverSafetyCopy(const std::filesystem::path& database) {
    const std::filesystem::path copy = withSuffix(database, ".safety");
    std::error_code error;
    std::filesystem::remove(withSuffix(database, ".safety-unfinished"), error); // of a save that crashed
    if (!std::filesystem::exists(copy, error)) {
        return;
    }
    const std::int64_t stored =
        std::filesystem::exists(database, error) ? rowsIn(SqliteConnection::open(database)) : -1;
    const bool holdsMore = rowsIn(SqliteConnection::openImmutable(copy)) > stored;
    if (!holdsMore) {
        setAside(copy);
    } else if (setAside(database)) {
        std::filesystem::rename(copy, database, error);
        DiagnosticLog::write("The last save did not finish: presets restored");
    }
}

} // namespace tessaly
