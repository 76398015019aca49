#pragma once

#include <chrono>
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

    /// Another program keeps it locked.
    bool isLock() const;

    /// The disk refused. A full one is SQLITE_FULL or an I/O error, depending on what it is that is full.
    bool isDiskFailure() const;
};

/// An open database, or none: then every operation fails and does no harm. What another process keeps locked
/// fails at once, unless it is told to wait.
class SqliteConnection {
  public:
    SqliteConnection() = default;

    /// Opens `file` for reading and writing and creates it when it is missing.
    static SqliteConnection open(const std::filesystem::path& file);

    /// Opens `file` for reading without a lock and without writing anything beside it. Only for a file that
    /// nobody writes to.
    static SqliteConnection openImmutable(const std::filesystem::path& file);

    static SqliteConnection openInMemory();

    bool isOpen() const { return handle_ != nullptr; }

    /// Holds up whoever calls: not for when the window is shown.
    void waitForLocks(std::chrono::milliseconds patience) const;

    /// Until the limit is lifted, queries fail that together take more steps than all rows of a file of this
    /// size are worth, such as one over a view that never ends.
    void limitToSize();
    void liftLimit();

    /// For a file from anywhere: queries fail when that time is over, and so do values too large for a preset
    /// and functions that do anything but compute.
    void distrust(std::chrono::milliseconds patience);

    /// It can be read and not written: it is of a later format.
    bool isReadOnly() const;
    sqlite3* handle() const { return handle_.get(); }

    /// Runs a statement and drops its rows.
    SqliteResult execute(const std::string& statement) const;

    /// Copies the whole database over another in one transaction, through SQLite's backup interface: it
    /// respects the locks and logs of both, and on failure the other stays as it was. What lies broken in a
    /// page is copied as it is.
    SqliteResult copyTo(const SqliteConnection& other) const;

    /// First column of a query's first row.
    std::optional<std::string> value(const std::string& query) const;

    /// What the last call answered.
    SqliteResult lastResult() const;

    /// Text of the last error.
    std::string errorText() const;

  private:
    struct Closer {
        void operator()(sqlite3* handle) const;
    };

    static SqliteConnection open(const std::string& name, int flags);

    using Clock = std::chrono::steady_clock;

    std::unique_ptr<Clock::time_point> deadline_; ///< of one that is not trusted, as below
    std::unique_ptr<std::int64_t> stepsLeft_;     ///< where SQLite finds it, wherever the connection is moved
    std::unique_ptr<sqlite3, Closer> handle_;
};

} // namespace tessaly
