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
    /// No lines at all, not even the one of an empty text.
    LineIndices() = default;

    explicit LineIndices(std::u16string_view text);

    std::size_t count() const { return starts_.size(); }
    std::uint32_t operator[](std::size_t line) const { return starts_[line]; }
    const std::vector<std::uint32_t>& starts() const { return starts_; }

    /// The 0-based line that holds the character: the last line for an index behind its start, 0 without
    /// lines.
    std::size_t lineNumberForCharacterIndex(std::size_t index) const;

  private:
    std::vector<std::uint32_t> starts_;
};

} // namespace tessaly
