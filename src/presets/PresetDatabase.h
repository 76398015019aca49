#pragma once

#include "presets/FolderLock.h"
#include "presets/PresetSafetyCopy.h"
#include "presets/SqliteConnection.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace tessaly {

/// The preset database's file, and all that keeps the presets in it safe while each save deletes and rewrites
/// them in many single commits: a write-ahead log makes the commits cheap, a safety copy guards them, and
/// nothing that was not read to the end is overwritten before it was set aside.
///
/// A crash at any moment leaves the list before the save or the list after it. As long as the safety copy
/// stands, it is what counts, whatever the database holds; it goes when the database is complete on the disk.
class PresetDatabase {
  public:
    explicit PresetDatabase(std::filesystem::path folder);
    PresetDatabase(const PresetDatabase&) = delete;
    PresetDatabase& operator=(const PresetDatabase&) = delete;
    ~PresetDatabase() { close(); }

    const std::filesystem::path& folder() const { return folder_; }
    const std::filesystem::path& file() const { return file_; }

    /// Opens the file, makes it when it is missing, and brings back what an unfinished save left. False:
    /// there is no database, and every operation on it fails.
    bool open();

    /// Leaves a plain file without a log beside it, where nobody else uses it: one that can be read from a
    /// read-only folder and copied by itself.
    void close();

    const SqliteConnection& connection() const { return connection_; }

    /// What the presets are read from: the database, or the safety copy while that could not be restored.
    const SqliteConnection& reader() const { return copyReader_.isOpen() ? copyReader_ : connection_; }

    /// Stand around the reading of all presets. `complete`: every row was read.
    void beginReading();
    void endReading(bool complete);

    /// Stand around the statements of a save. When the stored presets cannot be guarded (no room for the
    /// copy, another copy of the program at work, a lock), the log tells why and each of the statements will
    /// fail and change nothing.
    void beginSave();

    /// Within a save: the database had to be emptied, or is a new one, and its tables must be made first.
    bool lacksTables() const { return save_ && save_->emptied; }

    /// `complete`: every statement succeeded.
    void endSave(bool complete);

  private:
    struct Save {
        explicit Save(const std::filesystem::path& folder) : lock{folder} {}

        FolderLock lock;
        bool refused = false;
        bool madeCopy = false;
        bool emptied = false;
        std::int64_t changesBefore = 0;
    };

    void connect();
    void configure() const;
    void restore();
    SqliteResult copyBack(const SqliteConnection& copy);
    bool setFileAside();
    bool startAnew();
    bool empty();
    bool isAsKnown() const;
    std::optional<std::string> version() const;
    bool emptyLog() const;
    bool makeDurable() const;
    std::optional<std::string> prepareSave(); ///< none, or why nothing must be written
    void afterFailedSave();
    void endGuard(); ///< the database alone is complete and on the disk

    std::filesystem::path folder_;
    std::filesystem::path file_;
    PresetSafetyCopy copy_;
    SqliteConnection connection_;
    SqliteConnection copyReader_;
    bool savedButNotDurable_ = false;
    bool allKnown_ = false; ///< the list in memory has all that is stored
    bool hasTables_ = true; ///< false from when the database was emptied until a save makes them anew
    std::optional<std::string> knownVersion_; ///< of the database that `allKnown_` is about
    std::optional<Save> save_;
};

} // namespace tessaly
