#include "exchange/CssColorReader.h"
#include "exchange/CssGradientSyntax.h"
#include "exchange/CssStops.h"

#include <algorithm>

namespace tessaly {

bool startsWithColor(CssArgument argument) {
    return !argument.empty() && readCssColor(argument.front()).has_value();
}

std::optional<GradientDraft> withStops(GradientDraft draft, CssArguments stops, std::string_view mixing) {
    auto list = readCssStops(stops);
    if (!list) {
        return std::nullopt;
    }
    if (mixing.empty() && !list->mixesInSrgb) {
        mixing = "oklab"; // the standard's default as soon as one colour is of the new kinds
    }
    if (!mixing.empty() && mixing != "srgb") {
        draft.notes.push_back("mixing in " + std::string{mixing} + " taken as in srgb");
    }
    std::ranges::copy(list->notes, std::back_inserter(draft.notes));
    draft.hasLengths = list->hasLengths;
    draft.stops = std::move(list->stops);
    return draft;
}

} // namespace tessaly
