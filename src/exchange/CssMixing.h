#pragma once

#include "exchange/CssComponents.h"

#include <optional>
#include <string>

namespace tessaly {

/// What a gradient says of how it is mixed, "in oklch longer hue", and the rest of that argument.
struct CssMixing {
    std::string space; ///< empty: nothing is said
    std::vector<CssComponent> rest;
};

/// None: the space is unknown.
std::optional<CssMixing> readCssMixing(CssArgument argument);

} // namespace tessaly
