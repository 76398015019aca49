#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tessaly {

/// The named colour of CSS as 0xRRGGBB; `name` is in lower case. None: there is none of that name.
std::optional<std::uint32_t> namedColor(std::string_view name);

} // namespace tessaly
