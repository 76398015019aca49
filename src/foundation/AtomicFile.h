#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace tessaly {

class Descriptor;

/// Replaces the file `name` of an open folder in one step: a reader sees the old contents or the new, never a
/// part. On failure the old file stays as it was, nothing is left beside it, and the error tells why. The
/// file is private to the user; a link of its name is replaced, not followed. It is not forced to the disk: a
/// power cut may lose it.
std::error_code writeFileAtomically(const Descriptor& folder, const std::string& name,
                                    std::string_view contents);

} // namespace tessaly
