#include "exchange/CssFinder.h"

#include "exchange/CssGradientFunction.h"
#include "exchange/CssName.h"
#include "exchange/CssValue.h"
#include "foundation/Utf8.h"

#include <algorithm>

namespace tessaly {
namespace {

using Kind = CssToken::Kind;

constexpr std::size_t mostOpenRules = 1000;
constexpr std::size_t longestName = 200;

// A selector on one line, without comments.
std::string nameOf(std::string_view selector) {
    std::string name;
    CssTokenizer tokens{selector};
    for (CssToken token = tokens.next(); token.kind != Kind::End && name.size() < longestName;
         token = tokens.next()) {
        const bool isFurtherBlank = token.kind == Kind::Blank && name.ends_with(' ');
        name += token.kind != Kind::Blank ? token.text.substr(0, longestName) : isFurtherBlank ? "" : " ";
    }
    const auto begin = std::min(name.find_first_not_of(' '), name.size());
    const auto end = name.find_last_not_of(' ') + 1;
    return std::string{
        utf8Prefix(std::string_view{name}.substr(begin, std::max(begin, end) - begin), longestName)};
}

bool mayHoldGradient(const CssToken& token) {
    return (token.kind == Kind::Function && findGradientFunction(token.name).has_value()) ||
           (token.kind == Kind::String && token.name.starts_with("progid:"));
}

} // namespace

bool CssFinder::run() {
    item_.begin = 0;
    for (CssToken token = tokens_.next(); token.kind != Kind::End; token = tokens_.next()) {
        if (!progress_.reach(offset_ + token.begin) || !take(token)) {
            return false;
        }
    }
    return endItem(text_.size());
}

bool CssFinder::take(const CssToken& token) {
    switch (token.kind) {
    case Kind::Semicolon:
        return !brackets_.empty() || endItem(token.begin);
    case Kind::Open:
        if (token.is('{') && brackets_.empty() && !item_.isCustomProperty()) {
            openRule(token);
            return true;
        }
        break;
    case Kind::Close:
        return takeClosing(token);
    default:
        break;
    }
    follow(token);
    return true;
}

bool CssFinder::takeClosing(const CssToken& token) {
    if (!brackets_.empty() || !token.is('}')) {
        brackets_.close(token.text.front());
        return true;
    }
    const bool goesOn = endItem(token.begin);
    if (tooDeep_ > 0) {
        --tooDeep_;
    } else if (rules_.size() > 1) {
        rules_.pop_back();
    }
    item_ = {Item::Part::Start, token.end()};
    return goesOn;
}

// Learns what the item is, token by token.
void CssFinder::follow(const CssToken& token) {
    if (token.kind == Kind::Function || token.kind == Kind::Open) {
        brackets_.open(token.text.back());
    }
    item_.holdsGradient = item_.holdsGradient || mayHoldGradient(token);
    if (token.kind == Kind::Blank) {
        return;
    }
    if (item_.part == Item::Part::Start) {
        item_.name = token.name;
        item_.part = token.kind == Kind::Ident       ? Item::Part::Name
                     : token.kind == Kind::AtKeyword ? Item::Part::AtRule
                                                     : Item::Part::Other;
    } else if (item_.part == Item::Part::Name) {
        item_.part = token.kind == Kind::Colon ? Item::Part::Value : Item::Part::Other;
        item_.value = token.end();
    }
}

void CssFinder::openRule(const CssToken& brace) {
    const bool isAtRule = item_.part == Item::Part::AtRule;
    const std::string_view prelude = text_.substr(item_.begin, brace.begin - item_.begin);
    if (tooDeep_ > 0 || rules_.size() > mostOpenRules) {
        ++tooDeep_;
        found_.setIncomplete();
    } else {
        rules_.push_back({prelude, isAtRule ? rules_.back().named : rules_.size()});
    }
    item_ = {Item::Part::Start, brace.end()};
}

bool CssFinder::endItem(std::size_t end) {
    const Item item = item_;
    const std::size_t begin = item.part == Item::Part::Value ? item.value : item.begin;
    const bool isBareValue = item.part == Item::Part::Other && rules_.size() == 1;
    brackets_.clear();
    bool goesOn = true;
    if (item.holdsGradient && tooDeep_ == 0 && (isBareValue || item.part == Item::Part::Value)) {
        goesOn = readDeclaration(text_.substr(begin, end - begin));
    }
    item_ = {Item::Part::Start, std::min(end + 1, text_.size())};
    return goesOn;
}

const std::string& CssFinder::ruleName() {
    OpenRule& rule = rules_[rules_.back().named];
    if (!rule.name) {
        rule.name = nameOf(rule.selector);
    }
    return *rule.name;
}

// A value that is a string holds a filter.
bool CssFinder::readDeclaration(std::string_view value) {
    CssTokenizer tokens{value};
    CssToken first = tokens.next();
    first = first.kind == Kind::Blank ? tokens.next() : first;
    CssValue read = readCssValue(first.kind == Kind::String ? first.name : value);
    if (read.tooManyStops) {
        found_.setIncomplete();
    }
    if (!read.gradient) {
        return true;
    }
    FoundGradient& found = read.gradient->found;
    if (item_.part == Item::Part::Other) {
        return found_.add(std::move(found));
    }
    OpenRule& rule = rules_.back();
    found.name = item_.isCustomProperty() ? nameOf(item_.name) : ruleName();
    return found_.add(rule.gradients, item_.name, read.gradient->form, std::move(found));
}

} // namespace tessaly
