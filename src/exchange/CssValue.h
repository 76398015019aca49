#pragma once

#include "exchange/FoundGradients.h"

#include <optional>
#include <string_view>

namespace tessaly {

/// What a value gives: the first gradient that can be read, else one that was seen; further ones are told.
/// One that has a mistake makes the whole value worthless, as it does in a browser.
struct CssValue {
    std::optional<SeenGradient> gradient;
    bool tooManyStops = false;

    bool canBeTaken() const { return gradient && gradient->canBeTaken(); }
};

CssValue readCssValue(std::string_view text);

} // namespace tessaly
