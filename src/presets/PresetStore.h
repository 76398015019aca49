#pragma once

#include "presets/PresetDatabase.h"
#include "presets/PresetList.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tessaly {

class SqliteStatement;

/// Keeps the presets between runs. Reads them once; every save empties both tables and writes the whole list
/// again, in memory, and then puts that in the file's place. Failures go to the log alone, and the program
/// works on with the list that it has. Main thread only.
class PresetStore {
  public:
    /// The database lies in the folder "Tessaly" of `applicationSupport`, the user's folder for data of
    /// programs. The list must outlive the store.
    PresetStore(PresetList& presets, const std::filesystem::path& applicationSupport);
    PresetStore(const PresetStore&) = delete;
    PresetStore& operator=(const PresetStore&) = delete;
    ~PresetStore() { closeDB(); }

    /// Makes what is missing of folder and file and takes the file into memory. False: it cannot be opened,
    /// and every other operation fails and does no harm.
    bool openDB();

    /// Saves once more what the last save could not.
    void closeDB();

    /// Opens the database and makes the tables that it lacks.
    void openWithTables();

    /// Whether the schema holds a table, index, view or trigger of that name. The name is deliberately not
    /// escaped: one with a quote is never found.
    bool isTableExists(const std::string& name);
    void createMainTable();
    void createAdditionalTable();

    /// Hands every stored preset to the list.
    void readData();
    void readMainData();

    /// Saves the whole list. After a save that fails the file has the list from before it.
    void insertData();

    /// True on success, and deliberately also on a failure that comes without a message.
    bool executeSQL(const std::string& statement);

    /// Fills `rowData` with the query's rows as texts, NULL as an empty one. Always true. Nothing in the program
    /// asks for rows this way; kept, with `LastError`, for whoever looks into a store at hand.
    bool executeSQL(const std::string& query, std::vector<std::vector<std::string>>& rowData);

    /// True when the query finds a row; false when it finds none, and when it fails.
    bool isRecordFound(const std::string& query);

    /// Text of the last error met by `executeSQL` or `isRecordFound`.
    const std::string& LastError() const { return LastError_; }

  private:
    void makeMissingTables();
    void readBeforeSaving();
    void createTable(const std::string& statement);
    void emptyTable(const std::string& table);
    void readAdditionalData(SqliteStatement& query, std::int64_t mainIndex, std::int64_t orientationType);
    void insertAllPresets();
    void insertMainData(SqliteStatement& row, std::int32_t mainIndex, std::int32_t orientationType);
    bool insertStop(SqliteStatement& row, std::int32_t mainIndex, const ColorStop& stop);
    bool insert(SqliteStatement& row);

    PresetList& presets_;
    PresetDatabase database_;
    std::string LastError_;
    bool complete_ = true; ///< nothing failed since the read or save began
};

} // namespace tessaly
