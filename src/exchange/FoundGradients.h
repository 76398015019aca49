#pragma once

#include "exchange/Reading.h"

#include <map>
#include <string_view>

namespace tessaly {

/// How near to the standard a gradient is written, the nearest first.
enum class CssForm { Standard, Prefixed, Filter };

/// The declarations of one rule that hold gradients: where that of a property is among all.
using RuleGradients = std::map<std::string, std::size_t, std::less<>>;

/// The gradients of a text, as they are found. All forms of one property of one rule are one gradient.
class FoundGradients {
  public:
    static constexpr std::size_t mostGradients = 10'000;
    static constexpr std::size_t mostStops = 10'000;

    /// Takes a gradient in, in place of another form of it that is further from the standard, or of one that
    /// is overruled. False: there are too many.
    bool add(RuleGradients& rule, std::string_view property, CssForm form, FoundGradient found);

    /// A gradient without a property, which is one of its own.
    bool add(FoundGradient found);

    /// Something had to be left out.
    void setIncomplete() { isComplete_ = false; }

    bool empty() const { return found_.empty(); }
    Reading taken() &&;

  private:
    struct Entry {
        CssForm form;
        FoundGradient found;
    };

    bool append(CssForm form, FoundGradient found);

    std::vector<Entry> found_;
    bool isComplete_ = true;
};

} // namespace tessaly
