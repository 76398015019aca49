#pragma once

/// The two tables of the preset database: a row for each preset, and a row for each of its stops.
namespace tessaly::presetTable {

inline constexpr const char* main = "MainTable";
inline constexpr const char* additional = "AdditionalTable";

} // namespace tessaly::presetTable
