#pragma once

#include <filesystem>

namespace tessaly {

/// Up to version 0.1 a copy of the database stood beside it while a save was under way, under the same name
/// with
/// ".safety". One that is found and holds more than the database, which a save then emptied, takes its place
/// once; any other is set aside.
void takeOverSafetyCopy(const std::filesystem::path& database);

} // namespace tessaly
