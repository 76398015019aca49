#pragma once

#include <cstddef>
#include <string_view>

namespace tessaly {

/// A token of CSS. Its texts lie in the text that was read.
struct CssToken {
    enum class Kind {
        End,
        Blank,
        Ident,
        Function, ///< with its opening bracket
        AtKeyword,
        Hash,
        String,
        BadString, ///< ended by a line break
        Url,
        Number,
        Percentage,
        Dimension,
        Colon,
        Semicolon,
        Comma,
        Open,  ///< one of ( [ {
        Close, ///< one of ) ] }
        Other  ///< any other character
    };

    Kind kind = Kind::End;
    std::size_t begin = 0;   ///< offset in the text
    std::string_view text{}; ///< as it is written
    std::string_view name{}; ///< without the marks around it, escapes included; of a dimension the unit

    bool is(char mark) const { return text.size() == 1 && text.front() == mark; }
    std::size_t end() const { return begin + text.size(); }
};

} // namespace tessaly
