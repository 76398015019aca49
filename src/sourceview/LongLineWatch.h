#pragma once

#include "foundation/TextEdit.h"

#include <optional>
#include <string_view>

namespace tessaly {

/// Knows whether a text has a line that is too long to be wrapped. An edit costs as much as the lines that it
/// touches, however long the text is; only an edit that ends the one long line known so far looks at the
/// whole text. Lines end with LF here: it is the toolkit's paragraphs that are laid out as one.
class LongLineWatch {
  public:
    /// Wrapping a longer line takes the toolkit quadratic time.
    static constexpr std::size_t longestWrapped = 10'000;

    /// `text` is the text after `edit`.
    void textEdited(std::u16string_view text, const TextEdit& edit);

    /// Of the units of a line, without what ends it.
    static constexpr bool isTooLong(std::size_t units) { return units > longestWrapped; }
    static bool hasTooLongLine(std::u16string_view text);

    bool hasLongLine() const { return longLine_.has_value(); }

  private:
    std::optional<std::size_t> longLine_; // an offset in a long line
};

} // namespace tessaly
