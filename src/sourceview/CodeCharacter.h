#pragma once

namespace tessaly {

constexpr bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

constexpr bool isQuote(char16_t c) {
    return c == u'"' || c == u'\'';
}

constexpr bool isLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

} // namespace tessaly
