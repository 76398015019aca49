#pragma once

#include "codegen/CodeText.h"
#include "sourceview/qt/CustomTextView.h"

#include <string>

namespace tessaly {

/// A code view as the code generation sees it.
class CodeTextAdapter : public CodeText {
  public:
    /// The view must outlive the adapter.
    explicit CodeTextAdapter(CustomTextView& view) : view_{view} {}

    std::u16string_view text() const override { return view_.text(); }
    void replaceCharacters(TextRange range, std::string_view text) override {
        view_.replaceCharacters(range, std::u16string(text.begin(), text.end()));
    }
    void typeOver(std::string_view text) override {
        view_.typeOver(std::u16string(text.begin(), text.end()));
    }

  private:
    CustomTextView& view_;
};

} // namespace tessaly
