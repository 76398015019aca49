#pragma once

#include <array>
#include <filesystem>

namespace tessaly {

/// What SQLite puts beside a database that is in use or was left in a crash, and that belongs to it.
inline constexpr std::array companionSuffixes{"-wal", "-journal"};

/// Keeps a file that must not be overwritten for the user: moves it, with its companions, to a dated name
/// beside it, and logs that. Killed at any moment it stands whole under one of the names. False: it is where
/// it was. True also when there is nothing.
bool setAside(const std::filesystem::path& file);

} // namespace tessaly
