#include "exchange/SvgStyleText.h"

#include "exchange/SvgValue.h"

#include <algorithm>

namespace tessaly {

std::string withoutComments(std::string_view style) {
    std::string text;
    while (!style.empty()) {
        const std::size_t begin = style.find("/*");
        text += style.substr(0, begin);
        if (begin == std::string_view::npos) {
            break;
        }
        text += ' ';
        const std::size_t end = style.find("*/", begin + 2);
        style = end == std::string_view::npos ? std::string_view{} : style.substr(end + 2);
    }
    return text;
}

std::string_view takeUpTo(std::string_view& style, std::string_view enders, char& ender) {
    const std::string_view whole = style;
    std::size_t depth = 0;
    ender = 0;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        const char c = whole[i];
        if (depth == 0 && enders.find(c) != std::string_view::npos) {
            ender = c;
            style.remove_prefix(i + 1);
            return whole.substr(0, i);
        }
        if (c == '\\') {
            ++i;
        } else if (c == '"' || c == '\'') {
            i = std::min(whole.find(c, i + 1), whole.size());
        } else if (c == '(' || c == '[' || c == '{') {
            ++depth;
        } else if ((c == ')' || c == ']' || c == '}') && depth > 0) {
            --depth;
        }
    }
    style = {};
    return whole;
}

std::optional<SvgDeclaration> takeDeclaration(std::string_view& list) {
    constexpr std::string_view important = "!important";
    while (!list.empty()) {
        char ender = 0;
        const std::string_view text = takeUpTo(list, ";", ender);
        const std::size_t colon = text.find(':');
        if (colon == std::string_view::npos) {
            continue;
        }
        SvgDeclaration declaration{trimmed(text.substr(0, colon)), trimmed(text.substr(colon + 1))};
        declaration.isImportant = declaration.value.ends_with(important);
        if (declaration.isImportant) {
            declaration.value.remove_suffix(important.size());
        }
        return declaration;
    }
    return std::nullopt;
}

} // namespace tessaly
