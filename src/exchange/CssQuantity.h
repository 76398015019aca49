#pragma once

#include "exchange/CssComponents.h"

#include <optional>

namespace tessaly {

/// A number with its unit.
struct CssQuantity {
    enum class Kind { Number, Percent, Angle, Length };

    Kind kind = Kind::Number;
    double value = 0.0;      ///< angles in degrees, absolute lengths in px
    std::string_view unit{}; ///< of a length, in lower case

    bool isZero() const { return value == 0.0; }
    bool operator==(const CssQuantity&) const = default;
};

/// The quantity that a piece of a value is, calc() included; none: it is something else.
std::optional<CssQuantity> readCssQuantity(const CssComponent& component);

} // namespace tessaly
