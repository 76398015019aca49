#pragma once

/// Classes of characters, independent of the locale; of the units of UTF-8 and of UTF-16.
namespace tessaly {

constexpr bool isBlank(auto c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

constexpr bool isQuote(auto c) {
    return c == '"' || c == '\'';
}

constexpr bool isLetter(auto c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace tessaly
