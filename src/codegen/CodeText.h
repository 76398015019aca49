#pragma once

#include "foundation/TextRange.h"

#include <string_view>

namespace tessaly {

/// What the code generation asks of an editable code view. Offsets and lengths count UTF-16 units; what is
/// put in is ASCII, since all generated text is.
class CodeText {
  public:
    virtual ~CodeText() = default;

    /// Valid until the text changes.
    virtual std::u16string_view text() const = 0;

    /// Replaces a range that lies within the text, straight in the storage: caret, selection and scroll
    /// position stay, and it is no undo step.
    virtual void replaceCharacters(TextRange range, std::string_view text) = 0;

    /// Replaces the whole text as if the user had typed it, undo step and report included.
    virtual void typeOver(std::string_view text) = 0;
};

} // namespace tessaly
