#pragma once

#include "foundation/TextEdit.h"

#include <string>
#include <string_view>

namespace tessaly {

/// An exact copy of the text of a view, kept in step by the view's reports of its changes. A report may span
/// more than what has changed: text dragged to another place, an undo of several steps, a composition by an
/// input method that changes nothing yet.
class TextMirror {
  public:
    std::u16string_view text() const { return text_; }

    /// `removed` units at `position`, which lie within the text, are now `added`. Returns what really
    /// differs.
    TextEdit replace(std::size_t position, std::size_t removed, std::u16string_view added);

  private:
    std::u16string text_;
};

} // namespace tessaly
