#pragma once

#include "presets/PresetDatabase.h"
#include "presets/PresetList.h"
#include "presets/StoredStops.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tessaly {

/// Keeps the presets between runs. Reads them once; every save empties both tables and writes the whole list
/// again, each statement a commit of its own. Failures go to the log alone, and the program works on with the
/// list in memory. Main thread only.
class PresetStore {
  public:
    /// The database lies in the folder "Tessaly" of `applicationSupport`, the user's folder for data of
    /// programs. The list must outlive the store.
    PresetStore(PresetList& presets, const std::filesystem::path& applicationSupport);
    PresetStore(const PresetStore&) = delete;
    PresetStore& operator=(const PresetStore&) = delete;
    ~PresetStore() = default;

    /// Makes what is missing of folder and file and brings back what an unfinished save left. False: there is
    /// no database, and every other operation fails and does no harm.
    bool openDB();
    void closeDB();

    /// Opens the database and makes the tables that it lacks.
    void openWithTables();

    /// Whether the schema holds a table, index, view or trigger of that name. The name is deliberately not
    /// escaped: one with a quote is never found.
    bool isTableExists(const std::string& name);
    void createMainTable();
    void createAdditionalTable();

    /// Hands every stored preset to the list. One that cannot be read to the end is never overwritten before
    /// it was set aside.
    void readData();
    void readMainData();
    void readAdditionalData(std::int64_t mainIndex, std::int64_t orientationType);

    /// Saves the whole list. A save that fails half-way leaves what was stored before to the next start.
    void insertData();
    void insertMainData(std::int32_t mainIndex, std::int32_t orientationType);

    /// True on success, and deliberately also on a failure that comes without a message.
    bool executeSQL(const std::string& statement);

    /// Fills `rowData` with the query's rows as texts, NULL as an empty one. Always true.
    bool executeSQL(const std::string& query, std::vector<std::vector<std::string>>& rowData);

    /// True when the query finds a row; false when it finds none, and when it fails.
    bool isRecordFound(const std::string& query);

    /// Text of the last error met by `executeSQL` or `isRecordFound`.
    const std::string& LastError() const { return LastError_; }

  private:
    void createTable(const std::string& statement);
    void emptyTable(const std::string& table);
    void insertAllPresets();
    bool insertStop(std::int32_t mainIndex, const ColorStop& stop);
    void insertFailed();

    PresetList& presets_;
    PresetDatabase database_;
    std::string LastError_;
    std::optional<StoredStops> allStops_; ///< while all presets are read
    bool complete_ = true;                ///< nothing failed since the read or save began
};

} // namespace tessaly
