#include "presets/PresetDatabase.h"

#include "foundation/DiagnosticLog.h"
#include "presets/PresetTable.h"
#include "presets/PrivateFile.h"
#include "presets/SetAside.h"

#include <sqlite3.h>
#include <utility>

namespace tessaly {
namespace {

struct Rows {
    std::int64_t count = -1; ///< of what is no sound database of presets
    SqliteResult failure;

    /// For reasons that may pass.
    bool areUnknown() const { return failure.isLock() || failure.isDiskFailure(); }
};

Rows rowsIn(SqliteConnection database, std::chrono::milliseconds patience) {
    database.waitForLocks(patience);
    SqliteResult firstRead = database.execute("begin; select count(*) from sqlite_master"); // no lock later
    if (firstRead.code != SQLITE_OK) {
        return {-1, std::move(firstRead)};
    }
    database.limitToSize();
    const std::optional<std::string> rows =
        database.value("select (select count(*) from " + presetTable::main + ") + (select count(*) from " +
                       presetTable::additional + ")");
    const bool isSound = rows && database.value("pragma quick_check(1)") == "ok";
    return isSound ? Rows{std::stoll(*rows), {}} : Rows{-1, database.lastResult()};
}

// Up to version 0.1 a copy of the database stood beside it while a save was under way. One that holds more
// than the database, which a save then emptied, takes its place once; any other is set aside. While one of
// them cannot be read, both stay. Answers why the database cannot.
SqliteResult takeOverSafetyCopy(const std::filesystem::path& database, std::chrono::milliseconds patience) {
    const std::filesystem::path copy = withSuffix(database, ".safety");
    std::error_code error;
    std::filesystem::remove(withSuffix(database, ".safety-unfinished"), error); // of a save that crashed
    if (!std::filesystem::exists(copy, error)) {
        return {};
    }
    const bool isThere = std::filesystem::exists(database, error);
    const Rows stored = isThere ? rowsIn(SqliteConnection::open(database), patience) : Rows{};
    const Rows copied = rowsIn(SqliteConnection::openImmutable(copy), {});
    if (stored.areUnknown() || copied.areUnknown()) {
        return stored.failure;
    }
    if (copied.count <= stored.count) {
        setAside(copy);
    } else if (setAside(database)) {
        std::filesystem::rename(copy, database, error);
        DiagnosticLog::write("The last save did not finish: presets restored");
    }
    return {};
}

} // namespace

PresetDatabase::PresetDatabase(std::filesystem::path folder)
    : folder_{std::move(folder)}, file_{folder_ / "localDB.sqlite3"} {}

bool PresetDatabase::open(std::chrono::milliseconds patience) {
    makePrivate(folder_);
    SqliteResult result = takeOverSafetyCopy(file_.path(), patience);
    if (!result.isLock()) { // that was waited for already
        result = file_.read(memory_, patience);
    }
    usable_ = false;
    checked_ = false;
    const std::string reason = result.message.value_or("");
    unread_ = result.code == SQLITE_OK || result.isDamage() ? std::nullopt : std::optional{reason};
    const bool isOpened = result.code != SQLITE_CANTOPEN;
    if (isOpened && result.code != SQLITE_OK) {
        DiagnosticLog::write("Presets not read: " + reason);
    }
    return isOpened;
}

void PresetDatabase::close() {
    memory_ = {};
    unsaved_ = false;
}

void PresetDatabase::logUnsaved(const std::optional<std::string>& reason) {
    if (reason) {
        DiagnosticLog::write("Presets not saved: " + *reason);
    }
}

// Each preset asks for its stops by a query of its own, which would go through the whole table: while they
// are read it has an index, which is then taken back, since the file has none.
void PresetDatabase::beginReading() {
    memory_.limitToSize();
    memory_.execute("pragma temp_store=memory; begin; create index tessalyByPreset on " +
                    presetTable::additional + " (mainIndex)");
}

void PresetDatabase::endReading(bool complete) {
    complete = memory_.execute("rollback").code == SQLITE_OK && complete;
    memory_.liftLimit();
    usable_ = complete && !memory_.isReadOnly() && presetTable::areIn(memory_);
}

bool PresetDatabase::beginSave() {
    if (usable_ && !std::exchange(checked_, true)) {
        usable_ = memory_.value("pragma quick_check(1)") == "ok";
    }
    const bool isNew = !usable_ && !isUnread();
    if (isNew) {
        file_.keep();
        memory_ = SqliteConnection::openInMemory();
        usable_ = true;
    }
    memory_.execute("begin"); // each statement on its own would take twice the time
    return isNew;
}

void PresetDatabase::endSave(std::optional<std::string> failure) {
    if (isUnread()) {
        failure = unread_; // and all the statements had nothing to run in
    } else if (!failure && memory_.execute("commit").code != SQLITE_OK) {
        failure = memory_.errorText();
    }
    usable_ = !failure; // else next time into a new one
    if (usable_) {
        failure = file_.replaceBy(memory_);
    }
    unsaved_ = failure.has_value();
    logUnsaved(failure);
}

} // namespace tessaly
