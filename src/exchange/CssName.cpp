#include "exchange/CssName.h"

#include "exchange/CssCharacter.h"
#include "foundation/Utf8.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

// The character that hexadecimal digits at the front of `text` stand for; they and one blank are taken off.
char32_t takeEscapedCharacter(std::string_view& text) {
    char32_t character = 0;
    std::size_t digits = 0;
    for (; digits < 6 && digits < text.size() && hexDigit(text[digits]) >= 0; ++digits) {
        character = character * 16 + static_cast<char32_t>(hexDigit(text[digits]));
    }
    text.remove_prefix(digits);
    if (text.starts_with("\r\n")) {
        text.remove_prefix(2);
    } else if (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    return character == 0 ? replacementCharacter : character;
}

} // namespace

std::string withoutCssEscapes(std::string_view text) {
    std::string plain;
    plain.reserve(text.size());
    while (!text.empty()) {
        const auto escape = std::min(text.find('\\'), text.size());
        plain += text.substr(0, escape);
        text.remove_prefix(std::min(escape + 1, text.size()));
        if (text.empty()) {
            break;
        }
        if (hexDigit(text.front()) >= 0) {
            appendUtf8(plain, takeEscapedCharacter(text));
        } else if (isCssLineBreak(text.front())) {
            text.remove_prefix(text.starts_with("\r\n") ? 2 : 1); // a string may be broken so
        } else {
            plain += text.front();
            text.remove_prefix(1);
        }
    }
    return plain;
}

std::string cssName(std::string_view written) {
    std::string name = withoutCssEscapes(written);
    std::ranges::transform(name, name.begin(), lowered);
    return name;
}

bool isCssName(std::string_view written, std::string_view name) {
    constexpr char escape = '\\';
    const bool mayBe = !written.empty() && written.size() >= name.size() &&
                       (lowered(written.front()) == name.front() || written.front() == escape);
    if (!mayBe) {
        return false; // most names
    }
    if (written.find(escape) != std::string_view::npos) {
        return cssName(written) == name;
    }
    return std::ranges::equal(written, name, {}, lowered);
}

bool takeBrowserPrefix(std::string_view& name) {
    constexpr std::array<std::string_view, 4> prefixes{"-webkit-", "-moz-", "-o-", "-ms-"};
    const auto* const prefix =
        std::ranges::find_if(prefixes, [&](std::string_view p) { return name.starts_with(p); });
    name.remove_prefix(prefix == prefixes.end() ? 0 : prefix->size());
    return prefix != prefixes.end();
}

} // namespace tessaly
