#pragma once

#include "sourceview/CodeStretch.h"

#include <optional>
#include <string_view>

namespace tessaly {

/// The stretches of a stylesheet, one after the other. Whether a statement is a rule or a declaration is told
/// by what ends it, so reading may start at any of them, and in the midst of a value too.
class CssLexer {
  public:
    static constexpr std::u16string_view opener = u"/*";
    static constexpr std::u16string_view closer = u"*/";

    /// How far the end of a statement is looked for. One longer than that is a declaration.
    static constexpr std::size_t lookAhead = 1'000;

    CssLexer(std::u16string_view text, std::size_t start) : text_{text}, at_{start} {}

    std::optional<CodeStretch> next();

  private:
    bool takePunctuation();
    CodeRole roleOfStatement() const;
    std::size_t endOf(CodeRole role) const;
    std::size_t behind(std::size_t place) const;
    bool isAtComment(std::size_t place) const {
        return text_[place] == opener.front() && text_.substr(place, opener.size()) == opener;
    }

    std::u16string_view text_;
    std::size_t at_;
    std::optional<CodeRole> role_; ///< of what is being read; none between statements
};

} // namespace tessaly
