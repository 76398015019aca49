#pragma once

#include "foundation/TextRange.h"

#include <cstddef>
#include <cstdint>

namespace tessaly {

enum class CodeLanguage : std::uint8_t { Css, Html };

/// What a stretch of code is, for its colour. What is none of these, such as a page's text, has no stretch.
enum class CodeRole : std::uint8_t {
    Name,     ///< a selector or a tag
    Property, ///< or an attribute
    Value,    ///< of one of these
    Comment,
};
inline constexpr std::size_t codeRoleCount = 4;

struct CodeStretch {
    TextRange range;
    CodeRole role = CodeRole::Name;

    bool operator==(const CodeStretch&) const = default;
};

} // namespace tessaly
