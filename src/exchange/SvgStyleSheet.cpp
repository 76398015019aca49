#include "exchange/SvgStyleSheet.h"

#include "exchange/CssComponents.h"
#include "exchange/CssItems.h"
#include "exchange/CssUnread.h"
#include "exchange/SvgValue.h"

namespace tessaly {
namespace {

constexpr std::size_t mostRules = 10'000;
constexpr std::size_t mostWork = std::size_t{16} << 20U; // elements and bytes looked at

} // namespace

void SvgStyleSheet::startElement(std::string_view name, const XmlAttributes& /*attributes*/) {
    isInStyle_ = name == "style";
    if (isInStyle_) {
        sheets_.emplace_back();
    }
}

void SvgStyleSheet::endElement() {
    if (isInStyle_) {
        addRules(sheets_.back());
    }
    isInStyle_ = false;
}

void SvgStyleSheet::characters(std::string_view text) {
    if (isInStyle_) {
        sheets_.back() += text;
    }
}

void SvgStyleSheet::addRules(std::string_view sheet) {
    definitions_.gather(sheet);
    CssItems items{sheet};
    std::size_t depth = 0;
    std::string_view selectors;
    SvgStyle style;
    while (const auto item = items.next()) {
        if (item->kind == CssItem::Kind::RuleStart) {
            selectors = depth > 0 ? selectors : item->isAtRule ? std::string_view{} : item->text;
            ++depth;
        } else if (item->kind == CssItem::Kind::RuleEnd) {
            --depth;
        } else if (depth == 1) {
            style.declare(*item, rules_.size());
        }
        if (depth == 0) {
            addRule(selectors, style);
            style = {};
        }
    }
    addRule(selectors, style); // which the sheet leaves open
}

void SvgStyleSheet::addRule(std::string_view selectors, const SvgStyle& style) {
    if (style.empty()) {
        return;
    }
    const CssComponents components = readCssComponents(selectors, 0, mostRules);
    isComplete_ = isComplete_ && components.complete;
    for (const CssArgument argument : argumentsOf(components.list)) {
        if (argument.empty() || rules_.size() == mostRules) {
            isComplete_ = isComplete_ && argument.empty();
            continue;
        }
        const CssComponent& last = argument.back();
        const std::size_t begin = argument.front().token.begin;
        SvgSelector selector{selectors.substr(begin, last.token.begin + last.text.size() - begin)};
        rulesByKey_[selector.key()].push_back(rules_.size());
        rules_.push_back({std::move(selector), style});
    }
}

void SvgStyleSheet::applyTo(SvgStyle& style, const std::string& key, SvgPath path) {
    const auto found = rulesByKey_.find(key);
    if (found == rulesByKey_.end()) {
        return;
    }
    for (const std::size_t place : found->second) {
        const auto& [selector, declared] = rules_[place];
        work_ += path.size();
        if (work_ > mostWork) {
            isComplete_ = false;
            return;
        }
        if (!selector.matches(path)) {
            continue;
        }
        if (selector.isExact()) {
            style.merge(declared, selector.specificity() * SvgStyle::specific);
        } else {
            style.isUnsure = true;
        }
    }
}

SvgStyle SvgStyleSheet::styleOf(SvgPath path) {
    const SvgElement& element = path.back();
    SvgStyle style;
    for (std::size_t i = 0; i < svgPropertyNames.size(); ++i) {
        style.declare({CssItem::Kind::Declaration, svgPropertyNames[i], element.attributes[i]},
                      SvgStyle::attribute);
    }
    if (!rules_.empty()) {
        applyTo(style, "*", path);
        applyTo(style, element.name, path);
        applyTo(style, '#' + element.id, path);
        std::string_view classes = element.classes;
        while (const auto name = takeWord(classes)) {
            applyTo(style, "." + std::string{*name}, path);
        }
    }
    style.declareAll(element.style, SvgStyle::own);
    return style;
}

// The color of the text is that of the innermost element that declares one.
std::string SvgStyleSheet::resolved(std::string_view value, SvgPath path) {
    if (whyCssUnread(value).empty()) {
        return std::string{value};
    }
    std::string_view color;
    for (; color.empty() && !path.empty() && work_ <= mostWork; path = path.first(path.size() - 1)) {
        work_ += 1 + path.back().style.size();
        color = styleOf(path).value(SvgProperty::Color);
    }
    isComplete_ = isComplete_ && work_ <= mostWork;
    return definitions_.resolved(value, 0, color);
}

} // namespace tessaly
