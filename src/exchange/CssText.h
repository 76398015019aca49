#pragma once

#include <cstddef>
#include <string_view>

namespace tessaly {

/// Text of CSS, and what begins and ends at a place of it.
class CssText {
  public:
    explicit CssText(std::string_view text) : text_{text} {}

    /// NUL behind the end.
    char at(std::size_t place) const { return place < text_.size() ? text_[place] : '\0'; }
    std::size_t size() const { return text_.size(); }
    std::string_view between(std::size_t begin, std::size_t end) const {
        return text_.substr(begin, end - begin);
    }

    bool startsEscape(std::size_t place) const;
    bool startsName(std::size_t place) const;
    bool startsNumber(std::size_t place) const;

    // Of what begins at the place: blanks, an escape, a name, a number.
    std::size_t blanksEnd(std::size_t place) const;
    std::size_t escapeEnd(std::size_t place) const;
    std::size_t nameEnd(std::size_t place) const;
    std::size_t numberEnd(std::size_t place) const;

  private:
    std::string_view text_;
};

} // namespace tessaly
