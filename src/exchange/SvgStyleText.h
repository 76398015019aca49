#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessaly {

/// One declaration of a style.
struct SvgDeclaration {
    std::string_view name;
    std::string_view value; ///< without "!important"
    bool isImportant = false;
};

/// The style with a blank for each comment.
std::string withoutComments(std::string_view style);

/// Takes all before the first of these characters off the front of the style, and that character; what
/// stands in quotes or brackets is passed over. `ender` is the character, 0 when none of them came.
std::string_view takeUpTo(std::string_view& style, std::string_view enders, char& ender);

/// Takes the next declaration off the front of a list of them, skipping what is none.
std::optional<SvgDeclaration> takeDeclaration(std::string_view& list);

} // namespace tessaly
