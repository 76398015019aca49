#pragma once

#include "exchange/Reading.h"

#include <map>
#include <string_view>

namespace tessaly {

/// How near to the standard a gradient is written, the nearest first.
enum class CssForm { Standard, Prefixed, Filter };

/// A gradient that was seen in a text.
struct SeenGradient {
    CssForm form = CssForm::Standard;
    FoundGradient found{};
    std::string_view reason{}; ///< why it cannot be taken, a phrase such as "is conic"; empty: it can. Static

    bool canBeTaken() const { return reason.empty(); }
};

/// The declarations of one rule that hold gradients: where that of a property is among all.
using RuleGradients = std::map<std::string, std::size_t, std::less<>>;

/// The gradients of a text, as they are found. All forms of one property of one rule are one gradient.
class FoundGradients {
  public:
    static constexpr std::size_t mostGradients = 10'000;
    static constexpr std::size_t mostStops = 10'000;

    /// Takes a gradient in, in place of another form of it that cannot be taken or is further from the
    /// standard, or of one that is overruled. False: there are too many.
    bool add(RuleGradients& rule, std::string_view property, SeenGradient&& seen);

    /// A gradient without a property, which is one of its own.
    bool add(SeenGradient&& seen);

    /// Something had to be left out.
    void setIncomplete() { isComplete_ = false; }

    bool empty() const { return found_.empty(); }
    Reading taken() &&;

  private:
    std::vector<SeenGradient> found_;
    bool isComplete_ = true;
};

} // namespace tessaly
