#include "exchange/CssTokenizer.h"

#include "exchange/CssCharacter.h"
#include "exchange/CssName.h"

#include <algorithm>
#include <array>

namespace tessaly {
using Kind = CssToken::Kind;

namespace {

// What a token can be that starts with a byte.
enum class Start : unsigned char { Mark, Blank, Name, Digit, Quote, Sign };

constexpr std::array<Start, 256> makeStarts() {
    std::array<Start, 256> starts{};
    for (std::size_t byte = 0; byte < starts.size(); ++byte) {
        const char c = static_cast<char>(static_cast<unsigned char>(byte));
        starts[byte] = isBlank(c)                                      ? Start::Blank
                       : startsCssName(c)                              ? Start::Name
                       : isDigit(c)                                    ? Start::Digit
                       : isQuote(c)                                    ? Start::Quote
                       : c == '+' || c == '-' || c == '.' || c == '\\' ? Start::Sign
                                                                       : Start::Mark;
    }
    return starts;
}

constexpr std::array<Start, 256> startsByByte = makeStarts();

Start startOf(char c) {
    return startsByByte[static_cast<unsigned char>(c)];
}

} // namespace

// And the marks that old pages put around a stylesheet.
void CssTokenizer::passComments() {
    for (;;) {
        const std::string_view rest = text_.between(place_, text_.size());
        if (rest.starts_with("/*")) {
            const auto close = rest.find("*/", 2);
            place_ = close == std::string_view::npos ? text_.size() : place_ + close + 2;
        } else if (rest.starts_with("<!--")) {
            place_ += 4;
        } else if (rest.starts_with("-->")) {
            place_ += 3;
        } else {
            return;
        }
    }
}

CssToken CssTokenizer::take(Kind kind, std::size_t end, std::string_view name) {
    const CssToken token{kind, place_, text_.between(place_, end), name};
    place_ = token.end();
    return token;
}

CssToken CssTokenizer::takeName() {
    const std::size_t end = text_.nameEnd(place_);
    const std::string_view name = text_.between(place_, end);
    if (text_.at(end) != '(') {
        return take(Kind::Ident, end, name);
    }
    const std::size_t argument = text_.blanksEnd(end + 1);
    if (isCssName(name, "url") && !isQuote(text_.at(argument))) {
        return takeUrl(argument);
    }
    return take(Kind::Function, end + 1, name);
}

CssToken CssTokenizer::takeMarkedName(Kind kind) {
    const std::size_t end = text_.nameEnd(place_ + 1);
    return take(kind, end, text_.between(place_ + 1, end));
}

CssToken CssTokenizer::takeNumber() {
    const std::size_t end = text_.numberEnd(place_);
    if (text_.at(end) == '%') {
        return take(Kind::Percentage, end + 1);
    }
    if (text_.startsName(end)) {
        const std::size_t unitEnd = text_.nameEnd(end);
        return take(Kind::Dimension, unitEnd, text_.between(end, unitEnd));
    }
    return take(Kind::Number, end);
}

CssToken CssTokenizer::takeString() {
    const std::size_t start = place_ + 1;
    const char quote = text_.at(place_);
    for (std::size_t end = start; end < text_.size(); ++end) {
        const char c = text_.at(end);
        if (c == quote) {
            return take(Kind::String, end + 1, text_.between(start, end));
        }
        if (isCssLineBreak(c)) {
            return take(Kind::BadString, end);
        }
        if (c == '\\') {
            end += text_.at(end + 1) == '\r' && text_.at(end + 2) == '\n' ? 2 : 1;
        }
    }
    return take(Kind::String, text_.size(), text_.between(start, text_.size()));
}

// Without quotes. One with a wrong character within ends at the same bracket.
CssToken CssTokenizer::takeUrl(std::size_t place) {
    const std::size_t start = place;
    while (place < text_.size() && text_.at(place) != ')') {
        place = text_.startsEscape(place) ? text_.escapeEnd(place) : place + 1;
    }
    const std::size_t contentEnd = std::min(place, text_.size());
    return take(Kind::Url, std::min(contentEnd + 1, text_.size()), text_.between(start, contentEnd));
}

CssToken CssTokenizer::takeMark() {
    const std::size_t end = place_ + 1;
    switch (text_.at(place_)) {
    case ':':
        return take(Kind::Colon, end);
    case ';':
        return take(Kind::Semicolon, end);
    case ',':
        return take(Kind::Comma, end);
    case '(':
    case '[':
    case '{':
        return take(Kind::Open, end);
    case ')':
    case ']':
    case '}':
        return take(Kind::Close, end);
    default:
        return take(Kind::Other, end);
    }
}

CssToken CssTokenizer::next() {
    if (text_.at(place_) == '/' || text_.at(place_) == '<' || text_.at(place_) == '-') {
        passComments();
    }
    if (place_ >= text_.size()) {
        return take(Kind::End, place_);
    }
    const char c = text_.at(place_);
    switch (startOf(c)) {
    case Start::Blank:
        return take(Kind::Blank, text_.blanksEnd(place_));
    case Start::Name:
        return takeName();
    case Start::Digit:
        return takeNumber();
    case Start::Quote:
        return takeString();
    case Start::Sign:
        return text_.startsNumber(place_) ? takeNumber() : text_.startsName(place_) ? takeName() : takeMark();
    case Start::Mark:
        break;
    }
    if (c == '#' && (isInCssName(text_.at(place_ + 1)) || text_.startsEscape(place_ + 1))) {
        return takeMarkedName(Kind::Hash);
    }
    if (c == '@' && text_.startsName(place_ + 1)) {
        return takeMarkedName(Kind::AtKeyword);
    }
    return takeMark();
}

} // namespace tessaly
