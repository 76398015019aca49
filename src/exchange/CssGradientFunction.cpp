#include "exchange/CssGradientFunction.h"

#include "exchange/CssGradientSyntax.h"
#include "exchange/CssName.h"

namespace tessaly {
namespace {

using Syntax = CssGradientFunction::Syntax;

std::optional<CssGradientFunction> pointToPoint(CssArgument components) {
    const bool isRadial = !components.empty() && components.front().isIdent("radial");
    const bool isLinear = !components.empty() && components.front().isIdent("linear");
    return isRadial || isLinear ? std::optional{CssGradientFunction{Syntax::PointToPoint, isRadial}}
                                : std::nullopt;
}

std::optional<GradientDraft> readDraft(const CssGradientFunction& function, CssArgument components) {
    const auto arguments = argumentsOf(components);
    switch (function.syntax) {
    case Syntax::Standard:
        return function.radial ? readStandardRadial(arguments) : readStandardLinear(arguments);
    case Syntax::Prefixed:
        return function.radial ? readPrefixedRadial(arguments)
                               : readPrefixedLinear(arguments, function.knowsTo);
    case Syntax::PointToPoint: {
        const auto kind = pointToPoint(components);
        return kind ? readPointToPoint(std::span{arguments}.subspan(1), kind->radial) : std::nullopt;
    }
    case Syntax::Filter:
        return readFilter(arguments);
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<CssGradientFunction> findGradientFunction(std::string_view written) {
    constexpr std::string_view suffix = "gradient";
    const bool isPlain = written.find('\\') == std::string_view::npos;
    if (isPlain && (written.size() < suffix.size() ||
                    !isCssName(written.substr(written.size() - suffix.size()), suffix))) {
        return std::nullopt; // nearly all names
    }
    const std::string lower = cssName(written);
    std::string_view name = lower;
    if (name == suffix) {
        return CssGradientFunction{Syntax::Filter};
    }
    if (name == "-webkit-gradient") {
        return CssGradientFunction{Syntax::PointToPoint};
    }
    CssGradientFunction function;
    function.knowsTo = !name.starts_with("-webkit-");
    function.syntax = takeBrowserPrefix(name) ? Syntax::Prefixed : Syntax::Standard;
    constexpr std::string_view repeating = "repeating-";
    function.repeating = name.starts_with(repeating);
    name.remove_prefix(function.repeating ? repeating.size() : 0);
    function.radial = name == "radial-gradient";
    if (name == "conic-gradient") {
        function.syntax = Syntax::Conic;
    } else if (!function.radial && name != "linear-gradient") {
        return std::nullopt;
    }
    return function;
}

std::optional<FoundGradient> readGradientFunction(const CssGradientFunction& function,
                                                  CssArgument components) {
    auto draft = readDraft(function, components);
    if (!draft) {
        return std::nullopt;
    }
    draft->repeating = function.repeating;
    return draft->finished();
}

} // namespace tessaly
