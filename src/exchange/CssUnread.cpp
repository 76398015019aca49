#include "exchange/CssUnread.h"

#include "exchange/CssName.h"
#include "exchange/CssTokenizer.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

using Kind = CssToken::Kind;

struct Row {
    Kind kind;
    std::string_view name;
    std::string_view phrase;
};

constexpr std::array rows{
    Row{Kind::Function, "var", "uses var()"},
    Row{Kind::Function, "env", "uses env()"},
    Row{Kind::Function, "attr", "uses attr()"},
    Row{Kind::Function, "if", "uses if()"},
    Row{Kind::Ident, "currentcolor", "uses currentColor"},
    Row{Kind::Ident, "from", "uses a color made from another"},
    Row{Kind::Function, "color-mix", "uses color-mix()"},
    Row{Kind::Function, "light-dark", "uses light-dark()"},
    Row{Kind::Function, "contrast-color", "uses contrast-color()"},
    Row{Kind::Function, "device-cmyk", "uses device-cmyk()"},
    Row{Kind::Function, "calc", "uses calc()"},
    Row{Kind::Function, "min", "uses min()"},
    Row{Kind::Function, "max", "uses max()"},
    Row{Kind::Function, "clamp", "uses clamp()"},
};

} // namespace

std::string_view whyCssUnread(std::string_view text) {
    CssTokenizer tokens{text};
    for (CssToken token = tokens.next(); token.kind != Kind::End; token = tokens.next()) {
        const Row* const row = std::ranges::find_if(rows, [&](const Row& candidate) {
            return token.kind == candidate.kind && isCssName(token.name, candidate.name);
        });
        if (row != rows.end()) {
            return row->phrase;
        }
    }
    return {};
}

} // namespace tessaly
