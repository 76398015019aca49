#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

struct sqlite3;

namespace tessaly {

/// What a call into SQLite answered.
struct SqliteResult {
    int code = 0; ///< 0 is success
    std::optional<std::string> message;

    /// The file is no database or a broken one.
    bool isDamage() const;

    /// The disk refused. A full one is SQLITE_FULL or an I/O error, depending on what it is that is full.
    bool isDiskFailure() const;
};

/// An open database, or none: then every operation fails and does no harm. Never waits for another process's
/// lock, since a wait would hold up the event loop: what is locked fails at once.
class SqliteConnection {
  public:
    SqliteConnection() = default;

    /// Opens `file` for reading and writing and creates it when it is missing.
    static SqliteConnection open(const std::filesystem::path& file);

    /// Opens `file` for reading without a lock and without writing anything beside it. Only for a file that
    /// nobody writes to.
    static SqliteConnection openImmutable(const std::filesystem::path& file);

    bool isOpen() const { return handle_ != nullptr; }

    /// The file can be read and not written: it is of a later format, or belongs to somebody else.
    bool isReadOnly() const;
    sqlite3* handle() const { return handle_.get(); }

    /// Runs a statement and drops its rows.
    SqliteResult execute(const std::string& statement) const;

    /// Runs a query; `columns` is then the number of its columns, 0 when there were no rows.
    SqliteResult queryTable(const std::string& query, int& columns) const;

    /// First column of a query's first row.
    std::optional<std::string> value(const std::string& query) const;

    /// Text of the last error.
    std::string errorText() const;

    /// Rows inserted, changed and deleted since the connection was opened.
    std::int64_t totalChanges() const;

  private:
    struct Closer {
        void operator()(sqlite3* handle) const;
    };

    static SqliteConnection open(const std::string& name, int flags);

    std::unique_ptr<sqlite3, Closer> handle_;
};

} // namespace tessaly
