#pragma once

#include "exchange/CssComponents.h"
#include "exchange/GradientDraft.h"

#include <optional>

/// The gradient functions, a syntax each. All take the arguments between the commas and give none where there
/// is a mistake in them.
namespace tessaly {

using CssArguments = std::span<const CssArgument>;

std::optional<GradientDraft> readStandardLinear(CssArguments arguments);
std::optional<GradientDraft> readStandardRadial(CssArguments arguments);

/// `knowsTo`: the way may be told as it is today.
std::optional<GradientDraft> readPrefixedLinear(CssArguments arguments, bool knowsTo);
std::optional<GradientDraft> readPrefixedRadial(CssArguments arguments);

/// -webkit-gradient, without the argument that says of which kind it is.
std::optional<GradientDraft> readPointToPoint(CssArguments arguments, bool radial);

/// The filter with the colours of both ends.
std::optional<GradientDraft> readFilter(CssArguments arguments);

/// Adds the stops and, where it is not sRGB, the space that they are mixed in; `mixing` may be empty.
std::optional<GradientDraft> withStops(GradientDraft draft, CssArguments stops, std::string_view mixing = {});

/// Whether an argument starts with a colour, so that it is a stop and nothing before the stops.
bool startsWithColor(CssArgument argument);

} // namespace tessaly
