#include "exchange/CssItems.h"

#include "exchange/CssCharacter.h"
#include "exchange/CssGradientFunction.h"
#include "exchange/CssName.h"

#include <algorithm>

namespace tessaly {
namespace {

using Kind = CssToken::Kind;

// Takes the mark off the end of a value, a blank within it or not.
bool takeImportant(std::string_view& value) {
    constexpr std::string_view word = "important";
    std::string_view rest = trimmed(value);
    if (rest.size() <= word.size() || !isCssName(rest.substr(rest.size() - word.size()), word)) {
        return false;
    }
    rest.remove_suffix(word.size());
    rest = trimmed(rest);
    const bool isMarked = rest.ends_with('!');
    value = isMarked ? rest.substr(0, rest.size() - 1) : value;
    return isMarked;
}

} // namespace

std::optional<CssItem> CssItems::next() {
    if (closesRule_) {
        return endRule();
    }
    for (;;) {
        const CssToken token = tokens_.next();
        if (!endsItem(token)) {
            follow(token);
        } else if (const auto item = take(token); item || token.kind == Kind::End) {
            return item;
        }
    }
}

bool CssItems::endsItem(const CssToken& token) const {
    switch (token.kind) {
    case Kind::End:
        return true;
    case Kind::Semicolon:
        return brackets_.empty();
    case Kind::Open:
        return token.is('{') && brackets_.empty() && !isCustomProperty();
    case Kind::Close:
        return token.is('}') && brackets_.empty();
    default:
        return false;
    }
}

// Learns what the item is, token by token.
void CssItems::follow(const CssToken& token) {
    switch (token.kind) {
    case Kind::Blank:
        return;
    case Kind::Close:
        brackets_.close(token.text.front());
        return;
    case Kind::Open:
        brackets_.open(token.text.back());
        break;
    case Kind::Function:
        brackets_.open(token.text.back());
        holdsGradient_ = holdsGradient_ || findGradientFunction(token.name).has_value();
        break;
    case Kind::String: // a filter
        holdsGradient_ = holdsGradient_ || token.name.starts_with("progid:");
        break;
    default:
        break;
    }
    if (part_ == Part::Start) {
        name_ = token.name;
        part_ = token.kind == Kind::Ident       ? Part::Name
                : token.kind == Kind::AtKeyword ? Part::AtRule
                                                : Part::Other;
    } else if (part_ == Part::Name) {
        part_ = token.kind == Kind::Colon ? Part::Value : Part::Other;
        value_ = token.end();
    }
}

// The item that ends here, and the rule with it, if a brace closes it.
std::optional<CssItem> CssItems::take(const CssToken& end) {
    std::optional<CssItem> item;
    if (end.is('{')) {
        item = startRule(text_.substr(begin_, end.begin - begin_));
    } else if (part_ == Part::Value || (rules_.empty() && (part_ == Part::Name || part_ == Part::Other))) {
        const bool isDeclaration = part_ == Part::Value;
        const std::size_t begin = isDeclaration ? value_ : begin_;
        item = {isDeclaration ? CssItem::Kind::Declaration : CssItem::Kind::Value,
                isDeclaration ? name_ : std::string_view{}, text_.substr(begin, end.begin - begin),
                rules_.empty() ? 0 : rules_.back(), holdsGradient_};
        item->isImportant = takeImportant(item->text);
    }
    closesRule_ = end.is('}') && !rules_.empty();
    startAfter(end.end());
    return !item && closesRule_ ? endRule() : item;
}

CssItem CssItems::startRule(std::string_view prelude) {
    rules_.push_back(++ruleCount_);
    return {CssItem::Kind::RuleStart, {}, prelude, ruleCount_, false, false, part_ == Part::AtRule};
}

std::optional<CssItem> CssItems::endRule() {
    closesRule_ = false;
    const std::size_t rule = rules_.back();
    rules_.pop_back();
    return CssItem{CssItem::Kind::RuleEnd, {}, {}, rule};
}

void CssItems::startAfter(std::size_t place) {
    part_ = Part::Start;
    begin_ = place;
    name_ = {};
    holdsGradient_ = false;
    brackets_.clear();
}

} // namespace tessaly
