#pragma once

#include "presets/PresetDatabase.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tessaly {

class PresetGallery;
class SqliteStatement;

/// Keeps the presets between runs. Reads them once; every save empties both tables and writes the whole list
/// again, in memory, and then puts that in the file's place. Failures go to the log alone, and the program
/// works on with the list that it has. Main thread only.
class PresetStore {
  public:
    /// The database lies in the folder "Tessaly" of `applicationSupport`, the user's folder for data of
    /// programs. The gallery must outlive the store.
    PresetStore(PresetGallery& presets, const std::filesystem::path& applicationSupport);
    PresetStore(const PresetStore&) = delete;
    PresetStore& operator=(const PresetStore&) = delete;
    ~PresetStore() { closeDB(); }

    /// Makes what is missing of folder, file and tables, takes the file into memory and hands every stored
    /// preset to the gallery. Where the file cannot be opened, every other operation fails and does no harm.
    void openDB();

    /// Saves once more what the last save could not; that once only, however often it is called.
    void closeDB();

    /// Saves the whole list. After a save that fails the file has the list from before it.
    void insertData();

    /// True on success, and deliberately also on a failure that comes without a message.
    bool executeSQL(const std::string& statement);

    /// Fills `rowData` with the query's rows as texts, NULL as an empty one. Always true. Nothing in the
    /// program asks for rows this way; kept, with `LastError`, for whoever looks into a store at hand.
    bool executeSQL(const std::string& query, std::vector<std::vector<std::string>>& rowData);

    /// Text of the last error met by `executeSQL`.
    const std::string& LastError() const { return LastError_; }

  private:
    struct MainRow;

    void makeMissingTables();
    void createTable(const std::string& statement);
    bool isTableExists(const std::string& name) const;
    void readData();
    std::vector<MainRow> readMainData();
    void readAdditionalData(SqliteStatement& query, const MainRow& row);
    void readBeforeSaving();
    void insertAllPresets();
    bool insert(SqliteStatement& row, const std::string& sql);
    bool noted(bool success);

    PresetGallery& presets_;
    PresetDatabase database_;
    std::string LastError_;
    std::optional<std::string> failure_; ///< the first since the read or save began
};

} // namespace tessaly
