#pragma once

#include "exchange/CssItems.h"
#include "exchange/SvgElement.h"

#include <cstdint>
#include <string_view>

namespace tessaly {

/// What is declared of an element. Each property has a rank: the higher one counts, of equal ones the later.
/// The texts lie where they were declared.
class SvgStyle {
  public:
    /// A rule's rank is its specificity times `specific`, and below that its place among the rules.
    enum Rank : std::uint64_t {
        attribute = 0,
        specific = std::uint64_t{1} << 32U,
        own = std::uint64_t{1} << 48U,
        important = std::uint64_t{1} << 49U ///< on top of any other
    };

    /// A value that is wrong, or of a property that does not matter, is passed over.
    void declare(const CssItem& declaration, std::uint64_t rank);

    /// A list of declarations, all of one rank.
    void declareAll(std::string_view declarations, std::uint64_t rank);

    /// Takes what another one declares, with that rank on top of its own.
    void merge(const SvgStyle& other, std::uint64_t rank);

    /// Empty: it is not declared. Of color and opacity it can be read, or says why not (`whyCssUnread`).
    std::string_view value(SvgProperty property) const {
        return declared_[static_cast<std::size_t>(property)].value;
    }

    bool empty() const;

    /// A rule may declare more, but asks for what is not looked at here.
    bool isUnsure = false;

  private:
    struct Ranked {
        std::string_view value{};
        std::uint64_t rank = 0;

        void take(std::string_view other, std::uint64_t otherRank);
    };

    std::array<Ranked, svgPropertyNames.size()> declared_;
};

} // namespace tessaly
