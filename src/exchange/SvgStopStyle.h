#pragma once

#include "exchange/CssColor.h"
#include "exchange/SvgStyleText.h"

#include <cstdint>
#include <string_view>

namespace tessaly {

/// What is declared for a stop. Each property has a rank: the higher one counts, of equal ones the later.
class SvgStopStyle {
  public:
    /// Ranks of equal weight follow the order in which they are declared.
    enum Weight : std::uint64_t {
        attribute = 0,
        element = std::uint64_t{1} << 32U,
        byClass = std::uint64_t{2} << 32U,
        byId = std::uint64_t{3} << 32U,
        own = std::uint64_t{4} << 32U,
        important = std::uint64_t{8} << 32U ///< on top of any other
    };

    /// A value that cannot be read, or is of another property, is passed over.
    void declare(const SvgDeclaration& declaration, std::uint64_t rank);

    /// A list of declarations, all of one rank.
    void declareAll(std::string_view declarations, std::uint64_t rank);

    /// Takes what another one declares, with that weight on top of its ranks.
    void merge(const SvgStopStyle& other, Weight weight);

    /// With `stop-opacity` in its alpha.
    ReadColor color() const {
        return {color_.value.color, color_.value.alpha * opacity_.value, color_.value.clipped};
    }

  private:
    template <typename Value>
    struct Ranked {
        Value value;
        bool isDeclared = false;
        std::uint64_t rank = 0;

        void take(const Value& other, std::uint64_t otherRank) {
            if (!isDeclared || otherRank >= rank) {
                *this = {other, true, otherRank};
            }
        }
    };

    Ranked<ReadColor> color_;
    Ranked<double> opacity_{1.0};
};

} // namespace tessaly
