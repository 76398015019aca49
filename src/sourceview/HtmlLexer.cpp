#include "sourceview/HtmlLexer.h"

#include "foundation/Character.h"

#include <algorithm>
#include <utility>

namespace tessaly {
namespace {

bool endsName(char16_t c) {
    return isBlank(c) || isQuote(c) || c == u'=' || c == u'/' || c == u'>';
}

// A value without quotes.
bool endsValue(char16_t c) {
    return isBlank(c) || c == u'>';
}

} // namespace

std::optional<CodeStretch> HtmlLexer::next() {
    while (at_ < text_.size()) {
        if (const auto stretch = isInTag_ ? nextInTag() : nextInText()) {
            return stretch;
        }
    }
    return std::nullopt;
}

std::optional<CodeStretch> HtmlLexer::nextInText() {
    at_ = std::min(text_.find(u'<', at_), text_.size());
    if (text_.substr(at_, opener.size()) == opener) {
        return take(behind(closer, at_ + opener.size()), CodeRole::Comment);
    }
    if (startsTag(at_ + 1)) {
        isInTag_ = true;
        isValueNext_ = false;
        return take(endOf(endsName, at_ + 2), CodeRole::Name);
    }
    ++at_;
    return std::nullopt;
}

std::optional<CodeStretch> HtmlLexer::nextInTag() {
    const char16_t c = text_[at_];
    if (isBlank(c) || c == u'=') {
        isValueNext_ = isValueNext_ || c == u'=';
        ++at_;
        return std::nullopt;
    }
    const bool isValue = std::exchange(isValueNext_, false);
    if (isQuote(c)) {
        return take(behind(text_.substr(at_, 1), at_ + 1), CodeRole::Value);
    }
    if (c == u'>' || (c == u'/' && !isValue)) {
        isInTag_ = c != u'>';
        return take(at_ + 1, CodeRole::Name);
    }
    return isValue ? take(endOf(endsValue, at_), CodeRole::Value)
                   : take(endOf(endsName, at_), CodeRole::Property);
}

CodeStretch HtmlLexer::take(std::size_t end, CodeRole role) {
    const std::size_t start = at_;
    at_ = end;
    return {{start, end - start}, role};
}

std::size_t HtmlLexer::behind(std::u16string_view closing, std::size_t from) const {
    const std::size_t end = text_.find(closing, from);
    return end == std::u16string_view::npos ? text_.size() : end + closing.size();
}

std::size_t HtmlLexer::endOf(bool (*ends)(char16_t), std::size_t from) const {
    const std::u16string_view rest = text_.substr(from);
    const auto end = std::ranges::find_if(rest, ends);
    return from + static_cast<std::size_t>(end - rest.begin());
}

// What stands behind a less-than sign.
bool HtmlLexer::startsTag(std::size_t place) const {
    return place < text_.size() && (isLetter(text_[place]) || text_[place] == u'/' || text_[place] == u'!');
}

} // namespace tessaly
