#include "presets/PresetStore.h"

#include "foundation/DiagnosticLog.h"
#include "presets/PresetGallery.h"
#include "presets/PresetTable.h"
#include "presets/PrivateFile.h"
#include "presets/SqliteStatement.h"
#include "presets/StoredStop.h"

#include <algorithm>
#include <array>
#include <sqlite3.h>
#include <utility>

namespace tessaly {
namespace {

const std::string& mainTable = presetTable::main;
const std::string& additionalTable = presetTable::additional;

struct Table {
    std::string name;
    std::string creation;
};

const std::array tables{
    Table{mainTable,
          "create table " + mainTable + " (mainIndex INTEGER PRIMARY KEY, orientationType INTEGER);"},
    Table{additionalTable, "create table " + additionalTable +
                               " (additionalIndex INTEGER PRIMARY KEY, mainIndex INTEGER, position FLOAT,"
                               " red FLOAT, green FLOAT, blue FLOAT, opacity FLOAT);"}};

const std::string stopsQuery =
    std::string{"select "} + storedStopColumns + " from " + additionalTable + " where mainIndex=";
const std::string insertMainRow = "insert into " + mainTable + " (mainIndex, orientationType) VALUES (?, ?);";
const std::string insertStopRow =
    "insert into " + additionalTable +
    " (mainIndex, position, red, green, blue, opacity) VALUES (?, ?, ?, ?, ?, ?);";

constexpr std::chrono::seconds lockPatience{2}; // at the start, when no window waits for an answer

void logStatement(const std::string& sql) {
    DiagnosticLog::write("sql: " + sql);
}

} // namespace

struct PresetStore::MainRow {
    std::int64_t mainIndex;
    std::int64_t orientationType;
};

PresetStore::PresetStore(PresetGallery& presets, const std::filesystem::path& applicationSupport)
    : presets_{presets}, database_{applicationSupport / "Tessaly"} {}

void PresetStore::openDB() {
    const std::filesystem::path& folder = database_.folder();
    DiagnosticLog::write("userpath");
    std::error_code error;
    if (!std::filesystem::exists(folder, error) && !createPrivateFolder(folder)) {
        DiagnosticLog::write("Error: Create folder failed " + folder.native());
    }
    DiagnosticLog::write("userpath: " + database_.file().native());
    if (database_.open(lockPatience)) {
        DiagnosticLog::write("Success!");
    }
    makeMissingTables();
    readData();
}

void PresetStore::closeDB() {
    if (database_.isUnsaved()) {
        insertData();
    }
    database_.close();
}

void PresetStore::makeMissingTables() {
    failure_.reset();
    bool made = false;
    for (const Table& table : tables) {
        if (!isTableExists(table.name)) {
            createTable(table.creation);
            made = true;
        }
    }
    if (made && !failure_) {
        database_.write();
    }
}

void PresetStore::createTable(const std::string& statement) {
    if (!executeSQL(statement)) {
        DiagnosticLog::write("Error create table!");
    }
}

bool PresetStore::isTableExists(const std::string& name) const {
    const std::string sql = "select name from sqlite_master where name='" + name + "'";
    logStatement(sql);
    return database_.connection().value(sql).has_value();
}

void PresetStore::readData() {
    database_.beginReading();
    const std::vector<MainRow> rows = readMainData();
    SqliteStatement query = SqliteStatement::prepareFirstGeneration(database_.connection(), stopsQuery + '?');
    for (const MainRow& row : rows) {
        DiagnosticLog::write("mainIndex: " + std::to_string(row.mainIndex));
        readAdditionalData(query, row);
    }
    database_.endReading(!failure_);
}

std::vector<PresetStore::MainRow> PresetStore::readMainData() {
    const std::string sql = "select mainIndex, orientationType from " + mainTable;
    logStatement(sql);
    SqliteStatement statement = SqliteStatement::prepareFirstGeneration(database_.connection(), sql);
    std::vector<MainRow> rows;
    int result = statement.step();
    for (; result == SQLITE_ROW; result = statement.step()) {
        rows.push_back({statement.integer(0), statement.integer(1)});
    }
    failure_.reset();
    noted(result == SQLITE_DONE);
    if (result == SQLITE_INTERRUPT) { // a view that never ends
        rows.clear();
    }
    return rows;
}

void PresetStore::readAdditionalData(SqliteStatement& query, const MainRow& row) {
    logStatement(stopsQuery + std::to_string(row.mainIndex));
    query.bind(row.mainIndex);
    std::vector<ColorStop> stops;
    int result = query.step();
    for (; result == SQLITE_ROW; result = query.step()) {
        stops.push_back(storedStop(query, 0));
    }
    noted(result == SQLITE_DONE);
    query.reset();
    presets_.addGradientIntoPreset(Gradient{std::move(stops), row.orientationType});
}

// The presets of this run stand behind those that were stored all along.
void PresetStore::readBeforeSaving() {
    if (database_.open()) {
        makeMissingTables();
    }
    if (!database_.isUnread()) {
        presets_.insertStored([this] { readData(); });
    }
}

void PresetStore::insertData() {
    if (database_.isUnread()) {
        readBeforeSaving();
    }
    failure_.reset();
    if (database_.beginSave()) {
        std::ranges::for_each(tables, [this](const Table& table) { createTable(table.creation); });
    }
    for (const Table& table : tables) {
        if (!executeSQL("delete from " + table.name + ";")) {
            DiagnosticLog::write("Error delete data!");
        }
    }
    insertAllPresets();
    database_.endSave(failure_);
}

void PresetStore::insertAllPresets() {
    SqliteStatement mainRow = SqliteStatement::prepare(database_.connection(), insertMainRow);
    SqliteStatement stopRow = SqliteStatement::prepare(database_.connection(), insertStopRow);
    std::int64_t index = 0;
    for (const auto& preset : presets_.presetGradient()) {
        const Gradient& gradient = *preset;
        const std::int64_t orientation =
            static_cast<std::int32_t>(gradient.orientation()); // of 32 bits there
        mainRow.bind(index, orientation);
        insert(mainRow, insertMainRow);
        const bool allInserted = std::ranges::all_of(gradient.stops(), [&](const ColorStop& stop) {
            const RGBAComponents color = stop.color.calibratedRGB().value_or(RGBAComponents{});
            stopRow.bind(index, stop.position, color.red, color.green, color.blue, stop.opacity);
            return insert(stopRow, insertStopRow);
        });
        if (!allInserted) {
            return;
        }
        ++index;
    }
}

bool PresetStore::insert(SqliteStatement& row, const std::string& sql) {
    logStatement(sql);
    const bool done = noted(row.step() == SQLITE_DONE);
    if (!done) {
        DiagnosticLog::write("Error while inserting: " + database_.connection().errorText());
    }
    row.reset();
    return done;
}

bool PresetStore::noted(bool success) {
    if (!success && !failure_) {
        failure_ = database_.connection().errorText();
    }
    return success;
}

bool PresetStore::executeSQL(const std::string& statement) {
    const SqliteResult result = database_.connection().execute(statement);
    noted(result.code == SQLITE_OK);
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

} // namespace tessaly
