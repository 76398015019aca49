#pragma once

#include "codegen/Declaration.h"
#include "codegen/DeclarationText.h"
#include "model/GlobalData.h"

#include <string>

namespace tessaly {

/// The current text of every declaration. Each is replaced whole by its generator, from the gradient as it
/// then is.
class GradientDeclarations {
  public:
    void construct(Declaration declaration) {
        const GlobalData& data = GlobalData::sharedData();
        texts_[declaration] = declarationText(declaration, data.gradient(), data.colorFormatType());
    }

    void constructBackgroundOldCommand() { construct(Declaration::Old); }
    void constructBackgroundCommand() { construct(Declaration::Standard); }
    void constructBackgroundMozCommand() { construct(Declaration::Moz); }
    void constructBackgroundOldWebKitCommand() { construct(Declaration::OldWebKit); }
    void constructBackgroundNewWebKitCommand() { construct(Declaration::NewWebKit); }
    void constructBackgroundOperaCommand() { construct(Declaration::Opera); }
    void constructBackgroundIECommand() { construct(Declaration::IE); }
    void constructBackgroundMSFilterCommand() { construct(Declaration::MSFilter); }

    const std::string& text(Declaration declaration) const { return texts_[declaration]; }

    const std::string& backgroundColorOldText() const { return text(Declaration::Old); }
    const std::string& backgroundColorText() const { return text(Declaration::Standard); }
    const std::string& backgroundColorMozText() const { return text(Declaration::Moz); }
    const std::string& backgroundColorOldWebKitText() const { return text(Declaration::OldWebKit); }
    const std::string& backgroundColorNewWebKitText() const { return text(Declaration::NewWebKit); }
    const std::string& backgroundColorOperaText() const { return text(Declaration::Opera); }
    const std::string& backgroundColorIEText() const { return text(Declaration::IE); }
    const std::string& backgroundColorMSFilterText() const { return text(Declaration::MSFilter); }

  private:
    PerDeclaration<std::string> texts_;
};

} // namespace tessaly
