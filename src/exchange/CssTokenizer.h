#pragma once

#include "exchange/CssText.h"
#include "exchange/CssToken.h"

namespace tessaly {

/// Cuts a text into the tokens of CSS, one after the other. It never fails: what fits nothing else is a token
/// of its own, and what is not closed ends with the text. Comments are passed over.
class CssTokenizer {
  public:
    /// `text` must outlive the tokens.
    explicit CssTokenizer(std::string_view text, std::size_t place = 0) : text_{text}, place_{place} {}

    /// The next token; Kind::End once and for ever when there is none left.
    CssToken next();

    /// Goes on elsewhere in the text.
    void moveTo(std::size_t place) { place_ = place; }

  private:
    void passComments();

    CssToken take(CssToken::Kind kind, std::size_t end, std::string_view name = {});
    CssToken takeName();
    CssToken takeMarkedName(CssToken::Kind kind);
    CssToken takeNumber();
    CssToken takeString();
    CssToken takeUrl(std::size_t place);
    CssToken takeMark();

    CssText text_;
    std::size_t place_;
};

} // namespace tessaly
