#include "exchange/CssValue.h"

#include "exchange/CssCharacter.h"
#include "exchange/CssGradientFunction.h"
#include "exchange/CssLayers.h"
#include "exchange/CssTokenizer.h"
#include "exchange/CssUnread.h"

#include <algorithm>

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
        } else if (value_.canBeTaken()) {
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
        if (!found) {
            const bool isConic = function.syntax == Syntax::Conic;
            const auto arguments = text_.substr(token.end(), components.end - token.end());
            const std::string_view reason = isConic ? "is conic" : whyCssUnread(arguments);
            isWrong_ = isWrong_ || reason.empty();
            if (!value_.gradient) {
                value_.gradient = {formOf(function.syntax), {}, reason};
            }
            return;
        }
        if (value_.canBeTaken()) {
            return;
        }
        if (found->gradient.stops().size() > FoundGradients::mostStops) {
            value_.tooManyStops = true;
            return;
        }
        value_.gradient = {formOf(function.syntax), std::move(*found)};
        place_ = token.begin;
        isAlone_ =
            trimmed(text_.substr(0, token.begin)).empty() && trimmed(text_.substr(components.end)).empty();
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
