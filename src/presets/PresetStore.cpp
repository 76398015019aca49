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

const std::string stopsQuery =
    "select position, red, green, blue, opacity from " + additionalTable + " where mainIndex=";
const std::string insertMainRow = "insert into " + mainTable + " (mainIndex, orientationType) VALUES (?, ?);";
const std::string insertStopRow =
    "insert into " + additionalTable +
    " (mainIndex, position, red, green, blue, opacity) VALUES (?, ?, ?, ?, ?, ?);";

constexpr std::chrono::seconds lockPatience{2}; // at the start, when no window waits for an answer

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
    if (!database_.open(lockPatience)) {
        return false;
    }
    DiagnosticLog::write("Success!");
    return true;
}

void PresetStore::closeDB() {
    if (database_.isUnsaved()) {
        insertData();
    }
    database_.close();
}

void PresetStore::openWithTables() {
    openDB();
    makeMissingTables();
}

void PresetStore::makeMissingTables() {
    complete_ = true;
    bool made = false;
    if (!isTableExists(mainTable)) {
        createMainTable();
        made = true;
    }
    if (!isTableExists(additionalTable)) {
        createAdditionalTable();
        made = true;
    }
    if (made && complete_) {
        database_.write();
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
        SqliteStatement statement = SqliteStatement::prepareFirstGeneration(database_.connection(), sql);
        int result = statement.step();
        presets_.setGradientIndex(0);
        for (; result == SQLITE_ROW; result = statement.step()) {
            rows.push_back({statement.integer(0), statement.integer(1)});
        }
        complete_ = result == SQLITE_DONE;
        if (result == SQLITE_INTERRUPT) { // a view that never ends
            rows.clear();
        }
    }
    SqliteStatement query = SqliteStatement::prepareFirstGeneration(database_.connection(), stopsQuery + '?');
    for (const MainRow& row : rows) {
        DiagnosticLog::write("mainIndex: " + std::to_string(row.mainIndex));
        readAdditionalData(query, row.mainIndex, row.orientationType);
    }
    database_.endReading(complete_);
}

void PresetStore::readAdditionalData(SqliteStatement& query, std::int64_t mainIndex,
                                     std::int64_t orientationType) {
    logStatement(stopsQuery + std::to_string(mainIndex));
    query.bind(1, mainIndex);
    std::vector<ColorStop> stops;
    int result = query.step();
    for (; result == SQLITE_ROW; result = query.step()) {
        stops.push_back({query.real(0), Color::calibratedRGB(query.real(1), query.real(2), query.real(3)),
                         query.real(4)});
    }
    query.reset();
    complete_ = complete_ && result == SQLITE_DONE;
    presets_.addGradientIntoPreset(Gradient{std::move(stops), orientationType});
}

// The presets of this run stand behind those that were stored all along.
void PresetStore::readBeforeSaving() {
    if (database_.open()) {
        makeMissingTables();
    }
    if (!database_.isUnread()) {
        const std::vector<Preset> added = presets_.takePresets();
        readData();
        for (const Preset& preset : added) {
            presets_.addGradientIntoPreset(preset.gradient);
        }
    }
}

void PresetStore::insertData() {
    if (database_.isUnread()) {
        readBeforeSaving();
    }
    complete_ = true;
    if (database_.beginSave()) {
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
    SqliteStatement mainRow = SqliteStatement::prepare(database_.connection(), insertMainRow);
    SqliteStatement stopRow = SqliteStatement::prepare(database_.connection(), insertStopRow);
    const std::vector<Preset>& presets = presets_.presetGradient();
    for (std::size_t i = 0; i < presets.size(); ++i) {
        // The main row takes the preset's own index and the stops its place in the list, deliberately: it is
        // the list that keeps the two equal.
        insertMainData(mainRow, static_cast<std::int32_t>(presets[i].index),
                       static_cast<std::int32_t>(presets[i].gradient.orientation()));
        const bool allInserted = std::ranges::all_of(presets[i].gradient.stops(), [&](const ColorStop& stop) {
            return insertStop(stopRow, static_cast<std::int32_t>(i), stop);
        });
        if (!allInserted) {
            return;
        }
    }
}

void PresetStore::insertMainData(SqliteStatement& row, std::int32_t mainIndex, std::int32_t orientationType) {
    logStatement(insertMainRow);
    row.bind(1, std::int64_t{mainIndex});
    row.bind(2, std::int64_t{orientationType});
    insert(row);
}

bool PresetStore::insertStop(SqliteStatement& row, std::int32_t mainIndex, const ColorStop& stop) {
    logStatement(insertStopRow);
    const RGBAComponents color = stop.color.calibratedRGB().value_or(RGBAComponents{});
    row.bind(1, std::int64_t{mainIndex});
    int parameter = 2;
    for (const double value : {stop.position, color.red, color.green, color.blue, stop.opacity}) {
        row.bind(parameter++, value);
    }
    return insert(row);
}

bool PresetStore::insert(SqliteStatement& row) {
    const bool done = row.step() == SQLITE_DONE;
    if (!done) {
        DiagnosticLog::write("Error while inserting: " + database_.connection().errorText());
        complete_ = false;
    }
    row.reset();
    return done;
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
