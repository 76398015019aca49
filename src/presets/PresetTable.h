#pragma once

#include "presets/SqliteConnection.h"

#include <string>

/// The two tables of the preset database: a row for each preset, and a row for each of its stops.
namespace tessaly::presetTable {

inline const std::string main = "MainTable";
inline const std::string additional = "AdditionalTable";

/// Both are there, as real tables. A view, and a table that a module makes up, could go on for ever, and a
/// view could never be saved to.
inline bool areIn(const SqliteConnection& database) {
    return database.value(
               "select count(*) from sqlite_master where type='table' and rootpage>0 and name in ('" + main +
               "', '" + additional + "')") == "2";
}

} // namespace tessaly::presetTable
