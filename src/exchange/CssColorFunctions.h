#pragma once

#include "exchange/ColorSpaces.h"

#include <span>
#include <string_view>

namespace tessaly {

/// One number of a colour function.
struct CssChannel {
    double ofPercent = 100; ///< what 100 % stands for; 0: percent are not allowed
    bool isHue = false;     ///< also an angle with its unit
    double lowest = -1e30;
    double highest = 1e30;
};

/// A function that makes a colour, or a colour space of color().
struct CssColorFunction {
    /// How the numbers may be parted by commas, as they were before CSS Color 4.
    enum class Commas {
        None,
        Uniform, ///< all percent or all numbers
        Percent  ///< all but the hue percent
    };

    std::string_view name;
    std::array<CssChannel, 3> channels;
    colorSpaces::Triple (*toSrgb)(const colorSpaces::Triple&);
    Commas commas = Commas::None;
    bool mixesInSrgb = false; ///< gradients of the others are mixed in another space by default
};

/// The function or, of color(), the space of that name; null: there is none.
const CssColorFunction* findColorFunction(std::string_view name);
const CssColorFunction* findColorSpace(std::string_view name);

} // namespace tessaly
