#include "exchange/SvgSelector.h"

#include "exchange/CssName.h"
#include "exchange/CssTokenizer.h"
#include "exchange/SvgValue.h"

#include <algorithm>

namespace tessaly {
using Kind = CssToken::Kind;

SvgSelector::SvgSelector(std::string_view text) {
    CssTokenizer tokens{text};
    for (CssToken token = tokens.next(); token.kind != Kind::End; token = tokens.next()) {
        take(token);
    }
}

void SvgSelector::take(const CssToken& token) {
    const bool opens = token.kind == Kind::Function || token.kind == Kind::Open;
    const bool isWithin = !brackets_.empty();
    if (opens) {
        brackets_.open(token.text.back());
    } else if (token.kind == Kind::Close) {
        brackets_.close(token.text.front());
    }
    const bool combines = token.is('>') || token.is('+') || token.is('~');
    isExact_ = isExact_ && !opens && !combines;
    if (isWithin || combines || token.kind == Kind::Blank) {
        startsStep_ = startsStep_ || !isWithin;
        return;
    }
    if (startsStep_) {
        steps_.emplace_back();
        startsStep_ = false;
    }
    Step& step = steps_.back();
    if (token.kind == Kind::Hash) {
        step.id = withoutCssEscapes(token.name);
    } else if (token.kind == Kind::Ident && mark_ == '.') {
        step.classes.push_back(withoutCssEscapes(token.name));
    } else if (token.kind == Kind::Ident && mark_ == '\0') {
        step.name = withoutCssEscapes(token.name);
    } else if (token.kind == Kind::Ident && isCssName(token.name, "root")) {
        step.name = "svg";
    } else {
        isExact_ = isExact_ && (token.is('.') || token.is('*') || token.is(':'));
    }
    mark_ = token.is('.') || token.is(':') ? token.text.front() : '\0';
}

std::string SvgSelector::key() const {
    const Step& last = steps_.back();
    if (!last.id.empty()) {
        return '#' + last.id;
    }
    return !last.classes.empty() ? '.' + last.classes.front() : last.name.empty() ? "*" : last.name;
}

bool SvgSelector::Step::matches(const SvgElement& element) const {
    return (name.empty() || name == element.name) && (id.empty() || id == element.id) &&
           std::ranges::all_of(classes, [&](const std::string& c) { return hasWord(element.classes, c); });
}

bool SvgSelector::matches(SvgPath path) const {
    if (!steps_.back().matches(path.back())) {
        return false;
    }
    auto step = steps_.rbegin() + 1;
    for (std::size_t around = path.size() - 1; around > 0 && step != steps_.rend(); --around) {
        step += step->matches(path[around - 1]) ? 1 : 0;
    }
    return step == steps_.rend();
}

std::uint64_t SvgSelector::specificity() const {
    constexpr std::size_t most = 15; // of a kind
    std::size_t names = 0;
    std::size_t classes = 0;
    std::size_t ids = 0;
    for (const Step& step : steps_) {
        names += step.name.empty() ? 0 : 1;
        classes += step.classes.size();
        ids += step.id.empty() ? 0 : 1;
    }
    return (std::min(ids, most) << 8U) + (std::min(classes, most) << 4U) + std::min(names, most);
}

} // namespace tessaly
