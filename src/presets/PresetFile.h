#pragma once

#include "foundation/FileState.h"
#include "presets/SqliteConnection.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace tessaly {

/// The file that the presets lie in between runs. It is read once, into memory, and from then on only
/// replaced as a whole: written beside it, forced to the disk and renamed over it. So at any moment it holds
/// the list before a save or the one after it, and a save needs as much room as the file. What somebody else
/// put there is set aside, never overwritten. A symbolic link stays one.
class PresetFile {
  public:
    explicit PresetFile(std::filesystem::path path) : path_{std::move(path)} {}

    const std::filesystem::path& path() const { return path_; }

    /// Copies the database into memory, with all that a crash left in a log or journal, and makes an empty
    /// file where there is none. Waits so long for another program's lock. On failure `memory` is not open.
    SqliteResult read(SqliteConnection& memory, std::chrono::milliseconds patience);

    /// What was read last is not all in memory: it must not be overwritten.
    void keep() { known_.reset(); }

    /// Puts the database in the file's place. None, or why it is not there.
    std::optional<std::string> replaceBy(const SqliteConnection& database);

  private:
    struct Version {
        FileState state;
        std::array<char, 4> changeCounter; ///< of SQLite, in the file's header

        bool operator==(const Version&) const = default;
    };

    static std::optional<Version> versionOf(const std::filesystem::path& file);

    SqliteResult copyInto(SqliteConnection& memory, const SqliteConnection& disk);
    bool isKnown(const Version& version, const std::filesystem::path& file) const;
    std::optional<std::string> putInPlace(const std::filesystem::path& fresh,
                                          const std::filesystem::path& target);

    std::filesystem::path path_;
    std::optional<Version> known_; ///< what was read or written last and may be overwritten
};

} // namespace tessaly
