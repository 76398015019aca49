#pragma once

#include "foundation/Character.h"

#include <array>
#include <cstddef>
#include <string_view>

/// The classes of characters of CSS, independent of the locale. Every byte of a character outside ASCII may
/// be part of a name, well-formed or not.
namespace tessaly {

/// The text without blanks at its ends.
constexpr std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

constexpr bool isCssLineBreak(char c) {
    return c == '\n' || c == '\r' || c == '\f';
}

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// 0 ... 15; -1: it is no hexadecimal digit.
constexpr int hexDigit(char c) {
    if (isDigit(c)) {
        return c - '0';
    }
    const char letter = lowered(c);
    return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

constexpr bool startsCssName(char c) {
    return isLetter(c) || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

constexpr std::array<bool, 256> makeCssNameBytes() {
    std::array<bool, 256> bytes{};
    for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
        const char c = static_cast<char>(static_cast<unsigned char>(byte));
        bytes[byte] = startsCssName(c) || isDigit(c) || c == '-';
    }
    return bytes;
}

/// By the value of the byte: most of a stylesheet is names.
inline constexpr std::array<bool, 256> cssNameBytes = makeCssNameBytes();

constexpr bool isInCssName(char c) {
    return cssNameBytes[static_cast<unsigned char>(c)];
}

} // namespace tessaly
