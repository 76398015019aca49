#pragma once

#include "codegen/CodeText.h"

namespace tessaly {

class CustomTextView;

/// A code view as the code generation sees it.
class CodeTextAdapter : public CodeText {
  public:
    /// The view must outlive the adapter.
    explicit CodeTextAdapter(CustomTextView& view) : view_{view} {}

    std::u16string_view text() const override;
    void replaceCharacters(TextRange range, std::string_view text) override;

  private:
    CustomTextView& view_;
};

} // namespace tessaly
