#pragma once

#include "codegen/Declaration.h"
#include "foundation/TextRange.h"

namespace tessaly {

/// Where each declaration lies in the stylesheet text. The ranges keep their order and never overlap; between
/// them may stand what the user typed there.
class DeclarationRanges {
  public:
    const TextRange& operator[](Declaration declaration) const { return ranges_[declaration]; }

    /// Puts a declaration at a place of its own. The caller keeps the order.
    void place(Declaration declaration, TextRange range) { ranges_[declaration] = range; }

    /// The declaration has a new length; all later ones move with its end.
    void resize(Declaration declaration, std::size_t length);

    /// The user replaced `removed` units at `position` by `added` others. Text that appears at an edge of a
    /// declaration is outside of it; what is cut out of one, or typed into it, changes its length.
    void followEdit(std::size_t position, std::size_t removed, std::size_t added);

    std::size_t backgroundColorOldIndex() const { return ranges_[Declaration::Old].location; }
    std::size_t backgroundColorIndex() const { return ranges_[Declaration::Standard].location; }
    std::size_t backgroundColorMozIndex() const { return ranges_[Declaration::Moz].location; }
    std::size_t backgroundColorOldWebKitIndex() const { return ranges_[Declaration::OldWebKit].location; }
    std::size_t backgroundColorNewWebKitIndex() const { return ranges_[Declaration::NewWebKit].location; }
    std::size_t backgroundColorOperaIndex() const { return ranges_[Declaration::Opera].location; }
    std::size_t backgroundColorIEIndex() const { return ranges_[Declaration::IE].location; }
    std::size_t backgroundColorMSFilterIndex() const { return ranges_[Declaration::MSFilter].location; }

    bool operator==(const DeclarationRanges&) const = default;

  private:
    PerDeclaration<TextRange> ranges_;
};

} // namespace tessaly
