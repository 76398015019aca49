#include "exchange/CssGradientSyntax.h"
#include "exchange/CssName.h"

namespace tessaly {
namespace {

constexpr std::string_view vertical = "0";

// What is behind "name=", without quotes; empty: nothing is.
std::string valueOf(CssArguments arguments, std::string_view name) {
    for (const CssArgument argument : arguments) {
        if (argument.size() == 3 && argument[0].isIdent(name) && argument[1].token.is('=')) {
            const CssToken& token = argument[2].token;
            return withoutCssEscapes(token.kind == CssToken::Kind::String ? token.name : token.text);
        }
    }
    return {};
}

// As in CSS, but of eight digits the first two are the alpha.
std::optional<ReadColor> readFilterColor(std::string text) {
    if (text.size() == 9 && text.starts_with('#')) {
        text = '#' + text.substr(3) + text.substr(1, 2);
    }
    return readCssColor(text);
}

} // namespace

std::optional<GradientDraft> readFilter(CssArguments arguments) {
    const auto start = readFilterColor(valueOf(arguments, "startcolorstr"));
    const auto end = readFilterColor(valueOf(arguments, "endcolorstr"));
    if (!start || !end) {
        return std::nullopt;
    }
    const std::string type = valueOf(arguments, "gradienttype");
    constexpr double downwards = 180;
    constexpr double rightwards = 90;
    GradientDraft draft;
    draft.takeDirection(nearestDirection(type.empty() || type == vertical ? downwards : rightwards));
    draft.stops = {{start, 0.0}, {end, 1.0}};
    return draft;
}

} // namespace tessaly
