#include "codegen/StylesheetText.h"

#include "codegen/DeclarationText.h"

namespace tessaly {

PerDeclaration<std::string> declarationTexts(const Gradient& gradient, std::int64_t notation) {
    PerDeclaration<std::string> texts;
    for (const Declaration declaration : allDeclarations) {
        texts[declaration] = declarationText(declaration, gradient, notation);
    }
    return texts;
}

std::string stylesheetText(const PerDeclaration<std::string>& declarations) {
    std::string text{stylesheetOpening};
    for (const Declaration declaration : allDeclarations) {
        text += declarations[declaration];
    }
    return text + "}\n";
}

} // namespace tessaly
