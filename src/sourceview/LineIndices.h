#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tessaly {

/// Where each line of a text starts, in UTF-16 units and ascending. A line ends with LF, CR, CR LF, NEL,
/// LINE SEPARATOR or PARAGRAPH SEPARATOR; behind a last terminator there is one more line, an empty one.
/// Starts are kept in 32 bits; those of a text longer than that are cut.
class LineIndices {
  public:
    explicit LineIndices(std::u16string_view text);

    const std::vector<std::uint32_t>& starts() const { return starts_; }

    /// The 0-based line that holds the character: the last line for an index behind its start.
    std::size_t lineNumberForCharacterIndex(std::size_t index) const;

  private:
    std::vector<std::uint32_t> starts_;
};

} // namespace tessaly
