#pragma once

#include <string>
#include <string_view>

namespace tessaly {

/// Text of an attribute of a page with its character references resolved: those of marks, and numbers. Any
/// other stays as it is.
std::string withoutCharacterReferences(std::string_view text);

} // namespace tessaly
