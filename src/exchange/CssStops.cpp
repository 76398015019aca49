#include "exchange/CssStops.h"

#include "exchange/CssColorReader.h"
#include "exchange/CssPlace.h"
#include "exchange/CssQuantity.h"

#include <algorithm>

namespace tessaly {
namespace {

using Kind = CssQuantity::Kind;

struct UnresolvedStop {
    std::optional<ReadColor> color;
    std::optional<CssQuantity> position;
};

// A colour with up to two positions, on either side of it, or a hint; false: it is neither.
bool readStop(CssArgument argument, std::vector<UnresolvedStop>& stops, bool& mixInSrgb) {
    std::optional<ReadColor> color;
    std::vector<CssQuantity> positions;
    for (const CssComponent& component : argument) {
        if (const auto quantity = readCssQuantity(component)) {
            if (!isCssLength(component)) {
                return false;
            }
            positions.push_back(*quantity);
        } else {
            const bool isSecond = color.has_value();
            color = readCssColor(component);
            if (!color || isSecond) {
                return false;
            }
            mixInSrgb = mixInSrgb && mixesInSrgb(component);
        }
    }
    if (positions.size() > (color ? 2U : 1U) || (!color && positions.empty())) {
        return false;
    }
    if (positions.empty()) {
        stops.push_back({color, std::nullopt});
    }
    std::ranges::transform(positions, std::back_inserter(stops), [&](const CssQuantity& position) {
        return UnresolvedStop{color, position};
    });
    return true;
}

bool hintsAreBetweenStops(const std::vector<UnresolvedStop>& stops) {
    const auto isHint = [](const UnresolvedStop& stop) { return !stop.color; };
    return !isHint(stops.front()) && !isHint(stops.back()) &&
           std::ranges::adjacent_find(
               stops, [&](const auto& a, const auto& b) { return isHint(a) && isHint(b); }) == stops.end();
}

// The length that is the whole gradient; none: the lengths have no common measure.
std::optional<double> wholeLength(const std::vector<UnresolvedStop>& stops) {
    std::string_view unit;
    double longest = 0.0;
    for (const UnresolvedStop& stop : stops) {
        if (!stop.position || stop.position->isZero()) {
            continue;
        }
        if (stop.position->kind != Kind::Length || (!unit.empty() && unit != stop.position->unit)) {
            return std::nullopt;
        }
        unit = stop.position->unit;
        longest = std::max(longest, stop.position->value);
    }
    const bool endIsLength = stops.size() == 1 || stops.back().position;
    return endIsLength && longest > 0 ? std::optional{longest} : std::nullopt;
}

void resolve(const std::vector<UnresolvedStop>& unresolved, CssStops& result) {
    const bool hasLengths = std::ranges::any_of(unresolved, [](const UnresolvedStop& stop) {
        return stop.position && stop.position->kind == Kind::Length && !stop.position->isZero();
    });
    const auto whole = wholeLength(unresolved);
    if (hasLengths) {
        result.lengths = whole ? CssStops::Lengths::InProportion : CssStops::Lengths::LeftOut;
    }
    for (const UnresolvedStop& stop : unresolved) {
        WrittenStop written{stop.color};
        if (stop.position && (stop.position->kind != Kind::Length || stop.position->isZero())) {
            written.position = stop.position->value / 100;
        } else if (stop.position && whole) {
            written.position = stop.position->value / *whole;
        } else if (stop.position && !stop.color) {
            continue; // a hint without a place says nothing
        }
        result.stops.push_back(written);
    }
}

} // namespace

std::optional<CssStops> readCssStops(std::span<const CssArgument> arguments) {
    CssStops result;
    std::vector<UnresolvedStop> unresolved;
    unresolved.reserve(arguments.size());
    const bool allFit = std::ranges::all_of(
        arguments, [&](CssArgument argument) { return readStop(argument, unresolved, result.mixesInSrgb); });
    if (!allFit || unresolved.empty() || !hintsAreBetweenStops(unresolved)) {
        return std::nullopt;
    }
    resolve(unresolved, result);
    return result;
}

} // namespace tessaly
