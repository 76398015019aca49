#include "exchange/CssComponents.h"

#include "exchange/CssBrackets.h"
#include "exchange/CssName.h"
#include "exchange/CssTokenizer.h"

#include <algorithm>

namespace tessaly {

using Kind = CssToken::Kind;

constexpr std::size_t usualCount = 16;

bool CssComponent::isIdent(std::string_view name) const {
    return token.kind == Kind::Ident && isCssName(token.name, name);
}

static void setContent(CssComponent& component, std::string_view text, std::size_t contentEnd,
                       std::size_t end) {
    const std::size_t contentBegin = component.token.end();
    component.text = text.substr(component.token.begin, end - component.token.begin);
    component.content = text.substr(contentBegin, contentEnd - contentBegin);
}

CssComponents readCssComponents(std::string_view text, std::size_t place, std::size_t most) {
    CssTokenizer tokens{text, place};
    CssComponents components;
    components.list.reserve(std::min(most, usualCount));
    CssBrackets brackets;
    for (CssToken token = tokens.next(); token.kind != Kind::End; token = tokens.next()) {
        const bool within = !brackets.empty();
        if (token.kind == Kind::Close) {
            if (brackets.close(token.text.front())) {
                if (brackets.empty() && components.complete) {
                    setContent(components.list.back(), text, token.begin, token.end());
                }
                continue;
            }
            if (!within && token.is(')')) {
                components.end = token.end();
                components.closed = true;
                return components;
            }
            components.balanced = false;
        }
        if (!within && token.kind != Kind::Blank) {
            components.complete = components.complete && components.list.size() < most;
            if (components.complete) {
                components.list.push_back({token, token.text, {}});
            }
        }
        if (token.kind == Kind::Function || token.kind == Kind::Open) {
            brackets.open(token.text.back());
        }
    }
    if (!brackets.empty() && components.complete) {
        setContent(components.list.back(), text, text.size(), text.size());
    }
    components.end = text.size();
    return components;
}

std::vector<CssArgument> argumentsOf(CssArgument components) {
    const auto isComma = [](const CssComponent& component) { return component.isComma(); };
    std::vector<CssArgument> arguments;
    arguments.reserve(1 + static_cast<std::size_t>(std::ranges::count_if(components, isComma)));
    auto begin = components.begin();
    for (;;) {
        const auto end = std::find_if(begin, components.end(), isComma);
        arguments.emplace_back(begin, end);
        if (end == components.end()) {
            return arguments;
        }
        begin = end + 1;
    }
}

} // namespace tessaly
