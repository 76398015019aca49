#include "exchange/SvgStyle.h"

#include "exchange/CssCharacter.h"
#include "exchange/CssColor.h"
#include "exchange/CssName.h"
#include "exchange/CssUnread.h"
#include "exchange/SvgValue.h"

#include <algorithm>

namespace tessaly {
namespace {

bool isRight(SvgProperty property, std::string_view value) {
    switch (property) {
    case SvgProperty::StopColor:
    case SvgProperty::Color:
        return readCssColor(value) || !whyCssUnread(value).empty();
    case SvgProperty::StopOpacity:
        return svgLength(value) || !whyCssUnread(value).empty();
    default:
        return !value.empty();
    }
}

} // namespace

void SvgStyle::Ranked::take(std::string_view other, std::uint64_t otherRank) {
    if (!other.empty() && (value.empty() || otherRank >= rank)) {
        *this = {other, otherRank};
    }
}

void SvgStyle::declare(const CssItem& declaration, std::uint64_t rank) {
    const std::string_view text = trimmed(declaration.text);
    for (std::size_t i = 0; i < svgPropertyNames.size(); ++i) {
        if (isCssName(declaration.name, svgPropertyNames[i]) && isRight(static_cast<SvgProperty>(i), text)) {
            declared_[i].take(text, rank + (declaration.isImportant ? important : attribute));
        }
    }
}

void SvgStyle::declareAll(std::string_view declarations, std::uint64_t rank) {
    CssItems items{declarations};
    while (const auto item = items.next()) {
        declare(*item, rank);
    }
}

void SvgStyle::merge(const SvgStyle& other, std::uint64_t rank) {
    for (std::size_t i = 0; i < declared_.size(); ++i) {
        declared_[i].take(other.declared_[i].value, other.declared_[i].rank + rank);
    }
}

bool SvgStyle::empty() const {
    return std::ranges::all_of(declared_, [](const Ranked& ranked) { return ranked.value.empty(); });
}

} // namespace tessaly
