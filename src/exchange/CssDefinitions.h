#pragma once

#include "exchange/CssTokenizer.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// What values of a text can name instead of saying it: custom properties and the color of the text. Each
/// belongs to the rule that declares it; those of the root, and of no rule, to the text itself, whose number
/// is 0. Rules are counted as CssItems does.
class CssDefinitions {
  public:
    /// Adds those of a text, which must outlive this.
    void gather(std::string_view text);

    /// What the declaration of a property of that rule says that counts: of the important ones the last, else
    /// of all. None: there is none.
    std::optional<std::string_view> find(std::size_t rule, std::string_view property);

    /// The value with what its names stand for, in that rule or else in the text itself, or what the value
    /// says for the case that nothing does. `color` is what currentColor stands for; empty: nothing. A name
    /// that stands for nothing stays, as do names of names at some depth or in a circle, and what makes a
    /// text too long.
    std::string resolved(std::string_view value, std::size_t rule, std::string_view color);

  private:
    struct Definition {
        std::size_t rule;
        std::string_view property;
        bool isPlain; ///< does not stand within an at-rule, which need not hold
        bool isImportant;
        std::string_view value;
    };

    // A value, or one that is put in for a name of it.
    struct Source {
        explicit Source(std::string_view source) : text{source}, tokens{source} {}

        std::string_view upTo(std::size_t place); ///< what is not copied yet

        std::string_view text;
        CssTokenizer tokens;
        std::size_t copied = 0;
    };

    struct Reference {
        std::optional<std::string_view> stand{}; ///< what stands in for it
        std::size_t end = 0;
    };

    Reference referenceAt(Source& source, const CssToken& token, std::size_t rule, std::string_view color);

    std::vector<Definition> definitions_;
    bool areSorted_ = true;
    std::size_t room_ = std::size_t{4} << 20U; ///< bytes that may still be put in, in all
};

} // namespace tessaly
