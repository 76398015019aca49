#include "codegen/DeclarationText.h"

#include "codegen/ColorNotation.h"
#include "foundation/NumberText.h"
#include "model/ColorFormat.h"
#include "model/Gradient.h"

#include <array>

namespace tessaly {
namespace {

constexpr std::string_view null = "(null)";
constexpr std::string_view stopSeparator = ", \n";

/// How a browser family writes a gradient.
struct GradientDialect {
    std::string_view linearFunction;
    std::string_view radialFunction;
    std::array<std::string_view, 5> phrases; ///< by orientation code
    bool hasColorStops = false;              ///< color-stop(0%,#000000) in place of #000000 0%
};

// The legacy phrases name the side that the gradient starts from, and the prefixed forms measure angles the
// legacy way: the standard -45deg is their 135deg.
constexpr std::array<std::string_view, 5> legacyPhrases{"bottom", "left", "45deg", "135deg",
                                                        "center, ellipse cover"};

// In the order of the declarations, from the standard one on.
constexpr std::array dialects{
    GradientDialect{
        "linear-gradient", "radial-gradient", {"to top", "to right", "45deg", "-45deg", "ellipse at center"}},
    GradientDialect{"-moz-linear-gradient", "-moz-radial-gradient", legacyPhrases},
    GradientDialect{"-webkit-gradient",
                    "-webkit-gradient",
                    {"linear, left bottom, left top", "linear, left top, right top",
                     "linear, left bottom, right top", "linear, right bottom, left top",
                     "radial, center center, 0px, center center, 100%"},
                    true},
    GradientDialect{"-webkit-linear-gradient", "-webkit-radial-gradient", legacyPhrases},
    GradientDialect{"-o-linear-gradient", "-o-radial-gradient", legacyPhrases},
    GradientDialect{"-ms-linear-gradient", "-ms-radial-gradient", legacyPhrases},
};

static_assert(dialects.size() == declarationCount - 2, "all but the plain colour and the filter");

std::string colorOf(const ColorStop& stop, std::int64_t notation) {
    return colorNotation::colorText(notation, stop.color, stop.opacity).value_or(std::string{null});
}

// The stops in array order, a line each; never sorted. Only called with at least one stop.
std::string stopList(const GradientDialect& dialect, const Gradient& gradient, std::int64_t notation) {
    if (!colorFormat::isKnown(notation)) {
        return std::string{null};
    }
    std::string list = "\n";
    for (const ColorStop& stop : gradient.stops()) {
        const std::string color = colorOf(stop, notation);
        const std::string percent = percentText(stop.position) + '%';
        list += "\t\t\t\t";
        if (dialect.hasColorStops) {
            list.append("color-stop(").append(percent).append(",").append(color).append(")");
        } else {
            list.append(color).append(" ").append(percent);
        }
        list += stopSeparator;
    }
    list.resize(list.size() - stopSeparator.size());
    return list;
}

std::string gradientDeclaration(const GradientDialect& dialect, const Gradient& gradient,
                                std::int64_t notation) {
    const std::int64_t orientation = gradient.orientation();
    const bool isKnown = orientation >= 0 && orientation < std::ssize(dialect.phrases);
    std::string text = "\tbackground: ";
    text += orientation == orientation::radial ? dialect.radialFunction : dialect.linearFunction;
    text.append("(").append(isKnown ? dialect.phrases[static_cast<std::size_t>(orientation)] : null);
    return text.append(", ").append(stopList(dialect, gradient, notation)).append(");\n");
}

// Always hexadecimal and always horizontal, whatever the gradient: deliberate, the filter knows no more.
std::string filterDeclaration(const Gradient& gradient) {
    return "\tfilter: progid:DXImageTransform.Microsoft.gradient(\n\t\tstartColorstr='" +
           colorOf(gradient.stops().front(), colorFormat::hexadecimal) + "',\n\t\tendColorstr='" +
           colorOf(gradient.stops().back(), colorFormat::hexadecimal) + "',GradientType=1 );\n";
}

} // namespace

std::string declarationText(Declaration declaration, const Gradient& gradient, std::int64_t notation) {
    if (gradient.stops().empty()) {
        return {};
    }
    switch (declaration) {
    case Declaration::Old:
        return "\tbackground: " + colorOf(gradient.stops().front(), notation) + ";\n";
    case Declaration::MSFilter:
        return filterDeclaration(gradient);
    default:
        return gradientDeclaration(dialects[static_cast<std::size_t>(declaration) - 1], gradient, notation);
    }
}

} // namespace tessaly
