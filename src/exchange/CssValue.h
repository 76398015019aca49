#pragma once

#include "exchange/FoundGradients.h"

#include <optional>
#include <string_view>

namespace tessaly {

/// The gradient of a value, and how it is written.
struct ValueGradient {
    FoundGradient found;
    CssForm form = CssForm::Standard;
};

/// What a value gives: the first gradient that can be read; further ones are told. One that has a mistake
/// makes the whole value worthless, as it does in a browser.
struct CssValue {
    std::optional<ValueGradient> gradient;
    bool tooManyStops = false;
};

CssValue readCssValue(std::string_view text);

} // namespace tessaly
