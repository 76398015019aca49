#pragma once

#include "exchange/CssColor.h"
#include "exchange/CssComponents.h"

namespace tessaly {

/// The colour that a piece of a value is; none: it is no colour.
std::optional<ReadColor> readCssColor(const CssComponent& component);

/// Whether gradients with that colour are mixed in sRGB where nothing else is said.
bool mixesInSrgb(const CssComponent& color);

} // namespace tessaly
