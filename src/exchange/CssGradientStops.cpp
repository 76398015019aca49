#include "exchange/CssColorReader.h"
#include "exchange/CssGradientSyntax.h"
#include "exchange/CssStops.h"

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
        draft.takeMixing(mixing);
    }
    if (list->lengths != CssStops::Lengths::None) {
        draft.takeLengths(list->lengths == CssStops::Lengths::InProportion);
    }
    draft.stops = std::move(list->stops);
    return draft;
}

} // namespace tessaly
