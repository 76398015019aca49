#pragma once

#include "codegen/Declaration.h"
#include "foundation/TextEdit.h"
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

    /// The user edited the text. What appears at an edge of a declaration is outside of it; what is cut out
    /// of one, or typed into it, changes its length.
    void follow(const TextEdit& edit);

    bool operator==(const DeclarationRanges&) const = default;

  private:
    PerDeclaration<TextRange> ranges_;
};

} // namespace tessaly
