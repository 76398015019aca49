#pragma once

#include "exchange/CssBrackets.h"
#include "exchange/CssToken.h"
#include "exchange/SvgElement.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// A selector of elements by name, class and id, each perhaps within others: "#g stop.a".
class SvgSelector {
  public:
    explicit SvgSelector(std::string_view text);

    /// What every element has that it selects: "#id", ".class" or a name; "*": it may be any.
    std::string key() const;

    /// Whether the last element of the path is selected, as far as is looked at here.
    bool matches(SvgPath path) const;

    /// False: it asks for more than is looked at here.
    bool isExact() const { return isExact_; }

    /// The higher one counts; below 4096.
    std::uint64_t specificity() const;

  private:
    // What is asked of one element.
    struct Step {
        std::string name;
        std::string id;
        std::vector<std::string> classes;

        bool matches(const SvgElement& element) const;
    };

    void take(const CssToken& token);

    std::vector<Step> steps_{1}; ///< from the outermost on
    bool isExact_ = true;

    // While it is read.
    CssBrackets brackets_;
    bool startsStep_ = false;
    char mark_ = '\0'; ///< before a name
};

} // namespace tessaly
