#pragma once

#include "exchange/CssComponents.h"
#include "exchange/Reading.h"

#include <optional>

namespace tessaly {

/// A function that is a gradient, by its name.
struct CssGradientFunction {
    enum class Syntax {
        Standard,
        Prefixed,     ///< starts at a side, angles against the clock from the right
        PointToPoint, ///< -webkit-gradient
        Filter,
        Conic ///< there is no orientation for it
    };

    Syntax syntax = Syntax::Standard;
    bool radial = false;
    bool repeating = false;
    bool knowsTo = true; ///< "to right" besides "left"
};

/// By its name as it is written; none: no gradient has it.
std::optional<CssGradientFunction> findGradientFunction(std::string_view written);

/// The gradient that the arguments describe; none: there are mistakes in them, or they cannot be said here.
std::optional<FoundGradient> readGradientFunction(const CssGradientFunction& function,
                                                  CssArgument components);

} // namespace tessaly
