#include "sourceview/CssLexer.h"

#include "foundation/Character.h"

#include <algorithm>

namespace tessaly {
namespace {

bool endsStatement(char16_t c) {
    return c == u'{' || c == u'}' || c == u';';
}

bool ends(CodeRole role, char16_t c) {
    switch (role) {
    case CodeRole::Name:
        return endsStatement(c);
    case CodeRole::Property:
        return c == u':' || endsStatement(c);
    default:
        return c == u';' || c == u'}';
    }
}

// A property that has no colon yet has none of these.
bool isOfValue(char16_t c) {
    return std::u16string_view{u"#%(),"}.find(c) != std::u16string_view::npos;
}

} // namespace

std::optional<CodeStretch> CssLexer::next() {
    for (; at_ < text_.size(); ++at_) {
        const std::size_t start = at_;
        if (isAtComment(at_)) {
            at_ = behind(at_);
            return CodeStretch{{start, at_ - start}, CodeRole::Comment};
        }
        if (isBlank(text_[at_]) || takePunctuation()) {
            continue;
        }
        at_ = endOf(*role_);
        return CodeStretch{{start, at_ - start}, *role_};
    }
    return std::nullopt;
}

// Whether punctuation stands here. Leaves the role of what follows it, else that of what stands here.
bool CssLexer::takePunctuation() {
    const char16_t c = text_[at_];
    if (!role_ && !endsStatement(c)) {
        role_ = roleOfStatement();
    }
    if (role_ && !ends(*role_, c)) {
        return false;
    }
    role_ = c == u':' ? std::optional{CodeRole::Value} : std::nullopt;
    return true;
}

CodeRole CssLexer::roleOfStatement() const {
    if (text_[at_] == u'@') {
        return CodeRole::Name;
    }
    bool hasColon = false;
    bool hasValue = false;
    const std::size_t reach = at_ + lookAhead;
    std::size_t i = at_;
    for (; i < std::min(reach, text_.size()) && !endsStatement(text_[i]); i = behind(i)) {
        hasColon = hasColon || text_[i] == u':';
        hasValue = hasValue || isOfValue(text_[i]);
    }
    const bool isLast = i >= text_.size() && i < reach; // nobody closes a block, so it is in none
    if (i < text_.size() && text_[i] == u'{') {
        return CodeRole::Name;
    }
    if (hasColon) {
        return CodeRole::Property;
    }
    if (isLast) {
        return CodeRole::Name;
    }
    return hasValue ? CodeRole::Value : CodeRole::Property;
}

// Of the stretch of that role that starts here: what ends it, or a comment.
std::size_t CssLexer::endOf(CodeRole role) const {
    std::size_t i = at_;
    while (i < text_.size() && !ends(role, text_[i]) && !isAtComment(i)) {
        i = behind(i);
    }
    return i;
}

// The end of the comment, string or character that starts there. A string ends with its line if it is not
// closed before.
std::size_t CssLexer::behind(std::size_t place) const {
    if (isAtComment(place)) {
        const std::size_t end = text_.find(closer, place + opener.size());
        return end == std::u16string_view::npos ? text_.size() : end + closer.size();
    }
    if (!isQuote(text_[place])) {
        return place + 1;
    }
    std::size_t i = place + 1;
    while (i < text_.size() && text_[i] != text_[place] && text_[i] != u'\n') {
        i += text_[i] == u'\\' ? 2 : 1;
    }
    return std::min(i + 1, text_.size());
}

} // namespace tessaly
