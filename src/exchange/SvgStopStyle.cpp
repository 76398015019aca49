#include "exchange/SvgStopStyle.h"

#include "exchange/SvgValue.h"

#include <algorithm>

namespace tessaly {
namespace {

// Nothing tells a gradient on its own what the current color is; it starts as black.
std::optional<ReadColor> stopColor(std::string_view value) {
    constexpr std::string_view current = "currentcolor";
    const bool isCurrent =
        std::ranges::equal(value, current, [](char a, char b) { return a == b || (a | ' ') == b; });
    return isCurrent ? ReadColor{} : readCssColor(value);
}

} // namespace

void SvgStopStyle::declare(const SvgDeclaration& declaration, std::uint64_t rank) {
    const std::uint64_t lifted = rank + (declaration.isImportant ? important : attribute);
    if (declaration.name == "stop-color") {
        if (const auto readColor = stopColor(trimmed(declaration.value))) {
            color_.take(*readColor, lifted);
        }
    } else if (declaration.name == "stop-opacity") {
        if (const auto share = svgLength(declaration.value)) {
            opacity_.take(std::clamp(share->value, 0.0, 1.0), lifted);
        }
    }
}

void SvgStopStyle::declareAll(std::string_view declarations, std::uint64_t rank) {
    while (const auto declaration = takeDeclaration(declarations)) {
        declare(*declaration, rank);
    }
}

void SvgStopStyle::merge(const SvgStopStyle& other, Weight weight) {
    if (other.color_.isDeclared) {
        color_.take(other.color_.value, other.color_.rank + weight);
    }
    if (other.opacity_.isDeclared) {
        opacity_.take(other.opacity_.value, other.opacity_.rank + weight);
    }
}

} // namespace tessaly
