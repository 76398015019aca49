#pragma once

#include "model/Gradient.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace tessaly {

/// The presets of a database that this program wrote, in their order: of another machine, of the copy that is
/// running, or set aside. The file is not trusted, and neither written nor locked. None: it is no such
/// database. Of one that is damaged, or too large, as many presets as could be read.
std::optional<std::vector<Gradient>> readPresetFile(const std::filesystem::path& file);

} // namespace tessaly
