#pragma once

#include "presets/SqliteConnection.h"

#include <filesystem>

namespace tessaly {

/// The copy of the preset database that stands beside it while a save empties and refills it. It always holds
/// the last list that was stored completely; one that is found at start-up tells that a save did not finish.
/// Only whoever holds the folder's lock makes it or takes it away.
class PresetSafetyCopy {
  public:
    explicit PresetSafetyCopy(const std::filesystem::path& database);

    bool exists() const;

    /// Copies the database; it is on the disk, under its name, when this answers success. On failure there is
    /// no copy.
    SqliteResult make(const SqliteConnection& database) const;

    /// The copy, to be read; not open when there is none or it is no database.
    SqliteConnection open() const;

    /// The database needs no guard any more.
    void remove() const;

    /// Keeps the copy for the user, under a dated name. False: it is still where it was.
    bool setAside() const;

  private:
    std::filesystem::path database_;
    std::filesystem::path file_;
    std::filesystem::path unfinished_; ///< its name while it is being written
};

} // namespace tessaly
