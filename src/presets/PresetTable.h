#pragma once

#include <string>

/// The two tables of the preset database: a row for each preset, and a row for each of its stops.
namespace tessaly::presetTable {

inline const std::string main = "MainTable";
inline const std::string additional = "AdditionalTable";

} // namespace tessaly::presetTable
