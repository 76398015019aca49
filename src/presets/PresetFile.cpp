#include "presets/PresetFile.h"

#include "foundation/Descriptor.h"
#include "presets/PrivateFile.h"
#include "presets/SetAside.h"

#include <algorithm>
#include <fcntl.h>
#include <sqlite3.h>

namespace tessaly {
namespace {

// Where a save writes. Left behind only by one that was cut short.
std::filesystem::path freshName(const std::filesystem::path& file) {
    return withSuffix(file, ".new");
}

// The file itself where the path is a link to it.
std::filesystem::path resolved(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::path target = std::filesystem::read_symlink(path, error);
    return error ? path : std::filesystem::weakly_canonical(path.parent_path() / target, error);
}

SqliteResult writeTo(const std::filesystem::path& file, const SqliteConnection& database) {
    const SqliteConnection disk = SqliteConnection::open(file);
    disk.execute("pragma journal_mode=off; pragma synchronous=off"); // nobody reads it before it is whole
    return database.copyTo(disk);
}

} // namespace

std::optional<PresetFile::Version> PresetFile::versionOf(const std::filesystem::path& file) {
    constexpr off_t placeOfCounter = 24;
    const Descriptor descriptor{::open(file.c_str(), O_RDONLY | O_CLOEXEC)};
    struct stat status {};
    if (!descriptor || ::fstat(descriptor.number(), &status) != 0) {
        return std::nullopt;
    }
    Version version{FileState{status}, {}};
    std::array<char, 4>& counter = version.changeCounter;
    if (::pread(descriptor.number(), counter.data(), counter.size(), placeOfCounter) < 0) {
        return std::nullopt;
    }
    return version;
}

SqliteResult PresetFile::read(SqliteConnection& memory, std::chrono::milliseconds patience) {
    known_.reset();
    const std::filesystem::path file = resolved(path_);
    std::error_code error;
    if (!std::filesystem::exists(file, error)) { // killed between setting aside and putting in place, or new
        std::filesystem::rename(freshName(file), file, error);
        createPrivateFile(file);
    }
    if (!std::filesystem::is_symlink(path_, error)) {
        makePrivate(file);
    }
    SqliteResult result{SQLITE_CANTOPEN, sqlite3_errstr(SQLITE_CANTOPEN)};
    // There may be no room for the index that all readers of a write-ahead log share. One that keeps the
    // others out needs none.
    for (const char* const locking : {"normal", "exclusive"}) {
        const SqliteConnection disk = SqliteConnection::open(path_);
        disk.waitForLocks(patience);
        disk.execute(std::string{"pragma locking_mode="} + locking);
        result = copyInto(memory, disk);
        if (!result.isDiskFailure()) {
            break;
        }
    }
    return result;
}

SqliteResult PresetFile::copyInto(SqliteConnection& memory, const SqliteConnection& disk) {
    const std::string firstRead = "select count(*) from sqlite_master";
    if (SqliteResult locked = disk.execute(firstRead); locked.isLock()) {
        return locked;
    }
    disk.waitForLocks({});
    disk.execute("pragma journal_mode=delete");
    disk.execute("begin; " + firstRead); // keeps writers out until the version is known
    memory = SqliteConnection::openInMemory();
    SqliteResult result = disk.copyTo(memory);
    const std::optional<Version> version = versionOf(path_);
    if (result.code == SQLITE_OK && !version) {
        result = {SQLITE_IOERR, "it cannot be looked at"};
    }
    if (result.code == SQLITE_OK) {
        known_ = version;
    } else {
        memory = {};
    }
    return result;
}

bool PresetFile::isKnown(const Version& version, const std::filesystem::path& file) const {
    const auto isThere = [&file](const char* suffix) {
        std::error_code error;
        return std::filesystem::exists(withSuffix(file, suffix), error);
    };
    return version == known_ && std::ranges::none_of(companionSuffixes, isThere);
}

std::optional<std::string> PresetFile::replaceBy(const SqliteConnection& database) {
    std::error_code error;
    const std::filesystem::path target = resolved(path_);
    const std::filesystem::path fresh = freshName(target);
    std::filesystem::remove(fresh, error);
    createPrivateFile(fresh);
    const SqliteResult written = writeTo(fresh, database);
    std::optional<std::string> reason = written.message;
    const std::filesystem::file_status linked = std::filesystem::status(target, error);
    if (std::filesystem::is_symlink(path_, error) && std::filesystem::is_regular_file(linked)) {
        std::filesystem::permissions(fresh, linked.permissions(), error); // else it stays private
    }
    if (!reason && !syncToDisk(fresh)) {
        reason = "it cannot be forced to the disk";
    }
    if (!reason) {
        reason = putInPlace(fresh, target);
    }
    if (reason) {
        std::filesystem::remove(fresh, error);
    }
    return reason;
}

std::optional<std::string> PresetFile::putInPlace(const std::filesystem::path& fresh,
                                                  const std::filesystem::path& target) {
    std::error_code error;
    const std::optional<Version> written = versionOf(fresh);
    const std::optional<Version> before = versionOf(target);
    if (!written || (!before && std::filesystem::exists(target, error))) {
        return "it cannot be looked at";
    }
    if (!(before && isKnown(*before, target)) && !setAside(target)) {
        return "what is there cannot be set aside";
    }
    std::filesystem::rename(fresh, target, error);
    if (error) {
        return error.message();
    }
    known_ = written;
    return syncToDisk(target.parent_path()) ? std::nullopt : std::optional{"not known to be on the disk yet"};
}

} // namespace tessaly
