#pragma once

#include "presets/PresetFile.h"
#include "presets/SqliteConnection.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace tessaly {

/// The database of the presets: all work on it is done in memory, and a save that went well replaces the
/// file.
class PresetDatabase {
  public:
    explicit PresetDatabase(std::filesystem::path folder);

    const std::filesystem::path& folder() const { return folder_; }
    const std::filesystem::path& file() const { return file_.path(); }

    /// Takes the file into memory. Waits so long where another program keeps it locked. False: it cannot be
    /// opened.
    bool open(std::chrono::milliseconds patience = {});

    /// What is still unsaved is given up.
    void close();

    /// Not open when the file could not be read; then every operation fails.
    const SqliteConnection& connection() const { return memory_; }

    /// The file was never read, for reasons that may pass: a lock, or too many open files. It is to be read
    /// before anything is saved.
    bool isUnread() const { return unread_.has_value(); }

    /// Replaces the file by what is in memory, which has all that the file has. On failure logs why.
    void write() { logUnsaved(file_.replaceBy(memory_)); }

    /// Stand around the reading of all presets. `complete`: every row was read.
    void beginReading();
    void endReading(bool complete);

    /// Stand around the statements of a save; `failure`: why the first of them that failed did. `beginSave`
    /// answers true when the tables must be made first: what could not be read to the end, or is damaged, is
    /// not saved to.
    bool beginSave();
    void endSave(std::optional<std::string> failure);

    /// The last save failed; the list is to be saved once more before the program ends.
    bool isUnsaved() const { return unsaved_; }

  private:
    static void logUnsaved(const std::optional<std::string>& reason);

    std::filesystem::path folder_;
    PresetFile file_;
    SqliteConnection memory_;
    std::optional<std::string> unread_ = ""; ///< why
    bool usable_ = false;  ///< the list has all that is stored, and can be stored there again
    bool checked_ = false; ///< for damage in pages that the reading did not meet
    bool unsaved_ = false;
};

} // namespace tessaly
