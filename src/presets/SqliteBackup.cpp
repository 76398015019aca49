#include "presets/SqliteBackup.h"

#include <sqlite3.h>

namespace tessaly {

void SqliteBackup::Finisher::operator()(sqlite3_backup* handle) const {
    sqlite3_backup_finish(handle);
}

SqliteBackup::SqliteBackup(const SqliteConnection& from, const SqliteConnection& to) {
    if (from.isOpen() && to.isOpen()) {
        handle_.reset(sqlite3_backup_init(to.handle(), "main", from.handle(), "main"));
    }
}

SqliteResult SqliteBackup::run() {
    constexpr int allPages = -1;
    const int stepped = handle_ ? sqlite3_backup_step(handle_.get(), allPages) : SQLITE_CANTOPEN;
    handle_.reset();
    if (stepped == SQLITE_DONE) {
        return {};
    }
    return {stepped, sqlite3_errstr(stepped)};
}

} // namespace tessaly
