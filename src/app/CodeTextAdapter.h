#pragma once

#include "codegen/CodeText.h"

namespace tessaly {

class CustomTextView;

/// A code view as the code generation sees it.
class CodeTextAdapter : public CodeText {
  public:
    /// The view must outlive the adapter.
    explicit CodeTextAdapter(CustomTextView& view) : view_{view} {}

    void setText(std::string_view text) override;
    void setEditable(bool editable) override;
    void setSelection(TextRange selection) override;
    void insertText(std::string_view text) override;
    void moveToBeginningOfDocument() override;
    std::u16string_view text() const override;
    std::size_t length() const override;
    void replaceCharacters(TextRange range, std::string_view text) override;
    void redisplay() override;

  private:
    CustomTextView& view_;
};

} // namespace tessaly
