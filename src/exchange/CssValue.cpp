#include "exchange/CssValue.h"

#include "exchange/CssCharacter.h"
#include "exchange/CssGradientFunction.h"
#include "exchange/CssLayers.h"
#include "exchange/CssName.h"
#include "exchange/CssTokenizer.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

using Kind = CssToken::Kind;
using Syntax = CssGradientFunction::Syntax;

constexpr std::size_t piecesPerStop = 4; // colour, two positions, comma
constexpr std::size_t mostPieces = FoundGradients::mostStops * piecesPerStop;

CssForm formOf(Syntax syntax) {
    switch (syntax) {
    case Syntax::Standard:
        return CssForm::Standard;
    case Syntax::Filter:
        return CssForm::Filter;
    default:
        return CssForm::Prefixed;
    }
}

// What is right in a browser although it cannot be read here: it depends on where it stands.
bool isBeyondReading(const CssGradientFunction& function, std::string_view text) {
    constexpr std::array<std::string_view, 14> dependent{
        "var",  "env", "attr", "color-mix", "light-dark",     "currentcolor", "from",
        "calc", "min", "max",  "clamp",     "contrast-color", "device-cmyk",  "if"};
    if (function.syntax == Syntax::Conic) {
        return true;
    }
    CssTokenizer tokens{text};
    for (CssToken token = tokens.next(); token.kind != Kind::End; token = tokens.next()) {
        const bool isName = token.kind == Kind::Ident || token.kind == Kind::Function;
        if (isName &&
            std::ranges::any_of(dependent, [&](auto name) { return isCssName(token.name, name); })) {
            return true;
        }
    }
    return false;
}

bool isBlank(std::string_view text) {
    return std::ranges::all_of(text, isCssBlank);
}

// Reads a value, gradient by gradient.
class ValueReader {
  public:
    explicit ValueReader(std::string_view text) : text_{text}, tokens_{text} {}

    CssValue read() {
        for (CssToken token = tokens_.next(); token.kind != Kind::End; token = tokens_.next()) {
            if (token.kind == Kind::Function) {
                if (const auto function = findGradientFunction(token.name)) {
                    take(*function, token);
                }
            }
        }
        if (isWrong_) {
            value_.gradient.reset();
        }
        if (value_.gradient) {
            tellTheRest(value_.gradient->found);
        }
        return std::move(value_);
    }

  private:
    void take(const CssGradientFunction& function, const CssToken& token) {
        ++count_;
        const CssComponents components = readCssComponents(text_, token.end(), mostPieces);
        tokens_.moveTo(components.end);
        if (!components.complete) {
            value_.tooManyStops = true;
            return;
        }
        auto found = components.balanced ? readGradientFunction(function, components.list) : std::nullopt;
        const std::string_view arguments = text_.substr(token.end(), components.end - token.end());
        isWrong_ = isWrong_ || (!found && !isBeyondReading(function, arguments));
        if (!found || value_.gradient) {
            return;
        }
        if (found->gradient.stops().size() > FoundGradients::mostStops) {
            value_.tooManyStops = true;
            return;
        }
        value_.gradient = {std::move(*found), formOf(function.syntax)};
        place_ = token.begin;
        isAlone_ = isBlank(text_.substr(0, token.begin)) && isBlank(text_.substr(components.end));
    }

    void tellTheRest(FoundGradient& found) const {
        if (isAlone_) {
            return; // nearly all
        }
        const auto isSeenThrough = [](const ColorStop& stop) { return stop.opacity < 1; };
        const bool shows = std::ranges::any_of(found.gradient.stops(), isSeenThrough);
        std::ranges::move(readCssLayers(text_, place_, shows), std::back_inserter(found.notes));
        if (count_ > 1) {
            found.notes.push_back(std::to_string(count_ - 1) + " more gradient" + (count_ > 2 ? "s" : "") +
                                  " left out");
        }
    }

    std::string_view text_;
    CssTokenizer tokens_;
    CssValue value_;
    std::size_t place_ = 0; ///< of the gradient that was taken
    bool isAlone_ = false;  ///< that gradient
    std::size_t count_ = 0;
    bool isWrong_ = false;
};

} // namespace

CssValue readCssValue(std::string_view text) {
    return ValueReader{text}.read();
}

} // namespace tessaly
