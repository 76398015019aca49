#include "exchange/CssText.h"

#include "exchange/CssCharacter.h"

namespace tessaly {

bool CssText::startsEscape(std::size_t place) const {
    return at(place) == '\\' && place + 1 < text_.size() && !isCssLineBreak(text_[place + 1]);
}

bool CssText::startsName(std::size_t place) const {
    if (at(place) == '-') {
        ++place;
        return at(place) == '-' || startsCssName(at(place)) || startsEscape(place);
    }
    return startsCssName(at(place)) || startsEscape(place);
}

bool CssText::startsNumber(std::size_t place) const {
    if (at(place) == '+' || at(place) == '-') {
        ++place;
    }
    return isDigit(at(place)) || (at(place) == '.' && isDigit(at(place + 1)));
}

std::size_t CssText::blanksEnd(std::size_t place) const {
    while (isBlank(at(place))) {
        ++place;
    }
    return place;
}

// A blank behind hexadecimal digits belongs to the escape.
std::size_t CssText::escapeEnd(std::size_t place) const {
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
    return isBlank(at(end)) ? end + 1 : end;
}

std::size_t CssText::nameEnd(std::size_t place) const {
    while (isInCssName(at(place)) || startsEscape(place)) {
        place = text_[place] == '\\' ? escapeEnd(place) : place + 1;
    }
    return place;
}

std::size_t CssText::numberEnd(std::size_t place) const {
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

} // namespace tessaly
