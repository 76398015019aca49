#include "sourceview/CodeStretches.h"

#include "sourceview/CssLexer.h"
#include "sourceview/HtmlLexer.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr std::size_t lookBehind = 8'192;

// The start of the first line within reach before that place, which starts a line itself.
std::size_t startOfReading(std::u16string_view text, std::size_t place) {
    if (place <= lookBehind) {
        return 0;
    }
    return std::min(text.find(u'\n', place - lookBehind - 1) + 1, place);
}

// The length of the comment that the code begins within, with its end; 0 if it does not.
std::size_t restOfComment(std::u16string_view code, std::u16string_view opener, std::u16string_view closer) {
    const std::size_t end = code.find(closer);
    return end < code.find(opener) ? end + closer.size() : 0;
}

template <typename Lexer>
std::vector<CodeStretch> stretchesOf(std::u16string_view text, TextRange part) {
    std::vector<CodeStretch> stretches;
    const auto add = [&](CodeStretch stretch) {
        if (stretch.range.end() > part.location) {
            stretch.range.length = std::min(stretch.range.end(), part.end()) - stretch.range.location;
            stretches.push_back(stretch);
        }
    };
    const std::size_t start = startOfReading(text, part.location);
    const auto readable = text.substr(0, part.end() + Lexer::lookAhead);
    const std::size_t rest =
        start == 0 ? 0 : restOfComment(readable.substr(start), Lexer::opener, Lexer::closer);
    if (rest > 0) {
        add({{start, rest}, CodeRole::Comment});
    }
    Lexer lexer{readable, start + rest};
    for (auto next = lexer.next(); next && next->range.location < part.end(); next = lexer.next()) {
        add(*next);
    }
    return stretches;
}

} // namespace

std::vector<CodeStretch> codeStretches(CodeLanguage language, std::u16string_view text, TextRange part) {
    return language == CodeLanguage::Css ? stretchesOf<CssLexer>(text, part)
                                         : stretchesOf<HtmlLexer>(text, part);
}

} // namespace tessaly
