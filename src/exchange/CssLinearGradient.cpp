#include "exchange/CssColorReader.h"
#include "exchange/CssGradientSyntax.h"
#include "exchange/CssMixing.h"
#include "exchange/CssPlace.h"
#include "exchange/CssQuantity.h"
#include "exchange/LinearDirection.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

using Angles = GradientDraft::Angles;

struct Side {
    std::string_view name;
    int right;
    int up;
};

constexpr std::array sides{Side{"left", -1, 0}, Side{"right", 1, 0}, Side{"top", 0, 1},
                           Side{"bottom", 0, -1}};

// The angle to a side or a corner, in degrees.
std::optional<double> readSides(CssArgument argument) {
    int right = 0;
    int up = 0;
    for (const CssComponent& component : argument) {
        const auto named = [&](const Side& side) { return component.isIdent(side.name); };
        const Side* const side = std::ranges::find_if(sides, named);
        const bool isNew = side != sides.end() && (side->up == 0 ? right == 0 : up == 0);
        if (!isNew) {
            return std::nullopt;
        }
        right += side->right;
        up += side->up;
    }
    return argument.empty() ? std::nullopt : std::optional{degreesOf(right, up)};
}

std::optional<double> readAngle(const CssComponent& component) {
    const auto quantity = readCssQuantity(component);
    const bool isAngle = quantity && (quantity->kind == CssQuantity::Kind::Angle ||
                                      (quantity->kind == CssQuantity::Kind::Number && quantity->isZero()));
    return isAngle ? std::optional{quantity->value} : std::nullopt;
}

std::optional<double> readWay(CssArgument argument) {
    if (argument.size() == 1) {
        return readAngle(argument.front());
    }
    const bool isTo = !argument.empty() && argument.front().isIdent("to");
    return isTo ? readSides(argument.subspan(1)) : std::nullopt;
}

// The side that it starts from, or an angle, or a place and an angle, of which the angle counts.
std::optional<double> readOldWay(CssArgument argument) {
    const auto angle = argument.empty() ? std::nullopt : readAngle(argument.back());
    if (angle) {
        const CssArgument place = argument.first(argument.size() - 1);
        return place.empty() || isCssPlace(place) ? std::optional{90 - *angle} : std::nullopt;
    }
    std::vector<CssComponent> named;
    std::ranges::copy_if(argument, std::back_inserter(named),
                         [](const CssComponent& c) { return !c.isIdent("center"); });
    const auto from = readSides(named);
    return from ? std::optional{*from + 180} : std::nullopt;
}

constexpr double downwards = 180; // where nothing is said

std::optional<GradientDraft> alongWay(std::optional<double> degrees, CssArguments stops,
                                      std::string_view mixing = {}, Angles written = Angles::Clockwise) {
    if (!degrees) {
        return std::nullopt;
    }
    GradientDraft draft;
    draft.takeDirection(*degrees, written);
    return withStops(std::move(draft), stops, mixing);
}

} // namespace

std::optional<GradientDraft> readStandardLinear(CssArguments arguments) {
    if (startsWithColor(arguments.front())) {
        return alongWay(downwards, arguments);
    }
    const auto mixing = readCssMixing(arguments.front());
    if (!mixing) {
        return std::nullopt;
    }
    const bool onlyMixed = mixing->rest.empty() && !mixing->space.empty();
    const auto degrees = onlyMixed ? std::optional{downwards} : readWay(mixing->rest);
    return alongWay(degrees, arguments.subspan(1), mixing->space);
}

std::optional<GradientDraft> readPrefixedLinear(CssArguments arguments, bool knowsTo) {
    const CssArgument first = arguments.front();
    if (startsWithColor(first)) {
        return alongWay(downwards, arguments);
    }
    if (knowsTo && !first.empty() && first.front().isIdent("to")) {
        return alongWay(readWay(first), arguments.subspan(1));
    }
    return alongWay(readOldWay(first), arguments.subspan(1), {}, Angles::Legacy);
}

} // namespace tessaly
