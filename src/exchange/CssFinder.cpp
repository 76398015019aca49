#include "exchange/CssFinder.h"

#include "exchange/CssCharacter.h"
#include "foundation/Utf8.h"

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
    return std::string{utf8Prefix(trimmed(name), longestName)};
}

// A value that is a string holds a filter.
std::string_view withoutQuotes(std::string_view value) {
    CssTokenizer tokens{value};
    CssToken first = tokens.next();
    first = first.kind == Kind::Blank ? tokens.next() : first;
    return first.kind == Kind::String ? first.name : value;
}

} // namespace

bool CssFinder::run() {
    CssItems items{text_};
    while (const auto item = items.next()) {
        if (!progress_.reach(offset_ + items.place()) || !take(*item)) {
            return false;
        }
    }
    return true;
}

bool CssFinder::take(const CssItem& item) {
    switch (item.kind) {
    case CssItem::Kind::RuleStart:
        openRule(item);
        return true;
    case CssItem::Kind::RuleEnd:
        closeRule();
        return true;
    default:
        return !item.holdsGradient || tooDeep_ > 0 || takeValue(item);
    }
}

void CssFinder::openRule(const CssItem& rule) {
    if (tooDeep_ > 0 || rules_.size() > mostOpenRules) {
        ++tooDeep_;
        found_.setIncomplete();
    } else {
        rules_.push_back({rule.text, rule.isAtRule ? rules_.back().named : rules_.size()});
    }
}

void CssFinder::closeRule() {
    if (tooDeep_ > 0) {
        --tooDeep_;
    } else {
        rules_.pop_back();
    }
}

const std::string& CssFinder::ruleName() {
    OpenRule& rule = rules_[rules_.back().named];
    if (!rule.name) {
        rule.name = nameOf(rule.selector);
    }
    return *rule.name;
}

// What a gradient names of the text is looked up only when it cannot be read without.
CssValue CssFinder::read(const CssItem& item) {
    const std::string_view value = withoutQuotes(item.text);
    CssValue asWritten = readCssValue(value);
    if (!asWritten.gradient || asWritten.canBeTaken()) {
        return asWritten;
    }
    if (!definitions_) {
        definitions_.emplace().gather(text_);
    }
    const auto color = definitions_->find(item.rule, "color");
    CssValue resolved =
        readCssValue(definitions_->resolved(value, item.rule, color.value_or(std::string_view{})));
    return resolved.canBeTaken() ? resolved : asWritten;
}

bool CssFinder::takeValue(const CssItem& item) {
    CssValue value = read(item);
    if (value.tooManyStops) {
        found_.setIncomplete();
    }
    if (!value.gradient) {
        return true;
    }
    SeenGradient& seen = *value.gradient;
    if (item.kind == CssItem::Kind::Value) {
        return found_.add(std::move(seen));
    }
    seen.found.name = item.name.starts_with("--") ? nameOf(item.name) : ruleName();
    return found_.add(rules_.back().gradients, item.name, std::move(seen));
}

} // namespace tessaly
