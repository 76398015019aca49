#pragma once

#include "presets/SqliteConnection.h"

struct sqlite3_backup;

namespace tessaly {

/// Copies a whole database over another through SQLite's backup interface, which respects the locks and the
/// write-ahead logs of both. Copies pages, so what lies broken in a page is copied as it is.
class SqliteBackup {
  public:
    /// Both connections must outlive the object; one that is not open makes the copying fail.
    SqliteBackup(const SqliteConnection& from, const SqliteConnection& to);

    /// Copies in one transaction: on failure `to` stays as it was.
    SqliteResult run();

  private:
    struct Finisher {
        void operator()(sqlite3_backup* handle) const;
    };

    std::unique_ptr<sqlite3_backup, Finisher> handle_;
};

} // namespace tessaly
