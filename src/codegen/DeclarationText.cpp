#include "codegen/DeclarationText.h"

#include "codegen/ColorNotation.h"
#include "codegen/GradientDialect.h"
#include "foundation/NumberText.h"
#include "model/ColorFormat.h"
#include "model/Gradient.h"

#include <array>

namespace tessaly {
namespace {

constexpr std::string_view null = "(null)";
constexpr std::string_view stopSeparator = ", \n";

using StopSyntax = GradientDialect::StopSyntax;

void appendStop(std::string& list, StopSyntax syntax, std::string_view color, std::string_view percent) {
    list += "\t\t\t\t";
    if (syntax == StopSyntax::ColorStop) {
        list.append("color-stop(").append(percent).append("%,").append(color).append(")");
    } else {
        list.append(color).append(" ").append(percent).append("%");
    }
    list += stopSeparator;
}

// The stops in array order, a line each; never sorted. Only called with at least one stop.
std::string stopList(StopSyntax syntax, const Gradient& gradient, std::int64_t notation) {
    if (!colorFormat::isKnown(notation)) {
        return std::string{null};
    }
    std::string list = "\n";
    for (const ColorStop& stop : gradient.stops()) {
        const auto color = colorNotation::colorText(notation, stop.color, stop.opacity);
        appendStop(list, syntax, color ? std::string_view{*color} : null, percentText(stop.position));
    }
    list.resize(list.size() - stopSeparator.size());
    return list;
}

std::string_view phraseFor(const GradientDialect& dialect, std::int64_t orientation) {
    const bool known = orientation >= 0 && orientation < std::ssize(dialect.phrases);
    return known ? dialect.phrases[static_cast<std::size_t>(orientation)] : null;
}

template <const GradientDialect& dialect>
std::string gradientDeclaration(const Gradient& gradient, std::int64_t notation) {
    const std::int64_t orientation = gradient.orientation();
    std::string text = "\tbackground: ";
    text += orientation == orientation::radial ? dialect.radialFunction : dialect.linearFunction;
    text.append("(").append(phraseFor(dialect, orientation)).append(", ");
    text.append(stopList(dialect.stopSyntax, gradient, notation)).append(");\n");
    return text;
}

std::string plainColorDeclaration(const Gradient& gradient, std::int64_t notation) {
    const ColorStop& first = gradient.stops().front();
    const auto color = colorNotation::colorText(notation, first.color, first.opacity);
    return "\tbackground: " + color.value_or(std::string{null}) + ";\n";
}

// Always hexadecimal and always horizontal, whatever the gradient: deliberate, the filter knows no more.
std::string filterDeclaration(const Gradient& gradient, std::int64_t /*notation*/) {
    const auto hexadecimal = [](const ColorStop& stop) {
        return colorNotation::hexadecimalText(stop.color).value_or(std::string{null});
    };
    return "\tfilter: progid:DXImageTransform.Microsoft.gradient(\n\t\tstartColorstr='" +
           hexadecimal(gradient.stops().front()) + "',\n\t\tendColorstr='" +
           hexadecimal(gradient.stops().back()) + "',GradientType=1 );\n";
}

using Generator = std::string (*)(const Gradient& gradient, std::int64_t notation);

// In the order of the declarations.
constexpr std::array generators{
    Generator{plainColorDeclaration},
    Generator{gradientDeclaration<dialect::standard>},
    Generator{gradientDeclaration<dialect::moz>},
    Generator{gradientDeclaration<dialect::oldWebKit>},
    Generator{gradientDeclaration<dialect::newWebKit>},
    Generator{gradientDeclaration<dialect::opera>},
    Generator{gradientDeclaration<dialect::ie>},
    Generator{filterDeclaration},
};
static_assert(generators.size() == declarationCount);

} // namespace

std::string declarationText(Declaration declaration, const Gradient& gradient, std::int64_t notation) {
    return gradient.stops().empty() ? std::string{}
                                    : generators[static_cast<std::size_t>(declaration)](gradient, notation);
}

} // namespace tessaly
