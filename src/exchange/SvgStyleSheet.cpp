#include "exchange/SvgStyleSheet.h"

#include "exchange/SvgValue.h"

#include <utility>

namespace tessaly {

void SvgStyleSheet::startElement(std::string_view name, const XmlAttributes& /*attributes*/) {
    isInStyle_ = name == "style";
}

void SvgStyleSheet::endElement() {
    if (isInStyle_) {
        addRules(withoutComments(std::exchange(text_, {})));
    }
    isInStyle_ = false;
}

void SvgStyleSheet::characters(std::string_view text) {
    if (isInStyle_) {
        text_ += text;
    }
}

void SvgStyleSheet::addRules(std::string_view sheet) {
    while (!sheet.empty()) {
        char ender = 0;
        const std::string_view selectors = takeUpTo(sheet, "{;", ender);
        if (ender == '{') {
            const std::string_view declarations = takeUpTo(sheet, "}", ender);
            addRule(selectors, declarations);
        }
    }
}

void SvgStyleSheet::addRule(std::string_view selectors, std::string_view declarations) {
    SvgStopStyle style;
    style.declareAll(declarations, ++rules_);
    while (!selectors.empty()) {
        char ender = 0;
        const std::string_view selector = trimmed(takeUpTo(selectors, ",", ender));
        styles_[std::string{selector}].merge(style, SvgStopStyle::attribute);
    }
}

void SvgStyleSheet::applyTo(SvgStopStyle& style, std::string_view classes, std::string_view id) const {
    const auto apply = [&](const std::string& selector, SvgStopStyle::Weight weight) {
        if (const auto found = styles_.find(selector); found != styles_.end()) {
            style.merge(found->second, weight);
        }
    };
    if (styles_.empty()) {
        return;
    }
    apply("stop", SvgStopStyle::element);
    while (const auto name = takeWord(classes)) {
        apply("." + std::string{*name}, SvgStopStyle::byClass);
    }
    apply("#" + std::string{id}, SvgStopStyle::byId);
}

} // namespace tessaly
