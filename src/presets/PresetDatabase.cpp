#include "presets/PresetDatabase.h"

#include "foundation/DiagnosticLog.h"
#include "presets/PresetTable.h"
#include "presets/PrivateFile.h"
#include "presets/SqliteBackup.h"

#include <sqlite3.h>
#include <utility>

namespace tessaly {
namespace {

constexpr const char* logSuffix = "-wal";

} // namespace

PresetDatabase::PresetDatabase(std::filesystem::path folder)
    : folder_{std::move(folder)}, file_{folder_ / "localDB.sqlite3"}, copy_{file_} {}

bool PresetDatabase::open() {
    close();
    allKnown_ = false;
    hasTables_ = true;
    std::error_code error;
    if (std::filesystem::is_directory(folder_, error)) {
        makePrivate(folder_);
    }
    connect();
    if (connection_.isOpen() && copy_.exists()) {
        restore();
    }
    return connection_.isOpen();
}

void PresetDatabase::close() {
    const bool onTheDisk = connection_.value("pragma journal_mode=delete") == "delete";
    if (std::exchange(savedButNotDurable_, false) && onTheDisk) {
        endGuard();
    }
    connection_ = {};
    copyReader_ = {};
}

void PresetDatabase::connect() {
    createPrivateFile(file_); // SQLite gives its own files beside it the same permissions
    for (const char* const suffix : {"", logSuffix, "-shm", "-journal"}) {
        makePrivate(withSuffix(file_, suffix));
    }
    connection_ = SqliteConnection::open(file_);
    configure();
    if (connection_.execute("pragma page_count").isDiskFailure()) {
        // There may be no room for the index that all readers of a log share. One that keeps the others out
        // needs none, and the presets can be shown.
        connection_ = SqliteConnection::open(file_);
        connection_.execute("pragma locking_mode=exclusive");
        configure();
    }
}

void PresetDatabase::configure() const {
    // Without a write-ahead log (the disk is full, a lock, an odd file system) only FULL is safe.
    const bool hasLog = connection_.value("pragma journal_mode=wal") == "wal";
    connection_.execute(hasLog ? "pragma synchronous=normal" : "pragma synchronous=full");
    // Up to 8 MB of log, twice the usual: every checkpoint before the last one of a save waits for the disk
    // three times for nothing.
    connection_.execute("pragma wal_autocheckpoint=2000");
}

void PresetDatabase::restore() {
    const FolderLock lock{folder_};
    SqliteConnection copy = copy_.open();
    if (!copy.isOpen()) {
        if (!lock.isHeldByOther() && copy_.exists()) {
            copy_.setAside(); // broken by something else than a crash of ours; the database is all there is
        }
        return;
    }
    const SqliteResult result =
        lock.isHeldByOther() ? SqliteResult{SQLITE_BUSY, "another copy is saving"} : copyBack(copy);
    if (result.code == SQLITE_OK && makeDurable()) {
        // cppcheck-suppress unreadVariable ; closes the file
        copy = {};
        copy_.remove();
        DiagnosticLog::write("The last save did not finish: presets restored");
        return;
    }
    DiagnosticLog::write("The last save did not finish: presets not restored: " +
                         result.message.value_or("not on the disk"));
    copyReader_ = std::move(copy);
}

SqliteResult PresetDatabase::copyBack(const SqliteConnection& copy) {
    SqliteResult result = SqliteBackup{copy, connection_}.run();
    if (result.isDamage()) {
        setFileAside();
        result = SqliteBackup{copy, connection_}.run();
    }
    configure();
    return result;
}

// Renaming, unlike copying, needs no room and cannot stop half-way. Nobody reads a file that is no database.
bool PresetDatabase::setFileAside() {
    connection_ = {};
    const std::filesystem::path dated = datedName(file_);
    std::error_code error;
    std::filesystem::rename(withSuffix(file_, logSuffix), withSuffix(dated, logSuffix), error); // may be none
    std::filesystem::rename(file_, dated, error);
    DiagnosticLog::write(error ? "Presets not set aside: " + error.message()
                               : "Presets set aside: " + dated.native());
    connect();
    return !error;
}

// Works on a database whatever is wrong with its pages, in one transaction that respects others' locks.
bool PresetDatabase::empty() {
    sqlite3_db_config(connection_.handle(), SQLITE_DBCONFIG_RESET_DATABASE, 1, nullptr);
    const SqliteResult result = connection_.execute("vacuum");
    sqlite3_db_config(connection_.handle(), SQLITE_DBCONFIG_RESET_DATABASE, 0, nullptr);
    if (result.code != SQLITE_OK) {
        return false;
    }
    configure();
    hasTables_ = false;
    knownVersion_ = version();
    return true;
}

std::optional<std::string> PresetDatabase::version() const {
    return connection_.value("pragma data_version"); // changes with every commit of another connection
}

void PresetDatabase::beginReading() {
    knownVersion_ = version();
}

void PresetDatabase::endReading(bool complete) {
    // A view would be read and could never be saved to.
    const std::string tables =
        std::string{"select count(*) from sqlite_master where type='table' and name in ('"} +
        presetTable::main + "', '" + presetTable::additional + "')";
    allKnown_ = complete && !copyReader_.isOpen() && connection_.value(tables) == "2";
    copyReader_ = {};
}

bool PresetDatabase::isAsKnown() const {
    return allKnown_ && version() == knownVersion_ && connection_.value("pragma quick_check(1)") == "ok";
}

std::optional<std::string> PresetDatabase::prepareSave() {
    if (save_->lock.isHeldByOther()) {
        return "another copy of the program is saving";
    }
    configure(); // once more, for the case that a lock was in the way
    savedButNotDurable_ = false;
    if (copy_.exists() && !copy_.open().isOpen() && !copy_.setAside()) {
        return "a broken safety copy is in the way";
    }
    if (connection_.isReadOnly() && !startAnew()) {
        return "the database cannot be written";
    }
    if (!copy_.exists()) {
        SqliteResult made = copy_.make(connection_);
        if (made.isDamage() && startAnew()) {
            made = copy_.make(connection_);
        }
        if (made.code != SQLITE_OK) {
            return "no safety copy: " + made.message.value_or("");
        }
        save_->madeCopy = true;
    }
    if (!isAsKnown()) {
        allKnown_ = false;
        if (!empty()) {
            return connection_.errorText();
        }
    }
    return std::nullopt;
}

// With an empty database, once the file is out of the way; what was in it stands under its dated name.
bool PresetDatabase::startAnew() {
    if (!setFileAside()) {
        return false;
    }
    hasTables_ = false;
    allKnown_ = allKnown_ || !copy_.exists();
    knownVersion_ = version();
    return true;
}

void PresetDatabase::beginSave() {
    if (!connection_.isOpen()) {
        return;
    }
    save_.emplace(folder_);
    if (const std::optional<std::string> reason = prepareSave()) {
        DiagnosticLog::write("Presets not saved: " + *reason);
        connection_.execute("pragma query_only=on");
        save_->refused = true;
        return;
    }
    save_->changesBefore = connection_.totalChanges();
    save_->emptied = !std::exchange(hasTables_, true);
}

void PresetDatabase::endSave(bool complete) {
    if (!save_) {
        return;
    }
    if (save_->refused) {
        connection_.execute("pragma query_only=off");
    } else if (!complete) {
        afterFailedSave();
    } else if (makeDurable()) {
        endGuard();
    } else {
        DiagnosticLog::write("Presets saved, but not known to be on the disk yet");
        savedButNotDurable_ = true;
    }
    save_.reset();
}

void PresetDatabase::endGuard() {
    if (allKnown_) {
        copy_.remove();
    } else {
        allKnown_ = copy_.setAside(); // what could not be read goes on being kept
    }
}

void PresetDatabase::afterFailedSave() {
    allKnown_ = allKnown_ && !save_->emptied;
    emptyLog(); // where the disk is full, this makes room for the next save
    const bool unchanged = !save_->emptied && connection_.totalChanges() == save_->changesBefore;
    if (save_->madeCopy && unchanged) {
        copy_.remove(); // it would undo what others write until the next start
    }
}

bool PresetDatabase::emptyLog() const {
    return sqlite3_wal_checkpoint_v2(connection_.handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr,
                                     nullptr) == SQLITE_OK;
}

bool PresetDatabase::makeDurable() const {
    // A reader elsewhere, or a full disk, may keep the log from being emptied. Then all commits are in the
    // log.
    return emptyLog() || syncToDisk(withSuffix(file_, logSuffix));
}

} // namespace tessaly
