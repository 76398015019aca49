#pragma once

#include <string>
#include <string_view>

namespace tessaly {

inline constexpr char32_t replacementCharacter = 0xFFFD;

/// Adds a character to UTF-8 text; U+FFFD for a surrogate and for what lies beyond the last character.
void appendUtf8(std::string& text, char32_t character);

/// At most `most` bytes of UTF-8 text, without cutting a character in two.
std::string_view utf8Prefix(std::string_view text, std::size_t most);

/// UTF-16 text as UTF-8; a surrogate without its partner becomes U+FFFD.
std::string toUtf8(std::u16string_view text);

} // namespace tessaly
