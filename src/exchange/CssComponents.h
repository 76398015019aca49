#pragma once

#include "exchange/CssToken.h"

#include <span>
#include <vector>

namespace tessaly {

/// A piece of a value: a token, or a function or a bracket with all that is in it.
struct CssComponent {
    CssToken token;
    std::string_view text{};    ///< as it is written
    std::string_view content{}; ///< of a function or a bracket: what is in it

    bool isFunction() const { return token.kind == CssToken::Kind::Function; }
    bool isComma() const { return token.kind == CssToken::Kind::Comma; }
    bool isIdent(std::string_view name) const;
};

using CssArgument = std::span<const CssComponent>;

/// The pieces of a value or of the arguments of a function, without the blanks between them.
struct CssComponents {
    std::vector<CssComponent> list;
    std::size_t end = 0;  ///< behind the closing bracket, or the end of the text
    bool complete = true; ///< false: there are more than are kept
    bool closed = false;  ///< whether a bracket closed it
    bool balanced = true; ///< false: a closing bracket has no partner
};

/// From `place` to the bracket that closes what was open there, or to the end; at most `most` pieces are
/// kept.
CssComponents readCssComponents(std::string_view text, std::size_t place, std::size_t most);

/// The arguments between the commas; an empty one stays in the list.
std::vector<CssArgument> argumentsOf(CssArgument components);

} // namespace tessaly
