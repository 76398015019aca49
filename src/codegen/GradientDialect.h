#pragma once

#include <array>
#include <string_view>

namespace tessaly {

/// How a browser family writes a gradient.
struct GradientDialect {
    enum class StopSyntax {
        ColorFirst, ///< #000000 0%
        ColorStop   ///< color-stop(0%,#000000)
    };

    std::string_view linearFunction;
    std::string_view radialFunction;
    std::array<std::string_view, 5> phrases; ///< by orientation code
    StopSyntax stopSyntax = StopSyntax::ColorFirst;
};

namespace dialect {

// The legacy phrases name the side that the gradient starts from, and the prefixed forms measure angles the
// legacy way: the standard -45deg is their 135deg.
inline constexpr std::array<std::string_view, 5> legacyPhrases{"bottom", "left", "45deg", "135deg",
                                                               "center, ellipse cover"};

inline constexpr GradientDialect standard{
    "linear-gradient", "radial-gradient", {"to top", "to right", "45deg", "-45deg", "ellipse at center"}};
inline constexpr GradientDialect moz{"-moz-linear-gradient", "-moz-radial-gradient", legacyPhrases};
inline constexpr GradientDialect newWebKit{"-webkit-linear-gradient", "-webkit-radial-gradient",
                                           legacyPhrases};
inline constexpr GradientDialect opera{"-o-linear-gradient", "-o-radial-gradient", legacyPhrases};
inline constexpr GradientDialect ie{"-ms-linear-gradient", "-ms-radial-gradient", legacyPhrases};
inline constexpr GradientDialect oldWebKit{
    "-webkit-gradient",
    "-webkit-gradient",
    {"linear, left bottom, left top", "linear, left top, right top", "linear, left bottom, right top",
     "linear, right bottom, left top", "radial, center center, 0px, center center, 100%"},
    GradientDialect::StopSyntax::ColorStop};

} // namespace dialect
} // namespace tessaly
