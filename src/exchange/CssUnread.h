#pragma once

#include <string_view>

namespace tessaly {

/// What of a value is right in a browser although it cannot be read here, as it depends on where it stands: a
/// phrase such as "uses var()", of static storage. Empty: there is nothing of that kind.
std::string_view whyCssUnread(std::string_view text);

} // namespace tessaly
