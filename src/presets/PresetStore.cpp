#include "presets/PresetStore.h"

#include "foundation/DiagnosticLog.h"
#include "presets/PresetTable.h"
#include "presets/PrivateFile.h"
#include "presets/SqliteStatement.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

namespace tessaly {
namespace {

const std::string mainTable = presetTable::main;
const std::string additionalTable = presetTable::additional;

void logStatement(const std::string& sql) {
    DiagnosticLog::write("sql: " + sql);
}

} // namespace

PresetStore::PresetStore(PresetList& presets, const std::filesystem::path& applicationSupport)
    : presets_{presets}, database_{applicationSupport / "Tessaly"} {}

bool PresetStore::openDB() {
    const std::filesystem::path& folder = database_.folder();
    DiagnosticLog::write("userpath");
    std::error_code error;
    if (!std::filesystem::exists(folder, error) && !createPrivateFolder(folder)) {
        DiagnosticLog::write("Error: Create folder failed " + folder.native());
    }
    DiagnosticLog::write("userpath: " + database_.file().native());
    if (!database_.open()) {
        return false;
    }
    DiagnosticLog::write("Success!");
    return true;
}

void PresetStore::closeDB() {
    database_.close();
}

void PresetStore::openWithTables() {
    openDB();
    if (!isTableExists(mainTable)) {
        createMainTable();
    }
    if (!isTableExists(additionalTable)) {
        createAdditionalTable();
    }
}

bool PresetStore::isTableExists(const std::string& name) {
    const std::string sql = "select name from sqlite_master where name='" + name + "'";
    logStatement(sql);
    return isRecordFound(sql);
}

void PresetStore::createMainTable() {
    createTable("create table " + mainTable + " (mainIndex INTEGER PRIMARY KEY, orientationType INTEGER);");
}

void PresetStore::createAdditionalTable() {
    createTable("create table " + additionalTable +
                " (additionalIndex INTEGER PRIMARY KEY, mainIndex INTEGER, position FLOAT, red FLOAT,"
                " green FLOAT, blue FLOAT, opacity FLOAT);");
}

void PresetStore::createTable(const std::string& statement) {
    if (!executeSQL(statement)) {
        DiagnosticLog::write("Error create table!");
    }
}

void PresetStore::readData() {
    readMainData();
}

void PresetStore::readMainData() {
    struct MainRow {
        std::int64_t mainIndex;
        std::int64_t orientationType;
    };
    database_.beginReading();
    const std::string sql = "select mainIndex, orientationType from " + mainTable;
    logStatement(sql);
    std::vector<MainRow> rows;
    {
        SqliteStatement statement = SqliteStatement::prepareFirstGeneration(database_.reader(), sql);
        int result = statement.step();
        presets_.setGradientIndex(0);
        for (; result == SQLITE_ROW; result = statement.step()) {
            rows.push_back({statement.integer(0), statement.integer(1)});
        }
        complete_ = result == SQLITE_DONE;
    }
    // The stops' table has no index on the main index, so a query for each preset scans the whole table each
    // time: some ten seconds for 10,000 presets. One scan finds the same rows in the same order.
    allStops_.emplace(database_.reader());
    for (const MainRow& row : rows) {
        DiagnosticLog::write("mainIndex: " + std::to_string(row.mainIndex));
        readAdditionalData(row.mainIndex, row.orientationType);
    }
    complete_ = complete_ && allStops_->isComplete();
    allStops_.reset();
    database_.endReading(complete_);
}

void PresetStore::readAdditionalData(std::int64_t mainIndex, std::int64_t orientationType) {
    const std::string sql = "select position, red, green, blue, opacity from " + additionalTable +
                            " where mainIndex=" + std::to_string(mainIndex);
    logStatement(sql);
    std::vector<ColorStop> stops =
        allStops_ ? allStops_->of(mainIndex) : StoredStops{database_.reader()}.of(mainIndex);
    presets_.addGradientIntoPreset(Gradient{std::move(stops), orientationType});
}

void PresetStore::insertData() {
    database_.beginSave();
    complete_ = true;
    if (database_.lacksTables()) {
        createMainTable();
        createAdditionalTable();
    }
    emptyTable(mainTable);
    emptyTable(additionalTable);
    insertAllPresets();
    database_.endSave(complete_);
}

void PresetStore::emptyTable(const std::string& table) {
    if (!executeSQL("delete from " + table + ";")) {
        DiagnosticLog::write("Error delete data!");
    }
}

void PresetStore::insertAllPresets() {
    const std::vector<Preset>& presets = presets_.presetGradient();
    for (std::size_t i = 0; i < presets.size(); ++i) {
        // The main row takes the preset's own index and the stops its place in the list, deliberately: it is
        // the list that keeps the two equal.
        insertMainData(static_cast<std::int32_t>(presets[i].index),
                       static_cast<std::int32_t>(presets[i].gradient.orientation()));
        const bool allInserted = std::ranges::all_of(presets[i].gradient.stops(), [&](const ColorStop& stop) {
            return insertStop(static_cast<std::int32_t>(i), stop);
        });
        if (!allInserted) {
            return;
        }
    }
}

void PresetStore::insertMainData(std::int32_t mainIndex, std::int32_t orientationType) {
    const std::string sql = "insert into " + mainTable + " (mainIndex, orientationType) VALUES (?, ?);";
    logStatement(sql);
    SqliteStatement statement = SqliteStatement::prepare(database_.connection(), sql);
    statement.bind(1, mainIndex);
    statement.bind(2, orientationType);
    if (statement.step() != SQLITE_DONE) {
        insertFailed();
    }
}

bool PresetStore::insertStop(std::int32_t mainIndex, const ColorStop& stop) {
    const std::string sql = "insert into " + additionalTable +
                            " (mainIndex, position, red, green, blue, opacity) VALUES (?, ?, ?, ?, ?, ?);";
    logStatement(sql);
    SqliteStatement statement = SqliteStatement::prepare(database_.connection(), sql);
    const RGBAComponents color = stop.color.calibratedRGB().value_or(RGBAComponents{});
    statement.bind(1, mainIndex);
    int parameter = 2;
    for (const double value : {stop.position, color.red, color.green, color.blue, stop.opacity}) {
        statement.bind(parameter++, value);
    }
    if (statement.step() != SQLITE_DONE) {
        insertFailed();
        return false;
    }
    return true;
}

void PresetStore::insertFailed() {
    DiagnosticLog::write("Error while inserting: " + database_.connection().errorText());
    complete_ = false;
}

bool PresetStore::executeSQL(const std::string& statement) {
    const SqliteResult result = database_.connection().execute(statement);
    complete_ = complete_ && result.code == SQLITE_OK;
    if (!result.message) {
        return true;
    }
    LastError_ = *result.message;
    DiagnosticLog::write("LastError: " + LastError_);
    return false;
}

bool PresetStore::executeSQL(const std::string& query, std::vector<std::vector<std::string>>& rowData) {
    rowData.clear();
    SqliteStatement statement = SqliteStatement::prepareFirstGeneration(database_.connection(), query);
    while (statement.step() == SQLITE_ROW) {
        std::vector<std::string> row;
        row.reserve(static_cast<std::size_t>(statement.columnCount()));
        for (int column = 0; column < statement.columnCount(); ++column) {
            row.push_back(statement.text(column));
        }
        rowData.push_back(std::move(row));
    }
    return true;
}

bool PresetStore::isRecordFound(const std::string& query) {
    int columns = 0;
    const SqliteResult result = database_.connection().queryTable(query, columns);
    if (result.code == SQLITE_OK) {
        return columns > 0;
    }
    if (result.message) {
        LastError_ = database_.connection().errorText();
    }
    return false;
}

} // namespace tessaly
