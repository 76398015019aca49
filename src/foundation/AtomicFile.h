#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace tessaly {

/// Replaces the file at `target` in one step: a reader sees the old contents or the new, never a part. On
/// failure the old file stays as it was, nothing is left beside it, and the error tells why. The file is
/// private to the user. It is not forced to the disk: a power cut may lose it.
std::error_code writeFileAtomically(const std::filesystem::path& target, std::string_view contents);

} // namespace tessaly
