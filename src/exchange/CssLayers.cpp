#include "exchange/CssLayers.h"

#include "exchange/CssColorReader.h"
#include "exchange/CssName.h"
#include "exchange/CssQuantity.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

using Kind = CssQuantity::Kind;

constexpr std::size_t mostPieces = 10'000;

bool holds(const CssComponent& component, std::size_t place) {
    return component.token.begin <= place && place < component.token.begin + component.text.size();
}

bool isPicture(const CssComponent& component) {
    constexpr std::array<std::string_view, 6> functions{"url",       "src",        "image",
                                                        "image-set", "cross-fade", "-webkit-image-set"};
    const auto isNamed = [&](std::string_view name) { return isCssName(component.token.name, name); };
    return component.token.kind == CssToken::Kind::Url ||
           (component.isFunction() && std::ranges::any_of(functions, isNamed));
}

// Whether a layer is moved by a length or tiled, or lies in the window instead of the box. A share of what is
// left of the box moves nothing, since nothing is left of it.
bool isPlaced(CssArgument layer) {
    bool isSize = false;
    return std::ranges::any_of(layer, [&](const CssComponent& component) {
        isSize = isSize || component.token.is('/');
        if (component.isIdent("fixed")) {
            return true;
        }
        const auto quantity = readCssQuantity(component);
        if (!quantity) {
            return component.isFunction() && isCssName(component.token.name, "calc");
        }
        return isSize ? quantity->kind != Kind::Percent || quantity->value != 100
                      : quantity->kind == Kind::Length && !quantity->isZero();
    });
}

} // namespace

std::vector<std::string> readCssLayers(std::string_view value, std::size_t gradient, bool shows) {
    const CssComponents components = readCssComponents(value, 0, mostPieces);
    const CssArgument all{components.list};
    if (all.size() < 2) {
        return {};
    }
    const auto isOurs = [&](const CssComponent& component) { return holds(component, gradient); };
    bool isMoved = false;
    bool hasPictures = false;
    for (const CssArgument layer : argumentsOf(all)) {
        const bool isOwn = std::ranges::any_of(layer, isOurs);
        isMoved = isMoved || (isOwn && isPlaced(layer));
        hasPictures = hasPictures || (!isOwn && std::ranges::any_of(layer, isPicture));
    }
    const bool hasColor = shows && std::ranges::any_of(all, [](const CssComponent& component) {
                              return readCssColor(component).has_value();
                          });
    std::vector<std::string> notes;
    if (isMoved) {
        notes.emplace_back("size and place of the layer left out");
    }
    if (hasPictures) {
        notes.emplace_back("other pictures left out");
    }
    if (hasColor) {
        notes.emplace_back("color behind it left out");
    }
    return notes;
}

} // namespace tessaly
