#include "codegen/StandardText.h"

#include "codegen/DeclarationText.h"
#include "model/Gradient.h"

#include <algorithm>
#include <string_view>

namespace tessaly {
namespace {

// Every run of white space as one blank, none at the ends.
std::string onOneLine(std::string_view text) {
    constexpr std::string_view white = " \t\n";
    std::string line;
    line.reserve(text.size());
    for (const char c : text) {
        if (white.find(c) == std::string_view::npos) {
            line += c;
        } else if (!line.empty() && line.back() != ' ') {
            line += ' ';
        }
    }
    line.resize(line.find_last_not_of(' ') + 1);
    return line;
}

// Any other orientation looks like left to right but has no text.
Gradient withKnownOrientation(Gradient gradient) {
    if (std::ranges::find(orientation::items, gradient.orientation(), &orientation::Item::code) ==
        orientation::items.end()) {
        gradient.setOrientation(orientation::leftToRight);
    }
    return gradient;
}

} // namespace

std::string standardDeclarationText(const Gradient& gradient, std::int64_t notation) {
    return onOneLine(declarationText(Declaration::Standard, withKnownOrientation(gradient), notation));
}

std::string standardValueText(const Gradient& gradient, std::int64_t notation) {
    const std::string declaration = standardDeclarationText(gradient, notation);
    const std::size_t start = declaration.find(' ') + 1; // behind the name
    return declaration.empty() ? declaration : declaration.substr(start, declaration.size() - start - 1);
}

} // namespace tessaly
