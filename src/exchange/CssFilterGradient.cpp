#include "exchange/CssGradientSyntax.h"
#include "exchange/CssName.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr std::string_view vertical = "0";

// What is behind "name=", without quotes; empty: nothing is.
std::string valueOf(CssArguments arguments, std::string_view name) {
    const auto argument = std::ranges::find_if(
        arguments, [&](CssArgument a) { return a.size() == 3 && a[0].isIdent(name) && a[1].token.is('='); });
    if (argument == arguments.end()) {
        return {};
    }
    const CssToken& token = (*argument)[2].token;
    return withoutCssEscapes(token.kind == CssToken::Kind::String ? token.name : token.text);
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
    draft.takeDirection(type.empty() || type == vertical ? downwards : rightwards);
    draft.stops = {{start, 0.0}, {end, 1.0}};
    return draft;
}

} // namespace tessaly
