#pragma once

#include "foundation/TextRange.h"

#include <cstddef>
#include <string_view>

namespace tessaly {

/// What the code generation asks of an editable code view. Offsets and lengths count UTF-16 units; what is
/// put in is ASCII, since all generated text is.
class CodeText {
  public:
    virtual ~CodeText() = default;

    virtual void setText(std::string_view text) = 0;
    virtual void setEditable(bool editable) = 0;
    virtual void setSelection(TextRange selection) = 0;

    /// Inserts at the selection as typed input; the caret moves behind it.
    virtual void insertText(std::string_view text) = 0;
    virtual void moveToBeginningOfDocument() = 0;

    /// Valid until the text changes.
    virtual std::u16string_view text() const = 0;
    virtual std::size_t length() const = 0;

    /// Replaces a range that lies within the text, straight in the storage: caret, selection and scroll
    /// position stay, and it is no undo step.
    virtual void replaceCharacters(TextRange range, std::string_view text) = 0;
    virtual void redisplay() = 0;
};

} // namespace tessaly
