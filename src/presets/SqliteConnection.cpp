#include "presets/SqliteConnection.h"

#include "foundation/NumberText.h"
#include "presets/SqliteStatement.h"

#include <sqlite3.h>

namespace tessaly {
namespace {

// A path as it stands in a "file:" address.
std::string escapedPath(const std::filesystem::path& path) {
    std::string text;
    for (const char c : path.native()) {
        if (c == '%' || c == '?' || c == '#') {
            text += '%' + hexByteText(static_cast<unsigned char>(c));
        } else {
            text += c;
        }
    }
    return text;
}

} // namespace

bool SqliteResult::isDamage() const {
    const int primary = code & 0xff;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB;
}

bool SqliteResult::isLock() const {
    const int primary = code & 0xff;
    return primary == SQLITE_BUSY || primary == SQLITE_LOCKED;
}

bool SqliteResult::isDiskFailure() const {
    const int primary = code & 0xff; // 778, say, is the 10 of any I/O error with a detail
    return primary == SQLITE_FULL || primary == SQLITE_IOERR || primary == SQLITE_CANTOPEN;
}

void SqliteConnection::Closer::operator()(sqlite3* handle) const {
    sqlite3_close(handle);
}

SqliteConnection SqliteConnection::open(const std::string& name, int flags) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(name.c_str(), &opened, flags, nullptr);
    SqliteConnection connection;
    connection.handle_.reset(opened); // SQLite hands one out on failure too, to be closed
    return code == SQLITE_OK ? std::move(connection) : SqliteConnection{};
}

SqliteConnection SqliteConnection::open(const std::filesystem::path& file) {
    return open(file.native(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

SqliteConnection SqliteConnection::openImmutable(const std::filesystem::path& file) {
    return open("file:" + escapedPath(file) + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

SqliteConnection SqliteConnection::openInMemory() {
    return open(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX);
}

void SqliteConnection::waitForLocks(std::chrono::milliseconds patience) const {
    if (isOpen()) {
        sqlite3_busy_timeout(handle(), static_cast<int>(patience.count()));
    }
}

void SqliteConnection::limitToSize() {
    constexpr std::int64_t stepsPerByte = 8; // a row takes several bytes, and some ten steps to be read
    constexpr std::int64_t fewest = 100'000;
    constexpr int stepsAtOnce = 1'000;
    const auto countDown = [](void* left) {
        return (*static_cast<std::int64_t*>(left) -= stepsAtOnce) < 0 ? 1 : 0;
    };
    const auto size = value("select page_count * page_size from pragma_page_count, pragma_page_size");
    if (size) {
        stepsLeft_ = std::make_unique<std::int64_t>(fewest + stepsPerByte * std::stoll(*size));
        sqlite3_progress_handler(handle(), stepsAtOnce, countDown, stepsLeft_.get());
    }
}

void SqliteConnection::liftLimit() {
    if (isOpen()) {
        sqlite3_progress_handler(handle(), 0, nullptr, nullptr);
    }
}

void SqliteConnection::distrust(std::chrono::milliseconds patience) {
    constexpr int largestValue = 1'000'000; // bytes
    constexpr int stepsAtOnce = 1'000;
    if (!isOpen()) {
        return;
    }
    sqlite3_limit(handle(), SQLITE_LIMIT_LENGTH, largestValue);
    sqlite3_db_config(handle(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    const auto isOver = [](void* deadline) {
        return Clock::now() < *static_cast<const Clock::time_point*>(deadline) ? 0 : 1;
    };
    deadline_ = std::make_unique<Clock::time_point>(Clock::now() + patience);
    sqlite3_progress_handler(handle(), stepsAtOnce, isOver, deadline_.get());
}

bool SqliteConnection::isReadOnly() const {
    return isOpen() && sqlite3_db_readonly(handle(), "main") == 1;
}

SqliteResult SqliteConnection::execute(const std::string& statement) const {
    if (!isOpen()) {
        return {SQLITE_CANTOPEN, errorText()};
    }
    char* message = nullptr;
    SqliteResult result{sqlite3_exec(handle(), statement.c_str(), nullptr, nullptr, &message), std::nullopt};
    if (message != nullptr) {
        result.message = message;
        sqlite3_free(message);
    }
    return result;
}

SqliteResult SqliteConnection::copyTo(const SqliteConnection& other) const {
    constexpr int allPages = -1;
    sqlite3_backup* const backup =
        isOpen() && other.isOpen() ? sqlite3_backup_init(other.handle(), "main", handle(), "main") : nullptr;
    const int stepped = backup != nullptr ? sqlite3_backup_step(backup, allPages) : SQLITE_CANTOPEN;
    sqlite3_backup_finish(backup);
    return stepped == SQLITE_DONE ? SqliteResult{} : SqliteResult{stepped, sqlite3_errstr(stepped)};
}

std::optional<std::string> SqliteConnection::value(const std::string& query) const {
    SqliteStatement statement = SqliteStatement::prepare(*this, query);
    return statement.step() == SQLITE_ROW ? std::optional{statement.text(0)} : std::nullopt;
}

SqliteResult SqliteConnection::lastResult() const {
    return {isOpen() ? sqlite3_errcode(handle()) : SQLITE_CANTOPEN, errorText()};
}

std::string SqliteConnection::errorText() const {
    return isOpen() ? sqlite3_errmsg(handle()) : sqlite3_errstr(SQLITE_CANTOPEN);
}

} // namespace tessaly
