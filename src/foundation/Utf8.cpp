#include "foundation/Utf8.h"

#include "foundation/Utf16.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

// Takes the next code point off the front of `text`.
char32_t takeCodePoint(std::u16string_view& text) {
    const char16_t unit = text.front();
    const char16_t next = text.size() > 1 ? text[1] : u'\0';
    const bool isPair = isHighSurrogate(unit) && isLowSurrogate(next);
    text.remove_prefix(isPair ? 2 : 1);
    if (isPair) {
        const char32_t high = unit - 0xD800U;
        const char32_t low = next - 0xDC00U;
        return 0x10000U + (high << 10U) + low;
    }
    return unit;
}

} // namespace

void appendUtf8(std::string& text, char32_t character) {
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    const char32_t codePoint = isSurrogate || character > 0x10FFFF ? replacementCharacter : character;
    constexpr std::array leads{0x00U, 0xC0U, 0xE0U, 0xF0U}; // by the number of bytes that follow
    const unsigned following = codePoint < 0x80 ? 0 : codePoint < 0x800 ? 1 : codePoint < 0x10000 ? 2 : 3;
    unsigned shift = 6 * following;
    text += static_cast<char>(leads[following] | (codePoint >> shift));
    while (shift > 0) {
        shift -= 6;
        text += static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU));
    }
}

std::string_view utf8Prefix(std::string_view text, std::size_t most) {
    const auto continues = [&](std::size_t place) {
        return (static_cast<unsigned char>(text[place]) & 0xC0U) == 0x80U;
    };
    if (text.size() <= most) {
        return text;
    }
    while (most > 0 && continues(most)) {
        --most;
    }
    return text.substr(0, most);
}

std::string toUtf8(std::u16string_view text) {
    if (std::ranges::all_of(text, [](char16_t unit) { return unit < 0x80; })) { // generated code
        return {text.begin(), text.end()};
    }
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        appendUtf8(out, takeCodePoint(text));
    }
    return out;
}

} // namespace tessaly
