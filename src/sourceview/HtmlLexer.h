#pragma once

#include "sourceview/CodeStretch.h"

#include <optional>
#include <string_view>

namespace tessaly {

/// The stretches of a page, one after the other: its tags with their attributes, and its comments.
class HtmlLexer {
  public:
    static constexpr std::u16string_view opener = u"<!--";
    static constexpr std::u16string_view closer = u"-->";

    /// How far the end of a comment is looked for of which only that is known.
    static constexpr std::size_t lookAhead = 1'000;

    HtmlLexer(std::u16string_view text, std::size_t start) : text_{text}, at_{start} {}

    std::optional<CodeStretch> next();

  private:
    std::optional<CodeStretch> nextInText();
    std::optional<CodeStretch> nextInTag();
    CodeStretch take(std::size_t end, CodeRole role);
    std::size_t behind(std::u16string_view closing, std::size_t from) const;
    std::size_t endOf(bool (*ends)(char16_t), std::size_t from) const;
    bool startsTag(std::size_t place) const;

    std::u16string_view text_;
    std::size_t at_;
    bool isInTag_ = false;
    bool isValueNext_ = false; ///< behind an equals sign
};

} // namespace tessaly
