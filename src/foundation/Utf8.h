#pragma once

#include <string>
#include <string_view>

namespace tessaly {

/// UTF-16 text as UTF-8; a surrogate without its partner becomes U+FFFD.
std::string toUtf8(std::u16string_view text);

} // namespace tessaly
