#include "exchange/CssDefinitions.h"

#include "exchange/CssComponents.h"
#include "exchange/CssItems.h"
#include "exchange/CssName.h"

#include <algorithm>
#include <tuple>

namespace tessaly {
namespace {

using Kind = CssToken::Kind;

constexpr std::size_t deepest = 8; // names of names

bool isRoot(CssArgument selector) {
    const bool isElement =
        selector.size() == 1 && (selector[0].isIdent("html") || selector[0].isIdent("svg"));
    return isElement ||
           (selector.size() == 2 && selector[0].token.kind == Kind::Colon && selector[1].isIdent("root"));
}

bool meansRoot(std::string_view selectors) {
    constexpr std::size_t most = 32; // pieces of a list that names the root
    const CssComponents components = readCssComponents(selectors, 0, most);
    return components.complete && std::ranges::any_of(argumentsOf(components.list), isRoot);
}

} // namespace

std::string_view CssDefinitions::Source::upTo(std::size_t place) {
    const std::string_view piece = text.substr(copied, place - copied);
    copied = place;
    return piece;
}

void CssDefinitions::gather(std::string_view text) {
    struct Scope {
        bool isRoot = false;
        bool isPlain = true;
    };
    std::vector<Scope> scopes{{}};
    CssItems items{text};
    while (const auto item = items.next()) {
        if (item->kind == CssItem::Kind::RuleStart) {
            scopes.push_back(
                {!item->isAtRule && meansRoot(item->text), scopes.back().isPlain && !item->isAtRule});
        } else if (item->kind == CssItem::Kind::RuleEnd) {
            scopes.pop_back();
        } else if (item->name.starts_with("--") || isCssName(item->name, "color")) {
            const std::string_view property = item->name.starts_with("--") ? item->name : "color";
            Definition definition{item->rule, property, scopes.back().isPlain, item->isImportant, item->text};
            definitions_.push_back(definition);
            if (scopes.back().isRoot) {
                definition.rule = 0;
                definitions_.push_back(definition);
            }
        }
    }
    areSorted_ = false;
}

std::optional<std::string_view> CssDefinitions::find(std::size_t rule, std::string_view property) {
    if (!areSorted_) {
        std::ranges::stable_sort(definitions_, {}, [](const Definition& d) {
            return std::tuple{d.rule, d.property, d.isPlain, d.isImportant};
        });
        areSorted_ = true;
    }
    const auto behind =
        std::ranges::upper_bound(definitions_, std::pair{rule, property}, {}, [](const Definition& d) {
            return std::pair{d.rule, d.property};
        });
    const bool isFound =
        behind != definitions_.begin() && (behind - 1)->rule == rule && (behind - 1)->property == property;
    return isFound ? std::optional{(behind - 1)->value} : std::nullopt;
}

// What a token, and what belongs to it, stands for; a var() is passed over in its source.
CssDefinitions::Reference CssDefinitions::referenceAt(Source& source, const CssToken& token, std::size_t rule,
                                                      std::string_view color) {
    if (token.kind == Kind::Ident && isCssName(token.name, "currentcolor") && !color.empty()) {
        return {color, token.end()};
    }
    if (token.kind != Kind::Function || !isCssName(token.name, "var")) {
        return {};
    }
    const CssComponents pieces = readCssComponents(source.text, token.end(), 2);
    source.tokens.moveTo(pieces.end);
    if (pieces.list.empty() || pieces.list[0].token.kind != Kind::Ident) {
        return {};
    }
    const std::string_view name = pieces.list[0].token.name;
    auto value = find(rule, name);
    value = value ? value : find(0, name);
    if (!value && pieces.list.size() == 2 && pieces.list[1].isComma()) {
        const std::size_t other = pieces.list[1].token.end();
        value = source.text.substr(other, pieces.end - (pieces.closed ? 1 : 0) - other);
    }
    return {value, pieces.end};
}

std::string CssDefinitions::resolved(std::string_view value, std::size_t rule, std::string_view color) {
    std::string text;
    std::vector<Source> sources{Source{value}};
    while (!sources.empty()) {
        const CssToken token = sources.back().tokens.next();
        if (token.kind == Kind::End) {
            text += sources.back().upTo(token.begin);
            text += ' '; // what follows is another token
            sources.pop_back();
            continue;
        }
        const Reference reference = referenceAt(sources.back(), token, rule, color);
        if (reference.stand && sources.size() < deepest && reference.stand->size() <= room_) {
            room_ -= reference.stand->size();
            text += sources.back().upTo(token.begin);
            text += ' ';
            sources.back().copied = reference.end;
            sources.emplace_back(*reference.stand);
        }
    }
    return text;
}

} // namespace tessaly
