#include "exchange/CssTokenizer.h"

#include "exchange/CssCharacter.h"
#include "exchange/CssName.h"

#include <algorithm>

namespace tessaly {
using Kind = CssToken::Kind;

bool CssTokenizer::startsEscape(std::size_t place) const {
    return at(place) == '\\' && place + 1 < text_.size() && !isCssLineBreak(text_[place + 1]);
}

bool CssTokenizer::startsName(std::size_t place) const {
    if (at(place) == '-') {
        ++place;
        return at(place) == '-' || startsCssName(at(place)) || startsEscape(place);
    }
    return startsCssName(at(place)) || startsEscape(place);
}

bool CssTokenizer::startsNumber(std::size_t place) const {
    if (at(place) == '+' || at(place) == '-') {
        ++place;
    }
    return isDigit(at(place)) || (at(place) == '.' && isDigit(at(place + 1)));
}

std::size_t CssTokenizer::blanksEnd(std::size_t place) const {
    while (isCssBlank(at(place))) {
        ++place;
    }
    return place;
}

// A blank behind hexadecimal digits belongs to the escape.
std::size_t CssTokenizer::escapeEnd(std::size_t place) const {
    const std::size_t digits = place + 1;
    std::size_t end = digits;
    while (end < digits + 6 && hexDigit(at(end)) >= 0) {
        ++end;
    }
    if (end == digits) {
        return digits + 1;
    }
    if (at(end) == '\r' && at(end + 1) == '\n') {
        return end + 2;
    }
    return isCssBlank(at(end)) ? end + 1 : end;
}

std::size_t CssTokenizer::nameEnd(std::size_t place) const {
    while (isInCssName(at(place)) || startsEscape(place)) {
        place = text_[place] == '\\' ? escapeEnd(place) : place + 1;
    }
    return place;
}

std::size_t CssTokenizer::numberEnd(std::size_t place) const {
    const auto digitsEnd = [&](std::size_t end) {
        while (isDigit(at(end))) {
            ++end;
        }
        return end;
    };
    std::size_t end = digitsEnd(at(place) == '+' || at(place) == '-' ? place + 1 : place);
    if (at(end) == '.' && isDigit(at(end + 1))) {
        end = digitsEnd(end + 1);
    }
    if (lowered(at(end)) == 'e') {
        const std::size_t exponent = at(end + 1) == '+' || at(end + 1) == '-' ? end + 2 : end + 1;
        end = isDigit(at(exponent)) ? digitsEnd(exponent) : end;
    }
    return end;
}

// And the marks that old pages put around a stylesheet.
void CssTokenizer::passComments() {
    for (;;) {
        const std::string_view rest = text_.substr(place_);
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
    const CssToken token{kind, place_, text_.substr(place_, end - place_), name};
    place_ = token.end();
    return token;
}

CssToken CssTokenizer::takeName() {
    const std::size_t end = nameEnd(place_);
    const std::string_view name = text_.substr(place_, end - place_);
    if (at(end) != '(') {
        return take(Kind::Ident, end, name);
    }
    const std::size_t argument = blanksEnd(end + 1);
    if (isCssName(name, "url") && at(argument) != '"' && at(argument) != '\'') {
        return takeUrl(argument);
    }
    return take(Kind::Function, end + 1, name);
}

CssToken CssTokenizer::takeMarkedName(Kind kind) {
    const std::size_t end = nameEnd(place_ + 1);
    return take(kind, end, text_.substr(place_ + 1, end - place_ - 1));
}

CssToken CssTokenizer::takeNumber() {
    const std::size_t end = numberEnd(place_);
    if (at(end) == '%') {
        return take(Kind::Percentage, end + 1);
    }
    if (startsName(end)) {
        const std::size_t unitEnd = nameEnd(end);
        return take(Kind::Dimension, unitEnd, text_.substr(end, unitEnd - end));
    }
    return take(Kind::Number, end);
}

CssToken CssTokenizer::takeString() {
    const std::size_t start = place_ + 1;
    const char quote = text_[place_];
    for (std::size_t end = start; end < text_.size(); ++end) {
        const char c = text_[end];
        if (c == quote) {
            return take(Kind::String, end + 1, text_.substr(start, end - start));
        }
        if (isCssLineBreak(c)) {
            return take(Kind::BadString, end);
        }
        if (c == '\\') {
            end += at(end + 1) == '\r' && at(end + 2) == '\n' ? 2 : 1;
        }
    }
    return take(Kind::String, text_.size(), text_.substr(start));
}

// Without quotes. One with a wrong character within ends at the same bracket.
CssToken CssTokenizer::takeUrl(std::size_t place) {
    const std::size_t start = place;
    while (place < text_.size() && text_[place] != ')') {
        place = startsEscape(place) ? escapeEnd(place) : place + 1;
    }
    const std::size_t contentEnd = std::min(place, text_.size());
    return take(Kind::Url, std::min(contentEnd + 1, text_.size()), text_.substr(start, contentEnd - start));
}

CssToken CssTokenizer::takeMark() {
    const std::size_t end = place_ + 1;
    switch (text_[place_]) {
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
    if (at(place_) == '/' || at(place_) == '<' || at(place_) == '-') {
        passComments();
    }
    if (place_ >= text_.size()) {
        return take(Kind::End, place_);
    }
    const char c = text_[place_];
    if (isCssBlank(c)) {
        return take(Kind::Blank, blanksEnd(place_));
    }
    if (startsCssName(c)) {
        return takeName();
    }
    if (c == '"' || c == '\'') {
        return takeString();
    }
    if (startsNumber(place_)) {
        return takeNumber();
    }
    if (startsName(place_)) {
        return takeName();
    }
    if (c == '#' && (isInCssName(at(place_ + 1)) || startsEscape(place_ + 1))) {
        return takeMarkedName(Kind::Hash);
    }
    if (c == '@' && startsName(place_ + 1)) {
        return takeMarkedName(Kind::AtKeyword);
    }
    return takeMark();
}

} // namespace tessaly
