#include "presets/PresetSafetyCopy.h"

#include "foundation/DiagnosticLog.h"
#include "presets/PrivateFile.h"
#include "presets/SqliteBackup.h"

#include <sqlite3.h>

namespace tessaly {

PresetSafetyCopy::PresetSafetyCopy(const std::filesystem::path& database)
    : database_{database},
      file_{withSuffix(database, ".safety")},
      unfinished_{withSuffix(database, ".safety-unfinished")} {}

bool PresetSafetyCopy::exists() const {
    std::error_code error;
    return std::filesystem::exists(file_, error);
}

SqliteResult PresetSafetyCopy::make(const SqliteConnection& database) const {
    std::error_code error;
    std::filesystem::remove(unfinished_, error); // of a save that crashed
    createPrivateFile(unfinished_);
    SqliteResult result;
    {
        const SqliteConnection copy = SqliteConnection::open(unfinished_);
        copy.execute("pragma journal_mode=off"); // nobody reads it before it is whole
        result = SqliteBackup{database, copy}.run();
    }
    if (result.code == SQLITE_OK) {
        std::filesystem::rename(unfinished_, file_, error);
        if (!error && syncToDisk(file_.parent_path())) {
            return result;
        }
        result = {SQLITE_IOERR, "it cannot be put in its place"};
        std::filesystem::remove(file_, error);
    }
    std::filesystem::remove(unfinished_, error);
    return result;
}

SqliteConnection PresetSafetyCopy::open() const {
    SqliteConnection copy = SqliteConnection::openImmutable(file_);
    return copy.value("pragma page_count") ? std::move(copy) : SqliteConnection{};
}

void PresetSafetyCopy::remove() const {
    std::error_code error;
    std::filesystem::remove(file_, error);
    if (error) {
        DiagnosticLog::write("Safety copy of the presets not removed: " + error.message());
    }
    syncToDisk(file_.parent_path());
}

bool PresetSafetyCopy::setAside() const {
    const std::filesystem::path dated = datedName(database_);
    std::error_code error;
    std::filesystem::rename(file_, dated, error);
    if (error) {
        DiagnosticLog::write("Presets not set aside: " + error.message());
        return false;
    }
    syncToDisk(file_.parent_path());
    DiagnosticLog::write("Presets set aside: " + dated.native());
    return true;
}

} // namespace tessaly
