#pragma once

/// Classes of characters, independent of the locale; of the units of UTF-8 and of UTF-16.
namespace tessaly {

template <typename Unit>
constexpr bool isBlank(Unit c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

template <typename Unit>
constexpr bool isQuote(Unit c) {
    return c == '"' || c == '\'';
}

template <typename Unit>
constexpr bool isLetter(Unit c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace tessaly
